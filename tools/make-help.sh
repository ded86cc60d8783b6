#!/bin/sh
# Prints a page of the help to a PDF with bookmarks.
# Usage: make-help.sh SOURCE.html OUTPUT.pdf
set -eu
source=$(realpath "$1")
output=$2
profile=$(mktemp -d)
trap 'rm -rf "$profile"' EXIT

# Chromium refuses to run as root, as in a container, with its sandbox.
sandbox=
[ "$(id -u)" -ne 0 ] || sandbox=--no-sandbox
mkdir -p "$(dirname "$output")"
# Its output is of no use here; a failure shows in the missing file.
HOME=$profile chromium --headless $sandbox --disable-gpu --user-data-dir="$profile/data" \
    --allow-file-access-from-files --no-pdf-header-footer --generate-pdf-document-outline \
    --print-to-pdf="$profile/help.pdf" "file://$source" >"$profile/log" 2>&1 || true
if [ ! -s "$profile/help.pdf" ]; then
    cat "$profile/log" >&2
    echo "make-help.sh: $1 was not printed" >&2
    exit 1
fi
mv "$profile/help.pdf" "$output"
