"""An X client for actions that no ordinary program does on command."""

import contextlib
import ctypes
import time

from session import PATIENCE, Failure


@ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
def take_no_notice(_display, _error):
    """Ignores X errors, which would end the program: a window may be closed or hidden."""
    return 0


class XClient:
    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        for name, result in (("XOpenDisplay", ctypes.c_void_p),
                             ("XDefaultRootWindow", ctypes.c_ulong),
                             ("XInternAtom", ctypes.c_ulong),
                             ("XGetSelectionOwner", ctypes.c_ulong),
                             ("XCreateSimpleWindow", ctypes.c_ulong),
                             ("XKeysymToKeycode", ctypes.c_ubyte)):
            getattr(self.x11, name).restype = result
        self.x11.XSetErrorHandler(take_no_notice)
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))
        self.clipboard = ctypes.c_ulong(self.x11.XInternAtom(self.display, b"CLIPBOARD", 0))

    def close(self):
        self.x11.XCloseDisplay(self.display)

    def ask(self, request, *arguments):
        """Gives the result once the server has done it."""
        result = getattr(self.x11, request)(self.display, *arguments)
        self.x11.XSync(self.display, 0)
        return result

    def focus(self, window):
        """Focuses the window at once."""
        revert_to_parent = 2
        self.x11.XRaiseWindow(self.display, ctypes.c_ulong(int(window)))
        self.ask("XSetInputFocus", ctypes.c_ulong(int(window)), revert_to_parent, ctypes.c_ulong(0))

    @contextlib.contextmanager
    def holding_the_keyboard(self):
        """Grabs the keyboard, as an open menu or the screen lock does; the focus does not change."""
        asynchronous, success = 1, 0
        result = self.x11.XGrabKeyboard(self.display, self.root, 0, asynchronous, asynchronous,
                                        ctypes.c_ulong(0))
        if result != success:
            raise Failure("somebody else holds the keyboard")
        yield
        self.ask("XUngrabKeyboard", ctypes.c_ulong(0))

    def clipboard_owner(self):
        return self.x11.XGetSelectionOwner(self.display, self.clipboard)

    def wait_until_clipboard_leaves(self, owner):
        """Waits for another owner of the clipboard, without pauses."""
        deadline = time.monotonic() + PATIENCE
        while self.clipboard_owner() == owner:
            if time.monotonic() > deadline:
                raise Failure("nobody takes the clipboard")
            time.sleep(0.001)

    # A reader of the clipboard that may behave as it likes

    def _atom(self, name):
        return self.x11.XInternAtom(self.display, name.encode(), 0)

    def _window(self):
        none = ctypes.c_ulong(0)
        return ctypes.c_ulong(self.x11.XCreateSimpleWindow(
            self.display, self.root, 0, 0, 1, 1, 0, none, none))

    def ask_for(self, target, window=None):
        """Asks the clipboard's owner to store this in the property of the same name, and does not
        wait."""
        atom = ctypes.c_ulong(self._atom(target))
        self.ask("XConvertSelection", self.clipboard, atom, atom, window or self._window(),
                 ctypes.c_ulong(0))

    def ask_for_several(self, **targets):
        """Asks for several targets at once, each with the name of a property. Returns the names of
        those that are stored, once they are."""
        window, request = self._window(), ctypes.c_ulong(self._atom("MULTIPLE"))
        names = {self._atom(name): name for name in targets}
        pairs = [atom for name, target in targets.items() for atom in
                 (self._atom(target), self._atom(name))]
        kind, number = ctypes.c_ulong(self._atom("ATOM_PAIR")), ctypes.c_ulong * len(pairs)
        self.ask("XChangeProperty", window, request, kind, 32, 0, number(*pairs), len(pairs))
        self.ask_for("MULTIPLE", window)
        selection_notify, event = 31, (ctypes.c_long * 24)()
        deadline = time.monotonic() + PATIENCE
        while not self.x11.XCheckTypedWindowEvent(self.display, window, selection_notify, event):
            if time.monotonic() > deadline:
                raise Failure("the clipboard's owner does not answer")
            time.sleep(0.01)
        stored = ctypes.POINTER(ctypes.c_ulong)()
        ignored = [ctypes.byref(ctypes.c_ulong()) for _ in range(4)]
        self.x11.XGetWindowProperty(
            self.display, window, request, ctypes.c_long(0), ctypes.c_long(len(pairs)), 0, kind,
            *ignored, ctypes.byref(stored))
        return [names[atom] for atom in stored[1:len(pairs):2] if atom]
