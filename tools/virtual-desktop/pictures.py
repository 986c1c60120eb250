#!/usr/bin/env python3
"""Takes the pictures of the agent's own windows for the documentation: menu, new-passphrase,
confirmation, passphrase, refusal and settings. Fails if a window does not fit on the screen. Needs
root: the person in the pictures has a home below /home in a private mount.

Other pictures: demo.py takes signed; Tests/e2e/handoff-test, given a folder, takes
handoff-1-selected to handoff-no-extension; verify and handoff are the server's pages in any
browser.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys

import session

LETTER = ("Dear Ms Whitcombe,\n\nthank you for the visit on 14 March. The second draft of the lease "
          "suits us well.\n\nYours, Ada Ferrier")
SCAM = ("This is the tax office. There is a warrant for your arrest. Pay the fine with gift cards "
        "today and read me the codes on the phone, and tell nobody about this call.")
HOME = pathlib.Path("/home/ada")
PORT = 8427


class Photographer:
    def __init__(self, desktop, folder):
        self.desktop = desktop
        self.folder = folder
        self.width, self.height = (int(part) for part in desktop.size.split("x"))

    def take(self, name, left, top, width, height):
        if left < 0 or top < 0 or left + width > self.width or top + height > self.height:
            raise session.Failure(f"“{name}” does not fit: {width}x{height} at {left},{top}")
        area = f"{width}x{height}+{left}+{top}"
        path = self.folder / f"{name}.png"
        self.desktop.run("import", "-window", "root", "-crop", area, "+repage", "-strip",
                         "+dither", "-colors", "64", "-define", "png:compression-level=9", path)
        print(f"{path}  {width}x{height}  {path.stat().st_size} bytes")

    def geometry(self, window):
        text = self.desktop.run("xwininfo", "-id", window)
        return [int(re.search(rf"{name}: +(-?\d+)", text)[1])
                for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]

    def take_window(self, name, title):
        self.desktop.wait_for_window(title)
        window = self.desktop.run("xdotool", "getactivewindow").strip()
        seen = set()

        def is_still():  # apart from the blinking caret
            picture = self.desktop.folder / "window.bmp"
            self.desktop.run("import", "-window", window, picture)
            now = picture.read_bytes()
            is_known = now in seen
            seen.add(now)
            return is_known
        session.wait_for("the window is drawn", is_still)
        x, y, width, height = self.geometry(window)
        frame = self.desktop.run("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        left, right, top, bottom = (int(part) for part in re.findall(r"\d+", frame))
        self.take(name, x - left, y - top, width + left + right, height + top + bottom)

    def take_menu(self, name):
        panel = self.desktop.run("xdotool", "search", "--onlyvisible", "--class", "trayer").split()[0]
        x, y, width, height = self.geometry(panel)
        before = self.menus()
        self.desktop.run("xdotool", "mousemove", x + width // 2, y + height // 2, "click", "3")
        menu = session.wait_for("the menu opens", lambda: self.menus() - before).pop()
        left, top, wide, high = self.geometry(menu)
        right, bottom = max(left + wide, x + width), max(top + high, y + height)
        left, top = min(left, x), min(top, y)
        self.take(name, left, top, right - left, bottom - top)
        self.desktop.key("Escape")

    def menus(self):
        return set(self.desktop.run("xdotool", "search", "--onlyvisible", "--class", "quillseal",
                                    check=False).split())


def run(arguments):
    arguments.to.mkdir(parents=True, exist_ok=True)
    with session.Session(arguments.build, size=arguments.size, panel=True) as desktop:
        HOME.mkdir(mode=0o700)
        desktop.home = HOME
        desktop.env.update(HOME=str(HOME), XDG_CONFIG_HOME=f"{HOME}/.config",
                           XDG_DATA_HOME=f"{HOME}/.local/share")
        photographer = Photographer(desktop, arguments.to)
        url = desktop.start_server("--identity", "Ada Ferrier", port=PORT)
        desktop.write_settings(ServerURL=url, SigningMode="enclave", ConfirmBeforeSigning="true")
        desktop.start_agent()
        session.wait_for("the shield is in the panel", lambda: desktop.run(
            "xdotool", "search", "--onlyvisible", "--class", "trayer", check=False).split())
        photographer.take_menu("menu")
        editor = desktop.press_in_editor(LETTER)
        photographer.take_window("new-passphrase", "Choose a passphrase")
        desktop.choose_secret()
        photographer.take_window("confirmation", "Sign this content?")
        desktop.key("Return")
        photographer.take_window("passphrase", "Enter the passphrase")
        desktop.enter_secret()
        desktop.saved_text(editor, "Check this signature")
        desktop.end(editor)
        desktop.press_in_editor(SCAM, "call.txt")
        photographer.take_window("refusal", "^Not signed")
        desktop.key("Return")
        desktop.run(desktop.quillseal, "--settings")
        photographer.take_window("settings", "Quill Seal Server Settings")


def main():
    parser = session.arguments_parser(__doc__)
    parser.add_argument("--to", required=True, metavar="FOLDER", help="the folder for the pictures",
                        type=lambda path: pathlib.Path(path).resolve())
    parser.add_argument("--size", default="1024x600", help="of the screen")
    parser.add_argument("--own-home", action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    if not arguments.own_home:
        os.execvp("unshare", ["unshare", "--mount", sys.executable, "-B", *sys.argv, "--own-home"])
    subprocess.run(["mount", "-t", "tmpfs", "none", "/home"], check=True)
    with session.failing_with_a_sentence("pictures"):
        run(arguments)


if __name__ == "__main__":
    main()
