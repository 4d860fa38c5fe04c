#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test through ctest.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
bash "$here/scripts/setup.sh"
bash "$here/scripts/build.sh"
build="${LATHWICK_BUILD_DIR:-$here/build}"
export QT_QPA_PLATFORM=offscreen
cd "$build"
ctest --output-on-failure --parallel "$(nproc)" --timeout 600
