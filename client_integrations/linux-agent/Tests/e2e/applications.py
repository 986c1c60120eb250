"""Further applications in which people write: word processor and terminal."""

import pathlib
import shutil

from session import wait_for

DATA = pathlib.Path(__file__).with_name("data")


class Writer:
    """LibreOffice Writer with a document that holds `text`, the word `bold` in bold."""

    def __init__(self, session, text, bold):
        self.session = session
        profile = session.home / ".config/libreoffice/4/user"
        profile.mkdir(parents=True)
        # Which ask nothing at the first start.
        shutil.copy(DATA / "writer-settings.xcu", profile / "registrymodifications.xcu")
        marked = text.replace(bold, f'<text:span text:style-name="bold">{bold}</text:span>')
        self.file = session.home / "letter.fodt"
        self.file.write_text((DATA / "letter.fodt").read_text().format(
            "".join(f"<text:p>{line}</text:p>" for line in marked.split("\n"))))
        session.start("soffice", "--norestore", "--nologo", "--nofirststartwizard", self.file)
        session.wait_for_window("letter.fodt - LibreOffice Writer", "Writer opens the letter")

    def saved(self, containing):
        """Saves after the agent has finished. Returns the markup once it holds the text."""
        self.session.wait_for_notification("✅ Signature Generated!")
        self.session.wait_for_window("letter.fodt - LibreOffice Writer", "Writer is in front")
        self.session.key("ctrl+s")

        def text():
            markup = self.file.read_text()
            return markup if containing in markup else None
        return wait_for(f"the document contains “{containing}”", text)


class Terminal:
    """A terminal that shows `text`, in which a program writes what is typed to a file."""

    COMMANDS = {
        "xfce4-terminal": ("--disable-server", "--title", "Notes", "--dynamic-title-mode", "none",
                           "--execute"),
        "xterm": ("-u8", "-title", "Notes", "-e"),
    }

    def __init__(self, session, program, text):
        self.session = session
        (session.home / "letter.txt").write_text(text)
        self.received = session.home / "received.txt"
        options = self.COMMANDS[pathlib.Path(program).resolve().name]
        session.start(program, *options, "sh", "-c",
                      "cat letter.txt; touch shown; exec cat > received.txt")
        session.wait_for_window("Notes", "the terminal opens")
        wait_for("the terminal shows the text", (session.home / "shown").exists)

    def drag_over(self, expected):
        """Selects with the mouse, from the first line to the line below the last."""
        window = self.session.active_window()

        def selected():
            self.session.run("xdotool", "mousemove", "--window", window, 4, 4, "mousedown", 1,
                             "mousemove", "--window", window, 200, 150, "mouseup", 1)
            return self.session.selection("primary").split() == expected.split()
        wait_for("the text in the terminal is selected", selected)
