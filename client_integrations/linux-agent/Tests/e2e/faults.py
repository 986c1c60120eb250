#!/usr/bin/python3
"""Tests what the agent does when the desktop around it breaks. docs/faults.md lists them.

Options and test names as in stories.py.
"""

import os
import signal
import socket
import time

import stories
from session import LETTER, act_until, wait_for
from stories import Story
from xclient import XClient
from Xlib import X


class Rival(XClient):
    """An X client that takes the hotkey or the clipboard and never answers."""

    def __init__(self, display):
        super().__init__(display)
        self.window = self.new_window()
        self.key = self.x.keysym_to_keycode(ord("h"))

    def open_window(self):
        self.window.set_wm_name("rival")
        self.window.map()
        self.x.sync()

    def take_clipboard(self):
        self.window.set_selection_owner(self.clipboard, X.CurrentTime)
        self.x.sync()

    def grab_hotkey(self):
        self.root.grab_key(self.key, X.AnyModifier, True, X.GrabModeAsync, X.GrabModeAsync)
        self.x.sync()

    def free_hotkey(self):
        self.root.ungrab_key(self.key, X.AnyModifier)
        self.x.sync()


def start_mute_service(desktop, name):
    """Starts a program that owns a name on the desktop's session bus and never answers."""
    service = desktop.start("gjs", "-c", f"""const {{ Gio, GLib }} = imports.gi;
        Gio.bus_own_name(Gio.BusType.SESSION, '{name}', 0, null, () => print('owned'), null);
        GLib.MainLoop.new(null, false).run();""")
    desktop.wait_for_output(service, "owned", "the service has its name")
    os.kill(service.pid, signal.SIGSTOP)
    return service


class Faults(Story):
    def rival(self):
        rival = Rival(self.desktop.env["DISPLAY"])
        self.addCleanup(rival.close)
        return rival

    def assert_ended(self, code=0):
        self.wait_until_ended()
        self.assertEqual(self.desktop.agent.returncode, code,
                         self.desktop.output_of(self.desktop.agent))

    @property
    def key_file(self):
        return self.desktop.home / ".local/share/quillseal/ai.kestle.quillseal.signingkey.pem"

    def test_terminated_while_a_secret_is_chosen_it_leaves_no_key(self):
        self.start()
        self.desktop.press_in_editor()
        self.desktop.wait_for_window("Choose a passphrase")
        self.terminate()
        self.assertFalse(self.key_file.exists())

    def terminate(self):
        self.desktop.agent.terminate()
        self.assert_ended()

    def test_the_x_server_dies(self):
        # Qt then exits at once, without unwinding.
        self.desktop.env["LSAN_OPTIONS"] = "detect_leaks=0"
        self.start()
        self.press_in_editor()
        self.desktop.wait_for_window("Enter the passphrase")
        key = self.key_file.read_bytes()
        self.desktop.end(self.desktop.x_server, signal.SIGKILL)
        self.assert_ended(code=1)
        self.assertEqual(self.key_file.read_bytes(), key)

    def test_it_is_the_only_client_of_its_x_server(self):
        """The X server resets when its last client leaves, as X servers do by default."""
        for _ in range(8):
            server = self.desktop.start_x_server()
            self.desktop.start_agent()
            self.terminate()
            self.desktop.end(server)

    def test_the_session_bus_dies(self):
        self.start()
        self.press_in_editor()
        self.desktop.wait_for_window("Enter the passphrase")
        self.desktop.end(self.desktop.bus, signal.SIGKILL)
        self.desktop.enter_secret()
        self.wait_for_block()
        self.terminate()

    def test_there_is_no_session_bus(self):
        bus = self.desktop.env["DBUS_SESSION_BUS_ADDRESS"]
        self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/dev/null/bus"
        self.start()
        self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = bus
        self.desktop.wait_for_log("there is no session bus", "the agent says what will be missing")
        self.assert_signed(self.sign_in_editor())

    def test_neither_session_bus_nor_session_manager_answers(self):
        silent = self.desktop.folder / "silent"
        listening = self.enterContext(socket.socket(socket.AF_UNIX))
        listening.bind(str(silent))
        listening.listen()
        self.desktop.env["SESSION_MANAGER"] = f"local/{os.uname().nodename}:{silent}"
        self.start()
        self.terminate()
        self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={silent}"
        self.desktop.start_agent()
        self.desktop.wait_for_log("there is no session bus", "the agent says what will be missing")

    def test_the_accessibility_service_never_answers(self):
        start_mute_service(self.desktop, "org.a11y.Bus")
        self.start()
        self.assert_signed(self.sign_in_editor())

    def test_a_clipboard_owner_never_answers(self):
        self.start(DemoSigning="true")
        rival = self.rival()
        rival.open_window()
        self.desktop.wait_for_window("rival")
        self.desktop.press_hotkey()
        rival.take_clipboard()
        asked = time.monotonic()
        self.desktop.close("No Text Found")
        self.assertLess(time.monotonic() - asked, 20)  # the toolkit would wait 5 for each format

    def test_a_format_is_offered_and_never_delivered(self):
        self.start()
        editor = self.desktop.start(
            self.build / "client_integrations/linux-agent/Tests/odd-editor", "silent", LETTER)
        self.desktop.wait_for_window("Vault")
        self.desktop.select_all(LETTER)
        self.press_and_choose()
        self.desktop.wait_for_output(editor, "asked", "somebody wants the format")
        # Reported within five seconds; the toolkit would wait that long for each format.
        self.desktop.run(self.desktop.quillseal, "--settings")
        self.desktop.enter_secret()
        self.wait_for_block()

    def test_the_tpm_never_answers(self):
        self.start(tpm=True)
        self.desktop.press_in_editor()
        self.desktop.choose_secret("PIN")
        self.desktop.wait_for_window("Enter the PIN")
        os.kill(self.desktop.tpm.pid, signal.SIGSTOP)
        self.desktop.enter_secret(kind="PIN")
        self.desktop.wait_for_no_window("Enter the PIN")
        self.open_settings()
        self.desktop.run(self.desktop.quillseal, "--quit")
        self.assert_ended()
        self.desktop.end(self.desktop.tpm, signal.SIGKILL)

    def test_the_hotkey_is_taken(self):
        rival = self.rival()
        rival.grab_hotkey()
        self.start()
        self.desktop.wait_for_notification("Hotkey Is Not Available")
        self.sign_by_command()

        self.desktop.close("Choose a passphrase", "Escape")
        self.open_settings()
        self.desktop.key("space")  # Turn On the Hotkey
        self.desktop.wait_for_output(self.desktop.agent, r"\[desktop\] Another program already uses",
                                     "the settings offer to turn it on")
        rival.free_hotkey()
        self.desktop.run("setxkbmap", "de")  # a new layout, and the hotkey is asked for again
        act_until(self.desktop.press_hotkey,
                  lambda: "Choose a passphrase" in self.desktop.active_window_name(),
                  "the hotkey works now")

    def test_the_hotkey_is_pressed_again_in_a_window_that_swallows_its_release(self):
        self.start(DemoSigning="true")
        self.open_settings()  # the X server reports a release to the focused window of the grabber
        for _ in range(2):
            self.desktop.press_hotkey()
            time.sleep(0.1)
        wait_for("both presses count",
                 lambda: self.desktop.window_names().count("No Text Found") == 2)

    def test_a_held_hotkey_may_repeat_as_presses_alone(self):
        self.start(DemoSigning="true")
        self.open_settings()
        rival = self.rival()
        rival.pretend_presses(self.desktop.active_window(), rival.key, 9000, 9500, 10_400, 12_000)
        def count():
            return self.desktop.window_names().count("No Text Found")
        wait_for("two presses are noticed", lambda: count() == 2)
        time.sleep(2)
        self.assertEqual(count(), 2)


class Panel(Story):
    panel = True

    def test_the_panel_dies(self):
        self.start()
        self.desktop.end(self.desktop.panel, signal.SIGKILL)
        self.assert_signed(self.sign_in_editor())

    def test_the_panel_never_answers(self):
        panel = start_mute_service(self.desktop, "org.kde.StatusNotifierWatcher")
        began = time.monotonic()
        self.start()
        self.assertLess(time.monotonic() - began, 20)  # the toolkit would wait for 25
        self.assert_signed(self.sign_in_editor())
        self.assertFalse(self.has_shield())
        self.desktop.end(panel, signal.SIGKILL)
        wait_for("the shield appears", self.has_shield)

    def has_shield(self):
        return '"quillseal": ("quillseal"' in self.desktop.run("xwininfo", "-root", "-tree")


if __name__ == "__main__":
    stories.main(__doc__)
