#!/bin/sh
# check.sh NM LIBRARY LIST [NEEDS]: the dynamic symbols of LIBRARY are those of LIST, and none it needs is the C++
# runtime's; with NEEDS, it needs none but those of NEEDS. Instrumentation adds needs of its own.
set -eu
export LC_ALL=C
nm=$1 library=$2 list=$3 needs=${4:-}
status=0

# Symbol names alone; what sanitizers add to a library is not its interface.
names() {
    "$nm" -D -P "$@" "$library" | sed 's/[ @].*//' | grep -v '^__odr_asan' || true
}

if ! sort -c "$list"; then
    echo "$list is not sorted" >&2
    status=1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
names --defined-only | sort >"$work/found"
sort "$list" >"$work/listed"
if ! diff -u "$work/listed" "$work/found" >"$work/diff"; then
    echo "$library does not export what $list says (+ exported, not listed; - listed, not exported):" >&2
    sed '1,3d' "$work/diff" | grep '^[-+]' >&2
    status=1
fi

# __cxa_finalize is the C runtime's, in every shared library.
if names --undefined-only | grep -E '^(_Z|__cxa_|__gxx_|_Unwind_)' | grep -vx '__cxa_finalize' >&2; then
    echo "$library needs the C++ runtime: see the names above" >&2
    status=1
fi

if [ -n "$needs" ]; then
    sed 's/ *#.*//; /^$/d' "$needs" | sort >"$work/allowed"
    names --undefined-only | sort >"$work/needed"
    if comm -13 "$work/allowed" "$work/needed" | grep . >&2; then
        echo "$library needs the names above, which $needs does not allow" >&2
        status=1
    fi
fi
exit $status
