#!/usr/bin/python3
"""screen_watch.py start PROGRAM… | reload CALLS: how long it takes until something else is on the X display; JSON in ms.

`start` starts the program, and waits for the first picture of the widget in the top left corner. `reload` rewrites the
snapshot with what standard input says, a file a line, signals a reload after each, and waits for the frame; `drawing` is
what the timeline and the picture take that a host asks for then.
"""

import json
import os
import shutil
import statistics
import subprocess
import sys
import time

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gio, GLib  # noqa: E402

NAME, PATH = "app.orvel.Orvel.WidgetExtension", "/app/orvel/Orvel/WidgetExtension"
STATUS = "app.orvel.widget.status"
PLACE = 48, 110, 240, 90  # within the title of a medium widget that lies first
PATIENCE = 10  # seconds
NAP = 0.001  # seconds between looks: who looks without a pause takes a whole core from what is measured


def pixels():
    display = Gdk.Display.get_default()
    picture = Gdk.pixbuf_get_from_window(Gdk.get_default_root_window(), *PLACE)
    display.flush()
    return picture.get_pixels()


def time_of_change(before):
    """Milliseconds of the clock when the place looks otherwise."""
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        now = pixels()
        if now != before:
            return time.monotonic() * 1000
        time.sleep(NAP)
    raise SystemExit("screen_watch.py: nothing changed on the screen")


def start(*command):
    before = pixels()
    began = time.monotonic() * 1000
    program = subprocess.Popen(command, stdin=subprocess.DEVNULL)
    # The card without a picture, or with it at once; the last change is the picture's.
    changes = [time_of_change(before) - began]
    settled = time.monotonic() + 1.5
    shown = pixels()
    while time.monotonic() < settled:
        now = pixels()
        if now != shown:
            shown = now
            changes.append(time.monotonic() * 1000 - began)
        time.sleep(NAP)
    program.terminate()
    program.wait()
    return {"first": changes[0], "settled": changes[-1]}


def reload(snapshot, *files):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    environment = {"family": GLib.Variant("s", "systemMedium")}

    def ask(method, signature, *values):
        return bus.call_with_unix_fd_list_sync(NAME, PATH, "app.orvel.WidgetExtension1", method,
                                               GLib.Variant(signature, values), None, 0, 5000, None)[0].unpack()

    latencies, drawings = [], []
    for file in files:
        shutil.copy(file, snapshot + ".new")
        os.rename(snapshot + ".new", snapshot)
        before = pixels()
        began = time.monotonic() * 1000
        bus.emit_signal(None, "/app/orvel/WidgetCenter", "app.orvel.WidgetCenter1", "ReloadTimelines",
                        GLib.Variant("(as)", ([STATUS],)))
        bus.flush_sync()
        latencies.append(time_of_change(before) - began)
        time.sleep(0.2)
        began = time.monotonic() * 1000
        entries, moments, _ = ask("Timeline", "(sa{sv})", STATUS, environment)
        ask("Render", "(sxaya{sv})", STATUS, entries[0][0], moments[entries[0][1]], environment)
        drawings.append(time.monotonic() * 1000 - began)
        time.sleep(0.2)
    return {"latency": statistics.median(latencies), "drawing": statistics.median(drawings)}


print(json.dumps({"start": start, "reload": reload}[sys.argv[1]](*sys.argv[2:])))
