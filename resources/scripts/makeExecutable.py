#!/usr/bin/env python
# -*- coding: utf-8 -*-
# Gives the panel's start-up scripts and the panel program their run bit again, e.g. after
# an update unpacked them from an archive that does not keep it. The home folder is the one
# this script lives in (<home>/Downloads/makeExecutable.py). Runs under Python 2 and 3.
from __future__ import print_function

import os
import stat
import sys

HOME = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TARGETS = (
    "autostartUserinterface.sh",
    os.path.join("Downloads", "makeExecutable.py"),
    os.path.join("Downloads", "decode_and_unzip_lin.py"),
    os.path.join("DispOn", "dispOn.py"),
    os.path.join("Downloads", "build", "ovra-panel"),
    os.path.join("Downloads", "build_previous", "ovra-panel"),
)
RUN_BITS = stat.S_IXUSR | stat.S_IXGRP | stat.S_IXOTH


def main():
    failed = 0
    for name in TARGETS:
        path = os.path.join(HOME, name)
        if not os.path.isfile(path):
            continue
        try:
            os.chmod(path, os.stat(path).st_mode | RUN_BITS)
        except OSError as error:
            print("cannot make %s executable: %s" % (path, error))
            failed = 1
    return failed


if __name__ == "__main__":
    sys.exit(main())
