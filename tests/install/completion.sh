# The completion offers what the installed zelpath takes.
. "$prefix/share/bash-completion/completions/zelpath"

# complete_words WORDS...: what is offered for the last of WORDS.
complete_words() {
    COMP_WORDS=(zelpath "$@") COMP_CWORD=$#
    _zelpath
    printf '%s\n' "${COMPREPLY[@]}" | sort
}

# Every option of the help that zelpath knows when it reads it back.
for option in $("$prefix/bin/zelpath" -help | sed -n 's/^\(-[^ ]*\).*/\1/p'); do
    "$prefix/bin/zelpath" "$option" a b c 2>/dev/null | grep -q "doesn't match" || echo "$option"
done >options
expect "$(sort options)" complete_words -
expect "-verilog" complete_words -top -ve

# The spaces that have paths are those with a handle of their own.
spaces=$(sed -n 's/.* const zelHandle zel\(.*\)Handle;/\1/p' "$prefix/include/zel.h" | sort)
expect "$spaces" complete_words -map ''
expect "$spaces" complete_words -parse -map Verilog ''
expect "VHDL87" complete_words -MAP Verilog VHDL8
expect "" complete_words -map Verilog VHDL ''

# The same of zel: every option of a command's help, and the spaces it lists.
. "$prefix/share/bash-completion/completions/zel"
complete_zel() {
    COMP_WORDS=("$prefix/bin/zel" "$@") COMP_CWORD=$#
    _zel
    printf '%s\n' "${COMPREPLY[@]}" | sort
}
if [ -x "$prefix/bin/zel" ]; then
    for command in map check explain; do
        options=$("$prefix/bin/zel" $command --help | grep -oE '^  (-h,)?--[a-z-]+' | grep -oE -e '--.*' | sort)
        expect "$options" complete_zel $command --
    done
    expect "$("$prefix/bin/zel" spaces | sed -n '2,/^$/s/ .*//p' | sed '/^$/d' | sort)" complete_zel map ''
    expect "VHDL87" complete_zel map --kind pin Verilog VHDL8
    expect "pin" complete_zel check Verilog --kind pi
    expect "spaces" complete_zel sp
fi
