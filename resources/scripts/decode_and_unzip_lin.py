# -*- coding: utf-8 -*-
# Installs a panel update received from the furnace controller: the received file becomes
# build.zip, the installed program (build/) and translations (translations/) are set aside,
# the archive is unpacked in their place, the old copies are removed and the device reboots.
# Prints one value and nothing else: 0 success, 1 received file not renamed, 2 old program
# not set aside, 3 archive not unpacked (old folders restored), 4 old translations not set
# aside. Runs on Python 2.7 and Python 3.
#
# Every path is taken from where this script lies (<home>/Downloads), so a panel started
# with another home folder updates that one. OVRA_REBOOT_COMMAND, when set, runs instead of
# "sudo reboot"; away from the device's own home nothing is rebooted without it.
from __future__ import print_function

import os
import shutil
import subprocess
import sys
import time
import zipfile

DEVICE_DOWNLOADS = "/home/pi/Downloads"


def stamp():
    return time.strftime("%Y%m%d%H%M%S", time.localtime())


def is_safe_member(name, target):
    """False for an entry that would land outside the target folder."""
    normalized = name.replace("\\", "/")
    if normalized.startswith("/") or (len(normalized) > 1 and normalized[1] == ":"):
        return False
    if ".." in normalized.split("/"):
        return False
    destination = os.path.realpath(os.path.join(target, normalized))
    return destination == target or destination.startswith(target + os.sep)


def unpack(archive, target):
    """True when every entry is safe and the archive was extracted completely."""
    try:
        with zipfile.ZipFile(archive) as bundle:
            names = bundle.namelist()
            if not all(is_safe_member(name, target) for name in names):
                sys.stderr.write("archive refused: entry outside the target folder\n")
                return False
            if bundle.testzip() is not None:
                sys.stderr.write("archive refused: damaged entry\n")
                return False
            bundle.extractall(target)
        return True
    except Exception as error:  # a bad archive of any kind is value 3
        sys.stderr.write("archive not unpacked: %s\n" % error)
        return False


def remove(path):
    try:
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.remove(path)
    except OSError:
        pass


def reboot(downloads):
    command = os.environ.get("OVRA_REBOOT_COMMAND")
    if command is None:
        if downloads != DEVICE_DOWNLOADS:
            sys.stderr.write("not on the device: no reboot\n")
            return
        command = "sudo reboot"
    devnull = open(os.devnull, "w")
    try:
        # Its output must not mix with the value the panel reads.
        subprocess.call(command, shell=True, stdout=devnull, stderr=devnull)
    except OSError:
        pass
    finally:
        devnull.close()


def install(downloads):
    received = os.path.join(downloads, "outfile.txt")
    archive = os.path.join(downloads, "build.zip")
    build = os.path.join(downloads, "build")
    translations = os.path.join(downloads, "translations")
    old_build = None
    old_translations = None

    try:
        os.rename(received, archive)
    except OSError:
        return 1

    if os.path.isdir(build):
        old_build = build + "_" + stamp()
        try:
            os.rename(build, old_build)
        except OSError:
            return 2

    if os.path.isdir(translations):
        old_translations = translations + "_" + stamp()
        try:
            os.rename(translations, old_translations)
        except OSError:
            return 4

    if not unpack(archive, downloads):
        # Whatever the archive left half-written goes before the old folders come back.
        for new, old in ((build, old_build), (translations, old_translations)):
            if old is not None:
                remove(new)
                try:
                    os.rename(old, new)
                except OSError:
                    pass
        return 3

    for path in (old_build, old_translations, archive):
        if path is not None:
            remove(path)
    reboot(downloads)
    return 0


def main():
    downloads = os.path.dirname(os.path.realpath(os.path.abspath(__file__)))
    value = install(downloads)
    print(value)
    sys.stdout.flush()
    return value


if __name__ == "__main__":
    sys.exit(main())
