#!/usr/bin/env bash
# Configures (once) and builds everything into build/ with Ninja.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${LATHWICK_BUILD_DIR:-$here/build}"
if [[ ! -f "$build/build.ninja" ]]; then
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
fi
cmake --build "$build" --parallel "$(nproc)"
