#!/usr/bin/env bash
# Builds and runs every test: the suite in a normal build (then the API reference, which fails on
# any Doxygen warning, and the formatting and clang-tidy checks), again under ASan+UBSan and under ThreadSanitizer, then every fuzz target
# for a short time.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh doxygen graphviz
fuzz_seconds=${CVX_FUZZ_SECONDS:-20}

run_suite() {
  local preset=$1
  echo "=== $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
  ctest --preset "$preset"
}

# A project of its own builds against the installed library through find_package.
run_consumer() {
  echo "=== consumer"
  local out=build/consumer
  rm -rf "$out"
  cmake --install build/debug --prefix "$out/prefix" >/dev/null
  cmake -S tests/consumer -B "$out/build" -G Ninja -DCMAKE_PREFIX_PATH="$PWD/$out/prefix" >/dev/null
  cmake --build "$out/build"
  "$out/build/consumer"
}

# The installed Python module imports with Debian's interpreter away from the build tree.
run_python_install() {
  echo "=== python install"
  local site
  site=$(/usr/bin/python3 -c 'import sys; print("lib/python%d.%d/dist-packages" % sys.version_info[:2])')
  local path="$PWD/build/consumer/prefix/$site"
  (cd / && PYTHONPATH="$path" /usr/bin/python3 -c \
    'import cvxutils; assert cvxutils.echo([1, "a"]) == [1, "a"]; print("imported", cvxutils.__file__)')
}

run_suite debug
# The API reference: any Doxygen warning fails it (about a minute).
echo "=== docs"
cmake --build --preset debug --target docs
# Formatting and clang-tidy over every translation unit (about 12 minutes).
bash scripts/lint.sh
run_consumer
run_python_install
run_suite asan
run_suite tsan
# The Windows cross-build and its tests under wine (about 3 minutes beside the build).
bash scripts/windows.sh

echo "=== fuzz"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
bash scripts/fuzz.sh build/fuzz "$fuzz_seconds"
