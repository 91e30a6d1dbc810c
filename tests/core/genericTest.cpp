// The registry: which space a name selects.
#include "support/rules.h"

TEST(Registry, listsItsNames) {
  EXPECT_EQ(allSpaces(), split("Ident 44ORKA Ascii ORKA Vellum Def Edif200 Edif300 EscORKA FlatTessel Gcf Tessel Lef "
                               "Library LibraryNT LibraryUnix NVerilog Print Sdf Spf Kirra KirraHDL Spef Spice VHDL "
                               "VHDL87 Verilog VerilogA VerilogAMS VHDLAMS"));
  const char *const *offered = zelGetSpaceNames();
  for (const std::string &name : split("Ascii ORKA Vellum Def Gcf Tessel Lef Library Print Sdf Spf Kirra KirraHDL Spef "
                                       "Spice VHDL VHDL87 Verilog VerilogA VerilogAMS VHDLAMS"))
    EXPECT_EQ(*offered++, name);
  EXPECT_EQ(*offered, nullptr);
}

TEST(Registry, decidesByAFewCharacters) {
  for (const auto &[name, shown] :
       rowsOf(R"(Ident→Ident I→Ident Ix→Ident Verilog→Verilog V→Verilog Vx→Verilog Verilo→Verilog VERILOG→Verilog
           VerilogA→VerilogA VerilogAMS→VerilogAMS VerilogXYZ→VerilogAMS VerilogAX→VerilogAMS VerilogM→VerilogAMS
           VHDL→VHDL VH→VHDL VHxx→VHDL VHDL87→VHDL87 VHDL8→VHDL87 VHDLAMS→VHDLAMS VHDLA→VHDLAMS ORKA→ORKA O→ORKA
           44ORKA→44ORKA 4→44ORKA EscORKA→EscORKA Es→EscORKA Kirra→Kirra K→Kirra Kirr→Kirra KirraHDL→KirraHDL
           KirraH→KirraHDL Spice→Spice Spic→Spice Sxi→Spice Sdf→SDF Sdi→SDF Spf→SPF Spi→SPF Spef→SPEF Sxxx→SPEF Gcf→GCF
           Gc→GCF Lef→LEF L→LEF LEF→LEF Def→DEF D→DEF Tessel→Tessel T→Tessel FlatTessel→FlatTessel FlatT→FlatTessel
           LibraryNT→LibraryNT LibraryUnix→LibraryUnix Library→LibraryUnix Filesys→LibraryUnix Fi→LibraryUnix
           Left→LibraryUnix NVerilog→NVerilog N→NVerilog Nosuch→NVerilog Print→Print P→Print Ascii→Ascii Ax→Ascii
           Vellum→Vellum Vel→Vellum Edif200→Edif200 Edif2→Edif200 Ex__2→Edif200 Edif300→Edif300 Edifx→Edif300 verilog→✗
           Edif→✗ E→✗ F→✗ Flat→✗ FlatSpice→✗ G→✗ GCF→✗ KirraX→✗ LibraryX→✗ S→✗ Sx→✗ SDF→✗ SPEFX→✗ VHDLX→✗ x→✗ 3→✗)")) {
    const zelSpace space = spaceOf(name);
    EXPECT_EQ(space != nullptr ? Result(space->name) : Result(), shown) << name;
  }
  EXPECT_EQ(spaceOf(""), nullptr);
  EXPECT_EQ(zelGetSpaceByName(nullptr), nullptr);
}
