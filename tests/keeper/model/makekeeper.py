#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""makekeeper.py FOLDER: makes a keeper of the entries on standard input, by docs/files.md and without the program.

The input is JSON: password, code (26 characters), and entries as tools/openkeeper.py prints them with --json.
"""

import hashlib
import json
import os
import struct
import sys

import nacl.pwhash.argon2id
from nacl.bindings import crypto_aead_xchacha20poly1305_ietf_encrypt as seal

PASSES, MEMORY = 1, 8192


def slot(number, typed, key, keeper):
    salt, nonce = os.urandom(16), os.urandom(24)
    opening = nacl.pwhash.argon2id.kdf(32, typed.encode(), salt, opslimit=PASSES, memlimit=MEMORY)
    additional = b"QKEEPER\x01" + keeper + struct.pack("<IQ", PASSES, MEMORY) + bytes([number])
    return salt + nonce + seal(key, additional, nonce, opening)


def field(one):
    text = one["text"].encode()
    if one["id"] == 255:
        text = one["name"].encode() + b"\x00" + text
    return struct.pack("<BBH", one["id"], 1 if one["secret"] else 0, len(text)) + text


def plain_records(entries):
    for entry in entries:
        payload = b"".join(field(one) for one in entry["fields"])
        parts = [payload[at:at + 1972] for at in range(0, len(payload), 1972)] or [b""]
        for part, piece in enumerate(parts, 1):
            head = struct.pack("<BBHHH16sIq", {"entry": 1, "trash": 2}[entry["state"]], 0, part, len(parts), len(piece),
                               bytes.fromhex(entry["id"]), entry["version"], entry["time"])
            yield (head + piece).ljust(2008, b"\x00")


def main():
    wanted = json.load(sys.stdin)
    key, keeper = os.urandom(32), os.urandom(16)
    slots = slot(1, wanted["password"], key, keeper) + slot(2, wanted["code"], key, keeper) + bytes(88)
    with open(os.path.join(sys.argv[1], "Secfile2.fil"), "wb") as file:
        for number in (1, 2):
            copy = b"QKEEPER\x01" + struct.pack("<I", number) + keeper + struct.pack("<IQ", PASSES, MEMORY) + slots
            copy = copy.ljust(480, b"\x00")
            file.write(copy + hashlib.blake2b(copy, digest_size=32).digest())
    records = list(plain_records(wanted["entries"]))
    records += [bytes(2008)] * (-len(records) % 16)
    records.reverse()  # parts stand anywhere
    with open(os.path.join(sys.argv[1], "Secfile1.Fil"), "wb") as file:
        for number, record in enumerate(records, 1):
            nonce = os.urandom(24)
            file.write(nonce + seal(record, b"QENTRY\x00\x01" + keeper + struct.pack("<I", number), nonce, key))


main()
