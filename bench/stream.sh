#!/bin/sh
# Tasks per second and peak memory of ferna-wsad --linie, with 1 and 2 threads, over 10 000 and
# 100 000 tasks: those of the reference set, over and over.
#   bench/stream.sh [BUILD_FOLDER]
set -eu
cd "$(dirname "$0")/.."
program=${1:-build/release}/bin/ferna-wsad
tasks=$(mktemp)
figures=$(mktemp)
trap 'rm -f "$tasks" "$figures"' EXIT
for count in 10000 100000; do
    awk -v count="$count" '{ line[NR] = $0 }
        END { for (i = 0; i < count; ++i) print line[i % NR + 1] }' \
        tests/golden/solver.tasks.jsonl > "$tasks"
    for threads in 1 2; do
        /usr/bin/time -f '%e %U %M' -o "$figures" \
            "$program" --linie --watki "$threads" < "$tasks" > /dev/null \
            || [ $? -eq 1 ] # some of the tasks have no solution
        tail -n 1 "$figures" | awk -v count="$count" -v threads="$threads" \
            '{ printf "%d tasks, %d thread(s): %.1f s (%.1f s of processor), %.0f tasks/s, peak memory %.1f MB\n",
                      count, threads, $1, $2, count / $1, $3 / 1024 }'
    done
done
