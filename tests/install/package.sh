# The examples by find_package. A project in C alone can use either library, and does not get the C++ runtime.
for build in c cxx; do
    shown cmake -S "$checks/consumer" -B $build -G "$generator" "-DCMAKE_PREFIX_PATH=$prefix" -DLANGUAGE=$build
    shown cmake --build $build
done
for program in c/c_zel c/c_zel_static cxx/{c,cxx}_zel cxx/{c,cxx}_zel_static; do
    consumes $program
done
if ldd {c,cxx}/c_zel{,_static} | grep -E 'libstdc\+\+|libc\+\+' >&2; then
    fail "a program in C needs the C++ runtime"
fi
