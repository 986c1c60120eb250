#!/usr/bin/env python3
"""Measures the agent from outside: start-up, memory and wake-ups while idle, and what it adds to a
signature.

The key is in a software TPM. A key file takes some tenths of a second more at every signature, on
purpose: that is the cost of each guess at its passphrase.
"""

import http.client
import http.server
import os
import pathlib
import re
import statistics
import subprocess
import threading
import time
import urllib.parse

import session
from session import LETTER, SECRET

# Intended waits of the agent, in milliseconds: for the source to finish its copy; after the block
# is on the clipboard; after the source has been activated.
SETTLING, CLIPBOARD, ACTIVATION = 80, 150, 350


def memory(pid):
    """Resident and proportional set size in MB."""
    try:
        text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    except PermissionError as error:
        raise session.Failure("the agent shows its memory to root only; start this as root") from error
    return tuple(int(re.search(rf"^{name}:\s+(\d+)", text, re.M)[1]) / 1024
                 for name in ("Rss", "Pss"))


def wake_ups(pid):
    """Returns how often each thread of the process has gone to sleep so far."""
    return {status.parent.name:
            int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status.read_text(), re.M)[1])
            for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status")}


def busy(pid):
    """Returns the processor time of the process so far, in milliseconds."""
    return sum(int(share.read_text().split()[0])
               for share in pathlib.Path(f"/proc/{pid}/task").glob("*/schedstat")) / 1e6


def milliseconds(since):
    return (time.monotonic() - since) * 1000


def start_up(desktop):
    """Starts the agent. Returns the time until it was ready, and its processor time."""
    begun = time.monotonic()
    agent = desktop.start(desktop.quillseal, "--tpm", "none")
    output = session.wait_for("the agent writes", lambda: open(agent.log, encoding="utf-8"))
    while "[start] ready" not in output.read():
        output.seek(0)
        time.sleep(0.0005)
    wall = milliseconds(begun)
    desktop.agent = agent
    return wall, busy(agent.pid)


class Proxy(http.server.ThreadingHTTPServer):
    """A proxy in front of the signing server that adds up how long requests take."""

    def __init__(self, target):
        self.target = urllib.parse.urlsplit(target).netloc
        self.spent = 0.0
        self.last_answer = 0.0
        super().__init__(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def url(self):
        return f"http://127.0.0.1:{self.server_address[1]}"


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        begun = time.monotonic()
        body = self.rfile.read(int(self.headers["Content-Length"]))
        connection = http.client.HTTPConnection(self.server.target)
        headers = {name: value for name, value in self.headers.items() if name != "Host"}
        connection.request("POST", self.path, body, headers)
        answer = connection.getresponse()
        content = answer.read()
        self.send_response(answer.status)
        self.send_header("Content-Type", answer.headers["Content-Type"])
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)
        self.server.last_answer = time.monotonic()
        self.server.spent += milliseconds(begun)

    def log_message(self, *_):
        pass


class Watch:
    """Reads the lines of a program that reports events, with the time of each."""

    def __init__(self, desktop, *command):
        self.lines = []
        self.process = subprocess.Popen(command, env=desktop.env, text=True, bufsize=1,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.append((time.monotonic(), line))

    def time_of(self, what, pattern, after):
        """Returns the time of the first matching line after that moment."""
        return session.wait_for(what, lambda: next(
            (when for when, line in list(self.lines) if when > after and re.search(pattern, line)),
            None))


def press(desktop, *keys):
    """Presses and releases keys. Returns when they were down."""
    with subprocess.Popen([desktop.held_keys, "0", *keys], env=desktop.env,
                          stdout=subprocess.PIPE) as process:
        process.stdout.readline()
        return time.monotonic()


def overhead(desktop, number, proxy, windows, notifications):
    """Signs once. Returns the time without server, person and the waits above."""
    editor = desktop.open_editor(LETTER, f"letter-{number}.txt")
    desktop.select_all(LETTER)
    worked = busy(desktop.agent.pid)
    pressed = press(desktop, *session.HOTKEY)
    asked = windows.time_of("the agent asks", "_NET_ACTIVE_WINDOW.*0x[1-9a-f]", pressed)
    desktop.wait_for_window("Enter the (PIN|passphrase)")
    desktop.type(SECRET)
    proxy.spent = 0.0
    entered = press(desktop, "Return")
    done = notifications.time_of("the block is pasted", "Signature Generated", entered)
    worked = busy(desktop.agent.pid) - worked
    pasting = (done - proxy.last_answer) * 1000
    waits = SETTLING + (ACTIVATION if pasting >= ACTIVATION else CLIPBOARD)
    to_prompt = (asked - pressed) * 1000
    desktop.saved_text(editor, "Check this signature")
    desktop.end(editor)
    return to_prompt, to_prompt + (done - entered) * 1000 - proxy.spent - waits, proxy.spent, worked


def enrol(desktop):
    """Signs once, which chooses the secret and registers the key."""
    editor = desktop.press_in_editor()
    kind = desktop.choose_secret()
    desktop.enter_secret()
    desktop.saved_text(editor, "Check this signature")
    desktop.end(editor)
    return kind


def main():
    parser = session.arguments_parser(__doc__)
    parser.add_argument("--seconds", type=int, default=60, help="how long to watch it idle")
    parser.add_argument("--runs", type=int, default=21,
                        help="how often to start it, and how many signatures to make")
    arguments = parser.parse_args()
    with (session.failing_with_a_sentence("measure"),
          session.Session(arguments.build, panel=True) as desktop):
        proxy = Proxy(desktop.start_server())
        desktop.write_settings(ServerURL=proxy.url, SigningMode="enclave")
        print(f"load of the machine {os.getloadavg()[0]:7.1f}, {os.cpu_count()} processors")
        times = []
        for _ in range(arguments.runs):
            if desktop.agent:
                desktop.end(desktop.agent)
            times.append(start_up(desktop))
        walls, shares = zip(*times)
        print(f"start to ready      {statistics.median(walls):7.0f} ms, fastest {min(walls):.0f}; "
              f"busy for {statistics.median(shares):.0f}")
        time.sleep(40)  # background work ends, and idle threads end after 30 s
        print("idle memory         {:7.1f} MB resident, {:.1f} proportional".format(
            *memory(desktop.agent.pid)))
        before = wake_ups(desktop.agent.pid)
        time.sleep(arguments.seconds)
        woken = sum(count - before.get(thread, 0)
                    for thread, count in wake_ups(desktop.agent.pid).items())
        print(f"idle wake-ups       {woken:7} in {arguments.seconds} s")
        desktop.end(desktop.agent)

        desktop.start_agent(tpm=desktop.start_software_tpm())
        kind = enrol(desktop)
        windows = Watch(desktop, "xprop", "-root", "-spy", "_NET_ACTIVE_WINDOW")
        notifications = Watch(desktop, "dbus-monitor", "--session",
                              "interface='org.freedesktop.Notifications'")
        runs = [overhead(desktop, number, proxy, windows, notifications)
                for number in range(arguments.runs)]
        for name, values in zip(("hotkey to prompt", "overhead", "server", "agent busy"), zip(*runs)):
            print(f"{name:<20}{statistics.median(values):7.0f} ms, fastest {min(values):.0f} "
                  f"({len(values)} signatures with a {kind})")
        time.sleep(5)
        print("after signing       {:7.1f} MB resident, {:.1f} proportional".format(
            *memory(desktop.agent.pid)))
        windows.process.terminate()
        notifications.process.terminate()


if __name__ == "__main__":
    main()
