"""A private Wayland desktop for one agent: headless sway with the services of `session`. The person
types on a virtual keyboard, and sway lists the windows.
"""

import contextlib
import json
import os
import pathlib
import pwd
import re
import shutil
import subprocess
import tempfile
import time

import session
from session import Failure, wait_for

CONFIGURATION = """output HEADLESS-1 resolution 1280x800
default_border none
focus_follows_mouse no
focus_on_window_activation none
workspace_layout tabbed
"""


class Person:
    """Keyboard and mouse. The layout is named as in xkeyboard-config(7)."""

    def __init__(self, desktop, layout, **options):
        self.process = subprocess.Popen(
            [desktop.build / "tools/virtual-desktop/wayland-person", layout], env=desktop.env,
            text=True, bufsize=1, stdin=subprocess.PIPE, stdout=subprocess.PIPE, **options)
        self._expect("ready", f"a keyboard with the layout {layout}")

    def _expect(self, answer, what):
        if (told := self.process.stdout.readline().strip()) != answer:
            raise Failure(f"{what}: {told or 'no answer'}")

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self._expect("done", f"the person does “{command}”")

    def end(self):
        self.process.stdin.close()
        self.process.wait(5)
        self.process.stdout.close()


class WaylandSession(session.Session):
    """`layout` is the layout of the person's keyboard."""

    def __init__(self, build, layout="us"):
        self.layout = layout
        self.person = None
        self.runtime = None
        super().__init__(build)

    def _environment(self):
        env = super()._environment()
        env.update(XDG_SESSION_TYPE="wayland", GDK_BACKEND="wayland", MOZ_ENABLE_WAYLAND="1",
                   LIBGL_ALWAYS_SOFTWARE="1", SAL_USE_VCLPLUGIN="gtk3")
        return env

    def _start_sway(self):
        """Sway refuses to run as root. Its sockets are open to its own user and to root."""
        self.runtime = pathlib.Path(tempfile.mkdtemp(prefix="quillseal-sway-"))
        (self.runtime / "config").write_text(CONFIGURATION)
        command = ["sway", "--config", self.runtime / "config"]
        if os.geteuid() == 0:
            nobody = pwd.getpwnam("nobody")
            for path in (self.runtime, self.runtime / "config"):
                os.chown(path, nobody.pw_uid, nobody.pw_gid)
            command = ["setpriv", f"--reuid={nobody.pw_uid}", f"--regid={nobody.pw_gid}",
                       "--clear-groups", *command]
        outside = {name: value for name, value in self.env.items() if name != "GDK_BACKEND"}
        kept, self.env = self.env, {
            **outside, "XDG_RUNTIME_DIR": str(self.runtime), "HOME": str(self.runtime),
            "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"}
        for name in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"):
            del self.env[name]
        try:
            self.compositor = self.start(*command)
        finally:
            self.env = kept

        def socket(pattern):
            found = [path for path in self.runtime.glob(pattern) if path.is_socket()]
            if self.compositor.poll() is not None:
                raise Failure(f"sway ended: {self.output_of(self.compositor)}")
            return found and str(found[0])
        self.env["WAYLAND_DISPLAY"] = wait_for("sway starts", lambda: socket("wayland-*"))
        self.env["SWAYSOCK"] = wait_for("sway listens", lambda: socket("sway-ipc.*"))
        wait_for("sway answers", lambda: self.run("swaymsg", "-t", "get_version", check=False))
        # Sway starts Xwayland at the first connection, and sets DISPLAY in its environment.
        told = self.runtime / "display"
        self.run("swaymsg", "exec", f"echo $DISPLAY > {told}")
        self.env["DISPLAY"] = wait_for("sway names its X display",
                                       lambda: told.exists() and told.read_text().strip())
        if os.geteuid() == 0:  # the X server accepts the user that sway runs as
            self.run("swaymsg", "exec", "xhost +si:localuser:root")
        wait_for("Xwayland starts", lambda: self.run("xprop", "-root", check=False))

    def _start_desktop(self):
        self._start_bus()
        self._start_sway()
        self._start_notifications()
        self.person = Person(self, self.layout)

    def __exit__(self, kind, value, trace):
        try:
            if self.person:
                self.person.end()
            super().__exit__(kind, value, trace)
        finally:
            if self.runtime:
                shutil.rmtree(self.runtime, ignore_errors=True)

    # Windows

    def tell_of_windows(self):
        """Returns a command that prints a line whenever a window changes."""
        return "swaymsg", "-m", "-r", "-t", "subscribe", '["window"]'

    def windows(self):
        """Returns all windows as sway describes them: name, app_id, focused, shell and so on."""
        found = []

        def visit(node):
            if node.get("pid"):
                found.append(node)
            for child in node["nodes"] + node["floating_nodes"]:
                visit(child)
        visit(json.loads(self.run("swaymsg", "-r", "-t", "get_tree")))
        return found

    def window_names(self):
        return [window["name"] or "" for window in self.windows()]

    def _active(self):
        return next((window for window in self.windows() if window["focused"]), None)

    def active_window_name(self):
        window = self._active()
        return (window and window["name"]) or ""

    def active_window(self):
        window = self._active()
        return str(window["id"]) if window else ""

    def _has_keys(self):
        return self._active() is not None

    def focus(self, pattern):
        """Focuses a window, as a person does with the keys or the mouse."""
        window = next(window for window in self.windows()
                      if re.search(pattern, window["name"] or ""))
        self.run("swaymsg", f"[con_id={window['id']}] focus")
        self.wait_for_window(pattern)

    # Keys

    def key(self, *keys):
        names = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L"}
        for chord in keys:
            self.person.tell("down " + " ".join(names.get(key, key) for key in chord.split("+")))
            self.person.tell("up")

    def type(self, text):
        for number, line in enumerate(text.split("\n")):
            if number > 0:
                self.key("Return")
            if line:
                self.person.tell("type " + line)

    def press_hotkey(self, milliseconds=120):
        self.person.tell("down " + " ".join(session.HOTKEY))
        time.sleep(milliseconds / 1000)
        self.person.tell("up")

    # Mouse and picture

    def click(self, left, top):
        width, height = self.size.split("x")
        self.person.tell(f"click {left} {top} {width} {height}")

    def pixels(self):
        picture = subprocess.run(["grim", "-t", "ppm", "-"], env=self.env, check=True,
                                 capture_output=True).stdout
        return picture.split(b"\n", 3)[3]  # after kind, size and depth

    # Clipboard

    def selection(self, which="clipboard", target="text/plain;charset=utf-8"):
        options = ["--primary"] if which == "primary" else []
        options += ["--list-types"] if target == "TARGETS" else ["--no-newline", "--type", target]
        try:
            return self.run("wl-paste", *options, check=False, seconds=5)
        except subprocess.TimeoutExpired:
            return ""

    # Applications

    @contextlib.contextmanager
    def xwayland(self):
        """Programs that are started meanwhile use X11 even if they support Wayland."""
        kept = dict(self.env)
        self.env.update(GDK_BACKEND="x11", SAL_USE_VCLPLUGIN="gen")
        del self.env["WAYLAND_DISPLAY"]
        try:
            yield
        finally:
            self.env = kept
