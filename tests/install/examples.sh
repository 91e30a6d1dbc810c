# Both examples, built as RENAME and BITS, do what they say.
rename=$7 bits=$8

# A plain name, one that only Verilog escapes, one that both escape, a keyword of Verilog; an index is no part of a name.
printf '%s\n' 'clk' '\data[3] ' '\a=b,C ' '\wire ' 'data[3]' 'wire' >names
if "$rename" <names >renamed 2>refused; then
    fail "rename succeeds although it left names out"
fi
printf '%s\t%s\n' 'clk' 'clk' '\data[3] ' 'data[3]' '\a=b,C ' 'a\=b\,C' '\wire ' 'wire' | diff -u - renamed >&2
printf 'not a Verilog name: %s\n' 'data[3]' 'wire' | diff -u - refused >&2

# Idents: a plain Verilog name is case-sensitive, an escaped one only with a capital.
diff -u - <("$bits" && "$bits" 'a[7].\b+c [0:1]') >&2 <<'TEXT'
level Stop
level Su1/Pad
level Sdata
range 3 to 0
bits  :top:\u1/Pad\:data(3),:top:\u1/Pad\:data(2),:top:\u1/Pad\:data(1),:top:\u1/Pad\:data(0)
level Sa
index 7
level Ib+c
range 0 to 1
bits  :a(7):\b+c\(0),:a(7):\b+c\(1)
TEXT
expect "not a Verilog path: a[" sh -c '! "$0" "a[" 2>&1' "$bits"
