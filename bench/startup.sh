#!/usr/bin/env bash
# Start-up time (exec until the window is shown and the event loop runs) and peak RSS of
# the panel, offscreen, over N runs. Usage: bench/startup.sh [build-dir] [runs]
set -euo pipefail
build=$(cd "${1:-$(dirname "$0")/../build}" && pwd)
runs=${2:-10}
work=$(mktemp -d "$build/startup.XXXXXX")
mkdir -p "$work/run" "$work/home"
trap 'rm -rf "$work"' EXIT
for _ in $(seq "$runs"); do
  (cd "$work/run" && QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work \
     /usr/bin/time -f "%e %M" "$build/ovra-panel" --port "$work/none" --home "$work/home" \
     --quit-after-start 2>&1 >/dev/null | tail -n 1)
done | awk '{ t += $1; if ($1 > tmax) tmax = $1; if ($2 > m) m = $2 }
            END { printf "runs=%d mean_ms=%.0f max_ms=%.0f peak_rss_mb=%.1f\n", NR, 1000*t/NR, 1000*tmax, m/1024 }'
