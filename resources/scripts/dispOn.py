#!/usr/bin/env python
# -*- coding: utf-8 -*-
# Display key watcher: the display's capacitive key (open-drain, board pin 15) switches the
# panel's touch input and the display lines (pins 32 and 13) off and on again. Each press
# held for the hold time is told to the panel's local key server: "aus" or "an".
# Runs under Python 2 and 3.
#
# Usage: dispOn.py [port [hold_ms]]   (port 6666 and 1000 ms on the furnace)
from __future__ import print_function

import os
import socket
import sys
import time

import RPi.GPIO as GPIO

KEY_PIN = 15
DISPLAY_PINS = (32, 13)
HOST = "127.0.0.1"
DEBOUNCE_MS = 1500


def argument(index, default):
    try:
        return int(sys.argv[index])
    except (IndexError, ValueError):
        return default


PORT = argument(1, 6666)
HOLD_SECONDS = argument(2, 1000) / 1000.0


def set_display(level):
    for pin in DISPLAY_PINS:
        GPIO.output(pin, level)


def on_key(channel):
    try:
        sock = socket.socket(socket.AF_INET, socket.SOCK_STREAM)
    except socket.error:
        print("socket not created")
        return
    try:
        sock.connect((HOST, PORT))
        time.sleep(HOLD_SECONDS)
        # A touch shorter than the hold time is no key press.
        if GPIO.input(KEY_PIN) == GPIO.LOW:
            if GPIO.input(13) == GPIO.LOW or GPIO.input(32) == GPIO.LOW:
                sock.sendall(b"an")
                set_display(GPIO.HIGH)
            else:
                sock.sendall(b"aus")
                set_display(GPIO.LOW)
    except socket.error:
        print("failure while sending interrupt detectin to gui")
    sys.stdout.flush()
    # The socket is left to the garbage collector; the panel's answer is not read.


def main():
    with open("dispOn.pid", "w") as pid_file:
        pid_file.write(str(os.getpid()))
    GPIO.setmode(GPIO.BOARD)
    for pin in DISPLAY_PINS:
        GPIO.setup(pin, GPIO.OUT, initial=GPIO.HIGH)
    GPIO.setup(KEY_PIN, GPIO.IN, pull_up_down=GPIO.PUD_UP)
    GPIO.add_event_detect(KEY_PIN, GPIO.FALLING, callback=on_key, bouncetime=DEBOUNCE_MS)
    try:
        while True:
            time.sleep(0.01)
    finally:
        GPIO.cleanup()


if __name__ == "__main__":
    main()
