#!/usr/bin/env python3
"""Tests the agent on GNOME Shell, with native applications and one under Xwayland.

Options and test names as in stories.py.
"""

import subprocess

import stories
from gnome_session import GnomeSession
from session import LETTER, wait_for


class OnGnome(stories.Story):
    def make_desktop(self):
        return GnomeSession(self.build)


class GnomeExtension(OnGnome):
    """The extension alone, asked as the agent asks it."""

    def setUp(self):
        super().setUp()
        self.console = subprocess.Popen(
            [self.build / "client_integrations/linux-agent/Tests/shell-extension-console"],
            env=self.desktop.env, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
            bufsize=1)
        self.addCleanup(self.console.communicate)

    def tell(self, command):
        self.console.stdin.write(command + "\n")
        return self.console.stdout.readline().strip()

    def front(self):
        return self.tell("front").split()

    def test_it_names_the_window_in_front_and_its_document(self):
        self.assertEqual(self.front()[:3], ["0", "-", "-"])
        self.desktop.open_editor(LETTER)
        letter = self.front()
        self.assertEqual(letter[1:6], ["keys", "-", "org.xfce.mousepad", "mousepad", "mousepad"])
        self.desktop.type("!")
        self.desktop.wait_for_window(r"\*.*letter")
        self.assertEqual(self.front(), letter)
        with self.desktop.xwayland():
            self.desktop.open_editor("Hello", "chat.txt")
        chat = self.front()
        self.assertEqual(chat[1:6], ["keys", "-", "org.xfce.mousepad", "Mousepad", "mousepad"])
        self.assertNotEqual((letter[0], letter[6]), (chat[0], chat[6]))
        self.assertRegex(chat[6], "^[0-9a-f]{64}$")
        self.tell(f"activate {letter[0]}")
        self.desktop.wait_for_window("letter.txt")
        self.assertEqual(self.front(), letter)

    def test_keys_that_the_shell_gets_are_not_the_windows(self):
        self.desktop.open_editor(LETTER)
        window = self.front()[0]
        self.desktop.hold("Control_L", "Alt_L")
        wait_for("modifiers are held", lambda: self.front()[:3] == [window, "keys", "held"])
        self.desktop.let_go("Control_L", "Alt_L")
        wait_for("no modifier is held", lambda: self.front()[2] == "-")
        self.desktop.evaluate("Main.overview.show()")
        wait_for("the overview has the keys", lambda: self.front()[:2] == [window, "-"])

    def test_it_answers_the_agent_alone(self):
        asked = ("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path",
                 "/com/quillseal/FrontWindow", "--method", "com.quillseal.FrontWindow1.")
        for call in (["Front"], ["Activate", "1"]):
            with self.assertRaisesRegex(stories.session.Failure, "Only the Quillseal agent may ask"):
                self.desktop.run(*asked[:-1], asked[-1] + call[0], *call[1:])
        self.tell("leave")
        self.assertEqual(self.tell("front"), "no answer")


if __name__ == "__main__":
    stories.main(__doc__)
