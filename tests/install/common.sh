# What the checks of the installed copy share. Each gives a place to work in, which is made anew.

fail() {
    echo "$*" >&2
    exit 1
}

# make_anew DIR
make_anew() {
    rm -rf "$1"
    mkdir -p "$1"
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
    text=$1
    shift
    printed=$("$@") || fail "failed: $*"
    [ "$printed" = "$text" ] || fail "$* prints
$printed
instead of
$text"
}

# What both consumers print: SPEF escapes the slash by '\', VHDL begins a path with ':'.
consumed='u1\/Pad and :top:u1:d(3)'
