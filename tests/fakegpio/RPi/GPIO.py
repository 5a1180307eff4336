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
    return _levels[pin]


def add_event_detect(pin, edge, callback=None, bouncetime=None):
    def drive():
        for line in iter(sys.stdin.readline, ""):
            _levels[pin] = LOW if line.strip() == "press" else HIGH
            if _levels[pin] == LOW:
                callback(pin)
                _say("handled")
    _say("watch", pin, edge, bouncetime)
    threading.Thread(target=drive).start()


def cleanup():
    pass
