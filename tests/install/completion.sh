#!/usr/bin/env bash
# completion.sh SOURCE PREFIX CONSUMER: the completion offers what the installed zelpath takes, and CONSUMER, with an
# argument, lists as spaces that have paths.
set -eu
source=$1 prefix=$2 consumer=$3
. "$source/tests/install/common.sh"
. "$prefix/share/bash-completion/completions/zelpath"
zelpath=$prefix/bin/zelpath
export LC_ALL=C

# complete_words WORDS...: what is offered for the last of WORDS.
complete_words() {
    COMP_WORDS=(zelpath "$@") COMP_CWORD=$#
    _zelpath
    printf '%s\n' "${COMPREPLY[@]}"
}

# Every option of the help that zelpath knows when it reads it back.
options=()
while read -r option _; do
    "$zelpath" "$option" a b c 2>/dev/null | grep -q "doesn't match" || options+=("$option")
done < <("$zelpath" -help | grep '^-')
[ ${#options[@]} -gt 10 ] || fail "few options: ${options[*]}"
expect "$(printf '%s\n' "${options[@]}")" complete_words -
expect "-verilog" complete_words -top -ve

spaces=$("$consumer" spaces | sort)
[ -n "$spaces" ] || fail "$consumer lists no spaces"
offered() { complete_words "$@" | sort; }
expect "$spaces" offered -map ''
expect "$spaces" offered -parse -map Verilog ''
expect "VHDL87" complete_words -MAP Verilog VHDL8
expect "" complete_words -map Verilog VHDL ''
