#!/usr/bin/python3
"""The web build played in headless Chromium, as a player would.

Usage: browser.py [WEB_FOLDER [ARTEFACT_FOLDER]]
WEB_FOLDER is the built page (build-web/web); the ship map's screenshot
goes to ARTEFACT_FOLDER (build-web/artefacts). Exits 0 when every check
passes, 1 on the first failure."""

import os
import shutil
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from browser_support import (COLUMNS, ROWS, Page, browser, check, serve,  # noqa: E402
                             web_folder)
from selenium.webdriver.support.ui import WebDriverWait  # noqa: E402
from selenium.webdriver.common.action_chains import ActionChains  # noqa: E402
from selenium.webdriver.common.keys import Keys  # noqa: E402

YELLOW = 14
STATUS_COLOUR = 32  # black on green



def cells_of(screen, text, rows):
    """The (row, column) cells where `text` stands within `rows`."""
    for row in rows:
        column = screen[row][0].find(text)
        if column >= 0:
            return [(row, column + i) for i in range(len(text))]
    check(False, f'"{text}" is not on rows {list(rows)}', screen)


def colours(screen, cells):
    return {screen[row][1][column] for row, column in cells}


# The drawing, read back: for the cells from column `first` to `last` and
# row `row` to `lastRow`, which of their pixels are lit (not black). Each row
# is a canvas of its own.
LIT_PIXELS = """
const [first, last, row, lastRow] = arguments;
const canvases = document.querySelectorAll('#glyphs canvas');
const lit = [];
for (let r = row; r <= lastRow; ++r) {
  const canvas = canvases[r];
  const w = canvas.width / 80, h = canvas.height;
  const width = (last - first + 1) * w;
  const data = canvas.getContext('2d').getImageData(first * w, 0, width, h).data;
  for (let j = 0; j < h; ++j) {
    const line = [];
    for (let i = 0; i < width; ++i) {
      const k = (j * width + i) * 4;
      line.push(data[k] + data[k + 1] + data[k + 2] > 0 ? 1 : 0);
    }
    lit.push(line);
  }
}
return lit;
"""


def check_joins(page):
    """Box lines and blocks meet the next cell's without a gap."""
    screen = page.screen()
    frame = cells_of(screen, "═══════", range(1, 4))
    row, first = frame[0]
    lit = page.driver.execute_script(LIT_PIXELS, first, frame[-1][1], row, row)
    lines = [y for y, line in enumerate(lit) if all(line)]
    check(len(lines) >= 2, "the double line of the NAV COM room has gaps between its cells")
    check(all(not any(line) or all(line) for line in lit),
          "the double line of the NAV COM room is not the same in every cell")
    # The full blocks between LIVING QUARTERS and the research station, one
    # above the other: one solid bar.
    column = screen[5][0].index("█")
    check(screen[6][0][column] == "█", "the corridor of blocks has moved", screen)
    lit = page.driver.execute_script(LIT_PIXELS, column, column, 5, 6)
    check(all(all(line) for line in lit), "two full blocks one above the other leave a gap")


def wakes_a_second(driver, seconds):
    """How often the game resumed, a second, over `seconds`."""
    before = driver.execute_script("return window.skarmadaStats.wakes")
    time.sleep(seconds)
    return (driver.execute_script("return window.skarmadaStats.wakes") - before) / seconds


def check_scaling(driver):
    """The screen keeps its 80x25 shape at any window size, says when it is
    too small to read, and the page never scrolls. No pad without touch."""
    for width, height in ((1000, 700), (1400, 600), (400, 260), (1280, 800), (1920, 1080)):
        driver.set_window_size(width, height)
        time.sleep(0.3)
        size, small, overflow, pad = driver.execute_script(
            "const rows = Array.from(document.querySelectorAll('#glyphs canvas'));"
            "const box = document.getElementById('glyphs').getBoundingClientRect();"
            "const tops = rows.map(c => c.getBoundingClientRect().top - box.top);"
            "const joined = tops.every((t, r) => r === 0 || Math.abs(t - tops[r - 1]"
            " - rows[r - 1].getBoundingClientRect().height) < 0.01);"
            "const root = document.documentElement;"
            "return [[rows[0].width, rows.reduce((sum, c) => sum + c.height, 0), joined],"
            " !document.getElementById('too-small').hidden,"
            " [root.scrollWidth - root.clientWidth, root.scrollHeight - root.clientHeight,"
            "  innerWidth - root.clientWidth, innerHeight - root.clientHeight],"
            " !document.getElementById('pad').hidden];")
        check(size[2], f"at {width}x{height} the rows of the screen do not meet")
        check(size[0] % COLUMNS == 0 and size[1] % ROWS == 0 and size[0] * 25 == size[1] * 40,
              f"at {width}x{height} the screen is {size[0]}x{size[1]}, not 80x25 cells of 1 by 2")
        check(small == (width < 480), f"at {width}x{height} the too-small notice is "
              + ("shown" if small else "missing"))
        check(overflow == [0, 0, 0, 0], f"at {width}x{height} the page scrolls: {overflow}")
        check(not pad, f"at {width}x{height} a pad shows without a touch screen")
    driver.set_window_size(1000, 700)
    time.sleep(0.3)


def cover(driver):
    """The loading and failure cover: (loading text or None, failure text
    or None, whether the failure offers to try again)."""
    return driver.execute_script(
        "const shown = (id) => !document.getElementById(id).hidden;"
        "return [shown('loading') ? document.getElementById('loading').innerText : null,"
        " shown('failed') ? document.getElementById('failed').innerText : null,"
        " shown('retry')];")


def wait_for_failure(driver, where):
    until = time.monotonic() + 10
    while (state := cover(driver))[1] is None:
        check(time.monotonic() < until, f"{where}: no failure is shown ({state})")
        time.sleep(0.05)
    check(state[0] is None, f"{where}: the loading cover stays over the failure")
    return state[1], state[2]


def check_loading_and_failing(driver, folder):
    """A slow connection shows the name and a progress figure until the title
    is drawn; each way of failing says what happened and what to do."""
    with tempfile.TemporaryDirectory() as copy:
        shutil.copytree(folder, copy, dirs_exist_ok=True)
        wasm = os.path.join(copy, "skarmada.wasm")
        with serve(copy) as url:
            page = Page(driver)
            driver.execute_cdp_cmd("Network.enable", {})
            driver.execute_cdp_cmd("Network.emulateNetworkConditions", {
                "offline": False, "latency": 20, "downloadThroughput": 200 * 1024,
                "uploadThroughput": -1})
            page.open(url)
            seen = set()
            until = time.monotonic() + 20
            while (state := cover(driver))[0] is not None:
                seen.add(state[0])
                check(time.monotonic() < until, "the loading cover never went")
                time.sleep(0.02)
            driver.execute_cdp_cmd("Network.emulateNetworkConditions", {
                "offline": False, "latency": 0, "downloadThroughput": -1, "uploadThroughput": -1})
            check(any(text.startswith("SKARMADA") for text in seen), f"the cover is {seen}")
            figures = {int(text.split("Loading ")[1].split("%")[0]) for text in seen
                       if "Loading " in text and "%" in text}
            check(any(0 < figure < 100 for figure in figures), f"no progress figure: {seen}")
            page.wait_for("NEW GAME")

            # The network gone halfway through: the wasm never comes.
            driver.execute_cdp_cmd("Network.setBlockedURLs", {"urls": ["*skarmada.wasm"]})
            driver.execute_cdp_cmd("Network.setBypassServiceWorker", {"bypass": True})
            page.open(url)
            text, retry = wait_for_failure(driver, "a blocked skarmada.wasm")
            driver.execute_cdp_cmd("Network.setBlockedURLs", {"urls": []})
            check("did not answer" in text and "connection" in text and retry,
                  f'without the network, the page says "{text}"')

            broken = (
                ("a missing skarmada.wasm", lambda: os.remove(wasm), ["skarmada.wasm", "404"]),
                ("a corrupt skarmada.wasm", lambda: open(wasm, "wb").write(b"\0asm" + bytes(999)),
                 ["skarmada.wasm", "damaged"]),
                ("a missing skarmada.js", lambda: os.remove(os.path.join(copy, "skarmada.js")),
                 ["skarmada.js", "could not be fetched"]),
            )
            for where, breaking, words in broken:
                breaking()
                driver.execute_cdp_cmd("Network.setCacheDisabled", {"cacheDisabled": True})
                driver.execute_cdp_cmd("Network.setBypassServiceWorker", {"bypass": True})
                page.open(url)
                text, retry = wait_for_failure(driver, where)
                check(all(word in text for word in words) and "build the page again" in text,
                      f'{where}: the page says "{text}"')
                check(retry, f"{where}: no way to try again")
            driver.execute_cdp_cmd("Network.setBypassServiceWorker", {"bypass": False})
            driver.execute_cdp_cmd("Network.setCacheDisabled", {"cacheDisabled": False})

    # Opened from a file: serve the folder, with the README's command.
    page.open("file://" + os.path.join(folder, "index.html"))
    text, retry = wait_for_failure(driver, "a page opened as a file")
    command = driver.execute_script("return document.querySelector('#failed code').textContent")
    with open(os.path.join(os.path.dirname(__file__), "..", "..", "README.md")) as readme:
        check(command in readme.read(), f'the page\'s command "{command}" is not the README\'s')
    check("served" in text or "server" in text, f'opened as a file, the page says "{text}"')

    # A browser without WebAssembly.
    script = driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument",
                                    {"source": "delete window.WebAssembly;"})
    with serve(folder) as url:
        page.open(url)
        text, retry = wait_for_failure(driver, "no WebAssembly")
    driver.execute_cdp_cmd("Page.removeScriptToEvaluateOnNewDocument", script)
    check("WebAssembly" in text and not retry, f'without WebAssembly the page says "{text}"')


KEPT_FILES = "return caches.open('skarmada').then(c => c.keys()).then(k => k.length)" \
    ".then(arguments[0], () => arguments[0](0))"


def check_offline(driver, folder):
    """After one visit the page loads and plays with the server stopped; with
    the server back, a new version of the page replaces the old."""
    page = Page(driver)
    with tempfile.TemporaryDirectory() as copy:
        shutil.copytree(folder, copy, dirs_exist_ok=True)
        with serve(copy) as url:
            page.open(url)
            page.wait_for("NEW GAME", 20)
            files = len(os.listdir(copy)) - 1  # all but the service worker itself
            WebDriverWait(driver, 10).until(
                lambda d: d.execute_async_script(KEPT_FILES) >= files,
                "the service worker did not keep the page's files")
            errors = driver.execute_cdp_cmd("Page.getInstallabilityErrors", {})
            check(not errors["installabilityErrors"], f"the page cannot be installed: {errors}")
        port = int(url.split(":")[2].split("/")[0])
        page.open(url)
        page.wait_for("NEW GAME", 20)
        page.key("Enter")
        page.wait_for("DAY:    1")
        check(driver.execute_script("return navigator.serviceWorker.controller !== null"),
              "offline, the page did not come from the service worker")
        index = os.path.join(copy, "index.html")
        with open(index) as f:
            text = f.read()
        with open(index, "w") as f:
            f.write(text.replace("<title>Skarmada</title>", "<title>Skarmada, new</title>"))
        with serve(copy, port) as url:
            page.open(url)
            page.wait_for("NEW GAME", 20)
            check(driver.title == "Skarmada, new", "with the server back, the old page stays")


def main():
    folder = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else web_folder()
    artefacts = os.path.abspath(sys.argv[2]) if len(sys.argv) > 2 else os.path.join(
        folder, "..", "artefacts")
    os.makedirs(artefacts, exist_ok=True)
    check(os.path.exists(os.path.join(folder, "index.html")), f"no page in {folder}")

    with serve(folder) as url, browser() as driver:
        page = Page(driver)
        page.open(url)

        # The title screen, its text read from the page.
        screen = page.wait_for("NEW GAME", 20)
        check(driver.title == "Skarmada", f'the tab is called "{driver.title}"')
        check(driver.execute_script("return document.querySelector('link[rel=icon]') !== null"),
              "the page has no favicon")
        check(len(screen) == ROWS and all(len(text) == COLUMNS and len(cells) == COLUMNS
                                          for text, cells in screen),
              "the page's text is not 25 rows of 80 cells", screen)
        check("EXIT" in screen[23][0], "EXIT is not on the title", screen)
        check(wakes_a_second(driver, 1) >= 25, "the title's lights do not keep their beat")
        origins = driver.execute_script(
            "return performance.getEntriesByType('resource').map(e => new URL(e.name).origin)")
        check(set(origins) <= {url.rsplit("/", 1)[0]}, f"the page fetched from {set(origins)}")

        # NEW GAME: the ship map and its status bar, text and colours.
        page.key("Enter")
        screen = page.wait_for("DAY:    1")
        check(screen[23][0] == " DAY:    1 of 5500         ¢O$MI¢ ¢REDIT$: 5,000"
              "             For the Povolnians!", "the status bar's top row is wrong", screen)
        check(screen[24][0] == " ▄    FUEL: 150,000           MATERIALS: 10,000"
              "            FOOD: 1,000        ▄ ", "the status bar's bottom row is wrong", screen)
        check(set(screen[23][1]) == {STATUS_COLOUR} and set(screen[24][1][1:79]) == {STATUS_COLOUR},
              f"the status bar is not black on green: {screen[23][1]} {screen[24][1]}")
        check(screen[24][1][0] != STATUS_COLOUR and screen[24][1][79] != STATUS_COLOUR,
              "the status bar's bottom corners are painted", screen)
        check(screen[19][0].rstrip() == " NAVIGATION:", "NAV COM is not the room selected", screen)
        nav = cells_of(screen, "NAV", range(2, 5))
        research = cells_of(screen, "SCIENTIFIC RESEARCH STATION", range(6, 9))
        check(colours(screen, nav) == {YELLOW}, "the NAV COM room is not lit", screen)
        check(YELLOW not in colours(screen, research), "the research room is lit", screen)
        check_joins(page)

        # The browser's own shortcuts stay the browser's: Ctrl+Right moves
        # no room. A plain Right moves to the research station.
        ActionChains(driver).key_down(Keys.CONTROL).send_keys(Keys.ARROW_RIGHT).key_up(
            Keys.CONTROL).perform()
        time.sleep(0.3)
        check(page.screen()[19][0].rstrip() == " NAVIGATION:", "Ctrl+Right moved the room")
        page.key("Right")
        screen = page.wait_for(" RESEARCH:")
        check(colours(screen, research) == {YELLOW}, "the research room is not lit", screen)
        check(YELLOW not in colours(screen, nav), "NAV COM stays lit", screen)
        driver.save_screenshot(os.path.join(artefacts, "ship_map.png"))

        # A still ship map wakes the tab at most once a second; the title's
        # lights keep their beat of 30 ms.
        time.sleep(1)
        check(wakes_a_second(driver, 2) <= 1, "a still ship map keeps waking the tab")

        # A day ends from the Library.
        page.key("Down")
        page.wait_for(" LIBRARY:")
        page.key("Enter")
        page.wait_for("End Turn Factor 6")
        page.key("Down", "Enter")
        page.wait_for("End Day?")
        page.key("y")
        screen = page.wait_for("DAY:    2", 10)
        check(screen[23][0].startswith(" DAY:    2 of 5500"), "day 2 is not on the status bar",
              screen)
        check(screen[19][0].rstrip() == " LIBRARY:", "the Library is not selected after the day",
              screen)
        # Escape leaves a deck for the map.
        page.key("Enter")
        page.wait_for("End Turn Factor 6")
        page.key("Esc")
        screen = page.wait_for(" LIBRARY:")
        check(screen[19][0].rstrip() == " LIBRARY:"
              and not any("End Turn" in text for text, _ in screen),
              "Escape did not lead back to the map", screen)

        check_scaling(driver)

        # A mouse click on the screen gives it the focus.
        driver.execute_script("document.activeElement.blur()")
        ActionChains(driver).click(driver.find_element("id", "console")).perform()
        check(driver.execute_script("return document.activeElement.id") == "console",
              "a click on the screen does not give it the focus")

        # EXIT ends the game with a line that says so and a way back.
        page.open(url)
        page.wait_for("NEW GAME", 20)
        page.key("Up")
        time.sleep(0.2)
        page.key("Enter")
        until = time.monotonic() + 5
        while driver.execute_script("return document.getElementById('ended').hidden"):
            check(time.monotonic() < until, "EXIT did not end the game")
            time.sleep(0.05)
        ended = driver.find_element("id", "ended")
        check("The game has ended." in ended.text, f'the end says "{ended.text}"')
        check(not page.errors(), f"the browser logged errors: {page.errors()}")
        driver.find_element("id", "again").click()
        page.wait_for("NEW GAME", 20)
        check(driver.execute_script("return document.getElementById('ended').hidden"),
              "the end notice stays after starting again")

    with browser() as driver:
        check_loading_and_failing(driver, folder)
        check_offline(driver, folder)

    print("PASS: the game in a browser tab")


if __name__ == "__main__":
    main()
