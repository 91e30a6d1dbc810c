#!/usr/bin/env bash
# check.sh NM LIBRARY LIST [NEEDS]: the dynamic symbols of LIBRARY are those of LIST, and none it needs is the C++
# runtime's; with NEEDS, it needs none but those of NEEDS. Instrumentation adds needs of its own.
set -eu
export LC_ALL=C
nm=$1 library=$2 list=$3 needs=${4:-}

fail() {
    echo "$*" >&2
    exit 1
}

# Symbol names alone; what sanitizers add to a library is not its interface.
names() {
    "$nm" -D -P "$@" "$library" | sed 's/[ @].*//' | grep -v '^__odr_asan' | sort
}
names --defined-only | diff -u "$list" - >&2 || fail "$library does not export what $list says, in its order"

# __cxa_finalize is the C runtime's, in every shared library.
if names --undefined-only | grep -E '^(_Z|__cxa_|__gxx_|_Unwind_)' | grep -vx '__cxa_finalize' >&2; then
    fail "$library needs the C++ runtime: see the names above"
fi
if [ -n "$needs" ] && names --undefined-only | comm -23 - <(sed 's/ *#.*//; /^$/d' "$needs" | sort) | grep . >&2; then
    fail "$library needs the names above, which $needs does not allow"
fi
