// Arguments: the folder of an extension, and one with stand-ins for the Shell's scripts. Those for its
// modules take the place of its resources.

import Clutter from 'gi://Clutter';
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Meta from 'gi://Meta';
import Shell from 'gi://Shell';
import System from 'system';

const [folder, standIns] = ARGV;
const agentName = 'com.quillseal.Agent';

class Emitter {
  handlers = new Map();
  #last = 0;

  connect(signal, handler) {
    this.handlers.set(++this.#last, [signal, handler]);
    return this.#last;
  }
  disconnect(id) {
    check('a connected handler is disconnected', this.handlers.delete(id), true);
  }
  emit(signal, ...details) {
    for (const [name, handler] of this.handlers.values()) {
      if (name === signal)
        handler(this, ...details);
    }
  }
}

function windowOf(id, process, title) {
  return {
    title,
    get_id: () => id,
    get_pid: () => process,
    get_title() { return this.title; },
    get_wm_class: () => 'Editor',
  };
}

function askBus(method, type, ...parameters) {
  return Gio.DBus.session.call_sync('org.freedesktop.DBus', '/', 'org.freedesktop.DBus', method,
    new GLib.Variant(type, parameters), null, Gio.DBusCallFlags.NONE, -1, null).deepUnpack()[0];
}

const ownProcess = askBus('GetConnectionUnixProcessID', '(s)', Gio.DBus.session.get_unique_name());
const letter = windowOf(7, 4242, 'letter');
const settings = windowOf(8, ownProcess, 'Settings');
const selection = new Emitter();
const display = Object.assign(new Emitter(), { focus_window: letter, get_selection: () => selection });
let held = 0;
let keyFocus = null;
globalThis.activated = [];
globalThis.global = {
  display,
  stage: { get_key_focus: () => keyFocus },
  get_window_actors: () => [letter, settings].map(window => ({ meta_window: window })),
  get_pointer: () => [0, 0, held],
};
Shell.WindowTracker.get_default = () => ({
  get_window_app: () => ({ is_window_backed: () => false, get_id: () => 'org.example.Editor.desktop' }),
});

Shell.AppSystem.get_default = () => ({
  get_running: () => [
    { get_id: () => 'org.example.Editor.desktop', get_windows: () => [letter] },
    { get_id: () => 'org.example.Hidden.desktop', get_windows: () => [] },
  ],
});

function check(what, found, expected) {
  if (JSON.stringify(found) !== JSON.stringify(expected))
    throw new Error(`${what}: ${JSON.stringify(found)}, not ${JSON.stringify(expected)}`);
}

Gio._promisify(Gio.DBusConnection.prototype, 'call');
Gio._promisify(Gio.Subprocess.prototype, 'communicate_utf8_async');

async function ask(method, parameters = null) {
  const answer = await Gio.DBus.session.call(Gio.DBus.session.get_unique_name(),
    '/com/quillseal/FrontWindow', 'com.quillseal.FrontWindow1', method, parameters, null,
    Gio.DBusCallFlags.NONE, 5000, null);
  return answer.deepUnpack();
}

/** What another process gets. */
async function askFromOutside(method, ...parameters) {
  const process = Gio.Subprocess.new(['gdbus', 'call', '--session', '--dest',
    Gio.DBus.session.get_unique_name(), '--object-path', '/com/quillseal/FrontWindow', '--method',
    `com.quillseal.FrontWindow1.${method}`, ...parameters], Gio.SubprocessFlags.STDERR_PIPE);
  return (await process.communicate_utf8_async(null, null))[1];
}

async function loaded() {
  if (folder.includes('-43@')) {
    imports.searchPath.unshift(standIns, folder);
    return imports.extension.init();
  }
  const { default: Extension } = await import(`file://${folder}/extension.js`);
  return new Extension();
}

async function test(extension) {
  extension.enable();
  await ask('Front').then(() => check('an answer to nobody', 1, 0), error =>
    check('no answer without an agent', error.message.includes('Only the Quillseal agent'), true));
  askBus('RequestName', '(su)', agentName, 0);
  const front = await ask('Front');
  check('the front window', front.filter((_, index) => index !== 6),
    [7, true, false, 'org.example.Editor.desktop', 'Editor', 4242, 0]);
  check('a digest', /^[0-9a-f]{64}$/.test(front[6]), true);
  for (const call of [['Front'], ['Activate', '7'], ['ActivateApplication', 'x']])
    check(call[0], (await askFromOutside(...call)).includes('Only the Quillseal agent'), true);

  letter.title = '(3) *letter';
  check('the same document', (await ask('Front'))[6], front[6]);
  letter.title = 'invoice';
  check('another document', (await ask('Front'))[6] === front[6], false);
  held = Clutter.ModifierType.CONTROL_MASK;
  check('modifiers', (await ask('Front')).slice(0, 3), [7, true, true]);
  held = Clutter.ModifierType.LOCK_MASK;
  keyFocus = {};
  check('a part of the Shell has the keys', (await ask('Front')).slice(0, 3), [7, false, false]);
  keyFocus = null;

  selection.emit('owner-changed', Meta.SelectionType.SELECTION_PRIMARY);
  selection.emit('owner-changed', Meta.SelectionType.SELECTION_CLIPBOARD);
  check('changes of the clipboard', (await ask('Front'))[7], 1);
  display.focus_window = settings;
  display.emit('notify::focus-window');
  check('the agent itself is in front', (await ask('Front')).slice(0, 2), [7, false]);
  check('an open window', await ask('Activate', new GLib.Variant('(t)', [7])), [true]);
  check('a closed window', await ask('Activate', new GLib.Variant('(t)', [9])), [false]);
  check('what was activated', activated.splice(0), [7]);
  for (const [application, isFound] of [['Editor', true], ['Hidden', false], ['Browser', false]])
    check(application, await ask('ActivateApplication',
      new GLib.Variant('(s)', [`org.example.${application}.desktop`])), [isFound]);
  check('whose window was activated', activated.splice(0), [7]);

  extension.disable();
  check('handlers that are left', display.handlers.size + selection.handlers.size, 0);
  await ask('Front').then(() => check('an answer of a disabled extension', 1, 0), error =>
    check('no object is left', error.matches(Gio.DBusError, Gio.DBusError.UNKNOWN_METHOD), true));
  askBus('ReleaseName', '(s)', agentName);
  display.focus_window = letter;
}

const loop = new GLib.MainLoop(null, false);
let status = 1;
loaded().then(async extension => {
  await test(extension);
  letter.title = 'letter';
  held = 0;
  await test(extension); // enabled again, as after the screen was locked
  status = 0;
}).catch(logError).finally(() => loop.quit());
loop.run();
System.exit(status);
