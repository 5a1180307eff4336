# Stand-in for the board's GPIO module in tests of the display-key script: the test presses
# the key through stdin ("press", "release") and reads what the script did on stdout.
from __future__ import print_function

import sys
import threading

BOARD, IN, OUT, HIGH, LOW, PUD_UP, FALLING = "BOARD", "in", "out", 1, 0, "up", "falling"
_levels = {}


def _say(*words):
    print(*words)
    sys.stdout.flush()


def setmode(mode):
    _say("mode", mode)


def setup(pin, direction, initial=HIGH, pull_up_down=None):
    _levels[pin] = initial if direction == OUT else HIGH
    _say("setup", pin, direction, initial if direction == OUT else pull_up_down)


def output(pin, level):
    _levels[pin] = level
    _say("output", pin, level)


def input(pin):
    return _levels.get(pin, LOW)


def _drive(pin, callback):
    for line in iter(sys.stdin.readline, ""):
        _levels[pin] = LOW if line.strip() == "press" else HIGH
        if line.strip() == "press":
            callback(pin)
            _say("handled")


def add_event_detect(pin, edge, callback=None, bouncetime=None):
    _say("watch", pin, edge, bouncetime)
    worker = threading.Thread(target=_drive, args=(pin, callback))
    worker.daemon = True
    worker.start()


def cleanup():
    _say("cleanup")
