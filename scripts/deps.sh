#!/usr/bin/env bash
# Installs the Debian packages the build needs, and any named as arguments, only those missing.
# Quiet and idempotent.
set -euo pipefail
packages=(cmake ninja-build g++ clang libclang-rt-14-dev libgtest-dev libgmock-dev libbenchmark-dev
          libeigen3-dev libglm-dev libpython3-dev python3-dev valgrind
          pybind11-dev python3-numpy python3-pytest python3-hypothesis "$@")
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
