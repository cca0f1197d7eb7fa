"""The page about writing a host, as a reader would follow it: its snippets are run, on a bus and in a home of their own."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import unittest

from gi.repository import GLib

PRODUCTS = pathlib.Path(sys.argv.pop(1))
PAGE = pathlib.Path(__file__).parents[2] / "docs/host.md"
HOME, DATA = pathlib.Path(os.environ["HOME"]), pathlib.Path(os.environ["XDG_DATA_HOME"])
CONTAINER = DATA / "Group Containers/K4Q7M2XR9T.app.orvel.mac"
OPENED = HOME / "opened"


def blocks(language):
    """Each block of the page that can be run, with the number of its first line."""
    text = PAGE.read_text(encoding="utf-8")
    for found in re.finditer(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
        yield text.count("\n", 0, found.start(1)), found[1]


def write_snapshot(state):
    CONTAINER.mkdir(parents=True, exist_ok=True)
    sample = subprocess.run([PRODUCTS / "bin/orvelctl", "snapshot", "sample", "--state", state], check=True, capture_output=True)
    (CONTAINER / "widgets.json").write_bytes(sample.stdout)


def handle_links():
    for folder, name, text in [
        (DATA / "applications", "throw-away.desktop",
         f"[Desktop Entry]\nType=Application\nName=Throw-away\nExec=/bin/sh -c 'echo \"$0\" >> \"{OPENED}\"' %u\n"),
        (pathlib.Path(os.environ["XDG_CONFIG_HOME"]), "mimeapps.list",
         "[Default Applications]\nx-scheme-handler/orvel=throw-away.desktop\n"),
    ]:
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_text(text, encoding="utf-8")


def wait_for(condition):
    context = GLib.MainContext.default()
    end = time.monotonic() + 10
    while not condition() and time.monotonic() < end:
        context.iteration(False)
        time.sleep(0.005)
    return condition()


def blueness(colour):
    red, _, blue = colour
    return blue - red


class HostPageTests(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(DATA, ignore_errors=True)
        OPENED.unlink(missing_ok=True)
        handle_links()
        write_snapshot("now")
        cls.page = {}
        for line, code in blocks("python"):
            exec(compile("\n" * line + code, str(PAGE), "exec"), cls.page)

    def test_the_snippets_get_what_they_say(self):
        page = self.page
        self.assertEqual(page["widgets"], {"app.orvel.widget.status": ["systemSmall", "systemMedium", "systemLarge"],
                                           "app.orvel.widget.breathe": ["systemSmall"]})
        self.assertEqual(len(page["controls"]), 2)
        self.assertGreater(page["next_change"](page["now"]), page["now"])
        self.assertTrue(bytes(page["previewed"]["layers"][0][1]).startswith(b"\x89PNG"))
        self.assertEqual((page["points"], page["name"]), ((364, 170), "whole"))
        self.assertEqual(len(page["pixels"]), 728 * 340 * 4)
        self.assertEqual(page["label"], "Breathe now")
        self.assertIn(b"<svg", page["icon"])
        background, foreground, accent = page["shown"].count((0.1, 0.1, 0.1)), max(page["shown"]), max(page["shown"], key=blueness)
        self.assertTrue(len(page["shown"]) / 2 < background < len(page["shown"]), background)
        self.assertGreater(min(foreground), 0.95)
        self.assertGreater(blueness(accent), 0.55)

    def test_what_is_performed_arrives(self):
        links = ["orvel://breathe?style=calm&minutes=3", "orvel://focus", "orvel://breathe"]
        self.assertTrue(wait_for(lambda: OPENED.exists() and sorted(OPENED.read_text().split()) == sorted(links)), OPENED)

    def test_the_widget_follows_the_application(self):
        shown, heard = [], len(self.page["heard"])
        widget = self.page["Widget"](self.page["STATUS"], self.page["environment"],
                                     lambda picture, files: shown.append(picture["elements"]))
        write_snapshot("focus")
        (emit,) = [code for _, code in blocks("sh") if "emit" in code]
        subprocess.run(["bash", "-ec", emit], check=True)
        self.assertTrue(wait_for(lambda: shown[-1] != shown[0] and self.page["heard"][heard:]))
        # A moment that cannot be read is followed by a new timeline at once.
        entries, moments, reload = widget.timeline
        widget.timeline, widget.shown = (entries, [b"unreadable"] * len(moments), reload), None
        before = len(shown)
        widget.update()
        self.assertTrue(wait_for(lambda: len(shown) > before))
        GLib.source_remove(widget.timer)

    def test_failures_wait_longer_and_longer(self):
        widget = self.page["Widget"]("app.orvel.widget.none", {}, None)
        waits = []
        original, GLib.timeout_add = GLib.timeout_add, lambda wait, _: waits.append(wait) or 0
        try:
            GLib.source_remove(widget.timer)
            widget.timer = 0
            for _ in range(3):
                widget.update()
        finally:
            GLib.timeout_add = original
        self.assertEqual(waits, [2001, 4001, 8001])

    def test_the_calls_from_a_shell_answer(self):
        for _, code in blocks("sh"):
            result = subprocess.run(["bash", "-ec", code], check=True, capture_output=True, text=True)
            self.assertTrue("emit" in code or "'title': <'Jetzt Fokus'>" in result.stdout, result.stdout[-300:])


if __name__ == "__main__":
    unittest.main()
