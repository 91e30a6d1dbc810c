// What holds for any name in every space and mapping state: what is written is legal and reads back as the Ident that
// it was written from. What a space does not keep is left out here, and stands among its own tables.
#include "support/rules.h"

#include <random>

using testing::internal::RE;

namespace {
// Idents that a space may not keep: its name, the number of the mapping state, the marker, the body.
const RE lost("^(EscORKA:..ESC_|VHDL[^:]*:(..ESC_|4[SF].*[A-Z])" // the prefix only tells that a plain name was extended
              "|Vellum:(..ESC_|.*#20|.[SF].*(#|[^ -~]))"         // between backslashes an escape is text
              "|Library(Unix)?:[45][SF]ESC_"
              "|LibraryNT:(5S(con|Com1)$|.[SF].*#)" // '%' tears the pair of an escaped mark
              R"(|Kirra:..([0-9].*\\|.*(KEYWORD_){3}))"
              "|Spice:..[^A-Za-z0-9_]" // the first character is not tested, and quotes nothing
              "|Spf:.*[^\x01-\x7f])"); // the backslash before the escape is a character itself
} // namespace

TEST(RoundTrip, keepsEveryIdent) {
  const VHDLMode mode(2);
  // Fragments that some rule looks for, then mixtures of them and any bytes. The same in every run.
  const std::vector<std::string> fragments = split(R"~(a B _ 9 z0 __ ESC_ ESC_ESC_a ESC_Abc module Model signal con Com1
      1a2 12 1a2\. KEYWORD_ KEYWORD_KEYWORD_KEYWORD_model # #2 #23 #2323 #20 #2f #2A #41 #E9 #00 #01 % %25 %41 %20 %2F \ \\
      ' " ␣ (3) ( ) / [1] : < . | ! $ ; ␉ ␁ é)~");
  std::vector<std::string> bodies = fragments;
  std::mt19937 random(20260101); // its sequence is the same everywhere
  while (bodies.size() < 1000) {
    std::string &body = bodies.emplace_back();
    for (auto parts = random() % 5; parts < 5; ++parts)
      body += random() % 6 == 0 ? std::string(1, static_cast<char>(1 + random() % 255))
                                : fragments[random() % fragments.size()];
  }
  for (const std::string &body : bodies)
    for (const int state : allStates)
      for (const std::string &space : allSpaces())
        for (const char marker : {'S', 'I', 'F'}) {
          const std::string ident = marker + body;
          if (RE::PartialMatch(std::string(space).append(1, ':').append(std::to_string(state)).append(ident), lost))
            continue;
          const MapState scope(state);
          const Result name = convert(spaceOf(space)->identToName, ident.c_str());
          const Result back = convert(spaceOf(space)->nameToIdent, name.value_or("").c_str());
          ASSERT_EQ(zelIsLegalName(space.c_str(), name.value_or("").c_str()), 1) << space << " in " << state << ident;
          ASSERT_TRUE(zelIsLegalIdent(back.value_or("").c_str()) && zelIdentCmp(ident.c_str(), back->c_str()) == 0)
              << space << " in " << state << ident << " -> " << *name << " -> " << back.value_or("(null)");
        }
}
