// Escaped identifiers: Verilog, Verilog-AMS, Verilog-A and KirraHDL.
#include "support/rules.h"

TEST(VerilogFamily, escapesWhatIsNoNormalName) {
  check({.spaces = "Verilog VerilogAMS VerilogA KirraHDL",
         .write = R"(SModule→Module Imodule→\module␣ IModule→\module␣ IWire2→wire2 Fabc→abc S_→_ IA+B→\a+b␣ SA+B→\A+B␣
             FA+B→\A+B␣ Sa␣b→\a#20b␣ S1abc→\1abc␣ S\→\\␣ Sé→\#e9␣ S␉→\#09␣ Sa#7F→\a#237F␣ Ia#7F→\a#237f␣
             Sa#23#20→\a#23#2320␣)",
         // An unescaped name always has case, an escaped one only with capitals; its content is not checked.
         .read = R"(abc→Sabc Abc→SAbc \abc␣→Iabc \a+b␣→Ia+b \A+b␣→SA+b \abc␉→Iabc \abc␊→Iabc \␣→I \a␣b␣→Ia␣b
             \module␣→Imodule \a#E9␣→Iaé \A#E9␣→SAé \a#4A␣→Sa#4A module→✗ \abc→✗ \→✗ ␣→✗ a+b→✗ abc␣→✗)",
         .legal = R"(abc _a1 Module \abc␣ \abc␉ \␣ \\␣ \module␣)",
         .illegal = R"(␣ 1abc $abc module a␣b a-b aé abc␣ \ \abc \a␣b␣ \aé␣)"});
  check({.spaces = "Verilog VerilogAMS VerilogA KirraHDL",
         .states = {ZEL_MAP_MATCH},
         .write = R"(IModule→Module IWire2→Wire2 Imodule→\module␣ IA+B→\A+B␣)",
         .read = R"(abc→Sabc \a+b␣→Ia+b \A+b␣→SA+b)"});
}

TEST(VerilogFamily, differsInTheDollarAndInReservedWords) {
  check({.spaces = "Verilog VerilogAMS VerilogA", .write = "Ia$B→a$b", .legal = "a$1"});
  check({.spaces = "KirraHDL",
         .write = R"(Ia$B→\a$b␣ Iln→ln Istrlen→\strlen␣)",
         .legal = "and",
         .illegal = "a$1 strlen"});
  check({.spaces = "VerilogA",
         .write = R"(Stransitiontri→\transitiontri␣ Stri→tri Iac_stim→ac_stim)",
         .legal = "acosh ac_stim transition tri",
         .illegal = "transitiontri abs"});
}
