#!/usr/bin/env bash
# Set-up shared by run and test: installs the Debian packages that are missing, configures a preset and builds it.
#   tools/setup.sh [PRESET [TARGET ...]]     preset: dev (default), release, asan, tsan; targets: all if none is said
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
case "${1:-}" in -h | --help) sed -n '2,${/^#/!q;s/^# \{0,1\}//p}' tools/setup.sh; exit 0 ;; esac
preset=${1:-dev}
case "$preset" in
dev | release | asan | tsan) ;;
*) echo "no such preset: $preset (dev, release, asan, tsan)" >&2; exit 2 ;;
esac

tools/install.sh tools/packages.txt
cmake --preset "$preset" > /dev/null
if [ "$preset" = dev ]; then build=build; else build=build/$preset; fi
# In place of this shell, so that a signal to end reaches the build.
exec ninja -C "$build" "${@:2}"
