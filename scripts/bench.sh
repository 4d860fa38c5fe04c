#!/usr/bin/env bash
# The editor's speed and memory on a generated 1,000,000-line CAM program (about 35 MB), through
# the real frame window offscreen. Each step runs in a process of its own, one at a time, and
# prints its mean time, the peak resident memory while it ran, and the figure it should stay
# under. Builds the benchmarks first (they are never run by the tests).
#   scripts/bench.sh            all steps
#   scripts/bench.sh ViewCodes  the steps whose name holds the word
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${LATHWICK_BUILD_DIR:-$here/build}"
[[ -f "$build/build.ninja" ]] || bash "$here/scripts/build.sh"
cmake --build "$build" --parallel 2 --target bench_gui_editor bench_gui_typing >/dev/null

# step  benchmark  time limit (ms)  memory limit (MB, - for none)
steps=(
  "LoadDoc bench_gui_editor 200 -"
  "ViewModes bench_gui_editor 500 250"
  "ViewCodes bench_gui_editor 800 300"
  "UndoCodes bench_gui_editor 800 -"
  "TypeCharacter bench_gui_typing 16 -"
  "CaretDown bench_gui_typing 16 -"
  "PageDown bench_gui_typing 16 -"
)

printf '%-14s %10s %10s %10s   %s\n' step "time ms" "max ms" "peak MB" "limit"
status=0
for row in "${steps[@]}"; do
  read -r step binary time_limit memory_limit <<<"$row"
  [[ $# -gt 0 && "$step" != *"$1"* ]] && continue
  csv="$("$build/bench/$binary" --benchmark_filter="^BM_${step}(/|\$)" --benchmark_format=csv 2>/dev/null)"
  line="$(awk -F, -v step="$step" '
    NR == 1 { for (i = 1; i <= NF; i++) { h = $i; gsub(/"/, "", h); col[h] = i } next }
    index($1, "BM_" step) {
      error = col["error_occurred"] ? $col["error_occurred"] : ""
      max = col["max_ms"] ? $col["max_ms"] : "-"
      printf "%s %s %s %s\n", $col["real_time"], max, $col["peak_MB"], (error == "true" ? $col["error_message"] : "")
    }' <<<"$csv")"
  read -r ms max peak error <<<"$line"
  verdict="under ${time_limit} ms"
  [[ "$memory_limit" != "-" ]] && verdict+=", ${memory_limit} MB"
  if [[ -n "${error:-}" ]] || awk -v t="$ms" -v l="$time_limit" -v p="$peak" -v m="$memory_limit" \
      'BEGIN { exit !(t > l || (m != "-" && p > m)) }'; then
    verdict="OVER: $verdict ${error:-}"
    status=1
  fi
  printf '%-14s %10.1f %10s %10.0f   %s\n' "$step" "$ms" "$max" "$peak" "$verdict"
done
exit $status
