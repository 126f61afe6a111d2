#!/usr/bin/env bash
# Builds the library in release mode and runs the demo end to end.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target cvx_demo
# Pictures the demo draws go to build/demo unless CVX_DEMO_OUT says otherwise.
export CVX_DEMO_OUT=${CVX_DEMO_OUT:-$PWD/build/demo}
mkdir -p "$CVX_DEMO_OUT"
./build/release/examples/cvx_demo "$@"
