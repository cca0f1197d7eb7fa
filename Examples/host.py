#!/usr/bin/env python3
"""A whole widget host: the status widget in a window, clicks and all. Needs python3-gi and GTK 3.

    ./host.py [systemSmall|systemMedium|systemLarge]
"""
import subprocess
import sys
import time

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GdkPixbuf, Gio, GLib, Gtk  # noqa: E402

KIND = "app.orvel.widget.status"
FAMILY = sys.argv[1] if len(sys.argv) > 1 else "systemMedium"
NAME, PATH = "app.orvel.Orvel.WidgetExtension", "/app/orvel/Orvel/WidgetExtension"
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
image, window, picture = Gtk.Image(), Gtk.Window(title="Orvel"), {}


def ask(interface, method, signature, *values):
    return bus.call_sync(NAME, PATH, interface, method, GLib.Variant(signature, values), None, 0, 5000).unpack()


def environment():
    dark = Gtk.Settings.get_default().props.gtk_application_prefer_dark_theme
    values = {"family": ("s", FAMILY), "colorScheme": ("s", "dark" if dark else "light"), "format": ("s", "png")}
    return {key: GLib.Variant(*value) for key, value in values.items()}


def show():
    entries, moments, reload = ask("app.orvel.WidgetExtension1", "Timeline", "(sa{sv})", KIND, environment())
    now = time.time() * 1e6
    date, moment = [entry for entry in entries if entry[0] <= now][-1]
    later = [entry[0] for entry in entries if entry[0] > now] + [reload]
    picture.update(ask("app.orvel.WidgetExtension1", "Render", "(sxaya{sv})", KIND, date, moments[moment], environment())[0])
    loader = GdkPixbuf.PixbufLoader()
    loader.write(bytes(picture["layers"][0][1]))
    loader.close()
    image.set_from_pixbuf(loader.get_pixbuf())
    GLib.timeout_add(int(max(later[0] - now, 0) / 1000) + 1, show)


def click(_, event):
    for action in picture["actions"]:
        x, y, width, height = action["frame"]
        if x <= event.x < x + width and y <= event.y < y + height:
            parameters = {key: GLib.Variant("x" if isinstance(value, int) else "s", value) for key, value in action["parameters"].items()}
            return ask("app.orvel.Intents1", "Perform", "(sa{sv}a{sv})", action["intent"], parameters, {})
    return subprocess.Popen(["xdg-open", picture["link"]])


box = Gtk.EventBox(child=image)
box.connect("button-press-event", click)
window.add(box)
window.connect("destroy", Gtk.main_quit)
show()
window.show_all()
Gtk.main()
