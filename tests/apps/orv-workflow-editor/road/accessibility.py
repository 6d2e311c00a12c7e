"""Reads windows as a screen reader does: through the bus of accessibility, without a call into the program."""
import re
from dataclasses import dataclass, field

from gi.repository import Gio, GLib

from waiting import NotSeen, until

ROOT = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"
PROPERTIES = "org.freedesktop.DBus.Properties"
# Numbers of states in the protocol.
STATES = {1: "active", 4: "checked", 8: "enabled", 10: "expanded", 12: "focused", 16: "modal", 23: "selected",
          25: "showing", 42: "read-only"}
CALL_LIMIT_MS = 20000
# Of a list whose rows can't all be seen, so many are read.
MOST_CHILDREN = 1500
LAST_FOCUSES = 40


@dataclass
class Seen:
    """Something on the screen as a screen reader knows it."""
    address: tuple
    role: str = ""
    name: str = ""
    description: str = ""
    text: str = ""
    states: frozenset = frozenset()
    extent: tuple = (0, 0, 0, 0)
    children: list = field(default_factory=list)

    @property
    def centre(self):
        x, y, width, height = self.extent
        return x + width // 2, y + height // 2

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def texts(self):
        return [text for text in (self.name, self.description, self.text) if text]

    def drawn(self, depth=0):
        """The tree as text, for those who look for what was missed."""
        if self.role or self.name:
            states = " ".join(sorted(self.states & {"focused", "selected", "checked", "active"}))
            text = f" = {self.text!r}" if self.text and self.text != self.name else ""
            yield f"{'  ' * depth}{self.role} {self.name!r}{text} {states}".rstrip()
        for child in self.children:
            yield from child.drawn(depth + 1)


def is_like(pattern, text):
    return bool(pattern.search(text)) if isinstance(pattern, re.Pattern) else pattern == text


class ScreenReader:
    """Trees of what programs show, read anew each time: nothing is remembered that might be stale."""

    def __init__(self, session_address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        session = Gio.DBusConnection.new_for_address_sync(session_address, flags, None, None)
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, CALL_LIMIT_MS, None).unpack()[0]
        session.close_sync(None)
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.heard = set()
        self.focus = {}
        self._follow_focus()

    def _follow_focus(self):
        """Editors in lists are told of when they get the focus; no list has them as a child."""
        def moved(_bus, sender, path, _interface, _signal, parameters):
            if parameters.unpack()[:2] == ("focused", 1):
                focuses = self.focus.setdefault(sender, [])
                focuses[:] = [*(each for each in focuses if each[1] != path), (sender, path)][-LAST_FOCUSES:]

        self.bus.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, None, Gio.DBusSignalFlags.NONE,
                                  moved)
        self.bus.call_sync(ROOT[0], "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
                           GLib.Variant("(s)", ("object:state-changed:focused",)), None, Gio.DBusCallFlags.NONE,
                           CALL_LIMIT_MS, None)

    def _ask(self, questions):
        """Answers to (address, interface, member, arguments), all asked at once; None where there is none."""
        answers = [None] * len(questions)
        waiting = [len(questions)]

        def answered(bus, result, position):
            try:
                answers[position] = bus.call_finish(result).unpack()[0]
            except GLib.Error:  # gone since, or without this interface
                pass
            waiting[0] -= 1

        for position, ((name, path), interface, member, arguments) in enumerate(questions):
            self.bus.call(name, path, interface, member, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, CALL_LIMIT_MS,
                          None, answered, position)
        context = GLib.MainContext.default()
        while waiting[0]:
            context.iteration(True)
        return answers

    @staticmethod
    def _property(address, name, interface=ACCESSIBLE):
        return address, PROPERTIES, "Get", GLib.Variant("(ss)", (interface, name))

    def _children(self, addresses):
        found = self._ask([(address, ACCESSIBLE, "GetChildren", None) for address in addresses])
        return [list(map(tuple, children or [])) for children in found]

    def program(self, process):
        """The root of what a process shows, or None."""
        programs = self._children([ROOT])[0]
        for address in programs:
            number = self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                        "GetConnectionUnixProcessID", GLib.Variant("(s)", (address[0],)), None,
                                        Gio.DBusCallFlags.NONE, CALL_LIMIT_MS, None).unpack()[0]
            if number == process.pid:
                return address
        return None

    def _describe(self, seen):
        """Fills in what the nodes are; answers those that show."""
        parts = 4
        answers = self._ask([question for node in seen for question in (
            (node.address, ACCESSIBLE, "GetState", None), (node.address, ACCESSIBLE, "GetRoleName", None),
            self._property(node.address, "Name"), (node.address, COMPONENT, "GetExtents", GLib.Variant("(u)", (0,))))])
        showing = []
        for position, node in enumerate(seen):
            states, role, name, extent = answers[position * parts:(position + 1) * parts]
            bits = sum(word << (32 * index) for index, word in enumerate(states or []))
            node.states = frozenset(text for bit, text in STATES.items() if bits >> bit & 1)
            node.role, node.name, node.extent = role or "", name or "", extent or (0, 0, 0, 0)
            if "showing" in node.states:
                showing.append(node)
        self._read_texts(showing)
        return showing

    def _read_texts(self, seen):
        """The description of each, and what stands in fields."""
        answers = self._ask([self._property(node.address, "Description") for node in seen])
        for node, description in zip(seen, answers):
            node.description = description or ""
        fields = [node for node in seen if node.role in ("text", "password text", "spin button", "combo box", "label")]
        answers = self._ask([(node.address, TEXT, "GetText", GLib.Variant("(ii)", (0, -1))) for node in fields])
        for node, text in zip(fields, answers):
            node.text = text or ""

    def tree(self, process):
        """All that a process shows at this moment."""
        address = self.program(process)
        root = Seen(address or ("", ""), "application")
        level = [root] if address else []
        while level:
            below = []
            for node, children in zip(level, self._children([node.address for node in level])):
                node.children = [Seen(child) for child in children[:MOST_CHILDREN]]
                below += node.children
            level = self._describe(below)
            shown = {id(node) for node in level}
            # Menus stand below entries that don't show while they are open.
            for node in root.all():
                node.children = [child for child in node.children if child.address == root.address or id(child) in shown
                                 or child.children or "showing" in child.states]
        known = {node.address for node in root.all()}
        others = {focus for focus in self.focus.get(root.address[0], ()) if focus not in known}
        # Lists that are filled anew tell of a focus, too, and don't have it.
        root.children += [node for node in self._describe([Seen(focus) for focus in others]) if "focused" in node.states]
        for node in root.all():
            self.heard.update(node.texts())
        return root

    def focused(self, process):
        """What got the focus last; it is told of, so that nothing has to be searched."""
        address = self.program(process)
        focuses = self.focus.get(address[0]) if address else None
        return focuses[-1] if focuses else None

    def find_all(self, process, role, name=None, states=(), within=None):
        root = self.tree(process)
        if within:
            outer = [node for node in root.all() if node.role == within[0] and is_like(within[1], node.name)]
            roots = outer[:1]
        else:
            roots = [root]
        return [node for start in roots for node in start.all()
                if node.role == role and (name is None or any(is_like(name, text) for text in (node.name, node.text)))
                and node.states >= set(states)]

    def find(self, process, role, name=None, states=(), within=None):
        """The first of its kind, once it is there."""
        wanted = f"{role} {getattr(name, 'pattern', name)!r} {' '.join(states)} {f'in {within}' if within else ''}".strip()
        try:
            return until(wanted, lambda: (self.find_all(process, role, name, states, within) or [None])[0])
        except NotSeen as missed:
            tree = "\n".join(self.tree(process).drawn())
            raise NotSeen(f"{missed}; there was:\n{tree}") from None
