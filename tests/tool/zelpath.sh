#!/usr/bin/env bash
# zelpath.sh FOLDER: what the zelpath of FOLDER prints for real command lines.
set -u
PATH=$1:$PATH failed=0
unset VRN_ALT_ZEL ZEL_USE_VHDL87_KEYWORDS

# prints TEXT COMMAND: what $filter leaves of both outputs is TEXT and a newline, and the exit status is 0.
prints() {
    local printed
    printed=$({ eval "$2" || echo "status $?"; } 2>&1 | eval "$filter"; echo .)
    [ "$printed" = "$1"$'\n.' ] || {
        printf '%s:%s: %s prints\n%s\ninstead of\n%s\n\n' "$0" "${BASH_LINENO[0]}" "$2" "$printed" "$1"
        failed=1
    }
}

filter=cat # the whole output
usage=' ZELPATH command lines include a language option with a hierarchical name
  and options which may be abbreviated

  Option         Argument        Usage

-explode                         Break output into separate bits
-gcf         Hierarchical path   Following name is a Gcf name
-group                           Write output as a grouping expression
-help                            Describe how to run ZELPATH
-kirra       Hierarchical path   Following name is a Kirra name
-kirraHDL    Hierarchical path   Following name is a KirraHDL name
-map                             followed by `from` `to` namespaces and from `pathname`
-mutate      Hierarchical path   Change starting name into following name
-nocomplex                       Don'"'"'t allow complex indexes in translated names
-norepeat                        Don'"'"'t allow repeats in translated names
-orka        Hierarchical path   Following name is a ORKA name
-parse                           Break out each component in the name
-spice       Hierarchical path   Following name is a Spice name
-tessel      Hierarchical path   Following name is a Tessel name
-top                             Write output names as top of hierarchy
-verilog     Hierarchical path   Following name is Verilog
-vhdl        Hierarchical path   Following name is a VHDL name

 Example:'
example='  % zelpath -veri "top.test.addr[3:0]"'
prints "$usage"$'\n'"$example" 'zelpath -help -h -HEL'
prints "$usage"$'\n'"$example"$'\n'"$(zelpath a)" 'zelpath -help a'
prints $'Error: -t is an ambiguous option\n'"$(zelpath -help a)" 'zelpath -t a'
prints "$(zelpath -help | grep -Ev '^-(group|mutate|nocomplex|norepeat|parse|top) ')" 'zelpath'

# One object, read in each language: the lines in their order, the input's own last. The Gcf line is printed with the
# divider and the bus brackets of the input. The own line is printed from a copy without flags: it knows neither of a
# leading divider nor, in VHDL, of its hierarchy.
lines='Verilog: model.\a!b [1].n
Tessel:    model|a!b[1]|n
Kirra:    KEYWORD_model.a!b[1].n
Gcf:    GCF
KirraHDL:    \model .\a!b [1].n
Spice:    model.a!b[1].n
ORKA:    model/a!b<1>/n
VHDL:    :model:\a!b\(1):n'
others() { grep -v "^$1" <<<"${lines/GCF/$2}"; }
prints "$(others Verilog 'model.a\!b[1].n')"$'\nVerilog: model.\\a!b [1].n' "zelpath -veri 'model.\a!b [1].n'"
prints "$(others Tessel '|model|a\!b[1]|n')"$'\nTessel:    model|a!b[1]|n' "zelpath -tessel '|model|a!b[1]|n'"
prints "$(others Kirra: 'model/a\!b[1]/n')"$'\nKirra:    KEYWORD_model.a!b[1].n' "zelpath -kirra 'KEYWORD_model.a!b[1].n'"
prints "$(others Gcf '')"$'\nGcf:    model.a\\!b<1>.n' "zelpath -gcf 'model.a\!b<1>.n'"
prints "$(others KirraHDL 'model/a\!b[1]/n')"$'\nKirraHDL:    \\model .\\a!b [1].n' "zelpath -spice '\model .\a!b [1].n'"
prints "$(others ORKA 'model/a\!b<1>/n')"$'\nORKA:    /model/a!b<1>/n' "zelpath -orka '/model/a!b<1>/n'"
prints "$(others VHDL 'model:a\!b(1):n')"$'\nVHDL:    model\\a!b\\(1)n' "zelpath -vhdl ':model:\a!b\(1):n'"

mapping() {
    printf 'The pathname: %s   mapped from:%s to:%s as follows:\n%s\n' "$1" "$2" "$3" "$4"
    printf 'The original pathname mapped back as:\n%s' "$5"
}
prints "$(mapping top.a Verilog VHDL :top:a top.a)"$'\n' 'zelpath -map Verilog VHDL top.a'
prints "$(mapping ':\a b\(3)' VHDL Verilog '\a#20b [3]' '\a b\(3)')"$'\n' "zelpath -map VHDL Verilog ':\a b\(3)'"
prints "$(mapping /a/b Sdf FlatTessel '|a|b' '\|a\|b')"$'\n' 'zelpath -map Sdf FlatTessel /a/b'
prints "$(mapping '' Verilog VHDL '' '(null)')"$'\n' "zelpath -map Verilog VHDL ''"
# The path may come before, with a language option (of no effect), or as the third word.
prints $'Error: path already given\n'"$(mapping a.b Verilog VHDL :a:b a.b)"$'\n' 'zelpath -vhdl a.b -map Verilog VHDL c'
prints $'Could not get handle for the namespace:VerilogA\nQuitting the mapping.' 'zelpath -map VHDL VerilogA a'
prints 'Could not get handle for the namespace:(null)' 'zelpath -map -ve a 2>&1 >/dev/null'
prints 'Could not map the path. Please check the path and try.' "zelpath -map Verilog VHDL 'a['"

filter="sed -n '/^Error/p;\$p'" # complaints, and the last line
given=$'Error: path already given\n' unknown="doesn't match any known options"
prints "Error: -z $unknown"$'\n'"Error: -verilogs $unknown"$'\nVerilog: ' "zelpath '' -e -gr -noc -nor -to -z -verilogs"
prints $'Error: -vHdL requires an argument\nVerilog: ' "zelpath '' -vHdL"
prints "${given}Verilog: a" 'zelpath a b'
# The argument of a refused option is scanned on its own, and no complaint ends the scan.
prints "$given${given}Verilog: a" 'zelpath -verilog a -vhdl b'
prints $'Error: -mutate requires an argument\nVHDL:    a' 'zelpath -mutate -vhdl a'
prints $'Error: mutate already given\nVerilog: a' 'zelpath -mutate b -mutate a'
prints $'Error: See the correct usage.\n'"${given}Quitting the mapping." 'zelpath -map Verilog VHDL 2>/dev/null'
# All but index lists and index repeats is copied for the own line.
prints 'Verilog: {2{a,b}}' "zelpath -veri '{2{a,b}}'"
prints 'ORKA:    a<0,2>/b' "zelpath -orka 'a<(0,2)*1>/b'"
prints 'VHDL:    :u1@lib.cell(v):n' "zelpath -vhdl 'u1@lib.cell(v):n'"
prints 'Verilog: (null)' "zelpath -explode -veri 'a[0:1897151]'" # too long

filter="sed '/^\$/,\$d'" single='SingleVerilog SingleORKA SingleVHDL ' # the dump
prints "Flags: Hierarchy Index Range MidRange $single
 Ident a
 Range:  -200000:1897151
 Ident b
 Index:  124" "zelpath -p -veri 'a[-200000:1897151].b[124]'"
prints $'Flags: List Repeat \n Start list\n Repeat: 2\n Start list\n Ident a\n List\n Ident b\n Finish list\n Finish list' \
    "zelpath -p -veri '{2{a,b}}'"
# The walk stumbles over a step range of small numbers.
prints $'Flags: Index Range SingleORKA \n Top Ident a\n Step:   0:6:2\n ERROR!' "zelpath -p -orka '/a<0:6:2>'"
prints $'Flags: Index SingleORKA \n Ident a\n Index list\n Index:  0\n Index list end\n Index repeat: 1' \
    "zelpath -p -orka 'a<(0)*1>'"
# A library reference in the input's language, with both marks whatever is missing; KirraHDL shows no text.
prints $'Flags: Hierarchy List \n Lib: Lib.\\a b\\:view\n Ident u1\n List\n Lib: .cell:' \
    "zelpath -p -vhdl '@Lib.\a b\(view):u1&&@cell'"
prints "Flags: ERROR! $single"$'\n Ident ' "zelpath -p -spice 'a\$b'"

filter="grep -e Verilog -e VHDL -e ORKA" range=$'Verilog: a[1:0]\nVHDL:    a(1 downto 0)\nORKA:    a<1:0>'
prints "$range" "zelpath -nocomplex -orka 'a<1:0>'" # no printer reads it
prints $'Verilog: a[1],a[0]\nVHDL:    a(1)&&a(0)\nORKA:    a<1>,a<0>' "zelpath -explode -group -orka 'a<1:0>'"
prints "${range/a</\/a<}" "zelpath -top -orka 'a<1:0>'"
prints $'Verilog: 2{a[0],a[2]}\nVHDL:    !ERROR!a!ERROR!\nORKA:    <*2>(a<0:2:2>)' "zelpath -orka '<*2>(a<0:2:2>)'"
prints $'Verilog: 2{a!ERROR!}\nVHDL:    !ERROR!a!ERROR!\nORKA:    <*2>(a<0:2:2>)' "zelpath -norep -orka '<*2>(a<0:2:2>)'"
exit $failed
