#!/usr/bin/python3
"""Benchmarks of the game's page in headless Chromium: CPU of the tab and
how often the game wakes while the ship map waits and while the title
animates, key and tap to painted frame for a room move, the first visit and
a second visit with the server stopped to the title drawn, and what the
page downloads.

Usage: bench/web_page.py [WEB_FOLDER]   (default build-web/web)"""

import gzip
import os
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
from browser_support import Page, browser, emulate_phone, serve, tap_key, web_folder  # noqa: E402

TICKS = os.sysconf("SC_CLK_TCK")
IDLE_SECONDS = 5


def chromium_processes():
    """Chromium's processes: {pid: its --type (browser, renderer, gpu-process, ...)}."""
    found = {}
    for pid in os.listdir("/proc"):
        if not pid.isdigit():
            continue
        try:
            with open(f"/proc/{pid}/cmdline", "rb") as f:
                # Chromium rewrites the command lines of its children into
                # one string: split on blanks as well.
                args = f.read().replace(b"\0", b" ").split()
        except OSError:
            continue
        if not args or os.path.basename(args[0]) not in (b"chromium", b"chrome"):
            continue
        kind = "browser"
        for arg in args:
            if arg.startswith(b"--type="):
                kind = arg[7:].decode()
        found[int(pid)] = kind
    return found


def cpu_seconds(pid):
    try:
        with open(f"/proc/{pid}/stat") as f:
            fields = f.read().rsplit(")", 1)[1].split()
    except OSError:
        return 0.0
    return (int(fields[11]) + int(fields[12])) / TICKS


def cpu_share(seconds):
    """Share of one core used over `seconds` by the renderers (the tab) and
    by all of Chromium's processes."""
    processes = chromium_processes()
    before = {pid: cpu_seconds(pid) for pid in processes}
    start = time.monotonic()
    time.sleep(seconds)
    wall = time.monotonic() - start
    used = {pid: cpu_seconds(pid) - before[pid] for pid in processes}
    tab = sum(v for pid, v in used.items() if processes[pid] == "renderer")
    return tab / wall * 100, sum(used.values()) / wall * 100


def idle(driver, seconds):
    """CPU of the tab and of all of Chromium over `seconds`, and the game's
    wakes a second."""
    wakes = driver.execute_script("return window.skarmadaStats.wakes")
    tab, everything = cpu_share(seconds)
    wakes = (driver.execute_script("return window.skarmadaStats.wakes") - wakes) / seconds
    return tab, everything, wakes


def room_moves(driver, press, count=40):
    """Key to frame for `count` room moves, right and left by turns."""
    driver.execute_script("window.skarmadaStats.keyToFrame.length = 0")
    for i in range(count):
        press(i % 2 == 0)
        time.sleep(0.15)
    times = sorted(driver.execute_script("return window.skarmadaStats.keyToFrame"))
    if len(times) < count:
        print(f"the room moves did not all reach the page ({len(times)} frames)")
        sys.exit(1)
    return (f"median {statistics.median(times):.1f} ms, "
            f"90th percentile {times[int(len(times) * 0.9)]:.1f} ms")


def press_key(driver):
    def press(right):
        key, code = ("ArrowRight", 39) if right else ("ArrowLeft", 37)
        for kind in ("rawKeyDown", "keyUp"):
            driver.execute_cdp_cmd("Input.dispatchKeyEvent", {
                "type": kind, "key": key, "code": key,
                "windowsVirtualKeyCode": code, "nativeVirtualKeyCode": code})
    return press


def first_paint(driver, page, url):
    page.open(url)
    page.wait_for("NEW GAME", 20)
    return driver.execute_script("return window.skarmadaStats.firstPaint")


def main():
    folder = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else web_folder()
    results = []

    names = ["index.html", "page.css", "page.js", "favicon.svg", "manifest.webmanifest",
             "sw.js", "skarmada.js", "skarmada.wasm"]
    raw = packed = 0
    for name in names:
        with open(os.path.join(folder, name), "rb") as f:
            data = f.read()
        raw += len(data)
        packed += len(gzip.compress(data, 9))
    results.append(("Download (html, css, js, wasm, icon, manifest, service worker)",
                    f"{raw / 1024:.0f} KiB, {packed / 1024:.0f} KiB gzipped", ""))

    with browser() as driver:
        page = Page(driver)
        # A first visit: each from a server of its own, so nothing is kept.
        loads = []
        for _ in range(5):
            with serve(folder) as url:
                loads.append(first_paint(driver, page, url))
        results.append(("First visit to the title drawn (median of 5)",
                        f"{statistics.median(loads):.0f} ms", "under 1 s"))

        with serve(folder) as url:
            first_paint(driver, page, url)
            driver.execute_async_script(
                "navigator.serviceWorker.ready.then(() => arguments[0]())")
            time.sleep(1)
        loads = [first_paint(driver, page, url) for _ in range(5)]
        results.append(("Second visit, server stopped, to the title drawn (median of 5)",
                        f"{statistics.median(loads):.0f} ms", "under 1 s"))

        with serve(folder) as url:
            page.open(url)
            page.wait_for("NEW GAME", 20)
            time.sleep(1)
            tab, everything, wakes = idle(driver, IDLE_SECONDS)
            results.append((f"Title animating {IDLE_SECONDS} s: CPU of the tab",
                            f"{tab:.1f}% of one core ({everything:.1f}% all of Chromium), "
                            f"{wakes:.1f} wakes a second", "under 5%"))

            page.key("Enter")
            page.wait_for("DAY:    1")
            time.sleep(1)
            tab, everything, wakes = idle(driver, IDLE_SECONDS)
            results.append((f"Ship map waiting {IDLE_SECONDS} s: CPU of the tab",
                            f"{tab:.2f}% of one core ({everything:.1f}% all of Chromium), "
                            f"{wakes:.1f} wakes a second", "under 1%, at most 1 wake a second"))

            results.append(("Room move: key to painted frame (40 moves)",
                            room_moves(driver, press_key(driver)), "under 16 ms"))

            emulate_phone(driver, 844, 390)
            page.open(url)
            page.wait_for("NEW GAME", 20)
            tap_key(driver, "Enter")
            page.wait_for("DAY:    1")
            results.append(("Room move on a phone: tap to painted frame (40 moves)",
                            room_moves(driver, lambda right: tap_key(
                                driver, "Right" if right else "Left")), "under 16 ms"))

    width = max(len(r[0]) for r in results)
    for what, figure, target in results:
        print(f"{what:<{width}}  {figure}" + (f"  (target {target})" if target else ""))


if __name__ == "__main__":
    main()
