#!/usr/bin/python3
"""The web build on a phone: headless Chromium's mobile emulation, played by
taps on the page's pad alone, in landscape (844x390) and portrait (390x844).

Usage: browser_phone.py [WEB_FOLDER [ARTEFACT_FOLDER]]
Saves the phone's ship map in both layouts to ARTEFACT_FOLDER. Exits 0 when
every check passes, 1 on the first failure."""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from browser_support import (Page, browser, check, emulate_phone, serve, tap,  # noqa: E402
                             tap_key, web_folder)
from selenium.common.exceptions import TimeoutException  # noqa: E402
from selenium.webdriver.support import expected_conditions  # noqa: E402
from selenium.webdriver.support.ui import WebDriverWait  # noqa: E402

PAD_KEYS = {"Up", "Down", "Left", "Right", "Enter", "Escape", "Space", "Y", "N",
            "Page Up", "Page Down"}

# Where everything stands, in CSS pixels: the screen, each key of the pad,
# and whether the page can scroll or has zoomed.
GEOMETRY = """
const box = (element) => { const r = element.getBoundingClientRect();
  return [r.left, r.top, r.right, r.bottom]; };
const root = document.documentElement;
return {
  screen: box(document.getElementById('glyphs')),
  keys: Array.from(document.querySelectorAll('#pad button'),
                   (b) => [b.getAttribute('aria-label'), box(b)]),
  pad: !document.getElementById('pad').hidden,
  tooSmall: !document.getElementById('too-small').hidden,
  window: [innerWidth, innerHeight],
  overflow: [root.scrollWidth - root.clientWidth, root.scrollHeight - root.clientHeight,
             scrollX, scrollY, visualViewport.scale],
};
"""



def overlap(a, b):
    return a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]


def check_layout(driver, where):
    """The pad's keys are whole, large enough for a thumb and off the screen;
    the screen is whole; the page neither scrolls nor zooms."""
    g = driver.execute_script(GEOMETRY)
    width, height = g["window"]
    screen = g["screen"]
    check(g["pad"], f"{where}: no pad on a touch screen")
    check({label for label, _ in g["keys"]} == PAD_KEYS,
          f"{where}: the pad's keys are {sorted(label for label, _ in g['keys'])}")
    check(not g["tooSmall"], f"{where}: the page asks to make a phone larger")
    check(g["overflow"] == [0, 0, 0, 0, 1], f"{where}: the page scrolls or zooms: {g['overflow']}")
    check(screen[0] >= 0 and screen[1] >= 0 and screen[2] <= width and screen[3] <= height,
          f"{where}: the screen {screen} is not all in the window")
    for label, key in g["keys"]:
        check(key[2] - key[0] >= 44 and key[3] - key[1] >= 44,
              f"{where}: the key {label} is {key[2] - key[0]:.0f}x{key[3] - key[1]:.0f}")
        check(key[0] >= 0 and key[1] >= 0 and key[2] <= width and key[3] <= height,
              f"{where}: the key {label} {key} is not all in the window")
        check(not overlap(key, screen), f"{where}: the key {label} {key} covers the screen {screen}")
    if width < height:
        check(screen[2] - screen[0] >= width * 0.9,
              f"{where}: the screen is {screen[2] - screen[0]:.0f} wide, not the phone's width")
        check(all(key[1] >= screen[3] for _, key in g["keys"]), f"{where}: the pad is not under the screen")


def leave_asks(page):
    """Reloads the tab; True if the browser asked first (Chromium's driver
    answers the question itself: leave). The question is read from the
    browser's log of events."""
    page.driver.get_log("performance")
    page.driver.execute_script("setTimeout(() => location.reload(), 0)")
    page.wait_for("NEW GAME", 20)
    return any('"type":"beforeunload"' in entry["message"].replace(" ", "")
               and "javascriptDialogOpening" in entry["message"]
               for entry in page.driver.get_log("performance"))


def row(page, number):
    return page.rows()[number].rstrip()


def tap_changes(page, label, row, first, last):
    """Taps a key and waits until the cells from `first` to `last` of `row`
    change, text or colour: the game took the key."""
    def cells():
        text, colours = page.screen()[row]
        return text[first:last + 1], colours[first:last + 1]
    before = cells()
    tap_key(page.driver, label)
    until = time.monotonic() + 5
    while cells() == before:
        check(time.monotonic() < until, f"the key {label} changed nothing on row {row}",
              page.screen())
        time.sleep(0.02)


def tap_until(page, label, text, seconds=5.0, hold=0.0):
    tap_key(page.driver, label, hold)
    return page.wait_for(text, seconds)


def play_by_taps(page, url, where):
    """The first steps of a game, from the title to the end of a day and
    back to the title, every key a tap on the pad."""
    driver = page.driver
    page.open(url)
    page.wait_for("NEW GAME", 20)
    check_layout(driver, where)
    check(not leave_asks(page), f"{where}: leaving the title asks first")

    screen = tap_until(page, "Enter", "DAY:    1")
    check(row(page, 19) == " NAVIGATION:", f"{where}: NAV COM is not selected", screen)
    # A held arrow repeats: past the research station to the cargo space.
    tap_until(page, "Right", " CARGO:", hold=1.0)
    # A deck opened and left.
    tap_until(page, "Left", " RESEARCH:")
    tap_until(page, "Enter", "Research Assignments")
    screen = tap_until(page, "Escape", " RESEARCH:")
    check(not any("Research Assignments" in text for text, _ in screen),
          f"{where}: Escape did not leave the research station", screen)

    # A crew member carried down one row in Assign Crew Jobs.
    tap_until(page, "Up", " LIVING:")
    tap_until(page, "Enter", "Assign Crew Jobs")
    screen = tap_until(page, "Enter", "MAINTENANCE")
    first, second = (screen[r][0][4:26].rstrip() for r in (4, 5))
    tap_changes(page, "Enter", 4, 4, 25)
    tap_key(driver, "Down")
    until = time.monotonic() + 3
    while page.rows()[5][4:26].rstrip() != first:
        check(time.monotonic() < until, f"{where}: {first} was not carried down a row", page.screen())
        time.sleep(0.05)
    check(page.rows()[4][4:26].rstrip() == second, f"{where}: {second} did not move up", page.screen())
    tap_changes(page, "Enter", 5, 4, 25)
    tap_until(page, "Escape", "Auto Assign/Sort Crew")
    tap_until(page, "Escape", " LIVING:")

    # A day ended from the Library.
    tap_until(page, "Down", " RESEARCH:")
    tap_until(page, "Down", " LIBRARY:")
    tap_until(page, "Enter", "End Turn Factor 6")
    tap_changes(page, "Down", 8, 40, 70)
    tap_until(page, "Enter", "End Day?")
    screen = tap_until(page, "Y", "DAY:    2", 10)

    # A game is on: leaving asks. After it, the title; EXIT, and again.
    check(leave_asks(page), f"{where}: reloading in a game does not ask first")
    tap_changes(page, "Up", 23, 19, 22)
    driver.get_log("performance")
    tap_key(driver, "Enter")
    WebDriverWait(driver, 5).until(
        lambda d: not d.execute_script("return document.getElementById('ended').hidden"))
    tap(driver, "#again")
    page.wait_for("NEW GAME", 20)
    check(driver.execute_script("return document.getElementById('ended').hidden"),
          f"{where}: the end notice stays after playing again")
    # Nothing asked on the way: the page came back with no question.
    check(not any("javascriptDialogOpening" in entry["message"]
                  for entry in driver.get_log("performance")),
          f"{where}: leaving after EXIT asks first")
    tap_until(page, "Enter", "DAY:    1")
    # A screen reader presses a key by its click, with no pointer.
    driver.execute_script("document.querySelector(\"#pad button[aria-label='Right']\").click()")
    page.wait_for(" RESEARCH:")


def main():
    folder = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else web_folder()
    artefacts = os.path.abspath(sys.argv[2]) if len(sys.argv) > 2 else os.path.join(
        folder, "..", "artefacts")
    os.makedirs(artefacts, exist_ok=True)

    with serve(folder) as url, browser() as driver:
        page = Page(driver)
        for width, height in ((844, 390), (390, 844)):
            where = f"{width}x{height}"
            emulate_phone(driver, width, height)
            play_by_taps(page, url, where)
            time.sleep(0.3)
            check_layout(driver, where)
            driver.save_screenshot(os.path.join(artefacts, f"phone_{where}.png"))

        # Turned to portrait and back, the page is as it was, pixel for pixel.
        emulate_phone(driver, 844, 390)
        time.sleep(0.5)
        before = driver.get_screenshot_as_png()
        emulate_phone(driver, 390, 844)
        time.sleep(0.5)
        check_layout(driver, "turned to portrait")
        emulate_phone(driver, 844, 390)
        time.sleep(0.5)
        check_layout(driver, "turned back")
        check(driver.get_screenshot_as_png() == before, "turned to portrait and back, the page changed")
        check(not page.errors(), f"the browser logged errors: {page.errors()}")

    print("PASS: the game on a phone, by taps")


if __name__ == "__main__":
    main()
