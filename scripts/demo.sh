#!/usr/bin/env bash
# Builds the library in release mode and runs the demo end to end.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target cvx_demo
./build/release/examples/cvx_demo "$@"
