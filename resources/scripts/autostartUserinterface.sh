#!/bin/sh
# Started once by the desktop session of user pi: brings up the display key watcher and the
# operating panel full-screen. The home folder is the one this script lives in.
HOME_DIR=$(cd "$(dirname "$0")" && pwd)
PANEL_DIR="$HOME_DIR/Downloads/build"

# Whatever Python the card has: the scripts run under 2 and 3.
PYTHON=$(command -v python || command -v python3)

# The touch controller's kernel module (the display's FocalTech controller).
sudo modprobe "${OVRA_TOUCH_MODULE:-edt-ft5x06}" 2>/dev/null

"$PYTHON" "$HOME_DIR/Downloads/makeExecutable.py"

# The key watcher writes dispOn.pid into its working folder; one still running is ended
# first. After a reboot the number may belong to another process: that one is left alone.
cd "$HOME_DIR/DispOn" || exit 1
OLD_PID=$(cat dispOn.pid 2>/dev/null)
if [ -n "$OLD_PID" ] && grep -q dispOn.py "/proc/$OLD_PID/cmdline" 2>/dev/null; then
    kill "$OLD_PID"
fi
"$PYTHON" "$HOME_DIR/DispOn/dispOn.py" >/dev/null 2>&1 &

# Full-screen on the display without a window system; logs go to ../logs from the panel's folder.
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-eglfs}
export QT_QPA_EGLFS_HIDECURSOR=1
cd "$PANEL_DIR" || exit 1
exec ./ovra-panel
