#!/usr/bin/env bash
#SBATCH --job-name=kombinacje
#SBATCH --array=1-100
#SBATCH --ntasks=1
#SBATCH --time=00:30:00
# A large table of combinations on a cluster, each task of the array its share of the parts:
#   combinations_parts.py split TABLE.csv FOLDER
#   sbatch combinations_slurm.sh TASK.json FOLDER
#   combinations_parts.py merge FOLDER >answers.jsonl
# Tasks that were stopped are handed in again by the same sbatch: parts that are done stay. Slurm copies
# the script, so EXAMPLES says where the others are; the folder of the submission unless set.
set -euo pipefail
task=$1 folder=$2
examples=${EXAMPLES:-${SLURM_SUBMIT_DIR:-$(dirname "$(readlink -f "$0")")}}
parts=("$folder"/part-*.csv)
for ((i = SLURM_ARRAY_TASK_ID - 1; i < ${#parts[@]}; i += SLURM_ARRAY_TASK_COUNT)); do
    "$examples/combinations_part.sh" "$task" "${parts[i]}"
done
