#!/usr/bin/env python3
"""Tests the agent on sway, with native applications and one under Xwayland. Only tests that say so
use an X server.

Options and test names as in stories.py.
"""

import os
import pathlib
import re
import signal

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


class SwayApplications(OnSway, stories.Applications):
    """The same; the terminal without a key that copies is one of X11's."""

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


class SwayTrouble(OnSway, stories.Trouble):
    """The same."""


class SwayWindows(OnSway, windows.WindowStory):
    def setUp(self):
        super().setUp()
        self.start()

    def switch_to(self, window):
        self.desktop.run("swaymsg", f"[con_id={window}] focus")

    def test_the_source_is_on_another_workspace(self):
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        with self.while_the_server_is_slow():
            self.desktop.run("swaymsg", "workspace elsewhere")
            chat = self.open_chat()
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_pasted_into_letter_alone(letter, chat)

    def test_the_source_was_closed_and_something_else_is_in_front(self):
        chat = self.open_chat()
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        with self.while_the_server_is_slow():
            self.desktop.end(letter)
            self.desktop.wait_for_window(re.escape(chat.file.name))
        self.assert_left_on_clipboard("the source has been closed")
        self.assert_untouched(chat, windows.CHAT)

    test_another_tab_of_the_window_is_in_front = (
        windows.Windows.test_another_tab_of_the_window_is_in_front)
    show_tab = windows.Windows.show_tab
    test_after_a_refusal_the_next_press_signs = (
        windows.Windows.test_after_a_refusal_the_next_press_signs)
    write_letter = windows.Windows.write_letter
    test_the_application_behind_the_settings_is_asked_to_copy = (
        windows.Windows.test_the_application_behind_the_settings_is_asked_to_copy)

    def make_settings_come(self):
        self.desktop.run(self.desktop.quillseal, "--settings")
        self.desktop.wait_for_window("Quill Seal Server Settings")

    def test_the_settings_come_to_the_front_again(self):
        self.make_settings_come()
        self.open_letter()
        self.make_settings_come()


class SwayClipboard(OnSway):
    def test_the_block_outlives_a_killed_agent_until_somebody_copies(self):
        self.start()
        editor = self.sign_in_editor()
        self.assert_signed(editor)
        self.desktop.end(self.desktop.agent, signal.SIGKILL)
        self.desktop.end(editor)
        self.assertTrue(self.desktop.selection().startswith(f"『{LETTER}』"))
        self.assertIn("<!DOCTYPE html>", self.desktop.selection(target="text/html"))
        self.assertEqual(len(self.keepers()), 1)
        self.desktop.start("wl-copy", "--foreground", "something else")
        wait_for("nothing of Quillseal stays behind", lambda: not self.keepers())

    def keepers(self):
        """Returns the processes of this session, which run in its home."""
        def is_at_home(pid):
            try:
                return pathlib.Path(f"/proc/{pid}/cwd").resolve() == self.desktop.home
            except OSError:  # it has ended meanwhile
                return False

        found = self.desktop.run("pgrep", "-f", "quillseal-clipboard-keeper", check=False).split()
        return [pid for pid in found if is_at_home(pid)]


class SwayHotkey(OnSway):
    def test_it_is_bound_again_when_the_configuration_is_read_anew(self):
        self.start()
        self.desktop.run("swaymsg", "reload")
        self.assert_signed(self.sign_in_editor())

    def test_a_binding_of_the_configuration_stays(self):
        self.use("set $mod Mod4\nbindsym --to-code $mod+Alt+Ctrl+h exec touch $HOME/bound\n")
        self.start()
        self.desktop.wait_for_notification("Sway’s configuration already uses Ctrl+Alt+Super+H")
        self.press_and_expect_binding()

    def test_a_binding_of_an_included_file_stays(self):
        self.use("include ~/more\n", more="bindsym Mod4+Alt+Ctrl+h exec touch $HOME/bound\n")
        self.start()
        self.press_and_expect_binding()

    def test_without_sway_the_agent_says_how_to_sign_by_keyboard(self):
        socket = self.desktop.env.pop("SWAYSOCK")
        self.start()
        self.desktop.env["SWAYSOCK"] = socket
        self.desktop.wait_for_notification("This desktop gives programs no hotkey")
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.run(self.desktop.quillseal, "--sign")
        self.desktop.wait_for_window("Choose a passphrase")

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

    def use(self, configuration, **files):
        for name, text in files.items():
            (self.desktop.runtime / name).write_text(text)
        with open(self.desktop.runtime / "config", "a", encoding="utf-8") as file:
            file.write(configuration)
        self.desktop.run("swaymsg", "reload")

    def press_and_expect_binding(self):
        self.desktop.press_hotkey()
        wait_for("sway obeys its own binding", (self.desktop.runtime / "bound").exists)
        self.assertEqual(self.desktop.window_names(), [])


class SwayLayouts(OnSway):
    """The agent presses keys that every application understands, with any layout of the person's
    keyboard."""

    def make_desktop(self):
        layout = {"french": "fr", "german": "de", "russian": "ru,us"}
        return WaylandSession(self.build, layout=layout[self._testMethodName.split("_")[-1]])

    def sign_on_it(self):
        self.start()
        self.assert_signed(self.sign_in_editor())

    test_a_letter_is_signed_with_a_keyboard_that_is_french = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_german = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_russian = sign_on_it  # the other is not switched to


class SwayLimits(OnSway):
    def test_the_agents_windows_are_no_x_windows(self):
        self.start()
        self.assertNotIn("Xwayland", self.desktop.output_of(self.desktop.agent))
        self.desktop.run(self.desktop.quillseal, "--settings")
        self.desktop.wait_for_window("Quill Seal Server Settings")
        self.assertEqual([(window["app_id"], window["shell"]) for window in self.desktop.windows()],
                         [("quillseal", "xdg_shell")])

    def test_a_compositor_that_ends_takes_the_agent_with_it(self):
        self.start()
        self.desktop.press_in_editor()
        self.desktop.choose_secret()
        self.desktop.wait_for_window("Enter the passphrase")
        os.kill(self.desktop.compositor.pid, signal.SIGKILL)
        wait_for("the agent ends", lambda: self.desktop.agent.poll() is not None)
        key = list((self.desktop.home / ".local/share/quillseal").glob("*.pem"))
        self.assertEqual(len(key), 1)


if __name__ == "__main__":
    stories.main(__doc__)
