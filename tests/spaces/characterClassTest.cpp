// Every character class on every byte, beside the C library's classification.
#include "core/zel.h"

#include <cctype>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {
int none(int) { return 0; }

struct Class {
  std::vector<int (*)(int)> predicates;
  int (*base)(int);
  const char *text; // with these characters, or without

  bool has(int c) const {
    const bool isListed = c != 0 && std::strchr(text + 1, c) != nullptr;
    return text[0] == '+' ? base(c) != 0 || isListed : base(c) != 0 && !isListed;
  }
};

const Class classes[] = {
    {{zelIsVHDLFirstChar, zelIsVHDL87FirstChar, zelIsVHDLAMSFirstChar}, isalpha, "+"},
    {{zelIsVerilogFirstChar, zelIsVerilogAMSFirstChar, zelIsVerilogAFirstChar}, isalpha, "+_"},
    {{zelIsKirraFirstChar, zelIsKirraHDLFirstChar}, isalpha, "+_"},
    {{zelIsVHDLNormalChar, zelIsVHDL87NormalChar, zelIsVHDLAMSNormalChar, zelIsKirraHDLNormalChar}, isalnum, "+_"},
    {{zelIsSdfChar, zelIsSpefChar, zelIsGcfChar}, isalnum, "+_"},
    {{zelIsVerilogNormalChar, zelIsVerilogAMSNormalChar, zelIsVerilogANormalChar}, isalnum, "+_$"},
    {{zelIsKirraNonFirstChar}, isalnum, "+_!"},
    {{zelIsNTChar, zelIsUnixChar}, isalnum, "+_@#"},
    {{zelIsSpiceNormalChar}, isalnum, "+!#$%*+-/<>[]_"},
    {{zelIsVerilogEscapableChar, zelIsVerilogAMSEscapableChar, zelIsVerilogAEscapableChar}, isgraph, "+"},
    {{zelIsKirraHDLEscapableChar, zelIsSpiceEscapableChar, zelIsEdif200Char, zelIsEdif300Char}, isgraph, "+"},
    {{zelIsVHDLEscapableChar, zelIsVHDL87EscapableChar, zelIsVHDLAMSEscapableChar}, isprint, "+"},
    {{zelIsORKAEscapableChar}, isprint, "+"},
    {{zelIsKirraEscapableChar}, isgraph, "+ \t\n\v\f\r"},
    {{zelIsORKANormalChar}, isgraph, "-(),/<>\\"},
    {{zelIsTesselChar}, isgraph, "-[]|"},
    {{zelIsFlatTesselChar}, isgraph, "-[\\]"},
    {{zelIsTesselEscapableChar}, none, "+[]|\\"},
    {{zelIsFlatTesselEscapableChar}, none, "+[]\\"},
    // With the separators of the built-in handles.
    {{zelIsSdfEscapableChar, zelIsSpefEscapableChar, zelIsGcfEscapableChar}, ispunct, "-_"},
    {{zelIsSpfChar}, isascii, "+"},
    {{zelIsSpfEscapableChar}, none, "+:/[]\\"},
    {{zelIsDefChar}, isascii, "- \t\n\v\f\r#;"},
    {{zelIsLefChar}, isascii, "- \t\n\v\f\r#;/[]"},
    {{zelIsDefEscapableChar, zelIsLefEscapableChar}, none, "+/[]#\\"}};
} // namespace

TEST(CharacterClass, coversEveryByteAndIgnoresTheRestOfAnInt) {
  for (const Class &c : classes)
    for (const auto &predicate : c.predicates)
      for (int byte = 0; byte < 256; ++byte)
        for (const int same : {byte, byte - 256, byte + 256, byte - 65536})
          EXPECT_EQ(predicate(same), c.has(byte) ? 1 : 0) << same << " in class " << &c - classes;
}
