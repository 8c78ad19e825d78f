#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Opens one disk of a sealed backup, given its password, and writes the tar that it holds to standard output.

    opensealed.py [--stdin] FOLDER | tar -x

FOLDER is that of the set on the disk, with DiskInfo.bk1 and Quillery.sealed. For whoever has the disks and the password,
but not the program. It only reads. Needs Python 3 and PyNaCl (Debian: python3-nacl). The form of the file is told in
docs/files.md.
"""

import argparse
import getpass
import hashlib
import os
import struct
import sys
import unicodedata

try:
    import nacl.exceptions
    import nacl.pwhash.argon2id
    from nacl import bindings
except ImportError:
    sys.exit("This needs PyNaCl: on Debian and Ubuntu, install the package python3-nacl.")

KEY_RECORD = 512
HEAD = bindings.crypto_secretstream_xchacha20poly1305_HEADERBYTES
CHUNK = (64 << 10) + bindings.crypto_secretstream_xchacha20poly1305_ABYTES
FINAL = bindings.crypto_secretstream_xchacha20poly1305_TAG_FINAL


def disk_of(folder):
    """The set's id and the disk's number, as its record has them."""
    with open(os.path.join(folder, "DiskInfo.bk1"), encoding="ascii") as file:
        values = [line.strip().strip('"') for line in file]
    if values[:2] != ["QUILLERY DISK", "1"]:
        sys.exit("DiskInfo.bk1 is no record of a disk that is known here.")
    return bytes.fromhex(values[2]), int(values[4])


def key_of(record, typed):
    """The set's key, out of the record at the file's beginning."""
    whole = len(record) == KEY_RECORD and hashlib.blake2b(record[:480], digest_size=32).digest() == record[480:]
    if not whole or record[:8] != b"QBACKUP\x01":
        sys.exit("Quillery.sealed does not begin with the record of a key.")
    passes, memory = struct.unpack_from("<IQ", record, 28)
    if not (1 <= passes <= 16 and 8192 <= memory <= 2 ** 30):
        sys.exit("The record of the key is damaged.")
    slot = record[40:128]
    password = unicodedata.normalize("NFC", typed).encode()
    opening = nacl.pwhash.argon2id.kdf(32, password, slot[:16], opslimit=passes, memlimit=memory)
    additional = record[:8] + record[12:28] + record[28:40] + b"\x01"
    try:
        return bindings.crypto_aead_xchacha20poly1305_ietf_decrypt(slot[40:], additional, slot[16:40], opening)
    except nacl.exceptions.CryptoError:
        sys.exit("That is not the password.")


def unseal(file, key, additional, out):
    state = bindings.crypto_secretstream_xchacha20poly1305_state()
    bindings.crypto_secretstream_xchacha20poly1305_init_pull(state, file.read(HEAD), key)
    tag = None
    while tag != FINAL:
        chunk = file.read(CHUNK)
        if not chunk:
            sys.exit("It is not complete: its last chunk is missing.")
        try:
            plain, tag = bindings.crypto_secretstream_xchacha20poly1305_pull(state, chunk, additional)
        except (RuntimeError, ValueError, nacl.exceptions.CryptoError):
            sys.exit("It is damaged, or cut.")
        out.write(plain)
    if file.read(1):
        sys.exit("There is more behind its last chunk.")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", help="the folder of the set on the disk")
    parser.add_argument("--stdin", action="store_true", help="read the password from standard input")
    arguments = parser.parse_args()
    identity, number = disk_of(arguments.folder)
    if arguments.stdin:
        typed = sys.stdin.buffer.readline().decode("utf-8").rstrip("\r\n")
    else:
        typed = getpass.getpass("Password: ")
    with open(os.path.join(arguments.folder, "Quillery.sealed"), "rb") as file:
        key = key_of(file.read(KEY_RECORD), typed)
        unseal(file, key, identity + struct.pack("<I", number), sys.stdout.buffer)


if __name__ == "__main__":
    main()
