#!/usr/bin/python3
"""Tests that the block stays on the clipboard of an X server after the agent has ended, and that the
program that keeps it behaves.

Options and test names as in stories.py.
"""

import os
import pathlib
import signal
import socket
import subprocess

import stories
from session import LETTER, wait_for
from xclient import XClient


class Keepers:
    def keepers(self):
        """Returns the processes of this session that keep a block."""
        def is_ours(pid):
            try:
                environment = pathlib.Path(f"/proc/{pid}/environ").read_bytes().split(b"\0")
            except OSError:  # it has ended meanwhile
                return False
            return f"HOME={self.desktop.home}".encode() in environment

        found = self.desktop.run("pgrep", "-f", "quillseal-clipboard-keeper", check=False).split()
        return [pid for pid in found if is_ours(pid)]

    def run_keeper(self, text, markup="", *options, output=subprocess.DEVNULL):
        text = text.encode()
        return subprocess.run(
            [self.build / "client_integrations/linux-agent/Sources/quillseal-clipboard-keeper-x11",
             *options], input=b"%d\n%s%s" % (len(text), text, markup.encode()), stdout=output,
            env=self.desktop.env, cwd=self.desktop.home, check=True, timeout=5).stdout

    def wait_until_nothing_stays(self):
        wait_for("nothing of Quillseal stays behind", lambda: not self.keepers())


class Clipboard(Keepers):
    def test_the_block_outlives_the_agent_until_somebody_copies(self):
        self.start()
        editor = self.press_in_editor()
        for is_killed in (True, False):
            self.desktop.enter_secret()
            self.assert_signed(editor)
            block = editor.file.read_text()
            self.desktop.end(editor)
            if is_killed:
                self.desktop.end(self.desktop.agent, signal.SIGKILL)
            else:
                self.desktop.run(self.desktop.quillseal, "--quit")
                self.wait_until_ended()
            self.assertEqual(len(self.keepers()), 1)
            self.assert_pasted(block, "new.txt")
            self.assertIn("<!DOCTYPE html>", self.desktop.selection(target="text/html"))
            self.copy_elsewhere("something else")
            self.wait_until_nothing_stays()
            self.assertEqual(self.desktop.selection(), "something else")
            if is_killed:
                self.desktop.start_agent()
                editor = self.desktop.press_in_editor()

    def copy_elsewhere(self, text):
        self.desktop.start("wl-copy", "--foreground", text)

    def assert_pasted(self, block, name):
        editor = self.desktop.open_editor("", name)
        self.desktop.key_until("ctrl+v", lambda: "*" in self.desktop.active_window_name(),
                               "something is pasted")
        self.assertEqual(self.desktop.saved_text(editor, "Check this signature"), block)
        self.desktop.end(editor)


class OnX11:
    def copy_elsewhere(self, text):
        file = self.desktop.home / "copied.txt"
        file.write_text(text)
        self.desktop.start("xclip", "-i", "-quiet", "-selection", "clipboard", file)


class X11Clipboard(OnX11, Clipboard, stories.Story):
    """The same."""


class KeeperForX11(OnX11, Keepers, stories.Story):
    """The keeper alone."""

    TEXT = "『" + LETTER * 4000 + "』"
    MARKUP = f"<p>{TEXT}</p>" * 8

    def keep(self):
        client = XClient(self.desktop.env["DISPLAY"])
        self.addCleanup(client.close)
        window = self.run_keeper(self.TEXT, self.MARKUP, output=subprocess.PIPE)
        self.assertEqual(int(window), client.clipboard_owner().id)
        self.assert_kept()
        return client

    def keep_later(self, text=TEXT):
        """Returns the line, by whose end the keeper begins."""
        line, end = socket.socketpair()
        self.addCleanup(line.close)
        with end:
            self.run_keeper(text, self.MARKUP, "--waiting", output=end)
        self.assert_kept()
        return line

    def assert_kept(self):
        wait_for("one keeper is left", lambda: len(self.keepers()) == 1)
        self.assertEqual(os.readlink(f"/proc/{self.keepers()[0]}/cwd"), "/")

    def copy_and_wait(self):
        self.copy_elsewhere("something else")
        self.wait_until_nothing_stays()

    def copied(self, text):
        self.copy_elsewhere(text)
        wait_for("it is copied", lambda: self.desktop.selection() == text)

    def test_every_format_is_delivered_until_somebody_copies(self):
        self.keep()
        client = self.keep()  # the earlier keeper ends
        for target in ("text/plain;charset=utf-8", "text/plain", "UTF8_STRING"):
            self.assertEqual(self.desktop.selection(target=target), self.TEXT)
        self.assertEqual(self.desktop.selection(target="text/html"), self.MARKUP)
        self.assertEqual(set(self.desktop.selection(target="TARGETS").split()), {
            "TARGETS", "TIMESTAMP", "MULTIPLE", "text/plain;charset=utf-8", "text/plain",
            "UTF8_STRING", "text/html"})
        self.assertEqual(
            client.ask_for_several(a="TARGETS", b="image/png", c="TIMESTAMP"), ["a", "c"])
        self.copy_and_wait()

    def test_a_program_that_stops_reading_keeps_nobody_waiting(self):
        self.keep()
        client = XClient(self.desktop.env["DISPLAY"])
        client.ask_for("text/html")
        self.assertEqual(self.desktop.selection(target="text/html"), self.MARKUP)
        with self.subTest("it goes away"):
            client.close()
            self.copy_and_wait()
        with self.subTest("it stays"):
            self.keep().ask_for("text/html")
            self.copy_and_wait()

    def test_a_server_that_ends_with_its_last_program_stays_as_long_as_the_block(self):
        server = self.desktop.start_x_server("-terminate")
        self.run_keeper(self.TEXT, self.MARKUP)
        self.assertEqual(self.desktop.selection(), self.TEXT)
        self.assertIsNone(server.poll())
        os.kill(server.pid, signal.SIGKILL)
        self.wait_until_nothing_stays()

    def test_one_that_waits_takes_over_what_ended_and_nothing_else(self):
        with self.subTest("nobody has copied"):
            self.keep_later().close()
            self.assert_taken_over()
        with self.subTest("the plain text is left"):
            line = self.keep_later()
            self.copied(self.TEXT)
            line.close()
            self.assert_taken_over()
        with self.subTest("somebody has copied"):
            line = self.keep_later()
            self.copied("something else")
            line.close()
            self.wait_until_nothing_stays()
            self.assertEqual(self.desktop.selection(), "something else")
        with self.subTest("somebody copies at the last moment"):
            line, client = self.keep_later(LETTER), XClient(self.desktop.env["DISPLAY"])
            self.addCleanup(client.close)
            client.answer_late(LETTER, line.close, lambda: self.copied("something else"))
            self.wait_until_nothing_stays()
            self.assertEqual(self.desktop.selection(), "something else")
        with self.subTest("it is dismissed"):
            with self.keep_later() as line:
                line.send(b"\0")
                self.wait_until_nothing_stays()

    def assert_taken_over(self):
        wait_for("the markup is there",
                 lambda: self.desktop.selection(target="text/html") == self.MARKUP)
        self.assertEqual(self.desktop.selection(), self.TEXT)
        self.copy_and_wait()


if __name__ == "__main__":
    stories.main(__doc__)
