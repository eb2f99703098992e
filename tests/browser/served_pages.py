# SPDX-License-Identifier: MIT
"""The pages that are looked at, behind a web server."""
import functools
import http.server
import os
import subprocess
import tempfile
import threading
import time

KINDS = ("pie", "bars", "hbars")

HOSTILE_FOLDER = '"><script>'
HOSTILE_FILE = '"><img src=x onerror=alert(1)>'
HOSTILE_CAPTION = '"><script>alert(1)</script><img src=x onerror=alert(1)>'

# Bytes of the files, below the folder that the report is of.
FILES = {
    "music/song": 500_000,
    "music/old/tape": 150_000,
    f"{HOSTILE_FOLDER}/{HOSTILE_FILE}": 400_000,
    "letters & bills/letter": 200_000,
    "notes": 100_000,
}
NOW = int(time.time())  # when the files changed last, but every second one a year earlier
YEAR = 365 * 24 * 60 * 60

ITEMS = {"first": (60, [200, 30, 30]), HOSTILE_CAPTION: (40, [30, 30, 200]),
         "third": (25, [30, 150, 30])}

TRAP = "trap"  # what nobody may ask the server for


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    """Serves a folder, and keeps what was asked for in vain."""
    missed = []

    def log_message(self, *_):
        pass

    def send_error(self, code, *arguments, **keywords):
        if self.path != "/favicon.ico":  # which a browser asks for by itself
            self.missed.append(self.path)
        super().send_error(code, *arguments, **keywords)


def make_tree(folder):
    for index, (name, size) in enumerate(FILES.items()):
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.truncate(size)
        change = NOW - index % 2 * YEAR
        os.utime(path, (change, change))


def items_text():
    return "".join("{} {}\t#{:02x}{:02x}{:02x}\n".format(value, caption, *color)
                   for caption, (value, color) in ITEMS.items())


class ServedPages:
    """All pages, in a folder of their own that goes with close().

    The programs are the paths of tovangl-chart, tovangl-du and browser_charts.
    """

    def __init__(self, programs):
        self.chart, self.disk_usage, self.browser_charts = programs
        self.temporary = tempfile.TemporaryDirectory(prefix="tovangl-test-")
        self.folder = self.temporary.name
        handler = functools.partial(QuietHandler, directory=self.folder)
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        self.address = f"http://127.0.0.1:{self.server.server_port}/"
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.write()

    def close(self):
        self.server.shutdown()
        self.server.server_close()
        self.temporary.cleanup()

    def write(self):
        make_tree(os.path.join(self.folder, "tree"))
        self.run(self.disk_usage, "tree", "-o", "report")
        self.run(self.disk_usage, "tree", "-o", "report-svg", "--svg")
        for kind in KINDS:
            self.run(self.chart, kind, "--map", f"{kind}.html")
            self.run(self.chart, kind, "--map", f"{kind}-svg.html", "--svg")
        self.run(self.chart, "bars", "--map", "following.html", "--svg", "--follow-display")
        self.run(self.browser_charts, self.folder, self.address + TRAP)
        with open(os.path.join(self.folder, "seeded.html"), "w", encoding="utf-8") as page:
            page.write(f"<!DOCTYPE html><img src={TRAP} onerror=alert(1)>")

    def run(self, *command):
        subprocess.run(command, cwd=self.folder, input=items_text().encode(), check=True,
                       stdout=subprocess.DEVNULL)
