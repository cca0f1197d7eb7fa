#!/usr/bin/python3
"""A whole widget host: the status widget in a window, clicks and all. Needs python3-gi-cairo and gir1.2-gtk-3.0.

    host.py [systemSmall|systemMedium|systemLarge] [light|dark]

What a host does besides, such as after the computer slept, is in docs/host.md.
"""
import os
import sys
import time

import cairo
import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gio, GLib, Gtk  # noqa: E402

KIND, FAMILY, SCHEME = "app.orvel.widget.status", *(sys.argv[1:] + ["systemMedium", "light"][len(sys.argv) - 1:])
EXTENSION = ("app.orvel.Orvel.WidgetExtension", "/app/orvel/Orvel/WidgetExtension")
APPLICATION = ("app.orvel.Orvel", "/app/orvel/Orvel")
BUS = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
bus, picture, timer, pause = Gio.bus_get_sync(Gio.BusType.SESSION), None, 0, 1


def ask(place, method, signature, *values):
    reply, files = bus.call_with_unix_fd_list_sync(*place, method, GLib.Variant(signature, values), None, 0, 5000)
    return reply.unpack(), files


def show():
    """Shows what holds now; the seconds until something else does."""
    global picture
    values = {"family": ("s", FAMILY), "colorScheme": ("s", SCHEME), "scale": ("d", window.get_scale_factor())}
    environment = {key: GLib.Variant(*value) for key, value in values.items()}
    widgets = (*EXTENSION, "app.orvel.WidgetExtension1")
    (entries, moments, reload), _ = ask(widgets, "Timeline", "(sa{sv})", KIND, environment)
    date, moment = entries[0]
    (picture,), files = ask(widgets, "Render", "(sxaya{sv})", KIND, date, moments[moment], environment)
    width, height, stride, layers = (picture[key] for key in ("width", "height", "stride", "layers"))
    with open(files.get(layers[0][1]), "rb") as file:
        pixels = bytearray(os.pread(file.fileno(), stride * height, 0))
    surface = cairo.ImageSurface.create_for_data(pixels, cairo.Format.ARGB32, width, height, stride)
    surface.set_device_scale(window.get_scale_factor(), window.get_scale_factor())
    image.set_from_surface(surface)
    image.get_accessible().set_name(", ".join(label for _, label, _ in picture["elements"]))
    return min([later for later, _ in entries[1:]] + [max(reload, date + 1e6)]) / 1e6 - time.time()


def update():
    global timer, pause
    try:
        wait, pause = show(), 1
    except GLib.Error as error:  # the last picture stays
        print(error.message, file=sys.stderr)
        wait, pause = pause, min(pause * 2, 300)
    if timer:
        GLib.source_remove(timer)
    timer = GLib.timeout_add(max(int(wait * 1000), 0) + 1, update)


def click(_, event):
    for _, (x, y, width, height), intent, parameters in picture["actions"] if picture else []:
        if x <= event.x < x + width and y <= event.y < y + height:
            (runs,), _ = ask(BUS, "NameHasOwner", "(s)", APPLICATION[0])
            types = {str: "s", int: "x", bool: "b"}
            given = {key: GLib.Variant(types[type(value)], value) for key, value in parameters.items()}
            call = GLib.Variant("(sa{sv}a{sv})", (intent, given, {}))
            return bus.call(*(APPLICATION if runs else EXTENSION), "app.orvel.Intents1", "Perform", call, None, 0, 30000)
    return Gtk.show_uri_on_window(window, picture["link"], event.time) if picture else None


window, image = Gtk.Window(title="Orvel", resizable=False), Gtk.Image()
window.add(Gtk.EventBox(child=image))
window.get_child().connect("button-release-event", click)
window.connect("notify::scale-factor", lambda *_: update())
window.connect("destroy", Gtk.main_quit)
bus.signal_subscribe(None, "app.orvel.WidgetCenter1", "ReloadTimelines", "/app/orvel/WidgetCenter", None, 0,
                     lambda *signal: update() if not signal[5][0] or KIND in signal[5][0] else None)
update()
window.show_all()
Gtk.main()
