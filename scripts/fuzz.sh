#!/usr/bin/env bash
# Runs every libFuzzer target of a build folder for a bounded time each.
set -euo pipefail
build=${1:?build folder}
seconds=${2:-20}
root="$(cd "$(dirname "$0")/.." && pwd)"
status=0
for target in "$build"/fuzz/fuzz_*; do
  [ -x "$target" ] || continue
  name=$(basename "$target")
  corpus="$build/fuzz/corpus/$name"
  mkdir -p "$corpus"
  seeds="$root/fuzz/seeds/$name"
  args=("$corpus")
  [ -d "$seeds" ] && args+=("$seeds")
  echo "fuzz: $name for ${seconds}s"
  # -timeout turns an input that hangs into a failure instead of an endless run.
  if ! timeout $((seconds + 120)) "$target" -max_total_time="$seconds" -timeout=10 \
        -print_final_stats=0 "${args[@]}" >"$build/fuzz/$name.log" 2>&1; then
    echo "fuzz: $name FAILED"; tail -n 60 "$build/fuzz/$name.log"; status=1
  fi
done
exit $status
