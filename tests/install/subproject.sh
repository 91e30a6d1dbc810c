# The examples with the sources as a part of their project.
shown cmake -S "$checks/consumer" -B build -G "$generator" "-DZEL_SOURCE_DIR=$source" -DCMAKE_BUILD_TYPE=Debug
for program in c_zel c_zel_static cxx_zel cxx_zel_static; do
    shown cmake --build build --parallel 2 --target $program
    consumes build/$program
done
