#!/usr/bin/env bash
# The 64-bit Windows build: cross-compiles the library's DLLs and the test executables with
# MinGW-w64 (the windows preset) and runs every test under wine. Installs what it needs.
# CVX_WINDOWS_TESTS=0 builds without running the tests.
set -euo pipefail
cd "$(dirname "$0")/.."
packages=(cmake ninja-build g++-mingw-w64-x86-64 googletest wine64)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=()
  [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

echo "=== windows: build"
SECONDS=0
cmake --preset windows >/dev/null
cmake --build --preset windows
echo "windows: built in ${SECONDS}s"
[ "${CVX_WINDOWS_TESTS:-1}" = 0 ] && exit 0

echo "=== windows: tests under wine"
# A wine prefix of the build's own, made before the tests so that they do not wait for it.
export WINEPREFIX=${WINEPREFIX:-$PWD/build/windows/wineprefix}
SECONDS=0
cmake/wine-run.sh wineboot --init
ctest --preset windows
echo "windows: tests ran in ${SECONDS}s"
