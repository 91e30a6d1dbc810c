# Does what README.md says: compiles and runs its code, runs its commands, and compares its table of spellings.
readme=$source/README.md

# block LANGUAGE: the contents of the fenced block of that language.
block() {
    sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/d;p}" "$readme"
}
[ "$(grep -c '^```' "$readme")" -eq 8 ] || fail "README.md has other blocks than one in C, CMake, console and sh"
block c >program.c
{
    printf '%s\n' 'cmake_minimum_required(VERSION 3.21)' 'project(readme C)' 'add_executable(program program.c)'
    block cmake
} >CMakeLists.txt
# The program says in a comment what its printf writes.
promised=$(sed -n 's|.*printf(.*/\* \(.*\) \*/$|\1|p' program.c)

# Nothing but these commands says where zel is; CMake would also look beside the folders of PATH.
unset PKG_CONFIG_PATH
export CMAKE_GENERATOR=$generator
cc() { "$CC" -Wall -Wextra -Wpedantic -Werror "$@"; }
block sh | sed "s|\\bPREFIX\\b|$prefix|g" >commands
while IFS= read -r command; do
    eval "$command" </dev/null >printed || fail "failed: $command"
    case $command in
    export*) ;;
    *) expect "$promised" tail -n 1 printed ;;
    esac
done <commands

export PATH=$prefix/bin:$PATH

# Behind "$ " a command, and what it prints; zel is left out where CLI11 is missing.
if [ -x "$prefix/bin/zel" ]; then
    block console >session
    while IFS= read -r line; do
        printf '%s\n' "$line"
        case $line in '$ '*) eval "${line#??}" </dev/null || [ $? -eq 1 ] || fail "failed: $line" ;; esac
    done < <(grep '^\$ ' session) >played
    diff session played >&2 || fail "README.md promises something else than zel prints"
fi

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
