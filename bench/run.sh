#!/bin/sh
# Runs every benchmark and prints Markdown tables; docs/performance.md has the figures of one run.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}

for packages in tests/browser bench; do
    (cd "$packages" && node "$OLDPWD/tests/browser/support/packages.mjs" npm)
done

bench/import.py
bench/profile.py
bench/sharpness.py
bench/memory.py
cmake --build "$build" --target folvero-bench-republish >/dev/null
"$build/bin/folvero-bench-republish" "$build/samples/thousand.pdf" 1-500

cmake --build "$build" --target folvero-bench-startup >/dev/null
bench/startup.py

templates=$build/share/folvero/AppFiles
book=$(mktemp -d)
trap 'rm -rf "$book"' EXIT
node tools/player-demo-book.mjs "$templates/Templates/float" "$templates/Styles/float/Blank" "$book"
bench/frames.mjs "$book"
bench/opening.mjs "$templates/Templates/float"

cmake --build "$build" --target folvero-bench-text >/dev/null
"$build/bin/folvero-bench-text" "$build/samples/thousand.pdf" "$build/samples/novel.pdf"
bench/reading.py
bench/search.mjs "$templates/Templates/float"
bench/first-view.mjs "$build"
bench/beside.mjs --build "$build"
bench/catalogue.py
