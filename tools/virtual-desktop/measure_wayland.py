#!/usr/bin/env python3
"""Measures the agent on sway, or KWin, from outside: start-up, memory and wake-ups while idle, the time from the
hotkey to the captured text, plain from an editor and with its HTML from a browser, and from the block on the
clipboard to the block in the editor.
"""

import os
import pathlib
import statistics
import sys
import time

sys.path.append(str(pathlib.Path(__file__).parents[2] / "client_integrations/linux-agent/Tests/e2e"))

import session
from browsers import Browser, Site
from kwin_session import KwinSession
from measure import Watch, enrol, memory, start_up, wake_ups
from session import LETTER, SECRET
from wayland_session import WaylandSession


def milliseconds(values):
    return f"{statistics.median(values) * 1000:7.0f} ms, fastest {min(values) * 1000:.0f}"


class Captures:
    """Waits for the agent's log to say that it has read a text."""

    def __init__(self, desktop):
        self.log = open(desktop.agent.log, encoding="utf-8")

    def forget(self):
        self.log.seek(0, os.SEEK_END)

    def wait(self, images=0):
        """The images, which only HTML has, tell whether it was read."""
        end = time.monotonic() + session.PATIENCE
        while f"[sign] {images} image" not in self.log.read():
            if time.monotonic() > end:
                raise session.Failure("the text is not read")
            time.sleep(0.0005)


def capture(desktop, captures, images=0):
    """Returns the time from the hotkey to the text."""
    captures.forget()
    pressed = time.monotonic()
    desktop.person.tell("down " + " ".join(session.HOTKEY))
    captures.wait(images)
    captured = time.monotonic() - pressed
    desktop.person.tell("up")
    return captured


def sign(desktop, number, captures, windows, copies):
    """Returns the times from the hotkey to the text, and from the offer to the paste."""
    editor = desktop.open_editor(LETTER, f"letter-{number}.txt")
    desktop.select_all(LETTER)
    captured = capture(desktop, captures)
    desktop.wait_for_window("Enter the (PIN|passphrase)")
    desktop.type(SECRET)
    entered = time.monotonic()
    desktop.key("Return")
    offered = copies.time_of("the block is offered", "copied", entered)
    pasted = windows.time_of("the block is pasted", rf'"name": ?"\*[^"]*letter-{number}', offered)
    desktop.saved_text(editor, "Check this signature")
    desktop.end(editor)
    return captured, pasted - offered


def read_in_browser(desktop, captures, runs):
    """Returns the times from the hotkey to a text with its HTML, in Chromium."""
    site = Site(text=f'<p>{LETTER} <img src="https://example.org/flower.png"></p>')
    browser = Browser(desktop, "chromium", with_extensions=False)
    browser.start(site.address("Mail"))
    browser.wait_for_page("Mail")
    desktop.key_until("ctrl+a", lambda: LETTER[-40:] in site.told.get(("selected", "Mail"), ""),
                      "the letter is selected in the page")
    times = []
    for _ in range(runs):
        times.append(capture(desktop, captures, images=1))
        desktop.close("Enter the (PIN|passphrase)", "Escape")
        desktop.close("Signing Error")
        browser.wait_for_page("Mail")
    browser.quit()
    return times


def main():
    parser = session.arguments_parser(__doc__)
    parser.add_argument("--seconds", type=int, default=30, help="how long to watch it idle")
    parser.add_argument("--runs", type=int, default=21,
                        help="how often to start it, and how many signatures to make")
    parser.add_argument("--kwin", action="store_true", help="on KWin instead of sway")
    arguments = parser.parse_args()
    kind = KwinSession if arguments.kwin else WaylandSession
    with session.failing_with_a_sentence("measure_wayland"), kind(arguments.build) as desktop:
        desktop.write_settings(ServerURL=desktop.start_server(), SigningMode="enclave")
        print(f"load of the machine  {os.getloadavg()[0]:6.1f}, {os.cpu_count()} processors")
        times = []
        for _ in range(arguments.runs):
            if desktop.agent:
                desktop.end(desktop.agent)
            times.append(start_up(desktop))
        walls, shares = zip(*times)
        print(f"start to ready       {statistics.median(walls):6.0f} ms, fastest {min(walls):.0f}; "
              f"busy for {statistics.median(shares):.0f}")
        time.sleep(40)  # background work ends, and idle threads end after 30 s
        print("idle memory          {:6.1f} MB resident, {:.1f} proportional".format(
            *memory(desktop.agent.pid)))
        before = wake_ups(desktop.agent.pid)
        time.sleep(arguments.seconds)
        woken = sum(count - before.get(thread, 0)
                    for thread, count in wake_ups(desktop.agent.pid).items())
        print(f"idle wake-ups        {woken:6} in {arguments.seconds} s")
        desktop.end(desktop.agent)

        desktop.start_agent(tpm=desktop.start_software_tpm())
        enrol(desktop)
        captures = Captures(desktop)
        windows = Watch(desktop, *desktop.tell_of_windows())
        copies = Watch(desktop, "wl-paste", "--watch", "echo", "copied")
        runs = [sign(desktop, number, captures, windows, copies)
                for number in range(arguments.runs)]
        for name, values in zip(("hotkey to text", "offer to paste"), zip(*runs)):
            print(f"{name:<20}{milliseconds(values)} ({len(values)} signatures)")
        times = read_in_browser(desktop, captures, arguments.runs)
        print(f"{'hotkey to HTML':<20}{milliseconds(times)} ({len(times)} captures in Chromium)")
        windows.process.terminate()
        copies.process.terminate()


if __name__ == "__main__":
    main()
