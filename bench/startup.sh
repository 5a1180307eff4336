#!/usr/bin/env bash
# Start-up of the panel (exec until the window is shown and the event loop runs) against a
# bare Qt window holding one chart, offscreen, interleaved over N runs so both see the same
# machine load. Prints the medians, their ratio and the peak RSS of each.
# Usage: bench/startup.sh [build-dir] [runs]
set -euo pipefail
build=$(cd "${1:-$(dirname "$0")/../build}" && pwd)
runs=${2:-11}
bare="$build/bench/bench_bare_chartwindow"
[[ -x $bare ]] || { echo "startup.sh: $bare not built" >&2; exit 1; }
work=$(mktemp -d "$build/startup.XXXXXX")
mkdir -p "$work/run" "$work/home"
trap 'rm -rf "$work"' EXIT
# Wall time in nanoseconds (time's own clock counts only in 10 ms steps), peak RSS in kB.
measure() {
  local start end rss
  start=$(date +%s%N)
  rss=$(cd "$work/run" && QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work \
          /usr/bin/time -f "%M" "$@" 2>&1 >/dev/null | tail -n 1)
  end=$(date +%s%N)
  echo "$(( (end - start) / 1000 )) $rss"
}
for _ in $(seq "$runs"); do
  echo "panel $(measure "$build/ovra-panel" --port "$work/none" --home "$work/home" --quit-after-start)"
  echo "bare $(measure "$bare")"
done | sort -k1,1 -k2,2n | awk '
  { t[$1, ++n[$1]] = $2; if ($3 > m[$1]) m[$1] = $3 }
  function median(k) { return (n[k] % 2) ? t[k, (n[k] + 1) / 2] : (t[k, n[k] / 2] + t[k, n[k] / 2 + 1]) / 2 }
  END {
    p = median("panel"); b = median("bare")
    printf "runs=%d panel_median_ms=%.0f bare_median_ms=%.0f ratio=%.1f panel_peak_rss_mb=%.1f bare_peak_rss_mb=%.1f\n",
           n["panel"], p / 1000, b / 1000, (b > 0 ? p / b : 0), m["panel"] / 1024, m["bare"] / 1024
  }'
