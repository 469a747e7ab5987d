#!/usr/bin/env bash
# Installs what is missing of the Debian packages in a list, one a line.
#   tools/install.sh LIST
set -euo pipefail
missing=()
while read -r package; do
    [ -n "$package" ] || continue
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done < "$1"
[ ${#missing[@]} -gt 0 ] || exit 0
echo "installing: ${missing[*]}"
sudo=
[ "$(id -u)" = 0 ] || sudo=sudo
$sudo apt-get update -qq
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
