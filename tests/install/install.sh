#!/bin/sh
# install.sh SOURCE WORK GENERATOR CC CXX: builds SOURCE in WORK/build without instrumentation, as a distribution would,
# and installs it under WORK/prefix.
set -eu
source=$1 work=$2 generator=$3 CC=$4 CXX=$5
. "$source/tests/install/common.sh"
export CC CXX
make_anew "$work"

# Installed elsewhere than configured, as by ./dev install.
shown cmake -S "$source" -B "$work/build" -G "$generator" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_LIBDIR=lib \
    -DCMAKE_INSTALL_PREFIX=/nonexistent -DZEL_BUILD_TESTS=OFF -DZEL_WERROR=ON
shown cmake --build "$work/build" --parallel 2
shown cmake --install "$work/build" --prefix "$work/prefix"

cd "$work/prefix"
find . ! -type d | LC_ALL=C sort >"$work/found"
diff -u "$source/tests/install/files.txt" "$work/found" >"$work/diff" || {
    cat "$work/diff" >&2
    fail "other files are installed than files.txt says"
}
[ "$(readlink lib/libzel.so)" = libzel.so.1 ] || fail "libzel.so is no link to libzel.so.1"
if grep -rlF -e "$work" -e /nonexistent include lib/cmake lib/pkgconfig share >&2; then
    fail "the files above hold a path of the build: the installed copy cannot be moved"
fi
