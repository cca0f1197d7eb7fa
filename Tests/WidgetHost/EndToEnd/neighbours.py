"""What a desktop has beside a widget host, played for tests: the settings portal, and the application."""

import queue
import threading

from gi.repository import Gio, GLib

PORTAL = """<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/></method>
  <method name="ReadAll"><arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
APPLICATION = """<node><interface name="org.freedesktop.Application">
  <method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
</interface></node>"""
INTENTS = """<node><interface name="app.orvel.Intents1">
  <method name="Perform"><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/><arg type="a{sv}" direction="in"/></method>
</interface></node>"""
HANDLER = """[Desktop Entry]
Type=Application
Name=Orvel
DBusActivatable=true
Exec=false %u
MimeType=x-scheme-handler/orvel;
"""


class Neighbours:
    """On the desktop's bus, in a thread of its own; what arrives is kept in `links` and `performed`."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.appearance = {}
        self.links = []
        self.performed = []
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.context = GLib.MainContext()
        self.loop = GLib.MainLoop(self.context)
        ready = threading.Event()
        self.thread = threading.Thread(target=self.serve, args=[flags, ready], daemon=True)
        self.thread.start()
        if not ready.wait(10):
            raise RuntimeError("the neighbours do not come to the bus")

    def serve(self, flags, ready):
        self.context.push_thread_default()
        address = self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags)
        self.register("/org/freedesktop/portal/desktop", PORTAL, self.portal_called)
        self.register("/app/orvel/Handler", APPLICATION, self.link_came)
        self.own("org.freedesktop.portal.Desktop")
        self.own("app.orvel.Handler")
        self.install_handler()
        ready.set()
        self.loop.run()
        self.context.pop_thread_default()

    def close(self):
        self.loop.quit()
        self.thread.join()
        self.bus.close_sync()

    def register(self, path, xml, called):
        interface = Gio.DBusNodeInfo.new_for_xml(xml).interfaces[0]
        return self.bus.register_object(path, interface, called)

    def ask_bus(self, method, signature, *values):
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                                  GLib.Variant(signature, values), None, 0, 5000).unpack()[0]

    def own(self, name):
        assert self.ask_bus("RequestName", "(su)", name, 4) == 1

    def install_handler(self):
        """Makes the throw-away application the one for the scheme's links."""
        folder = self.desktop.folder / "data" / "applications"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "app.orvel.Handler.desktop").write_text(HANDLER)
        (self.desktop.folder / "config" / "mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/orvel=app.orvel.Handler.desktop\n")
        self.desktop.own()

    def portal_called(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        space = "org.freedesktop.appearance"
        if method == "ReadAll":
            invocation.return_value(GLib.Variant("(a{sa{sv}})", ({space: self.appearance},)))
            return
        asked, key = arguments.unpack()
        if asked == space and key in self.appearance:  # wrapped twice, as portals of this age do
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", self.appearance[key]),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "Requested setting not found")

    def set_appearance(self, key, value):
        self.appearance[key] = value
        self.bus.emit_signal(None, "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings",
                             "SettingChanged", GLib.Variant("(ssv)", ("org.freedesktop.appearance", key, value)))

    def link_came(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        self.links += arguments.unpack()[0]
        invocation.return_value(None)

    def start_application(self):
        """From now on an application runs that takes intents; its returned token ends that."""
        tokens = queue.SimpleQueue()
        # Calls come to the thread in which an object is registered.
        self.context.invoke_full(0, lambda: tokens.put(self.register("/app/orvel/Orvel", INTENTS, self.intent_came)))
        token = tokens.get(timeout=5)
        self.own("app.orvel.Orvel")
        return token

    def end_application(self, token):
        self.bus.unregister_object(token)
        self.ask_bus("ReleaseName", "(s)", "app.orvel.Orvel")

    def intent_came(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        self.performed.append(arguments.unpack())
        invocation.return_value(None)

    def reload(self, signal, *kinds):
        self.bus.emit_signal(None, "/app/orvel/WidgetCenter", "app.orvel.WidgetCenter1", signal,
                             GLib.Variant("(as)", (kinds,)))

    def extension(self):
        """The process of the extension; None while it does not run."""
        name = "app.orvel.Orvel.WidgetExtension"
        if not self.ask_bus("NameHasOwner", "(s)", name):
            return None
        return self.ask_bus("GetConnectionUnixProcessID", "(s)", name)
