// The registry: which space a name selects.
#include "support/rules.h"

TEST(Registry, listsItsNames) {
  EXPECT_EQ(allSpaces(), split("Ident 44ORKA Ascii ORKA Vellum Def Edif200 Edif300 EscORKA FlatTessel Gcf Tessel Lef "
                               "Library LibraryNT LibraryUnix NVerilog Print Sdf Spf Kirra KirraHDL Spef Spice VHDL "
                               "VHDL87 Verilog VerilogA VerilogAMS VHDLAMS"));
  std::string offered;
  for (const char *const *name = zelGetSpaceNames(); *name != nullptr; ++name)
    offered += *name + std::string(" ");
  EXPECT_EQ(offered, "Ascii ORKA Vellum Def Gcf Tessel Lef Library Print Sdf Spf Kirra KirraHDL Spef Spice VHDL VHDL87 "
                     "Verilog VerilogA VerilogAMS VHDLAMS ");
}

TEST(Registry, decidesByAFewCharacters) {
  for (const auto &[name, shown] :
       rowsOf(R"(I→Ident Ix→Ident Verilog→Verilog V→Verilog VERILOG→Verilog VerilogA→VerilogA VerilogAMS→VerilogAMS
           VerilogXYZ→VerilogAMS VerilogAX→VerilogAMS VHDL→VHDL VHDL87→VHDL87 VHDL8→VHDL87 VHDLAMS→VHDLAMS ORKA→ORKA
           O→ORKA 44ORKA→44ORKA 4→44ORKA EscORKA→EscORKA Kirra→Kirra K→Kirra KirraHDL→KirraHDL Spice→Spice Sxi→Spice
           Sdf→SDF Spf→SPF Spi→SPF Spef→SPEF Sxxx→SPEF Gcf→GCF L→LEF LEF→LEF Def→DEF D→DEF Tessel→Tessel T→Tessel
           FlatTessel→FlatTessel LibraryNT→LibraryNT LibraryUnix→LibraryUnix Library→LibraryUnix Filesys→LibraryUnix
           Left→LibraryUnix NVerilog→NVerilog Nosuch→NVerilog Print→Print P→Print Ascii→Ascii Vellum→Vellum
           Edif200→Edif200 Ex__2→Edif200 Edif300→Edif300 Edifx→Edif300 verilog→✗ Edif→✗ F→✗ FlatSpice→✗ GCF→✗ KirraX→✗
           LibraryX→✗ Sx→✗ SDF→✗ SPEFX→✗ VHDLX→✗ x→✗)")) {
    const zelSpace space = spaceOf(name);
    EXPECT_EQ(space != nullptr ? Result(space->name) : Result(), shown) << name;
  }
  EXPECT_TRUE(spaceOf("") == nullptr && zelGetSpaceByName(nullptr) == nullptr);
}
