#!/usr/bin/env python3
"""Signs repeatedly in one session. Checks that the agent's memory and descriptors do not grow, and
that it returns memory that it needs only for signing."""

import os
import statistics
import sys
import time

import session
from measure import memory
from session import LETTER, SECRET, wait_for

SETTLED = 50  # number of signatures after which caches are full
REST = 10  # seconds without a signature after which the agent has returned unused memory

LIMIT = 45  # MB, private and shared, that the agent may hold at rest


def percentiles(times):
    cuts = statistics.quantiles(times, n=100, method="inclusive")
    return f"p50 {cuts[49]:.0f} ms, p99 {cuts[98]:.0f} ms"


class Soak:
    def __init__(self, desktop, key):
        self.desktop = desktop
        self.key = key
        self.to_prompt = []
        self.to_block = []

    def start(self):
        tpm = self.desktop.start_software_tpm() if self.key == "tpm" else "none"
        self.desktop.write_settings(ServerURL=self.desktop.start_server(), SigningMode="enclave")
        self.desktop.start_agent(tpm=tpm)
        self.desktop.open_editor(LETTER)

    def signatures(self):
        return self.desktop.output_of(self.desktop.monitor).count("Signature Generated")

    def sign(self):
        done = self.signatures()
        begun = time.monotonic()
        self.desktop.press_hotkey(0)
        self.desktop.wait_for_window("Enter the")
        self.to_prompt.append((time.monotonic() - begun) * 1000)
        self.desktop.type(SECRET)
        begun = time.monotonic()
        self.desktop.key("Return")
        wait_for("the signature is made", lambda: self.signatures() > done)
        self.to_block.append((time.monotonic() - begun) * 1000)
        wait_for("the block is pasted", self.block_is_selected)
        self.desktop.key("ctrl+z")

    def block_is_selected(self):
        self.desktop.key("ctrl+a")
        return self.desktop.selection("primary").startswith(f"『{LETTER}』")

    def holdings(self):
        pid = self.desktop.agent.pid
        rss, pss = memory(pid)
        return {"resident": rss, "proportional": pss,
                "descriptors": len(os.listdir(f"/proc/{pid}/fd")),
                "threads": len(os.listdir(f"/proc/{pid}/task"))}

    def run(self, count):
        self.desktop.select_all(LETTER)
        self.desktop.press_hotkey(0)
        self.desktop.choose_secret()
        self.desktop.close("Enter the", "Escape")
        self.desktop.close("Signing Error")
        settled = None
        for number in range(1, count + 1):
            self.desktop.select_all(LETTER)
            self.sign()
            if number == min(SETTLED, count):
                settled = self.holdings()
            if number % SETTLED == 0 or number == count:
                print(number, " ".join(f"{name} {value:.1f}"
                                       for name, value in self.holdings().items()), flush=True)
        print(f"hotkey to prompt   {percentiles(self.to_prompt)}")
        print(f"secret to block    {percentiles(self.to_block)}")
        after = self.holdings()
        time.sleep(REST)
        return settled, after, self.holdings()


def main():
    parser = session.arguments_parser(__doc__)
    parser.add_argument("--count", type=int, default=500, help="signatures to make")
    parser.add_argument("--key", choices=("file", "tpm"), default="tpm",
                        help="where the key is: in a file, or in a TPM simulator")
    arguments = parser.parse_args()
    with session.failing_with_a_sentence("soak"), session.Session(arguments.build) as desktop:
        soak = Soak(desktop, arguments.key)
        soak.start()
        before, after, at_rest = soak.run(arguments.count)
    print(f"after {REST} s of rest: {at_rest['resident']:.1f} MB resident, {at_rest['threads']} threads")
    growth = after["proportional"] - before["proportional"]
    if growth > 4 or after["descriptors"] > before["descriptors"]:
        sys.exit(f"soak: the agent holds more than before: {before} → {after}")
    if at_rest["resident"] > LIMIT:
        sys.exit(f"soak: {at_rest['resident']:.1f} MB at rest, more than {LIMIT}")


if __name__ == "__main__":
    main()
