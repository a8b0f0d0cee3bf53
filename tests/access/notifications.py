"""A notification service on the session's bus, which notes what it is told."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402  after the version is chosen

NAME = "org.freedesktop.Notifications"
INTERFACE = f"""<node><interface name="{NAME}">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
</interface></node>"""


class Notifications:
    def __init__(self, *capabilities):
        self._capabilities = list(capabilities)
        self._told = []
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._object = self._bus.register_object("/org/freedesktop/Notifications", interface, self._called, None, None)
        self._owner = Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.REPLACE, None, None)

    def _called(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        if method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", (self._capabilities,)))
            return
        _application, _replaces, _icon, title, text, _actions, _hints, _timeout = arguments.unpack()
        self._told.append((title, text))
        invocation.return_value(GLib.Variant("(u)", (len(self._told),)))

    def told(self):
        """The titles and texts so far."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self._told

    def end(self):
        Gio.bus_unown_name(self._owner)
        self._bus.unregister_object(self._object)
