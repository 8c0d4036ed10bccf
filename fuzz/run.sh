#!/usr/bin/env bash
# Builds the fuzzers and runs each for so many seconds (60 unless told), from its small corpus:
#   fuzz/run.sh [SECONDS [NAME ...]]
# New inputs stay in build/fuzz/found/NAME; a finding stands in build/fuzz/findings and ends the run
# with an error. fuzz/run.sh --minimise takes what was found into fuzz/corpus, as little as will do.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
install_missing "${build_packages[@]}" "${run_packages[@]}" "${fuzz_packages[@]}"
build_preset fuzz >/dev/null

programs=build/fuzz/fuzz
every=(
    numbers format reply job catalogue configuration metafile commands combinations task task_file picture plain_json
)
mkdir -p build/fuzz/findings build/fuzz/log

# A task may search long; the others answer at once.
options_of() {
    echo "-max_len=4096 -timeout=20 -rss_limit_mb=2048 -print_final_stats=1"
    case $1 in
    task) echo "-timeout=120 -max_len=8192 -dict=fuzz/task.dict" ;;
    task_file | picture) echo "-max_len=8192 -dict=fuzz/task.dict" ;;
    plain_json) echo "-max_len=1024 -dict=fuzz/task.dict" ;;
    metafile | commands) echo "-max_len=16384" ;;
    numbers | format) echo "-max_len=512" ;;
    esac
}

run_one() {
    local name=$1
    shift
    # The font library keeps what it has found: no leak of ours, and libFuzzer cannot suppress it.
    local leaks=1
    [[ $name == metafile || $name == commands || $name == task || $name == picture ]] && leaks=0
    # shellcheck disable=SC2046 # options are words
    ASAN_OPTIONS=detect_leaks=$leaks "$programs/fuzz_$name" $(options_of "$name") -artifact_prefix="build/fuzz/findings/$name-" "$@"
}

if [[ ${1:-} == --minimise ]]; then
    shift
    for name in "${@:-${every[@]}}"; do
        fresh=$(mktemp -d)
        run_one "$name" -merge=1 "$fresh" "fuzz/corpus/$name" "build/fuzz/found/$name" 2>/dev/null
        # Seeds with a name stay; found inputs are named by what is in them.
        find "fuzz/corpus/$name" -type f -regextype posix-extended -regex '.*/[0-9a-f]{40}' -delete
        # The smallest inputs first, 200 at most: a corpus is a start and not a record.
        find "$fresh" -type f -printf '%s %f\n' | sort -n | sed -n 1,200p | while read -r _ file; do
            cp "$fresh/$file" "fuzz/corpus/$name/"
        done
        rm -rf "$fresh"
        echo "$name: $(find "fuzz/corpus/$name" -type f | wc -l) inputs"
    done
    exit
fi

seconds=${1:-60}
names=("${@:2}")
((${#names[@]})) || names=("${every[@]}")
failed=()
printf '%-14s %12s %10s %8s %9s %7s\n' fuzzer executions per_second branches features MB
for name in "${names[@]}"; do
    mkdir -p "build/fuzz/found/$name"
    log=build/fuzz/log/$name.txt
    if ! run_one "$name" -max_total_time="$seconds" "build/fuzz/found/$name" "fuzz/corpus/$name" \
        >"$log" 2>&1; then
        failed+=("$name")
        tail -30 "$log" >&2
    fi
    awk -v name="$name" '
        /cov: / { for (i = 1; i < NF; i++) { if ($i == "cov:") cov = $(i + 1)
                                             if ($i == "ft:") ft = $(i + 1) } }
        /number_of_executed_units/ { runs = $2 }
        /average_exec_per_sec/ { rate = $2 }
        /peak_rss_mb/ { mb = $2 }
        END { printf "%-14s %12s %10s %8s %9s %7s\n", name, runs, rate, cov, ft, mb }' "$log"
done
if ((${#failed[@]})); then
    echo "Findings: ${failed[*]} (build/fuzz/findings, build/fuzz/log)" >&2
    exit 1
fi
