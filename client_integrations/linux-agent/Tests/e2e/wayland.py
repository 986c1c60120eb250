#!/usr/bin/python3
"""Tests the agent on sway, with native applications and one under Xwayland. Only tests that say so
use an X server.

Options and test names as in stories.py.
"""

import os
import pathlib
import signal

import clipboard
import stories
import windows
from applications import Terminal
from session import LETTER, wait_for
from wayland_session import WaylandSession


class OnSway(stories.Story):
    def make_desktop(self):
        return WaylandSession(self.build)


class SwaySigning(OnSway, stories.Signing):
    """The stories of X11, here."""


class SwayDialogs(OnSway, stories.Dialogs):
    """The same."""


class Applications:
    """The terminal without a key that copies is one of X11's."""

    def test_a_terminal_without_a_key_that_copies(self):
        terminal = Terminal(self.desktop, "xterm", stories.PARAGRAPHS)
        # In place of the mouse, an X client takes the selection while the terminal is active.
        self.desktop.start("xclip", "-i", "-quiet", "-selection", "primary", "letter.txt")
        wait_for("the text is selected",
                 lambda: self.desktop.selection("primary") == stories.PARAGRAPHS)
        self.sign()
        self.assert_left_to_paste(terminal)

    def test_an_editor_under_xwayland(self):
        with self.desktop.xwayland():
            editor = self.desktop.open_editor(stories.PARAGRAPHS)
        self.assertEqual([window["shell"] for window in self.desktop.windows()], ["xwayland"])
        self.desktop.select_all(stories.PARAGRAPHS)
        self.sign()
        self.assert_signed(editor, stories.PARAGRAPHS)
        self.assert_recorded("Public Broadcast")


class SwayApplications(OnSway, Applications, stories.Applications):
    def test_a_terminal_with_an_app_id_of_its_own(self):
        program = self.desktop.home / "notes"
        program.symlink_to("/usr/bin/xfce4-terminal")
        self.test_a_terminal_whose_program_goes_on(program)


class SharedWindows(windows.SharedWindows):
    def test_the_settings_come_to_the_front_again(self):
        self.open_settings()
        self.open_letter()
        self.open_settings()


class SwayWindows(OnSway, SharedWindows, windows.WindowStory):
    def switch_to(self, window):
        self.desktop.run("swaymsg", f"[con_id={window}] focus")

    def leave_workspace(self):
        self.desktop.run("swaymsg", "workspace elsewhere")


class SwayClipboard(OnSway, clipboard.Clipboard):
    """The same."""


class SwayHotkey(OnSway):
    def test_it_is_bound_again_when_the_configuration_is_read_anew(self):
        self.start()
        self.desktop.run("swaymsg", "reload")
        self.assert_signed(self.sign_in_editor())

    def test_a_binding_of_the_configuration_stays(self):
        self.bind_and_press("config")
        self.desktop.wait_for_notification("Sway’s configuration already uses Ctrl+Alt+Super+H")

    def test_a_binding_of_an_included_file_stays(self):
        self.bind_and_press("more")

    def bind_and_press(self, name):
        for file, text in (("config", "include ~/more\n"), ("more", ""),
                           (name, "bindsym --to-code Mod4+Alt+Ctrl+h exec touch $HOME/bound\n")):
            with open(self.desktop.runtime / file, "a", encoding="utf-8") as configuration:
                configuration.write(text)
        self.desktop.run("swaymsg", "reload")
        self.start()
        self.desktop.press_hotkey()
        wait_for("sway obeys its own binding", (self.desktop.runtime / "bound").exists)
        self.assertEqual(self.desktop.window_names(), [])

    def test_one_of_two_agents_signs(self):
        self.start()
        bus = self.desktop.env.pop("DBUS_SESSION_BUS_ADDRESS")  # by which they would find each other
        self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
        self.desktop.start_agent()
        self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = bus
        editor = self.sign_in_editor()
        self.assert_signed(editor)
        self.assertEqual(len(self.desktop.windows()), 1)
        self.assertEqual(len(self.desktop.recorded()), 1)


class Layouts:
    """The agent presses keys that every application understands, whatever the person types on."""

    def layout(self):
        layouts = {"french": "fr", "german": "de", "russian": "ru,us", "layouts": "us,fr"}
        return layouts[self._testMethodName.split("_")[-1]]

    def sign_on_it(self):
        self.start()
        self.assert_signed(self.sign_in_editor())

    test_a_letter_is_signed_with_a_keyboard_that_is_french = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_german = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_russian = sign_on_it  # the other is not switched to


class SwayLayouts(Layouts, OnSway):
    def make_desktop(self):
        return WaylandSession(self.build, layout=self.layout())


class Limits:
    def test_the_agents_windows_are_no_x_windows(self):
        self.start()
        self.assertNotIn("Xwayland", self.desktop.output_of(self.desktop.agent))
        self.open_settings()
        self.assertEqual([(window["app_id"], window["shell"]) for window in self.desktop.windows()],
                         [("quillseal", "xdg_shell")])
        maps = pathlib.Path(f"/proc/{self.desktop.agent.pid}/maps").read_text()
        self.assertNotIn("libLLVM", maps, "nothing is drawn by OpenGL")

    def test_a_compositor_that_ends_takes_the_agent_with_it(self):
        self.start()
        self.press_in_editor()
        self.desktop.wait_for_window("Enter the passphrase")
        os.kill(self.desktop.compositor.pid, signal.SIGKILL)
        self.wait_until_ended()
        key = list((self.desktop.home / ".local/share/quillseal").glob("*.pem"))
        self.assertEqual(len(key), 1)


class SwayLimits(OnSway, Limits):
    """The same."""


if __name__ == "__main__":
    stories.main(__doc__)
