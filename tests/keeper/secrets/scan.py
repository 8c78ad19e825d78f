#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks for a planted secret where none may be: in files, in the X selections, in the memory of a process.

    scan.py probe PROGRAM            works a keeper with PROGRAM (keeperprobe) and scans all that it leaves
    scan.py look [--pid PID] [--selections] SECRET FOLDER...   scans these, for a program that was worked by hand

Every hit is a line; the last line is "0 hits" when there is none, and then the exit code is 0.
"""

import argparse
import base64
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile

CHUNK = 1 << 20


def spellings(secret):
    """The secret in the encodings in which it could lie about."""
    text = secret.encode()
    found = {text, secret.encode("utf-16-le"), secret.encode("utf-16-be"), text.hex().encode(), text.hex().upper().encode()}
    # Within a longer text, Base64 depends on where the secret begins.
    for lead in range(3):
        encoded = base64.b64encode(b"x" * lead + text)
        found.add(encoded[(8 * lead + 5) // 6:len(encoded) - 4])
    return sorted(found)


def scan_file(path, wanted):
    hits = []
    longest = max(len(one) for one in wanted)
    try:
        with open(path, "rb") as file:
            rest = b""
            while block := file.read(CHUNK):
                block = rest + block
                hits += [f"{path}: {one!r}" for one in wanted if one in block]
                rest = block[-longest:]
    except OSError as error:
        print(f"not read: {error}")
    return hits


def scan_folders(folders, wanted):
    hits = []
    for folder in folders:
        for parent, _, names in os.walk(folder):
            for name in names:
                path = os.path.join(parent, name)
                if os.path.isfile(path):
                    hits += scan_file(path, wanted)
                hits += [f"name of {path}" for one in wanted if one in os.fsencode(name)]
    return hits


def scan_memory(pid, wanted):
    """Needs the right to trace the process: the same user or root."""
    hits = []
    with open(f"/proc/{pid}/maps") as maps, open(f"/proc/{pid}/mem", "rb", 0) as memory:
        for line in maps:
            start, end, flags = re.match(r"([0-9a-f]+)-([0-9a-f]+) (\S+)", line).groups()
            if not flags.startswith("r") or line.rstrip().endswith(("[vvar]", "[vsyscall]")):
                continue
            try:
                memory.seek(int(start, 16))
                block = memory.read(int(end, 16) - int(start, 16))
            except (OSError, OverflowError):
                continue
            hits += [f"memory of {pid}: {one!r} in {line.split(maxsplit=5)[-1].strip()}" for one in wanted if one in block]
    return hits


def scan_selections(wanted):
    hits = []
    for name in ("primary", "secondary", "clipboard"):
        shown = subprocess.run(["xclip", "-o", "-selection", name], capture_output=True, check=False).stdout
        hits += [f"selection {name}" for one in wanted if one in shown]
    return hits


def probe(program):
    """Makes a keeper in one process, opens and locks it in others, kills one: none leaves the secret."""
    secret = "Zq7-planted-%s-9xK" % os.urandom(4).hex()
    wanted = spellings(secret)
    home = tempfile.mkdtemp(prefix="keeper-secrets-")
    data = os.path.join(home, "data")
    os.mkdir(data)
    environment = dict(os.environ, HOME=home, TMPDIR=os.path.join(home, "tmp"), XDG_CACHE_HOME=os.path.join(home, "cache"),
                       XDG_DATA_HOME=os.path.join(home, "share"), QT_QPA_PLATFORM="offscreen")
    os.mkdir(environment["TMPDIR"])
    hits = []
    try:
        # The secret goes in by standard input, so that no command line has it.
        subprocess.run([program, "make", data], input=secret.encode() + b"\n", env=environment, check=True)
        hits += scan_folders([home], wanted)
        for way in ("lock", "kill", "show", "work"):
            with subprocess.Popen([program, way, data], stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=environment) as child:
                assert child.stdout.readline() == b"ready\n"
                found = scan_memory(child.pid, wanted)
                if way != "show":
                    hits += found
                elif not found:
                    hits.append("the scan of memory does not find an entry that is shown")
                if way == "kill":
                    child.send_signal(signal.SIGKILL)
                else:
                    child.stdin.close()
            hits += scan_folders([home], wanted)
    finally:
        shutil.rmtree(home)
    return hits


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ways = parser.add_subparsers(dest="way", required=True)
    ways.add_parser("probe").add_argument("program")
    look = ways.add_parser("look")
    look.add_argument("--pid", type=int)
    look.add_argument("--selections", action="store_true")
    look.add_argument("secret")
    look.add_argument("folders", nargs="*")
    options = parser.parse_args()
    if options.way == "probe":
        hits = probe(options.program)
    else:
        wanted = spellings(options.secret)
        hits = scan_folders(options.folders, wanted)
        hits += scan_memory(options.pid, wanted) if options.pid else []
        hits += scan_selections(wanted) if options.selections else []
    for hit in hits:
        print(hit)
    print(f"{len(hits)} hits")
    return 1 if hits else 0


if __name__ == "__main__":
    sys.exit(main())
