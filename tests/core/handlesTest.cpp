// The handles: the separators in force, and which a file may redefine.
#include "core/handle.h"
#include "support/rules.h"

namespace {
std::string separatorsOf(zelHandle handle) {
  const zeli::Separators &s = handle->separators;
  return {s.pinDelimiter, s.divider, s.busOpen, s.busClose};
}

struct BuiltIn {
  const char *name;
  zelHandle handle;
  const char *templateName;
  zeli::PathParser parse;
  zeli::PathPrinter print;
  std::string separators;
};

const BuiltIn fixed[] = {
    {"ORKA", zelORKAHandle, "ORKA", zelParseORKA, zelPathToORKAEx, "//<>"},
    {"Tessel", zelTesselHandle, "Tessel", zelParseTessel, zelPathToTesselEx, "||[]"},
    {"Kirra", zelKirraHandle, "Kirra", zelParseKirra, zelPathToKirraEx, "//[]"},
    {"KirraHDL", zelKirraHDLHandle, "KirraHDL", zelParseKirraHDL, zelPathToKirraHDLEx, "//[]"},
    {"Spice", zelSpiceHandle, "Spice", zelParseSpice, zelPathToSpiceEx, "//[]"},
    {"Verilog", zelVerilogHandle, "Verilog", zelParseVerilog, zelPathToVerilogEx, "..[]"},
    {"VerilogAMS", zelVerilogAMSHandle, "VerilogAMS", zelParseVerilogAMS, zelPathToVerilogEx, "//<>"},
    {"VHDL", zelVHDLHandle, "VHDL", zelParseVHDL, zelPathToVHDLEx, "::()"},
    {"VHDL87", zelVHDL87Handle, "VHDL", zelParseVHDL87, zelPathToVHDLEx, "::()"},
    {"VHDLAMS", zelVHDLAMSHandle, "VHDLAMS", zelParseVHDLAMS, zelPathToVHDLEx, "::()"}};
const BuiltIn overridable[] = {
    {"Gcf", zelGcfHandle, "GCF", zelParseGcf, zelPathToGcfEx, "..<>"},
    {"Sdf", zelSdfHandle, "Sdf", zelParseSdf, zelPathToSdfEx, "//[]"},
    {"Spf", zelSpfHandle, "Spf", zelParseSpf, zelPathToSpfEx, ":/[]"},
    {"Spef", zelSpefHandle, "Spef", zelParseSpef, zelPathToSpefEx, "//[]"},
    {"Def", zelDefHandle, "DEF", zelParseDef, zelPathToDefEx, "//[]"},
    {"Lef", zelLefHandle, "Lef", zelParseLef, zelPathToLefEx, "//[]"},
    {"FlatTessel", zelFlatTesselHandle, "FlatTessel", zelParseFlatTessel, zelPathToFlatTesselEx, {"\0\0[]", 4}}};

void expectBuiltIn(const BuiltIn &row) {
  SCOPED_TRACE(row.name);
  const zelHandle handle = zelGetHandle(row.name, 0, 0, 0, 0);
  ASSERT_EQ(handle, row.handle);
  EXPECT_EQ(handle->kind, 1);
  EXPECT_STREQ(handle->varBits->name, row.templateName);
  EXPECT_EQ(handle->varBits->parse, row.parse);
  EXPECT_EQ(handle->varBits->print, row.print);
  EXPECT_EQ(separatorsOf(handle), row.separators);
  std::string defaults = "????";
  EXPECT_EQ(zelGetHandleDefaults(row.name, defaults.data(), &defaults[1], &defaults[2], &defaults[3]), 1);
  EXPECT_EQ(defaults, row.separators);
  zelFreeHandle(handle); // to no effect
  EXPECT_EQ(separatorsOf(handle), row.separators);
}

// A new handle of a template, which is then freed.
void expectMade(zelHandle handle, zelHandle builtIn, const std::string &separators) {
  ASSERT_NE(handle, nullptr);
  EXPECT_EQ(handle->kind, 0);
  EXPECT_EQ(handle->varBits, builtIn->varBits);
  EXPECT_EQ(separatorsOf(handle), separators);
  zelFreeHandle(handle);
}
} // namespace

TEST(Handle, keepsWhatTheFormatFixes) {
  for (const BuiltIn &row : fixed) {
    expectBuiltIn(row);
    EXPECT_EQ(zelGetHandle(row.name, 'x', '.', '(', ')'), row.handle) << row.name;
    EXPECT_EQ(zelAllocHandle(row.name, 0, 0, 0, 0), nullptr) << row.name;
  }
  for (const char *name :
       {"Ident", "VerilogA", "VerilogXM", "VerilogAX", "44ORKA", "EscORKA", "Vellum", "Edif200", "Edif300", "NVerilog",
        "Print", "Ascii", "Filesys", "VHDLX", "x", "", static_cast<const char *>(nullptr)}) {
    SCOPED_TRACE(resultOf(name).value_or("null"));
    EXPECT_EQ(zelGetHandle(name, 0, 0, 0, 0), nullptr);
    EXPECT_EQ(zelAllocHandle(name, '/', '/', '[', ']'), nullptr);
    char c = '?';
    EXPECT_EQ(zelGetHandleDefaults(name, &c, &c, &c, &c), 0);
    EXPECT_EQ(c, '?');
  }
  zelFreeHandle(nullptr);
}

TEST(Handle, takesWhatAFileRedefines) {
  for (const BuiltIn &row : overridable) {
    expectBuiltIn(row);
    const auto byte = [&row](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(row.separators[i])}; };
    // The low bytes count.
    for (const std::uint32_t high : {0U, 0x100U, 0xffffff00U}) {
      EXPECT_EQ(zelGetHandle(row.name, byte(0) | high, byte(1) | high, byte(2) | high, byte(3) | high), row.handle);
      EXPECT_EQ(zelGetHandle(row.name, high, high, high, high), row.handle);
    }
    const std::string kept = row.separators;
    const bool isFlat = row.handle == zelFlatTesselHandle;
    const std::string delimiters = isFlat ? std::string(2, '\0') : "x\xe9";
    expectMade(zelGetHandle(row.name, 'x', 0xe9, 'o', 'c'), row.handle, delimiters + "oc");
    expectMade(zelGetHandle(row.name, 0, 0, 'o', 0), row.handle, kept.substr(0, 2) + 'o' + kept[3]);
    expectMade(zelGetHandle(row.name, 0, 0, 0, 'c'), row.handle, kept.substr(0, 3) + 'c');
    expectMade(zelGetHandle(row.name, byte(0), byte(1), byte(2), 0), row.handle, kept); // not all, not none
    expectMade(zelAllocHandle(row.name, 0, 0, 0, 0), row.handle, kept);
  }
  expectMade(zelGetHandle("Sdf", '.', 0, 0, 0), zelSdfHandle, "./[]");
  expectMade(zelGetHandle("Sdf", 0, '.', 0, 0), zelSdfHandle, "/.[]");
  EXPECT_EQ(zelGetHandle("FlatTessel", '.', '/', 0, 0), zelFlatTesselHandle);
  EXPECT_EQ(zelGetHandle("FlatTessel", '.', '/', '[', ']'), zelFlatTesselHandle);
  // Every longer name with an L makes a LEF handle.
  for (const char *name : {"Library", "LibraryNT", "LibraryX", "Left"}) {
    expectMade(zelGetHandle(name, 0, 0, 0, 0), zelLefHandle, "//[]");
    expectMade(zelAllocHandle(name, '.', 0, 0, 0), zelLefHandle, "./[]");
  }
  char divider = '?';
  EXPECT_EQ(zelGetHandleDefaults("Library", nullptr, &divider, nullptr, nullptr), 1);
  EXPECT_EQ(divider, '/');
}
