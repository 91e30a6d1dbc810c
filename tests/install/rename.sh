#!/bin/sh
# rename.sh PROGRAM: examples/rename.c gives each legal name and its spelling in SPICE, and reports the others.
set -eu
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A plain name; one that Verilog escapes and SPICE does not; one that both escape; a keyword of Verilog; the blank that
# ends an escaped name belongs to it.
printf '%s\n' 'clk' '\data[3] ' '\a=b,C ' '\wire ' >"$work/names"
printf '%s\t%s\n' 'clk' 'clk' '\data[3] ' 'data[3]' '\a=b,C ' 'a\=b\,C' '\wire ' 'wire' >"$work/expected"
"$program" <"$work/names" >"$work/renamed"
diff -u "$work/expected" "$work/renamed"

# An index is no part of a name, and a keyword is none.
printf '%s\n' 'data[3]' 'ok' 'wire' >"$work/names"
printf '%s\n' 'not a Verilog name: data[3]' 'not a Verilog name: wire' >"$work/expected"
if "$program" <"$work/names" >"$work/renamed" 2>"$work/refused"; then
    echo "$program succeeds although it left names out" >&2
    exit 1
fi
diff -u "$work/expected" "$work/refused"
printf 'ok\tok\n' | diff -u - "$work/renamed"
