#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Turns the SVG sources beside this script into the PNG files of the program's icon resource.

Usage: render.py OUTPUT-FOLDER RSVG-CONVERT

The sources hold placeholders: @ink@ the line colour, @body@ the opacity of the body, @width@ the line
width. Signs on a filled disc are holes, so that a whole picture can be tinted. An element with
data-from="N" is left out of pictures under N pixels, one with data-below="N" out of those of N pixels
and more. Every source gives one PNG for each colour scheme and size, drawn by the given rsvg-convert;
pictures that are newer than their source are kept.
Written to the output folder as well: quillery_icons.qrc and application/quillery.ico.
"""

import os
import pathlib
import re
import struct
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

SOURCES = pathlib.Path(__file__).resolve().parent

# Pixels; twice the logical sizes are among them, for screens at 200 %.
SIZES = {
    "functions": (16, 20, 24, 32, 40, 48, 64, 72, 96, 144),
    "commands": (16, 20, 24, 32, 40, 48, 64),
    "marks": (16, 20, 24, 32, 40, 48),
    "messages": (44, 66, 88),
}
APPLICATION_SIZES = (16, 20, 24, 32, 40, 48, 64, 128, 256)

# Two names for one drawing.
ALIASES = {"customize": "edit"}

COLOURS = {
    "light": {"text": "#2A2825", "accent": "#0B6760", "due": "#8A4B00", "negative": "#A92B1D", "body": "0.16"},
    "dark": {"text": "#EEE9E0", "accent": "#74C9BF", "due": "#F2BE6B", "negative": "#FF9C8C", "body": "0.28"},
}


def half_way_to_white(colour):
    channels = (int(colour[i:i + 2], 16) for i in (1, 3, 5))
    return "#" + "".join(f"{(channel + 256) // 2:02X}" for channel in channels)


def ink(source, scheme):
    """The line colour: the drawing's own colour or token, else the text colour."""
    match = re.search(r'data-colour="([^"]+)"', source)
    colour = match.group(1) if match else "text"
    if not colour.startswith("#"):
        return COLOURS[scheme][colour]
    return half_way_to_white(colour) if scheme == "dark" else colour


def line_width(size):
    return "2" if size >= 32 else "2.3" if size >= 20 else "2.6"


def filled_in(source, scheme, size):
    values = {"ink": ink(source, scheme), "body": COLOURS[scheme]["body"], "width": line_width(size)}
    return re.sub(r"@(\w+)@", lambda match: values[match.group(1)], source)


def of_this_size(source, size):
    def is_kept(line):
        least = re.search(r'data-from="(\d+)"', line)
        limit = re.search(r'data-below="(\d+)"', line)
        return not (least and size < int(least.group(1))) and not (limit and size >= int(limit.group(1)))

    return "".join(line for line in source.splitlines(keepends=True) if is_kept(line))


def tasks(output):
    """(source, scheme, size, picture) of every picture; the application icon has no scheme."""
    for kind, sizes in SIZES.items():
        for source in sorted((SOURCES / kind).glob("*.svg")):
            for scheme in COLOURS:
                for size in sizes:
                    yield source, scheme, size, output / scheme / f"{source.stem}-{size}.png"
    for size in APPLICATION_SIZES:
        name = "quillery-small.svg" if size < 40 else "quillery.svg"
        yield SOURCES / "application" / name, None, size, output / "application" / f"quillery-{size}.png"


def is_current(picture, source):
    if not picture.exists():
        return False
    newest = max(source.stat().st_mtime, pathlib.Path(__file__).stat().st_mtime)
    return picture.stat().st_mtime > newest


def render(task):
    source, scheme, size, picture = task
    if is_current(picture, source):
        return
    drawing = of_this_size(source.read_text(encoding="utf-8"), size)
    if scheme:
        drawing = filled_in(drawing, scheme, size)
    subprocess.run([sys.argv[2], "--width", str(size), "--height", str(size), "--output", str(picture)],
                   input=drawing.encode("utf-8"), check=True)


def write_resource_list(output, pictures):
    lines = ["<RCC>", '<qresource prefix="/icons">']
    for picture in pictures:
        path = picture.relative_to(output).as_posix()
        lines.append(f"<file>{path}</file>")
        for alias, name in ALIASES.items():
            if f"/{name}-" in path:
                lines.append(f'<file alias="{path.replace(f"/{name}-", f"/{alias}-")}">{path}</file>')
    lines += ["</qresource>", "</RCC>", ""]
    (output / "quillery_icons.qrc").write_text("\n".join(lines), encoding="utf-8")


def write_windows_icon(output):
    """An .ico file is a directory of pictures; each of them may be a whole PNG file."""
    pictures = [(size, (output / f"quillery-{size}.png").read_bytes()) for size in APPLICATION_SIZES]
    header = struct.pack("<HHH", 0, 1, len(pictures))
    offset = len(header) + 16 * len(pictures)
    entries, contents = b"", b""
    for size, data in pictures:
        side = size % 256  # 256 is written as 0
        entries += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
        contents += data
    (output / "quillery.ico").write_bytes(header + entries + contents)


def main():
    output = pathlib.Path(sys.argv[1]).resolve()
    for folder in (*COLOURS, "application"):
        (output / folder).mkdir(parents=True, exist_ok=True)
    work = list(tasks(output))
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(render, work))
    write_resource_list(output, [picture for *_, picture in work])
    write_windows_icon(output / "application")


if __name__ == "__main__":
    main()
