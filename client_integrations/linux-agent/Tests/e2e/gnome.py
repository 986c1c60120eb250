#!/usr/bin/python3
"""Tests the agent on GNOME Shell, with native applications and one under Xwayland.

Options and test names as in stories.py.
"""

import os
import re
import signal
import subprocess
import time
import unittest.mock

import clipboard
import stories
import windows
from browsers import Browser, Site
from gnome_session import EXTENSION, GnomeSession
from session import LETTER, wait_for
from windows import CHAT
from xclient import XClient


class OnGnome(stories.Story):
    def make_desktop(self):
        return GnomeSession(self.build)


class GnomeExtension(OnGnome):
    """The extension alone, in the Shell that it is written for."""

    def front(self):
        """Returns what it would answer the agent."""
        return self.desktop.evaluate(
            f"Main.extensionManager.lookup('{EXTENSION}').stateObj._frontWindow._front(0)")

    def test_it_names_the_window_in_front_and_its_document(self):
        self.assertEqual(self.front()[:3], [0, False, False])
        self.desktop.open_editor(LETTER)
        letter = self.front()
        self.assertEqual(letter[1:5], [True, False, "org.xfce.mousepad.desktop", "mousepad"])
        self.desktop.type("!")
        self.desktop.wait_for_window(r"\*.*letter")
        self.assertEqual(self.front(), letter)
        with self.desktop.xwayland():
            self.desktop.open_editor("Hello", "chat.txt")
        chat = self.front()
        self.assertEqual(chat[1:5], [True, False, "org.xfce.mousepad.desktop", "Mousepad"])
        self.assertNotEqual(letter[0], chat[0])
        self.assertNotEqual(letter[6], chat[6])
        self.desktop.key("ctrl+a", "ctrl+c")
        wait_for("the copy is counted", lambda: self.front()[7] != chat[7])

    def test_keys_that_the_shell_gets_are_not_the_windows(self):
        self.desktop.open_editor(LETTER)
        window = self.front()[0]
        self.desktop.hold("Control_L", "Alt_L")
        wait_for("modifiers are held", lambda: self.front()[:3] == [window, True, True])
        self.desktop.let_go("Control_L", "Alt_L")
        wait_for("no modifier is held", lambda: not self.front()[2])
        for script, has_keys in (("Main.panel.statusArea.dateMenu.grab_key_focus()", False),
                                 ("global.stage.set_key_focus(null)", True),
                                 ("Main.overview.show()", False)):
            self.desktop.evaluate(script)
            wait_for(script, lambda: self.front()[:2] == [window, has_keys])


class GnomeSigning(OnGnome):
    def test_a_letter_is_signed_refused_and_confirmed(self):
        self.start(ConfirmBeforeSigning="true")
        short = self.desktop.open_editor("Yes.", "short.txt")
        self.desktop.select_all("Yes.")
        self.press_and_choose()
        self.desktop.close("Not signed — too short")
        self.assert_unrecorded()
        self.assertEqual(short.file.read_text(), "Yes.")
        self.desktop.end(short)
        editor = self.desktop.press_in_editor()
        self.desktop.close("Sign this content?")
        self.desktop.enter_secret()
        self.assert_signed(editor)
        self.desktop.wait_for_notification("✅ Signature Generated!")
        self.assertIn("text/html", self.desktop.selection(target="TARGETS"))
        self.assertEqual(self.desktop.recorded()[0][1], "Other / Unspecified")


class GnomeWindows(OnGnome, windows.WindowStory):
    def setUp(self):
        super().setUp()
        self.start()

    def switch_to(self, window):
        self.desktop.show(window)

    def test_keys_go_to_the_window_that_was_signed_in_and_nowhere_else(self):
        chat = self.open_chat()
        letter = self.open_letter()
        self.press_and_choose()
        self.desktop.wait_for_window("Enter the passphrase")
        self.desktop.end(letter)
        self.desktop.enter_secret()
        self.assert_left_on_clipboard("something else is in front of the source")
        self.assert_untouched(chat, CHAT)
        letter = self.open_letter()
        self.desktop.press_hotkey()
        self.desktop.wait_for_window("Enter the passphrase")
        self.switch_to(chat.window)
        self.desktop.wait_for_window(re.escape(chat.file.name))
        self.desktop.focus("Enter the passphrase")
        self.desktop.enter_secret()
        self.assert_pasted_into_letter_alone(letter, chat)

    def test_the_window_behind_the_agents_own_is_signed(self):
        letter = self.open_letter()
        self.open_settings()
        time.sleep(1.1)  # the command must not pass for a repetition
        self.desktop.run(self.desktop.quillseal, "--sign")
        self.desktop.choose_secret()
        self.desktop.enter_secret()
        self.assert_signed(letter)

    def test_a_held_hotkey_is_one_press_and_no_key_is_pressed_meanwhile(self):
        self.open_letter()
        self.press_and_choose()
        self.desktop.close("Enter the passphrase", "Escape")
        self.desktop.close("Signing Error", "Escape")
        self.desktop.press_hotkey(3000)
        self.desktop.close("Not Signed")
        self.desktop.wait_for_window("letter.txt")
        self.assertNotIn("turned away", self.desktop.output_of(self.desktop.agent))


class GnomeClipboard(OnGnome, clipboard.Clipboard, windows.WindowStory):
    def test_nothing_is_pasted_of_a_program_that_passes_for_the_keeper(self):
        self.start()
        self.open_letter()
        self.enterContext(unittest.mock.patch.dict(os.environ, self.desktop.env))
        client = XClient(self.desktop.env["DISPLAY"])
        self.addCleanup(client.close)
        with self.while_the_server_is_slow():
            before = client.clipboard_owner()
        client.wait_until_clipboard_leaves(before)
        self.run_keeper("something else")  # within the 100 ms that a paste waits with the block there
        self.desktop.close("Signed — Not on Your Clipboard", "Escape")
        self.desktop.wait_for_window(r"^[^*]*letter\.txt")

    def test_the_block_outlives_the_agent_until_somebody_copies(self):
        self.start()
        editor = self.sign_in_editor()
        self.assert_signed(editor)
        block = editor.file.read_text()
        self.desktop.end(editor)
        self.desktop.end(self.desktop.agent, signal.SIGKILL)
        self.assertEqual(len(self.keepers()), 1)
        with self.desktop.xwayland():
            self.assert_pasted(block, "old.txt")
        self.assert_pasted(block, "new.txt")
        self.assert_pasted_with_markup()
        self.assertIn("<table", self.desktop.run(
            "xclip", "-o", "-selection", "clipboard", "-t", "text/html"))
        self.desktop.open_editor("something else", "other.txt")
        self.desktop.select_all("something else")
        self.desktop.key("ctrl+c")
        self.wait_until_nothing_stays()
        self.assertEqual(self.desktop.selection(), "something else")

    def assert_pasted_with_markup(self):
        site = Site("rich", "")
        browser = Browser(self.desktop, "chromium", with_extensions=False)
        browser.start(site.address("Mail"))
        browser.wait_for_page("Mail")
        self.desktop.key_until(
            "ctrl+v", lambda: site.told.get(("content", "Mail")), "the page has the block")
        browser.quit()
        content = site.told["content", "Mail"]
        self.assertIn("<table", content)
        self.assertIn("Check this signature", content)


class GnomeWithoutXwayland(OnGnome):
    def make_desktop(self):
        return GnomeSession(self.build, has_xwayland=False)

    def test_the_agent_says_what_is_missing_and_signs_nothing(self):
        editor = self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.start()
        self.desktop.close("^Quillseal$")
        self.assertIn("Install the package xwayland", self.desktop.output_of(self.desktop.agent))
        self.desktop.wait_for_window("letter.txt")
        self.desktop.run(self.desktop.quillseal, "--sign")
        self.desktop.close("^Quillseal$")
        self.open_settings()
        self.desktop.key("Escape")
        self.assert_unrecorded()
        self.assertEqual(editor.file.read_text(), LETTER)
        self.desktop.run(self.desktop.quillseal, "--quit")
        self.wait_until_ended()


class GnomeWithoutExtension(OnGnome):
    def make_desktop(self):
        return GnomeSession(self.build, has_extension=False)

    def test_the_person_pastes_themselves(self):
        self.start()
        self.open_settings()
        self.desktop.key("Escape")
        editor = self.desktop.open_editor(LETTER)
        self.press_and_choose()
        self.desktop.close("No Text Found")
        self.desktop.wait_for_window("letter.txt")
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.desktop.enter_secret()
        self.desktop.close(windows.PASTE_YOURSELF)
        self.assertEqual(editor.file.read_text(), LETTER)
        self.desktop.wait_for_window("letter.txt")
        self.desktop.key("ctrl+v")
        self.assert_signed(editor)


if __name__ == "__main__":
    stories.main(__doc__)
