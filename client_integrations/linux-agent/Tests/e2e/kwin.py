#!/usr/bin/env python3
"""Tests the agent on KDE's compositor, with native applications and one under Xwayland.

Options and test names as in stories.py.
"""

import re

import stories
import wayland
import windows
from kwin_session import KwinSession
from session import LETTER, wait_for

CONTROL, ALT, META = 0x04000000, 0x08000000, 0x10000000
HOTKEY = CONTROL | ALT | META | ord("H")


class OnKwin(stories.Story):
    def make_desktop(self):
        return KwinSession(self.build)


class KwinSigning(OnKwin, stories.Signing):
    """The stories of X11, here."""


class KwinDialogs(OnKwin, stories.Dialogs):
    """The same."""


class KwinApplications(OnKwin, stories.Applications):
    """The same; the terminal without a key that copies is one of X11's."""

    test_a_terminal_without_a_key_that_copies = (
        wayland.SwayApplications.test_a_terminal_without_a_key_that_copies)
    test_an_editor_under_xwayland = wayland.SwayApplications.test_an_editor_under_xwayland


class KwinTrouble(OnKwin, stories.Trouble):
    """The same."""


class KwinWindows(OnKwin, windows.WindowStory):
    def setUp(self):
        super().setUp()
        self.start()

    def switch_to(self, window):
        self.desktop.show(window)

    def test_the_source_is_minimised(self):
        chat = self.open_chat()
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        with self.while_the_server_is_slow():
            self.desktop.minimise(letter.window)
            self.desktop.wait_for_window(re.escape(chat.file.name))
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_pasted_into_letter_alone(letter, chat)

    def test_the_source_is_on_another_workspace(self):
        self.desktop.call_kwin("/VirtualDesktopManager",
                               "org.kde.KWin.VirtualDesktopManager.createDesktop", "1", "elsewhere")
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        with self.while_the_server_is_slow():
            self.desktop.call_kwin("/KWin", "org.kde.KWin.setCurrentDesktop", "2")
            chat = self.open_chat()
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_pasted_into_letter_alone(letter, chat)

    test_the_source_was_closed_and_something_else_is_in_front = (
        wayland.SwayWindows.test_the_source_was_closed_and_something_else_is_in_front)
    test_another_tab_of_the_window_is_in_front = (
        windows.Windows.test_another_tab_of_the_window_is_in_front)
    show_tab = windows.Windows.show_tab
    test_after_a_refusal_the_next_press_signs = (
        windows.Windows.test_after_a_refusal_the_next_press_signs)
    write_letter = windows.Windows.write_letter
    test_the_application_behind_the_settings_is_asked_to_copy = (
        windows.Windows.test_the_application_behind_the_settings_is_asked_to_copy)
    make_settings_come = wayland.SwayWindows.make_settings_come
    test_the_settings_come_to_the_front_again = (
        wayland.SwayWindows.test_the_settings_come_to_the_front_again)


class KwinLock(windows.WindowStory):
    def make_desktop(self):
        return KwinSession(self.build, locks=True)

    def test_nothing_is_pasted_behind_a_locked_screen(self):
        self.start()
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        with self.while_the_server_is_slow():
            self.desktop.wait_for_window(re.escape(letter.file.name))
            self.desktop.lock()
        self.desktop.wait_for_log("signed block left on the clipboard; something else is in front",
                                  "the agent says why it pastes nothing")
        self.assertTrue(self.desktop.selection().startswith(f"『{LETTER}』"))
        self.assertFalse([name for name in self.desktop.window_names() if name.startswith("*")])


class KwinClipboard(OnKwin):
    test_the_block_outlives_a_killed_agent_until_somebody_copies = (
        wayland.SwayClipboard.test_the_block_outlives_a_killed_agent_until_somebody_copies)
    keepers = wayland.SwayClipboard.keepers


class KwinHotkey(OnKwin):
    def test_a_shortcut_of_something_else_stays(self):
        other = "['other', 'act', 'Other', 'Act']"
        self.desktop.call_shortcuts("doRegister", other)
        self.desktop.call_shortcuts("setShortcut", other, f"[{HOTKEY}]", "2")
        self.start()
        self.desktop.wait_for_notification("Another program already uses Ctrl+Alt+Super+H")
        self.assertIn("'other'", self.desktop.call_shortcuts("action", str(HOTKEY)))
        # The refusal is not stored.
        self.desktop.end(self.desktop.agent)
        self.desktop.call_shortcuts("unregister", "other", "act")
        self.desktop.start_agent()
        self.assert_signed(self.sign_in_editor())

    def test_keys_that_the_person_has_chosen_count(self):
        self.start()
        f_12 = 0x0100003B
        self.desktop.call_shortcuts("setForeignShortcut", "['quillseal', 'sign', '', '']", f"[{f_12}]")
        self.desktop.end(self.desktop.agent)
        self.assertIn("false", self.desktop.call("org.kde.kglobalaccel", "/component/quillseal",
                                                 "org.kde.kglobalaccel.Component.isActive"))
        self.desktop.start_agent()
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.key("F12")
        self.desktop.wait_for_window("Choose a passphrase")


class KwinLayouts(OnKwin):
    """The agent presses the right keys with any layout of the person's keyboard."""

    def make_desktop(self):
        layout = {"french": "fr", "german": "de", "russian": "ru,us", "layouts": "us,fr"}
        return KwinSession(self.build, layout=layout[self._testMethodName.split("_")[-1]])

    def sign_on_it(self):
        self.start()
        self.assert_signed(self.sign_in_editor())

    test_a_letter_is_signed_with_a_keyboard_that_is_french = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_german = sign_on_it
    test_a_letter_is_signed_with_a_keyboard_that_is_russian = sign_on_it  # the other is not switched to

    def test_everything_is_selected_with_the_second_of_two_layouts(self):
        self.start()
        self.desktop.choose_layout(1)
        editor = self.desktop.open_editor(LETTER)
        self.desktop.press_hotkey()
        self.desktop.choose_secret()
        self.desktop.enter_secret()
        self.assert_signed(editor)


class KwinLimits(OnKwin):
    test_a_compositor_that_ends_takes_the_agent_with_it = (
        wayland.SwayLimits.test_a_compositor_that_ends_takes_the_agent_with_it)

    def test_the_agents_windows_are_no_x_windows(self):
        self.start()
        self.desktop.run(self.desktop.quillseal, "--settings")
        self.desktop.wait_for_window("Quill Seal Server Settings")
        self.assertEqual([(window["app_id"], window["shell"]) for window in self.desktop.windows()],
                         [("quillseal", "xdg_shell")])


class KwinWithoutPackage(stories.Story):
    def make_desktop(self):
        return KwinSession(self.build, is_installed=False)

    def test_the_agent_says_what_to_do(self):
        self.start()
        self.desktop.wait_for_window("Quillseal")
        self.assertIn("on KDE Plasma 5 where the package of Quillseal is installed",
                      self.desktop.output_of(self.desktop.agent))


if __name__ == "__main__":
    stories.main(__doc__)
