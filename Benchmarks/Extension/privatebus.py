"""A bus of its own that starts the extension of a build, in a home of its own."""

import os
import pathlib
import subprocess

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""
EXTENSION = "app.orvel.Orvel.WidgetExtension"
CONTAINER = pathlib.Path("Group Containers", "K4Q7M2XR9T.app.orvel.mac")


class PrivateBus:
    """Lies in a folder that is the caller's to remove. `programs` are started for their names on the bus."""

    def __init__(self, folder, programs):
        self.folder = pathlib.Path(folder)
        services = self.folder / "services"
        services.mkdir(parents=True)
        (self.folder / "bus.conf").write_text(CONFIGURATION.format(services=services))
        for name, program in programs.items():
            (services / f"{name}.service").write_text(f"[D-BUS Service]\nName={name}\nExec={program}\n")
        self.snapshot = self.folder / "data" / CONTAINER / "widgets.json"
        self.snapshot.parent.mkdir(parents=True)
        (self.folder / "runtime").mkdir(mode=0o700)

    def environment(self):
        """What is set outside the bus, so that all that it starts has it too."""
        home = {"HOME": "", "XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                "XDG_RUNTIME_DIR": "runtime"}
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("LC_", "DBUS_"))}
        kept.pop("LANGUAGE", None)
        return kept | {"LANG": "C.UTF-8", "TZ": "UTC"} | {name: str(self.folder / place) for name, place in home.items()}

    def run(self, *command, **keywords):
        """Runs a command on the bus, which ends with it."""
        return subprocess.run(["dbus-run-session", f"--config-file={self.folder / 'bus.conf'}", "--", *map(str, command)],
                              env=self.environment(), **keywords)
