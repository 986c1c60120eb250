"""An X client for actions that no ordinary program does on command."""

import contextlib
import time

from session import PATIENCE, Failure, wait_for
from Xlib import X, Xatom
from Xlib.display import Display
from Xlib.protocol import event


class XClient:
    def __init__(self, display):
        self.x = Display(display)
        self.x.set_error_handler(lambda *_: None)  # a window may be closed or hidden
        self.root = self.x.screen().root
        self.clipboard = self.x.intern_atom("CLIPBOARD")

    def close(self):
        self.x.close()

    def new_window(self):
        return self.root.create_window(0, 0, 300, 200, 0, X.CopyFromParent)

    def focus(self, number):
        """Focuses the window at once."""
        window = self.x.create_resource_object("window", int(number))
        window.raise_window()
        window.set_input_focus(X.RevertToParent, X.CurrentTime)
        self.x.sync()

    @contextlib.contextmanager
    def holding_the_keyboard(self):
        """Grabs the keyboard, as an open menu or the screen lock does; the focus does not change."""
        status = self.root.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
        if status != X.GrabSuccess:
            raise Failure("somebody else holds the keyboard")
        yield
        self.x.ungrab_keyboard(X.CurrentTime)
        self.x.sync()

    def clipboard_owner(self):
        return self.x.get_selection_owner(self.clipboard)

    def wait_until_clipboard_leaves(self, owner):
        """Waits for another owner of the clipboard, without pauses."""
        deadline = time.monotonic() + PATIENCE
        while self.clipboard_owner() == owner:
            if time.monotonic() > deadline:
                raise Failure("nobody takes the clipboard")

    def answer_late(self, text, begin, meanwhile):
        """Has the clipboard, and gives this text to the first who asks after `begin`, but `meanwhile`
        happens before."""
        targets, utf8 = map(self.x.intern_atom, ("TARGETS", "UTF8_STRING"))
        owner = self.new_window()
        owner.set_selection_owner(self.clipboard, X.CurrentTime)
        self.x.sync()
        begin()
        target = targets
        while target == targets:
            asked = self.x.next_event()
            target = asked.target
            if target == targets:
                asked.requestor.change_property(asked.property, Xatom.ATOM, 32, [utf8])
            else:
                meanwhile()
                asked.requestor.change_property(asked.property, utf8, 8, text.encode())
            asked.requestor.send_event(event.SelectionNotify(
                time=asked.time, requestor=asked.requestor, selection=asked.selection,
                target=target, property=asked.property))
            self.x.sync()

    def pretend_presses(self, number, key, *times):
        """Sends the program of a window presses of a key, as if the root window had got them."""
        window = self.x.create_resource_object("window", int(number))
        for moment in times:
            window.send_event(event.KeyPress(
                time=moment, detail=key, root=self.root, window=self.root, child=X.NONE, state=0,
                root_x=0, root_y=0, event_x=0, event_y=0, same_screen=True))
        self.x.sync()

    # A reader of the clipboard that may behave as it likes

    def ask_for(self, target, window=None):
        """Asks the clipboard's owner to store this in the property of the same name, and does not
        wait."""
        atom = self.x.intern_atom(target)
        (window or self.new_window()).convert_selection(self.clipboard, atom, atom, X.CurrentTime)
        self.x.sync()

    def ask_for_several(self, **targets):
        """Asks for several targets at once, each with the name of a property. Returns the names of
        those that are stored, once they are."""
        window = self.new_window()
        request, kind = map(self.x.intern_atom, ("MULTIPLE", "ATOM_PAIR"))
        pairs = [self.x.intern_atom(name) for pair in targets.items() for name in reversed(pair)]
        window.change_property(request, kind, 32, pairs)
        self.ask_for("MULTIPLE", window)
        wait_for("the clipboard's owner answers", lambda: self.x.pending_events() and
                 self.x.next_event().type == X.SelectionNotify)
        stored = window.get_property(request, kind, 0, len(pairs)).value
        return [name for name, atom in zip(targets, stored[1::2]) if atom]
