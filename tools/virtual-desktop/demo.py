#!/usr/bin/env python3
"""Signs a letter on a private virtual desktop, as a person would, and shows the result."""

import html
import pathlib
import re
import shutil
import signal
import sys

import session

LETTER = """Dear Ms Whitcombe,

thank you for the visit on 14 March. The second draft of
the lease suits us well; we shall sign it when you are
back from 京都.

Yours, Ada Ferrier"""


def step(text):
    print(f"==> {text}", flush=True)


def run(arguments):
    arguments.screenshots.mkdir(parents=True, exist_ok=True)
    with session.Session(arguments.build, panel=True) as desktop:
        step(f"A virtual desktop runs on display {desktop.env['DISPLAY']}")
        url = desktop.start_server()
        step(f"The development signing server runs at {url}")
        desktop.write_settings(ServerURL=url)
        # As on a computer with a TPM, if the package is installed.
        desktop.start_agent(tpm=desktop.start_software_tpm() if shutil.which("swtpm") else "none")
        step("Quillseal runs; opening an editor with a letter, selecting all of it")
        editor = desktop.open_editor(LETTER)
        desktop.select_all(LETTER)
        step("Pressing Ctrl+Alt+Super+H")
        desktop.press_hotkey()
        step(f"Choosing a {desktop.choose_secret()} for the new signing key")
        desktop.wait_for_window("Enter the")
        prompt = arguments.screenshots / "prompt.png"
        desktop.screenshot(prompt)
        step("Signing; the server does not know the key yet, so it is registered and asked again")
        desktop.enter_secret()
        desktop.wait_for_output(desktop.server, "/api/register_native 200",
                                "the key is registered with the server")
        desktop.enter_secret()
        block = desktop.saved_text(editor, "Check this signature")
        desktop.run("xdotool", "getactivewindow", "windowsize", "--sync", "900", "560")
        desktop.key("ctrl+Home")
        picture = arguments.screenshots / "signed.png"
        desktop.screenshot(picture)
        print(f"\n{block}\n")
        link = re.search(r"http://\S+/verify/\S+", block)[0]
        step(f"What {link} answers:")
        page = desktop.run("curl", "-sS", "--fail", link)
        text = html.unescape(re.sub(r"(?s)<(style|script).*?</\1>|<[^>]+>", " ", page))
        for line in (" ".join(part.split()) for part in text.splitlines()):
            if line:
                print(f"    {line}")
        print()
        step(f"Pictures: {prompt}")
        step(f"          {picture}")
        if arguments.keep:
            step(f"The desktop stays up. Look at it:  DISPLAY={desktop.env['DISPLAY']} "
                 "import -window root picture.png")
            step("Press Ctrl+C here to end it")
            signal.pause()


def main():
    parser = session.arguments_parser(__doc__)
    parser.add_argument("--screenshots", required=True, type=pathlib.Path, metavar="FOLDER",
                        help="where the pictures prompt.png and signed.png go")
    parser.add_argument("--keep", action="store_true",
                        help="leave the desktop up until Ctrl+C is pressed")
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        with session.failing_with_a_sentence("demo"):
            run(parser.parse_args())
    except KeyboardInterrupt:
        print()


if __name__ == "__main__":
    main()
