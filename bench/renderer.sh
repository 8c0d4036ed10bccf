#!/bin/sh
# Time from start to finished picture of the renderer: the screen picture and a PDF of a report of
# one case and of one with six cases and both sections' worth of pages.
#   bench/renderer.sh [BUILD_FOLDER]
set -eu
cd "$(dirname "$0")/.."
bin=$(readlink -f "${1:-build/release}/bin")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for task in slup-hali szesc-przypadkow; do
    "$bin/ferna-wsad" --wynik "$work/$task.json" --raport "$work/$task.wyd" \
        "data/przyklady/$task.json"
    sed '/^9,/q' "$work/$task.wyd" > "$work/$task-frame.wyd" # the frame alone
    printf -- '-2, 1.0, 0.5, 1.0, 1\r\n%s\r\n%s\r\n' \
        "$work/$task.wyd" "$work/$task-frame.wyd" > "$work/$task.job"
    for output in "" "--pdf $work/$task.pdf"; do
        for _ in 1 2 3 4 5; do
            # shellcheck disable=SC2086
            /usr/bin/time -f '%e' "$bin/Wyd_drk" $output "$work/$task.job" 2>&1 | tail -n 1
        done | sort -n | awk -v what="$task ${output:+PDF}" 'NR == 3 { print what ": median " $1 " s" }'
    done
done
