#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""zips.py PAYLOAD VERSION ZIP THESAURUS: packs the program's folder into ZIP, all but the thesaurus, which gets a file of its own.

What either holds lies in the folder Quillery, so that the second, unpacked in the same place, completes the first.
"""
import pathlib
import sys
import zipfile

README = pathlib.Path(__file__).resolve().parent / "README.txt"
THESAURUS = "dictionaries/th_*"


def pack(target, payload, files):
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for file in sorted(files):
            packed.write(file, file.relative_to(payload.parent))


def main():
    payload, version, program, thesaurus = pathlib.Path(sys.argv[1]), *sys.argv[2:]
    words = set(payload.glob(THESAURUS))
    pack(program, payload, {file for file in payload.rglob("*") if file.is_file()} - words)
    readme = README.read_text().replace("VERSION", version).replace("\n", "\r\n")
    with zipfile.ZipFile(program, "a", zipfile.ZIP_DEFLATED) as packed:
        packed.writestr("Quillery/README.txt", readme)
    pathlib.Path(thesaurus).unlink(missing_ok=True)
    if words:
        pack(thesaurus, payload, words)


if __name__ == "__main__":
    main()
