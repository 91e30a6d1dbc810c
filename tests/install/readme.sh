# Does what README.md says: compiles and runs its code, runs its commands, and compares its table of spellings.
readme=$source/README.md
export PATH=$prefix/bin:$PATH

# block LANGUAGE: the contents of the fenced block of that language.
block() {
    sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/d;p}" "$readme"
}
[ "$(grep -c '^```' "$readme")" -eq 4 ] || fail "README.md has other blocks than one in C and one for CMake"
block c >program.c
{
    printf '%s\n' 'cmake_minimum_required(VERSION 3.21)' 'project(readme C)' 'add_executable(program program.c)'
    block cmake
} >CMakeLists.txt
# The program says in a comment what its printf writes.
promised=$(sed -n 's|.*printf(.*/\* \(.*\) \*/$|\1|p' program.c)
shown cmake -S . -B build -G "$generator" "-DCMAKE_PREFIX_PATH=$prefix"
shown cmake --build build
expect "$promised" build/program

cc() { "$CC" -Wall -Wextra -Wpedantic -Werror "$@"; }
eval "$(sed -n 's/.*`\(cc program.c [^`]*\)`.*/\1/p' "$readme")"
expect "$promised" env "LD_LIBRARY_PATH=$prefix/lib" ./a.out

# The indented commands. "./dev test" is what runs this; building is left to the installed zelpath.
if grep '^    [^ ]' "$readme" | grep -v '^    ./dev ' >&2; then
    fail "README.md has command lines that are not checked"
fi
for verb in $(sed -n 's/^    .\/dev \([a-z]*\).*/\1/p' "$readme"); do
    "$source/dev" help | grep -q "^  $verb " || fail "dev has no command $verb"
done
eval "$(sed -n 's/^    .\/dev run \([^#]*\).*/zelpath \1/p' "$readme")" >printed
[ "$(wc -l <printed)" -eq 8 ] || fail "the first command does not print eight languages"

# The table of spellings: "space, space | `spelling`" twice a row, a bar within a cell escaped.
sed -n '/^| space/,/^$/{s/\\|/\x01/g; /`/p}' "$readme" | tr '|\001' '\n|' | sed 's/^ *//; s/ *$//; /^$/d' >cells
[ "$(grep -c '`' cells)" -ge 10 ] || fail "README.md lost spellings"
spell() { zelpath -map Verilog "$1" 'top.\u1/Pad .data[3]' | sed -n 2p; }
while IFS= read -r spaces && IFS= read -r spelling; do
    for space in ${spaces//,/ }; do
        expect "${spelling//\`/}" spell "$space"
    done
done <cells
