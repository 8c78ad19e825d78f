#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""payload.py PROGRAM LIBRARIES PAYLOAD: lays out everything that a person gets.

PROGRAM is the folder with the program and its backgrounds, LIBRARIES the one that packaging/windows/build has filled.
Fails when a file imports a DLL that is neither found nor one of Windows' own (system-dlls.txt). Beside the folder
PAYLOAD comes files.nsh, from which the setup knows what to delete again.
"""
import pathlib
import shutil
import subprocess
import sys

MINGW = "x86_64-w64-mingw32"
HERE = pathlib.Path(__file__).resolve().parent
PLUGINS = ("platforms/qwindows.dll", "imageformats/*.dll")
COPYRIGHTS = {"gcc": "gcc-mingw-w64-base", "mingw-w64": "mingw-w64-common"}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def imports(binary):
    lines = output(f"{MINGW}-objdump", "-p", str(binary)).splitlines()
    return [line.split(":", 1)[1].strip() for line in lines if line.strip().startswith("DLL Name:")]


def search_path(libraries):
    compiler = [output(f"{MINGW}-g++-posix", f"-print-file-name={name}").strip()
                for name in ("libstdc++-6.dll", "libwinpthread-1.dll")]
    return [libraries / "bin", libraries / "lib", *(pathlib.Path(name).resolve().parent for name in compiler)]


def copy_libraries(payload, libraries):
    own = {line.strip().lower() for line in (HERE / "system-dlls.txt").read_text().splitlines()
           if line.strip() and not line.startswith("#")}
    path = search_path(libraries)
    waiting = [file for file in payload.rglob("*") if file.suffix.lower() in (".exe", ".dll")]
    missing = set()
    while waiting:
        for name in imports(waiting.pop()):
            target = payload / name
            if name.lower() in own or name.lower().startswith("api-ms-win-") or target.exists():
                continue
            found = next((folder / name for folder in path if (folder / name).exists()), None)
            if found is None:
                missing.add(name)
                continue
            shutil.copyfile(found, target)
            waiting.append(target)
    if missing:
        sys.exit("Neither here nor one of Windows' own: " + ", ".join(sorted(missing)))


def copy_licenses(payload, libraries):
    target = payload / "licenses"
    shutil.copytree(libraries / "licenses", target)
    for name, package in COPYRIGHTS.items():
        (target / name).mkdir()
        shutil.copyfile(f"/usr/share/doc/{package}/copyright", target / name / "copyright")
    for name in ("GPL-2", "GPL-3", "LGPL-2.1", "LGPL-3"):
        shutil.copyfile(f"/usr/share/common-licenses/{name}", target / f"{name}.txt")
    (target / "wordlist").mkdir()
    shutil.copyfile(HERE.parents[1] / "resources/keeper/LICENSE.txt", target / "wordlist" / "LICENSE.txt")
    recipe = (libraries / "recipe").read_text()
    (target / "SOURCES.txt").write_text(
        "Quillery is built with these source packages of Debian 12, each with Debian's changes, by the program\n"
        "packaging/windows/build of its own sources. The licence of each lies in the folder of its name.\n\n" + recipe,
        newline="\r\n")
    shutil.copyfile(HERE.parents[1] / "LICENSE", payload / "LICENSE.txt")


def write_list(payload):
    """What the uninstaller deletes: the files by name, then the folders that are empty."""
    entries = sorted(payload.rglob("*"), key=lambda entry: (-len(entry.parts), entry))
    lines = []
    for entry in entries:
        name = str(entry.relative_to(payload)).replace("/", "\\")
        lines.append(f'{"RMDir" if entry.is_dir() else "Delete"} "$INSTDIR\\{name}"')
    lines.sort(key=lambda line: line.startswith("RMDir"))
    (payload.parent / "files.nsh").write_text("\n".join(lines) + "\n")


def main():
    program, libraries, payload = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    payload.mkdir(parents=True)
    for file in program.iterdir():
        if file.suffix.lower() in (".exe", ".jpg", ".png"):
            shutil.copyfile(file, payload / file.name)
    if (program / "modules").is_dir():
        shutil.copytree(program / "modules", payload / "modules", copy_function=shutil.copyfile)
    shutil.copytree(program / "dictionaries", payload / "dictionaries", copy_function=shutil.copyfile)
    for pattern in PLUGINS:
        folder, name = pattern.split("/")
        (payload / folder).mkdir()
        for file in (libraries / "plugins" / folder).glob(name):
            shutil.copyfile(file, payload / folder / file.name)
    copy_libraries(payload, libraries)
    for file in payload.rglob("*"):
        if file.suffix.lower() in (".exe", ".dll"):
            subprocess.run([f"{MINGW}-strip", str(file)], check=True)
    copy_licenses(payload, libraries)
    write_list(payload)


if __name__ == "__main__":
    main()
