#!/usr/bin/env bash
# zel.sh FOLDER: what the zel of FOLDER answers to real command lines.
set -u
PATH=$1:$PATH failed=0
unset VRN_ALT_ZEL ZEL_USE_VHDL87_KEYWORDS
export LC_ALL=C NO_COLOR=1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1

# gives STATUS TEXT COMMAND: both outputs together are TEXT, with printf's escapes, and the exit status is STATUS.
gives() {
    local given text status
    given=$(eval "$3" 2>&1 && echo .) && status=0 || status=$?
    [ $status -eq 0 ] || given=$(eval "$3" 2>&1; echo .)
    text=$(printf "$2"; echo .)
    [ "$given" = "$text" ] && [ $status -eq "$1" ] || {
        printf '%s gives %s,\n%s\ninstead of %s,\n%s\n\n' "$3" "$status" "$given" "$1" "$text"
        failed=1
    }
}

# maps INPUT OUTPUT OPTIONS: all of the input, with printf's escapes, is mapped; nothing is said.
maps() { gives 0 "$2" "printf '$1' | zel map $3"; }

# Every kind of mapping option once; that they reach the mapping is what counts here.
maps 'top.\\\\u1/Pad .d[3]\n' ':top:\\\\u1/Pad\\\\:d(3)\n' 'Verilog VHDL'
maps 'U1:A\n' 'U1.A\n' 'spef verilog --kind pin'
maps 'U1.A\n' 'U1:A\n' 'Verilog DSPF --kind pin'
maps 'u1/a.b\n' '\\\\u1/a .b\n' 'Sdf Verilog --from-separators divider=.'
maps 'a.b[1]\n' 'a|b<1>\n' "Verilog Sdf --to-separators 'divider=|,bus=<>'"
maps 'a/b\n' 'a\\\\/b\n' 'Ascii Sdf --names'
maps 'u1.r2\n' 'Xu1.Xr2\n' 'Verilog Spice --kind instance --element X'
maps 'u1.r2\n' 'u1.Xr2\n' 'Verilog Spice --kind instance --element X --levels last'
maps 'Foo\n' 'foo\n' 'VHDL Verilog'
maps 'Foo\n' 'Foo\n' 'VHDL Verilog --state match'
gives 0 'Foo\n' 'echo Foo | VRN_ALT_ZEL=MATCH zel map VHDL Verilog --state process'
gives 0 'foo\n' 'echo Foo | VRN_ALT_ZEL=MATCH zel map VHDL Verilog'
maps 'logic\n' '\\\\logic \n' 'Def Verilog --keywords 1800-2017'
maps 'a[1:0]\n' 'a(1)&&a(0)\n' 'Verilog VHDL --explode --group'
maps 'a<1:0>\n' '/a<1>,/a<0>\n' 'ORKA ORKA --explode --norepeat --top'

# Lines. The end of one stands for the white space behind an escaped identifier; a blank that escapes is not made up.
maps '' '' 'Verilog VHDL'
maps 'a' 'a' 'Verilog VHDL'
maps 'a\r\n\r\n\n\\\\b/c\r\n' 'a\r\n\r\n\n\\\\b/c\\\\\r\n' 'Verilog VHDL --names'
gives 1 '\n-:1:2: nothing ends the escape or quote: a\\\\\n                                           ^\n' \
    "printf 'a\\\\\\\\\n' | zel map Kirra Verilog --names"
gives 0 'a\0\\b\nc\\\0' "printf 'a\0\\\\\\\\b\nc\0' | zel map Ascii VHDL --null --names | tr '\\\\000' '\\\\000' | cat"
printf 'a.b' >first
printf 'c.d' >second
gives 0 'a/b\ne/f\nc/d' 'echo e.f | zel map Verilog Sdf first - second'

# Refusals.
gives 1 'a\n\nb\n-:2:3: unexpected end: x y\n                         ^\n' "printf 'a\nx \x01y\nb\n' | zel map Verilog Sdf" 
gives 1 'a\n\nb\n' "printf 'a\nx y\nb\n' | zel map Verilog Sdf --quiet --on-error empty"
gives 1 'a\nx y\nb\n' "printf 'a\nx y\nb\n' | zel map Verilog Sdf --quiet --on-error keep"
gives 1 'a\nb\n' "printf 'a\nx y\nb\n' | zel map Verilog Sdf --quiet --on-error skip"
gives 1 'a\n' "printf 'a\nx y\nb\n' | zel map Verilog Sdf --quiet --on-error stop"
gives 1 'zel: 25 lines are refused, 15 more than shown\n' \
    "yes 'x y' | head -25 | zel map Verilog Sdf 2>&1 >/dev/null | tail -n 1; (exit \${PIPESTATUS[2]})"
gives 1 'a/b\n\nfirst:1:1: the result is read back as another object: a.\\\\b \n                                                      ^\n' \
    "printf 'a.\\\\\\\\b/c ' >first; zel map Verilog FlatTessel --check first; printf 'a.b\n' | zel map Verilog Sdf --check"

# Fields. Bytes of any value pass in those that are not mapped.
maps '\xff\ta.b\t\0\r\nx\tc\n' '\xff\ta/b\t\0\r\nx\tc\n' 'Verilog Sdf --field 2'
maps '\\\\x/y;a.b\n' '\\\\x/y;a/b\n' "Verilog Sdf --field 2 --delimiter ';'"
maps '\\\\x/y;a\n' '\\\\x/y\\\\;a\n' "Verilog VHDL --field 1 --delimiter ';' --names"
gives 1 'a\n-:1:2: the line has no such field: a\n                                    ^\n' 'echo a | zel map Verilog Sdf --field 2'
csv='id,"the ""name""",last\r\n1,"a.b","x\ny"\r\n2,\\\\a"b .c,\n3,,\n4,"\\\\a"",b .d[3]"'
maps "$csv" 'id,"the ""name""",last\r\n1,"a/b","x\ny"\r\n2,"a\\\\""b/c",\n3,,\n4,"a\\\\""\\\\,b/d[3]"' \
    "Verilog Sdf --csv --field 'the \"name\"'"
gives 1 'n\n"x\ny"\n""\n-:4:2: unexpected end: "x y"\n                         ^\n' \
    "printf 'n\n\"a\nb\"\n\"x y\"\n' | sed 's/a/x/;s/b/y/' | zel map Ascii Verilog --csv --field n --names --on-error keep" 
gives 2 'zel: -: no column is called '"'x'"'\n' 'echo a,b | zel map Verilog Sdf --csv --field x'

# What cannot be done.
gives 2 "zel: no space is called 'Verilgo'; near are: Verilog, VerilogA\n" 'zel map Verilgo VHDL'
gives 2 "zel: no space is called 'Nothing'; \`zel spaces\` lists them\n" 'zel check Nothing'
gives 2 'zel: the separators of Verilog are fixed\n' 'zel map Verilog Sdf --from-separators divider=/'
gives 2 'zel: --from-separators: not separators like divider=/,pin=:,bus=[]: divider\n' \
    'zel map Sdf Verilog --from-separators divider'
for usage in '' 'map' 'map Verilog' 'map Verilog VHDL --kind x' 'map Verilog VHDL --field 0' 'map Verilog VHDL --csv' \
    'map Verilog VHDL --jobs 0' 'map Verilog VHDL --keywords 1' 'nothing' 'map Verilog VHDL --delimiter xy --field 1'; do
    gives 2 '' "zel $usage </dev/null >/dev/null 2>&1"
done
for command in '' map explain check spaces; do
    gives 0 'Example:\n' "zel $command --help | grep Example"
done
gives 3 'b\nzel: missing: No such file or directory\n' 'echo b | zel map Verilog VHDL missing -'
gives 3 'zel: .: Is a directory\n' 'zel map Verilog VHDL .'
gives 3 'zel: writing failed: No space left on device\n' 'echo a | zel map Verilog VHDL >/dev/full'
gives 3 'zel: writing failed: No space left on device\n' 'zel spaces >/dev/full'
gives 0 'y\n' 'yes | zel map Verilog VHDL | head -n 1'

# Separators out of the header of a file.
printf '*SPEF "IEEE 1481-1998"\n*DIVIDER |\n*DELIMITER ;\n*BUS_DELIMITER < >\n' >header.spef
printf 'top|u1;A<2>\n' | zel map Spef Verilog --from-like header.spef >like
gives 0 'top.u1.A[2]\n' 'cat like'
gives 0 'a|b<1>\n' 'echo a.b[1] | zel map Verilog Spef --to-like header.spef'
gives 2 'zel: like: no header of SPEF, DSPF, SDF, DEF or LEF\n' 'zel map Sdf Verilog --from-like like'
gives 3 'zel: missing: No such file or directory\n' 'zel map Sdf Verilog --from-like missing'

# Many lines are the same by any number of threads, and in a pipe that answers line by line.
seq -f 'top.u%.0f.\a/b [3]' 100000 | sed '7~1000s/top/x y/' >many
zel map Verilog Sdf --jobs 1 many >one 2>said
gives 1 '' 'zel map Verilog Sdf --jobs 2 many >two 2>said2'
gives 0 '100000\n99900\n' 'wc -l <one; grep -c . one'
gives 0 '' 'cmp one two && cmp said said2'
gives 0 '' "cut -d. -f1-3 many | zel map Verilog Sdf --jobs 3 --on-error keep --field 1 --delimiter $'\x01' 2>&1 >three |
    head -c 0; zel map Verilog Sdf --on-error keep --quiet many | cmp - three"
gives 0 'a\nb\n' '{ coproc zel map Verilog VHDL; } 2>/dev/null
    for name in a b; do echo $name >&${COPROC[1]}; read -r -t 20 got <&${COPROC[0]}; echo "$got"; done'

# check: the lines that are no names or paths.
gives 0 '' "printf 'a.b[3]\n\\\\\\\\x/y\n' | zel check Verilog"
gives 1 '-:1:1: reserved word\n-:3:1: there is no name\n-:4:2: illegal character\n' \
    "printf 'module\na\n\nx-\n' | zel check Verilog --names"
gives 1 '-:1:5: reserved word of the revision\n' "printf 'top.logic\ntop.\\\\\\\\logic \n' | zel check Verilog --keywords 1800-2017"
gives 1 'n:1:1: reserved word\n' 'echo model >n; zel check Kirra --names n'
gives 1 '' 'echo x y | zel check Verilog --quiet'
gives 1 '-:2:3: unexpected end\n' "printf 'n\nx y\n' | zel check Verilog --csv --field n"

# explain: spellings, why, and what is lost.
row() { zel explain "$@" 2>&1 | sed -n "s/^$space  *//p"; }
space=Sdf
gives 0 "top/u1\\\\\\\\/Pad/d[3]    u1/Pad: '/' at 3 is the divider\n" "row --from Verilog 'top.\\u1/Pad .d[3]'"
space=VHDL
gives 0 '\\\\Foo\\\\   case kept by extending\n' 'row --from Verilog Foo --names'
gives 0 '\\\\signal\\\\  reserved word\n' 'row --from Verilog signal --names'
gives 0 'unexpected character at 3\n' 'row u1/Pad'
space=Verilog
gives 0 'foo   in lower case: capitals mean nothing in the source\n' 'row --from VHDL Foo --names'
gives 0 '\\\\logic   reserved word of 1800-2017\n' 'row --from Def logic --names --keywords 1800-2017'
space=Spef
gives 0 'u1  Pad  2 levels\n' 'row u1/Pad'
gives 1 'NAME:1:1: reserved word: module\n                         ^\n' 'zel explain --from Verilog module'
gives 1 '' "zel explain \$'\\x01' >/dev/null"

gives 0 'Spef         yes    /        :    []    by file with capitals  -\n' 'zel spaces | grep Spef'
gives 0 'Kirra        yes    .        .    []    -       with capitals  model is KEYWORD_model\n' 'zel spaces | grep "Kirra "'
exit $failed
