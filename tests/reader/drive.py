"""Works the client as a screen reader does. Usage: drive.py <client> <data folder>"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

SECTIONS = ["Basic", "Video", "Record Playback", "Snapshot", "Recording", "Alarm", "Video Wall", "Security",
            "Shortcut Keys"]
NO_ROLES = {Atspi.Role.INVALID, Atspi.Role.UNKNOWN, Atspi.Role.FILLER}
PATIENCE = 10  # seconds


class Event:
    def __init__(self, event):
        self.kind = event.type
        self.value = event.detail1
        self.source = event.source
        self.name = event.source.get_name()
        self.role = event.source.get_role()

    def __repr__(self):
        return f"{self.kind} {self.value} {self.role.value_nick} '{self.name}'"


class Reader:
    """Hears what the client tells, and finds its controls."""

    def __init__(self):
        # Before the client starts, or it would find nobody who listens.
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))), None, 0, -1)
        self.events = []
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ["object:state-changed", "object:property-change", "object:text-changed"]:
            self.listener.register(kind)
        Atspi.get_desktop(0).get_child_count()
        self.top = None

    def hear(self, event):
        try:
            self.events.append(Event(event))
        except GLib.Error:
            pass  # gone already

    def listen(self, seconds):
        context = GLib.MainContext.default()
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            while context.iteration(False):
                pass
            time.sleep(0.01)

    def wait(self, what, condition):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            self.listen(0.02)
            found = condition()
            if found:
                return found
        raise AssertionError(f"never: {what}; the last events: {self.events[-12:]}")

    def wait_for(self, kind, name, role=None, value=None):
        """Forgets what was told before."""
        def heard():
            return next((event for event in self.events if event.kind == kind and event.name == name and
                         role in (None, event.role) and value in (None, event.value)), None)
        event = self.wait(f"{kind} of '{name}'", heard)
        self.events.clear()
        return event

    def wait_for_focus(self, name):
        return self.wait_for("object:state-changed:focused", name, value=1)

    def wait_for_alert(self, name):
        return self.wait_for("object:state-changed:showing", name, Atspi.Role.ALERT, 1)

    def find_dialog(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for application in children(desktop):
            application.set_cache_mask(Atspi.Cache.NONE)  # or changes would be seen late
            for child in children(application):
                if child.get_role() == Atspi.Role.DIALOG and child.get_name() == "Local Config":
                    self.top = child
                    return child
        return None

    def find(self, role, name, top=None):
        return next((one for one in walk(top or self.top) if one.get_role() == role and one.get_name() == name), None)

    def section(self, name):
        return self.find(Atspi.Role.PANEL, name)


def children(accessible):
    found = (accessible.get_child_at_index(n) for n in range(accessible.get_child_count()))
    return [child for child in found if child]


def walk(accessible):
    yield accessible
    if accessible.get_role() not in (Atspi.Role.TABLE, Atspi.Role.COMBO_BOX):  # of cells and items there are hundreds
        for child in children(accessible):
            yield from walk(child)


def has(accessible, state):
    return accessible.get_state_set().contains(state)


def labels(accessible):
    return [relation.get_target(n).get_name() for relation in accessible.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for n in range(relation.get_n_targets())]


def do(accessible, action):
    names = [Atspi.Action.get_action_name(accessible, n) for n in range(accessible.get_n_actions())]
    accessible.do_action(names.index(action))


def press(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


# --- What is checked, one after the other on the same dialog


def every_control_of_each_section_says_what_it_is(reader):
    for name in SECTIONS:
        controls = [one for one in walk(reader.section(name))
                    if has(one, Atspi.StateType.FOCUSABLE) and has(one, Atspi.StateType.SHOWING)]
        assert controls, f"no control in {name}"
        for one in controls:
            assert one.get_name(), f"no name in {name}: {one.get_role_name()}"
            assert one.get_role() not in NO_ROLES, f"no role in {name}: {one.get_name()}"
            if one.get_role() == Atspi.Role.COMBO_BOX:  # its name is its value
                assert labels(one) or one.get_description(), f"no caption in {name}: {one.get_name()}"


def the_hidden_table_of_keys_is_not_found(reader):
    page = reader.section("Shortcut Keys")

    def tables():
        return [one.get_name() for one in walk(page) if one.get_role() == Atspi.Role.TABLE]
    assert tables() == ["PC Keyboard"], tables()
    do(reader.find(Atspi.Role.RADIO_BUTTON, "USB NKB Joystick", page), "Toggle")
    reader.wait("the other table", lambda: tables() == ["USB NKB Joystick"])
    do(reader.find(Atspi.Role.RADIO_BUTTON, "PC Keyboard", page), "Toggle")
    reader.wait("the first table", lambda: tables() == ["PC Keyboard"])


def a_check_box_is_toggled(reader):
    box = reader.find(Atspi.Role.CHECK_BOX, "Auto Login")
    before = has(box, Atspi.StateType.CHECKED)
    do(box, "Toggle")
    reader.wait_for("object:state-changed:checked", "Auto Login", value=int(not before))


def a_number_is_set(reader):
    box = reader.find(Atspi.Role.SPIN_BUTTON, "Snapshot Interval")
    box.set_current_value(7)
    reader.wait_for("object:text-changed:insert", "Snapshot Interval")
    reader.wait("the value", lambda: box.get_current_value() == 7)


def the_focus_is_followed(reader):
    press("Down")
    reader.wait_for_focus("Video")
    press("Down", "Down")
    reader.wait_for_focus("Snapshot")
    press("Tab")
    reader.wait_for_focus("JPEG")
    press("Tab")
    reader.wait_for_focus("Picture Path")
    press("Tab")
    reader.wait_for_focus("Browse: Picture Path")


def scrolling_moves_no_focus(reader):
    bar = next(one for one in walk(reader.top) if one.get_role() == Atspi.Role.SCROLL_BAR and
               one.get_maximum_value() > 0)
    bar.set_current_value(bar.get_minimum_value())
    entry = reader.find(Atspi.Role.LIST_ITEM, "Basic")
    reader.wait("the first section", lambda: has(entry, Atspi.StateType.SELECTED))
    reader.listen(0.1)
    moved = [event for event in reader.events if event.kind == "object:state-changed:focused"]
    assert not moved, moved


def a_wrong_value_is_told_and_stays_described(reader):
    field = reader.find(Atspi.Role.TEXT, "Continuous Snapshot Times")
    assert field.get_description() == "(2-10)", field.get_description()
    field.grab_focus()
    reader.wait_for_focus("Continuous Snapshot Times")
    press("ctrl+a", "Delete", "shift+Tab")
    reader.wait_for_alert("Continuously snapshot 2-10 pic.")
    reader.wait("the description", lambda: field.get_description() == "Continuously snapshot 2-10 pic.")


def a_refused_save_is_told(reader):
    do(reader.find(Atspi.Role.PUSH_BUTTON, "Save"), "Press")
    reader.wait_for_alert("Failed to save configuration, some values are illegal.")
    field = reader.find(Atspi.Role.TEXT, "Continuous Snapshot Times")
    reader.wait("the field", lambda: has(field, Atspi.StateType.FOCUSED))
    assert field.get_description() == "Illegal value, (2-10)", field.get_description()


def a_caption_is_found(reader):
    press("ctrl+f")
    reader.wait_for_focus("Find")
    subprocess.run(["xdotool", "type", "audio talk"], check=True)
    field = reader.find(Atspi.Role.TEXT, "Find")
    reader.wait("the match", lambda: field.get_description() == "1 of 1: Self-adaptive audio talk parameter")
    subprocess.run(["xdotool", "type", "ing"], check=True)
    reader.wait_for_alert("No match")
    press("BackSpace", "BackSpace", "BackSpace", "Escape")
    reader.wait_for_focus("Self-adaptive audio talk parameter")


def escape_closes_the_dialog(reader):
    press("Escape")
    reader.wait("the end of the dialog", lambda: not has(reader.top, Atspi.StateType.SHOWING))


CHECKS = [every_control_of_each_section_says_what_it_is, the_hidden_table_of_keys_is_not_found, a_check_box_is_toggled,
          a_number_is_set, the_focus_is_followed, scrolling_moves_no_focus, a_wrong_value_is_told_and_stays_described,
          a_refused_save_is_told, a_caption_is_found, escape_closes_the_dialog]


def main(client, data):
    reader = Reader()
    windows = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    process = subprocess.Popen([client, "--data-dir", data])
    try:
        dialog = reader.wait("the dialog", reader.find_dialog)
        reader.wait("an active dialog", lambda: has(dialog, Atspi.StateType.ACTIVE))
        for check in CHECKS:
            started = time.monotonic()
            reader.listen(0.1)
            reader.events.clear()
            check(reader)
            print(f"PASS {check.__name__} {time.monotonic() - started:.1f} s", flush=True)
    finally:
        for one in (process, windows):
            one.terminate()
            one.wait(PATIENCE)


if __name__ == "__main__":
    main(*sys.argv[1:])
