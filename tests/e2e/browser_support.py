"""The web build in headless Chromium: a local server for the page, the
browser, and the screen read back from the page's text.

Used by the browser test (browser.py) and the page's benchmark
(bench/web_page.py). Needs Debian's chromium, chromium-driver and
python3-selenium."""

import contextlib
import functools
import http.server
import os
import shutil
import sys
import tempfile
import threading
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.keys import Keys

COLUMNS = 80
ROWS = 25

KEYS = {
    "Up": Keys.ARROW_UP, "Down": Keys.ARROW_DOWN, "Left": Keys.ARROW_LEFT,
    "Right": Keys.ARROW_RIGHT, "Enter": Keys.ENTER, "Esc": Keys.ESCAPE,
    "Space": Keys.SPACE, "Backspace": Keys.BACKSPACE, "Tab": Keys.TAB,
    "PgUp": Keys.PAGE_UP, "PgDn": Keys.PAGE_DOWN,
}

# The screen as the page gives it: each row's text and each cell's colour
# (foreground + 16 * background).
READ_SCREEN = """
return Array.from(document.querySelectorAll('[data-row]')).map(row => [
  row.textContent,
  Array.from(row.dataset.fg, (fg, i) => parseInt(fg, 16) + 16 * parseInt(row.dataset.bg[i], 16)),
]);
"""


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    extensions_map = {
        **http.server.SimpleHTTPRequestHandler.extensions_map,
        ".wasm": "application/wasm", ".js": "text/javascript", ".svg": "image/svg+xml",
        ".webmanifest": "application/manifest+json",
    }

    def log_message(self, *args):
        pass


@contextlib.contextmanager
def serve(folder, port=0):
    """Serves `folder` on 127.0.0.1 at `port` (0: a free one); yields the
    page's URL. The server stops at the end of the block."""
    handler = functools.partial(QuietHandler, directory=folder)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", port), handler)
    thread = threading.Thread(target=server.serve_forever, daemon=True)
    thread.start()
    try:
        yield f"http://127.0.0.1:{server.server_address[1]}/index.html"
    finally:
        server.shutdown()
        server.server_close()


@contextlib.contextmanager
def browser(width=1000, height=700):
    """Headless Chromium with a fresh profile and no network beyond the page."""
    profile = tempfile.mkdtemp(prefix="skarmada-chromium-")
    options = webdriver.ChromeOptions()
    binary = shutil.which("chromium")
    if binary:
        options.binary_location = binary
    for flag in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic",
                 "--no-first-run", "--disable-background-networking",
                 "--disable-component-update", "--disable-sync",
                 "--disable-dev-shm-usage", f"--user-data-dir={profile}",
                 f"--window-size={width},{height}"):
        options.add_argument(flag)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    driver_path = shutil.which("chromedriver") or "/usr/bin/chromedriver"
    driver = webdriver.Chrome(service=Service(executable_path=driver_path), options=options)
    try:
        yield driver
    finally:
        driver.quit()
        shutil.rmtree(profile, ignore_errors=True)


class Page:
    """The game's page in a browser: keys in, screen out."""

    def __init__(self, driver):
        self.driver = driver

    def open(self, url):
        self.driver.get(url)

    def screen(self):
        return self.driver.execute_script(READ_SCREEN)

    def rows(self):
        return [text for text, _ in self.screen()]

    def wait_for(self, text, seconds=5.0):
        """Waits until `text` is on the screen; returns the screen."""
        until = time.monotonic() + seconds
        while True:
            screen = self.screen()
            if any(text in row for row, _ in screen):
                return screen
            if time.monotonic() > until:
                raise AssertionError(f'"{text}" never came on the screen:\n' + dump(screen))
            time.sleep(0.02)

    def key(self, *names):
        """Types keys one at a time, each after the page had time to draw."""
        target = self.driver.switch_to.active_element
        for name in names:
            target.send_keys(KEYS.get(name, name))
            time.sleep(0.1)

    def errors(self):
        return [entry for entry in self.driver.get_log("browser")
                if entry.get("level") == "SEVERE"]


def dump(screen):
    return "\n".join(f"{r:2} |{text}|" for r, (text, _) in enumerate(screen))


def check(condition, message, screen=None):
    """Ends the test with a failure, and the screen, when `condition` fails."""
    if not condition:
        print("FAIL:", message)
        if screen is not None:
            print(dump(screen))
        sys.exit(1)


def web_folder():
    folder = os.environ.get("SKARMADA_WEB_DIR") or os.path.join(
        os.path.dirname(__file__), "..", "..", "build-web", "web")
    return os.path.abspath(folder)


def emulate_phone(driver, width, height, scale=3):
    """Chromium's mobile emulation: a touch screen of width x height CSS
    pixels, `scale` device pixels to one. Calling it again turns the phone."""
    landscape = width > height
    driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": width, "height": height, "deviceScaleFactor": scale, "mobile": True,
        "screenOrientation": {"type": "landscapePrimary" if landscape else "portraitPrimary",
                              "angle": 90 if landscape else 0}})
    driver.execute_cdp_cmd("Emulation.setTouchEmulationEnabled",
                           {"enabled": True, "maxTouchPoints": 5})


def tap(driver, selector, hold=0.0):
    """Touches the middle of the element `selector` with a finger, for
    `hold` seconds."""
    box = driver.execute_script(
        "const box = document.querySelector(arguments[0]).getBoundingClientRect();"
        "return [box.x + box.width / 2, box.y + box.height / 2];", selector)
    point = [{"x": box[0], "y": box[1], "id": 1}]
    driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchStart", "touchPoints": point})
    if hold:
        time.sleep(hold)
    driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchEnd", "touchPoints": []})


def tap_key(driver, label, hold=0.0):
    """Taps the pad's key whose aria-label is `label`."""
    tap(driver, f"#pad button[aria-label='{label}']", hold)
