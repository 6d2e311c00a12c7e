"""Someone at the desktop: looks by accessibility, acts by pointer and keys, and has nothing else."""
import itertools

from waiting import NotSeen, until

# A drag begins after a few pixels, and targets want to see the pointer come.
DRAG_STEPS = 12
MOST_TABS = 40


class Person:
    """Finds what shows by role and name, and clicks, types and drags by events of the screen."""

    def __init__(self, desktop, reader, program):
        self.desktop = desktop
        self.reader = reader
        self.program = program
        self.pressed = set()

    def _hand(self, *arguments):
        self.desktop.ask("xdotool", *arguments)

    def sees(self, role, name=None, states=(), within=None):
        """The first such thing, once it shows."""
        return self.reader.find(self.program, role, name, states, within)

    def sees_no(self, role, name=None):
        until(f"no {role} {name!r}", lambda: not self.reader.find_all(self.program, role, name))

    def sees_focus(self, role, name=None):
        return self.sees(role, name, states=["focused"])

    def sees_still(self, role, name=None, within=None):
        """The thing once it stays where it is: what has just opened may still arrange itself."""
        places = []

        def stays():
            seen = self.sees(role, name, within=within)
            places.append(seen.extent)
            return seen if places[-2:-1] == [seen.extent] else None

        return until(f"a {role} {name!r} that stays", stays)

    def clicks(self, role, name=None, within=None, button=1, times=1):
        seen = self.sees_still(role, name, within)
        self.clicks_at(*seen.centre, button=button, times=times)
        return seen

    def clicks_at(self, x, y, button=1, times=1):
        self._hand("mousemove", x, y)
        self._hand("click", "--repeat", times, "--delay", "40", button)

    def points_at(self, seen):
        self._hand("mousemove", *seen.centre)

    def types(self, text):
        self._hand("type", "--delay", "4", text)

    def presses(self, *keys):
        """Keys in the names of the screen, such as ctrl+f."""
        for key in keys:
            self.pressed.add(key)
            self._hand("key", "--clearmodifiers", key)

    def steps_to(self, role, name, key="Tab"):
        """From control to control until one has the focus."""
        for _ in range(MOST_TABS):
            if self.reader.find_all(self.program, role, name, ["focused"]):
                return
            before = self.reader.focused(self.program)
            self.presses(key)
            until("another focus", lambda: self.reader.focused(self.program) != before)
        raise NotSeen(f"{key} doesn't lead to the {role} {name!r}")

    def sees_any_focus(self):
        """That keys go somewhere."""
        until("a focus", lambda: [node for node in self.reader.tree(self.program).all()
                                  if "focused" in node.states and node.role != "page tab"])

    def drags(self, source, target, is_ready):
        """From one point to where target() is by now; lets go once is_ready. The hand stays in motion until then, as
        a program tells where the pointer is only when that moves, and a window may arrange itself late."""
        self._hand("mousemove", *source)
        self._hand("mousedown", 1)
        first = target()
        for step in range(1, DRAG_STEPS + 1):
            part = step / DRAG_STEPS
            self._hand("mousemove", *(round(a + (b - a) * part) for a, b in zip(source, first)))
        shakes = itertools.cycle((0, 1, 2, 1))

        def is_ready_there():
            x, y = target()
            self._hand("mousemove", x + next(shakes), y)
            return is_ready()

        try:
            until("a drop that is accepted", is_ready_there)
        except NotSeen:
            self._hand("key", "Escape")
            raise
        finally:
            self._hand("mouseup", 1)
