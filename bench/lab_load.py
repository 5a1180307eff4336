#!/usr/bin/python3
"""Load on the lab view: FURNACES furnaces each publish a state a second for SECONDS seconds.

    bench/lab_load.py build/lab/ovra-lab [--furnaces 50] [--seconds 60] [--write-doc]

Measures, on loopback with a real broker: the time from a state's publish to its event leaving
the event stream (the reader's arrival; p50/p99/max), GET /api/furnaces under that load, and
the service's peak resident memory (VmHWM). Prints one line per figure; --write-doc also puts
them, against their targets, into the lab view's section of docs/performance.md (which
scripts/perfreport keeps when it regenerates the rest).
"""
import argparse
import http.client
import json
import os
import random
import shutil
import signal
import socket
import struct
import subprocess
import tempfile
import threading
import time

parser = argparse.ArgumentParser()
parser.add_argument("lab")
parser.add_argument("--furnaces", type=int, default=50)
parser.add_argument("--seconds", type=int, default=60)
parser.add_argument("--write-doc", action="store_true")
args = parser.parse_args()
tmp = tempfile.mkdtemp(prefix="lab-load-")


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def mqtt_string(text):
    data = text.encode()
    return struct.pack("!H", len(data)) + data


def mqtt_packet(kind, body):
    length, encoded = len(body), b""
    while True:
        byte, length = length % 128, length // 128
        encoded += bytes([byte | (0x80 if length else 0)])
        if not length:
            return bytes([kind]) + encoded + body


class Publisher:
    """A minimal MQTT 3.1.1 client, QoS 0: what a panel's state publishing costs the broker."""

    def __init__(self, port, client_id):
        self.sock = socket.create_connection(("127.0.0.1", port))
        self.sock.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        body = mqtt_string("MQTT") + bytes([4, 2]) + struct.pack("!H", 60) + mqtt_string(client_id)
        self.sock.sendall(mqtt_packet(0x10, body))
        assert self.sock.recv(4)[:2] == b"\x20\x02", "CONNACK"

    def publish(self, topic, payload):
        self.sock.sendall(mqtt_packet(0x31, mqtt_string(topic) + payload))  # retained, as the panel's


broker_port, lab_port = free_port(), free_port()
conf = os.path.join(tmp, "mosquitto.conf")
with open(conf, "w") as f:
    f.write(f"listener {broker_port} 127.0.0.1\nallow_anonymous true\npersistence false\n")
    if os.geteuid() == 0:
        f.write("user root\n")
broker = subprocess.Popen(["mosquitto", "-c", conf], stderr=subprocess.DEVNULL)
data = os.path.join(tmp, "data")
token = subprocess.run([args.lab, "--data", data, "--add-token", "bench"], capture_output=True, text=True,
                       check=True).stdout.strip()
time.sleep(0.3)
lab = subprocess.Popen([args.lab, "--data", data, "--broker", f"127.0.0.1:{broker_port}",
                        "--listen", f"127.0.0.1:{lab_port}"], stderr=subprocess.DEVNULL)
time.sleep(1.0)

latencies = []
stop = threading.Event()


def read_stream():
    conn = http.client.HTTPConnection("127.0.0.1", lab_port, timeout=30)
    conn.request("GET", "/api/events", headers={"Authorization": "Bearer " + token})
    response = conn.getresponse()
    for line in response:
        if stop.is_set():
            break
        if line.startswith(b"data: ") and b'"material":"t=' in line:
            arrived = time.monotonic_ns()
            state = json.loads(line[6:])["state"]
            latencies.append((arrived - int(state["material"][2:])) / 1e6)


threading.Thread(target=read_stream, daemon=True).start()
time.sleep(0.5)

publishers = [Publisher(broker_port, f"bench-{n}") for n in range(args.furnaces)]


def publish_all():
    # Each furnace on its own phase within the second, as independent panels would be.
    phases = sorted((random.random(), n) for n in range(args.furnaces))
    start = time.monotonic()
    for second in range(args.seconds):
        for phase, n in phases:
            delay = start + second + phase - time.monotonic()
            if delay > 0:
                time.sleep(delay)
            state = {"time": "2026-11-25T14:03:00", "temperature": 800 + second % 400, "unit": "c",
                     "page": "process", "door": "closed", "material": f"t={time.monotonic_ns()}",
                     "language": "de", "device": {"type": "T", "serial": f"S{n}", "hardware": "1",
                                                  "software": "2", "hours": "1"},
                     "failures": [], "firing": {"program": "Zirkon", "stage": 2, "phase": "heat",
                                                "minutes_left": 42, "end": "16:00",
                                                "started": "2026-11-25T12:00:00", "job": "A-1"}}
            publishers[n].publish(f"ovra/F{n:02d}/state", json.dumps(state, separators=(",", ":")).encode())


publisher = threading.Thread(target=publish_all)
publisher.start()
list_times = []
while publisher.is_alive():
    conn = http.client.HTTPConnection("127.0.0.1", lab_port, timeout=10)
    started = time.monotonic()
    conn.request("GET", "/api/furnaces", headers={"Authorization": "Bearer " + token})
    body = conn.getresponse().read()
    list_times.append((time.monotonic() - started) * 1000)
    conn.close()
    time.sleep(0.2)
publisher.join()
time.sleep(1.0)
stop.set()
with open(f"/proc/{lab.pid}/status") as f:
    peak = next(int(l.split()[1]) for l in f if l.startswith("VmHWM")) / 1024
lab.send_signal(signal.SIGTERM)
lab.wait(timeout=10)
broker.terminate()
broker.wait()
shutil.rmtree(tmp, ignore_errors=True)


def pct(values, p):
    values = sorted(values)
    return values[min(len(values) - 1, int(len(values) * p))]


sent = args.furnaces * args.seconds
print(f"furnaces {args.furnaces}, seconds {args.seconds}, states sent {sent}, events received {len(latencies)}")
print(f"publish to stream: p50 {pct(latencies, 0.5):.1f} ms, p99 {pct(latencies, 0.99):.1f} ms, "
      f"max {max(latencies):.1f} ms")
print(f"/api/furnaces ({len(body)} bytes): p50 {pct(list_times, 0.5):.1f} ms, p99 {pct(list_times, 0.99):.1f} ms, "
      f"max {max(list_times):.1f} ms over {len(list_times)} requests")
print(f"peak resident memory: {peak:.1f} MB")

if args.write_doc:
    def met(value, target):
        return f"{target / value:.3g}x {'met' if value <= target else 'MISSED'}"
    p99, list_p99 = pct(latencies, 0.99), pct(list_times, 0.99)
    load = os.getloadavg()[0]
    section = f"""## The lab view (ovra-lab)

Written by `bench/lab_load.py --write-doc` (not in CTest): {args.furnaces} furnaces each publish a
state a second for {args.seconds} s to a real broker on loopback, retained, QoS 0, each on its own
phase in the second; one event stream open; GET /api/furnaces five times a second. Load average
{load:.2f} when it ended. {len(latencies)} of {sent} states reached the stream.

| Figure | Measured | Target | Ratio |
|---|---|---|---|
| publish to the event leaving the stream, p99 | {p99:.1f} ms | 250 ms | {met(p99, 250)} |
| publish to the event leaving the stream, p50 / max | {pct(latencies, 0.5):.1f} / {max(latencies):.1f} ms | | |
| GET /api/furnaces ({len(body)} bytes), p99 | {list_p99:.1f} ms | 20 ms | {met(list_p99, 20)} |
| GET /api/furnaces, max | {max(list_times):.1f} ms | | |
| peak resident memory (VmHWM) | {peak:.1f} MB | 60 MB | {met(peak, 60)} |
"""
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "docs", "performance.md")
    with open(path) as f:
        text = f.read()
    marker = "\n## The lab view (ovra-lab)\n"
    text = (text.split(marker)[0].rstrip("\n") + "\n\n" + section.rstrip("\n") + "\n")
    with open(path, "w") as f:
        f.write(text)
