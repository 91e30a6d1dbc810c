// The registry: which space a name selects.
#include "support/spaces.h"

TEST(Registry, listsItsNames) {
  EXPECT_EQ(allSpaces(), wordsOf("Ident 44ORKA Ascii ORKA Vellum Def Edif200 Edif300 EscORKA FlatTessel Gcf Tessel Lef "
                                 "Library LibraryNT LibraryUnix NVerilog Print Sdf Spf Kirra KirraHDL Spef Spice VHDL "
                                 "VHDL87 Verilog VerilogA VerilogAMS VHDLAMS"));
  std::string offered;
  for (const char *const *name = zelGetSpaceNames(); *name != nullptr; ++name)
    offered += *name + std::string(" ");
  EXPECT_EQ(offered, "Ascii ORKA Vellum Def Gcf Tessel Lef Library Print Sdf Spf Kirra KirraHDL Spef Spice VHDL VHDL87 "
                     "Verilog VerilogA VerilogAMS VHDLAMS ");
}

// A space, by the name that it shows, and names that select it.
TEST(Registry, decidesByAFewCharacters) {
  for (Row &row : rowsOf(HERE, R"(
    Ident        I Ix
    Verilog      Verilog V VERILOG
    VerilogA     VerilogA
    VerilogAMS   VerilogAMS VerilogXYZ VerilogAX
    VHDL         VHDL
    VHDL87       VHDL87 VHDL8
    VHDLAMS      VHDLAMS
    ORKA         ORKA O
    44ORKA       44ORKA 4
    EscORKA      EscORKA
    Kirra        Kirra K
    KirraHDL     KirraHDL
    Spice        Spice Sxi
    SDF          Sdf
    SPF          Spf Spi
    SPEF         Spef Sxxx
    GCF          Gcf
    LEF          L LEF
    DEF          Def D
    Tessel       Tessel T
    FlatTessel   FlatTessel
    LibraryNT    LibraryNT
    LibraryUnix  LibraryUnix Library Filesys Left
    NVerilog     NVerilog Nosuch
    Print        Print P
    Ascii        Ascii
    Vellum       Vellum
    Edif200      Edif200 Ex__2
    Edif300      Edif300 Edifx
    none         verilog Edif F FlatSpice GCF KirraX LibraryX Sx SDF SPEFX VHDLX x
  )")) {
    for (const std::string &name : wordsOf(row[1])) {
      const zelSpace space = spaceOf(name);
      row.expect(row[0], space != nullptr ? space->name : "none", name);
    }
  }
  EXPECT_TRUE(spaceOf("") == nullptr && zelGetSpaceByName(nullptr) == nullptr);
}
