"""A private GNOME desktop for one agent: headless GNOME Shell with the services of `session`. The
person types on a keyboard inside the Shell, which runs in the mode for tests that lets them call
its functions.
"""

import ast
import json
import re
import shutil
import time

import session
import wayland_session
from session import Failure, act_until, wait_for

EXTENSION = "front-window-43@quillseal.com"
PERSON = """
globalThis.person = imports.gi.Clutter.get_default_backend().get_default_seat()
  .create_virtual_device(imports.gi.Clutter.InputDeviceType.KEYBOARD_DEVICE);
globalThis.held = [];
globalThis.press = (symbol, state) => {
  person.notify_keyval(imports.gi.GLib.get_monotonic_time(), symbol, state);
};
true
"""
# The RemoteDesktop portal of GNOME 43, whose user has allowed it to press keys.
PORTAL = """
const { Clutter, Gio, GLib } = imports.gi;
const path = '/org/freedesktop/portal/desktop';
const keyboard = Clutter.get_default_backend().get_default_seat()
  .create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
const respond = (invocation, options, results) => {
  const sender = invocation.get_sender().slice(1).replace('.', '_');
  const request = `${path}/request/${sender}/${options.handle_token.unpack()}`;
  invocation.return_value(new GLib.Variant('(o)', [request]));
  Gio.DBus.session.emit_signal(null, request, 'org.freedesktop.portal.Request', 'Response',
    new GLib.Variant('(ua{sv})', [0, results]));
};
class Portal {
  version = 1;
  AvailableDeviceTypes = 1;
  CreateSessionAsync([options], invocation) {
    const sender = invocation.get_sender().slice(1).replace('.', '_');
    const session = `${path}/session/${sender}/${options.session_handle_token.unpack()}`;
    const object = Gio.DBusExportedObject.wrapJSObject(`<node>
      <interface name="org.freedesktop.portal.Session"><method name="Close"/></interface></node>`,
      { Close: () => object.unexport() });
    object.export(Gio.DBus.session, session);
    exported.push(object);
    respond(invocation, options, { session_handle: new GLib.Variant('s', session) });
  }
  SelectDevicesAsync([session, options], invocation) {
    const denied = 'org.freedesktop.DBus.Error.AccessDenied';
    if (session === '/') invocation.return_dbus_error(denied, '');
    else respond(invocation, options, {});
  }
  StartAsync([session, parent, options], invocation) {
    respond(invocation, options, { devices: new GLib.Variant('u', 1) });
  }
  NotifyKeyboardKeycode(session, options, key, state) {
    keyboard.notify_key(GLib.get_monotonic_time(), key, state);
  }
  NotifyKeyboardKeysym(session, options, symbol, state) {
    keyboard.notify_keyval(GLib.get_monotonic_time(), symbol, state);
  }
}
globalThis.exported = []; // else the engine collects them
exported.push(Gio.DBusExportedObject.wrapJSObject(`<node>
  <interface name="org.freedesktop.portal.RemoteDesktop">
  <property name="version" type="u" access="read"/>
  <property name="AvailableDeviceTypes" type="u" access="read"/>
  <method name="CreateSession">
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="SelectDevices"><arg type="o" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="Start"><arg type="o" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="NotifyKeyboardKeycode"><arg type="o" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="in"/></method>
  <method name="NotifyKeyboardKeysym"><arg type="o" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="in"/></method></interface></node>`, new Portal()));
exported[0].export(Gio.DBus.session, path);
Gio.DBus.session.own_name('org.freedesktop.portal.Desktop', 0, null, null);
true
"""
WINDOWS = """
global.get_window_actors().map(actor => actor.meta_window).map(window => ({
  id: String(window.get_id()), name: window.get_title() ?? '', pid: window.get_pid(),
  app_id: window.get_wm_class() ?? '', focused: window === global.display.focus_window,
  shell: window.get_client_type() ? 'xwayland' : 'xdg_shell', minimised: window.minimized}))
"""


class GnomeSession(wayland_session.WaylandSession):
    """`has_extension`: whether the person has enabled Quillseal's extension of the Shell.
    `has_xwayland`: whether the Shell starts Xwayland."""

    is_visible = False

    def __init__(self, build, has_extension=True, has_xwayland=True):
        self.has_extension = has_extension
        self.has_xwayland = has_xwayland
        self.last_press = 0
        super().__init__(build)

    def _environment(self):
        env = super()._environment()
        env.update(XDG_CURRENT_DESKTOP="GNOME", GSETTINGS_BACKEND="keyfile")
        return env

    def _write_configuration(self):
        settings = self.home / ".config/glib-2.0/settings"
        settings.mkdir(parents=True)
        enabled = [EXTENSION] if self.has_extension else []
        (settings / "keyfile").write_text(
            f"[org/gnome/shell]\nenabled-extensions={enabled}\n"
            "welcome-dialog-last-shown-version='999'\n"
            "[org/gnome/desktop/interface]\nenable-animations=false\n")
        folder = "client_integrations/linux-agent/gnome-extension"
        shutil.copytree(self.build / folder / EXTENSION,
                        self.home / ".local/share/gnome-shell/extensions" / EXTENSION)

    def _start_shell(self):
        self._write_configuration()
        # The Shell ends without a system bus, but not without the services there.
        system = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1")
        address = self.wait_for_output(system, r"unix:\S+", "a system bus starts")
        kept, self.env = self.env, {**self.env, "DBUS_SYSTEM_BUS_ADDRESS": address[0]}
        try:
            self.compositor = self.start(
                "gnome-shell", "--headless", "--wayland", "--wayland-display=wayland-gnome",
                "--virtual-monitor", self.size, "--unsafe-mode",
                *([] if self.has_xwayland else ["--no-x11"]))
        finally:
            self.env = kept

        def is_up():
            if self.compositor.poll() is not None:
                raise Failure(f"GNOME Shell ended: {self.output_of(self.compositor)}")
            try:
                return self.evaluate("!Main.layoutManager._startingUp")
            except Failure:
                return False
        wait_for("GNOME Shell starts", is_up)
        self.env["WAYLAND_DISPLAY"] = "wayland-gnome"
        self.evaluate("Main.overview.hide()")
        wait_for("the overview closes", lambda: self.evaluate("!Main.overview.visible"))
        if self.has_extension:
            wait_for("the extension runs", lambda: self.evaluate(
                f"Main.extensionManager.lookup('{EXTENSION}')?.state === 1"))
        self.evaluate(PERSON)
        self.evaluate(PORTAL)
        # Of Xwayland, which starts with its first program.
        for name in ("DISPLAY", "XAUTHORITY") if self.has_xwayland else ():
            self.env[name] = self.evaluate(f"imports.gi.GLib.getenv('{name}')")

    def _start_desktop(self):
        self._start_bus()
        self._start_shell()
        # The Shell shows notifications by itself.
        self.monitor = self.start(
            "dbus-monitor", "--session", "interface='org.freedesktop.Notifications'")

    def start_agent(self, *options, tpm="none"):
        """Starts the agent. The first time the person agrees to its shortcut and, at the first
        press, lets it press keys."""
        if self.agent or not self.has_xwayland:
            return super().start_agent(*options, tpm=tpm)
        self._start_media_keys()
        super().start_agent(*options, tpm=tpm)
        self.close("Add Ctrl.Alt.Super.H to Your Keyboard Settings")
        # GNOME needs a moment before it obeys a new shortcut.
        act_until(self.press_hotkey,
                  lambda: "Quillseal may now press" in self.output_of(self.monitor),
                  "the desktop lets the agent press keys")
        return self.agent

    def _start_media_keys(self):
        """Starts the service that obeys the shortcuts in the keyboard settings."""
        self.start("/usr/libexec/gsd-media-keys")
        wait_for("the shortcuts are obeyed", lambda: "true" in self.run(
            "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
            "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.NameHasOwner",
            "org.gnome.SettingsDaemon.MediaKeys"))

    def evaluate(self, script):
        """Runs JavaScript in the Shell. Returns its value."""
        told = self.run("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path",
                        "/org/gnome/Shell", "--method", "org.gnome.Shell.Eval", script)
        done, value = re.fullmatch(r"\((true|false), (.*)\)\n", told, re.S).groups()
        text = ast.literal_eval(value)
        if done == "false":
            raise Failure(f"GNOME Shell: {text}")
        return json.loads(text) if text else None

    # Windows

    def windows(self):
        return self.evaluate(WINDOWS)

    def show(self, window):
        """Brings the window with this id to the front."""
        self.evaluate("Main.activateWindow(global.get_window_actors().map(actor => "
                      f"actor.meta_window).find(window => window.get_id() === {window}))")

    def focus(self, pattern):
        self.show(next(window["id"] for window in self.windows()
                       if re.search(pattern, window["name"])))
        self.wait_for_window(pattern)

    # Keys

    def _press(self, symbols, state):
        self.evaluate(f"{json.dumps(symbols)}.forEach(symbol => press(typeof symbol === 'string' ? "
                      f"imports.gi.Clutter['KEY_' + symbol] : symbol, {state})), true")

    def hold(self, *names):
        self._press(names, 1)

    def let_go(self, *names):
        self._press(names[::-1], 0)

    def key(self, *keys):
        names = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L"}
        for chord in keys:
            pressed = [names.get(key, key) for key in chord.split("+")]
            self.hold(*pressed)
            self.let_go(*pressed)

    def type(self, text):
        symbols = [0xFF0D if character == "\n" else ord(character) for character in text]
        self.evaluate(f"{symbols}.forEach(symbol => [1, 0].forEach(state => press(symbol, state))),"
                      " true")

    def press_hotkey(self, milliseconds=120):
        # The agent takes commands that follow within a second for one press.
        time.sleep(max(0, self.last_press + 1.1 - time.monotonic()))
        symbols = json.dumps([f"KEY_{name}" for name in session.HOTKEY])
        # The Shell itself waits, since each call takes longer than a person.
        self.evaluate(f"""globalThis.keys = {symbols}.map(name => imports.gi.Clutter[name]);
            keys.forEach(key => press(key, 1));
            imports.gi.GLib.timeout_add(0, {milliseconds}, () => {{
              [...keys].reverse().forEach(key => press(key, 0));
              keys = null;
              return false;
            }})""")
        wait_for("the keys are released", lambda: self.evaluate("keys === null"))
        self.last_press = time.monotonic()

    # Clipboard

    def selection(self, which="clipboard", target="text/plain;charset=utf-8"):
        kind = f"imports.gi.St.ClipboardType.{which.upper()}"
        clipboard = "imports.gi.St.Clipboard.get_default()"
        if target == "TARGETS":
            return "\n".join(self.evaluate(f"{clipboard}.get_mimetypes({kind})"))
        self.evaluate(f"globalThis.content = null; {clipboard}.get_content({kind}, '{target}', "
                      "(_, bytes) => { content = [...(bytes?.get_data() ?? [])]; }), true")
        try:
            return bytes(wait_for("the clipboard is read",
                                  lambda: self.evaluate("content && [content]"), 5)[0]).decode()
        except Failure:
            return ""
