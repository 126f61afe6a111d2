#!/usr/bin/env bash
# Runs a program of the Windows cross-build under wine64: wine-run.sh PROGRAM.exe [ARGS...]
# The GCC runtime (libstdc++, libgcc, winpthread) stays one set of DLLs shared by the library's
# DLLs and the executables, as a host application ships it; WINEPATH points the loader at them.
set -euo pipefail
compiler=${CVX_MINGW_CXX:-x86_64-w64-mingw32-g++-posix}
folders=()
for dll in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
  folders+=("$(dirname "$(realpath "$("$compiler" -print-file-name="$dll")")")")
done
WINEPATH=$(printf '%s\n' "${folders[@]}" | sort -u | paste -sd';')
export WINEPATH
# Wine's own diagnostics stay out of the test output; without .NET and the browser engine a
# new wine prefix does not ask to install them.
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
# One wine server per prefix, kept a minute after its last program and started apart from this
# program's output: the services a new server starts would hold that output open, and a test
# runner reading it to the end would wait for them.
if /usr/lib/wine/wineserver64 -p60 </dev/null >/dev/null 2>&1; then
  /usr/lib/wine/wine64 wineboot </dev/null >/dev/null 2>&1
fi
exec /usr/lib/wine/wine64 "$@"
