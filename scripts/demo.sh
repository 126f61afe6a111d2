#!/usr/bin/env bash
# Builds the library, the cvxutils module and cvx_host (the interpreter with the module built
# in) in release mode and runs examples/demo.py through the host. With --cpp it builds and
# runs the C++ demo instead.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset release >/dev/null
# Pictures the demos draw go to build/demo unless CVX_DEMO_OUT says otherwise.
export CVX_DEMO_OUT=${CVX_DEMO_OUT:-$PWD/build/demo}
mkdir -p "$CVX_DEMO_OUT"
if [ "${1:-}" = --cpp ]; then
  cmake --build --preset release --target cvx_demo
  exec ./build/release/examples/cvx_demo
fi
cmake --build --preset release --target cvx_host cvxutils
exec ./build/release/python/host/cvx_host examples/demo.py "$@"
