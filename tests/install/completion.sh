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
