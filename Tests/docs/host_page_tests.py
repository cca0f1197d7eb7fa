"""The page about writing a host: the snippets get what the page says, and its widget follows the application."""

import os
import pathlib
import shutil
import unittest

from gi.repository import GLib

import pages

PAGE = pages.Page("host.md")
OPENED = pathlib.Path(os.environ["HOME"]) / "opened"


def handle_links():
    for folder, name, text in [
        (pages.DATA / "applications", "throw-away.desktop",
         f"[Desktop Entry]\nType=Application\nName=Throw-away\nExec=/bin/sh -c 'echo \"$0\" >> \"{OPENED}\"' %u\n"),
        (pathlib.Path(os.environ["XDG_CONFIG_HOME"]), "mimeapps.list",
         "[Default Applications]\nx-scheme-handler/orvel=throw-away.desktop\n"),
    ]:
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_text(text, encoding="utf-8")


def blueness(colour):
    red, _, blue = colour
    return blue - red


class HostPageTests(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(pages.DATA, ignore_errors=True)
        OPENED.unlink(missing_ok=True)
        handle_links()
        pages.write_sample("now")
        cls.page = PAGE.run()

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
        self.assertIn(b"currentColor", page["icon"])
        background, foreground, accent = page["shown"].count((0.1, 0.1, 0.1)), max(page["shown"]), max(page["shown"], key=blueness)
        self.assertTrue(len(page["shown"]) / 2 < background < len(page["shown"]), background)
        self.assertGreater(min(foreground), 0.95)
        self.assertGreater(blueness(accent), 0.55)

    def test_what_is_performed_arrives(self):
        links = ["orvel://breathe", "orvel://breathe?style=calm&minutes=3", "orvel://focus"]
        self.assertTrue(pages.wait_for(lambda: OPENED.exists() and sorted(OPENED.read_text().split()) == links), OPENED)

    def test_the_widget_follows_the_application(self):
        shown, heard = [], len(self.page["heard"])
        widget = self.page["Widget"](self.page["STATUS"], self.page["environment"],
                                     lambda picture, files: shown.append(picture["elements"]))
        pages.write_sample("focus")
        (emit,) = [command for command in PAGE.commands() if "emit" in command]
        pages.shell(emit)
        self.assertTrue(pages.wait_for(lambda: shown[-1] != shown[0] and self.page["heard"][heard:]))
        # A moment that cannot be read is followed by a new timeline at once.
        entries, moments, reload = widget.timeline
        widget.timeline, widget.shown = (entries, [b"unreadable"] * len(moments), reload), None
        before = len(shown)
        widget.update()
        self.assertTrue(pages.wait_for(lambda: len(shown) > before))
        GLib.source_remove(widget.timer)

    def test_failures_wait_longer_and_longer(self):
        widget = self.page["Widget"]("app.orvel.widget.none", {}, None)
        GLib.source_remove(widget.timer)
        waits, original = [], GLib.timeout_add
        GLib.timeout_add = lambda wait, _: waits.append(wait) or 0
        try:
            widget.timer = 0
            for _ in range(3):
                widget.update()
        finally:
            GLib.timeout_add = original
        self.assertEqual(waits, [2001, 4001, 8001])

    def test_the_calls_from_a_shell_answer(self):
        for command in PAGE.commands():
            status, output = pages.shell(command)
            self.assertEqual(status, 0, output)
            self.assertTrue("emit" in command or "'title': <'Jetzt Fokus'>" in output, output[-300:])


if __name__ == "__main__":
    unittest.main()
