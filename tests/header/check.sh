#!/bin/sh
# check.sh COMPILER SOURCE INCLUDE STANDARD...: SOURCE compiles without a warning in each language standard.
set -eu
compiler=$1 source=$2 include=$3
shift 3
for standard; do
    "$compiler" "-std=$standard" -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wundef -Werror -fsyntax-only \
        "-I$include" "$source" || {
        echo "$source does not compile with $compiler -std=$standard" >&2
        exit 1
    }
done
