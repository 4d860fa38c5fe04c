#!/usr/bin/env bash
# Configures (once) and builds everything into build/ with Ninja.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${LATHWICK_BUILD_DIR:-$here/build}"
if [[ ! -f "$build/build.ninja" ]]; then
  launcher=()
  # A compiler cache makes rebuilds in several work trees cheap; it is optional.
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}"
fi
cmake --build "$build" --parallel "$(nproc)"
