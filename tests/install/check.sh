#!/usr/bin/env bash
# check.sh CHECK SOURCE WORK GENERATOR CC CXX...: runs CHECK.sh, beside this, in WORK/CHECK, which is made anew. The
# check "copy" installs SOURCE in WORK/copy/prefix for the others.
set -eu
source=$2 work=$3/$1 prefix=$3/copy/prefix generator=$4
export CC=$5 CXX=$6 LC_ALL=C PKG_CONFIG_PATH=$prefix/lib/pkgconfig
checks=$source/tests/install

fail() {
    echo "$*" >&2
    exit 1
}

# shown COMMAND...: its output only if it fails.
shown() {
    "$@" >"$work/log" 2>&1 || {
        cat "$work/log" >&2
        fail "failed: $*"
    }
}

# expect TEXT COMMAND...: the command prints TEXT and a newline, nothing else, and succeeds.
expect() {
    local text=$1 printed
    printed=$("${@:2}") || fail "failed: ${*:2}"
    [ "$printed" = "$text" ] || fail "${*:2} prints"$'\n'"$printed"$'\n'"instead of"$'\n'"$text"
}

# consumes PROGRAM...: it is one of the examples, and does what it says.
consumes() {
    local last
    last=$("$@" <<<clk) || fail "failed: $*"
    case ${last##*$'\n'} in
    $'clk\tclk' | 'bits  :top:\u1/Pad\:data(3),'*) ;;
    *) fail "$* prints at last: $last" ;;
    esac
}

rm -rf "$work" && mkdir -p "$work" && cd "$work"
. "$checks/$1.sh"
