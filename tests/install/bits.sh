#!/bin/sh
# bits.sh PROGRAM: examples/bits.cpp writes the levels and buses of a path, and its bits in VHDL.
set -eu
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Idents: a plain Verilog name is case-sensitive, an escaped one with a capital too.
cat >"$work/expected" <<'TEXT'
level Stop
level Su1/Pad
level Sdata
range 3 to 0
bits  :top:\u1/Pad\:data(3),:top:\u1/Pad\:data(2),:top:\u1/Pad\:data(1),:top:\u1/Pad\:data(0)
TEXT
"$program" >"$work/found"
diff -u "$work/expected" "$work/found"

# An escaped name without capitals is not, and an index before a level multiplies the bits behind it.
cat >"$work/expected" <<'TEXT'
level Sa
index 7
level Ib+c
range 0 to 1
bits  :a(7):\b+c\(0),:a(7):\b+c\(1)
TEXT
"$program" 'a[7].\b+c [0:1]' >"$work/found"
diff -u "$work/expected" "$work/found"

if "$program" 'a[' 2>"$work/found"; then
    echo "$program accepts an index that does not end" >&2
    exit 1
fi
[ "$(cat "$work/found")" = 'not a Verilog path: a[' ]
