#!/usr/bin/env bash
# The board package, checked from outside.
#   board_package.sh files <build>   packs <build> and checks the unpacked file list
#   board_package.sh arm64 <build-arm64> <hx3sim>
#                                    the board's binary under qemu: --version, then one start
#                                    against the simulator, answering a frame
# Exit 77 (skipped) when the arm64 build or qemu is missing, saying why.
set -uo pipefail
mode=$1 build=$2
tmp=$(mktemp -d)
sim_pid=
panel_pid=
cleanup() {
  [ -n "$panel_pid" ] && kill "$panel_pid" 2>/dev/null
  [ -n "$sim_pid" ] && kill "$sim_pid" 2>/dev/null
  wait 2>/dev/null
  rm -rf "$tmp"
}
trap cleanup EXIT
fail() { echo "FAIL: $*"; exit 1; }

if [ "$mode" = files ]; then
  (cd "$tmp" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$tmp/out" >/dev/null) || fail "cpack"
  deb=$(ls "$tmp"/out/ovra-panel_*.deb) || fail "no package"
  dpkg-deb -x "$deb" "$tmp/root" || fail "dpkg -x"
  expected=(
    home/pi/Downloads/build/ovra-panel
    home/pi/autostartUserinterface.sh
    home/pi/Downloads/makeExecutable.py
    home/pi/DispOn/dispOn.py
    lib/systemd/system/ovra-panel.service
    usr/bin/ovra-lab
    lib/systemd/system/ovra-lab.service
  )
  for f in "${expected[@]}"; do [ -f "$tmp/root/$f" ] || fail "missing /$f"; done
  for f in ovra-panel autostartUserinterface.sh ovra-lab; do
    [ -x "$(find "$tmp/root" -type f -name "$f")" ] || fail "$f not executable"
  done
  qm=$(find "$tmp/root/home/pi/Downloads/translations" -name 'translation_*.qm' | wc -l)
  [ "$qm" -eq 12 ] || fail "$qm translations, expected 12"
  # Nothing outside the furnace user's home, the units and the lab view with its notes.
  stray=$(cd "$tmp/root" && find . -type f |
    grep -vE '^\./(home/pi/|lib/systemd/system/ovra-(panel|lab)\.service$|usr/bin/ovra-lab$|usr/share/doc/ovra-panel/(labview\.md|lablink\.md|lablink-bridge\.conf)$)' || true)
  [ -z "$stray" ] || fail "files outside the layout: $stray"
  unit=$tmp/root/lib/systemd/system/ovra-panel.service
  grep -qx 'Restart=always' "$unit" || fail "unit does not restart"
  # The lab view's unit: its own user, nothing writable but its data folder.
  lab_unit=$tmp/root/lib/systemd/system/ovra-lab.service
  for line in User=ovra-lab ProtectSystem=strict ReadWritePaths=/var/lib/ovra-lab NoNewPrivileges=yes PrivateTmp=yes; do
    grep -qx "$line" "$lab_unit" || fail "ovra-lab.service lacks $line"
  done
  # Every library the panel links against, and the SQLite plug-in it loads, must come with
  # a package the board is told to install.
  depends=$(dpkg-deb -f "$deb" Depends | sed 's/ *([^)]*)//g; s/, */\n/g')
  triplet=$(gcc -print-multiarch)
  for lib in $(objdump -p "$tmp/root/home/pi/Downloads/build/ovra-panel" "$tmp/root/usr/bin/ovra-lab" |
               awk '/NEEDED/ {print $2}' | sort -u); do
    pkg=$(dpkg -S "*/$triplet/$lib" 2>/dev/null | head -n 1 | cut -d: -f1)
    # The sanitizer pass packages an instrumented build; its runtimes never go to the board.
    case $pkg in "" | libc6 | libgcc-s1 | libasan* | libubsan* | liblsan* | libtsan*) continue ;; esac
    grep -qxF "$pkg" <<<"$depends" || fail "Depends lacks $pkg (for $lib)"
  done
  grep -qxF libqt5sql5-sqlite <<<"$depends" || fail "Depends lacks the SQLite driver"
  dpkg-deb -e "$deb" "$tmp/control" && [ -x "$tmp/control/postinst" ] || fail "no postinst"
  # Installed, never enabled by the package: the lab decides where its view runs.
  grep -q 'enable ovra-lab' "$tmp/control/postinst" && fail "postinst enables ovra-lab"
  echo "package $(basename "$deb"): ${#expected[@]} files and $qm translations in place"
  exit 0
fi

hx3sim=$3
panel=$build/ovra-panel
if [ ! -x "$panel" ]; then
  echo "SKIP: no arm64 build at $build (scripts/package-board arm64 makes one)"; exit 77
fi
if ! command -v qemu-aarch64 >/dev/null; then
  echo "SKIP: qemu-aarch64 missing (apt-get install qemu-user)"; exit 77
fi
run() { QT_QPA_PLATFORM=offscreen qemu-aarch64 -L /usr/aarch64-linux-gnu "$panel" "$@"; }
version=$(run --version) || fail "--version under qemu"
echo "arm64 --version: $version"

"$hx3sim" --verbose --interval 200 > "$tmp/sim.log" 2>&1 < <(sleep 120) &
sim_pid=$!
for _ in $(seq 50); do grep -q '^slave: ' "$tmp/sim.log" && break; sleep 0.1; done
slave=$(sed -n 's/^slave: //p' "$tmp/sim.log")
[ -n "$slave" ] || fail "simulator did not start"
mkdir -p "$tmp/home/Downloads/build"
(cd "$tmp/home/Downloads/build" && exec env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$tmp" \
  qemu-aarch64 -L /usr/aarch64-linux-gnu "$panel" --port "$slave" --home "$tmp/home" --key-port 0 \
  --selftest-delay-ms 600000) > "$tmp/panel.log" 2>&1 &
panel_pid=$!
for _ in $(seq 600); do
  grep -q '^rx: ' "$tmp/sim.log" && { echo "arm64 panel answered: $(grep -m1 '^rx: ' "$tmp/sim.log")"; exit 0; }
  kill -0 "$panel_pid" 2>/dev/null || { cat "$tmp/panel.log"; fail "panel died"; }
  sleep 0.1
done
fail "no answer from the arm64 panel within 60 s"
