# The examples by pkg-config, against the shared library, and linked wholly statically.
strict='-Wall -Wextra -Wpedantic -Werror'
c="$CC -std=c99 $strict $source/examples/rename.c"
cxx="$CXX -std=c++20 $strict $source/examples/bits.cpp"
for compile in "$c" "$cxx"; do
    # Unquoted: lists of words.
    shown $compile -o shared $(pkg-config --cflags --libs zel)
    shown $compile -o static -static $(pkg-config --static --cflags --libs zel)
    consumes env "LD_LIBRARY_PATH=$prefix/lib" ./shared
    consumes ./static
    grep -qaF '@(#)$VRN: ' static || fail "a static program does not say which zel it holds"
done
