#!/usr/bin/env bash
# Builds the fuzz harnesses, runs all or some of them for some minutes of processor time each, and prints their figures as a table:
#
#   tools/fuzz.sh [MINUTES [NAME ...]]
#
# The preset "release" must have been built. It continues from the corpora of earlier runs, and a run that was interrupted goes on where it was if
# the harness is the same. A harness that ends with a finding is restarted until its time is up; the inputs that caused it are kept in findings/.
#   FUZZ_BUILD   a build folder to use as it is; by default build/fuzz is built
#   FUZZ_FOLDER  where corpora, findings and logs are kept, fuzz/runs in the build folder by default
#   FUZZ_JOBS    how many harnesses run at a time, 1 by default
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -z "${FUZZ_BUILD:-}" ]; then
    cmake --preset fuzz >/dev/null
    nice -n 19 cmake --build --preset fuzz -j "${FUZZ_JOBS:-1}" --target fuzz
fi
build=$(realpath "${FUZZ_BUILD:-build/fuzz}")
folder=${FUZZ_FOLDER:-$build/fuzz/runs}
minutes=${1:-20}
shift || true
names=("$@")
if ((${#names[@]} == 0)); then
    for file in "$build"/fuzz/bin/*.options; do
        names+=("$(basename "$file" .options)")
    done
fi
for name in "${names[@]}"; do
    [ -e "$build/fuzz/bin/$name.options" ] || { echo "tools/fuzz.sh: there is no harness $name" >&2; exit 2; }
done
mkdir -p "$folder/findings" "$folder/logs"
# Files written by a harness stay in memory where there is a tmpfs.
[ -w /dev/shm ] && export TMPDIR=/dev/shm

# Otherwise a harness that always fails at once would run for ever.
most_findings=200
# What an interrupted run loses at most, by the clock.
slice_seconds=900

# The log tells how far the harness is: of a finished one, "harness: none".
run() {
    local name=$1 log=$folder/logs/$1.log harness options left used=0 seconds=0 findings=0 earlier=0 started
    harness=$(sha256sum "$build/fuzz/bin/fuzz-$name" | cut -d ' ' -f 1)
    mapfile -t options <"$build/fuzz/bin/$name.options"
    mkdir -p "$folder/corpus/$name"
    if [ "$(awk '/^harness:/ { last = $2 } END { print last }' "$log" 2>/dev/null)" = "$harness" ]; then
        used=$(awk '/^processor:/ { last = $2 } END { print last + 0 }' "$log")
        seconds=$(awk '/^seconds:/ { last = $2 } END { print last + 0 }' "$log")
        earlier=$used
    else
        echo "harness: $harness" >"$log"
    fi
    # A harness counts the time by the clock; on a busy machine it is started again for the rest.
    while left=$((minutes * 60 - used)) && ((left > 0 && findings < most_findings)); do
        started=$SECONDS
        nice -n 19 "$build/fuzz/bin/fuzz-$name" "${options[@]}" -max_total_time=$((left < slice_seconds ? left : slice_seconds)) \
            -print_final_stats=1 -artifact_prefix="$folder/findings/$name-" \
            "$folder/corpus/$name" "$build/fuzz/seeds/$name" >>"$log" 2>&1 || findings=$((findings + 1))
        # Not in a subshell, which would have harnesses of its own; the second line is about them.
        times >"$folder/logs/$name.times"
        used=$((earlier + $(awk 'NR == 2 { split($1 "m" $2, t, /[ms]+/); print int((t[1] + t[3]) * 60 + t[2] + t[4] + 0.5) }' \
            "$folder/logs/$name.times")))
        seconds=$((seconds + SECONDS - started))
        { echo "seconds: $seconds"; echo "processor: $used"; } >>"$log"
    done
    rm -f "$folder/logs/$name.times"
    echo "harness: none" >>"$log"
}

row() {
    awk -v name="$1" -v corpus="$(find "$folder/corpus/$1" -type f | wc -l)" '
        / cov: / { for (i = 1; i < NF; i++) { if ($i == "cov:") cov = $(i + 1); if ($i == "ft:") ft = $(i + 1) } }
        /^stat::number_of_executed_units:/ { units += $2 }
        /^stat::peak_rss_mb:/ { if ($2 > peak) peak = $2 }
        /Test unit written to .*-(crash|timeout|oom|leak)-/ { findings++ }
        /^seconds:/ { seconds = $2 }
        /^processor:/ { used = $2 }
        END {
            printf "| %s | %d | %d | %d | %d | %d / %d | %d | %d | %d |\n", name, seconds / 60, used,
                units, units / (used > 1 ? used : 1), cov, ft, corpus, peak, findings
        }' "$folder/logs/$1.log"
}

for name in "${names[@]}"; do
    while (($(jobs -rp | wc -l) >= ${FUZZ_JOBS:-1})); do
        wait -n
    done
    run "$name" &
done
wait

echo "| harness | minutes | processor seconds | executions | per processor second | coverage / features | corpus | peak MB | findings |"
echo "| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: | ---: |"
for name in "${names[@]}"; do
    row "$name"
done
