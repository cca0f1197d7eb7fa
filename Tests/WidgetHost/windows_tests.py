"""Widgets' windows on a real X server: worked with pointer and keys, and read as assistive technology reads them.

Runs on a bus and in a home of its own: windows_tests.py PROGRAM ORVELCTL
"""

import os
import re
import subprocess
import sys
import threading
import time
import unittest

PROGRAM, ORVELCTL = sys.argv.pop(1), sys.argv.pop(1)
CONTAINER = os.path.join(os.environ["XDG_DATA_HOME"], "Group Containers", "K4Q7M2XR9T.app.orvel.mac")
QUIET = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
started = []


def start(*command, **options):
    process = subprocess.Popen(command, **{**QUIET, **options})
    started.append(process)
    return process


def wait_for(condition, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    return None


def start_desktop():
    """A display nobody else has, a window manager, and the bus of assistive technology."""
    reading, writing = os.pipe()
    start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset", pass_fds=[writing])
    os.close(writing)
    with os.fdopen(reading, encoding="ascii") as file:
        os.environ["DISPLAY"] = ":" + file.readline().strip()
    for name in ["WAYLAND_DISPLAY", "NO_AT_BRIDGE", "GTK_A11Y"]:
        os.environ.pop(name, None)
    start("openbox", "--sm-disable")
    start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
    if not wait_for(lambda: b"_NET_SUPPORTING_WM_CHECK(WINDOW)" in
                    subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, check=False).stdout):
        raise RuntimeError("no window manager came up")


def write_snapshot(state):
    os.makedirs(CONTAINER, exist_ok=True)
    with open(os.path.join(CONTAINER, "widgets.json"), "wb") as file:
        file.write(subprocess.run([ORVELCTL, "snapshot", "sample", "--state", state], check=True, capture_output=True).stdout)


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


class Widgets:
    """The program that shows them, and what it says."""

    def __init__(self, *widgets):
        self.lines, self.seen = [], 0
        # What is lost is told apart from what libraries keep by every frame of who asked for it.
        self.process = start(PROGRAM, *widgets, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=None, text=True,
                             env=os.environ | {"ASAN_OPTIONS": "fast_unwind_on_malloc=0"})
        threading.Thread(target=self.listen, daemon=True).start()

    def listen(self):
        for line in self.process.stdout:
            self.lines.append(line.strip())

    def said(self, pattern):
        """The first match in what it has said since the last one that was asked for."""
        def found():
            for number in range(self.seen, len(self.lines)):
                match = re.fullmatch(pattern, self.lines[number])
                if match:
                    self.seen = number + 1
                    return match
            return None
        return wait_for(found)

    def stop(self):
        self.process.stdin.close()
        return self.process.wait(20)


class WindowsTests(unittest.TestCase):
    def setUp(self):
        write_snapshot("next")
        self.widgets = Widgets("status:systemMedium:dusk@100,80")
        self.assertTrue(self.widgets.said("shown systemMedium"))
        self.frame = wait_for(self.window_in_place)
        self.assertTrue(self.frame, "the window lies where it was put")

    def tearDown(self):
        self.assertEqual(self.widgets.stop(), 0)

    @staticmethod
    def window():
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.name == os.path.basename(PROGRAM) and application.childCount > 0:
                return application[0]
        return None

    @staticmethod
    def place(part):
        extents = part.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def window_in_place(self):
        window = self.window()
        parts = list(window[0]) if window and window.childCount else []
        return window if len(parts) > 1 and self.place(parts[0]) == (100, 80, 364, 170) else None

    def test_assistive_technology_reads_what_is_seen(self):
        parts = [(part.getRoleName(), part.name) for part in self.frame[0]]
        self.assertEqual(self.frame.name, "Orvel")
        self.assertEqual(parts[0], ("push button", "Orvel"))
        self.assertEqual(parts[-1], ("push button", "Breathe now"))
        self.assertIn(("label", "Evening"), parts)
        self.assertEqual([name for role, name in parts if role == "push button"], ["Orvel", "Breathe now"], "none twice")
        self.assertIn("Evening", self.frame[0][0].description)
        x, y, width, height = self.place(self.frame[0][len(parts) - 1])
        self.assertTrue(100 < x < x + width < 464 and 80 < y < y + height < 250, "the button is within the card")
        for index, said in [(0, "opened .*"), (len(parts) - 1, "acted 0 .*")]:
            self.assertTrue(self.frame[0][index].queryAction().doAction(0))
            self.assertTrue(self.widgets.said(said), said)

    def test_a_pointer_opens_presses_and_drags(self):
        x, y, width, height = self.place(self.frame[0][self.frame[0].childCount - 1])
        xdotool("mousemove", 150, 130, "click", 1)
        self.assertTrue(self.widgets.said("opened .+"), "with a token for whoever opens")
        xdotool("mousemove", x + width // 2, y + height // 2, "click", 1)
        self.assertTrue(self.widgets.said("acted 0 .+"))
        xdotool("mousemove", x + 5, y + 5, "mousedown", 1, "mousemove_relative", 3, 2, "mouseup", 1)
        self.assertTrue(self.widgets.said("acted 0 .+"), "a hand that shakes does not drag")
        xdotool("mousemove", 150, 130, "mousedown", 1)
        for _ in range(10):
            xdotool("mousemove_relative", "--sync", 30, 20)
        xdotool("mouseup", 1)
        self.assertTrue(self.widgets.said(r"moved \S+ 400 280"))
        self.assertTrue(wait_for(lambda: self.place(self.frame[0][0])[:2] == (400, 280)))
        xdotool("mousemove", 450, 330, "mousedown", 1, "mousemove", 460, 330, "mousemove", 1279, 899, "mouseup", 1)
        self.assertTrue(self.widgets.said(r"moved \S+ 916 730"), "never beyond the screen")

    def test_keys_do_what_a_pointer_does(self):
        xdotool("mousemove", 150, 130, "click", 1)
        self.assertTrue(self.widgets.said("opened .*"))
        for keys, said in [(["Return"], "opened .*"), (["Tab", "space"], "acted 0 .*"), (["Tab", "Return"], "opened .*"),
                           (["shift+Tab", "Return"], "acted 0 .*"), (["alt+Right"], r"moved \S+ 124 80"),
                           (["ctrl+Down"], r"moved \S+ 124 84"), (["shift+F10", "Down", "Right", "Return"], "family systemSmall"),
                           (["shift+F10", "Up", "Return"], "removed")]:
            for key in keys:
                xdotool("key", key)
                time.sleep(0.8)  # menus open and take the keyboard
            self.assertTrue(self.widgets.said(said), f"{keys}: {said}, after {self.widgets.lines}")


if __name__ == "__main__":
    try:
        start_desktop()
        import pyatspi  # connects when it is imported
        program = unittest.main(exit=False)
    finally:
        for process in reversed(started):
            process.terminate()
            process.wait()
    sys.exit(not program.result.wasSuccessful())
