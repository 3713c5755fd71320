"""The program as a screen reader uses it: names, texts, actions and events, no mouse and no keys."""
from .controls import Atspi, GLib, Role, settled
from .program import FIELDS
from .waiting import wait_until

OVERWRITE_NAME = "About to anonymize your data"


class Ear:
    """What alerts say from now on."""

    def __init__(self):
        self.heard = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")

    def hear(self, event):
        try:
            if event.source.get_role() == Role.ALERT:
                self.heard.append(event.source.get_name())
        except GLib.Error:  # gone already
            pass

    def wait_for(self, text):
        """The first alert that says this text."""
        def heard():
            context = GLib.MainContext.default()
            while context.pending():
                context.iteration(False)
            return next((name for name in self.heard if text in name), None)
        return wait_until(heard, f"an alert that says '{text}'", 60)


def fill(program, name, text):
    program.control(name, FIELDS).set_text(text)
    wait_until(lambda: program.read(name) == text, f"'{text}' in '{name}'")


def switch(program, name):
    box = program.control(name, (Role.CHECK_BOX,))
    before = box.checked
    box.act("Toggle")
    wait_until(lambda: box.checked != before, f"'{name}' switched")


def choose(program, name, item):
    popup = program.control(name, (Role.COMBO_BOX,))
    entry = wait_until(lambda: popup.find(item, (Role.LIST_ITEM,)), f"'{item}' in '{name}'")
    entry.act("Toggle")
    wait_until(lambda: popup.name == item, f"'{item}' chosen in '{name}'")


def answer(program, text, button):
    """Answers the question that is named by this text."""
    question = wait_until(lambda: program.application.question(text), f"the question '{text}'")
    assert text in question.name, f"the question is named {question.name!r}"
    question.get(button, (Role.PUSH_BUTTON,)).act("Press")
    wait_until(lambda: not program.application.question(text), f"the question '{text}' gone")


def choose_folder(program, path):
    """Has the folder worked through, by the action of the drop area."""
    program.control("Drop area", (Role.PUSH_BUTTON,)).act("Press")

    def chooser():
        return settled(lambda: next((window for window in program.application.windows()
                                     if window.name == "Choose a folder"), None))
    dialog = wait_until(chooser, "the folder chooser")
    dialog.get("Directory", FIELDS).set_text(str(path))
    dialog.get("Choose", (Role.PUSH_BUTTON,)).act("Press")
    wait_until(lambda: not chooser(), "the folder chooser gone")


def run(program, path):
    """Has the folder overwritten. What the alert at the end says."""
    ear = Ear()
    choose_folder(program, path)
    answer(program, OVERWRITE_NAME, "Ok, Overwrite source data")
    return ear.wait_for("Done")
