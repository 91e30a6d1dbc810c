#!/bin/sh
# cmake.sh SOURCE WORK GENERATOR CC CXX package PREFIX: the consumers by find_package of the copy under PREFIX
# cmake.sh SOURCE WORK GENERATOR CC CXX subproject:     the consumers with SOURCE as a part of their project
set -eu
source=$1 work=$2 generator=$3 CC=$4 CXX=$5 how=$6
. "$source/tests/install/common.sh"
export CC CXX
make_anew "$work"

consumer="$source/tests/install/consumer"
if [ "$how" = package ]; then
    # A project in C alone can use either library, and does not get the C++ runtime.
    shown cmake -S "$consumer" -B "$work/c" -G "$generator" "-DCMAKE_PREFIX_PATH=$7" -DC_ONLY=ON
    shown cmake --build "$work/c"
    for program in "$work/c/c_zel" "$work/c/c_zel_static"; do
        expect "$consumed" "$program"
        if ldd "$program" | grep -E 'libstdc\+\+|libc\+\+' >&2; then
            fail "$program needs the C++ runtime"
        fi
    done
    shown cmake -S "$consumer" -B "$work/build" -G "$generator" "-DCMAKE_PREFIX_PATH=$7"
    shown cmake --build "$work/build"
else
    shown cmake -S "$consumer" -B "$work/build" -G "$generator" "-DZEL_SOURCE_DIR=$source" -DCMAKE_BUILD_TYPE=Debug
    for program in c_zel c_zel_static cxx_zel cxx_zel_static; do
        shown cmake --build "$work/build" --parallel 2 --target $program
    done
fi
for program in c_zel c_zel_static cxx_zel cxx_zel_static; do
    expect "$consumed" "$work/build/$program"
done
