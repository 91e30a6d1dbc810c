// The Ident space: what an Ident is, and when two are the same.
#include "support/rules.h"

TEST(Ident, hasAMarkerAndABody) {
  check({.spaces = "Ident",
         .states = allStates,
         .write = "Sa→Sa IA␣b→IA␣b any→any S→S",
         .read = "Sa→Sa any→any →",
         .legal = "Sa Ia Fa S␣ Ié",
         .illegal = "S I F Xa sa a"});
}

TEST(Ident, comparesByMarkerAndState) {
  const struct {
    const char *a;
    const char *b;
    int order;   // sign of the result
    int inMatch; // the same in the mapping state MATCH
  } rows[] = {{"Sabc", "Sabc", 0, 0},   {"SAbc", "Sabc", -1, -1}, {"FAbc", "SAbc", 0, 0},  {"Fabc", "SABC", 1, 1},
              {"IABC", "Iabc", 0, 0},   {"Iabc", "IABD", -1, -1}, {"I_", "IA", -1, -1},    {"Sabc", "IABC", 0, 0},
              {"SAbc", "Iabc", -1, 0},  {"FABC", "Iabc", -1, 0},  {"Sab", "Iabc", -1, -1}, {"I\xe9", "Sz", 1, 1},
              {"S\xe9", "S\xc9", 1, 1}, {"I\xe9", "I\xc9", 1, 1}, {"S_", "IA", -1, -1},    {"Sa", "X", 0, 0},
              {"S", "Sa", 0, 0},        {"", "Sa", 0, 0},         {nullptr, "Ia", 0, 0},   {nullptr, nullptr, 0, 0}};
  const auto sign = [](int order) { return (order > 0) - (order < 0); };
  for (const int state : allStates)
    for (const auto &row : rows) {
      const MapState scope(state);
      const int order = state == ZEL_MAP_MATCH ? row.inMatch : row.order;
      EXPECT_EQ(sign(zelIdentCmp(row.a, row.b)), order) << row.a << " " << row.b << " in state " << state;
      EXPECT_EQ(sign(zelIdentCmp(row.b, row.a)), -order) << row.b << " " << row.a << " in state " << state;
    }
}

TEST(Ident, hashesWithoutCase) {
  for (const char *ident : {"Sab", "IAB", "Fab"})
    EXPECT_EQ(zelIdentHash(ident), 0x672U) << ident;
  for (const char *ident : {"I@", "I`"})
    EXPECT_EQ(zelIdentHash(ident), 0x60U) << ident;
  for (const char *ident : {"S", "", static_cast<const char *>(nullptr)})
    EXPECT_EQ(zelIdentHash(ident), 0U);
  // In 28 bits, of bytes without sign.
  EXPECT_EQ(zelIdentHash("SaaaaaaA"), 0x7777711U);
  EXPECT_EQ(zelIdentHash("IAaaAaaAa"), 0x7777101U);
  EXPECT_EQ(zelIdentHash("Stop_level_instance"), 0xed4c775U);
  EXPECT_EQ(zelIdentHash("S\xe9\xe9\xe9\xe9\xe9\xe9\xe9\xe9"), 0x88889f9U);
}
