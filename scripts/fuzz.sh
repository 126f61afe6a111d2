#!/usr/bin/env bash
# Runs every libFuzzer target of a build folder for a bounded time each.
# CVX_FUZZ_JOBS runs that many targets at once (default 1).
# CVX_FUZZ_MERGE=1 then merges what each run found into the committed seeds, keeping only the
# inputs that reach code the seeds do not (a set cover over edges, not hit counts), so the seeds
# stay small.
set -euo pipefail
build=${1:?build folder}
seconds=${2:-20}
jobs=${CVX_FUZZ_JOBS:-1}
root="$(cd "$(dirname "$0")/.." && pwd)"

fuzz_one() {
  local target=$1 name corpus seeds
  name=$(basename "$target")
  corpus="$build/fuzz/corpus/$name"
  seeds="$root/fuzz/seeds/$name"
  mkdir -p "$corpus"
  local args=("$corpus")
  [ -d "$seeds" ] && args+=("$seeds")
  echo "fuzz: $name for ${seconds}s"
  # -timeout turns an input that hangs into a failure instead of an endless run.
  if ! timeout $((seconds + 120)) "$target" -max_total_time="$seconds" -timeout=10 \
        -print_final_stats=1 "${args[@]}" >"$build/fuzz/$name.log" 2>&1; then
    echo "fuzz: $name FAILED"; tail -n 60 "$build/fuzz/$name.log"; return 1
  fi
  grep -h '^stat::number_of_executed_units\|^stat::peak_rss_mb' "$build/fuzz/$name.log" |
    sed "s/^/fuzz: $name /"
  [ "${CVX_FUZZ_MERGE:-0}" = 1 ] || return 0
  mkdir -p "$seeds"
  "$target" -set_cover_merge=1 -use_counters=0 "$seeds" "$corpus" \
    >"$build/fuzz/$name.merge.log" 2>&1
  echo "fuzz: $name seeds now $(find "$seeds" -type f | wc -l) files, $(du -sk "$seeds" | cut -f1) KiB"
}

status=0
running=0
for target in "$build"/fuzz/fuzz_*; do
  [ -x "$target" ] && [ -f "$target" ] || continue
  if ((running >= jobs)); then
    wait -n || status=1
    running=$((running - 1))
  fi
  fuzz_one "$target" &
  running=$((running + 1))
done
while ((running > 0)); do
  wait -n || status=1
  running=$((running - 1))
done
exit $status
