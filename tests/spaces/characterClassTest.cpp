// Every character class on every byte, beside the C library's classification.
#include "support/spaces.h"

#include <cctype>
#include <cstring>

namespace {
using Predicate = int (*)(int);

#define OF(name)                                                                                                       \
  { #name, zelIs##name##Char }
#define OF_LANGUAGE(name) OF(name##First), OF(name##Normal), OF(name##Escapable)
#define OF_FORMAT(name) OF(name), OF(name##Escapable)
const std::map<std::string, Predicate> classes = {OF_LANGUAGE(Verilog),
                                                  OF_LANGUAGE(VerilogAMS),
                                                  OF_LANGUAGE(VerilogA),
                                                  OF_LANGUAGE(VHDL),
                                                  OF_LANGUAGE(VHDL87),
                                                  OF_LANGUAGE(VHDLAMS),
                                                  OF_LANGUAGE(KirraHDL),
                                                  OF_FORMAT(Sdf),
                                                  OF_FORMAT(Spef),
                                                  OF_FORMAT(Gcf),
                                                  OF_FORMAT(Spf),
                                                  OF_FORMAT(Def),
                                                  OF_FORMAT(Lef),
                                                  OF_FORMAT(Tessel),
                                                  OF_FORMAT(FlatTessel),
                                                  OF(KirraFirst),
                                                  OF(KirraNonFirst),
                                                  OF(KirraEscapable),
                                                  OF(SpiceNormal),
                                                  OF(SpiceEscapable),
                                                  OF(ORKANormal),
                                                  OF(ORKAEscapable),
                                                  OF(Edif200),
                                                  OF(Edif300),
                                                  OF(NT),
                                                  OF(Unix)};

// Whether a character is of the kind that a word names, or one of those that the word holds.
bool isOf(const std::string &word, int c) {
  static const std::map<std::string, Predicate> kinds = {
      {"letters", isalpha},     {"alphanumeric", isalnum}, {"graphic", isgraph}, {"printable", isprint},
      {"punctuation", ispunct}, {"ASCII", isascii},        {"blanks", isspace}};
  const auto kind = kinds.find(word);
  return kind != kinds.end() ? kind->second(c) != 0 : c != 0 && std::strchr(word.c_str(), c) != nullptr;
}
bool isOfAny(const std::string &words, int c) {
  const std::vector<std::string> all = wordsOf(words);
  return std::any_of(all.begin(), all.end(), [c](const std::string &word) { return isOf(word, c); });
}
} // namespace

// Classes, what they hold, and what of that they leave out. Where a file may redefine the separators, with those of the
// built-in handles.
TEST(CharacterClass, coversEveryByteAndIgnoresTheRestOfAnInt) {
  for (Row &row : rowsOf(HERE, R"(
    VHDLFirst VHDL87First VHDLAMSFirst                       letters
    VerilogFirst VerilogAMSFirst VerilogAFirst               letters _
    KirraFirst KirraHDLFirst                                 letters _
    VHDLNormal VHDL87Normal VHDLAMSNormal KirraHDLNormal     alphanumeric _
    Sdf Spef Gcf                                             alphanumeric _
    VerilogNormal VerilogAMSNormal VerilogANormal            alphanumeric _$
    KirraNonFirst                                            alphanumeric _!
    NT Unix                                                  alphanumeric _@#
    SpiceNormal                                              alphanumeric !#$%*+-/<>[]_
    VerilogEscapable VerilogAMSEscapable VerilogAEscapable   graphic
    KirraHDLEscapable SpiceEscapable Edif200 Edif300         graphic
    VHDLEscapable VHDL87Escapable VHDLAMSEscapable           printable
    ORKAEscapable                                            printable
    KirraEscapable                                           graphic blanks
    ORKANormal                                               graphic               but (),/<>\
    Tessel                                                   graphic               but []|
    FlatTessel                                               graphic               but [\]
    TesselEscapable                                          []|\
    FlatTesselEscapable                                      []\
    SdfEscapable SpefEscapable GcfEscapable                  punctuation           but _
    Spf                                                      ASCII
    SpfEscapable                                             :/[]\
    Def                                                      ASCII                 but blanks #;
    Lef                                                      ASCII                 but blanks #;/[]
    DefEscapable LefEscapable                                /[]#\
  )")) {
    const std::string except = row[2].empty() ? "" : row[2].substr(std::strlen("but "));
    for (const std::string &name : wordsOf(row[0]))
      for (int byte = 0; byte < 256; ++byte) {
        const bool isIn = isOfAny(row[1], byte) && !isOfAny(except, byte);
        for (const int same : {byte, byte - 256, byte + 256, byte - 65536})
          row.expect(std::to_string(isIn ? 1 : 0), std::to_string(classes.at(name)(same)),
                     name + "Char of " + std::to_string(same));
      }
  }
}
