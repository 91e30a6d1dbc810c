// The registry: which space a name selects.
#include "support/rules.h"

namespace {
std::string joined(const char *const *names) {
  std::string all;
  for (; *names != nullptr; ++names)
    all += std::string(all.empty() ? "" : " ") + *names;
  return all;
}
} // namespace

TEST(Registry, listsItsNames) {
  EXPECT_EQ(joined(zelGetSpaceNames()), "Ascii ORKA Vellum Def Gcf Tessel Lef Library Print Sdf Spf Kirra KirraHDL "
                                        "Spef Spice VHDL VHDL87 Verilog VerilogA VerilogAMS VHDLAMS");
  EXPECT_EQ(joined(zelGetAllSpaceNames()),
            "44ORKA Ascii ORKA Vellum Def Edif200 Edif300 EscORKA FlatTessel Gcf Tessel Lef Library LibraryNT "
            "LibraryUnix NVerilog Print Sdf Spf Kirra KirraHDL Spef Spice VHDL VHDL87 Verilog VerilogA VerilogAMS "
            "VHDLAMS");
}

TEST(Registry, decidesByAFewCharacters) {
  const struct {
    zelSpace space;
    const char *displayName;
    const char *names;
  } rows[] = {{zelIdentSpace, "Ident", "Ident I Ix"},
              {zelVerilogSpace, "Verilog", "Verilog V Vx Verilo VERILOG"},
              {zelVerilogASpace, "VerilogA", "VerilogA"},
              {zelVerilogAMSSpace, "VerilogAMS", "VerilogAMS VerilogXYZ VerilogAX VerilogM"},
              {zelVHDLSpace, "VHDL", "VHDL VH VHxx"},
              {zelVHDL87Space, "VHDL87", "VHDL87 VHDL8"},
              {zelVHDLAMSSpace, "VHDLAMS", "VHDLAMS VHDLA"},
              {zelORKASpace, "ORKA", "ORKA O Other"},
              {zel44ORKASpace, "44ORKA", "44ORKA 4"},
              {zelEscORKASpace, "EscORKA", "EscORKA Es"},
              {zelKirraSpace, "Kirra", "Kirra K Kirr"},
              {zelKirraHDLSpace, "KirraHDL", "KirraHDL KirraH"},
              {zelSpiceSpace, "Spice", "Spice Spic Sxi"},
              {zelSdfSpace, "SDF", "Sdf Sdi"},
              {zelSpfSpace, "SPF", "Spf Spi"},
              {zelSpefSpace, "SPEF", "Spef Sxxx"},
              {zelGcfSpace, "GCF", "Gcf Gc"},
              {zelLefSpace, "LEF", "Lef L LEF"},
              {zelDefSpace, "DEF", "Def D"},
              {zelTesselSpace, "Tessel", "Tessel T"},
              {zelFlatTesselSpace, "FlatTessel", "FlatTessel FlatT"},
              {zelLibraryNTSpace, "LibraryNT", "LibraryNT"},
              {zelLibraryUnixSpace, "LibraryUnix", "LibraryUnix Library Filesys Fi Left Libr"},
              {zelNVerilogSpace, "NVerilog", "NVerilog N Nosuch"},
              {zelPrintSpace, "Print", "Print P"},
              {zelAsciiSpace, "Ascii", "Ascii Ax"},
              {zelVellumSpace, "Vellum", "Vellum Vel"},
              {zelEdif200Space, "Edif200", "Edif200 Edif2xx Ex__2"},
              {zelEdif300Space, "Edif300", "Edif300 Edifx"},
              {nullptr, "", "verilog Edif E F Flat FlatSpice G GCF KirraX KirraX1 LibraryX S Sx SDF SPEFX VHDLX x 3"}};
  for (const auto &row : rows) {
    for (const std::string &name : split(row.names))
      EXPECT_EQ(zelGetSpaceByName(name.c_str()), row.space) << name;
    EXPECT_STREQ(row.space != nullptr ? row.space->name : "", row.displayName);
  }
  EXPECT_EQ(zelGetSpaceByName(""), nullptr);
  EXPECT_EQ(zelGetSpaceByName(nullptr), nullptr);
  EXPECT_EQ(zelLibrarySpace, zelLibraryUnixSpace);
  EXPECT_EQ(zelFilesysSpace, zelLibraryUnixSpace);
}
