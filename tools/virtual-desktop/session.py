"""A private desktop for one agent: X server, session bus, window manager, panel, notifications,
development server. It does not touch the desktop, the home or the settings of the user who runs it.
All waits are for a condition, with a limit and a sentence that says what did not happen.
"""

import argparse
import contextlib
import os
import pathlib
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

PATIENCE = 40.0  # seconds; a loaded machine with two processors needs a good part of it
HOTKEY = ("Control_L", "Alt_L", "Super_L", "h")
LETTER = "Dear Ms Whitcombe, thank you for the visit on 14 March. The second draft suits us well."
SECRET = "correct horse battery staple"
SANITIZER_REPORT = re.compile(
    r"==\d+==ERROR: \w+Sanitizer|WARNING: \w+Sanitizer|:\d+:\d+: runtime error: ")


class Failure(Exception):
    """A condition that did not come true. The message says which."""


@contextlib.contextmanager
def failing_with_a_sentence(program):
    """Exits with the message of a Failure, without a traceback."""
    try:
        yield
    except Failure as failure:
        sys.exit(f"{program}: {failure}")


def wait_for(what, condition, seconds=PATIENCE):
    """Returns the first true value of `condition()`. Raises Failure with `what` on a time-out."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Failure(f"{what}: not within {seconds:g} s")
        time.sleep(0.02)


def act_until(act, condition, what):
    """Repeats `act` every two seconds until `condition()` holds, as a person does: a new window may
    ignore the first key or click."""
    def acted():
        act()
        try:
            return wait_for(what, condition, 2)
        except Failure:
            return False
    return wait_for(what, acted)


def arguments_parser(description):
    """Returns a parser with the option that all users of Session have."""
    parser = argparse.ArgumentParser(description=description,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=lambda path: pathlib.Path(path).resolve(),
                        default=pathlib.Path(__file__).parents[2] / "build/dev",
                        help="the build folder with the programs")
    return parser


def words_of(command):
    """Returns the command for `subprocess`. Raises Failure when the program is missing."""
    words = [str(part) for part in command]
    if not shutil.which(words[0]):
        raise Failure(f"{words[0]} is missing; ./demo installs and builds what a session needs")
    return words


class Session:
    """A context manager. `build` is the build folder with the programs."""

    is_visible = True  # a picture can be taken of it

    def __init__(self, build, size="1280x800", panel=False, x_options=()):
        self.build = pathlib.Path(build).resolve()
        linux_agent = self.build / "client_integrations/linux-agent"
        self.quillseal = linux_agent / "Sources/quillseal"
        self.held_keys = self.build / "tools/virtual-desktop/held-keys"
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quillseal-session-"))
        self.home = self.folder / "home"
        self.processes = []
        self.faults = []  # in the project's programs, which no test may have noticed
        self.size = size
        self.has_panel = panel
        self.x_options = x_options
        self.env = self._environment()
        self.agent = None
        self.server_url = None
        self.server = None
        self.tpm = None

    def _environment(self):
        kept = ("PATH", "TZ", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS")
        env = {name: os.environ[name] for name in kept if name in os.environ}
        runtime = self.folder / "runtime"
        for folder in (self.home, runtime):
            folder.mkdir(mode=0o700)
        env.update(
            HOME=str(self.home),
            XDG_RUNTIME_DIR=str(runtime),
            XDG_CONFIG_HOME=str(self.home / ".config"),
            XDG_DATA_HOME=str(self.home / ".local/share"),
            XDG_STATE_HOME=str(self.home / ".local/state"),
            XDG_CACHE_HOME=str(self.home / ".cache"),
            XDG_SESSION_TYPE="x11",
            LANG="C.UTF-8",
            NO_AT_BRIDGE="1",
            GTK_A11Y="none",
            GSETTINGS_BACKEND="memory",
            QT_QPA_PLATFORMTHEME="",
            SAL_USE_VCLPLUGIN="gen",
        )
        return env

    def __enter__(self):
        try:
            self._start_desktop()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, value, trace):
        for process in reversed(self.processes):
            self.end(process)
        for log in sorted(self.folder.glob("*.log")):
            text = log.read_text(errors="replace")
            if found := SANITIZER_REPORT.search(text):
                self.faults.append(f"{log.name}: {text[found.start():]}")
        shutil.rmtree(self.folder, ignore_errors=True)
        if self.faults:
            raise Failure("\n".join(self.faults))

    # Processes

    def start(self, *command, **options):
        """Starts a program in the session. Its output goes to a file named after it."""
        name = pathlib.Path(command[0]).name
        log = self.folder / f"{name}-{len(self.processes)}.log"
        with open(log, "wb") as output:
            process = subprocess.Popen(
                words_of(command), env=self.env, cwd=self.home,
                stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                start_new_session=True, **options)
        process.log = log
        self.processes.append(process)
        return process

    def end(self, process, how=signal.SIGTERM):
        """Ends a program and all its children."""
        ours = self.build in pathlib.Path(process.args[0]).parents
        for attempt in (how, signal.SIGKILL):
            try:
                os.killpg(process.pid, attempt)
            except ProcessLookupError:
                pass
            try:
                process.wait(PATIENCE if ours else 5)
            except subprocess.TimeoutExpired:
                if ours:
                    self.faults.append(f"{process.log.name}: it goes on though it was told to end")
                continue
            break
        if process in self.processes:
            self.processes.remove(process)

    def run(self, *command, seconds=PATIENCE, check=True, **options):
        """Runs a program and returns its output."""
        # xclip falls back to Latin-1 when a program that is just taking the selection refuses
        # UTF-8.
        done = subprocess.run(words_of(command), env=self.env, timeout=seconds, capture_output=True,
                              text=True, errors="replace", check=False, **options)
        if check and done.returncode != 0:
            raise Failure(f"{' '.join(map(str, command))} ended with {done.returncode}: "
                          f"{done.stdout}{done.stderr}")
        return done.stdout

    def output_of(self, process):
        return process.log.read_text(errors="replace")

    def wait_for_output(self, process, pattern, what):
        def found():
            match = re.search(pattern, self.output_of(process))
            if match is None and process.poll() is not None:
                raise Failure(f"{what}: it ended with {process.returncode}\n"
                              f"{self.output_of(process)}")
            return match
        return wait_for(what, found)

    def start_x_server(self, *options):
        """Starts all later programs on this display."""
        display_file = self.folder / f"display-{len(self.processes)}"
        with open(display_file, "w") as number:
            server = self.start(
                "Xvfb", "-displayfd", number.fileno(), "-screen", "0", f"{self.size}x24",
                "-nolisten", "tcp", *options, pass_fds=[number.fileno()])
        number = wait_for("the X server starts", lambda: display_file.read_text().strip())
        self.env["DISPLAY"] = f":{number}"
        return server

    def _start_desktop(self):
        # Without this, the server resets whenever its last client leaves, which is often while the
        # desktop starts, and drops clients that connect meanwhile.
        self.x_server = self.start_x_server("-noreset", *self.x_options)
        self._start_bus()
        self._start_window_manager()
        self._start_notifications()

    def _start_bus(self):
        self.bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1")
        address = self.wait_for_output(self.bus, r"unix:\S+", "the session bus starts")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address[0]

    def _start_window_manager(self):
        manager = self.start("openbox", "--sm-disable")

        def managed():
            if manager.poll() is not None:
                raise Failure(f"the window manager ended: {self.output_of(manager)}")
            return "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK", check=False)
        wait_for("the window manager starts", managed)
        if self.has_panel:
            self.panel = self.start("trayer", "--edge", "top", "--align", "right",
                                    "--widthtype", "request", "--height", "26")

    def _start_notifications(self):
        self.start("dunst")
        wait_for("the notification service starts",
                 lambda: "true" in self.run(
                     "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus",
                     "--object-path", "/org/freedesktop/DBus", "--method",
                     "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.Notifications",
                     check=False))
        self.monitor = self.start(
            "dbus-monitor", "--session", "interface='org.freedesktop.Notifications'")

    # The agent and its server

    @property
    def registry(self):
        return self.folder / "registry.sqlite"

    def start_server(self, *options, port=0):
        self.server = self.start(self.build / "tools/signing-server/quillseal-dev-server",
                                 "--port", port, "--database", self.registry, "--verbose", *options)
        found = self.wait_for_output(self.server, r"http://[\d.]+:\d+",
                                     "the development server starts")
        self.server_url = found[0]
        return self.server_url

    def recorded(self):
        """Returns text digest and scope of the server's signatures, the oldest first."""
        database = sqlite3.connect(f"file:{self.registry}?mode=ro", uri=True)
        try:
            return database.execute(
                "SELECT text_digest, scope FROM signatures ORDER BY rowid").fetchall()
        finally:
            database.close()

    @property
    def settings_file(self):
        return self.home / ".config/Quillseal/Quillseal.conf"

    def write_settings(self, **settings):
        """Replaces the settings file, as another program would."""
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        new = self.settings_file.with_suffix(".new")
        new.write_text("[General]\n" + "".join(f"{k}={v}\n" for k, v in settings.items()))
        new.chmod(0o600)
        new.replace(self.settings_file)

    def start_agent(self, *options, tpm="none"):
        self.agent = self.start(self.quillseal, "--tpm", tpm, *options)
        self.wait_for_output(self.agent, r"\[start\] ready", "the agent is ready")
        return self.agent

    def start_software_tpm(self):
        """Starts a software TPM. Returns its name for the agent."""
        # The library adds ".ctrl" to the socket's path to find the control socket.
        folder = pathlib.Path(tempfile.mkdtemp(prefix="tpm-", dir=self.folder))
        socket = folder / "s"
        self.tpm = self.start("swtpm", "socket", "--tpm2", "--tpmstate", f"dir={folder}",
                              "--ctrl", f"type=unixio,path={socket}.ctrl", "--server",
                              f"type=unixio,path={socket}", "--flags",
                              "not-need-init,startup-clear")
        wait_for("the software TPM starts", socket.exists)
        return f"swtpm:path={socket}"

    def wait_for_log(self, pattern, what):
        return self.wait_for_output(self.agent, pattern, what)

    # Windows and keys

    def window_names(self):
        names = []
        ids = self.run("xdotool", "search", "--onlyvisible", "--name", ".", check=False).split()
        for window in ids:
            names.append(self.run("xdotool", "getwindowname", window, check=False).strip())
        return names

    def active_window_name(self):
        return self.run("xdotool", "getactivewindow", "getwindowname", check=False).strip()

    def wait_for_window(self, pattern, what=None):
        """Waits until a window whose title matches is focused."""
        return wait_for(what or f"a window “{pattern}” comes to the front",
                        lambda: self._has_keys() and re.search(pattern, self.active_window_name()))

    def active_window(self):
        return self.run("xdotool", "getactivewindow", check=False).strip()

    def _has_keys(self):
        """Returns whether keys go to the program of the active window: while windows open and
        close, the window manager may still have the focus. The upper bits of a window's id identify
        the program."""
        focus = self.run("xdotool", "getwindowfocus", "-f", check=False).strip()
        active = self.active_window()
        return bool(focus and active) and int(focus) >> 21 == int(active) >> 21

    def wait_for_next_window(self, before, pattern):
        """Waits until a window other than `before` is focused, possibly with the same title."""
        wait_for(f"another window “{pattern}” comes to the front",
                 lambda: self.active_window() != before and self._has_keys() and
                 re.search(pattern, self.active_window_name()))

    def wait_for_no_window(self, pattern):
        wait_for(f"the window “{pattern}” closes",
                 lambda: not any(re.search(pattern, name) for name in self.window_names()))

    def key(self, *keys):
        # The agent uses the same device, so keys that it holds at the same time would mix with
        # these.
        self.run(self.held_keys, 0)
        self.run("xdotool", "key", *keys)

    def key_until(self, key, condition, what):
        return act_until(lambda: self.key(key), condition, what)

    def click(self, left, top):
        self.run("xdotool", "mousemove", left, top, "click", 1)

    def pixels(self):
        """Returns the display's pixels: red, green and blue of each, line by line."""
        return subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"],
                              env=self.env, check=True, capture_output=True).stdout

    def wide_button(self):
        """Where a button of the signing pages' colour fills most of a line on their white card, the
        lowest there is: its left and right edge and a height between top and bottom. Nothing when
        it is disabled, since it is pale then, or out of sight."""
        width, height = map(int, self.size.split("x"))
        picture = self.pixels()
        blue, white = b"\x1e\x3a\x8a", b"\xff\xff\xff"
        for line in reversed(range(height)):
            row = picture[line * width * 3:(line + 1) * width * 3]
            begin = row.find(white + 300 * blue) // 3 + 1
            if begin <= 0:
                continue
            end = begin
            while row[end * 3:end * 3 + 3] == blue:
                end += 1
            if row[end * 3:end * 3 + 3] == white:
                return begin, end, line
        return None

    def type(self, text):
        self.run("xdotool", "type", "--delay", "8", text)

    def close(self, title, *keys):
        """Waits for a dialog and answers it with the keyboard."""
        self.wait_for_window(title)
        self.key(*keys or ("Return",))
        self.wait_for_no_window(title)

    def press_hotkey(self, milliseconds=120):
        """Presses the keys on the X server's own keyboard and holds them."""
        self.run(self.held_keys, milliseconds, *HOTKEY)

    def choose_secret(self, kind="PIN|passphrase"):
        """Chooses the secret of the new key. Returns its kind."""
        asked = self.wait_for_window(f"Choose a ({kind})")
        self.type(SECRET)
        self.key("Tab")
        self.type(SECRET)
        self.key("Return")
        return asked[1]

    def enter_secret(self, secret=SECRET, kind="PIN|passphrase"):
        self.wait_for_window(f"Enter the ({kind})")
        self.type(secret)
        self.key("Return")

    # Clipboard, notifications, pictures

    def selection(self, which="clipboard", target="UTF8_STRING"):
        try:
            return self.run("xclip", "-o", "-selection", which, "-t", target, check=False,
                            seconds=5)
        except subprocess.TimeoutExpired:
            return ""

    def wait_for_notification(self, text):
        """Waits until the notification service is asked to show this text."""
        wait_for(f"a notification tells “{text}”", lambda: text in self.output_of(self.monitor))

    def screenshot(self, path):
        """Takes a picture of the whole display once nothing moves."""
        path = pathlib.Path(path)

        def is_still():
            before = path.read_bytes() if path.exists() else b""
            self.run("import", "-window", "root", "-define", "png:exclude-chunks=date,time", path)
            return path.read_bytes() == before
        path.unlink(missing_ok=True)
        wait_for("the display is still", is_still)

    # Applications

    def open_editor(self, text, name="letter.txt"):
        """Opens an editor with a new file. Returns the file's path."""
        path = self.home / name
        path.write_text(text)
        self.wait_for_no_window(re.escape(name))  # of an earlier editor that is closing
        editor = self.start("mousepad", "--disable-server", path)
        editor.file = path
        self.wait_for_window(re.escape(name), "the editor opens")
        return editor

    def press_in_editor(self, text=LETTER, name="letter.txt"):
        """Writes the text in an editor, selects it and presses the hotkey. Returns the editor."""
        editor = self.open_editor(text, name)
        self.select_all(text)
        self.press_hotkey()
        return editor

    def select_all(self, expected, keys="ctrl+a"):
        """Compares without white space, since applications treat paragraphs differently."""
        def selected():
            self.key(keys)  # a window that was just activated may miss the first
            return self.selection("primary").split() == expected.split()
        wait_for("all of the text is selected", selected)

    def saved_text(self, editor, containing):
        """Saves in the editor until its file holds the text. Returns the file's text."""
        def saved():
            if "*" in self.active_window_name():
                self.key("ctrl+s")
            text = editor.file.read_text()
            return text if containing in text else None
        return wait_for(f"the editor's text contains “{containing}”", saved)
