#!/usr/bin/python3
"""The lab view's service from outside: a real broker on a loopback port, the real binary.

    lab_contract.py OVRA_LAB GROUP [--exit-limit SECONDS]

GROUP is one of: tokens, http, broker. Prints "lab <group>: PASS" at the end; any failed check
raises with what was expected.
"""
import http.client
import http.server
import json
import os
import queue
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time

LAB = sys.argv[1]
GROUP = sys.argv[2]
EXIT_LIMIT = float(sys.argv[sys.argv.index("--exit-limit") + 1]) if "--exit-limit" in sys.argv else 1.0
TMP = tempfile.mkdtemp(prefix="lab-contract-")
DATA = os.path.join(TMP, "data")
procs = []


def check(condition, what):
    if not condition:
        raise AssertionError(what)


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def wait_for(predicate, what, seconds=10.0):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = predicate()
        if value:
            return value
        time.sleep(0.02)
    raise AssertionError("timed out waiting for " + what)


class Broker:
    def __init__(self):
        self.port = free_port()
        conf = os.path.join(TMP, "mosquitto.conf")
        with open(conf, "w") as f:
            f.write(f"listener {self.port} 127.0.0.1\nallow_anonymous true\npersistence false\n")
            if os.geteuid() == 0:
                f.write("user root\n")
        self.proc = subprocess.Popen(["mosquitto", "-c", conf], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        procs.append(self.proc)

        def up():
            try:
                socket.create_connection(("127.0.0.1", self.port), 0.2).close()
                return True
            except OSError:
                return False
        wait_for(up, "the broker")

    def publish(self, topic, payload, retain=False, qos=1):
        args = ["mosquitto_pub", "-p", str(self.port), "-t", topic, "-q", str(qos)]
        if retain:
            args.append("-r")
        if isinstance(payload, (dict, list)):
            payload = json.dumps(payload)
        if isinstance(payload, str):
            payload = payload.encode()
        subprocess.run(args + ["-s"], input=payload, check=True, timeout=30)


class Lab:
    """The service, its log lines collected as they come."""

    def __init__(self, broker, *extra):
        self.lines = []
        self.proc = subprocess.Popen([LAB, "--data", DATA, "--broker", f"127.0.0.1:{broker.port}",
                                      "--listen", "127.0.0.1:0", *extra],
                                     stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        procs.append(self.proc)
        threading.Thread(target=self._read, daemon=True).start()
        line = wait_for(lambda: next((l for l in self.lines if "listening on" in l), None), "listening")
        self.port = int(line.rsplit(":", 1)[1])
        wait_for(lambda: any("connected to the broker" in l for l in self.lines), "the broker connection")

    def _read(self):
        for line in self.proc.stderr:
            self.lines.append(line.rstrip("\n"))

    def log(self):
        return "\n".join(self.lines)

    def request(self, path, method="GET", token=None, headers=None):
        conn = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        h = dict(headers or {})
        if token:
            h["Authorization"] = "Bearer " + token
        conn.request(method, path, headers=h)
        r = conn.getresponse()
        body = r.read()
        conn.close()
        return r.status, r, body

    def json(self, path, token):
        status, _, body = self.request(path, token=token)
        check(status == 200, f"{path}: 200, got {status}")
        return json.loads(body)

    def stop(self):
        started = time.monotonic()
        self.proc.send_signal(signal.SIGTERM)
        code = self.proc.wait(timeout=30)
        took = time.monotonic() - started
        check(code == 0, f"exit code 0 on SIGTERM, got {code}:\n{self.log()}")
        check(took <= EXIT_LIMIT, f"exit within {EXIT_LIMIT} s of SIGTERM, took {took:.2f} s")


def add_token(name):
    r = subprocess.run([LAB, "--data", DATA, "--add-token", name], capture_output=True, text=True, timeout=30)
    check(r.returncode == 0, f"--add-token exits 0: {r.stderr}")
    lines = r.stdout.splitlines()
    check(len(lines) == 1 and re.fullmatch(r"[A-Za-z0-9_-]{32,}", lines[0]), f"one token alone on stdout: {r.stdout!r}")
    return lines[0]


def tokens():
    first = add_token("tablet")
    second = add_token("office")
    check(first != second, "tokens differ")
    taken = subprocess.run([LAB, "--data", DATA, "--add-token", "tablet"], capture_output=True, text=True)
    check(taken.returncode != 0 and taken.stdout == "", "a taken name gives no token")
    listed = subprocess.run([LAB, "--data", DATA, "--list-tokens"], capture_output=True, text=True).stdout
    check(re.search(r"^tablet\t\d{4}-\d\d-\d\dT", listed, re.M) and "office" in listed, f"names and times: {listed}")
    check(first not in listed and second not in listed, "the list never shows a token")
    with open(os.path.join(DATA, "lab.sqlite"), "rb") as f:
        check(first.encode() not in f.read(), "only the token's hash is stored")

    broker = Broker()
    lab = Lab(broker)
    check(lab.request("/api/furnaces", token=first)[0] == 200, "a listed token opens a session")
    # Revoked and added while the service runs: seen at the next request.
    check(subprocess.run([LAB, "--data", DATA, "--revoke-token", "tablet"]).returncode == 0, "revoke exits 0")
    check(lab.request("/api/furnaces", token=first)[0] == 401, "a revoked token is refused at once")
    check(lab.request("/api/furnaces", token=second)[0] == 200, "the other token still works")
    third = add_token("wall")
    check(lab.request("/api/furnaces", token=third)[0] == 200, "a new token works without a restart")
    check(subprocess.run([LAB, "--data", DATA, "--revoke-token", "nobody"], stderr=subprocess.DEVNULL).returncode == 1,
          "revoking an unknown name fails")
    lab.stop()


def http_contract():
    token = add_token("browser")
    broker = Broker()
    broker.publish("ovra/F7/state", {"temperature": 650, "door": "closed", "firing": None}, retain=True)
    broker.publish("ovra/F7/online", "true", retain=True)
    lab = Lab(broker)
    wait_for(lambda: lab.json("/api/furnaces", token), "the furnace")

    # Without a session: no data, the pairing page at / only.
    for path in ["/api/furnaces", "/api/firings", "/api/events", "/app.js", "/index.html"]:
        status, r, body = lab.request(path)
        check(status == 401 and json.loads(body) == {"error": "unauthorized"}, f"{path} without a session: {status}")
    status, r, body = lab.request("/")
    check(status == 401 and r.getheader("Content-Type").startswith("text/html"), f"/ without a session: {status}")
    check(b"F7" not in body and b"<script" not in body.lower(), "the pairing page holds no data and no script")

    # Pairing: a good token sets the cookie and goes to the page; the cookie is a session.
    status, r, _ = lab.request("/pair?token=" + token)
    check(status == 303 and r.getheader("Location") == "/", f"/pair: 303 to /, got {status}")
    cookie = r.getheader("Set-Cookie")
    attributes = [a.strip() for a in cookie.split(";")]
    check(attributes[0] == "ovra_session=" + token, f"the session cookie: {cookie}")
    for a in ["HttpOnly", "SameSite=Strict", "Path=/"]:
        check(a in attributes, f"cookie attribute {a}: {cookie}")
    status, r, body = lab.request("/", headers={"Cookie": "theme=dark; " + attributes[0]})
    check(status == 200 and b"<html" in body.lower(), "the cookie opens the page")
    check(lab.request("/pair?token=" + token + "x")[0] == 401, "a bad pairing token: 401")

    # Only GET and HEAD.
    for method in ["POST", "PUT", "DELETE", "PATCH", "OPTIONS"]:
        check(lab.request("/api/furnaces", method=method, token=token)[0] == 405, f"{method}: 405")
    status, r, body = lab.request("/api/furnaces", method="HEAD", token=token)
    check(status == 200 and body == b"", "HEAD: 200 without a body")

    # The page's files come from the binary, never the file system.
    status, r, body = lab.request("/dygraph.min.js", token=token)
    check(status == 200 and "javascript" in r.getheader("Content-Type"), "the chart library")
    for path in ["/../../../../etc/passwd", "/%2e%2e/%2e%2e/%2e%2e/etc/passwd", "/..%2f..%2f..%2fetc%2fpasswd",
                 "/etc/passwd", "/:/web/index.html", "/%3a/web/index.html", "//etc/passwd", "/web/../index.html"]:
        status, r, body = lab.request(path, token=token)
        check(status in (400, 404) and b"root:" not in body and b"<html" not in body.lower(), f"{path}: {status}")

    # Guessing: ten wrong tokens within a minute, then 429 even for a good one.
    for _ in range(8):  # the bad pairing token above was the first
        check(lab.request("/api/furnaces", token="guess")[0] == 401, "a wrong token: 401")
    check(lab.request("/pair?token=guess")[0] == 401, "a wrong pairing token: 401")
    check(lab.request("/api/furnaces", token=token)[0] == 429, "the eleventh attempt: 429")
    lab.stop()


def record(rid, **fields):
    r = {"id": rid, "furnace": "F1", "program": "Zirkon", "material": "ZrO2", "job": "A-17",
         "heatfile": "", "device": {"type": "T", "serial": "S1", "hardware": "1", "software": "2", "hours": "9"},
         "predry": 0, "start": "2026-11-25T10:00:00", "end": "2026-11-25T12:30:00", "result": "success",
         "failures": [{"time": "2026-11-25T11:00:00", "code": "E123"}], "samples": [[0, 21], [60, 140], [120, 333]]}
    r.update(fields)
    return r


class Stream:
    """An open /api/events, its lines queued as they arrive."""

    def __init__(self, lab, token):
        self.conn = http.client.HTTPConnection("127.0.0.1", lab.port, timeout=30)
        self.conn.request("GET", "/api/events", headers={"Authorization": "Bearer " + token})
        self.response = self.conn.getresponse()
        check(self.response.status == 200, "the event stream opens")
        check(self.response.getheader("Content-Type").startswith("text/event-stream"), "text/event-stream")
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()
        self.next_event(lambda name, data: name is None, "the stream's greeting")

    def _read(self):
        try:
            for line in self.response:
                self.lines.put(line.decode().rstrip("\n"))
        except (OSError, ValueError, http.client.HTTPException):
            pass
        self.lines.put(None)

    def next_event(self, wanted, what):
        """The first event (name, data) that `wanted` accepts; a comment block counts as (None, None)."""
        name = data = None
        end = time.monotonic() + 10
        while time.monotonic() < end:
            try:
                line = self.lines.get(timeout=max(0.01, end - time.monotonic()))
            except queue.Empty:
                break
            check(line is not None, "the stream stays open")
            if line.startswith("event: "):
                name = line[7:]
            elif line.startswith("data: "):
                data = json.loads(line[6:])
            elif line == "":
                if wanted(name, data):
                    return name, data
                name = data = None
        raise AssertionError("timed out waiting for " + what)


def broker_input():
    token = add_token("lab")
    broker = Broker()
    hook_port = free_port()
    posted = queue.Queue()

    class Hook(http.server.BaseHTTPRequestHandler):
        def do_POST(self):
            posted.put(json.loads(self.rfile.read(int(self.headers["Content-Length"]))))
            self.send_response(204)
            self.end_headers()

        def log_message(self, *args):
            pass
    hook = http.server.HTTPServer(("127.0.0.1", hook_port), Hook)
    threading.Thread(target=hook.serve_forever, daemon=True).start()

    lab = Lab(broker, "--webhook", f"http://127.0.0.1:{hook_port}/hook")
    stream = Stream(lab, token)

    # A published state reaches the open stream; an event also reaches the webhook.
    broker.publish("ovra/F1/online", "true", retain=True)
    broker.publish("ovra/F1/state", {"temperature": 812, "unit": "c", "door": "closed", "failures": [], "firing":
                                     {"program": "Zirkon", "stage": 2, "phase": "heat", "minutes_left": None}})
    _, data = stream.next_event(lambda n, d: n == "furnace" and d["state"] and d["state"].get("temperature") == 812,
                                "the published state on the stream")
    check(data["id"] == "F1" and data["state"]["firing"]["minutes_left"] is None, f"the state as published: {data}")
    broker.publish("ovra/F1/event", {"event": "failure", "time": "2026-11-25T11:00:00", "code": "E123"})
    _, data = stream.next_event(lambda n, d: n == "event", "the event")
    check(data == {"event": "failure", "time": "2026-11-25T11:00:00", "code": "E123", "furnace": "F1"}, f"event {data}")
    check(posted.get(timeout=10) == data, "the webhook gets the event as the stream does")

    # The same record twice, then a resend with other content: stored once, announced once.
    broker.publish("ovra/F1/record", record("0f8e-1"))
    broker.publish("ovra/F1/record", record("0f8e-1"))
    broker.publish("ovra/F1/record", record("0f8e-1", program="Changed"))
    broker.publish("ovra/F1/record", record("0f8e-2", start="2026-11-26T08:00:00", job="B-9", result="failed"))
    stream.next_event(lambda n, d: n == "record" and d["id"] == "0f8e-2", "the second record")
    firings = lab.json("/api/firings", token)
    check([f["id"] for f in firings] == ["0f8e-2", "0f8e-1"], f"each record once, newest first: {firings}")
    check(firings[1]["program"] == "Zirkon", "the first of an id wins")
    check([f["id"] for f in lab.json("/api/firings?job=a-1&to=2026-11-25", token)] == ["0f8e-1"], "filters")
    check(lab.request("/api/firings?from=yesterday", token=token)[0] == 400, "a bad date: 400")

    status, r, body = lab.request("/api/firings/0f8e-1.pdf", token=token)
    check(status == 200 and r.getheader("Content-Type") == "application/pdf" and body.startswith(b"%PDF"), "the PDF")
    status, r, body = lab.request("/api/firings/0f8e-1.csv", token=token)
    check(status == 200 and body.decode().split("\r\n")[1:4] == ["0,21", "60,140", "120,333"], f"the CSV: {body[:80]}")
    check(lab.json("/api/firings/0f8e-1", token)["samples"] == [[0, 21], [60, 140], [120, 333]], "the record as sent")
    check(lab.request("/api/firings/nope.pdf", token=token)[0] == 404, "an unknown record: 404")

    # Bad input of every kind: dropped (or kept as far as valid), logged once per kind.
    for _ in range(2):
        broker.publish("ovra/F2/state", "not json {")
        broker.publish("ovra/F2/state", {"temperature": "hot", "door": 5, "failures": "E1", "firing": 3})
    broker.publish("ovra/F3/record", b"[" * (10 * 1024 * 1024))
    broker.publish("ovra/<img src=x onerror=alert(1)>/state", {"temperature": 1})
    broker.publish("ovra/F4/record", record("../../etc", samples=[]))
    broker.publish("ovra/F4/record", record("no-samples", samples=[], predry="ten"))
    broker.publish("ovra/F1/state", {"temperature": 900})
    stream.next_event(lambda n, d: n == "furnace" and d["id"] == "F1" and d["state"] == {"temperature": 900},
                      "a good state after the bad ones")
    furnaces = lab.json("/api/furnaces", token)
    check([f["id"] for f in furnaces] == ["F1", "F2"], f"no furnace from a bad id: {furnaces}")
    check(furnaces[1]["state"] == {}, f"wrong types are left out: {furnaces[1]}")
    kept = lab.json("/api/firings/no-samples", token)
    check(kept["samples"] == [] and "predry" not in kept and kept["program"] == "Zirkon", "kept as far as valid")
    log = lab.log()
    check("<img" not in log and "%3cimg" in log, "a markup id is logged escaped")
    check(log.count("not a JSON object") == 1 and log.count("state: a field of the wrong type") == 1,
          f"once per kind:\n{log}")
    check("larger than any payload" in log, "the 10 MB message is reported")

    # SIGTERM with a stream open: the stream ends, the service exits 0 in time.
    lab.stop()
    hook.shutdown()


try:
    {"tokens": tokens, "http": http_contract, "broker": broker_input}[GROUP]()
    print(f"lab {GROUP}: PASS")
finally:
    for p in procs:
        if p.poll() is None:
            p.kill()
            p.wait()
    shutil.rmtree(TMP, ignore_errors=True)
