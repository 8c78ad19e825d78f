# SPDX-License-Identifier: GPL-3.0-or-later
"""What `check` works with: screens with a keyboard, programs on them, a Windows that is wine's, and the report."""
import os
import re
import subprocess
import time

MAIN = "Holm and Castle Quillery$"
LEAVE = [(MAIN, ["alt+F4"]), ("Exit$", ["Return"])]

report = []
screens = []


def check(holds, what):
    line = f"{'ok  ' if holds else 'FAIL'} {what}"
    report.append(line)
    print(line, flush=True)


def wait_for(condition, seconds=20.0, pause=0.05):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
        time.sleep(pause)
    return False


class Screen:
    """A display of its own with a window manager, so that keys reach the one program on it."""

    def __init__(self, number, pictures):
        self.pictures = pictures
        self.env = dict(os.environ, DISPLAY=f":{number}", LC_ALL="C.UTF-8")
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        screen = ["-screen", "0", "1400x1000x24", "-noreset"]  # the keyboard outlives the first program
        self.parts = [subprocess.Popen(["Xvfb", f":{number}", *screen], **quiet)]
        wait_for(lambda: subprocess.run(["setxkbmap", "de"], env=self.env, **quiet).returncode == 0)
        self.parts.append(subprocess.Popen(["openbox"], env=self.env, **quiet))
        screens.append(self)

    def tool(self, *arguments):
        env = self.env | {"LC_ALL": "C.UTF-8"}
        return subprocess.run(["xdotool", *arguments], env=env, capture_output=True, text=True).stdout.strip()

    def active(self):
        return self.tool("getactivewindow", "getwindowname")

    def is_active(self, pattern):
        return subprocess.run(["grep", "-qP", pattern], input=self.active(), text=True).returncode == 0

    def activate(self, pattern):
        """After a dialog that went: the window manager does not always know who comes next."""
        self.tool("search", "--onlyvisible", "--name", pattern, "windowactivate")

    def windows(self, pattern):
        return self.tool("search", "--onlyvisible", "--name", pattern).split()

    def press(self, keys):
        for key in keys:
            if key == "pause":
                time.sleep(4)
            elif key.startswith("text:"):
                self.tool("type", "--delay", "40", key[5:])
            else:
                self.tool("key", key)
            time.sleep(0.3)

    def act(self, steps, name):
        for pattern, keys in steps:
            if not wait_for(lambda: self.is_active(pattern)):
                check(False, f"{name}: {pattern} comes to the front, not \"{self.active()}\"")
                self.picture(f"{name}-stuck")
                return False
            time.sleep(0.7)
            self.press(keys)
        return True

    def picture(self, name):
        subprocess.run(["import", "-window", "root", str(self.pictures / f"{name}.png")], env=self.env, check=False)

    def close(self):
        for part in reversed(self.parts):
            part.terminate()
            part.wait()


class Program:
    """A copy of the program in `folder`, started by `command`."""

    def __init__(self, screen, folder, command):
        self.screen, self.folder, self.command, self.process = screen, folder, command, None

    def start(self):
        begun = time.monotonic()
        self.process = subprocess.Popen(self.command, cwd=self.folder, env=self.screen.env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        wait_for(lambda: self.screen.windows("."), 60, 0.02)
        took = time.monotonic() - begun
        # The opening picture goes at a key, which the main menu does not heed.
        wait_for(lambda: self.screen.is_active(MAIN))
        self.screen.press(["Escape", "pause"])
        return took

    def leave(self):
        self.screen.act(LEAVE, "leaving")
        for _ in range(4):
            try:
                return self.process.wait(5)
            except subprocess.TimeoutExpired:
                question, keys = LEAVE[-1]
                if self.screen.is_active(question):
                    self.screen.press(keys)  # a box that is only just coming misses its key on a busy machine
        self.tell_where_it_hangs()
        self.process.kill()
        return None

    def tell_where_it_hangs(self):
        """What is on the screen, and under wine what each thread is about, in the folder of the pictures."""
        self.screen.picture("hanging")
        if self.command[0] != "wine":
            return
        with (self.screen.pictures / "hanging.txt").open("ab") as told:
            def debug(command, *process):
                debugger = ["timeout", "120", "winedbg", "--command", command, *process]
                said = subprocess.run(debugger, env=self.screen.env, capture_output=True, check=False).stdout
                told.write(said)
                return said.decode(errors="replace")
            for number in re.findall(r"\b([0-9a-f]{8})\s+\d+\s.*quillery\.exe", debug("info process")):
                debug("bt all", "0x" + number)


class Wine:
    def __init__(self, prefix):
        # The folder of documents and its like are links to the home folder.
        self.home = prefix.with_name("wine-home")
        self.home.mkdir()
        self.env = dict(os.environ, WINEPREFIX=str(prefix), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=",
                        HOME=str(self.home), LC_ALL="C.UTF-8")
        self.prefix = prefix

    def run(self, *command, **more):
        return subprocess.run(["wine", *command], env=self.env | more, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode

    def registry(self, key, name, kind, value):
        self.run("reg", "add", key, "/v", name, "/t", kind, "/d", value, "/f")

    def prepare(self):
        self.run("wineboot", "--init")
        self.run("winecfg", "-v", "win10")
        self.registry(r"HKCU\Control Panel\Colors", "ButtonFace", "REG_SZ", "240 240 240")
        for name in ("Segoe UI", "MS Shell Dlg", "MS Shell Dlg 2", "Tahoma"):
            self.registry(r"HKCU\Software\Wine\Fonts\Replacements", name, "REG_SZ", "DejaVu Sans")

    def leave(self):
        """What was said to the registry's service counts from the next program on."""
        subprocess.run(["wineserver", "-k"], env=self.env, check=False)
        subprocess.run(["wineserver", "-w"], env=self.env, check=False)

    def dark(self, is_dark):
        self.registry(r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize", "AppsUseLightTheme",
                      "REG_DWORD", "0" if is_dark else "1")
