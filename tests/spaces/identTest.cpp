// When two Idents are the same.
#include "support/spaceRules.h"

TEST(Ident, comparesByMarkerAndState) {
  for (Row &row : rowsOf(HERE, R"(
    Sabc  =  Sabc
    SAbc  <  Sabc
    FAbc  =  SAbc               // forced is case-sensitive
    SABC  <  Fabc
    IABC  =  Iabc
    Iabc  <  IABD
    I_    <  IA                 // as small letters
    Sabc  =  IABC               // only one has case
    SAbc  <  Iabc  not in MATCH
    SAbc  =  Iabc  in MATCH
    FABC  <  Iabc  not in MATCH
    Sab   <  Iabc
    Sz    <  Sé                 // of bytes without sign
    IÉ    <  Ié
    Sa    =  X                  // what is no Ident is like any other
    S     =  Sa
    ""    =  Sa
  )")) {
    const auto relation = [](int order) { return order < 0 ? "<" : order > 0 ? ">" : "="; };
    for (const auto &[name, value] : mapStates)
      if (const MapState state(value); holdsIn(name, row[3])) {
        row.expect(row[1], relation(zelIdentCmp(row[0].c_str(), row[2].c_str())), "state " + name);
        row.expect(row[1], relation(-zelIdentCmp(row[2].c_str(), row[0].c_str())), "state " + name + ", reversed");
      }
  }
  EXPECT_TRUE(zelIdentCmp(nullptr, "Ia") == 0 && zelIdentCmp("Ia", nullptr) == 0);
}

TEST(Ident, hashesWithoutCase) {
  for (Row &row : rowsOf(HERE, R"(
    Sab                  672
    Fab                  672
    S                    0
    ""                   0
    SaaaaaaA             7777711
    IAaaAaaAa            7777101  // of 28 bits
    Stop_level_instance  ed4c775
    Séééééééé            88889f9  // of bytes without sign
  )")) {
    char hash[12];
    std::snprintf(hash, sizeof hash, "%x", zelIdentHash(row[0].c_str()));
    row.expect(row[1], hash);
  }
  EXPECT_EQ(zelIdentHash(nullptr), 0U);
}
