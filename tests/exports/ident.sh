#!/bin/sh
# ident.sh STRIP FILE PREFIX...: a stripped copy of FILE holds one whole identification string for each PREFIX, and no
# other. The date and the tag are those of the build, so only their form is checked.
set -eu
export LC_ALL=C
strip=$1 file=$2
shift 2
copy=$(mktemp)
trap 'rm -f "$copy"' EXIT
"$strip" -o "$copy" "$file"

fields='[0-9]{2}\.[0-9]{2} [0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}:[0-9]{2} \([0-9a-z]+\)'
for prefix; do
    if ! grep -aqE "@\(#\)\\\$VRN: ${prefix} ${fields} \\\$" "$copy"; then
        echo "$file, stripped, has no identification string '$prefix'" >&2
        exit 1
    fi
done
found=$(grep -aoF '@(#)' "$copy" | wc -l)
if [ "$found" -ne $# ]; then
    echo "$file, stripped, has $found identification strings instead of $#" >&2
    exit 1
fi
