#!/usr/bin/env python3
"""Tests the agent as a person uses it, on a virtual desktop with real applications.

Arguments after the options go to unittest: names of tests, such as Signing or
Signing.test_a_letter_is_signed_and_pasted_back, or none for all.
"""

import hashlib
import html
import os
import pathlib
import re
import resource
import signal
import socket
import subprocess
import sys
import unittest

sys.path.append(str(pathlib.Path(__file__).parents[4] / "tools/virtual-desktop"))

import session
from applications import Terminal, Writer
from browsers import Browser, Site
from session import LETTER, wait_for

# A text of paragraphs with characters that have several forms, and its signed form.
PARAGRAPHS = "Dear Ms Whitcombe,\n\nthe second draft of “the lease” suits us — Zoë, 京都"
DIGEST = hashlib.sha256(
    'DearMsWhitcombe,theseconddraftof"thelease"suitsus-Zoë,京都'.encode()).hexdigest()


class Story(unittest.TestCase):
    """Each test has its own desktop."""

    build = None
    panel = False

    def setUp(self):
        self.desktop = self.make_desktop()
        self.enterContext(self.desktop)
        self.addCleanup(self._show_logs_on_failure)

    def make_desktop(self):
        return session.Session(self.build, panel=self.panel)

    def _show_logs_on_failure(self):
        outcome = getattr(self, "_outcome", None)
        failures = getattr(getattr(outcome, "result", None), "failures", [])
        errors = getattr(getattr(outcome, "result", None), "errors", [])
        if any(test is self for test, _ in failures + errors) and self.desktop.agent:
            print(self.desktop.output_of(self.desktop.agent), file=sys.stderr)

    def start(self, tpm=False, **settings):
        url = self.desktop.start_server()
        # With the mode set, the key is registered before its first signature, so the person is
        # asked once. One test below starts without it.
        self.desktop.write_settings(ServerURL=url, SigningMode="enclave", **settings)
        self.desktop.start_agent(tpm=self.desktop.start_software_tpm() if tpm else "none")

    def press_and_choose(self):
        """The hotkey, and the secret of the new key."""
        self.desktop.press_hotkey()
        self.desktop.choose_secret()

    def sign_by_command(self):
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        self.desktop.run(self.desktop.quillseal, "--sign")
        self.desktop.wait_for_window("Choose a passphrase")

    def open_settings(self):
        self.desktop.run(self.desktop.quillseal, "--settings")
        self.desktop.wait_for_window("Quill Seal Server Settings")

    def wait_until_ended(self):
        wait_for("the agent ends", lambda: self.desktop.agent.poll() is not None)

    def wait_for_block(self):
        wait_for("the block is on the clipboard",
                 lambda: self.desktop.selection().startswith(f"『{LETTER}』"))

    def assert_unrecorded(self):
        self.assertEqual(self.desktop.recorded(), [])

    def sign_in_editor(self, text=LETTER):
        editor = self.press_in_editor(text)
        self.desktop.enter_secret()
        return editor

    def press_in_editor(self, text=LETTER):
        """And choose the secret of the new key."""
        editor = self.desktop.press_in_editor(text)
        self.desktop.choose_secret()
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
        self.assertIn("&quot;kind&quot;:&quot;device&quot;", page)
        self.desktop.wait_for_notification("✅ Signature Generated!")
        self.assertIn("text/html", self.desktop.selection(target="TARGETS"))

    def test_a_key_that_the_server_does_not_know_is_registered_and_asked_for_again(self):
        self.desktop.write_settings(ServerURL=self.desktop.start_server())
        self.desktop.start_agent()
        editor = self.sign_in_editor()
        self.desktop.wait_for_output(self.desktop.server, "/api/register_native 200",
                                     "the key is registered")
        self.desktop.enter_secret()
        self.assert_signed(editor)

    def test_lock_keys_and_a_long_press_change_nothing(self):
        self.start()
        editor = self.sign_in_editor()
        self.assert_signed(editor)
        for lock, hold in (("Num_Lock", 120), ("Caps_Lock", 120), (None, 1500)):
            with self.subTest(lock=lock, hold=hold):
                self.desktop.end(editor)
                editor = self.desktop.open_editor(LETTER)
                self.desktop.select_all(LETTER)
                if lock:
                    self.desktop.key(lock)
                try:
                    self.desktop.press_hotkey(hold)
                    self.desktop.wait_for_window("Enter the passphrase")
                finally:
                    if lock:
                        self.desktop.key(lock)
                self.desktop.enter_secret()
                self.assert_signed(editor)

    def test_without_a_selection_everything_is_taken(self):
        self.start()
        editor = self.desktop.open_editor(LETTER)
        self.press_and_choose()
        self.desktop.enter_secret()
        self.assert_signed(editor)


class Applications(Story):
    """A letter in different applications has the same digest, and the block replaces it in the
    format of each application."""

    def setUp(self):
        super().setUp()
        self.start()

    def sign(self):
        self.press_and_choose()
        self.desktop.wait_for_window("Enter the passphrase")
        offered = self.desktop.selection(target="TARGETS").split()
        self.desktop.enter_secret()
        return offered

    def assert_recorded(self, scope):
        self.assertEqual(self.desktop.recorded(), [(DIGEST, scope)])

    def test_a_word_processor(self):
        writer = Writer(self.desktop, PARAGRAPHS, bold="draft")
        self.desktop.select_all(PARAGRAPHS)
        offered = self.sign()
        self.assertLessEqual({"text/html", "text/rtf"}, set(offered))
        document = writer.saved("Check this signature")
        # The text keeps its formatting; the stamp is a table.
        self.assertRegex(document, r'<text:span text:style-name="\w+">draft</text:span>')
        self.assertEqual(document.count("<table:table "), 1)
        self.assertEqual((document.count("『"), document.count("』")), (1, 1))
        self.assertNotIn("\0", self.desktop.selection(target="text/html"), "Writer's ends in one")
        self.assert_recorded("Word Document (LibreOffice Writer)")

    def sign_in_browser(self, kind, text):
        site = Site(kind, text)
        browser = Browser(self.desktop, "chromium")
        browser.start(site.address("Mail"))
        browser.wait_for_page("Mail")
        wait_for("the page is shown", lambda: ("painted", "Mail") in site.told)
        self.desktop.select_all(PARAGRAPHS)
        self.sign()
        content = wait_for("the block is in the page", lambda: site.told.get(("content", "Mail")))
        self.assert_recorded("Public Broadcast")
        return content

    def test_a_text_area(self):
        content = self.sign_in_browser("plain", PARAGRAPHS)
        self.assertTrue(content.startswith(f"『{PARAGRAPHS}』\n\n────"), content)

    def test_a_rich_text_field(self):
        markup = PARAGRAPHS.replace("draft", "<b>draft</b>").replace("\n", "<br>")
        content = self.sign_in_browser("rich", markup)
        self.assertEqual(content.count("<table"), 1, content)
        self.assertRegex(content, r"<(b|strong)\b[^>]*>draft</")
        text = html.unescape(re.sub(r"<[^>]+>", "", content))
        self.assertRegex("".join(text.split()), f"^『{''.join(PARAGRAPHS.split())}』🛡️QUILLSEAL")

    def assert_left_to_paste(self, terminal):
        """Checks that no interrupt has ended the program and that it reads only what is typed now."""
        self.desktop.close("Signed — Paste It Into Your Message")
        self.assertTrue(self.desktop.selection().startswith(f"『{PARAGRAPHS}』\n\n────"))
        self.desktop.wait_for_window("Notes")
        self.desktop.type("typed\n")
        wait_for("the program reads what is typed", terminal.received.read_text)
        self.assertEqual(terminal.received.read_text(), "typed\n")
        self.assert_recorded("Public Broadcast")

    def test_a_terminal_whose_program_goes_on(self, program="xfce4-terminal"):
        terminal = Terminal(self.desktop, program, PARAGRAPHS)
        self.desktop.select_all(PARAGRAPHS, "ctrl+shift+a")
        self.sign()
        self.assert_left_to_paste(terminal)

    def test_a_terminal_without_a_key_that_copies(self):
        terminal = Terminal(self.desktop, "xterm", PARAGRAPHS)
        terminal.drag_over(PARAGRAPHS)
        self.sign()
        self.assert_left_to_paste(terminal)

    def test_what_is_selected_in_another_window_is_not_signed(self):
        self.desktop.open_editor(LETTER)
        self.desktop.select_all(LETTER)
        Terminal(self.desktop, "xterm", PARAGRAPHS)
        self.press_and_choose()
        self.desktop.close("No Text Found")
        self.assert_unrecorded()

    def test_a_copy_that_is_marked_as_a_secret_is_no_text(self):
        self.desktop.start(
            self.build / "client_integrations/linux-agent/Tests/odd-editor", "secret", LETTER)
        self.desktop.wait_for_window("Vault")
        self.desktop.select_all(LETTER)
        self.press_and_choose()
        self.desktop.close("No Text Found")
        self.assert_unrecorded()
        self.assertEqual(self.desktop.selection(), LETTER)


class SoftwareTpm(Story):
    def test_a_key_in_the_tpm_signs_once_the_pin_is_right(self):
        self.start(tpm=True)
        self.assertIn("TPM simulator", self.desktop.output_of(self.desktop.agent))
        editor = self.desktop.press_in_editor()
        self.desktop.choose_secret("PIN")
        self.desktop.wait_for_window("Enter the PIN")
        question = self.desktop.active_window()
        self.desktop.enter_secret("not the one I chose", kind="PIN")
        self.desktop.wait_for_next_window(question, "Enter the PIN")
        self.desktop.enter_secret(kind="PIN")
        self.assert_signed(editor)
        # No output of the TPM's software, which reports every failed command.
        for line in self.desktop.output_of(self.desktop.agent).splitlines():
            self.assertRegex(line, r"^\[\w+\] ")


class Dialogs(Story):
    """Tests of the agent's windows, which are answered by keyboard."""

    def press_again(self, editor):
        self.desktop.wait_for_window(re.escape(editor.file.name))
        self.desktop.press_hotkey()

    def assert_unsigned(self, editor, text):
        self.assert_unrecorded()
        self.assertEqual(editor.file.read_text(), text)
        self.assertEqual(self.desktop.selection(), text)

    def test_a_warning_stops_or_is_overruled(self):
        text = "Congratulations, you have won a prize! Click here to claim it today."
        self.start()
        editor = self.press_in_editor(text)
        self.desktop.close("Sign this anyway?", "Escape")
        self.assert_unsigned(editor, text)
        self.press_again(editor)
        self.desktop.close("Sign this anyway?", "Tab", "Return")
        self.assert_unsigned(editor, text)
        self.press_again(editor)
        self.desktop.close("Sign this anyway?", "Return")
        self.desktop.enter_secret()
        self.assert_signed(editor, text)

    def test_the_confirmation_covers_medium_and_recipient(self):
        self.start(ConfirmBeforeSigning="true")
        editor = self.press_in_editor()
        self.desktop.close("Sign this content?", "Escape")
        self.assert_unsigned(editor, LETTER)
        self.press_again(editor)
        self.desktop.wait_for_window("Sign this content?")
        self.desktop.type("whitcombe@example.org")
        self.desktop.key("shift+Tab")
        self.desktop.type("Link")
        self.desktop.key("Return")
        self.desktop.enter_secret()
        self.assert_signed(editor)
        self.assertIn("QUILLSEAL · LinkedIn Post → whitcombe@example.org · ",
                      editor.file.read_text())
        self.assertEqual(self.desktop.recorded()[0][1], "LinkedIn Post → whitcombe@example.org")


class Shield(Story):
    def start_as_user(self, *command):
        """Runs as root without the right to read every process, so like any user, and with core
        files allowed."""
        limit = resource.getrlimit(resource.RLIMIT_CORE)[1]
        return self.desktop.start(
            *self.user, *command,
            preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CORE, (limit, limit)))

    @property
    def user(self):
        return ("setpriv", "--bounding-set", "-sys_ptrace") if os.geteuid() == 0 else ()

    def is_readable(self, process):
        read = f"open('/proc/{process.pid}/mem', 'rb')"
        return subprocess.run([*self.user, sys.executable, "-c", read], check=False,
                              stderr=subprocess.DEVNULL).returncode == 0

    def leaves_a_core_file(self, process):
        os.kill(process.pid, signal.SIGABRT)
        return os.WCOREDUMP(os.waitpid(process.pid, 0)[1])

    def test_it_is_shielded_before_it_connects_to_compositor_or_bus(self):
        for variable, form in (("WAYLAND_DISPLAY", "{}"), ("DBUS_SESSION_BUS_ADDRESS", "unix:path={}")):
            address = self.desktop.folder / variable
            with self.subTest(variable), socket.socket(socket.AF_UNIX) as silent:
                silent.bind(str(address))
                silent.listen()
                silent.settimeout(session.PATIENCE)
                self.desktop.env[variable] = form.format(address)
                agent = self.start_as_user(self.desktop.quillseal, "--sign", "--tpm", "none")
                with silent.accept()[0]:
                    self.assertFalse(self.is_readable(agent))
                    self.desktop.end(agent)

    def test_other_programs_of_the_user_read_neither_its_memory_nor_a_core_file(self):
        other = self.start_as_user("sleep", "600")
        wait_for("the program starts", lambda: self.is_readable(other))
        agent = self.start_as_user(self.desktop.quillseal, "--tpm", "none")
        self.desktop.wait_for_output(agent, r"\[start\] ready", "the agent is ready")
        self.assertFalse(self.is_readable(agent))
        self.assertFalse(self.leaves_a_core_file(agent))


class Commands(Story):
    panel = True

    def test_a_second_start_hands_over_its_command(self):
        self.start()
        self.sign_by_command()
        self.desktop.close("Choose a passphrase", "Escape")
        self.desktop.wait_for_log("called off by the user", "the agent says that nothing was signed")
        self.open_settings()
        # One of its own, which needs no installed theme.
        self.assertIn("Icon (22 x 22)", self.desktop.run(
            "xprop", "-id", self.desktop.active_window(), "_NET_WM_ICON"))
        self.desktop.run(self.desktop.quillseal, "--quit")
        self.wait_until_ended()
        self.assertEqual(self.desktop.agent.returncode, 0)


class Limits(Story):
    """Where something does not work, the agent says what does."""

    def test_without_xtest_only_the_settings_work(self):
        self.desktop = self.enterContext(
            session.Session(self.build, x_options=("-extension", "XTEST")))
        self.desktop.start_agent()
        self.assertIn("lacks the XTEST extension", self.desktop.output_of(self.desktop.agent))
        self.desktop.wait_for_window("Quillseal")
        self.desktop.run(self.desktop.quillseal, "--settings")
        wait_for("the settings are shown",
                 lambda: "Quill Seal Server Settings" in self.desktop.window_names())

    def test_a_wayland_session_is_signed_in_through_its_x_server(self):
        # Some desktops set QT_QPA_PLATFORM to Wayland for every program; a compositor that is
        # started from a console leaves this session type.
        self.desktop.env.update(XDG_SESSION_TYPE="tty", WAYLAND_DISPLAY="wayland-0",
                                QT_QPA_PLATFORM="wayland")
        self.start()
        self.assertIn("Bind the command “quillseal --sign”",
                      self.desktop.output_of(self.desktop.agent))
        self.desktop.wait_for_window("Quillseal")
        self.desktop.key("Return")
        self.desktop.wait_for_no_window("Quillseal")
        self.assert_signed(self.sign_in_editor())

    def test_at_the_start_of_a_session_the_limits_are_a_notification(self):
        self.desktop.env.update(XDG_SESSION_TYPE="wayland")
        self.desktop.start(self.desktop.quillseal, "--background")
        self.desktop.wait_for_notification("Bind the command")
        self.assertNotIn("Quillseal", self.desktop.window_names())


def main(description):
    arguments, rest = session.arguments_parser(description).parse_known_args()
    Story.build = arguments.build
    unittest.main(argv=[sys.argv[0], *rest], verbosity=2)


if __name__ == "__main__":
    main(__doc__)
