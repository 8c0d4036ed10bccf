#!/usr/bin/env bash
# Answers one part of a table of combinations, unless that is done:
#   combinations_part.sh TASK.json FOLDER/part-00001.csv
# The answers take their name, part-00001.jsonl, once they are whole: a stop in between leaves nothing
# that a later call would take for an answer. FERNA_WSAD is the companion, ferna-wsad unless set.
set -euo pipefail
task=$1 part=$2
answers=${part%.csv}.jsonl
[[ -e $answers ]] && exit
passing=$answers.$$.tmp
trap 'rm -f "$passing"' EXIT
code=0
"${FERNA_WSAD:-ferna-wsad}" --kombinacje "$part" "$task" >"$passing" || code=$?
((code <= 1)) || exit "$code" # 1: no row of the part could be read, and that stands in its answers
mv "$passing" "$answers"
