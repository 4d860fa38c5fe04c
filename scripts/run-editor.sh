#!/usr/bin/env bash
# Installs what is missing, builds everything and starts the editor on a bundled sample program.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
bash "$here/scripts/setup.sh"
bash "$here/scripts/build.sh"
build="${LATHWICK_BUILD_DIR:-$here/build}"
if [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" && "${QT_QPA_PLATFORM:-}" != offscreen ]]; then
  echo "No display here: try the batch tool instead, e.g. $build/lathwick-cli --help"
  exit 0
fi
exec "$build/lathwick" "$build/samples/bracket.nc"
