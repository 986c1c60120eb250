"""A private KDE desktop for one agent: headless KWin with the services of `session`. The person
types through KWin's interface for test tools, which acts as the only keyboard. A script inside KWin
lists the windows.
"""

import ctypes
import json
import os
import pathlib
import re
import shutil
import subprocess

import session
import wayland_session
from session import Failure, wait_for

# Prints all windows whenever one changes.
SCRIPT = """
function tell() {
  print("windows " + JSON.stringify(workspace.clientList().map(function (window) {
    return {id: String(window.internalId), name: String(window.caption), pid: window.pid,
            app_id: String(window.resourceClass), focused: workspace.activeClient === window,
            shell: window.windowId ? "xwayland" : "xdg_shell"};
  })));
}
function follow(window) {
  window.captionChanged.connect(tell);
  window.minimizedChanged.connect(tell);
  tell();
}
workspace.clientAdded.connect(follow);
workspace.clientRemoved.connect(tell);
workspace.clientActivated.connect(tell);
workspace.clientList().forEach(follow);
tell();
"""
FOCUS_ACTION = 0


def become_ordinary():
    """Drops root's right to read every process, so that KWin treats root like any user."""
    cap_sys_ptrace, drop_from_bounding_set = 19, 24
    ctypes.CDLL(None).prctl(drop_from_bounding_set, cap_sys_ptrace, 0, 0, 0)


class KwinSession(wayland_session.WaylandSession):
    """`is_installed`: whether the package's desktop file exists, which lets the agent see windows
    and press keys in KWin. `locks`: whether the screen can be locked."""

    is_visible = False  # without OpenGL KWin takes no pictures

    def __init__(self, build, layout="us", is_installed=True, locks=False):
        self.is_installed = is_installed
        self.locks = locks
        super().__init__(build, layout)

    def _environment(self):
        env = super()._environment()
        env.update(XDG_CURRENT_DESKTOP="KDE")
        return env

    def start(self, *command, **options):
        return super().start(*command, preexec_fn=become_ordinary, **options)

    def allow(self, name, entry):
        folder = self.home / ".local/share/applications"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{name}.desktop").write_text(entry)

    def _write_configuration(self):
        person = self.build / "tools/virtual-desktop/wayland-person"
        self.allow("person", f"[Desktop Entry]\nType=Application\nName=Person\nExec={person}\n"
                             "X-KDE-Wayland-Interfaces=org_kde_kwin_fake_input\n")
        for program in ("quillseal", "quillseal-wayland-connector") if self.is_installed else ():
            entry = self.build / f"client_integrations/linux-agent/{program}.desktop"
            place = self.quillseal.with_name(program)
            self.allow(program, re.sub(r"^Exec=/\S+", f"Exec={place}", entry.read_text(), flags=re.M))
        configuration = self.home / ".config"
        configuration.mkdir(exist_ok=True)
        (configuration / "kxkbrc").write_text(f"[Layout]\nUse=true\nLayoutList={self.layout}\n")

    def _start_kwin(self):
        self._write_configuration()
        # Debian's program has a file capability and does not run in containers that lack it.
        program = self.folder / "kwin_wayland"
        shutil.copyfile(shutil.which("kwin_wayland") or "kwin_wayland", program)
        program.chmod(0o755)
        told = self.folder / "display"
        kept = self.env
        self.env = {**kept, "KWIN_COMPOSE": "Q", "QT_LOGGING_RULES": "kwin_scripting.debug=true"}
        width, height = self.size.split("x")
        options = [] if self.locks else ["--no-lockscreen"]
        try:
            self.compositor = self.start(program, "--virtual", "--width", width, "--height", height,
                                   *options, "--socket", "wayland-kwin", "--xwayland",
                                   f"sh -c 'echo $DISPLAY > {told}'")
        finally:
            self.env = kept

        def display():
            if self.compositor.poll() is not None:
                raise Failure(f"KWin ended: {self.output_of(self.compositor)}")
            return told.exists() and told.read_text().strip()
        self.env["DISPLAY"] = wait_for("KWin starts Xwayland", display)
        self.env["WAYLAND_DISPLAY"] = "wayland-kwin"
        self._follow_windows()

    def call(self, service, path, method, *arguments):
        return self.run("gdbus", "call", "--session", "--dest", service, "--object-path", path,
                        "--method", method, *arguments)

    def call_kwin(self, path, method, *arguments):
        return self.call("org.kde.KWin", path, method, *arguments)

    def call_shortcuts(self, method, *arguments):
        return self.call("org.kde.kglobalaccel", "/kglobalaccel",
                         f"org.kde.KGlobalAccel.{method}", *arguments)

    def lock(self):
        self.call("org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver.Lock")
        wait_for("the screen is locked", lambda: "true" in self.call(
            "org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver.GetActive"))

    def choose_layout(self, number):
        self.call("org.kde.keyboard", "/Layouts", "org.kde.KeyboardLayouts.setLayout", str(number))

    def _follow_windows(self):
        script = self.folder / "windows.js"
        script.write_text(SCRIPT)
        self.call_kwin("/Scripting", "org.kde.kwin.Scripting.loadScript", str(script))
        self.call_kwin("/Scripting", "org.kde.kwin.Scripting.start")
        self.wait_for_output(self.compositor, "windows ", "KWin reports windows")

    def _start_desktop(self):
        self._start_bus()
        self._start_kwin()
        self._start_notifications()
        self.person = wayland_session.Person(self, self.layout, preexec_fn=become_ordinary)

    def tell_of_windows(self):
        return "tail", "--follow", "--lines=0", "--sleep-interval=0.01", self.compositor.log

    def windows(self):
        told = re.findall(r"^.*\bwindows (\[.*\])$", self.output_of(self.compositor), re.M)
        return json.loads(told[-1])

    def show(self, window):
        """Brings the window with this id to the front."""
        self.call_kwin("/WindowsRunner", "org.kde.krunner1.Run", f"{FOCUS_ACTION}_{window}", "")

    def focus(self, pattern):
        self.show(next(window["id"] for window in self.windows()
                       if re.search(pattern, window["name"])))
        self.wait_for_window(pattern)
