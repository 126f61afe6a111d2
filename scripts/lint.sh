#!/usr/bin/env bash
# Checks the tree against .clang-format (every C++ file, as committed) and .clang-tidy (every
# translation unit of the debug build, and the fuzz targets of the fuzz build). Configures both
# presets if needed; builds nothing. Any finding fails it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh clang-format clang-tidy

echo "=== clang-format"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror

# clang-tidy's progress lines and its counts of findings it suppresses say nothing.
tidy() {
  local status=0
  run-clang-tidy -quiet -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option "$@" \
      >build/clang-tidy.log 2>&1 || status=1
  grep -vE '^(clang-tidy|\[)|warnings? generated|^Suppressed|^Use -header-filter|NOLINT|^$' \
      build/clang-tidy.log || true
  return $status
}

echo "=== clang-tidy"
[ -f build/debug/compile_commands.json ] || cmake --preset debug >/dev/null
cmake --preset fuzz >build/fuzz-configure.log 2>&1 || { cat build/fuzz-configure.log; exit 1; }
status=0
tidy -p build/debug || status=1
tidy -p build/fuzz '/fuzz/' || status=1
exit $status
