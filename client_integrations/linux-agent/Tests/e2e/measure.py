#!/usr/bin/env python3
"""Measures the idle agent and the way from the hotkey to the prompt.

usage: measure.py --quillseal PATH --server PATH --held-keys PATH [--seconds N]
"""

import argparse
import pathlib
import re
import statistics
import time

import session

LETTER = "Dear Ms Whitcombe, thank you for the visit on 14 March. The second draft suits us well."
RUNS = 10


def memory(pid):
    """Resident and proportional set size in MB."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return tuple(int(re.search(rf"^{name}:\s+(\d+)", text, re.M)[1]) / 1024
                 for name in ("Rss", "Pss"))


def wake_ups(pid):
    """How often the threads of the process have gone to sleep so far."""
    return sum(int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status.read_text(), re.M)[1])
               for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status"))


def start_up(desktop):
    begun = time.monotonic()
    desktop.start_agent()
    return (time.monotonic() - begun) * 1000


def main():
    parser = argparse.ArgumentParser()
    for name in ("quillseal", "server", "held-keys"):
        parser.add_argument(f"--{name}", required=True,
                            type=lambda path: pathlib.Path(path).resolve())
    parser.add_argument("--seconds", type=int, default=60)
    arguments = parser.parse_args()
    programs = {"quillseal": arguments.quillseal, "quillseal-dev-server": arguments.server,
                "held-keys": arguments.held_keys}
    with session.Session(programs, panel=True) as desktop:
        desktop.write_settings(ServerURL=desktop.start_server())
        times = []
        for _ in range(RUNS):
            if desktop.agent:
                desktop.end(desktop.agent)
            times.append(start_up(desktop))
        print(f"start to ready      {statistics.median(times):7.0f} ms (median of {RUNS})")
        time.sleep(5)  # what was started in the background ends
        rss, pss = memory(desktop.agent.pid)
        print(f"idle memory         {rss:7.1f} MB resident, {pss:.1f} MB proportional")
        before = wake_ups(desktop.agent.pid)
        time.sleep(arguments.seconds)
        woken = (wake_ups(desktop.agent.pid) - before) * 60 / arguments.seconds
        print(f"idle wake-ups       {woken:7.1f} a minute")

        desktop.open_editor(LETTER)
        times = []
        for _ in range(RUNS):
            desktop.select_all(LETTER)
            begun = time.monotonic()
            desktop.press_hotkey(0)
            desktop.wait_for_window("Choose a passphrase")
            times.append((time.monotonic() - begun) * 1000)
            desktop.key("Escape")
            desktop.wait_for_no_window("Choose a passphrase")
            while desktop.alert_is_open():
                desktop.key("Escape")
        print(f"hotkey to prompt    {statistics.median(times):7.0f} ms (median of {RUNS})")


if __name__ == "__main__":
    main()
