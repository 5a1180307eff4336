# Stand-in for the board's GPIO module, for tests of the display-key script. The test drives
# the key through stdin ("press", "release") and reads what the script did on stdout.
from __future__ import print_function

import sys
import threading

BOARD = "BOARD"
BCM = "BCM"
IN = "in"
OUT = "out"
HIGH = 1
LOW = 0
PUD_UP = "up"
FALLING = "falling"

_levels = {}
_mode = [None]


def _say(*words):
    print(*words)
    sys.stdout.flush()


def setmode(mode):
    _mode[0] = mode
    _say("mode", mode)


def setup(pin, direction, initial=None, pull_up_down=None):
    if direction == OUT:
        _levels[pin] = HIGH if initial is None else initial
        _say("setup", pin, "out", _levels[pin])
    else:
        _levels[pin] = HIGH if pull_up_down == PUD_UP else LOW
        _say("setup", pin, "in", pull_up_down)


def output(pin, level):
    _levels[pin] = level
    _say("output", pin, level)


def input(pin):
    return _levels.get(pin, LOW)


def _drive(pin, edge, callback):
    for line in iter(sys.stdin.readline, ""):
        word = line.strip()
        if word == "press":
            _levels[pin] = LOW
            if edge == FALLING:
                callback(pin)
            _say("handled")
        elif word == "release":
            _levels[pin] = HIGH
            _say("released")


def add_event_detect(pin, edge, callback=None, bouncetime=None):
    _say("watch", pin, edge, bouncetime)
    worker = threading.Thread(target=_drive, args=(pin, edge, callback))
    worker.daemon = True
    worker.start()


def cleanup():
    _say("cleanup")
