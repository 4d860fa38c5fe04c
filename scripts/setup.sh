#!/usr/bin/env bash
# Installs the Debian packages listed in deps/debian-packages.txt that are not yet installed.
# Works as root or through sudo; does nothing when everything is present.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
missing=()
while read -r pkg; do
  [[ -z "$pkg" || "$pkg" == \#* ]] && continue
  if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$pkg")
  fi
done < "$here/deps/debian-packages.txt"
[[ ${#missing[@]} -eq 0 ]] && exit 0
echo "Installing: ${missing[*]}"
if [[ $(id -u) -eq 0 ]]; then sudo=(); else sudo=(sudo); fi
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
