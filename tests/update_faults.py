#!/usr/bin/env python3
"""The update on the card, cut off anywhere, and the start-up script that must still find a
complete panel afterwards.

  update_faults.py SCRIPTS faults [RUNS] [SEED]
      kills the unpacking script before each of its steps in turn, then at RUNS random
      moments (200), each on a home holding a complete old build; asks the start-up script
      which program it would start; then completes the update and asks again. Also: too
      little free space changes nothing.
  update_faults.py SCRIPTS startup
      the start-up script's counting and fallback, run as the service runs it, with the
      hardware steps stubbed.

SCRIPTS is the folder of the scripts the panel carries (resources/scripts).
"""
import concurrent.futures
import io
import os
import random
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time
import zipfile

SCRIPTS = os.path.abspath(sys.argv[1])
# The homes live in memory where there is a tmpfs: a kill tests the order of the renames, not
# the card's syncs, and several hundred runs must stay quick.
WORK = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
failures = []


def check(condition, message):
    if not condition:
        failures.append(message)
        print("FAIL: " + message)
    return condition


def panel(name):
    return ("#!/bin/sh\necho %s >> ../ran\nexit 1\n" % name).encode()


def build_files(name, size):
    rng = random.Random(name)
    files = {"ovra-panel": panel(name), "lib/libpanel.so": bytes(rng.getrandbits(8) for _ in range(size))}
    for i in range(6):
        files["plugins/p%d.so" % i] = (name * 2000 + str(i)).encode()
    return files


def translation_files(name):
    return {"translation_de.qm": ("%s de" % name).encode(), "translation_en_US.qm": ("%s en" % name).encode()}


VERSIONS = {name: build_files(name, 40000) for name in ("older", "old")}
VERSIONS["new"] = build_files("new", 400000)


def write_tree(root, files, executable=("ovra-panel",)):
    for relative, data in files.items():
        path = os.path.join(root, relative)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as out:
            out.write(data)
        if relative in executable:
            os.chmod(path, 0o755)


def read_tree(root, skip=("proven", "start_attempts")):
    files = {}
    for folder, _, names in os.walk(root):
        for name in names:
            path = os.path.join(folder, name)
            relative = os.path.relpath(path, root)
            if relative not in skip:
                with open(path, "rb") as f:
                    files[relative] = f.read()
    return files


def snapshot(root):
    entries = {}
    for folder, dirs, names in os.walk(root):
        for name in dirs + names:
            path = os.path.join(folder, name)
            info = os.lstat(path)
            data = b"<dir>"
            if stat.S_ISREG(info.st_mode):
                with open(path, "rb") as f:
                    data = f.read()
            entries[os.path.relpath(path, root)] = (stat.S_IMODE(info.st_mode), data)
    return entries


def make_archive():
    data = io.BytesIO()
    with zipfile.ZipFile(data, "w", zipfile.ZIP_DEFLATED) as bundle:
        # Written as a controller's archive may be: no Unix modes, so no run bit.
        for relative, content in sorted(VERSIONS["new"].items()):
            bundle.writestr("build/" + relative, content)
        for relative, content in sorted(translation_files("new").items()):
            bundle.writestr("translations/" + relative, content)
    return data.getvalue()


ARCHIVE = make_archive()


def make_home(root):
    home = os.path.join(root, "home")
    downloads = os.path.join(home, "Downloads")
    write_tree(os.path.join(downloads, "build_previous"), VERSIONS["older"])
    write_tree(os.path.join(downloads, "translations_previous"), translation_files("older"))
    write_tree(os.path.join(downloads, "build"), VERSIONS["old"])
    write_tree(os.path.join(downloads, "translations"), translation_files("old"))
    for build in ("build", "build_previous"):
        open(os.path.join(downloads, build, "proven"), "w").close()
    shutil.copy(os.path.join(SCRIPTS, "decode_and_unzip_lin.py"), downloads)
    shutil.copy(os.path.join(SCRIPTS, "autostartUserinterface.sh"), home)
    receive(downloads)
    return home


def receive(downloads):
    with open(os.path.join(downloads, "outfile.txt"), "wb") as out:
        out.write(ARCHIVE)


def unpack_command(home):
    return [sys.executable, os.path.join(home, "Downloads", "decode_and_unzip_lin.py")]


def environment(**extra):
    env = dict(os.environ, OVRA_REBOOT_COMMAND="true")
    for name in ("OVRA_UPDATE_TRACE", "OVRA_UPDATE_KILL_AT_STEP", "OVRA_UPDATE_RESERVE_BYTES"):
        env.pop(name, None)
    env.update(extra)
    return env


def which(home):
    """The version the start-up script would start, or why none."""
    run = subprocess.run(["sh", os.path.join(home, "autostartUserinterface.sh"), "--which"],
                         capture_output=True, text=True, timeout=20)
    if run.returncode != 0 or run.stderr:
        return "nothing (exit %d, %r)" % (run.returncode, run.stderr)
    folder = os.path.dirname(run.stdout.strip())
    if not os.access(os.path.join(folder, "ovra-panel"), os.X_OK):
        return "not runnable: " + folder
    files = read_tree(folder)
    for name, expected in VERSIONS.items():
        if files == expected:
            return name
    return "incomplete: %s (%d files)" % (folder, len(files))


def complete_update(home, label):
    """The next update of the same archive runs to its end: the new build, the old one kept."""
    downloads = os.path.join(home, "Downloads")
    receive(downloads)
    run = subprocess.run(unpack_command(home), capture_output=True, text=True, env=environment(), timeout=60)
    check(run.stdout == "0\n", "%s: next update printed %r (%s)" % (label, run.stdout, run.stderr.strip()))
    check(which(home) == "new", "%s: after the next update the start-up script starts %s" % (label, which(home)))
    check(read_tree(os.path.join(downloads, "build_previous")) == VERSIONS["old"],
          "%s: the old build is not the previous one" % label)
    check(read_tree(os.path.join(downloads, "translations")) == translation_files("new")
          and read_tree(os.path.join(downloads, "translations_previous")) == translation_files("old"),
          "%s: translations not paired with their builds" % label)
    left = sorted(os.listdir(downloads))
    check(left == ["build", "build_previous", "decode_and_unzip_lin.py", "translations", "translations_previous"],
          "%s: left in Downloads: %s" % (label, left))


def steps():
    with tempfile.TemporaryDirectory(dir=WORK) as root:
        home = make_home(root)
        run = subprocess.run(unpack_command(home), capture_output=True, text=True,
                             env=environment(OVRA_UPDATE_TRACE="1"), timeout=60)
        check(run.stdout == "0\n", "traced run printed %r" % run.stdout)
        return [line for line in run.stderr.splitlines() if line.startswith("step ")]


def kill_at_every_step():
    trace = steps()
    check(len(trace) > 10, "only %d steps traced" % len(trace))
    # A kill before this step must leave the old build to start.
    in_place = next(i for i, line in enumerate(trace, 1) if line.endswith(os.sep + "build") and "update_staging" in line)
    for number in range(1, len(trace) + 2):
        with tempfile.TemporaryDirectory(dir=WORK) as root:
            home = make_home(root)
            run = subprocess.run(unpack_command(home), capture_output=True, text=True,
                                 env=environment(OVRA_UPDATE_KILL_AT_STEP=str(number)), timeout=60)
            label = "killed before step %d (%s)" % (number, trace[number - 1] if number <= len(trace) else "end")
            if number <= len(trace):
                check(run.returncode == -signal.SIGKILL, "%s: not killed (%d)" % (label, run.returncode))
            started = which(home)
            check(started == ("old" if number <= in_place else "new"), "%s: the start-up script starts %s" % (label, started))
            complete_update(home, label)
    print("killed before each of %d steps" % len(trace))


def kill_at_random_moments(runs, seed):
    with tempfile.TemporaryDirectory(dir=WORK) as root:
        durations = []
        for _ in range(3):
            home = make_home(os.path.join(root, str(len(durations))))
            begin = time.monotonic()
            subprocess.run(unpack_command(home), capture_output=True, env=environment(), timeout=60)
            durations.append(time.monotonic() - begin)
        duration = 2 * max(durations)  # runs overlap below and take longer

    def one(run_number):
        delay = random.Random("%d/%d" % (seed, run_number)).uniform(0, duration)
        with tempfile.TemporaryDirectory(dir=WORK) as root:
            home = make_home(root)
            script = subprocess.Popen(unpack_command(home), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                      env=environment())
            time.sleep(delay)
            script.send_signal(signal.SIGKILL)
            script.wait()
            label = "run %d, killed after %.1f ms" % (run_number, delay * 1000)
            started = which(home)
            check(started in ("old", "new"), "%s: the start-up script starts %s" % (label, started))
            complete_update(home, label)
            return started

    # Runs overlap in pairs: the kills still land anywhere, in half the time.
    with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
        outcomes = list(pool.map(one, range(runs)))
    print("random kills over %.0f ms runs: %d old, %d new" % (duration * 1000, outcomes.count("old"),
                                                               outcomes.count("new")))


def full_card_changes_nothing():
    with tempfile.TemporaryDirectory(dir=WORK) as root:
        home = make_home(root)
        before = snapshot(root)
        run = subprocess.run(unpack_command(home), capture_output=True, text=True,
                             env=environment(OVRA_UPDATE_RESERVE_BYTES=str(1 << 60)), timeout=60)
        check(run.stdout == "3\n", "full card: printed %r" % run.stdout)
        check(snapshot(root) == before, "full card: files changed")
        check(which(home) == "old", "full card: the start-up script starts %s" % which(home))


def startup():
    """Two starts of a new build that never brings up its window, then the previous one."""
    with tempfile.TemporaryDirectory(dir=WORK) as root:
        home = os.path.join(root, "home")
        downloads = os.path.join(home, "Downloads")
        write_tree(os.path.join(downloads, "build"), VERSIONS["new"])
        write_tree(os.path.join(downloads, "build_previous"), VERSIONS["old"])
        open(os.path.join(downloads, "build_previous", "proven"), "w").close()
        for name in ("autostartUserinterface.sh", "makeExecutable.py"):
            shutil.copy(os.path.join(SCRIPTS, name), downloads if name.endswith(".py") else home)
        write_tree(os.path.join(home, "DispOn"), {"dispOn.py": b""})
        # No kernel module is loaded here: sudo is a stub that only notes what it was asked.
        stubs = os.path.join(root, "bin")
        write_tree(stubs, {"sudo": b"#!/bin/sh\necho \"$*\" >> \"$(dirname \"$0\")/sudo.log\"\n"}, ("sudo",))
        env = dict(os.environ, PATH=stubs + os.pathsep + os.environ["PATH"])
        ran = os.path.join(downloads, "ran")

        def start():
            subprocess.run(["sh", os.path.join(home, "autostartUserinterface.sh")], env=env,
                           capture_output=True, timeout=30)
            with open(ran) as f:
                return f.read().split()[-1]

        check(which(home) == "new", "unproven build not chosen first")
        check([start(), start()] == ["new", "new"], "the new build is not started twice")
        check(which(home) == "old", "--which after two failed starts: %s" % which(home))
        check(start() == "old", "no fallback after two failed starts")
        with open(os.path.join(downloads, "build", "start_attempts")) as f:
            check(f.read().strip() == "2", "fallback starts are counted against the new build")
        with open(os.path.join(downloads, "startup.log")) as f:
            log = f.read()
        check(log.count("starting unproven build") == 2 and "fallback: " in log, "startup.log: %r" % log)
        with open(os.path.join(stubs, "sudo.log")) as f:
            check(f.read().split("\n")[0].startswith("modprobe "), "the touch module is not asked for")
        # Once the panel has marked it, the new build is started again.
        open(os.path.join(downloads, "build", "proven"), "w").close()
        check(start() == "new", "a proven build is not started")
        # Build folder gone entirely (an update cut off between two renames): the previous one.
        shutil.rmtree(os.path.join(downloads, "build"))
        check(start() == "old", "no start without build/")


def main():
    mode = sys.argv[2]
    if mode == "faults":
        runs = int(sys.argv[3]) if len(sys.argv) > 3 else 200
        seed = int(sys.argv[4]) if len(sys.argv) > 4 else 2026
        full_card_changes_nothing()
        kill_at_every_step()
        kill_at_random_moments(runs, seed)
    else:
        startup()
    print("%s: %s" % (mode, "FAIL (%d)" % len(failures) if failures else "PASS"))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
