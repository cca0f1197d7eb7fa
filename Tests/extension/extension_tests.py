"""The extension as any host meets it: started by the bus, asked, misused, killed. Runs on a bus and in a home of its own."""

import itertools
import math
import mmap
import os
import signal
import subprocess
import sys
import time
import unittest

from gi.repository import Gio, GLib

ORVELCTL = sys.argv.pop(1)
NAME, PATH = "app.orvel.Orvel.WidgetExtension", "/app/orvel/Orvel/WidgetExtension"
WIDGET, INTENTS = "app.orvel.WidgetExtension1", "app.orvel.Intents1"
STATUS, BREATHE = "app.orvel.widget.status", "app.orvel.widget.breathe"
FOCUS_CONTROL, BREATHE_CONTROL = "app.orvel.control.focus", "app.orvel.control.breathe"
HOME, DATA = os.environ["HOME"], os.environ["XDG_DATA_HOME"]
CONTAINER = os.path.join(DATA, "Group Containers", "K4Q7M2XR9T.app.orvel.mac")
bus = Gio.bus_get_sync(Gio.BusType.SESSION)


def options(**values):
    return {name: value if isinstance(value, GLib.Variant) else GLib.Variant(*value) for name, value in values.items()}


def ask(method, signature, *values, interface=WIDGET):
    arguments = GLib.Variant(signature, values)
    reply, files = bus.call_with_unix_fd_list_sync(NAME, PATH, interface, method, arguments, None, 0, 30000, None)
    return reply.unpack(), files


def failure(*arguments, **keywords):
    """The name of the error that a call ends with."""
    try:
        ask(*arguments, **keywords)
    except GLib.Error as error:
        return Gio.DBusError.get_remote_error(error)
    return None


def timeline(kind=STATUS, **environment):
    return ask("Timeline", "(sa{sv})", kind, options(**environment))[0]


def render(date, moment, kind=STATUS, **environment):
    return ask("Render", "(sxaya{sv})", kind, date, moment, options(**environment))


def pixels(date, moment, **environment):
    (picture,), files = render(date, moment, **environment)
    descriptor = files.get(picture["layers"][0][1])
    try:
        size = picture["stride"] * picture["height"]
        assert os.fstat(descriptor).st_size == size
        with mmap.mmap(descriptor, size, mmap.MAP_PRIVATE, mmap.PROT_READ) as shared:
            return shared[:]
    finally:
        os.close(descriptor)


def process():
    arguments = GLib.Variant("(s)", (NAME,))
    return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "GetConnectionUnixProcessID", arguments, None, 0, 5000).unpack()[0]


def write_snapshot(state):
    os.makedirs(CONTAINER, exist_ok=True)
    with open(os.path.join(CONTAINER, "widgets.json"), "wb") as file:
        file.write(subprocess.run([ORVELCTL, "snapshot", "sample", "--state", state], check=True, capture_output=True).stdout)


def wait_for(condition):
    for _ in range(1000):
        if condition():
            return True
        time.sleep(0.01)
    return False


class ExtensionTests(unittest.TestCase):
    def setUp(self):
        write_snapshot("now")

    def test_it_offers_its_members_in_order(self):
        members = ask("Members", "(a{sv})", {})[0][0]
        self.assertEqual([(member["kind"], member["role"]) for member in members], [
            (STATUS, "widget"), (BREATHE, "widget"), (BREATHE_CONTROL, "button"), (FOCUS_CONTROL, "toggle")])
        self.assertEqual(members[0]["families"], ["systemSmall", "systemMedium", "systemLarge"])
        self.assertEqual(members[1]["families"], ["systemSmall"])

    def test_a_moment_is_drawn_alike_whatever_happened_since(self):
        entries, moments, reload = timeline()
        self.assertGreater(len(entries), 10)
        self.assertEqual([date for date, _ in entries], sorted({date for date, _ in entries}))
        self.assertGreater(reload, entries[0][0])
        date, moment = entries[0][0], moments[entries[0][1]]
        before = pixels(date, moment, family=("s", "systemLarge"), scale=("d", 2))
        write_snapshot("focus")
        os.kill(process(), signal.SIGKILL)
        self.assertTrue(wait_for(lambda: bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner",
                                                       GLib.Variant("(s)", (NAME,)), None, 0, 5000).unpack() == (False,)))
        self.assertEqual(pixels(date, moment, family=("s", "systemLarge"), scale=("d", 2)), before)
        self.assertNotEqual(timeline()[1][0], moment)

    def test_pictures_say_and_do_what_they_show(self):
        (date, moment), _ = ask("Snapshot", "(sa{sv})", STATUS, {})
        for family, size, actions in [("systemSmall", (340, 340), 0), ("systemMedium", (728, 340), 0),
                                      ("systemLarge", (728, 764), 1), ("systemExtraLarge", (728, 764), 1),
                                      ("accessoryCircular", (340, 340), 0)]:
            (picture,), _ = render(date, moment, family=("s", family), scale=("d", 2), format=("s", "png"))
            self.assertEqual((picture["width"], picture["height"]), size, family)
            self.assertEqual([action[2] for action in picture["actions"]], ["OpenBreathe"] * actions)
            self.assertTrue(bytes(picture["layers"][0][1]).startswith(b"\x89PNG"))
            self.assertTrue(picture["elements"])
            self.assertEqual(picture["link"], "orvel://today")
        (tinted,), _ = render(date, moment, renderingMode=("s", "vibrant"), format=("s", "png"))
        self.assertEqual([name for name, _ in tinted["layers"]], ["default", "accent"])

    def test_a_control_follows_the_snapshot(self):
        value = ask("ControlValue", "(sa{sv})", FOCUS_CONTROL, {})[0][0]
        self.assertEqual((value["title"], value["isOn"]), ("Focus now", False))
        write_snapshot("focus")
        value = ask("ControlValue", "(sa{sv})", FOCUS_CONTROL, options(timeZone=("s", "Europe/Berlin")))[0][0]
        self.assertTrue(value["isOn"])
        self.assertGreater(value["changes"], time.time() * 1e6)

    def test_hostile_calls_are_errors_and_nothing_worse(self):
        entries, moments, _ = timeline()
        date, moment = entries[0][0], moments[0]
        first = process()
        error = "app.orvel.Error."
        for name, arguments in [
            ("UnknownKind", ("Timeline", "(sa{sv})", "app.orvel.widget.none", {})),
            ("UnknownKind", ("ControlValue", "(sa{sv})", STATUS, {})),
            ("UnknownKind", ("Timeline", "(sa{sv})", "x" * 1_000_000, {})),
            ("BadArgument", ("Members", "(a{sv})", options(locale=("s", "no such locale")))),
            ("BadArgument", ("Members", "(a{sv})", options(timeZone=("s", "../../etc/passwd")))),
            ("BadArgument", ("Members", "(a{sv})", options(isPreview=("s", "yes")))),
            ("BadArgument", ("Members", "(a{sv})", options(colorScheme=("s", "mauve")))),
            ("BadArgument", ("Members", "(a{sv})", options(textScale=("d", 3.01)))),
            ("BadEntry", ("Render", "(sxaya{sv})", STATUS, date, b"", {})),
            ("BadEntry", ("Render", "(sxaya{sv})", STATUS, date, bytes(1_000_000), {})),
            ("BadEntry", ("Render", "(sxaya{sv})", STATUS, date, bytes([moment[0] + 1, *moment[1:]]), {})),
        ]:
            self.assertEqual(failure(*arguments), error + name, str(arguments)[:200])
        for scale in [0, -1, 0.99, 4.01, 1e300, math.inf, -math.inf, math.nan]:
            self.assertEqual(failure("Render", "(sxaya{sv})", STATUS, date, moment, options(scale=("d", scale))),
                             error + "BadArgument", scale)
        for place in range(0, len(moment), 7):
            damaged = bytearray(moment)
            damaged[place] ^= 1 << place % 8
            self.assertEqual(failure("Render", "(sxaya{sv})", STATUS, date, bytes(damaged), {}), error + "BadEntry", place)
        self.assertEqual(failure("Perform", "(sa{sv}a{sv})", "Sing", {}, {}, interface=INTENTS), error + "UnknownIntent")
        self.assertIsNotNone(failure("Timeline", "(i)", 7))
        self.assertIsNone(failure("Members", "(a{sv})", options(unknown=("as", ["x"] * 10))))
        self.assertIsNone(failure("Members", "(a{sv})", options(family=("s", "x" * 1_000_000))))
        self.assertEqual(process(), first)

    def test_requests_in_three_languages_are_never_mixed(self):
        loop, answers = GLib.MainLoop(), []
        titles = {"en": "Breathe now", "de": "Jetzt atmen", "fr": "Respirer maintenant"}
        count = 60

        def done(_, result, language):
            answers.append((language, bus.call_finish(result).unpack()[0]["title"]))
            if len(answers) == count:
                loop.quit()

        for language in itertools.islice(itertools.cycle(titles), count):
            bus.call(NAME, PATH, WIDGET, "ControlValue",
                     GLib.Variant("(sa{sv})", (BREATHE_CONTROL, options(language=("s", language)))),
                     None, 0, 30000, None, done, language)
        loop.run()
        self.assertEqual([answer for answer in answers if titles[answer[0]] != answer[1]], [])

    def test_links_reach_the_application_that_opens_them(self):
        log = os.path.join(HOME, "opened")
        os.makedirs(os.path.join(DATA, "applications"), exist_ok=True)
        os.makedirs(os.environ["XDG_CONFIG_HOME"], exist_ok=True)
        with open(os.path.join(DATA, "applications", "throw-away.desktop"), "w", encoding="utf-8") as file:
            file.write("[Desktop Entry]\nType=Application\nName=Throw-away\n"
                       f"Exec=/bin/sh -c 'echo \"$0\" >> \"{log}\"; sleep 1; echo late >> \"{log}\"' %u\n")
        with open(os.path.join(os.environ["XDG_CONFIG_HOME"], "mimeapps.list"), "w", encoding="utf-8") as file:
            file.write("[Default Applications]\nx-scheme-handler/orvel=throw-away.desktop\n")
        for intent, parameters, url in [
            ("FocusNow", options(value=("b", True)), "orvel://focus"),
            ("FocusNow", options(value=("b", False)), "orvel://today"),
            ("OpenBreathe", {}, "orvel://breathe"),
            ("OpenBreathe", options(style=("s", "box & calm"), minutes=("x", 3)), "orvel://breathe?style=box%20%26%20calm&minutes=3"),
        ]:
            if os.path.exists(log):
                os.remove(log)
            ask("Perform", "(sa{sv}a{sv})", intent, parameters, {}, interface=INTENTS)
            self.assertTrue(wait_for(lambda: os.path.exists(log) and os.path.getsize(log) > 0), url)
            with open(log, encoding="utf-8") as file:
                self.assertEqual(file.readline(), url + "\n")
        os.kill(process(), signal.SIGKILL)

        def is_late_written():
            with open(log, encoding="utf-8") as file:
                return "late" in file.read()

        self.assertTrue(wait_for(is_late_written), "the application ended with the extension")


if __name__ == "__main__":
    unittest.main()
