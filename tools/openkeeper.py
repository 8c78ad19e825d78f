#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lists what a password keeper holds, given its master password or its recovery code.

For whoever has the two files Secfile1.Fil and Secfile2.fil and the password, but not the program. It only reads. Needs
Python 3 and PyNaCl (Debian: python3-nacl). The form of the files is told in docs/files.md.
"""

import argparse
import collections
import datetime
import getpass
import hashlib
import json
import os
import struct
import sys
import unicodedata

try:
    import nacl.exceptions
    import nacl.pwhash.argon2id
    from nacl.bindings import crypto_aead_xchacha20poly1305_ietf_decrypt as open_sealed
except ImportError:
    sys.exit("This needs PyNaCl: on Debian and Ubuntu, install the package python3-nacl.")

KEY_RECORD = 512
ENTRY_RECORD = 2048
ALPHABET = "0123456789ABCDEFGHJKMNPQRSTVWXYZ"
STATES = {1: "entry", 2: "trash", 3: "draft", 4: "settings"}
CAPTIONS = {
    1: "Kind", 2: "Title", 3: "User name", 4: "Password", 5: "Web address", 6: "One-time secret", 7: "Notes", 8: "Tags",
    9: "Member", 10: "Expires", 11: "Favourite", 12: "Password since", 20: "Bank", 21: "Account holder",
    22: "Account number", 23: "Bank code", 24: "PIN", 30: "Card holder", 31: "Card number", 32: "Valid from",
    33: "Security code", 34: "PIN", 35: "If lost, call", 40: "Network name", 41: "Protection", 42: "Router's address",
    50: "Product", 51: "Licence key", 52: "Licensed to", 53: "Bought on", 54: "Order number", 60: "Number", 61: "Holder",
    62: "Issued", 63: "Issued by", 64: "Where the paper lies"}

Record = collections.namedtuple("Record", "state part parts used id version time payload")


def blake2b(data):
    return hashlib.blake2b(data, digest_size=32).digest()


def find(folder, name):
    """The file of that name, whatever its case."""
    for entry in os.listdir(folder):
        if entry.lower() == name.lower():
            return os.path.join(folder, entry)
    sys.exit(f"There is no file {name} in {folder}.")


def read_keys(path):
    """The copy that counts."""
    with open(path, "rb") as file:
        data = file.read()
    best = None
    for start in (0, KEY_RECORD):
        copy = data[start:start + KEY_RECORD]
        if len(copy) < KEY_RECORD or not copy.startswith(b"QKEEPER") or blake2b(copy[:480]) != copy[480:]:
            continue
        if copy[7] != 1:
            sys.exit("This keeper is of a later version of the program.")
        passes, memory = struct.unpack_from("<IQ", copy, 28)
        if not (1 <= passes <= 16 and 8192 <= memory <= 2 ** 30):
            continue
        if best is None or number_of(copy) > number_of(best):
            best = copy
    if best is None:
        sys.exit(f"The key file {path} is damaged, or none.")
    return best


def number_of(copy):
    return struct.unpack_from("<I", copy, 8)[0]


def code_key(typed):
    """The 26 characters of a recovery code that go into the key."""
    code = "".join(c for c in typed.upper() if not c.isspace() and unicodedata.category(c) != "Pd")
    code = code.replace("O", "0").replace("I", "1").replace("L", "1")
    hashed = blake2b(code[:26].encode())
    check = ALPHABET[hashed[0] >> 3] + ALPHABET[(hashed[0] & 7) << 2 | hashed[1] >> 6]
    if len(code) != 28 or code[26:] != check:
        sys.exit("That is no recovery code: there is a slip in it.")
    return code[:26]


def open_slot(copy, slot, typed):
    passes, memory = struct.unpack_from("<IQ", copy, 28)
    sealed = copy[40 + (slot - 1) * 88:40 + slot * 88]
    password = unicodedata.normalize("NFC", typed).encode()
    key = nacl.pwhash.argon2id.kdf(32, password, sealed[:16], opslimit=passes, memlimit=memory)
    additional = copy[:8] + copy[12:28] + copy[28:40] + bytes([slot])
    try:
        return open_sealed(sealed[40:], additional, sealed[16:40], key)
    except nacl.exceptions.CryptoError:
        sys.exit("That is not the password." if slot == 1 else "That is not the code.")


def read_records(path, key, keeper):
    """The open records but for the free ones, and the numbers of those that do not open."""
    records, damaged = [], []
    with open(path, "rb") as file:
        data = file.read()
    for number in range(1, (len(data) + ENTRY_RECORD - 1) // ENTRY_RECORD + 1):
        sealed = data[(number - 1) * ENTRY_RECORD:number * ENTRY_RECORD]
        additional = b"QENTRY\x00\x01" + keeper + struct.pack("<I", number)
        try:
            plain = open_sealed(sealed[24:], additional, sealed[:24], key)
        except (nacl.exceptions.CryptoError, ValueError, TypeError):
            damaged.append(number)
            continue
        state, _, part, parts, used, ident, version, time = struct.unpack_from("<BBHHH16sIq", plain)
        if state in STATES:
            records.append(Record(state, part, parts, used, ident, version, time, plain[36:36 + used]))
    return records, damaged


def whole_versions(records):
    """By kind of record and id: version, state, time and payload of each version all of whose parts are there."""
    parts = collections.defaultdict(dict)
    for record in records:
        sort = 1 if record.state == 2 else record.state
        parts[sort, record.id, record.version][record.part] = record
    found = collections.defaultdict(list)
    for (sort, ident, version), by_part in sorted(parts.items()):
        first = by_part.get(1)
        if first and len(by_part) == first.parts and all(part in by_part for part in range(1, first.parts + 1)):
            payload = b"".join(by_part[part].payload for part in range(1, first.parts + 1))
            found[sort, ident].append((version, first.state, first.time, payload))
    return found


def fields_of(payload):
    fields, at = [], 0
    while at + 4 <= len(payload):
        number, flags, length = struct.unpack_from("<BBH", payload, at)
        text = payload[at + 4:at + 4 + length]
        at += 4 + length
        name = ""
        if number == 255:
            name, _, text = text.partition(b"\x00")
            name = name.decode()
        fields.append({"id": number, "secret": bool(flags & 1), "name": name, "text": text.decode()})
    return fields


def read_entries(versions):
    entries = []
    for (sort, ident), found in versions.items():
        if sort != 1:
            continue
        version, state, time, payload = found[-1]
        earlier = [number for number, kind, _, _ in found[:-1] if kind == 1]
        entries.append({"id": ident.hex(), "state": STATES[state], "version": version, "time": time,
                        "earlier": earlier[-5:], "fields": fields_of(payload)})
    return sorted(entries, key=lambda entry: (title_of(entry).casefold(), entry["id"]))


def title_of(entry):
    return next((field["text"] for field in entry["fields"] if field["id"] == 2), "")


def show(entries, damaged, with_secrets):
    for entry in entries:
        time = datetime.datetime.fromtimestamp(entry["time"]).strftime("%Y-%m-%d %H:%M")
        print(f"{title_of(entry) or '(no title)'}   [{time}]" + ("   in the trash" if entry["state"] == "trash" else ""))
        for field in entry["fields"]:
            if field["id"] in (2, 12):
                continue
            caption = field["name"] or CAPTIONS.get(field["id"], f"Field {field['id']}")
            text = "(hidden)" if field["secret"] and not with_secrets else field["text"].replace("\n", "\n        ")
            print(f"    {caption}: {text}")
        print()
    for number in damaged:
        print(f"Damaged, place {number}")


def main():
    parser = argparse.ArgumentParser(description="Lists what a password keeper holds.")
    parser.add_argument("folder", help="the folder with Secfile1.Fil and Secfile2.fil")
    parser.add_argument("--code", action="store_true", help="open it with the recovery code")
    parser.add_argument("--secrets", action="store_true", help="show passwords and other secrets")
    parser.add_argument("--json", action="store_true", help="print everything, secrets too, for another program")
    options = parser.parse_args()

    copy = read_keys(find(options.folder, "Secfile2.fil"))
    entries_file = find(options.folder, "Secfile1.Fil")
    question = "Recovery code: " if options.code else "Master password: "
    typed = getpass.getpass(question) if sys.stdin.isatty() else sys.stdin.readline().rstrip("\r\n")
    key = open_slot(copy, 2, code_key(typed)) if options.code else open_slot(copy, 1, typed)

    records, damaged = read_records(entries_file, key, copy[12:28])
    entries = read_entries(whole_versions(records))
    if options.json:
        json.dump({"entries": entries, "damaged": damaged}, sys.stdout)
    else:
        show(entries, damaged, options.secrets)


if __name__ == "__main__":
    main()
