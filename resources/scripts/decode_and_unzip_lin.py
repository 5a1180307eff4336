# -*- coding: utf-8 -*-
# Installs a panel update received from the furnace controller and reboots the device.
# Prints one value and nothing else: 0 success, 1 received file not renamed, 2 old program
# not set aside, 3 archive not installed (damaged, unsafe, incomplete, or too little free
# space; the installed program untouched), 4 old translations not set aside. Runs on Python
# 2.7 and Python 3.
#
# The panel is never left without a complete program, whenever the power goes:
#  - The archive is unpacked into update_staging/ beside the installed folders (same file
#    system), every file synced, and checked: the archive's CRCs, build/ovra-panel present
#    and executable, at least one translation in translations/. Only then is anything
#    installed touched.
#  - The switch is renames only, each synced. One previous generation is kept, as
#    build_previous/ and translations_previous/; the older one goes. When the installed build
#    never proved itself (no "proven" marker, see autostartUserinterface.sh) and the previous
#    one did, the previous one is kept instead.
#  - Between two renames the start-up script still finds a complete program: build/, or
#    build_previous/ while build/ is missing. For a moment in between, the program it starts
#    may see no translations or the new ones; it shows its German texts for what is missing.
#  - Leftovers of an interrupted run (update_staging/, update_trash/) are never started and
#    are removed by the next run.
#
# Every path is taken from where this script lies (<home>/Downloads), so a panel started
# with another home folder updates that one. OVRA_REBOOT_COMMAND, when set, runs instead of
# "sudo reboot"; away from the device's own home nothing is rebooted without it.
#
# Test hooks (environment): OVRA_UPDATE_RESERVE_BYTES, the space that must stay free beyond
# the unpacked archive (default 8 MiB; a huge value stands for a full card);
# OVRA_UPDATE_TRACE=1 writes "step N: what" to stderr before each step that changes the disk;
# OVRA_UPDATE_KILL_AT_STEP=N makes the script kill itself (SIGKILL) just before step N, as a
# power cut there would.
from __future__ import print_function

import os
import shutil
import signal
import subprocess
import sys
import zipfile

DEVICE_DOWNLOADS = "/home/pi/Downloads"
STAGING = "update_staging"
TRASH = "update_trash"
PREVIOUS = "_previous"
PROGRAM = "ovra-panel"
# Written by the start-up script and the panel into a build's folder; never taken from an archive.
MARKERS = ("proven", "start_attempts")
# Names of the install itself that an archive may not bring along.
RESERVED = ("build_previous", "translations_previous", STAGING, TRASH, "build.zip", "outfile.txt")
DEFAULT_RESERVE = 8 * 1024 * 1024
COPY_CHUNK = 64 * 1024

_steps = [0]


def step(what):
    """Called before every change to the disk; the test hooks hang here."""
    _steps[0] += 1
    number = _steps[0]
    if os.environ.get("OVRA_UPDATE_TRACE"):
        sys.stderr.write("step %d: %s\n" % (number, what))
        sys.stderr.flush()
    if os.environ.get("OVRA_UPDATE_KILL_AT_STEP") == str(number):
        os.kill(os.getpid(), signal.SIGKILL)


def sync_dir(path):
    fd = os.open(path, os.O_RDONLY)
    try:
        os.fsync(fd)
    finally:
        os.close(fd)


def rename(source, target):
    """Atomic on one file system; synced, so that it survives a power cut."""
    step("rename %s -> %s" % (source, target))
    os.rename(source, target)
    sync_dir(os.path.dirname(target))
    if os.path.dirname(source) != os.path.dirname(target):
        sync_dir(os.path.dirname(source))


def remove(path):
    try:
        if os.path.isdir(path) and not os.path.islink(path):
            step("remove %s" % path)
            shutil.rmtree(path)
        elif os.path.lexists(path):
            step("remove %s" % path)
            os.remove(path)
    except OSError:
        pass


def is_safe_member(name, target):
    """False for an entry that would land outside the target folder."""
    normalized = name.replace("\\", "/")
    if normalized.startswith("/") or (len(normalized) > 1 and normalized[1] == ":"):
        return False
    if ".." in normalized.split("/"):
        return False
    destination = os.path.realpath(os.path.join(target, normalized))
    return destination == target or destination.startswith(target + os.sep)


def top_level(name):
    parts = [part for part in name.replace("\\", "/").split("/") if part not in ("", ".")]
    return parts[0] if parts else ""


def free_bytes(path):
    info = os.statvfs(path)
    return info.f_bavail * info.f_frsize


def reserve_bytes():
    try:
        return max(0, int(os.environ.get("OVRA_UPDATE_RESERVE_BYTES", DEFAULT_RESERVE)))
    except ValueError:
        return DEFAULT_RESERVE


def has_room(received, downloads):
    """False only for a readable archive that would not fit; anything else is judged later."""
    try:
        with zipfile.ZipFile(received) as bundle:
            needed = sum(info.file_size for info in bundle.infolist())
    except Exception:
        return True
    if needed + reserve_bytes() > free_bytes(downloads):
        sys.stderr.write("archive refused: %d bytes do not fit\n" % needed)
        return False
    return True


def extract_member(bundle, info, staging):
    destination = os.path.join(staging, info.filename)
    if info.filename.endswith("/"):
        if not os.path.isdir(destination):
            os.makedirs(destination)
        return
    folder = os.path.dirname(destination)
    if not os.path.isdir(folder):
        os.makedirs(folder)
    step("unpack %s" % info.filename)
    source = bundle.open(info)  # reading it to the end checks its CRC
    try:
        with open(destination, "wb") as out:
            shutil.copyfileobj(source, out, COPY_CHUNK)
            out.flush()
            os.fsync(out.fileno())
    finally:
        source.close()


def sync_tree(root):
    for folder, _, _ in os.walk(root, topdown=False):
        sync_dir(folder)


def unpack(archive, staging, downloads):
    """True when every entry is safe, the archive's CRCs hold and it was written completely."""
    try:
        with zipfile.ZipFile(archive) as bundle:
            names = bundle.namelist()
            if not all(is_safe_member(name, staging) for name in names):
                sys.stderr.write("archive refused: entry outside the target folder\n")
                return False
            if any(top_level(name) in RESERVED for name in names):
                sys.stderr.write("archive refused: entry in the folders of the install itself\n")
                return False
            if bundle.testzip() is not None:
                sys.stderr.write("archive refused: damaged entry\n")
                return False
            step("create %s" % staging)
            os.mkdir(staging)
            for info in bundle.infolist():
                extract_member(bundle, info, staging)
        sync_tree(staging)
        sync_dir(downloads)
        return True
    except Exception as error:  # a bad archive of any kind is value 3
        sys.stderr.write("archive not unpacked: %s\n" % error)
        return False


def is_complete(staging):
    """The program is there and runs, and translations came with it."""
    try:
        return check(staging)
    except OSError as error:
        sys.stderr.write("archive not checked: %s\n" % error)
        return False


def check(staging):
    program = os.path.join(staging, "build", PROGRAM)
    if not os.path.isfile(program):
        sys.stderr.write("archive refused: no build/%s\n" % PROGRAM)
        return False
    # Archives made without Unix modes do not carry the run bit; the panel needs it.
    step("make %s executable" % program)
    os.chmod(program, os.stat(program).st_mode | 0o755)
    if not os.access(program, os.X_OK):
        sys.stderr.write("archive refused: build/%s cannot run\n" % PROGRAM)
        return False
    for marker in MARKERS:
        remove(os.path.join(staging, "build", marker))
    folder = os.path.join(staging, "translations")
    if not os.path.isdir(folder) or not any(n.endswith(".qm") for n in os.listdir(folder)):
        sys.stderr.write("archive refused: no translations\n")
        return False
    sync_tree(os.path.join(staging, "build"))
    return True


def is_proven(build):
    return os.path.isfile(os.path.join(build, "proven"))


def install_extras(staging, downloads):
    """Anything else the archive brought, merged into Downloads as unpacking there always did."""
    for folder, _, files in os.walk(staging):
        relative = os.path.relpath(folder, staging)
        target = os.path.normpath(os.path.join(downloads, relative))
        if not os.path.isdir(target):
            step("create %s" % target)
            os.makedirs(target)
        for name in files:
            rename(os.path.join(folder, name), os.path.join(target, name))


def switch(downloads, staging):
    """The staged build and translations in place, by renames only. 0; 2 or 4 when the old
    folders could not be set aside; 3 when the new ones could not be put in place (the old
    ones are then back)."""
    trash = os.path.join(downloads, TRASH)
    build = os.path.join(downloads, "build")
    translations = os.path.join(downloads, "translations")
    old_build = build + PREVIOUS
    old_translations = translations + PREVIOUS
    try:
        step("create %s" % trash)
        os.mkdir(trash)
    except OSError:
        return 3

    # The installed generation becomes the previous one, unless it never proved itself while
    # the previous one did (the start-up script then runs the previous one): that one stays.
    keep_installed = os.path.isdir(build) and (is_proven(build) or not is_proven(old_build))
    if keep_installed:
        for path, value in ((old_build, 2), (old_translations, 4)):
            if os.path.lexists(path):
                try:
                    rename(path, os.path.join(trash, os.path.basename(path)))
                except OSError:
                    return value
        destinations = (old_build, old_translations)
    else:
        # Translations beside a previous build that has none of its own are that build's: the
        # switch was cut off between the two folders.
        keep_translations = os.path.isdir(old_build) and not os.path.lexists(old_translations)
        destinations = (os.path.join(trash, "build"),
                        old_translations if keep_translations else os.path.join(trash, "translations"))

    # Build first: while build/ is missing, build_previous/ still has its own translations.
    set_aside = []
    for path, destination, value in ((build, destinations[0], 2), (translations, destinations[1], 4)):
        if not os.path.lexists(path):
            continue
        try:
            rename(path, destination)
        except OSError:
            undo(set_aside)
            return value
        set_aside.append((path, destination))

    try:
        rename(os.path.join(staging, "translations"), translations)
        rename(os.path.join(staging, "build"), build)
    except OSError as error:
        sys.stderr.write("new build not put in place: %s\n" % error)
        # The old folders were set aside: whatever stands in their place now is new.
        for index, path in enumerate((build, translations)):
            if os.path.lexists(path):
                try:
                    rename(path, os.path.join(trash, "new%d" % index))
                except OSError:
                    pass
        undo(set_aside)
        return 3
    return 0


def undo(set_aside):
    for path, destination in reversed(set_aside):
        try:
            rename(destination, path)
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
    staging = os.path.join(downloads, STAGING)
    trash = os.path.join(downloads, TRASH)

    if not os.path.isfile(received):
        return 1
    if not has_room(received, downloads):
        return 3
    try:
        rename(received, archive)
    except OSError:
        return 1

    for leftover in (staging, trash):
        remove(leftover)
    if not unpack(archive, staging, downloads) or not is_complete(staging):
        remove(staging)
        return 3

    value = switch(downloads, staging)
    if value == 0:
        try:
            install_extras(staging, downloads)
        except OSError as error:  # the panel is in place; the rest is not worth a failure
            sys.stderr.write("archive's other files not all moved: %s\n" % error)
    for path in (trash, staging):
        remove(path)
    if value != 0:
        return value
    remove(archive)
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
