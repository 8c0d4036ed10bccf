#!/usr/bin/env bash
# A large table of combinations on all processors of this machine, by GNU parallel:
#   combinations_parallel.sh TASK.json TABLE.csv FOLDER [ROWS] >answers.jsonl
# in parts of ROWS rows (10000). Stopped or killed, the same call goes on where it was: FOLDER keeps the
# parts that are done.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
task=$1 table=$2 folder=$3 rows=${4:-10000}
python3 "$here/combinations_parts.py" split "$table" "$folder" "$rows"
printf '%s\n' "$folder"/part-*.csv | parallel --will-cite --halt soon,fail=1 \
    "$here/combinations_part.sh" "$task" {}
python3 "$here/combinations_parts.py" merge "$folder"
