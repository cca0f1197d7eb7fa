"""The gallery and the panel as people without a pointer use them: through assistive technology, and by keyboard.

    gallery_and_panel_tests.py ORVELCTL GALLERY PANEL

Runs on a bus of its own, which starts the extension, and in a home of its own.
"""
import os
import pathlib
import subprocess
import sys
import time
import unittest

ORVELCTL, GALLERY, PANEL = sys.argv[1:4]
SNAPSHOT = pathlib.Path(os.environ["XDG_DATA_HOME"], "Group Containers/K4Q7M2XR9T.app.orvel.mac/widgets.json")
PATIENCE = 30  # seconds; sanitizers are slow
helpers = []


def start_desktop():
    reading, writing = os.pipe()
    helpers.append(subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "900x1000x24", "-nolisten", "tcp"],
        pass_fds=[writing], stderr=subprocess.DEVNULL))
    os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
    helpers.append(subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL))
    helpers.append(subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"], stderr=subprocess.DEVNULL))
    global pyatspi
    import pyatspi
    eventually(lambda: pyatspi.Registry.getDesktop(0) is not None)


def eventually(condition, what="what was waited for"):
    end = time.monotonic() + PATIENCE
    while True:
        try:
            result = condition()
        except Exception as error:  # a widget that goes while it is looked at
            result, what = None, f"{what} ({error})"
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {PATIENCE} s")
        time.sleep(0.05)


def write_snapshot(state):
    SNAPSHOT.parent.mkdir(parents=True, exist_ok=True)
    sample = subprocess.run([ORVELCTL, "snapshot", "sample", "--state", state], check=True, capture_output=True)
    SNAPSHOT.write_bytes(sample.stdout)


def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "40", *keys], check=True)


class Shown:
    """A demonstration on the screen, as assistive technology sees it."""

    def __init__(self, program, *arguments, is_to_end):
        self.said = pathlib.Path(os.environ["HOME"], "said")
        # What is lost is looked for at the end only, and takes every frame to tell apart from what libraries keep.
        frames = {"ASAN_OPTIONS": "fast_unwind_on_malloc=0"} if is_to_end else {}
        with open(self.said, "wb") as output:
            self.process = subprocess.Popen([program, *arguments], stdout=output, env=os.environ | frames)
        eventually(lambda: "shown" in self.lines(), "the window's pictures")
        self.window = eventually(self.find_window, "the window among the accessible ones")

    def find_window(self):
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid and application.childCount:
                return application[0]

    def lines(self):
        return self.said.read_text().splitlines()

    def says(self, line):
        eventually(lambda: line in self.lines(), line)

    def everything(self):
        """All that is on the screen, in its order."""
        def below(widget):
            for child in widget:
                if child and child.getState().contains(pyatspi.STATE_VISIBLE):
                    yield child
                    yield from below(child)
        return list(below(self.window))

    def roles_and_names(self, *roles):
        return [(w.getRoleName(), w.name) for w in self.everything() if w.getRoleName() in roles]

    def widget(self, role, name):
        return eventually(lambda: next((w for w in self.everything() if (w.getRoleName(), w.name) == (role, name)), None),
                          f"{role} {name}")

    def focused(self):
        return next((w.name for w in self.everything() if w.getState().contains(pyatspi.STATE_FOCUSED)), None)

    def ends_well(self):
        """The window was closed, which ends the demonstration."""
        self.says("closed")
        if self.process.wait(PATIENCE) != 0:
            raise AssertionError(f"the program ended with {self.process.returncode}")

    def close(self):
        self.process.terminate()
        self.process.wait()


def click(widget):
    widget.queryAction().doAction(0)


def place(widget):
    return widget.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def is_checked(widget):
    return widget.getState().contains(pyatspi.STATE_CHECKED)


class Windows(unittest.TestCase):
    def shown(self, *arguments, is_to_end=False):
        shown = Shown(self.program, *arguments, is_to_end=is_to_end)
        self.addCleanup(shown.close)
        return shown


class Gallery(Windows):
    program = GALLERY
    previews = ["Add Orvel, Small", "Add Orvel, Medium", "Add Orvel, Large", "Add Breathe Now, Small"]

    def test_it_says_what_it_shows(self):
        shown = self.shown()
        self.assertEqual(shown.roles_and_names("heading", "push button", "toggle button", "slider"), [
            *(("push button", name) for name in ("Minimize", "Maximize", "Close")),
            ("heading", "Orvel Widgets"),
            ("heading", "Orvel"), *[("push button", name) for name in self.previews[:3]],
            ("heading", "Breathe Now"), ("push button", self.previews[3]),
            ("toggle button", "Reduce transparency"), ("slider", "Bigger text"),
        ])
        medium = shown.widget("push button", self.previews[1])
        self.assertEqual(medium.description, "What’s keeping things quiet now, today’s numbers and a breath.")
        click(medium)
        shown.says("add app.orvel.widget.status systemMedium")
        eventually(lambda: medium.description == "Added", "that it was added")

    def test_it_works_by_keyboard(self):
        shown = self.shown(is_to_end=True)
        for name in [*self.previews, "Reduce transparency", "Bigger text", self.previews[0]]:
            eventually(lambda: shown.focused() == name, f"the keyboard at {name}")
            press("Tab")
        press("Return")
        shown.says("add app.orvel.widget.status systemMedium")
        press("Escape")
        shown.ends_well()

    def test_settings_are_told_once_and_leave_the_keyboard_where_it_is(self):
        shown = self.shown()
        press("Tab")
        shown.widget("slider", "Bigger text").queryValue().currentValue = 3
        shown.says("bigger text 3")
        eventually(lambda: shown.lines().count("shown") == 2, "the pictures in their new size")
        self.assertEqual(shown.focused(), self.previews[1])
        click(shown.widget("toggle button", "Reduce transparency"))
        shown.says("reduce transparency 1")
        eventually(lambda: shown.lines().count("shown") == 3, "the pictures without transparency")
        self.assertEqual([line for line in shown.lines() if line != "shown"], ["bigger text 3", "reduce transparency 1"])

    def test_a_warning_offers_another_try(self):
        shown = self.shown("warning")
        sentence = shown.widget("label", "Orvel’s widgets do not answer.")
        self.assertEqual(sentence.parent.getRoleName(), "notification")
        click(shown.widget("push button", "Try Again"))
        shown.says("try again")
        eventually(lambda: not any(name == "Try Again" for _, name in shown.roles_and_names("push button")), "no warning")

    def test_it_is_laid_out_from_the_side_where_words_begin_and_wraps(self):
        for language, is_from_the_right in (("de", False), ("ar", True)):
            with self.subTest(language):
                shown = self.shown(language)
                small, medium, large = (w for w in shown.everything() if w.getRoleName() == "push button" and "Orvel" in w.name)
                left, right, below = (place(w) for w in (small, medium, large))
                if is_from_the_right:
                    left, right = right, left
                self.assertLess(left.x + left.width, right.x)
                self.assertEqual(left.y, right.y)
                self.assertGreater(below.y, left.y + left.height)
                shown.close()


class Panel(Windows):
    program = PANEL

    def test_controls_say_their_state_and_show_the_one_asked_for(self):
        write_snapshot("focus")
        shown = self.shown()
        toggle = shown.widget("toggle button", "Focus now")
        self.assertRegex(toggle.description, "^on, [0-9]+ minutes left$")
        self.assertTrue(is_checked(toggle))
        breathe = shown.widget("push button", "Breathe now")
        self.assertEqual(breathe.description, "3 min · Calm")

        click(toggle)
        shown.says("used app.orvel.control.focus off")
        eventually(lambda: not is_checked(toggle), "a toggle that is off")
        click(breathe)
        shown.says("used app.orvel.control.breathe")

    def test_it_works_by_keyboard(self):
        write_snapshot("now")
        shown = self.shown(is_to_end=True)
        eventually(lambda: shown.focused() == "Breathe now", "the keyboard at the first control")
        press("Tab")
        eventually(lambda: shown.focused() == "Focus now", "the keyboard at the second control")
        press("space")
        shown.says("used app.orvel.control.focus on")
        press("Tab", "Return")
        shown.says("gallery")
        shown.ends_well()


if __name__ == "__main__":
    start_desktop()
    try:
        result = unittest.main(argv=sys.argv[:1], exit=False, verbosity=2).result
    finally:
        for helper in helpers:
            helper.terminate()
            helper.wait()
    sys.exit(not result.wasSuccessful())
