#!/bin/sh
# pkgconfig.sh SOURCE WORK CC CXX PREFIX: the consumers by pkg-config, against the shared library of the copy under
# PREFIX, and linked wholly statically.
set -eu
source=$1 work=$2 cc=$3 cxx=$4 prefix=$5
. "$source/tests/install/common.sh"
make_anew "$work"
PKG_CONFIG_PATH=$prefix/lib/pkgconfig
export PKG_CONFIG_PATH

strict='-Wall -Wextra -Wpedantic -Werror'
consumer=$source/tests/install/consumer/consumer
shared=$(pkg-config --cflags --libs zel)
static=$(pkg-config --static --cflags --libs zel)
# Unquoted: lists of words.
shown "$cc" -std=c99 $strict -o "$work/c" "$consumer.c" $shared
shown "$cxx" -std=c++20 $strict -o "$work/cxx" "$consumer.cpp" $shared
shown "$cc" -std=c99 $strict -static -o "$work/c_static" "$consumer.c" $static
shown "$cxx" -std=c++20 $strict -static -o "$work/cxx_static" "$consumer.cpp" $static

expect "$consumed" env "LD_LIBRARY_PATH=$prefix/lib" "$work/c"
expect "$consumed" env "LD_LIBRARY_PATH=$prefix/lib" "$work/cxx"
for program in "$work/c_static" "$work/cxx_static"; do
    expect "$consumed" "$program"
    grep -qaF '@(#)$VRN: ' "$program" || fail "$program does not say which zel it holds"
done
