#!/usr/bin/env bash
# The bridge configuration the board documentation hands out, run for real: a record the
# panel publishes on the furnace's own broker while the lab's broker is down reaches a
# subscriber of the lab's broker once it is back, exactly once.
set -euo pipefail
conf=$1
command -v mosquitto >/dev/null || { echo "mosquitto missing"; exit 77; }
dir=$(mktemp -d)
pids=()
cleanup() { for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done; wait 2>/dev/null; rm -rf "$dir"; }
trap cleanup EXIT

free_port() { /usr/bin/python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1",0)); print(s.getsockname()[1])'; }
lab_port=$(free_port)
local_port=$(free_port)
mkdir -p "$dir/lab" "$dir/local"
printf 'listener %s 127.0.0.1\nallow_anonymous true\npersistence true\npersistence_location %s/lab/\nuser root\n' \
  "$lab_port" "$dir" >"$dir/lab.conf"
sed -e "s|^listener .*|listener $local_port 127.0.0.1|" \
    -e "s|^persistence_location .*|persistence_location $dir/local/|" \
    -e "s|^address .*|address 127.0.0.1:$lab_port|" \
    -e "s|^restart_timeout .*|restart_timeout 1 2|" "$conf" >"$dir/local.conf"
echo "user root" >>"$dir/local.conf"

# Waits until a broker answers on its port.
wait_port() {
  for _ in $(seq 100); do
    mosquitto_pub -p "$1" -t probe -m x 2>/dev/null && return 0
    sleep 0.1
  done
  echo "broker on port $1 did not start"; exit 1
}

# The lab's subscriber keeps a persistent session, as the lab view does.
mosquitto -c "$dir/lab.conf" >"$dir/lab.log" 2>&1 & lab=$!
wait_port "$lab_port"
mosquitto_sub -p "$lab_port" -c -i lab-view -q 1 -t 'ovra/+/record' -E
kill "$lab"; wait "$lab" || true

mosquitto -c "$dir/local.conf" >"$dir/local.log" 2>&1 & pids+=($!)
wait_port "$local_port"
mosquitto_pub -p "$local_port" -q 1 -t ovra/F1/record -m '{"id":"r1"}'
mosquitto_pub -p "$local_port" -q 1 -t ovra/F1/state -r -m '{"temperature":20}'

mosquitto -c "$dir/lab.conf" >>"$dir/lab.log" 2>&1 & pids+=($!)
wait_port "$lab_port"
got=$(mosquitto_sub -p "$lab_port" -c -i lab-view -q 1 -t 'ovra/+/record' -W 15 -C 1 -v || true)
[ "$got" = 'ovra/F1/record {"id":"r1"}' ] || { echo "lab got: '$got'"; cat "$dir/local.log"; exit 1; }
# Nothing twice: the session holds no second copy.
again=$(mosquitto_sub -p "$lab_port" -c -i lab-view -q 1 -t 'ovra/+/record' -W 2 -C 1 -v 2>/dev/null || true)
[ -z "$again" ] || { echo "record delivered twice: '$again'"; exit 1; }
# The retained state reaches the lab too, so a view opened later sees the furnace.
state=$(mosquitto_sub -p "$lab_port" -t 'ovra/+/state' -W 5 -C 1 || true)
[ "$state" = '{"temperature":20}' ] || { echo "lab state: '$state'"; exit 1; }
echo "bridge forwards queued records once and the retained state"
