"""Real browsers on a private desktop, with the extension installed as by the package."""

import contextlib
import http.server
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import threading
import urllib.parse

from session import wait_for

DATA = pathlib.Path(__file__).with_name("data")
FIREFOX_PREFERENCES = (DATA / "firefox-preferences.txt").read_text()

CHROMIUM_FLAGS = ("--no-first-run", "--ozone-platform-hint=auto", "--disable-background-networking", "--disable-component-update",
                  "--disable-gpu", "--disable-sync", "--password-store=basic")


def enter_installed_system(build, prefix):
    """Starts this program again in a private mount namespace, in which the files of `cmake
    --install` lie over the system's folders, so that the extension is installed. Returns there."""
    if os.environ.get("QUILLSEAL_INSTALLED"):
        return
    stage = pathlib.Path(tempfile.mkdtemp(prefix="quillseal-installed-"))
    try:
        subprocess.run(["cmake", "--install", build, "--component", "browser-extension"],
                       env={**os.environ, "DESTDIR": str(stage)}, check=True, capture_output=True)
        if prefix != "/usr":
            # The folders of an installed package.
            own = stage / prefix.lstrip("/")
            for part in list(own.iterdir()):
                shutil.copytree(part, stage / ("etc" if part.name == "etc" else f"usr/{part.name}"),
                                dirs_exist_ok=True)
        mounts = [f"mount -t overlay installed -o lowerdir={stage}{folder}:{folder} {folder}"
                  for folder in ("/usr", "/etc")]
        enter = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
        script = " && ".join(mounts + ['exec "$@"'])
        done = subprocess.run(enter + ["sh", "-c", script, "sh", sys.executable, *sys.argv],
                              env={**os.environ, "QUILLSEAL_INSTALLED": "1"}, check=False)
        sys.exit(done.returncode)
    finally:
        shutil.rmtree(stage, ignore_errors=True)


class Site:
    """Pages that report which of them are open, what is typed and pasted in them, and the end of
    the selected text."""

    PAGE = (DATA / "page.html").read_text()

    FIELDS = {"rich": '<div id="field" contenteditable>{}</div>',
              "plain": '<textarea id="field">{}</textarea>'}

    def __init__(self, kind="rich", text=""):
        """`text` is markup: the initial content of the field."""
        site = self
        self.open = []
        self.told = {}  # by kind of report and page
        self.counts = {}
        self.leads_to = {}  # redirects: path to URL
        self.write(text, kind)

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                url = urllib.parse.urlsplit(self.path)
                if url.path == "/favicon.ico":
                    self.send_error(404)
                    return
                if url.path in site.leads_to:
                    self.send_response(302)
                    self.send_header("Location", site.leads_to[url.path])
                    self.end_headers()
                    return
                title = urllib.parse.parse_qs(url.query).get("h", ["Untitled"])[0]
                page = Site.PAGE.format(title=title, query="?" + url.query,
                                        field=site.field).encode()
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.send_header("Cache-Control", "no-store")
                self.end_headers()
                self.wfile.write(page)

            def do_POST(self):
                url = urllib.parse.urlsplit(self.path)
                what = url.path.rsplit("/", 1)[-1]
                query = urllib.parse.parse_qs(url.query)
                page = query.get("h", [""])[0]
                body = self.rfile.read(int(self.headers["Content-Length"] or 0)).decode()
                if what == "open":
                    site.open.append(page)
                elif what == "gone" and page in site.open:
                    site.open.remove(page)
                # Reports may arrive out of order.
                if int(query["count"][0]) > site.counts.get((what, page), 0):
                    site.counts[what, page] = int(query["count"][0])
                    site.told[what, page] = body
                self.send_response(204)
                self.end_headers()

            def log_message(self, *_):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def address(self, page, path="/mail"):
        return f"http://127.0.0.1:{self.server.server_port}{path}?h={page}"

    def write(self, text, kind="rich"):
        """Sets the text in the field of every page that is opened later."""
        self.field = self.FIELDS[kind].format(text)

    def wait_for_open(self, *pages):
        wait_for(f"exactly the pages {', '.join(pages)} are open, not {self.open}",
                 lambda: sorted(self.open) == sorted(pages))


class Browser:
    """`family` is "chromium" or "firefox-esr", the name of program and desktop file."""

    def __init__(self, session, family, with_extensions=True):
        self.session = session
        self.family = family
        self.process = None
        if family == "chromium":
            # The second option hides the warning about the first.
            sandbox = ("--no-sandbox", "--test-type") if os.geteuid() == 0 else ()
            off = () if with_extensions else ("--disable-extensions",)
            self.command = ("chromium", *sandbox, *off, *CHROMIUM_FLAGS)
        else:
            profile = session.home / "firefox-profile"
            profile.mkdir(exist_ok=True)
            # The scopes are bits; 1 stands for extensions that the user has installed.
            off = "" if with_extensions else 'user_pref("extensions.enabledScopes", 1);'
            (profile / "user.js").write_text(FIREFOX_PREFERENCES + off)
            self.command = ("firefox-esr", "--profile", str(profile))

    def start(self, url):
        self.process = self.session.start(*self.command, url)

    def open(self, url):
        """Opens a new tab in the running browser."""
        self.session.start(*self.command, *(["--new-tab"] if "firefox" in self.family else []), url)

    def open_window(self, url):
        self.session.start(*self.command, "--new-window", url)

    def wait_for_page(self, title):
        """Waits until the page is visible and focused."""
        self.session.wait_for_window(rf"^{re.escape(title)} [-—] (Chromium|Mozilla Firefox)")

    def quit(self):
        self.session.end(self.process)

    def remembered(self):
        """Returns every text in the history files of the browser, which has quit."""
        names = (("History", "Favicons") if self.family == "chromium" else
                 ("places.sqlite", "favicons.sqlite"))
        texts = []
        for file in (file for name in names for file in self.session.home.rglob(name)):
            with contextlib.closing(sqlite3.connect(file)) as database:
                tables = database.execute("SELECT name FROM sqlite_master WHERE type = 'table'")
                for table, in tables.fetchall():
                    for row in database.execute(f'SELECT * FROM "{table}"'):
                        texts.extend(value for value in row if isinstance(value, str))
        return texts
