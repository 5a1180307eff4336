#!/bin/sh
# Started by the desktop session or the panel's service: brings up the display key watcher
# and the operating panel full-screen. The home folder is the one this script lives in.
#
# Which panel: Downloads/build/ovra-panel, the newest, once it has proved itself (the panel
# writes build/proven once its window is up) and for its first two starts before
# that (counted in build/start_attempts, written before each start of an unproven build).
# After two starts in a row that never brought up the window, or when build/ is missing (an
# update cut off between two renames), the previous build: Downloads/build_previous/, kept by
# the update script (decode_and_unzip_lin.py) with its translations. Every start of an
# unproven build and every fallback is logged in Downloads/startup.log, beside the panel's
# log folder (Downloads/logs, ../logs from the panel's folder, whose rotation deletes any
# file in it), and on stderr (the service's journal). Delete build/start_attempts to give
# a build that fell back two more starts.
#
#   autostartUserinterface.sh --which
#       prints the program a start would run and does nothing else (exit 1: none).
HOME_DIR=$(cd "$(dirname "$0")" && pwd)
DOWNLOADS="$HOME_DIR/Downloads"
NEWEST="$DOWNLOADS/build"
PREVIOUS="$DOWNLOADS/build_previous"
STARTUP_LOG="$DOWNLOADS/startup.log"
MAX_UNPROVEN_STARTS=2

runnable() {
    [ -f "$1/ovra-panel" ] && [ -x "$1/ovra-panel" ]
}

starts_of() {
    n=$(cat "$1/start_attempts" 2>/dev/null)
    case $n in '' | *[!0-9]*) n=0 ;; esac
    echo "$n"
}

# Sets PANEL_DIR (empty: nothing to start), ATTEMPT (this start's number when it counts
# against an unproven build) and NOTE (the line to log).
choose() {
    PANEL_DIR='' ATTEMPT='' NOTE=''
    if runnable "$NEWEST"; then
        if [ -f "$NEWEST/proven" ]; then
            PANEL_DIR=$NEWEST
            return
        fi
        starts=$(starts_of "$NEWEST")
        if [ "$starts" -lt "$MAX_UNPROVEN_STARTS" ] || ! runnable "$PREVIOUS"; then
            PANEL_DIR=$NEWEST ATTEMPT=$((starts + 1))
            NOTE="starting unproven build $NEWEST, start $ATTEMPT"
            return
        fi
        PANEL_DIR=$PREVIOUS
        NOTE="fallback: $NEWEST did not bring up its window in $starts starts; starting $PREVIOUS"
    elif runnable "$PREVIOUS"; then
        PANEL_DIR=$PREVIOUS
        NOTE="fallback: no complete build in $NEWEST; starting $PREVIOUS"
    else
        NOTE="no complete build in $NEWEST or $PREVIOUS: nothing to start"
    fi
}

log() {
    echo "$1" >&2
    if [ -f "$STARTUP_LOG" ] && [ "$(wc -c <"$STARTUP_LOG")" -gt 65536 ]; then
        tail -n 200 "$STARTUP_LOG" >"$STARTUP_LOG.tmp" && mv "$STARTUP_LOG.tmp" "$STARTUP_LOG"
    fi
    echo "$(date '+%Y-%m-%d %H:%M:%S') $1" >>"$STARTUP_LOG"
}

# Renamed into place and synced: a power cut during the start leaves the old count or the new.
count_start() {
    echo "$ATTEMPT" >"$PANEL_DIR/start_attempts.tmp" || return 1
    sync "$PANEL_DIR/start_attempts.tmp" 2>/dev/null
    mv -f "$PANEL_DIR/start_attempts.tmp" "$PANEL_DIR/start_attempts" || return 1
    sync "$PANEL_DIR" 2>/dev/null
    return 0
}

if [ "$1" = "--which" ]; then
    choose
    [ -n "$PANEL_DIR" ] || exit 1
    echo "$PANEL_DIR/ovra-panel"
    exit 0
fi

# Whatever Python the card has: the scripts run under 2 and 3.
PYTHON=$(command -v python || command -v python3)

# The touch controller's kernel module (the display's FocalTech controller).
sudo modprobe "${OVRA_TOUCH_MODULE:-edt-ft5x06}" 2>/dev/null

"$PYTHON" "$DOWNLOADS/makeExecutable.py"

# The key watcher writes dispOn.pid into its working folder; one still running is ended
# first. After a reboot the number may belong to another process: that one is left alone.
cd "$HOME_DIR/DispOn" || exit 1
OLD_PID=$(cat dispOn.pid 2>/dev/null)
if [ -n "$OLD_PID" ] && grep -q dispOn.py "/proc/$OLD_PID/cmdline" 2>/dev/null; then
    kill "$OLD_PID"
fi
"$PYTHON" "$HOME_DIR/DispOn/dispOn.py" >/dev/null 2>&1 &

choose
[ -n "$NOTE" ] && log "$NOTE"
[ -n "$PANEL_DIR" ] || exit 1
if [ -n "$ATTEMPT" ] && ! count_start; then
    log "start of $PANEL_DIR not counted: $PANEL_DIR/start_attempts cannot be written"
fi

# Full-screen on the display without a window system; logs go to ../logs from the panel's folder.
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-eglfs}
export QT_QPA_EGLFS_HIDECURSOR=1
cd "$PANEL_DIR" || exit 1
exec ./ovra-panel
