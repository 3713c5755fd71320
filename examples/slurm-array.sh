#!/bin/sh
# One list of cases as an array of Slurm jobs, and its report when all of them have ended:
#
#   examples/slurm-array.sh cases.csv 8
#
# makes 8 jobs with the memory and the cores below. Give it again after a job was lost: what is done stays.
set -eu
list=$(realpath "$1")
parts=$2
program=$(command -v dravolin-cli)
array=$(sbatch --parsable --job-name=dravolin --array="1-$parts" --cpus-per-task=2 --mem=1G \
    --output="${list%.csv}.%A_%a.log" \
    --wrap="$program run '$list' --shard \$SLURM_ARRAY_TASK_ID/$parts --workers \$SLURM_CPUS_PER_TASK")
sbatch --parsable --job-name=dravolin-merge --dependency="afterany:$array" --output="${list%.csv}.merge.log" \
    --wrap="$program merge '$list'"
