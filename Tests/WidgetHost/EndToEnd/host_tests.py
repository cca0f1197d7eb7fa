#!/usr/bin/python3
"""The desktop host as a person meets it: on a screen, with an application and a desktop beside it."""

import json
import os
import pathlib
import signal
import subprocess
import sys
import time
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[2] / "Tools" / "desktops")]

import gi  # noqa: E402

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, GLib  # noqa: E402

from desktops import Desktop, wait_for  # noqa: E402
from neighbours import Neighbours  # noqa: E402

PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
STATUS, BREATHE = "app.orvel.widget.status", "app.orvel.widget.breathe"
HOST = "app.orvel.WidgetHost"  # its name on the bus
GAP = 24  # points, between the screen's corner and the first widget that nobody placed
SLOW = 20  # seconds; sanitizers and busy machines take their time


class Screen:
    """A host on a desktop. `widgets` are pairs of a family and a kind."""

    def __init__(self, *widgets, state="now", environment=None, sway=False, scale=1, now=None):
        self.desktop = Desktop(PROGRAMS, environment, as_nobody=sway)
        self.desktop.write_snapshot("--state", state, *(["--now", now] if now else []))
        self.file = self.desktop.folder / "config" / "orvel" / "widget-host.json"
        if widgets:
            self.place(widgets)
        self.desktop.start_sway(scale=scale) if sway else self.desktop.start_x()
        self.neighbours = Neighbours(self.desktop)
        self.host = None

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.neighbours.close()
        self.desktop.__exit__()

    def place(self, widgets):
        state = {"widgets": [{"id": str(index), "kind": kind, "family": family}
                             for index, (family, kind) in enumerate(widgets)]}
        self.file.parent.mkdir(parents=True)
        self.file.write_text(json.dumps({"state": state, "version": 1}))

    def start(self, *options):
        self.host = self.desktop.start(PROGRAMS / "orvel-widget-host", *(options or ["--background"]))

    def stop(self):
        self.host.send_signal(signal.SIGTERM)
        return self.host.wait(SLOW)

    def state(self):
        return json.loads(self.file.read_text())["state"]

    def pixels(self, x=GAP, y=GAP, width=364, height=170):
        """Bytes of a part of the screen; without one, where a medium widget lies that is the first."""
        self.desktop.screenshot(self.desktop.folder / "seen.png")
        screen = GdkPixbuf.Pixbuf.new_from_file(str(self.desktop.folder / "seen.png"))
        part = screen.new_subpixbuf(x, y, width, height).copy()
        everything, stride, row = part.get_pixels(), part.get_rowstride(), width * part.get_n_channels()
        return b"".join(everything[start:start + row] for start in range(0, height * stride, stride))

    def changed(self, before, *place, seconds=SLOW):
        return wait_for(lambda: self.pixels(*place) != before, seconds)

    def settled(self, *place):
        """The part once it has stayed the same for a while."""
        seen = None
        for _ in range(100):
            now = self.pixels(*place)
            if now == seen:
                return now
            seen = now
            time.sleep(0.4)
        raise AssertionError("the screen does not come to rest")

    def click(self, x, y, button=1):
        self.desktop.run("xdotool", "mousemove", x, y, "sleep", "0.2", "click", button, check=True)

    def ask(self, *options):
        """A second call of the program; before the first has its name, this one would be the host."""
        wait_for(lambda: self.host.poll() is not None or self.neighbours.ask_bus("NameHasOwner", "(s)", HOST), SLOW)
        return self.desktop.run(PROGRAMS / "orvel-widget-host", *options, capture_output=True)


class Widgets(unittest.TestCase):
    def test_follow_the_application_the_desktop_and_the_clock(self):
        with Screen(("systemMedium", STATUS)) as screen:
            empty = screen.pixels()
            self.assertTrue(screen.changed(empty), "a widget is shown")
            block = screen.settled()
            self.assertNotEqual(block, empty)

            with self.subTest("the application wrote another snapshot and said so"):
                screen.desktop.write_snapshot("--state", "paused")
                screen.neighbours.reload("ReloadTimelines", "app.orvel.widget.unknown")
                time.sleep(0.5)
                self.assertEqual(screen.pixels(), block, "a kind that is not named is left alone")
                screen.neighbours.reload("ReloadTimelines", STATUS)
                self.assertTrue(screen.changed(block))
                light = screen.settled()

            with self.subTest("the desktop turned dark"):
                screen.neighbours.set_appearance("color-scheme", GLib.Variant("u", 1))
                self.assertTrue(screen.changed(light))
                dark = screen.settled()
                self.assertLess(sum(dark), sum(light))

            with self.subTest("the extension was killed"):
                os.kill(screen.neighbours.extension(), signal.SIGKILL)
                time.sleep(0.5)
                self.assertEqual(screen.pixels(), dark, "the picture stays")
                screen.desktop.write_snapshot("--state", "focus")
                screen.neighbours.reload("ReloadTimelines")
                self.assertTrue(screen.changed(dark))

            with self.subTest("a minute of the Focus is over"):
                focus = screen.settled()
                self.assertTrue(screen.changed(focus, seconds=60 + SLOW), "the next minute comes by itself")

    def test_say_their_name_while_the_extension_is_silent(self):
        screen = Screen(("systemMedium", STATUS))
        service = screen.desktop.folder / "services" / "app.orvel.Orvel.WidgetExtension.service"
        service.write_text("[D-BUS Service]\nName=app.orvel.Orvel.WidgetExtension\nExec=/bin/sleep 60\n")
        with screen:
            middle = GAP + 132, GAP + 70, 100, 30  # of the card, where a name is

            def written():
                seen = screen.pixels(*middle)
                return max(seen) > 230 and min(seen) < 150  # dark words on a light card

            self.assertTrue(wait_for(written, SLOW))

    def test_act_on_clicks(self):
        with Screen(("systemMedium", STATUS), state="next") as screen:
            self.assertTrue(screen.changed(screen.pixels()))
            screen.settled()
            with self.subTest("anywhere on it: its link"):
                screen.click(GAP + 300, GAP + 20)
                self.assertTrue(wait_for(lambda: screen.neighbours.links, SLOW))
                self.assertEqual(screen.neighbours.links, ["orvel://today"])
            with self.subTest("its button: the breath of its entry"):
                screen.neighbours.links.clear()
                screen.click(GAP + 60, GAP + 135)
                self.assertTrue(wait_for(lambda: screen.neighbours.links, SLOW))
                self.assertEqual(screen.neighbours.links, ["orvel://breathe?style=calm&minutes=3"])
            with self.subTest("its button while the application runs"):
                screen.neighbours.links.clear()
                application = screen.neighbours.start_application()
                screen.click(GAP + 60, GAP + 135)
                self.assertTrue(wait_for(lambda: screen.neighbours.performed, SLOW))
                intent, parameters, _ = screen.neighbours.performed[0]
                self.assertEqual((intent, parameters), ("OpenBreathe", {"style": "calm", "minutes": 3}))
                self.assertEqual(screen.neighbours.links, [])
                screen.neighbours.end_application(application)

    def test_lie_below_the_gallery(self):
        with Screen() as screen:
            screen.stop()
            middle = {"output": "screen", "x": 450, "y": 300}
            screen.file.parent.mkdir(parents=True, exist_ok=True)
            screen.file.write_text(json.dumps({"version": 1, "state": {"widgets": [
                {"id": "1", "kind": STATUS, "family": "systemMedium", "place": middle}]}}))
            place = middle["x"] + 40, middle["y"] + 40, 280, 90  # within the card
            empty = screen.settled(*place)
            screen.start()
            self.assertTrue(screen.changed(empty, *place))
            shown = screen.settled(*place)
            self.assertEqual(screen.ask("--gallery").returncode, 0)
            self.assertTrue(screen.changed(shown, *place), "the gallery covers it")

    def test_keep_their_places(self):
        with Screen(("systemSmall", BREATHE)) as screen:
            place = GAP, GAP, 170, 170
            empty = screen.pixels(*place)
            self.assertTrue(screen.changed(empty, *place))
            screen.settled(*place)
            screen.desktop.run("xdotool", "mousemove", GAP + 20, GAP + 150, "mousedown", 1, "mousemove_relative", "--sync",
                               30, 20, "mousemove_relative", "--sync", 370, 280, "sleep", "0.3", "mouseup", 1, check=True)
            self.assertTrue(wait_for(lambda: screen.state()["widgets"][0]["place"]["x"] != GAP, SLOW))
            kept = screen.state()["widgets"][0]["place"]
            self.assertEqual((kept["x"], kept["y"]), (GAP + 400, GAP + 300))
            self.assertEqual(screen.settled(*place), screen.pixels(GAP, 700, 170, 170), "it left where it was")
            self.assertEqual(screen.stop(), 0)
            moved = kept["x"], kept["y"], 170, 170
            without = screen.pixels(*moved)
            screen.start()
            self.assertTrue(screen.changed(without, *moved), "it is where it was before")
            self.assertEqual(screen.neighbours.links, [], "a drag is no click")


class Reading(unittest.TestCase):
    """What a screen reader finds, and what it may do."""

    def test_elements_and_actions(self):
        with Screen(("systemMedium", STATUS), state="next", environment={"NO_AT_BRIDGE": "0"}) as screen:
            self.assertTrue(screen.changed(screen.pixels()))
            screen.settled()
            tree = wait_for(lambda: self.tree(screen), SLOW)
            window = tree[0]["children"][0]
            found = list(self.showing(window))
            self.assertEqual(window["name"], "Orvel")
            named = {accessible["name"]: accessible for accessible in found}
            self.assertIn("3 breaths", named)
            self.assertEqual(named["Breathe now"]["role"], "push button")
            self.assertIn("focusable", named["Breathe now"]["states"])
            x, y, width, height = named["Breathe now"]["frame"]
            self.assertTrue(GAP <= x and x + width <= GAP + 364 and GAP <= y and y + height <= GAP + 170)
            self.do(screen, named["Breathe now"]["actions"][0], "push button", "Breathe now")
            self.assertTrue(wait_for(lambda: screen.neighbours.links, SLOW))
            self.assertEqual(screen.neighbours.links, ["orvel://breathe?style=calm&minutes=3"])

    def test_adding_from_the_gallery(self):
        with Screen(environment={"NO_AT_BRIDGE": "0"}) as screen:
            self.assertEqual(screen.ask().returncode, 0)
            found = lambda name: [accessible for tree in self.tree(screen) or [] for accessible in self.showing(tree)
                                  if accessible["name"] == name]
            self.assertTrue(wait_for(lambda: found("Add Orvel, Medium"), SLOW), "a second start raises the gallery")
            self.do(screen, found("Add Orvel, Medium")[0]["actions"][0], "push button", "Add Orvel, Medium")
            self.assertTrue(wait_for(lambda: screen.file.exists(), SLOW))
            self.assertEqual([(widget["kind"], widget["family"]) for widget in screen.state()["widgets"]],
                             [(STATUS, "systemMedium")])
            self.assertTrue(wait_for(lambda: found("Breathe now") or found("3 breaths"), SLOW), "it is on the desktop")

    def test_the_controls(self):
        with Screen(environment={"NO_AT_BRIDGE": "0"}, state="next") as screen:
            found = lambda role, name: [accessible for tree in self.tree(screen) or [] for accessible in self.showing(tree)
                                        if (accessible["role"], accessible["name"]) == (role, name)]

            def use(role, name):
                """As a screen reader does, whether or not the panel closed after the last time."""
                if not found(role, name):
                    self.assertEqual(screen.ask("--controls").returncode, 0)
                self.assertTrue(wait_for(lambda: found(role, name), SLOW), name)
                self.do(screen, found(role, name)[0]["actions"][0], role, name)

            use("push button", "Breathe now")
            self.assertTrue(wait_for(lambda: screen.neighbours.links, SLOW))
            use("toggle button", "Focus now")
            self.assertTrue(wait_for(lambda: len(screen.neighbours.links) > 1, SLOW))
            self.assertEqual(screen.neighbours.links, ["orvel://breathe", "orvel://focus"])
            with self.subTest("the application runs, and ends the Focus"):
                screen.desktop.write_snapshot("--state", "focus")
                screen.neighbours.reload("ReloadControls")
                application = screen.neighbours.start_application()
                time.sleep(1)
                use("toggle button", "Focus now")
                self.assertTrue(wait_for(lambda: screen.neighbours.performed, SLOW))
                self.assertEqual(screen.neighbours.performed[0][:2], ("FocusNow", {"value": False}))
                self.assertEqual(len(screen.neighbours.links), 2)
                screen.neighbours.end_application(application)

    def tree(self, screen):
        done = screen.desktop.run("/usr/bin/python3", HERE / "accessibles.py", "orvel-widget-host", capture_output=True)
        return done.returncode == 0 and [program for program in json.loads(done.stdout) if program["children"]]

    def do(self, screen, action, role, name):
        screen.desktop.run("/usr/bin/python3", HERE / "accessibles.py", "orvel-widget-host", action, role, name, check=True)

    def showing(self, accessible):
        for child in accessible["children"]:
            if "showing" in child["states"]:
                yield child
                yield from self.showing(child)


class LayerShell(unittest.TestCase):
    def test_widgets_lie_below_windows(self):
        with Screen(("systemMedium", STATUS), sway=True, scale=2) as screen:
            # The output is drawn twice as fine: so are the places on it.
            place = 2 * GAP, 2 * GAP, 364, 170
            self.assertTrue(screen.changed(screen.pixels(*place), *place))
            shown = screen.settled(*place)
            screen.desktop.write_snapshot("--state", "paused")
            screen.neighbours.reload("ReloadTimelines")
            self.assertTrue(screen.changed(shown, *place))


class Program(unittest.TestCase):
    def test_is_one(self):
        with Screen(("systemSmall", BREATHE)) as screen:
            self.assertTrue(screen.changed(screen.pixels(GAP, GAP, 100, 100), GAP, GAP, 100, 100))
            with self.subTest("says what there is"):
                listed = screen.ask("--list")
                self.assertEqual(listed.returncode, 0)
                self.assertIn(BREATHE, listed.stdout)
            with self.subTest("adds another"):
                added = screen.ask("--add", STATUS, "--size", "large")
                self.assertEqual(added.returncode, 0, added.stderr)
                self.assertTrue(wait_for(lambda: len(screen.state()["widgets"]) == 2, SLOW))
                self.assertEqual(screen.state()["widgets"][1]["family"], "systemLarge")
            with self.subTest("ends when asked"):
                self.assertEqual(screen.ask("--quit").returncode, 0)
                self.assertEqual(screen.host.wait(SLOW), 0)
            with self.subTest("nothing runs"):
                self.assertEqual(screen.ask("--quit").returncode, 1)
                self.assertEqual(screen.ask("--list").returncode, 0)

    def test_says_what_is_wrong(self):
        desktop = Desktop(PROGRAMS)
        with desktop:
            host = PROGRAMS / "orvel-widget-host"
            for options, code, sentence in [
                (["--size", "huge"], 2, "huge"), (["--add"], 2, "--add"), (["--nonsense"], 2, "nonsense"),
                (["--add", "app.orvel.widget.nothing", "--size", "small"], 1, "app.orvel.widget.nothing"),
                (["--background"], 1, "display"),
            ]:
                with self.subTest(options):
                    done = desktop.run(host, *options, capture_output=True, timeout=SLOW)
                    self.assertEqual(done.returncode, code, done.stderr)
                    self.assertIn(sentence, done.stderr)
            self.assertIn("--add", desktop.run(host, "--help", capture_output=True).stdout)
            self.assertRegex(desktop.run(host, "--version", capture_output=True).stdout, r"\d+\.\d+")

    def test_keeps_a_broken_state_aside(self):
        with Screen(("systemSmall", BREATHE)) as screen:
            screen.stop()
            screen.file.write_text("{ not json")
            host = screen.desktop.start(PROGRAMS / "orvel-widget-host", "--background", stderr=subprocess.PIPE)
            self.assertIn("widget-host", host.stderr.readline())
            kept = [path for path in screen.file.parent.iterdir() if path.read_text() == "{ not json"]
            self.assertEqual(len(kept), 1)
            host.stderr.close()


if __name__ == "__main__":
    unittest.main(verbosity=2)
