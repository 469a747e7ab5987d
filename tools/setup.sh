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

missing=()
while read -r package; do
    [ -n "$package" ] || continue
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done < tools/packages.txt
if [ ${#missing[@]} -gt 0 ]; then
    echo "installing: ${missing[*]}"
    sudo=
    [ "$(id -u)" = 0 ] || sudo=sudo
    $sudo apt-get update -qq
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

cmake --preset "$preset" > /dev/null
if [ "$preset" = dev ]; then build=build; else build=build/$preset; fi
# In place of this shell, so that a signal to end reaches the build.
exec ninja -C "$build" "${@:2}"
