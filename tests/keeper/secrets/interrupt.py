#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Interrupts a keeper at each of its writes, flushes and renames, and looks what the next start finds.

    interrupt.py PROGRAM    with PROGRAM (keeperprobe); needs strace

Each step is the last before a sudden end, and refused once as by a full or failing disk. Every step after which not all
entries are there is a line; the last line counts them, and the exit code is 0 when there is none.
"""

import os
import shutil
import subprocess
import sys
import tempfile

CALLS = ("write", "fdatasync", "rename", "unlink")
FAULTS = {"write": "ENOSPC", "fdatasync": "EIO", "rename": "ENOSPC", "unlink": "EIO"}


def traced(program, data, *options):
    return subprocess.run(["strace", "-f", "-qq", "-e", "signal=none", *options, program, "change", data],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode


def steps(program, whole, data, call):
    """How often `call` is made where nothing interrupts."""
    shutil.copytree(whole, data)
    log = data + ".log"
    traced(program, data, "-e", "trace=" + call, "-o", log)
    with open(log) as lines:
        count = sum(call + "(" in line for line in lines)
    shutil.rmtree(data)
    return count


def main():
    program = sys.argv[1]
    home = tempfile.mkdtemp(prefix="keeper-interrupt-")
    whole, data = os.path.join(home, "whole"), os.path.join(home, "data")
    failures = tried = 0
    try:
        os.mkdir(whole)
        subprocess.run([program, "make", whole], input=b"a planted secret\n", check=True)
        for call in CALLS:
            for when in range(1, steps(program, whole, data, call) + 1):
                for fault in ("signal=SIGKILL", "error=" + FAULTS[call]):
                    shutil.copytree(whole, data)
                    traced(program, data, "-e", "trace=" + call, "-o", "/dev/null", "-e", f"inject={call}:{fault}:when={when}")
                    tried += 1
                    if subprocess.run([program, "check", data], stderr=subprocess.DEVNULL, check=False).returncode != 0:
                        failures += 1
                        print(f"{call} {when}, {fault}: not all is there")
                    shutil.rmtree(data)
    finally:
        shutil.rmtree(home)
    print(f"{failures} of {tried}")
    return 1 if failures or not tried else 0


if __name__ == "__main__":
    sys.exit(main())
