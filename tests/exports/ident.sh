#!/bin/sh
# ident.sh STRIP FILE PREFIX...: a stripped copy of FILE holds one whole identification string for each PREFIX, and no
# other. The date and the tag are those of the build, so only their form is checked.
set -eu
copy=$(mktemp)
trap 'rm -f "$copy" "$copy.found"' EXIT
"$1" -o "$copy" "$2"
shift 2
export LC_ALL=C fields='[0-9]{2}\.[0-9]{2} [0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}:[0-9]{2} \([0-9a-z]+\)'
tr '\0' '\n' <"$copy" | grep -aF '@(#)' | sed -E "s|^@\(#\)\\\$VRN: (.*) $fields \\\$\$|\1|" | sort >"$copy.found"
printf '%s\n' "$@" | sort | diff - "$copy.found" >&2
