#!/usr/bin/env bash
# The checks too long for every change: valgrind memcheck over every test binary of the debug
# build, then every fuzz target for a longer time (CVX_LONG_FUZZ_SECONDS each, default 600, two at
# a time), merging what the fuzzers find into the committed seeds in fuzz/seeds/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
fuzz_seconds=${CVX_LONG_FUZZ_SECONDS:-600}
status=0

echo "=== memcheck"
cmake --preset debug >/dev/null
cmake --build --preset debug
for test in build/debug/tests/test_*; do
  [ -x "$test" ] || continue
  echo "memcheck: $(basename "$test")"
  if ! CVX_TEST_TMP="$PWD/build/debug/tests" valgrind --quiet --error-exitcode=1 --leak-check=full \
        --errors-for-leak-kinds=definite,indirect "$test" --gtest_brief=1 \
        >"$test.memcheck.log" 2>&1; then
    echo "memcheck: $(basename "$test") FAILED"; tail -n 40 "$test.memcheck.log"; status=1
  fi
done

echo "=== long fuzzing"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
CVX_FUZZ_JOBS=${CVX_FUZZ_JOBS:-2} CVX_FUZZ_MERGE=1 bash scripts/fuzz.sh build/fuzz "$fuzz_seconds" ||
  status=1
exit $status
