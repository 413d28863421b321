#!/bin/sh
# Runs a fuzz target for a bounded time: run.sh TARGET SEEDS WORK SECONDS.
# The seeds are read, never written; new inputs and any crashing input go
# to WORK, emptied first, as does the target's temporary folder (left there
# when a finding ends the run). A finding makes the exit status non-zero.
set -eu
target=$1 seeds=$2 work=$3 seconds=$4
rm -rf "$work"
mkdir -p "$work/new"
export TMPDIR="$work"
exec "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=8192 \
  -print_final_stats=1 -artifact_prefix="$work/" "$work/new" "$seeds"
