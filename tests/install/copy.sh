# Builds without instrumentation, as a distribution would, and installs elsewhere than configured, as ./dev install.
shown cmake -S "$source" -B build -G "$generator" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_LIBDIR=lib \
    -DCMAKE_INSTALL_PREFIX=/nonexistent -DZEL_BUILD_TESTS=OFF -DZEL_WERROR=ON
shown cmake --build build --parallel 2
shown cmake --install build --prefix "$prefix"

cd "$prefix"
find . ! -type d | sort | diff -u "$checks/files.txt" - >&2 || fail "other files are installed than files.txt says"
[ "$(readlink lib/libzel.so)" = libzel.so.1 ] || fail "libzel.so is no link to libzel.so.1"
if grep -rlF -e "$work" -e /nonexistent include lib/cmake lib/pkgconfig share >&2; then
    fail "the files above hold a path of the build: the installed copy cannot be moved"
fi
