#!/bin/sh
# Takes the screenshots of the program for the help and the README, and those of published books.
# Run by hand after visible changes; the pictures are kept in the repository.
# Usage: make-pictures.sh [BUILD]
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}
cmake --build "$build" --target folvero-window-shots resources sample-pdfs >/dev/null

for language in en de es fr it; do
    mkdir -p resources/help/pictures/$language
    "$build/bin/folvero-window-shots" --jpeg --scale 1.5 --language $language \
        --only start,editing,settings,import,password,message,pages,chooser,publish-web \
        "$build/samples" resources/help/pictures/$language 2>/dev/null
done
windows=$(mktemp -d)
trap 'rm -rf "$windows"' EXIT
"$build/bin/folvero-window-shots" --only editing,chooser "$build/samples" "$windows" 2>/dev/null
mv "$windows/editing-light.png" docs/images/window.png
mv "$windows/chooser-dark.png" docs/images/window-dark.png
node tools/screenshots.mjs --readme "$build/share/folvero"
