// Tells the Quillseal agent which window of another program was focused last, and how often the
// clipboard has changed, and activates that window or one of an application.
// It answers only the process that owns the agent's name on the session bus, and emits no signals.
// The object is on the Shell's own connection, so its bus name is org.gnome.Shell, which no other
// program can take.

const agentName = 'com.quillseal.Agent';
const objectPath = '/com/quillseal/FrontWindow';
const patience = 1000; // milliseconds
const description = `<node><interface name="com.quillseal.FrontWindow1">
  <method name="Front">
    <arg name="window" type="t" direction="out"/>
    <arg name="has_keys" type="b" direction="out"/>
    <arg name="holds_modifiers" type="b" direction="out"/>
    <arg name="desktop_file" type="s" direction="out"/>
    <arg name="window_class" type="s" direction="out"/>
    <arg name="process" type="u" direction="out"/>
    <arg name="document" type="s" direction="out"/>
    <arg name="clipboard_changes" type="u" direction="out"/>
  </method>
  <method name="Activate">
    <arg name="window" type="t" direction="in"/>
    <arg name="found" type="b" direction="out"/>
  </method>
  <method name="ActivateApplication">
    <arg name="desktop_file" type="s" direction="in"/>
    <arg name="found" type="b" direction="out"/>
  </method>
</interface></node>`;

// All that change what a key does, but not the locks.
const { ModifierType } = Clutter;
const modifiers = ModifierType.SHIFT_MASK | ModifierType.CONTROL_MASK | ModifierType.MOD1_MASK |
  ModifierType.MOD4_MASK | ModifierType.MOD5_MASK | ModifierType.SUPER_MASK |
  ModifierType.HYPER_MASK | ModifierType.META_MASK;

function processOf(busName) {
  return new Promise((resolve, reject) => {
    Gio.DBus.session.call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
      'GetConnectionUnixProcessID', new GLib.Variant('(s)', [busName]),
      new GLib.VariantType('(u)'), Gio.DBusCallFlags.NONE, patience, null, (bus, result) => {
        try {
          resolve(bus.call_finish(result).deepUnpack()[0]);
        } catch (error) {
          reject(error);
        }
      });
  });
}

// While the overview, a menu or a dialog of the Shell is open, the keys go there; and to a part of
// the Shell that has the key focus, such as a notification that is answered.
function haveWindowsTheKeys() {
  const focus = global.stage.get_key_focus();
  return Main.actionMode === Shell.ActionMode.NORMAL && (!focus || focus === global.stage);
}

class FrontWindow {
  constructor() {
    this._windows = []; // the window that was focused last comes first
    // Titles are not told, only whether two are the same.
    this._secret = GLib.uuid_string_random();
    this._follower = global.display.connect('notify::focus-window', () => this._noteFocus());
    this._noteFocus();
    this._clipboardChanges = 0;
    this._selection = global.display.get_selection();
    this._counter = this._selection.connect('owner-changed', (_selection, type) => {
      if (type === Meta.SelectionType.SELECTION_CLIPBOARD)
        this._clipboardChanges++;
    });
    this._object = Gio.DBusExportedObject.wrapJSObject(description, this);
    this._object.export(Gio.DBus.session, objectPath);
  }

  destroy() {
    global.display.disconnect(this._follower);
    this._selection.disconnect(this._counter);
    this._object.unexport();
    this._object = null;
    this._windows = [];
  }

  _noteFocus() {
    const window = global.display.focus_window;
    if (window)
      this._windows = [window, ...this._open().filter(other => other !== window)];
  }

  _open() {
    const open = new Set(global.get_window_actors().map(actor => actor.meta_window));
    return this._windows.filter(window => open.has(window));
  }

  // A number in brackets and the marks of a change come and go while the document stays the same.
  _documentOf(window) {
    const title = (window.get_title() ?? '').replace(/[ *●•○◦⏺]/g, '')
      .replace(/^(\(\d+\+?\)|\[\d+\+?\])/, '');
    return title && GLib.compute_hmac_for_string(GLib.ChecksumType.SHA256, this._secret, title, -1);
  }

  _front(caller) {
    const window = this._open().find(other => other.get_pid() !== caller);
    const isHeld = (global.get_pointer()[2] & modifiers) !== 0;
    if (!window)
      return [0, false, isHeld, '', '', 0, '', this._clipboardChanges];
    const app = Shell.WindowTracker.get_default().get_window_app(window);
    const desktopFile = app && !app.is_window_backed() ? app.get_id() : '';
    const hasKeys = haveWindowsTheKeys() && window === global.display.focus_window;
    return [window.get_id(), hasKeys, isHeld, desktopFile, window.get_wm_class() ?? '',
      Math.max(window.get_pid(), 0), this._documentOf(window), this._clipboardChanges];
  }

  async _answer(invocation, type, work) {
    let caller = 0;
    let agent = -1;
    try {
      [caller, agent] = await Promise.all(
        [processOf(invocation.get_sender()), processOf(agentName)]);
    } catch {
      // nobody has the agent's name, or the caller has left
    }
    if (caller !== agent || !this._object)
      invocation.return_dbus_error('org.freedesktop.DBus.Error.AccessDenied',
        'Only the Quillseal agent may ask.');
    else
      invocation.return_value(new GLib.Variant(type, work(caller)));
  }

  FrontAsync(_parameters, invocation) {
    this._answer(invocation, '(tbbssusu)', caller => this._front(caller)).catch(logError);
  }

  _activate(invocation, find) {
    this._answer(invocation, '(b)', () => {
      const window = find();
      if (window)
        Main.activateWindow(window);
      return [Boolean(window)];
    }).catch(logError);
  }

  ActivateAsync([id], invocation) {
    this._activate(invocation, () => global.get_window_actors().map(actor => actor.meta_window)
      .find(window => window.get_id() === id));
  }

  // The window of the application that was used last. An application that is looked up by its name
  // has no windows when its desktop file has changed since it was started.
  ActivateApplicationAsync([desktopFile], invocation) {
    this._activate(invocation, () => Shell.AppSystem.get_default().get_running()
      .find(app => app.get_id() === desktopFile)?.get_windows()[0]);
  }
}
