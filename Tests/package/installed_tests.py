"""What `cmake --install` puts where, and that it works from there, away from the build."""

import configparser
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SOURCE, BUILD, PRODUCTS = pathlib.Path(sys.argv.pop(1)), sys.argv.pop(1), pathlib.Path(sys.argv.pop(1))
PROGRAMS = sys.argv.pop(1).split(",")
WITH_OPTIONS = [program for program in PROGRAMS if program != "orvel-widgets"] # that one takes none
HAS_HOST = "orvel-widget-host" in PROGRAMS
HOST, EXTENSION = "app.orvel.WidgetHost", "app.orvel.Orvel.WidgetExtension"


def install(prefix, *options, **environment):
    subprocess.run(["cmake", "--install", BUILD, "--prefix", str(prefix), *options], check=True, capture_output=True,
                   env={**os.environ, **environment})


def entry(path):
    parser = configparser.RawConfigParser(strict=True, interpolation=None)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


def manual(program):
    page = subprocess.run(["man", "-l", str(SOURCE / "docs/man" / f"{program}.1")], check=True, capture_output=True,
                          env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "200"}).stdout.decode()
    return re.sub(".\b", "", page)


class InstalledTests(unittest.TestCase):
    """Below a prefix of its own, with nothing known of it while it was built."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name) / "pre fix"
        install(cls.prefix)

    def run_program(self, program, *arguments, **environment):
        return subprocess.run([self.prefix / "bin" / program, *arguments], capture_output=True, timeout=60, text=True,
                              env={**os.environ, **environment})

    def test_the_programs_are_links_into_one_bundle(self):
        self.assertEqual(sorted(os.listdir(self.prefix / "bin")), sorted(PROGRAMS))
        for program in PROGRAMS:
            self.assertEqual((self.prefix / "bin" / program).resolve(),
                             self.prefix / "lib/orvel/OrvelWidgets.appex" / program)
            self.assertTrue((self.prefix / "share/man/man1" / f"{program}.1.gz").is_file(), program)

    def test_words_and_pictures_come_from_the_installed_bundle(self):
        resources = self.prefix / "lib/orvel/OrvelWidgets.appex/Resources"
        drawn = self.run_program("orvelctl", "draw", "--or-sample", "-o", str(self.prefix / "widget.svg"))
        self.assertEqual((drawn.returncode, drawn.stderr), (0, ""))
        says = ["content", "--or-sample", "--locale", "de", "--json"]
        self.assertIn("Atempausen", self.run_program("orvelctl", *says).stdout)
        os.rename(resources / "OrvelKit_OrvelCopy.bundle", resources / "away")
        try:
            missing = self.run_program("orvelctl", *says)
        finally:
            os.rename(resources / "away", resources / "OrvelKit_OrvelCopy.bundle")
        self.assertIn("unable to find bundle named OrvelKit_OrvelCopy", missing.stderr)

    def test_the_bus_starts_the_installed_extension(self):
        with tempfile.TemporaryDirectory() as home:
            environment = {"HOME": home, "XDG_RUNTIME_DIR": home, "XDG_DATA_HOME": home,
                           "XDG_DATA_DIRS": str(self.prefix / "share")}
            asked = subprocess.run(["dbus-run-session", "--", self.prefix / "bin/orvelctl", "ask", "--out", home],
                                   capture_output=True, timeout=120, env={**os.environ, **environment})
            self.assertEqual(asked.returncode, 0, asked.stderr)
            self.assertTrue([name for name in os.listdir(home) if name.endswith(".png")])

    def test_the_manual_has_every_command_and_option_and_no_other(self):
        for program in WITH_OPTIONS:
            pending, commands, options = [[]], set(), set()
            while pending:
                command = pending.pop()
                told = self.run_program(program, *command, "--help").stdout
                options |= set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", told))
                below = re.search(r"^Subcommands:\n((?: .*\n?)+)", told, re.MULTILINE)
                names = re.findall(r"^  (\w+)", below[1], re.MULTILINE) if below else []
                pending += [[*command, name] for name in names]
                commands |= {" ".join([*command, name]) for name in names}
            page = manual(program)
            shown = page.split("\nEXAMPLES")[0]
            self.assertEqual(set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", shown)), options, program)
            for command in commands - {"link", "snapshot", "copy"}: # these only hold others
                self.assertRegex(shown, rf"(?m)^ +{command}( |$)")

    def test_versions_agree(self):
        version = re.search(r"project\(Orvel VERSION ([0-9.]+)", (SOURCE / "CMakeLists.txt").read_text())[1]
        for program in WITH_OPTIONS:
            self.assertEqual(self.run_program(program, "--version").stdout.split()[-1], version, program)


class DesktopTests(unittest.TestCase):
    """What the desktop and its software catalogues read."""

    def test_the_service_manager_starts_the_extension_below_its_own_folders_only(self):
        for prefix, is_managed in [("/usr", True), ("/usr/local", True), ("/opt/orvel", False)]:
            with tempfile.TemporaryDirectory() as stage:
                install(prefix, "--component", "services", DESTDIR=stage)
                program = f"{prefix}/lib/orvel/OrvelWidgets.appex/orvel-widgets"
                service = entry(f"{stage}{prefix}/share/dbus-1/services/{EXTENSION}.service")["D-BUS Service"]
                self.assertEqual((service["Name"], service["Exec"]), (EXTENSION, f'"{program}"'))
                self.assertEqual(service.get("SystemdService"), "orvel-widgets.service" if is_managed else None)
                unit = pathlib.Path(f"{stage}{prefix}/lib/systemd/user/orvel-widgets.service").read_text()
                self.assertIn(f'\nExecStart="{program}"\n', unit)
                autostart = pathlib.Path(f"{stage}/etc/xdg/autostart/{HOST}.desktop")
                self.assertEqual(autostart.exists(), HAS_HOST and prefix == "/usr")

    def test_widgets_start_at_login_only_when_asked_to(self):
        autostart = entry(SOURCE / f"Resources/desktop/autostart/{HOST}.desktop")["Desktop Entry"]
        self.assertEqual(autostart["Hidden"], "true")
        menu = entry(SOURCE / f"Resources/desktop/{HOST}.desktop")["Desktop Entry"]
        names = lambda section: {key: value for key, value in section.items() if key.startswith("Name")}
        self.assertEqual(names(autostart), names(menu))

    def test_the_menu_says_what_widgets_and_windows_say(self):
        menu = entry(SOURCE / f"Resources/desktop/{HOST}.desktop")
        about, action = menu["Desktop Entry"], menu["Desktop Action add-widgets"]
        tables = {"OrvelCopy": [(about, "Comment", "What’s keeping things quiet now, today’s numbers and a breath.")],
                  "WidgetHost/Words": [(about, "Name", "Orvel Widgets"), (action, "Name", "Add Widgets…")]}
        for folder, texts in tables.items():
            for table in (SOURCE / folder / "Tables").glob("*.po"):
                language, content = table.stem, table.read_text(encoding="utf-8")
                for section, key, text in texts:
                    translated = re.search(rf'^msgid "{re.escape(text)}"\nmsgstr "(.*)"$', content, re.MULTILINE)[1]
                    self.assertEqual(section[f"{key}[{language}]"], translated.rstrip(".。"), (language, key))

    def test_the_metainfo_speaks_of_what_is_there(self):
        metainfo = ElementTree.parse(PRODUCTS / f"share/metainfo/{HOST}.metainfo.xml").getroot()
        self.assertEqual(metainfo.findtext("launchable"), f"{HOST}.desktop")
        for image in metainfo.iter("image"):
            picture = SOURCE / "docs/pictures" / image.text.rsplit("/", 1)[1]
            size = struct.unpack(">8xxxxx4xII", picture.read_bytes()[:24])
            self.assertEqual((int(image.get("width")), int(image.get("height"))), size, picture)

    def test_icons_are_as_large_as_their_folders_say(self):
        theme = PRODUCTS / "share/icons/hicolor"
        for side in [16, 22, 24, 32, 48, 64, 128, 256, 512]:
            header = (theme / f"{side}x{side}/apps/{HOST}.png").read_bytes()[:24]
            self.assertEqual(struct.unpack(">8xxxxx4xII", header), (side, side))
        self.assertTrue(ElementTree.parse(theme / f"scalable/apps/{HOST}.svg").getroot().tag.endswith("svg"))


if __name__ == "__main__":
    unittest.main()
