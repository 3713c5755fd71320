"""Finds and reads controls the way a screen reader does: by the names and captions a person is given."""
import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from .waiting import wait_until  # noqa: E402

Role = Atspi.Role
State = Atspi.StateType
QUESTION_ROLES = (Role.DIALOG, Role.ALERT)
LABEL_ROLES = (Role.LABEL, Role.STATIC)


def plain(name):
    """A caption without what only decorates it."""
    return (name or "").strip().rstrip(":").strip()


class Control:
    """One control of the screen. Everything is asked anew each time: nothing is remembered."""

    def __init__(self, node):
        self.node = node

    @property
    def name(self):
        return self.node.get_name() or ""

    @property
    def role(self):
        return self.node.get_role()

    @property
    def description(self):
        return self.node.get_description() or ""

    def has(self, state):
        return self.node.get_state_set().contains(state)

    @property
    def showing(self):
        return self.has(State.SHOWING) and self.has(State.VISIBLE)

    @property
    def enabled(self):
        return self.has(State.ENABLED) and self.has(State.SENSITIVE)

    @property
    def checked(self):
        return self.has(State.CHECKED)

    @property
    def focused(self):
        return self.has(State.FOCUSED)

    @property
    def captions(self):
        """The texts of the labels that belong to this control."""
        return [plain(target.get_name()) for relation in self.node.get_relation_set()
                if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
                for target in (relation.get_target(i) for i in range(relation.get_n_targets()))]

    @property
    def text(self):
        """What a person reads in it: the content of a text control, else the name."""
        if self.role in LABEL_ROLES:  # an empty label has the name of its caption
            return "" if plain(self.name) in self.captions else self.name
        if "Text" not in self.node.get_interfaces():
            return self.name
        return Atspi.Text.get_text(self.node, 0, Atspi.Text.get_character_count(self.node))

    @property
    def box(self):
        extents = self.node.get_extents(Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    @property
    def middle(self):
        x, y, width, height = self.box
        return x + width // 2, y + height // 2

    def act(self, action):
        """What a screen reader does instead of a click."""
        names = [Atspi.Action.get_action_name(self.node, i) for i in range(Atspi.Action.get_n_actions(self.node))]
        Atspi.Action.do_action(self.node, names.index(action))

    def set_text(self, text):
        """What a screen reader does instead of typing."""
        Atspi.EditableText.set_text_contents(self.node, text)

    def children(self):
        for index in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(index)
            if child is not None:
                yield Control(child)

    def all(self):
        """This control and everything in it, from the outside in."""
        yield self
        for child in self.children():
            yield from child.all()

    def find(self, name, roles=None):
        """The control with that caption, else the one with that name; None when there is none.

        A label of that name comes last: it may be the caption of what is looked for.
        """
        named = label = None
        for control in self.all():
            try:
                if roles and control.role not in roles:
                    continue
                if name in control.captions:
                    return control
                if plain(control.name) == name:
                    if control.role in LABEL_ROLES:
                        label = label or control
                    else:
                        named = named or control
            except GLib.Error:  # went away while it was looked at
                continue
        return named or label

    def get(self, name, roles=None, seconds=10):
        return wait_until(lambda: settled(lambda: self.find(name, roles)), f"a control named '{name}'", seconds)


def settled(question):
    """question(), or None while controls come and go under it."""
    try:
        return question()
    except GLib.Error:
        return None


class Application:
    """The windows of one running process."""

    def __init__(self, process_id):
        self.process_id = process_id

    def windows(self):
        """All windows that show, questions included."""
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for index in range(desktop.get_child_count()):
            node = desktop.get_child_at_index(index)
            if node is not None and node.get_process_id() == self.process_id:
                node.set_cache_mask(Atspi.Cache.NONE)
                return [window for window in Control(node).children() if window.showing]
        return []

    def window(self, title):
        """The window with that title, now; None when there is none. A question is not found here."""
        return settled(lambda: next((window for window in self.windows()
                                     if window.name == title and window.role not in QUESTION_ROLES), None))

    def questions(self):
        """The texts of all questions that show, one string for each."""
        return settled(lambda: [said(window) for window in self.windows() if window.role in QUESTION_ROLES]) or []

    def question(self, text):
        """The question that says this text, now; None when there is none."""
        return settled(lambda: next((window for window in self.windows()
                                     if window.role in QUESTION_ROLES and text in said(window)), None))


def said(window):
    return "\n".join([window.name, *(control.name for control in window.all() if control.role in LABEL_ROLES)])
