"""The page about an application of one's own: what it writes is a snapshot, and what it serves is what hosts ask."""

import copy
import json
import shutil
import subprocess
import unittest

from gi.repository import Gio

import pages

PAGE = pages.Page("application.md")
PERFORM = ("gdbus call --session --dest app.orvel.Orvel --object-path /app/orvel/Orvel"
           " --method app.orvel.Intents1.Perform {} \"{}\" '{{}}'")


class ApplicationPageTests(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(pages.DATA, ignore_errors=True)
        cls.heard = []
        listener = Gio.bus_get_sync(Gio.BusType.SESSION)
        listener.signal_subscribe(None, "app.orvel.WidgetCenter1", None, "/app/orvel/WidgetCenter", None, Gio.DBusSignalFlags.NONE,
                                  lambda *signal: cls.heard.append((signal[4], signal[5].unpack())))
        cls.page = PAGE.run()

    def test_what_it_writes_is_shown(self):
        for command in PAGE.commands():
            status, output = pages.shell(command)
            self.assertEqual(status, 0, output)
            self.assertIn("25 min left", output)
        self.assertEqual(pages.SNAPSHOT.stat().st_mode & 0o077, 0)

    def test_all_that_it_says_of_states_is_so(self):
        running = self.page["focus"]
        upcoming = {key: running[key] for key in ("name", "start", "level")} | {"end": running["start"]}
        look, unlock = {"color": "sage", "symbol": "moon"}, {"name": "Chat", "end": running["end"]}
        for is_good, state in [
            (True, {"block": {"_0": running | {"look": look, "unlock": unlock, "level": "ultraHard"}}}),
            (True, {"focusFilter": {"_0": {key: value for key, value in running.items() if key != "end"}}}),
            (True, {"next": {"_0": upcoming}}),
            (True, {"next": {"_0": upcoming | {"look": look}}}),
            (True, {"nothingScheduled": {}}),
            (True, {"noBlocks": {}}),
            (False, {"next": {"_0": {key: value for key, value in upcoming.items() if key != "end"}}}),
            (False, {"block": running}),
            (False, {"noBlocks": {}, "nothingScheduled": {}}),
        ]:
            snapshot = copy.deepcopy(self.page["snapshot"])
            snapshot["phases"][0]["state"] = state
            check = subprocess.run(["orvelctl", "snapshot", "check", "-"], input=json.dumps(snapshot), text=True,
                                   capture_output=True)
            self.assertEqual((check.returncode, check.stderr == ""), (0, True) if is_good else (1, False), f"{state} {check.stderr}")

    def test_hosts_are_told_and_answered(self):
        self.assertTrue(pages.wait_for(lambda: sorted(self.heard) == [("ReloadControls", ([],)), ("ReloadTimelines", ([],))]))
        for status, intent, parameters in [
            (0, "OpenBreathe", "{'minutes': <int64 3>}"),
            (0, "FocusNow", "{'value': <true>}"),
            (1, "FocusNow", "{}"),
            (1, "Sing", "{}"),
        ]:
            answer = pages.shell(PERFORM.format(intent, parameters))
            self.assertEqual(answer[0], status, answer)
            self.assertTrue(status == 0 or "app.orvel.Error.UnknownIntent" in answer[1], answer)
        self.assertEqual(self.page["performed"], [("breathe", None, 3), ("focus", True)])


if __name__ == "__main__":
    unittest.main()
