#!/usr/bin/python3
"""Tests the agent on KDE's compositor, with native applications and one under Xwayland.

Options and test names as in stories.py.
"""

import re

import clipboard
import stories
import wayland
import windows
from kwin_session import KwinSession
from session import LETTER

CONTROL, ALT, META = 0x04000000, 0x08000000, 0x10000000
HOTKEY = CONTROL | ALT | META | ord("H")


class OnKwin(stories.Story):
    def make_desktop(self):
        return KwinSession(self.build)


class KwinSigning(OnKwin, stories.Signing):
    """The stories of X11, here."""


class KwinDialogs(OnKwin, stories.Dialogs):
    """The same."""


class KwinApplications(OnKwin, wayland.Applications, stories.Applications):
    """The same."""


class WindowStory(windows.WindowStory):
    def assert_pasted_nowhere(self):
        self.desktop.wait_for_log("signed block left on the clipboard; something else has the keyboard",
                                  "the agent says why it pastes nothing")
        self.assertTrue(self.desktop.selection().startswith(f"『{LETTER}』"))
        self.assertFalse([name for name in self.desktop.window_names() if name.startswith("*")])


class KwinWindows(OnKwin, wayland.SharedWindows, WindowStory):
    def switch_to(self, window):
        self.desktop.show(window)

    def leave_workspace(self):
        self.desktop.call_kwin("/VirtualDesktopManager",
                               "org.kde.KWin.VirtualDesktopManager.createDesktop", "1", "elsewhere")
        self.desktop.call_kwin("/KWin", "org.kde.KWin.setCurrentDesktop", "2")

    def test_nothing_is_pasted_while_another_window_is_chosen(self):
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.desktop.wait_for_window(re.escape(letter.file.name))
            self.desktop.person.tell("down Alt_L Tab")
        self.assert_pasted_nowhere()
        self.desktop.person.tell("up")


class KwinLock(WindowStory):
    def make_desktop(self):
        return KwinSession(self.build, locks=True)

    def test_nothing_is_pasted_behind_a_locked_screen(self):
        self.start()
        letter = self.open_letter()
        with self.while_the_server_is_slow():
            self.desktop.wait_for_window(re.escape(letter.file.name))
            self.desktop.lock()
        self.assert_pasted_nowhere()


class KwinClipboard(OnKwin, clipboard.Clipboard):
    """The same."""


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


class KwinLayouts(wayland.Layouts, OnKwin):
    def make_desktop(self):
        return KwinSession(self.build, layout=self.layout())

    def test_everything_is_selected_with_the_second_of_two_layouts(self):
        self.start()
        self.desktop.choose_layout(1)
        editor = self.desktop.open_editor(LETTER)
        self.press_and_choose()
        self.desktop.enter_secret()
        self.assert_signed(editor)


class KwinLimits(OnKwin, wayland.Limits):
    """The same."""


# As that of Plasma 5 and of Plasma 6 before 6.4: keys, but no clipboard.
PORTAL = """
const { Gio, GLib } = imports.gi;
Gio.DBusExportedObject.wrapJSObject(`<node>
  <interface name="org.freedesktop.portal.RemoteDesktop">
  <property name="version" type="u" access="read"/>
  <property name="AvailableDeviceTypes" type="u" access="read"/></interface></node>`,
  { version: 1, AvailableDeviceTypes: 1 })
  .export(Gio.DBus.session, '/org/freedesktop/portal/desktop');
Gio.DBus.session.own_name('org.freedesktop.portal.Desktop', 0, () => print('owned'), null);
new GLib.MainLoop(null, false).run();
"""


class KwinWithoutPackage(stories.Story):
    def make_desktop(self):
        return KwinSession(self.build, is_installed=False)

    def test_the_agent_says_what_to_do(self):
        portal = self.desktop.start("gjs", "-c", PORTAL)
        self.desktop.wait_for_output(portal, "owned", "a portal offers keys")
        self.start()
        self.desktop.wait_for_window("Quillseal")
        self.assertIn("on KDE Plasma 5 where the package of Quillseal is installed",
                      self.desktop.output_of(self.desktop.agent))


if __name__ == "__main__":
    stories.main(__doc__)
