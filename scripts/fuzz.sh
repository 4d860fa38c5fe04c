#!/usr/bin/env bash
# Builds one fuzz target with clang's libFuzzer (AddressSanitizer and UndefinedBehaviorSanitizer)
# in build-fuzz/ and fuzzes it for the given time, starting from its seed corpus.
#   scripts/fuzz.sh TARGET SECONDS [more libFuzzer options]
# Targets: rtf_reader macro_engine colorizer passes scheme_data_file send_to_file easy_text_file
#          motion_model
# New inputs go to build-fuzz/corpus/TARGET (the seed folder stays as it is); a crash is written
# to build-fuzz/findings/TARGET/. Once fixed, copy the crash file into
# tests/fuzz/regressions/TARGET/ so the test suite replays it from then on.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
target="${1:?usage: scripts/fuzz.sh TARGET SECONDS [libFuzzer options]}"
seconds="${2:?usage: scripts/fuzz.sh TARGET SECONDS [libFuzzer options]}"
shift 2
build="${LATHWICK_FUZZ_BUILD_DIR:-$here/build-fuzz}"
seeds="$here/tests/fuzz/corpus/$target"
[[ -d "$seeds" ]] || { echo "no such target: $target" >&2; exit 2; }
if [[ ! -f "$build/build.ninja" ]]; then
  launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DLATHWICK_FUZZ=ON -DLATHWICK_GUI=OFF \
    "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -gline-tables-only" -DLATHWICK_BENCH=OFF "${launcher[@]}"
fi
cmake --build "$build" --target "fuzz_$target"
work="$build/corpus/$target"
findings="$build/findings/$target"
mkdir -p "$work" "$findings"
regressions="$here/tests/fuzz/regressions/$target"
extra=()
[[ -d "$regressions" ]] && extra+=("$regressions")
# The macro language's own test scripts are seeds of the macro engine too (libFuzzer reads
# folders at any depth).
[[ "$target" == macro_engine ]] && extra+=("$here/tests/vbs/scripts")
exec "$build/fuzz_$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
  -artifact_prefix="$findings/" "$@" "$work" "$seeds" "${extra[@]}"
