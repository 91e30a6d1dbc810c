// Every character class on every byte, beside the C library's classification.
#include "core/zel.h"

#include <cctype>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {
bool oneOf(int c, const char *list) { return c != 0 && std::strchr(list, c) != nullptr; }

struct Class {
  std::vector<int (*)(int)> predicates;
  bool (*has)(int);
};

const Class classes[] = {
    {{zelIsVHDLFirstChar, zelIsVHDL87FirstChar, zelIsVHDLAMSFirstChar}, [](int c) { return std::isalpha(c) != 0; }},
    {{zelIsVerilogFirstChar, zelIsVerilogAMSFirstChar, zelIsVerilogAFirstChar, zelIsKirraFirstChar,
      zelIsKirraHDLFirstChar},
     [](int c) { return std::isalpha(c) || c == '_'; }},
    {{zelIsVHDLNormalChar, zelIsVHDL87NormalChar, zelIsVHDLAMSNormalChar, zelIsKirraHDLNormalChar, zelIsSdfChar,
      zelIsSpefChar, zelIsGcfChar},
     [](int c) { return std::isalnum(c) || c == '_'; }},
    {{zelIsVerilogNormalChar, zelIsVerilogAMSNormalChar, zelIsVerilogANormalChar},
     [](int c) { return std::isalnum(c) || oneOf(c, "_$"); }},
    {{zelIsKirraNonFirstChar}, [](int c) { return std::isalnum(c) || oneOf(c, "_!"); }},
    {{zelIsNTChar, zelIsUnixChar}, [](int c) { return std::isalnum(c) || oneOf(c, "_@#"); }},
    {{zelIsSpiceNormalChar}, [](int c) { return std::isalnum(c) || oneOf(c, "!#$%*+-/<>[]_"); }},
    {{zelIsVerilogEscapableChar, zelIsVerilogAMSEscapableChar, zelIsVerilogAEscapableChar, zelIsKirraHDLEscapableChar,
      zelIsSpiceEscapableChar, zelIsEdif200Char, zelIsEdif300Char},
     [](int c) { return std::isgraph(c) != 0; }},
    {{zelIsVHDLEscapableChar, zelIsVHDL87EscapableChar, zelIsVHDLAMSEscapableChar, zelIsORKAEscapableChar},
     [](int c) { return std::isprint(c) != 0; }},
    {{zelIsKirraEscapableChar}, [](int c) { return std::isgraph(c) || std::isspace(c); }},
    {{zelIsORKANormalChar}, [](int c) { return std::isgraph(c) && !oneOf(c, "(),/<>\\"); }},
    {{zelIsTesselChar}, [](int c) { return std::isgraph(c) && !oneOf(c, "[]|"); }},
    {{zelIsFlatTesselChar}, [](int c) { return std::isgraph(c) && !oneOf(c, "[\\]"); }},
    {{zelIsTesselEscapableChar}, [](int c) { return oneOf(c, "[]|\\"); }},
    {{zelIsFlatTesselEscapableChar}, [](int c) { return oneOf(c, "[]\\"); }},
    // With the separators of the built-in handles.
    {{zelIsSdfEscapableChar, zelIsSpefEscapableChar, zelIsGcfEscapableChar},
     [](int c) { return std::ispunct(c) && c != '_'; }},
    {{zelIsSpfChar}, [](int c) { return c < 128; }},
    {{zelIsSpfEscapableChar}, [](int c) { return oneOf(c, ":/[]\\"); }},
    {{zelIsDefChar}, [](int c) { return c < 128 && !std::isspace(c) && !oneOf(c, "#;"); }},
    {{zelIsLefChar}, [](int c) { return c < 128 && !std::isspace(c) && !oneOf(c, "#;/[]"); }},
    {{zelIsDefEscapableChar, zelIsLefEscapableChar}, [](int c) { return oneOf(c, "/[]#\\"); }}};
} // namespace

TEST(CharacterClass, coversEveryByteAndIgnoresTheRestOfAnInt) {
  for (const Class &c : classes)
    for (const auto &predicate : c.predicates)
      for (int byte = 0; byte < 256; ++byte)
        for (const int same : {byte, byte - 256, byte + 256, byte - 65536})
          EXPECT_EQ(predicate(same), c.has(byte) ? 1 : 0)
              << same << " in class " << &c - classes << ", predicate " << &predicate - c.predicates.data();
}
