#!/usr/bin/python3
"""Tests that the text is copied from the window in which it is selected and pasted there or
nowhere, whatever the person does meanwhile.

Options and test names as in stories.py.
"""

import contextlib
import os
import re
import signal
import time

import stories
from session import LETTER
from stories import Story
from xclient import XClient

CHAT = "Lunch on 14 March? The new place by the river has a table for five of us, says Tom Hill."
PASTE_YOURSELF = "Signed — Paste It Into Your Message"


class WindowStory(Story):
    """A letter, and another program's window that must stay untouched."""

    def open_chat(self):
        """Opens another program's window in front, with all its text selected."""
        chat = self.desktop.open_editor(CHAT, "chat.txt")
        self.desktop.select_all(CHAT)
        chat.window = self.desktop.active_window()
        return chat

    def open_letter(self):
        letter = self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        letter.window = self.desktop.active_window()
        return letter

    @contextlib.contextmanager
    def while_the_server_is_slow(self):
        """Of a run that begins here."""
        self.press_and_choose()
        self.desktop.wait_for_window("Enter the passphrase")
        os.kill(self.desktop.server.pid, signal.SIGSTOP)
        self.desktop.enter_secret()
        self.desktop.wait_for_no_window("Enter the passphrase")
        yield
        os.kill(self.desktop.server.pid, signal.SIGCONT)

    def assert_left_on_clipboard(self, reason, text=LETTER):
        self.desktop.wait_for_log(re.escape("[inject] signed block left on the clipboard; " + reason),
                                  "the agent says why it pastes nothing")
        self.desktop.close(PASTE_YOURSELF)
        self.assertTrue(self.desktop.selection().startswith(f"『{text}』"))
        self.assertNotIn("Signature Generated", self.desktop.output_of(self.desktop.monitor))

    def assert_untouched(self, editor, text):
        """Checks that nothing was typed or pasted into it."""
        self.switch_to(editor.window)
        name = re.escape(editor.file.name)
        self.desktop.wait_for_window(name)
        self.assertNotIn("*", self.desktop.active_window_name())
        self.assertEqual(editor.file.read_text(), text)

    def assert_pasted_into_letter_alone(self, letter, chat):
        self.desktop.wait_for_notification("✅ Signature Generated!")
        # First, since a program needs a moment with the keyboard to paste.
        self.switch_to(letter.window)
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_signed(letter)
        self.assert_untouched(chat, CHAT)


class SharedWindows:
    """What holds on every desktop that can `switch_to` a window and `leave_workspace`."""

    def setUp(self):
        super().setUp()
        self.start()

    def test_the_source_is_on_another_workspace(self):
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.leave_workspace()
            chat = self.open_chat()
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_pasted_into_letter_alone(letter, chat)

    def test_another_tab_of_the_window_is_in_front(self):
        files = [self.desktop.home / "chat.txt", self.desktop.home / "letter.txt"]
        for file, text in zip(files, (CHAT, LETTER)):
            file.write_text(text)
        self.desktop.start("mousepad", "--disable-server", "--opening-mode", "tab", *files)
        self.desktop.wait_for_window(r"(letter|chat)\.txt")
        self.show_tab("letter.txt")
        self.desktop.select_all(LETTER)
        with self.while_the_server_is_slow():
            self.show_tab("chat.txt")
        self.assert_left_on_clipboard("the source shows another document")
        for name in ("chat.txt", "letter.txt"):
            self.show_tab(name)
            self.assertNotIn("*", self.desktop.active_window_name())

    def show_tab(self, name):
        def shown():
            return name in self.desktop.active_window_name()
        if not shown():
            key = "ctrl+Page_Up" if name == "chat.txt" else "ctrl+Page_Down"
            self.desktop.key_until(key, shown, f"the tab “{name}” is shown")

    def test_the_source_was_closed_and_something_else_is_in_front(self):
        chat = self.open_chat()
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.desktop.end(letter)
            self.desktop.wait_for_window(re.escape(chat.file.name))
        self.assert_left_on_clipboard("the source has been closed")
        self.assert_untouched(chat, CHAT)

    def test_the_application_behind_the_settings_is_asked_to_copy(self):
        letter = self.open_letter()
        self.open_settings()
        self.press_and_choose()
        self.desktop.enter_secret()
        self.assert_signed(letter)


class Windows(SharedWindows, WindowStory):
    panel = True  # a window above all others, and nothing to sign in

    def setUp(self):
        super().setUp()
        self.x = XClient(self.desktop.env["DISPLAY"])
        self.addCleanup(self.x.close)

    def switch_to(self, window):
        self.desktop.run("xdotool", "windowactivate", window)

    def leave_workspace(self):
        self.desktop.run("xdotool", "set_desktop", 1)

    def test_the_source_is_minimised(self):
        chat = self.open_chat()
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.desktop.run("xdotool", "windowminimize", letter.window)
            self.desktop.wait_for_window(re.escape(chat.file.name))
        self.desktop.wait_for_window(re.escape(letter.file.name))
        self.assert_pasted_into_letter_alone(letter, chat)

    def test_another_window_comes_to_the_front_right_before_the_paste(self):
        chat = self.open_chat()
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.desktop.wait_for_window(re.escape(letter.file.name))
            before = self.x.clipboard_owner()
        self.x.wait_until_clipboard_leaves(before)
        time.sleep(0.05)
        self.x.focus(chat.window)  # within the 150 ms that a paste waits with the block there
        self.assert_left_on_clipboard("something else is in front of the source")
        self.assert_untouched(chat, CHAT)
        self.assert_untouched(letter, LETTER)

    def test_another_program_holds_the_keyboard_at_the_paste(self):
        letter = self.open_letter()
        with contextlib.ExitStack() as held:
            with self.while_the_server_is_slow():
                self.desktop.wait_for_window(re.escape(letter.file.name))
                held.enter_context(self.x.holding_the_keyboard())
            self.desktop.wait_for_window(PASTE_YOURSELF)
        self.assert_left_on_clipboard("something else has the keyboard")
        self.assert_untouched(letter, LETTER)

    def test_a_long_text_comes_in_pieces(self):
        text = "\n".join([LETTER] * 4_000)
        self.assert_signed(self.sign_in_editor(text), text)


if __name__ == "__main__":
    stories.main(__doc__)
