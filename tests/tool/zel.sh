#!/usr/bin/env bash
# zel.sh FOLDER: what the zel of FOLDER answers to real command lines.
set -u
PATH=$(readlink -f "$1"):$PATH failed=0
unset VRN_ALT_ZEL ZEL_USE_VHDL87_KEYWORDS
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1

# gives STATUS INPUT TEXT COMMAND: both outputs together are TEXT, and so is the exit status.
gives() {
    local given status=0
    printf %s "$2" >input
    eval "$4" <input >output 2>&1 || status=$?
    given=$(cat output; echo .)
    [ "$given" = "$3." ] && [ $status -eq "$1" ] || {
        printf '%s\ngives %s,\n%s\ninstead of %s,\n%s.\n\n' "$4" "$status" "$given" "$1" "$3"
        failed=1
    }
}

# maps INPUT OUTPUT OPTIONS: all of the input is mapped; nothing is said.
maps() { gives 0 "$1" "$2" "zel map $3"; }

# caret N: a line with a caret in column N.
caret() { printf '%*s' "$1" '^'; }

# Every kind of mapping option once; that they reach the mapping is what counts here.
maps $'top.\\u1/Pad .d[3]\n' $':top:\\u1/Pad\\:d(3)\n' 'Verilog VHDL'
maps $'U1:A\n' $'U1.A\n' 'spef verilog --kind pin'
maps $'U1.A\n' $'U1:A\n' 'Verilog DSPF --kind pin'
maps $'u1.a\\/b\n' $'u1.\\a/b \n' 'Sdf Verilog --from-separators divider=.'
maps $'a.b[1]\n' $'a|b<1>\n' "Verilog Sdf --to-separators 'divider=|,bus=<>'"
maps $'a/b\n' $'a\\/b\n' 'Ascii Sdf --names'
maps $'u1.r2\n' $'u1.Xr2\n' 'Verilog Spice --kind instance --element X --levels last'
maps $'Foo\n' $'foo\n' 'VHDL Verilog'
maps $'Foo\n' $'Foo\n' 'VHDL Verilog --state match'
gives 0 $'Foo\n' $'Foo\n' 'VRN_ALT_ZEL=MATCH zel map VHDL Verilog --state process'
gives 0 $'Foo\n' $'foo\n' 'VRN_ALT_ZEL=MATCH zel map VHDL Verilog'
maps $'logic\n' $'\\logic \n' 'Def Verilog --keywords 1800-2017'
maps $'a[1:0]\n' $'a(1)&&a(0)\n' 'Verilog VHDL --explode --group'
maps $'a<1:0>\n' $'/a<1>,/a<0>\n' 'ORKA ORKA --explode --norepeat --top'
maps $'Foo\n' $'foo\n' 'VHDL Verilog --lenient'

# Lines. The end of one stands for the white space behind an escaped identifier, but for none that a backslash escapes.
maps '' '' 'Verilog VHDL'
maps $'a\r\n\r\n\n\\b/c\r\n' $'a\r\n\r\n\n\\b/c\\\r\n' 'Verilog VHDL --names'
maps $'x\t\\b/c\r\n\t\r\n' $'x\t\\b/c\\\r\n\t\r\n' 'Verilog VHDL --names --field 2'
gives 1 $'a\\\n' $'\n-:1:2: nothing ends the escape or quote: a\\\n'"$(caret 43)"$'\n' 'zel map Kirra Verilog --names'
gives 0 '' $'a\nb;' "printf 'a\nb\\0' | zel map Ascii Ascii --names --null | tr '\\0' ';'"
printf 'a.b' >first
printf 'c.d' >second
gives 0 $'e.f\n' $'a/b\ne/f\nc/d' 'zel map Verilog Sdf first - second'

# Refusals.
three=$'a\nx \1y\nb\n'
gives 1 "$three" $'a\n\nb\n-:2:3: unexpected character: x  y\n'"$(caret 32)"$'\n' 'zel map Verilog Sdf'
gives 1 "$three" $'a\n\nb\n' 'zel map Verilog Sdf --quiet --on-error empty'
gives 1 "$three" "$three" 'zel map Verilog Sdf --quiet --on-error keep'
gives 1 "$three" $'a\nb\n' 'zel map Verilog Sdf --quiet --on-error skip'
gives 1 "$three" $'a\n' 'zel map Verilog Sdf --quiet --on-error stop'
yes 'x y' | head -25 >many
gives 1 '' $'zel: 25 lines are refused, 15 more than shown\n' 'zel map Verilog Sdf many 2>&1 >/dev/null | sed -n 21p
    (exit ${PIPESTATUS[0]})'
gives 0 $'a.b\n' $'a/b\n' 'zel map Verilog Sdf --check'
gives 1 $'a.b\n' $'\n-:1:1: the result is read back as another object: a.b\n'"$(caret 51)"$'\n' \
    'zel map Verilog FlatTessel --check'

# Fields. Bytes of any value pass in those that are not mapped.
maps $'\xff\ta.b\t\1\r\nx\tc\n' $'\xff\ta/b\t\1\r\nx\tc\n' 'Verilog Sdf --field 2'
maps $'\\x/y;a.b\n' $'\\x/y;a/b\n' "Verilog Sdf --field 2 --delimiter ';'"
gives 1 $'a\n' $'a\n-:1:2: the line has no such field: a\n'"$(caret 37)"$'\n' 'zel map Verilog Sdf --field 2'
csv=$'id,"the ""name""",last\r\n1,"a.b","x\ny"\r\n2,\\a"b .c,\n3,,\n4,"\\a"",b .d[3]"'
mapped=$'id,"the ""name""",last\r\n1,"a/b","x\ny"\r\n2,"a\\""b/c",\n3,,\n4,"a\\""\\,b/d[3]"'
maps "$csv" "$mapped" "Verilog Sdf --csv --field 'the \"name\"'"
maps "${csv#*$'\r\n'}" "${mapped#*$'\r\n'}" 'Verilog Sdf --csv --field 2'
gives 1 $'n\n"x\ny"\na\n"""- "\n' $'n\n""\na\n""\n-:2:3: illegal character: "x y"\n'"$(caret 29)"$'
-:5:2: illegal character: """- "\n'"$(caret 28)"$'\n' 'zel map Sdf Verilog --csv --field n --names'
gives 2 $'a,b\n' $'zel: -: no column is called \'x\'\n' 'zel map Verilog Sdf --csv --field x'

# What cannot be done.
gives 2 '' $'zel: no space is called \'Verilgo\'; near are: Verilog, VerilogA\n' 'zel map Verilgo VHDL'
gives 2 '' $'zel: no space is called \'Nothing\'; `zel spaces` lists them\n' 'zel check Nothing'
gives 2 '' $'zel: the separators of Verilog are fixed\n' 'zel map Verilog Sdf --from-separators divider=/'
gives 2 '' $'zel: --from-separators: not separators like divider=/,pin=:,bus=[]: divider\n' \
    'zel map Sdf Verilog --from-separators divider'
for usage in '' 'map' 'map Verilog' 'map Verilog VHDL --kind x' 'map Verilog VHDL --field 0' 'map Verilog VHDL --csv' \
    'map Verilog VHDL --jobs 0' 'map Verilog VHDL --keywords 1' 'nothing' 'map Verilog VHDL --delimiter xy --field 1'; do
    gives 2 '' '' "zel $usage >/dev/null 2>&1"
done
for command in '' map explain check spaces; do
    gives 0 '' $'Example:\n' "zel $command --help | grep Example"
done
gives 3 $'b\n' $'zel: missing: No such file or directory\nb\n' 'zel map Verilog VHDL missing -'
gives 3 '' $'zel: .: Is a directory\n' 'zel map Verilog VHDL .'
gives 3 $'a\n' $'zel: writing failed: No space left on device\n' 'zel map Verilog VHDL >/dev/full'
gives 3 '' $'zel: writing failed: No space left on device\n' 'zel spaces >/dev/full'
gives 0 '' $'y\n' 'yes | zel map Verilog VHDL | head -n 1'

# Separators out of the header of a file.
printf '*SPEF "IEEE 1481-1998"\n*DIVIDER |\n*DELIMITER ;\n*BUS_DELIMITER < >\n' >header.spef
gives 0 $'top|u1;A<2>\n' $'top.u1.A[2]\n' 'zel map Spef Verilog --from-like header.spef'
gives 0 $'a.b[1]\n' $'a|b<1>\n' 'zel map Verilog Spef --to-like header.spef'
gives 2 '' $'zel: first: no header of SPEF, DSPF, SDF, DEF or LEF\n' 'zel map Sdf Verilog --from-like first'
gives 3 '' $'zel: missing: No such file or directory\n' 'zel map Sdf Verilog --from-like missing'

# Many lines are the same by any number of threads; in a pipe, a line is answered before the next is waited for.
seq -f 'top.u%.0f.\a/b [3]' 100000 | sed '7~1000s/top/x y/' >many
zel map Verilog Sdf --jobs 1 many >one 2>said
gives 1 '' '' 'zel map Verilog Sdf --jobs 2 many 2>said2 >two'
gives 0 '' $'100000 one\n99900\n' 'wc -l one; grep -c . one; cmp one two; cmp said said2'
gives 0 '' $'99900\n' 'zel map Verilog Sdf --jobs 3 --on-error skip --quiet many | sort -u | wc -l'
gives 0 '' '' "sed 's/^/x,\"/; s/\$/\"/' many | zel map Verilog Sdf --jobs 3 --csv --field 2 --quiet |
    sed 's/^x,\"//; s/\"\$//' | cmp - one"
gives 0 '' $'a\nb\n' 'coproc zel map Verilog VHDL
    for name in a b; do echo $name >&${COPROC[1]}; read -r -t 20 got <&${COPROC[0]}; echo "$got"; done'

# check: the lines that are no names or paths.
gives 0 $'a.b[3]\n\\x/y\n' '' 'zel check Verilog'
gives 1 $'module\na\n\nx-\n' $'-:1:1: reserved word\n-:3:1: there is no name\n-:4:2: illegal character\n' \
    'zel check Verilog --names'
gives 1 $'top.logic\ntop.\\logic \n\\a .\\logic .logic\n' $'-:1:5: reserved word of the revision\n-:3:13: reserved word of the revision\n' 'zel check Verilog --keywords 1800-2017'
gives 1 $'model\n' $'-:1:1: reserved word\n' 'zel check Kirra --names'
gives 1 $'n\nx y\n' $'-:2:3: unexpected character\n' 'zel check Verilog --csv --field n'

# explain: spellings, why, and what is lost.
row() { zel explain "${@:2}" | sed -n "s/^$1  *//p"; }
gives 0 '' $'top/u1\\/Pad/d[3]    u1/Pad: \'/\' at 3 is the divider\n' "row Sdf --from Verilog 'top.\\u1/Pad .d[3]'"
gives 0 '' $'\\Foo\\  case kept by extending\n' 'row VHDL --from Verilog Foo --names'
gives 0 '' $'signal  reserved word\n' "row VHDL --from Verilog signal --names | tr -d '\\\\'"
gives 0 '' $'unexpected character at 3\n' 'row VHDL u1/Pad'
gives 0 '' $'foo  in lower case: capitals mean nothing in the source\n' 'row Verilog --from VHDL Foo --names'
gives 0 '' $'\\logic   reserved word of 1800-2017\n' 'row Verilog --from Def logic --names --keywords 1800-2017'
gives 0 '' $'u1  Pad  2 levels\n' 'row Spef u1/Pad'
gives 1 '' $'NAME:1:1: reserved word: module\n'"$(caret 26)"$'\n' 'zel explain --from Verilog module'

gives 0 '' $'yes / : [] by file with capitals -\n' "zel spaces | sed -n 's/^Spef *//p' | tr -s ' '"
gives 0 '' $'yes . . [] - with capitals model is KEYWORD_model\n' "zel spaces | sed -n 's/^Kirra  *//p' | tr -s ' '"
exit $failed
