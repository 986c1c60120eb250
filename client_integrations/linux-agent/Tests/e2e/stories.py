#!/usr/bin/env python3
"""The agent used as a person uses it, on a virtual desktop with real applications.

usage: stories.py --quillseal PATH --server PATH --held-keys PATH [TEST...]
"""

import argparse
import os
import pathlib
import re
import signal
import sys
import unittest

import session
from session import wait_for

LETTER = "Dear Ms Whitcombe, thank you for the visit on 14 March. The second draft suits us well."
PASSPHRASE = "correct horse battery staple"
PROGRAMS = {}


class Story(unittest.TestCase):
    """One desktop for each test, so that none sees what another left."""

    panel = False

    def setUp(self):
        self.desktop = session.Session(PROGRAMS, panel=self.panel)
        self.enterContext(self.desktop)
        self.addCleanup(self._show_logs_on_failure)

    def _show_logs_on_failure(self):
        outcome = getattr(self, "_outcome", None)
        failures = getattr(getattr(outcome, "result", None), "failures", [])
        errors = getattr(getattr(outcome, "result", None), "errors", [])
        if any(test is self for test, _ in failures + errors) and self.desktop.agent:
            print(self.desktop.output_of(self.desktop.agent), file=sys.stderr)

    def start(self, **settings):
        url = self.desktop.start_server()
        # With the mode known, the key is registered before it first signs, and the person is asked
        # once; a test below starts without.
        self.desktop.write_settings(ServerURL=url, **{"SigningMode": "enclave", **settings})
        self.desktop.start_agent()

    def choose_passphrase(self, passphrase=PASSPHRASE):
        self.desktop.wait_for_window("Choose a passphrase")
        self.desktop.type(passphrase)
        self.desktop.key("Tab")
        self.desktop.type(passphrase)
        self.desktop.key("Return")

    def enter_passphrase(self, passphrase=PASSPHRASE):
        self.desktop.wait_for_window("Enter the passphrase")
        self.desktop.type(passphrase)
        self.desktop.key("Return")

    def sign_in_editor(self, text=LETTER):
        editor = self.desktop.open_editor(text)
        self.desktop.select_all(text)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.enter_passphrase()
        return editor

    def assert_signed(self, editor, text=LETTER):
        saved = self.desktop.saved_text(editor, "Check this signature")
        self.assertTrue(saved.startswith(f"『{text}』\n\n────"), saved)
        link = re.search(r"http://\S+/verify/\S+", saved)
        self.assertIsNotNone(link, saved)
        return link[0]


class Signing(Story):
    def test_a_letter_is_signed_and_pasted_back(self):
        self.start()
        editor = self.sign_in_editor()
        link = self.assert_signed(editor)
        page = self.desktop.run("curl", "-sS", "--fail", link)
        self.assertRegex(page, "(?i)valid|genuine|signature")
        wait_for("a notification tells of the signature",
                 lambda: "✅ Signature Generated!" in self.desktop.shown_notifications())
        self.assertIn("text/html", self.desktop.selection(target="TARGETS"))

    def test_a_key_that_the_server_does_not_know_is_registered_and_asked_for_again(self):
        self.desktop.write_settings(ServerURL=self.desktop.start_server())
        self.desktop.start_agent()
        editor = self.sign_in_editor()
        self.desktop.wait_for_output(self.desktop.server, "/api/register_native 200",
                                     "the key is registered")
        self.enter_passphrase()
        self.assert_signed(editor)

    def test_lock_keys_and_a_long_press_change_nothing(self):
        self.start()
        editor = self.sign_in_editor()
        self.assert_signed(editor)
        for lock, hold in (("Num_Lock", 120), ("Caps_Lock", 120), (None, 1500)):
            with self.subTest(lock=lock, hold=hold):
                self.desktop.key("ctrl+a", "Delete")
                self.desktop.type(LETTER)
                self.desktop.select_all(LETTER)
                if lock:
                    self.desktop.key(lock)
                try:
                    self.desktop.press_hotkey(hold)
                    self.desktop.wait_for_window("Enter the passphrase")
                finally:
                    if lock:
                        self.desktop.key(lock)
                self.enter_passphrase()
                self.assert_signed(editor)

    def test_without_a_selection_everything_is_taken(self):
        self.start()
        editor = self.desktop.open_editor(LETTER)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.enter_passphrase()
        self.assert_signed(editor)

    def test_a_wrong_passphrase_may_be_corrected(self):
        self.start()
        editor = self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.enter_passphrase("not the one I chose")
        self.desktop.wait_for_no_window("Enter the passphrase")
        self.enter_passphrase()
        self.assert_signed(editor)

    def test_the_confirmation_covers_medium_and_recipient(self):
        self.start(ConfirmBeforeSigning="true")
        editor = self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.desktop.wait_for_window("Sign this content?")
        self.desktop.type("whitcombe@example.org")
        self.desktop.key("Return")
        self.enter_passphrase()
        self.assert_signed(editor)
        self.assertIn("QUILLSEAL · Other / Unspecified → whitcombe@example.org · ",
                      editor.file.read_text())


class Refusals(Story):
    def setUp(self):
        super().setUp()
        self.start()

    def press_on(self, text):
        editor = self.desktop.open_editor(text)
        self.desktop.select_all(text)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        return editor

    def test_too_short(self):
        editor = self.press_on("Yes.")
        self.desktop.wait_for_window("Not signed — too short")
        self.desktop.key("Return")
        self.desktop.wait_for_no_window("Not signed")
        self.assertEqual(editor.file.read_text(), "Yes.")
        self.assertEqual(self.desktop.selection(), "Yes.")

    def test_a_cancelled_passphrase_leaves_the_text_alone(self):
        editor = self.press_on(LETTER)
        self.desktop.wait_for_window("Enter the passphrase")
        self.desktop.key("Escape")
        self.desktop.wait_for_window("Signing Error")
        self.desktop.key("Escape")
        self.desktop.wait_for_no_window("Signing Error")
        self.assertEqual(self.desktop.selection(), LETTER)
        self.assertEqual(editor.file.read_text(), LETTER)


class Trouble(Story):
    def test_the_server_is_down(self):
        self.desktop.write_settings(ServerURL="http://127.0.0.1:9", SigningMode="enclave")
        self.desktop.start_agent()
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.desktop.wait_for_window("Could Not Set Up This Computer")
        self.desktop.key("Return")
        self.desktop.wait_for_no_window("Could Not")

    def test_an_editor_that_closes_before_the_paste(self):
        self.start()
        editor = self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.desktop.wait_for_window("Enter the passphrase")
        self.desktop.end(editor)
        self.enter_passphrase()
        wait_for("the block is on the clipboard",
                 lambda: self.desktop.selection().startswith(f"『{LETTER}』"))

    def test_killed_in_mid_run_nothing_stays_behind(self):
        self.start()
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey()
        self.desktop.wait_for_window("Choose a passphrase")
        self.desktop.end(self.desktop.agent, signal.SIGKILL)
        self.desktop.start_agent()
        self.desktop.press_hotkey()
        self.choose_passphrase()
        self.desktop.wait_for_window("Enter the passphrase")


class Commands(Story):
    panel = True

    def test_a_second_start_hands_over_its_command(self):
        self.start()
        agent = PROGRAMS["quillseal"]
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.run(agent, "--sign")
        self.desktop.wait_for_window("Choose a passphrase")
        self.desktop.key("Escape")
        self.desktop.wait_for_no_window("Choose a passphrase")
        while self.desktop.alert_is_open():
            self.desktop.key("Escape")
        self.desktop.run(agent, "--settings")
        self.desktop.wait_for_window("Quill Seal Server Settings")
        self.desktop.run(agent, "--quit")
        wait_for("the agent ends", lambda: self.desktop.agent.poll() is not None)
        self.assertEqual(self.desktop.agent.returncode, 0)

    def test_settings_changed_from_outside_reach_the_next_run(self):
        self.desktop.write_settings(ServerURL="http://127.0.0.1:9")
        self.desktop.start_agent()
        url = self.desktop.start_server()
        self.desktop.write_settings(ServerURL=url, SigningMode="enclave")
        editor = self.sign_in_editor()
        self.assertTrue(self.assert_signed(editor).startswith(url))


def main():
    parser = argparse.ArgumentParser()
    for name in ("quillseal", "server", "held-keys"):
        parser.add_argument(f"--{name}", required=True,
                            type=lambda path: pathlib.Path(path).resolve())
    arguments, rest = parser.parse_known_args()
    PROGRAMS.update({"quillseal": arguments.quillseal, "quillseal-dev-server": arguments.server,
                     "held-keys": arguments.held_keys})
    unittest.main(argv=[sys.argv[0], *rest], verbosity=2)


if __name__ == "__main__":
    main()
