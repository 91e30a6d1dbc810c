// When two Idents are the same.
#include "support/rules.h"

TEST(Ident, comparesByMarkerAndState) {
  const auto sign = [](int order) { return (order > 0) - (order < 0); };
  // What is no Ident is like any other.
  const char *const inAny =
      R"(Sabc=Sabc SAbc<Sabc FAbc=SAbc SABC<Fabc IABC=Iabc Iabc<IABD I_<IA Sabc=IABC Sab<Iabc Sz<Sé
      IÉ<Ié Sa=X S=Sa =Sa)";
  for (const int state : allStates)
    for (const char *rows : {inAny, state == ZEL_MAP_MATCH ? "SAbc=Iabc FABC=Iabc" : "SAbc<Iabc FABC<Iabc"})
      for (const std::string &row : split(rows)) {
        const MapState scope(state);
        const std::size_t at = row.find_first_of("<=");
        const std::string a = row.substr(0, at);
        const int order = sign(zelIdentCmp(a.c_str(), &row[at + 1]));
        EXPECT_EQ(order, row[at] == '<' ? -1 : 0) << row << " in state " << state;
        EXPECT_EQ(sign(zelIdentCmp(&row[at + 1], a.c_str())), -order) << row << " in state " << state;
      }
  EXPECT_TRUE(zelIdentCmp(nullptr, "Ia") == 0 && zelIdentCmp("Ia", nullptr) == 0);
}

TEST(Ident, hashesWithoutCase) {
  // In 28 bits, of bytes without sign.
  for (const auto &[ident, hash] : rowsOf(R"(Sab→672 IAB→672 Fab→672 S→0 →0 SaaaaaaA→7777711 IAaaAaaAa→7777101
           Stop_level_instance→ed4c775 Séééééééé→88889f9)"))
    EXPECT_EQ(zelIdentHash(ident.c_str()), std::stoul(*hash, nullptr, 16)) << ident;
  EXPECT_EQ(zelIdentHash(nullptr), 0U);
}
