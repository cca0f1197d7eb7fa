"""What orvelctl answers to calls from a shell: texts, JSON, faults and exit codes."""

import json
import os
import re
import struct
import subprocess
import sys
import tempfile
import unicodedata
import unittest

PROGRAM = sys.argv.pop(1)
NOW = "2026-03-04T09:48:30.250Z"
BERLIN = ["--time-zone", "Europe/Berlin"]


def call(*arguments, stdin=b"", **environment):
    return subprocess.run([PROGRAM, *arguments], input=stdin, capture_output=True, timeout=60,
                          env={**os.environ, **environment})


class OrvelctlTests(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def file(self, content):
        path = os.path.join(self.folder.name, "widgets.json")
        with open(path, "wb") as file:
            file.write(content)
        return path

    def sample(self, state="now"):
        result = call("snapshot", "sample", "--state", state, "--now", NOW, *BERLIN)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout

    def assert_fails(self, result, code, *texts):
        self.assertEqual(result.returncode, code, result)
        self.assertEqual(result.stdout, b"")
        self.assertEqual(result.stderr.count(b"\n"), 1, result.stderr)
        for text in texts:
            self.assertIn(text, result.stderr.decode())

    def test_a_sample_is_printed_byte_for_byte_and_checks_in_silence(self):
        for state in ["now", "next", "focus", "paused", "none", "breathe", "block", "focusFilter", "nothingScheduled",
                      "noBlocks"]:
            sample = self.sample(state)
            path = self.file(sample)
            self.assertEqual(call("snapshot", "print", path).stdout, sample)
            self.assertEqual(call("snapshot", "print", "-", stdin=b"\xef\xbb\xbf" + sample + b"\n").stdout, sample)
            checked = call("snapshot", "check", path)
            self.assertEqual((checked.returncode, checked.stdout, checked.stderr), (0, b"", b""))

    def test_a_bad_snapshot_is_told_by_file_and_place(self):
        path = self.file(self.sample().replace(b'"level":"firm"', b'"level":"Firm"', 1))
        for result in [call("snapshot", "check", path), call("snapshot", "print", path),
                       call("timeline", "--snapshot", path), call("timeline", "--snapshot", path, "--or-sample")]:
            self.assert_fails(result, 1, path, 'blocks[0].level: unknown level "Firm"')
        report = json.loads(call("snapshot", "check", path, "--json").stdout)
        self.assertEqual(report, {"isGood": False, "where": path, "why": 'blocks[0].level: unknown level "Firm"'})
        self.assert_fails(call("snapshot", "check", path + ".missing"), 1, "No such file")
        self.assert_fails(call("snapshot", "check", self.folder.name), 1, "not a regular file")
        self.assert_fails(call("snapshot", "check", "-", stdin=b"{"), 1, "standard input", "malformed JSON")

    def test_a_timeline_in_json_has_the_records_fields(self):
        path = self.file(self.sample("focus"))
        answer = json.loads(call("timeline", "--snapshot", path, "--now", NOW, *BERLIN, "--why", "--json").stdout)
        first, second = answer["entries"][:2]
        self.assertEqual(first["date"], NOW)
        self.assertEqual(first["moment"]["date"], NOW)
        self.assertEqual(first["moment"]["focus"], first["moment"]["state"]["focus"]["_0"])
        self.assertNotIn("unlock", first["moment"]["focus"])
        self.assertEqual(first["moment"]["today"]["start"], "2026-03-03T23:00:00Z")
        self.assertEqual(first["why"], [{"rule": "now"}])
        self.assertEqual(second["date"], "2026-03-04T09:49:00Z")
        self.assertEqual(second["why"], [{"minutesLeft": 37, "name": "Focus", "phase": 0, "rule": "countdown"}])
        self.assertEqual(answer["reload"], answer["entries"][-1]["date"])
        plain = json.loads(call("timeline", "--snapshot", path, "--now", NOW, *BERLIN, "--json").stdout)
        self.assertNotIn("why", plain["entries"][0])
        self.assertEqual([entry["moment"] for entry in plain["entries"]], [entry["moment"] for entry in answer["entries"]])

    def test_a_timeline_for_a_person_has_local_times_and_reasons(self):
        path = self.file(self.sample().replace(b'"name":"Morning"', b'"name":"M\\u001b[31m"'))
        text = call("timeline", "--snapshot", path, "--now", NOW, *BERLIN, "--locale", "en_GB", "--why").stdout.decode()
        lines = text.splitlines()
        self.assertEqual(lines[0], f"Snapshot: {path}")
        self.assertRegex(lines[2], r"^Wed 2026-03-04  10:48:30 CET  Morning · Deep work  Until 12:00 .* left +now$")
        self.assertRegex(lines[3], r"^ {16}10:49:00 CET  Morning · .* +71 min left of M\ufffd\[31m$")
        self.assertIn("midnight", text)
        self.assertRegex(lines[-1], r"^Reload after Fri 2026-03-06 12:00:00 CET$")

    def test_cards_show_what_widgets_and_controls_say(self):
        path = self.file(self.sample("focus"))
        call_ = ["timeline", "--cards", "--snapshot", path, "--now", NOW, *BERLIN]
        english = call(*call_, LC_ALL="", LANG="en_GB.UTF-8", LANGUAGE="").stdout.decode()
        for text in ["│ 38 min left ", "Ends at 11:26 · Social, Chat", "3 breaths   7 min breathed   12 stayed off",
                     "[W]", "│ Breathe now ", "[x] Focus now  38 min left", "( ) Breathe now  3 min · Calm"]:
            self.assertIn(text, english)
        widths = {len(line) for line in english.splitlines() if line[:1] in "╭│╰"}
        self.assertLessEqual(len(widths), 2, english)
        german = call(*call_, LC_ALL="", LANG="de_DE.UTF-8", LANGUAGE="").stdout.decode()
        self.assertIn("Endet um 11:26 · Social, Chat", german)

    def test_contents_in_json_have_the_records_fields(self):
        path = self.file(self.sample("focus"))
        options = ["--snapshot", path, "--at", NOW, *BERLIN, "--locale", "en_GB", "--json"]
        content = json.loads(call("content", *options).stdout)
        self.assertEqual(content["link"], "orvel://today")
        self.assertEqual(content["state"], "focus")
        self.assertEqual(content["numbers"][0], {"label": "breaths", "value": "3"})
        self.assertEqual(content["week"][-1], {"height": 0.5, "isToday": True, "label": "W"})
        breathe = json.loads(call("content", "--widget", "breathe", *options).stdout)
        self.assertEqual(breathe["link"], "orvel://breathe?style=calm&minutes=3")
        self.assertNotIn("kicker", breathe)
        self.assertNotIn("progress", breathe)
        focus = json.loads(call("control", "focus", *options).stdout)
        self.assertEqual(focus, {"barText": "38m", "isOn": True, "kind": "focus", "spokenState": "on, 38 minutes left",
                                 "symbol": "timer", "title": "Focus now", "value": "38 min left"})
        self.assertEqual(json.loads(call("control", "breathe", *options).stdout)["value"], "3 min · Calm")
        german = json.loads(call("content", *options[:-2], "de-CH", "--json").stdout)
        self.assertEqual(german["kicker"], "Fokus")

    def test_without_a_snapshot_it_says_so_or_shows_a_sample(self):
        empty = os.path.join(self.folder.name, "data")
        self.assert_fails(call("timeline", XDG_DATA_HOME=empty), 1, "widgets.json", "No such file")
        result = call("timeline", "--or-sample", "--now", NOW, XDG_DATA_HOME=empty)
        self.assertEqual(result.returncode, 0)
        self.assertIn("Group Containers/K4Q7M2XR9T.app.orvel.mac/widgets.json", result.stdout.decode().splitlines()[0])
        self.assertFalse(os.path.exists(empty))

    def test_the_design_systems_values_reach_other_programs(self):
        tokens = json.loads(call("tokens").stdout)
        self.assertEqual(call("tokens", "--format", "css", "--json").stdout, call("tokens").stdout)
        self.assertIn(b"@media (prefers-contrast: more)", call("tokens", "--format", "css").stdout)
        self.assertEqual(len([name for name in tokens["color"] if not name.startswith("$")]), 37)
        actual = json.loads(call("metrics", "--json").stdout)
        bigger = json.loads(call("metrics", "--json", "--bigger", "2").stdout)
        self.assertEqual(len(actual["roles"]), 25)
        for before, after in zip(actual["roles"], bigger["roles"]):
            self.assertEqual(after["size"], before["size"] + 4)
        self.assertEqual(len(call("metrics").stdout.splitlines()), 26)

    def test_links_go_both_ways(self):
        self.assertEqual(call("link", "make", "breathe", "--style", "a b", "--minutes", "-3").stdout,
                         b"orvel://breathe?style=a%20b&minutes=-3\n")
        self.assertEqual(call("link", "make", "today", "--scheme", "x-y").stdout, b"x-y://today\n")
        parsed = call("link", "parse", "--json", "any://breathe?style=&minutes=+5").stdout
        self.assertEqual(json.loads(parsed), {"case": "breathe", "minutes": 5, "style": ""})
        self.assertEqual(call("link", "parse", "nonsense").stdout, b"case     main\n")

    def picture(self, *arguments):
        path = os.path.join(self.folder.name, "picture.png")
        result = call(*arguments, "-o", path)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"", b""))
        with open(path, "rb") as file:
            picture = file.read()
        self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")
        return picture, struct.unpack(">II", picture[16:24])

    def test_the_orb_and_the_glyph_become_pictures(self):
        for arguments, side in [
            (["glyph", "idle", "--scale", "1"], 22),
            (["glyph", "fix"], 44),
            (["glyph", "active", "1", "--scale", "3"], 66),
            (["orb", "--size", "56", "--scale", "1"], 144),
            (["orb", "--size", "56", "--motion", "exhale", "--progress", "1"], 288),
        ]:
            self.assertEqual(self.picture(*arguments)[1], (side, side), arguments)
        half, _ = self.picture("glyph", "focus", "0.5")
        self.assertEqual(call("glyph", "focus", "0.5", "-o", "-").stdout, half)
        self.assertNotEqual(self.picture("glyph", "focus", "0.6")[0], half)
        orb = ["orb", "--motion", "inhale", "--size", "56"]
        self.assertEqual(len({self.picture(*orb, *more)[0] for more in [
            [], ["--progress", "0.5"], ["--progress", "1"], ["--appearance", "dawn"]]}), 4)
        drawing = os.path.join(self.folder.name, "orb.svg")
        self.assertEqual(call("orb", "-o", drawing).returncode, 0)
        with open(drawing, encoding="utf-8") as file:
            self.assertIn("<radialGradient", file.read())
        self.assert_fails(call("glyph", "idle", "-o", os.path.join(self.folder.name, "none", "a.png")), 1, "No such file")

    def test_widgets_become_pictures(self):
        snapshot = ["--snapshot", self.file(self.sample("focus")), "--at", NOW, *BERLIN]
        for arguments, size in [
            (["--size", "small", "--scale", "1"], (170, 170)),
            (["--size", "medium"], (728, 340)),
            (["--size", "large", "--look", "clear"], (728, 764)),
            (["--widget", "breathe"], (340, 340)),
            (["--size", "small", "--scale", "1", "--bigger", "2"], (223, 223)),
        ]:
            self.assertEqual(self.picture("draw", *snapshot, *arguments)[1], size, arguments)
        self.assertEqual(len({self.picture("draw", *snapshot, "--size", "large", *more)[0] for more in [
            [], ["--look", "dawn"], ["--contrast", "more"], ["--outline"], ["--locale", "de"]]}), 5)
        svg = call("draw", *snapshot, "-o", os.path.join(self.folder.name, "widget.svg"))
        self.assertEqual(svg.returncode, 0, svg)

    def test_a_day_has_each_picture_once(self):
        def sheet(state):
            path = os.path.join(self.folder.name, "day.png")
            result = call("day", "--snapshot", self.file(self.sample(state)), "--at", NOW, *BERLIN, "--size", "small",
                          "--out", path)
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"", b""))
            with open(path, "rb") as file:
                return struct.unpack(">II", file.read(24)[16:])

        one = (2 * (170 + 2 * 24), 2 * (170 + 4 + 32 + 2 * 24))
        self.assertEqual(sheet("none"), one)
        self.assertEqual(sheet("next"), one)
        across, down = sheet("focus")  # at least its 38 minutes, one each
        gap, cell = 2 * 24, (2 * (170 + 24), 2 * (170 + 4 + 32 + 24))
        self.assertGreaterEqual((across - gap) // cell[0] * ((down - gap) // cell[1]), 38)

    def test_a_gallery_shows_every_picture_that_it_makes(self):
        folder = os.path.join(self.folder.name, "new", "gallery")
        parts = ["--only", "controls", "--only", "surfaces"]
        result = call("gallery", "--out", folder, *parts, *BERLIN, "--locale", "en-GB")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"", b""))
        with open(os.path.join(folder, "index.html"), encoding="utf-8") as file:
            shown = re.findall(r'src="([^"]+)"', file.read())
        self.assertEqual(len(shown), len(set(shown)))
        self.assertEqual(sorted([*shown, "index.html"]), sorted(os.listdir(folder)))
        self.assert_fails(call("gallery", "--out", "/proc/none", *parts), 1, "/proc/none")

    def test_a_persons_widgets_are_drawn_in_both_appearances(self):
        folder = os.path.join(self.folder.name, "mine")
        moment = ["--now", "2026-03-04T09:48:30Z", *BERLIN]
        self.assertEqual(call("widgets", "--or-sample", "--out", folder, *moment).returncode, 0)
        self.assertEqual(len([name for name in os.listdir(folder) if name.endswith(".png")]), 8)
        self.assert_fails(call("widgets", "--out", folder), 1, "widgets.json")

    def test_the_catalogue_is_listed_by_namespace_and_member(self):
        lines = call("copy", "list").stdout.decode().splitlines()
        self.assertIn("  untilLeft               Until %@ · %@ left", lines)
        self.assertLess(lines.index("Blocks"), lines.index("Lists"))
        self.assertLess(lines.index("Lists"), lines.index("Widgets"))
        german = call("copy", "list", "--namespace", "Widgets", "--language", "de-AT").stdout.decode()
        self.assertNotIn("Blocks\n", german)
        self.assertRegex(german, r"\n  pausedDetail +Open Orvel to block again\.\n +Öffne .*\n +Your %lld Blocks are saved\.\n"
                                 r" +Dein Block ist .*\n +Deine %lld Blöcke ")
        texts = json.loads(call("copy", "list", "--namespace", "Widgets", "--language", "de_AT", "--json").stdout)
        self.assertEqual([text["member"] for text in texts[:3]], ["statusName", "statusDescription", "breatheName"])
        self.assertEqual([text for text in texts if text["key"] == "Your %lld Blocks are saved."], [{
            "namespace": "Widgets", "member": "pausedDetail", "key": "Your %lld Blocks are saved.", "isCounted": True,
            "isTranslated": True, "text": "Deine %lld Blöcke sind gespeichert.",
            "forms": ["Dein Block ist gespeichert.", "Deine %lld Blöcke sind gespeichert."]}])
        without = call("copy", "list", "--language", "tlh")
        self.assert_fails(without, 1, "tlh", "de")
        self.assertNotIn(b"en-XA", without.stderr)
        self.assert_fails(call("copy", "check", "--language", "en"), 1, "no table for en")

    def test_every_text_has_its_disguise(self):
        self.assertEqual(call("copy", "check", "--language", "en_XA").stdout, b"")
        texts = json.loads(call("copy", "list", "--language", "en-XA", "--json").stdout)
        for text in texts:
            for form in text.get("forms", [text["text"]]):
                bare = unicodedata.normalize("NFD", form)
                bare = "".join(letter for letter in bare if not unicodedata.combining(letter))
                bare = re.sub(r"[ ~]*([.…?!:·]*)\](\s*)$", r"\1\2", bare.replace("[", "", 1))
                self.assertEqual(re.sub(r"\s*·$", "·", bare), re.sub(r"\s*·$", "·", text["key"]))
                self.assertIn("]", form)
        longest = max(texts, key=lambda text: len(text["key"]))
        self.assertAlmostEqual(len(longest["text"]) / len(longest["key"]), 1.4, 1)
        said = call("control", "focus", "--snapshot", self.file(self.sample()), "--locale", "en_XA").stdout.decode()
        self.assertIn("[Föçûš ñöŵ", said)
        self.assertIn("Focus now", call("control", "focus", "--or-sample", "--locale", "en_GB").stdout.decode())

    def test_a_translators_table_is_checked(self):
        path = os.path.join(self.folder.name, "nl")
        with open(path + ".po", "w", encoding="utf-8") as file:
            file.write('msgid ""\nmsgstr "Language: nl\\nContent-Type: text/plain; charset=UTF-8\\n"\n\n'
                       'msgid "Focus now"\nmsgstr "Nu focus\x1b"\n\nmsgid "until %@"\nmsgstr "tot %lld"\n')
        subprocess.run(["msgfmt", "-o", path + ".mo", path + ".po"], check=True, timeout=60)
        result = call("copy", "check", "--table", path + ".mo")
        self.assertEqual((result.returncode, result.stderr), (1, b""))
        lines = result.stdout.decode().splitlines()
        self.assertIn("nl: Widgets.until: “until %@”: “tot %lld” has %lld for value 1, which is %@", lines)
        self.assertIn("nl: Widgets.ends: “ends %@”: is missing", lines)
        self.assertFalse([line for line in lines if "“Focus now”" in line])
        answer = json.loads(call("copy", "check", "--table", path + ".mo", "--json").stdout)
        self.assertEqual(len(answer), len(lines))
        self.assertIn({"language": "nl", "members": ["Widgets.until"], "key": "until %@", "form": "tot %lld",
                       "what": "has %lld for value 1, which is %@"}, answer)
        self.assert_fails(call("copy", "check", "--table", path + ".po"), 1, "nl.po", "msgfmt")
        self.assert_fails(call("copy", "check", "--table", path), 1, "No such file")
        self.assert_fails(call("copy", "check", "--table", self.folder.name), 1, "not a regular file")

    def test_a_wrong_call_is_one_line_and_code_2(self):
        for arguments, text in [
            ([], "a command is missing"),
            (["nonsense"], "nonsense"),
            (["link"], "a command is missing"),
            (["link", "nonsense"], "nonsense"),
            (["timeline", "--nonsense"], "--nonsense"),
            (["timeline", "--now", "yesterday"], "yesterday"),
            (["timeline", "--now", "2026-02-30T00:00:00Z"], "2026-02-30"),
            (["timeline", "--time-zone", "Mars/Olympus"], "Mars/Olympus"),
            (["timeline", "--time-zone", "../../etc/passwd"], "passwd"),
            (["timeline", "--time-zone", "x\ny"], "x\ufffdy"),
            (["timeline", "--locale", "no_such locale"], "no_such locale"),
            (["content", "--widget", "clock"], "clock"),
            (["control", "volume"], "volume"),
            (["tokens", "--format", "yaml"], "yaml"),
            (["metrics", "--bigger", "5"], "5"),
            (["metrics", "--scale", "0"], "0"),
            (["snapshot", "sample", "--state", "bored"], "bored"),
            (["snapshot", "check"], "file"),
            (["glyph", "asleep", "-o", "a.png"], "asleep"),
            (["glyph", "focus", "-o", "a.png"], "VALUE"),
            (["glyph", "idle", "0.5", "-o", "a.png"], "VALUE"),
            (["glyph", "focus", "1.3", "-o", "a.png"], "1.3"),
            (["glyph", "fix", "--scale", "0", "-o", "a.png"], "--scale"),
            (["glyph", "fix", "-o", "a.svg"], "a.svg"),
            (["glyph", "fix"], "output"),
            (["orb", "--motion", "sideways", "-o", "a.png"], "sideways"),
            (["orb", "--motion", "inhale", "--progress", "nan", "-o", "a.png"], "nan"),
            (["orb", "--progress", "0.5", "-o", "a.png"], "--motion"),
            (["orb", "--size", "281", "-o", "a.png"], "281"),
            (["orb", "-o", "a.jpg"], "a.jpg"),
            (["draw", "--size", "huge", "-o", "a.png"], "huge"),
            (["draw", "--look", "noon", "-o", "a.png"], "noon"),
            (["draw", "--widget", "breathe", "--size", "large", "-o", "a.png"], "breathe"),
            (["draw", "--scale", "5", "-o", "a.png"], "5"),
            (["draw", "--scale", "nan", "-o", "a.png"], "nan"),
            (["draw", "--contrast", "less", "-o", "a.png"], "less"),
            (["draw", "--bigger", "5", "-o", "a.png"], "5"),
            (["draw"], "output"),
            (["day", "--out", "a.gif"], "a.gif"),
            (["gallery"], "--out"),
            (["gallery", "--out", "x", "--only", "kitchen"], "kitchen"),
            (["copy"], "a command is missing"),
            (["copy", "list", "--namespace", "Gadgets"], "Gadgets"),
            (["copy", "list", "--language", "../de"], "../de"),
            (["copy", "check", "--table"], "--table"),
            (["link", "make", "moon"], "moon"),
            (["link", "make", "breathe", "--minutes", "few"], "few"),
            (["link", "make", "focus", "--minutes", "3"], "breathe only"),
        ]:
            self.assert_fails(call(*arguments), 2, text)
        self.assertEqual(call("--help").returncode, 0)

    def test_output_that_nobody_takes_is_a_fault(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "snapshot", "sample"], stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"standard output", result.stderr)


if __name__ == "__main__":
    unittest.main()
