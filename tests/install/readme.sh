#!/usr/bin/env bash
# readme.sh SOURCE WORK GENERATOR CC PREFIX: does what README.md says: compiles and runs its code against the copy under
# PREFIX, runs its commands, and compares its table of spellings with what zelpath prints.
set -eu
source=$1 work=$2 generator=$3 cc=$4 prefix=$5
. "$source/tests/install/common.sh"
make_anew "$work"
readme=$source/README.md
zelpath=$prefix/bin/zelpath
cd "$work"

# ---- Fenced blocks: one program in C, and how CMake links it.

# block LANGUAGE: the contents of the block of that language.
block() {
    awk -v fence="\`\`\`$1" '$0 == fence { inside = 1; next } /^```/ { inside = 0 } inside' "$readme"
}
languages=$(awk '/^```/ { if (open) open = 0; else { open = 1; print substr($0, 4) } }' "$readme" | paste -sd ' ')
[ "$languages" = "c cmake" ] || fail "README.md has blocks of other languages than c and cmake: $languages"
block c >program.c
block cmake >link.cmake

# The program says in a comment what its printf writes.
promised=$(sed -n 's|.*printf(.*/\* \(.*\) \*/$|\1|p' program.c)
[ -n "$promised" ] || fail "the program in README.md does not say what it prints"

cat >CMakeLists.txt <<'PROJECT'
cmake_minimum_required(VERSION 3.21)
project(readme LANGUAGES C)
add_executable(program program.c)
include(link.cmake)
PROJECT
shown cmake -S . -B build -G "$generator" "-DCMAKE_C_COMPILER=$cc" "-DCMAKE_PREFIX_PATH=$prefix"
shown cmake --build build
expect "$promised" build/program

# ---- The command line of the compiler, as it stands.

command=$(sed -n 's/.*`\(cc program.c [^`]*\)`.*/\1/p' "$readme")
[ -n "$command" ] || fail "README.md has no command 'cc program.c ...'"
cc() { "$cc" -Wall -Wextra -Wpedantic -Werror "$@"; }
PKG_CONFIG_PATH=$prefix/lib/pkgconfig eval "$command"
expect "$promised" env "LD_LIBRARY_PATH=$prefix/lib" ./a.out

# ---- Indented command lines. "./dev test" is what runs this; building is left to the installed zelpath.

commands=0
while IFS= read -r line; do
    line=${line%%#*}
    commands=$((commands + 1))
    case $line in
    "./dev run "*)
        # The line that the options name comes last, and is what was given.
        eval "arguments=(${line#./dev run })"
        "$zelpath" "${arguments[@]}" >printed || fail "failed: $line"
        [ "$(wc -l <printed)" -eq 8 ] || fail "$line does not print eight languages"
        [ "$(tail -n 1 printed)" = "Verilog: ${arguments[-1]}" ] || fail "$line does not give the path back"
        ;;
    "./dev "*)
        read -r _ verb _ <<<"$line"
        "$source/dev" help | grep -q "^  $verb " || fail "dev has no command $verb"
        ;;
    *) fail "README.md has a command line that no check knows: $line" ;;
    esac
done < <(sed -n 's/^    \([^ ]\)/\1/p' "$readme" | grep -v '^}')
[ "$commands" -ge 2 ] || fail "README.md lost its command lines"

# ---- The table of spellings: "space, space | `spelling`" twice a row, a bar within a cell escaped.

name=$(sed -n 's/.*`zelpath -map Verilog <space>`.*/yes/p' "$readme")
[ "$name" = yes ] || fail "README.md does not say how its table was made"
awk '
    /^\| *space *\|/ { table = 1; next }
    !/^\|/ { table = 0 }
    table && !/^\|-/ {
        gsub(/\\\|/, "\001")
        cells = split($0, cell, "|")
        for (i = 2; i + 1 < cells; i += 2) {
            spelling = cell[i + 1]
            gsub(/\001/, "|", spelling)
            sub(/^ *`/, "", spelling)
            sub(/` *$/, "", spelling)
            spaces = split(cell[i], space, ",")
            for (j = 1; j <= spaces; ++j) {
                gsub(/ /, "", space[j])
                if (space[j] != "") print space[j] "\t" spelling
            }
        }
    }' "$readme" >spellings
[ "$(wc -l <spellings)" -ge 13 ] || fail "README.md has fewer spellings than before: $(cut -f 1 spellings | paste -sd ' ')"
while IFS=$'\t' read -r space spelling; do
    mapped=$("$zelpath" -map Verilog "$space" 'top.\u1/Pad .data[3]' | sed -n 2p)
    [ "$mapped" = "$spelling" ] || fail "README.md: $space spells it '$mapped', not '$spelling'"
done <spellings
