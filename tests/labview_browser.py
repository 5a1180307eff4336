#!/usr/bin/python3
"""The lab view's page in a real browser, against the real service and a real broker.

labview_browser.py OVRA_LAB

A browser without a session sees the pairing page; after /pair it sees the furnaces. A state
published on the broker changes the furnace's tile (markup in a program stays text), the unit
switch turns the temperature into °F and is remembered, the page follows the service through
a restart, a firing's end shows at once, and a published record opens from the history with
its chart drawn.
Exits 77 (skipped) only when chromium or its driver is missing.
"""
import json
import os
import pwd
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

CHROMIUM = shutil.which("chromium")
DRIVER = "/usr/bin/chromedriver"
if not CHROMIUM or not os.access(DRIVER, os.X_OK):
    print("skipped: chromium or chromedriver missing")
    sys.exit(77)

from selenium import webdriver  # noqa: E402 (only once we know a browser is there)
from selenium.webdriver.chrome.service import Service  # noqa: E402
from selenium.webdriver.common.by import By  # noqa: E402
from selenium.webdriver.support.ui import WebDriverWait  # noqa: E402

LAB = sys.argv[1]
WAIT = 20  # seconds for anything the page should show; a loaded CI machine is slow
RECORD_ID = "0f6c2a9e-5b1d-4e7a-9c3f-2d8b7a6e1c40"
MARKUP = '<img src=x onerror="document.title=1">Zirkon'


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def wait_until(what, check, timeout=WAIT):
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        try:
            if check():
                return
        except OSError:
            pass
        time.sleep(0.05)
    raise AssertionError(f"timed out waiting for {what}")


def port_open(port):
    with socket.socket() as s:
        return s.connect_ex(("127.0.0.1", port)) == 0


def state(time_, temperature, firing=True):
    return {"time": time_, "temperature": temperature, "unit": "c", "page": "process", "door": "closed",
            "material": "Zirkon", "language": "de",
            "device": {"type": "T", "serial": "1", "hardware": "1", "software": "1", "hours": "1"},
            "failures": [],
            "firing": {"program": MARKUP, "stage": 1, "phase": "heat", "minutes_left": 42, "end": "15:00",
                       "started": "2026-11-25T14:00:00", "job": "A-1"} if firing else None}


class Rig:
    def __init__(self, tmp):
        self.tmp = tmp
        self.procs = []
        self.broker_port = free_port()
        self.http_port = free_port()
        self.data = os.path.join(tmp, "data")
        os.mkdir(self.data)
        conf = os.path.join(tmp, "mosquitto.conf")
        with open(conf, "w") as f:
            f.write(f"listener {self.broker_port} 127.0.0.1\nallow_anonymous true\npersistence false\n"
                    f"user {pwd.getpwuid(os.getuid()).pw_name}\n")
        self.spawn("mosquitto", ["mosquitto", "-c", conf])
        wait_until("the broker", lambda: port_open(self.broker_port))
        self.lab = None
        self.start_lab()

    def spawn(self, name, argv):
        log = open(os.path.join(self.tmp, name + ".log"), "ab")
        p = subprocess.Popen(argv, stdout=log, stderr=subprocess.STDOUT)
        self.procs.append(p)
        return p

    def start_lab(self):
        self.lab = self.spawn("ovra-lab", [LAB, "--broker", f"127.0.0.1:{self.broker_port}",
                                           "--listen", f"127.0.0.1:{self.http_port}", "--data", self.data])
        wait_until("ovra-lab listening", lambda: port_open(self.http_port))

    def stop_lab(self):
        self.lab.send_signal(signal.SIGTERM)
        self.lab.wait(timeout=10)
        wait_until("ovra-lab gone", lambda: not port_open(self.http_port))

    def token(self):
        out = subprocess.run([LAB, "--data", self.data, "--add-token", "browser-test"],
                             check=True, capture_output=True, text=True).stdout
        return out.strip()

    def publish(self, topic, payload, retain=False):
        argv = ["mosquitto_pub", "-h", "127.0.0.1", "-p", str(self.broker_port), "-q", "1", "-t", topic,
                "-m", payload if isinstance(payload, str) else json.dumps(payload)]
        subprocess.run(argv + (["-r"] if retain else []), check=True, timeout=10)

    def url(self, path):
        return f"http://127.0.0.1:{self.http_port}{path}"

    def close(self):
        for p in reversed(self.procs):
            if p.poll() is None:
                p.terminate()
                try:
                    p.wait(timeout=5)
                except subprocess.TimeoutExpired:
                    p.kill()

    def dump_logs(self):
        for name in ("ovra-lab", "mosquitto"):
            path = os.path.join(self.tmp, name + ".log")
            if os.path.exists(path):
                print(f"--- {name}.log (tail)")
                with open(path, errors="replace") as f:
                    print("".join(f.readlines()[-40:]))


def browser():
    opts = webdriver.ChromeOptions()
    opts.binary_location = CHROMIUM
    for arg in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--lang=en-US", "--window-size=1280,1000"):
        opts.add_argument(arg)
    return webdriver.Chrome(service=Service(DRIVER), options=opts)


def tile_temperature(driver):
    cells = driver.find_elements(By.CSS_SELECTOR, '[data-furnace="F1"] .temp-value')
    return cells[0].text if cells else None


def expect_temperature(driver, text):
    WebDriverWait(driver, WAIT).until(lambda d: tile_temperature(d) == text,
                                      f"F1's tile to show {text} (shows {tile_temperature(driver)!r})")


def run(rig, driver):
    # Unpaired: the root is the pairing page, with nothing of the furnaces in it.
    rig.publish("ovra/F1/online", "true", retain=True)
    rig.publish("ovra/F1/state", state("2026-11-25T14:01:00", 100), retain=True)
    driver.get(rig.url("/"))
    body = driver.find_element(By.TAG_NAME, "body").text
    assert "/pair?token=" in body and "F1" not in body, body

    driver.get(rig.url(f"/pair?token={rig.token()}"))
    expect_temperature(driver, "100")
    assert driver.current_url.rstrip("/") == rig.url(""), driver.current_url

    # Live: a new state changes the tile; the program's markup is shown, not obeyed.
    rig.publish("ovra/F1/state", state("2026-11-25T14:02:00", 812), retain=True)
    expect_temperature(driver, "812")
    tile = driver.find_element(By.CSS_SELECTOR, '[data-furnace="F1"]')
    assert tile.find_element(By.CSS_SELECTOR, ".program").text == MARKUP
    assert not tile.find_elements(By.TAG_NAME, "img") and driver.title != "1"

    # °F from °C, and still °F after a reload.
    driver.find_element(By.CSS_SELECTOR, '[data-unit="f"]').click()
    expect_temperature(driver, "1494")
    driver.refresh()
    expect_temperature(driver, "1494")
    driver.find_element(By.CSS_SELECTOR, '[data-unit="c"]').click()
    expect_temperature(driver, "812")

    # The service restarts: the page finds the stream again without being reloaded.
    rig.stop_lab()
    rig.start_lab()
    WebDriverWait(driver, WAIT).until(
        lambda d: d.find_element(By.ID, "conn").get_attribute("data-state") == "connected", "the stream back")
    rig.publish("ovra/F1/state", state("2026-11-25T14:03:00", 905), retain=True)
    expect_temperature(driver, "905")

    # A firing ends: the open page says so at once, the failed result marked as bad.
    rig.publish("ovra/F1/event", {"event": "firing_ended", "time": "2026-11-25T15:00:00", "program": MARKUP,
                                  "job": "A-1", "result": "failed"})
    WebDriverWait(driver, WAIT).until(lambda d: any(
        MARKUP in b.text and "Failed" in b.text for b in d.find_elements(By.CSS_SELECTOR, "#banners .banner.bad")),
        "a banner for the failed firing")

    # A finished firing: its record appears in the history and opens with its chart drawn.
    record = {"id": RECORD_ID, "furnace": "F1", "program": MARKUP, "material": "Zirkon", "job": "A-1",
              "heatfile": "x", "device": state("", 0)["device"], "predry": 0,
              "start": "2026-11-25T14:00:00", "end": "2026-11-25T15:00:00", "result": "success",
              "failures": [{"time": "2026-11-25T14:30:00", "code": "E12"}],
              "samples": [[s, 20 + s // 4] for s in range(0, 3601, 60)]}
    rig.publish("ovra/F1/record", record)
    row = f'#firings tr[data-id="{RECORD_ID}"]'
    WebDriverWait(driver, WAIT).until(lambda d: d.find_elements(By.CSS_SELECTOR, row), "the record in the history")
    driver.find_element(By.CSS_SELECTOR, row).click()
    WebDriverWait(driver, WAIT).until(lambda d: d.execute_script("""
        let inked = 0;
        for (const c of document.querySelectorAll('#record-chart canvas')) {
          if (!c.width || !c.height) continue;
          const px = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
          for (let i = 3; i < px.length; i += 4) if (px[i]) inked++;
        }
        return inked > 2000;"""), "the record's chart drawn")
    assert driver.find_element(By.ID, "record-title").text == MARKUP
    assert driver.find_element(By.ID, "record-pdf").get_attribute("href").endswith(f"/api/firings/{RECORD_ID}.pdf")


def main():
    tmp = tempfile.mkdtemp(prefix="labview_browser.")
    rig = None
    driver = None
    ok = False
    try:
        rig = Rig(tmp)
        driver = browser()
        run(rig, driver)
        ok = True
        print("labview_browser: PASS")
    finally:
        if driver:
            if not ok:
                for entry in driver.get_log("browser"):
                    print("browser:", entry)
            driver.quit()
        if rig:
            if not ok:
                rig.dump_logs()
            rig.close()
        shutil.rmtree(tmp, ignore_errors=True)


if __name__ == "__main__":
    main()
