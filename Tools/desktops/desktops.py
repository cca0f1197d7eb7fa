"""Desktops of their own for tests and benchmarks: a private bus that starts the extension of a build, a home, and on
demand an X display with a window manager or a headless Wayland compositor. Whatever was started ends with the desktop.
"""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

CONTAINER = pathlib.Path("Group Containers", "K4Q7M2XR9T.app.orvel.mac")
NOBODY = 65534  # the compositor refuses root
BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""
SWAY = """
output HEADLESS-1 resolution {width}x{height} scale {scale} bg {background}
xwayland disable
default_border none
seat * hide_cursor 1
"""
ACCESSIBILITY = """[D-BUS Service]
Name=org.a11y.Bus
Exec=/usr/libexec/at-spi-bus-launcher
"""
OPENBOX = """<?xml version="1.0"?><openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><followMouse>no</followMouse></focus><desktops><number>2</number></desktops></openbox_config>
"""


def wait_for(condition, seconds=10):
    """What the condition gives as soon as that is true; None when it never was."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    return None


class Desktop(contextlib.AbstractContextManager):
    """A home and a bus. `programs` is the folder OrvelWidgets.appex of a build; `environment` is added to everything."""

    def __init__(self, programs, environment=None, as_nobody=False):
        self.programs = pathlib.Path(programs)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orvel-desktop-"))
        self.as_nobody = as_nobody and os.getuid() == 0
        self.processes = []
        places = {"HOME": "", "XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                  "XDG_STATE_HOME": "state", "XDG_RUNTIME_DIR": "runtime"}
        for place in places.values():
            (self.folder / place).mkdir(mode=0o700, exist_ok=True)
        kept = {"PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}
        self.environment = {name: value for name, value in os.environ.items() if name in kept} | {
            "LANG": "C.UTF-8", "TZ": "UTC", "GTK_THEME": "Adwaita", "GSETTINGS_BACKEND": "memory", "NO_AT_BRIDGE": "1",
        } | {name: str(self.folder / place) for name, place in places.items()} | (environment or {})
        self.snapshot = self.folder / "data" / CONTAINER / "widgets.json"
        self.snapshot.parent.mkdir(parents=True)
        self.start_bus()

    def start_bus(self):
        services = self.folder / "services"
        services.mkdir()
        name = "app.orvel.Orvel.WidgetExtension"
        (services / f"{name}.service").write_text(f"[D-BUS Service]\nName={name}\nExec={self.programs}/orvel-widgets\n")
        (services / "org.a11y.Bus.service").write_text(ACCESSIBILITY)
        configuration = self.folder / "bus.conf"
        configuration.write_text(BUS.format(folder=self.folder / "runtime", services=services))
        self.own()
        daemon = self.start("dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address",
                            stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = daemon.stdout.readline().strip()

    def own(self):
        """Gives the home to whoever the programs run as."""
        if self.as_nobody:
            for path in [self.folder, *self.folder.rglob("*")]:
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)

    def write_snapshot(self, *options):
        """A sample of the application's file, as `orvelctl snapshot sample` makes it."""
        sample = subprocess.run([self.programs / "orvelctl", "snapshot", "sample", *options], check=True,
                                capture_output=True, env=self.environment).stdout
        fresh = self.snapshot.with_suffix(".new")
        fresh.write_bytes(sample)
        fresh.rename(self.snapshot)
        self.own()

    def command(self, *command):
        user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if self.as_nobody else []
        return [*user, *map(str, command)]

    def start(self, *command, **keywords):
        process = subprocess.Popen(self.command(*command), env=self.environment, text=True, start_new_session=True,
                                   cwd=self.folder, **{"stdin": subprocess.DEVNULL} | keywords)
        self.processes.append(process)
        return process

    def run(self, *command, **keywords):
        return subprocess.run(self.command(*command), env=self.environment, text=True, cwd=self.folder, **keywords)

    def start_x(self, width=1280, height=900, composited=True):
        """An X display with a window manager and, when asked, a compositor."""
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", f"{width}x{height}x24", "-noreset", pass_fds=[write],
                   stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as display:
            self.environment["DISPLAY"] = f":{display.readline().strip()}"
        self.environment["GDK_BACKEND"] = "x11"
        settings = self.folder / "config" / "openbox"
        settings.mkdir()
        (settings / "rc.xml").write_text(OPENBOX)
        self.own()
        self.start("openbox", stderr=subprocess.DEVNULL)
        self.run("xsetroot", "-solid", "#35506b", check=True)
        if composited:
            self.start("picom", "--backend", "xrender", "--config", os.devnull, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)

    def start_sway(self, width=1280, height=900, scale=1, wallpaper=None):
        """A headless compositor with the layer shell. Its size is in pixels."""
        background = f"{wallpaper} fill" if wallpaper else "#35506b solid_color"
        (self.folder / "sway.conf").write_text(
            SWAY.format(width=width, height=height, scale=scale, background=background))
        self.own()
        self.environment |= {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1",
                             "XDG_CURRENT_DESKTOP": "sway", "GDK_BACKEND": "wayland"}
        self.start("sway", "-c", self.folder / "sway.conf", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        runtime = self.folder / "runtime"
        display = wait_for(lambda: [path for path in runtime.glob("wayland-*") if path.suffix != ".lock"])
        control = wait_for(lambda: list(runtime.glob("sway-ipc.*.sock")))
        if not display or not control:
            raise RuntimeError("the compositor did not start")
        self.environment |= {"WAYLAND_DISPLAY": display[0].name, "SWAYSOCK": str(control[0])}

    def screenshot(self, path):
        """What is on the screen now, as a PNG file."""
        if "WAYLAND_DISPLAY" in self.environment:
            picture = self.folder / "screen.png"
            self.run("grim", picture, check=True)
            shutil.copy(picture, path)
        else:
            self.run("import", "-window", "root", path, check=True)

    def __exit__(self, *_):
        for process in reversed(self.processes):
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGTERM)
        for process in self.processes:
            with contextlib.suppress(subprocess.TimeoutExpired):
                process.wait(timeout=5)
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)
