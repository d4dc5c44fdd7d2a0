"""Plays a .play file in the real window, with a pointer and keys, as a person at the desk would.

_by_hand.py PLAY WINDOW PROCESS SCREEN SOURCE: PROCESS and SCREEN are those of the program and of the display. The
window must stand at the upper left of the screen, with 4 world units to the pixel. It ends with a message and status 1
where the title does not tell of the function that should run.
"""

import contextlib
import glob
import re
import subprocess
import sys
import time

PLAY, WINDOW, PROCESS, SCREEN, SOURCE = sys.argv[1:]
CLICK = ("click", "--delay", 0)  # left to itself, xdotool sleeps for a tenth of a second
DRAWING_LEFT, DRAWING_TOP, UNITS = 165, 28, 4
PANEL_WIDTH, STATUS_HEIGHT = 216, 26

BUTTONS = {}
for row, top in ((range(1, 5), 69), (range(5, 9), 106), (range(9, 13), 143), (range(13, 17), 180),
                 ((20, 19, 18, 17), 238), ((35, 36, 37, 38), 296), ((39, 40, 21), 333), ((42, 43, 44), 391)):
    for column, number in enumerate(row):
        BUTTONS[f"Command{number}"] = (27 + 37 * column, top)
BUTTONS.update(blank=(45, 447), freecurs=(119, 447), undu=(74, 14), redu=(127, 14), flt1=(680, 14))
FIELDS = {"angle": (860, 144), "textrot": (860, 190), "assrot": (860, 236)}  # in a window 1024 wide
MENUS = {"fil1": 27, "ut1": 184, "ml1": 268, "ht1": 348, "ass1": 418, "dim1": 505, "tk1": 572, "ly1": 625,
         "lw1": 740, "ls1": 822}
FILTER = {"frmfilter.cu1": (92, 14), "frmfilter.rst1": (196, 14), "frmfilter.Command1": (277, 372)}
FILTER_NAME = "^(Filter Settings|Change Properties)$"
FIRST_ROW, ROW_HEIGHT = 381, 18
EDITS = ["Break", "Trim", "Stretch", "Copy", "Mirror Copy", "Radial Copy", "Concentric Copy", "Move", "Rotate",
         "Scale", "Change", "Fillet", "", "Delete"]
LIBRARY_OF = {"Command10": "sets", "ml3": "sets", "ml6": "sets", "ht3": "hatches", "ht5": "hatches",
              "ht8": "hatches", "ass3": "associates", "ass7": "associates", "ass10": "associates"}


def xdotool(*words):
    out = subprocess.run(["xdotool", *map(str, words)], check=True, capture_output=True, text=True).stdout
    if words[0] not in ("search", "getwindowname", "getwindowgeometry"):
        settle()
    return out


def activity():
    """What all threads of the program and of its screen do, and how often each has woken up."""
    found = []
    for status in glob.glob(f"/proc/{PROCESS}/task/*/status") + glob.glob(f"/proc/{SCREEN}/task/*/status"):
        with contextlib.suppress(OSError):
            found += re.findall(r"^(?:State|.*ctxt_switches):.*", open(status, encoding="ascii").read(), re.M)
    return found


def settle():
    """Waits until the program has done what came in: all sleep, and none has woken up from one look to the next."""
    before, now, end = None, activity(), time.time() + 5
    while time.time() < end and (before != now or any("(running)" in line or "(disk sleep)" in line for line in now)):
        time.sleep(0.005)
        before, now = now, activity()


def until(condition, what):
    end = time.time() + 15
    while not condition():
        if time.time() > end:
            sys.exit(f"in vain: {what}; the title is {title()!r}")
        time.sleep(0.03)


def title():
    return xdotool("getwindowname", WINDOW).strip()


def form(name):
    found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", PROCESS, "--name", name],
                           capture_output=True, text=True).stdout.split()
    return found[-1] if found else None


def entries():
    """The menu of each entry, and how many presses of Down reach it."""
    places, counts = {}, {}
    for line in open(f"{SOURCE}/src/tables/controls.h", encoding="utf-8"):
        row = re.match(r'\s*\{ids::\w+, "([\w.]+)", ControlKind::(\w+), "([\w.]*)", "', line)
        if row and row[2] in ("entry", "checkedEntry", "menu") and row[3]:
            counts[row[3]] = counts.get(row[3], 0) + 1
            places[row[1]] = (row[3], counts[row[3]])
    return places


class Hand:
    def __init__(self):
        geometry = xdotool("getwindowgeometry", "--shell", WINDOW)
        self.width = int(re.search(r"WIDTH=(\d+)", geometry)[1])
        self.height = int(re.search(r"HEIGHT=(\d+)", geometry)[1])
        self.entries = entries()
        self.names = {"sets": [], "hatches": [], "associates": []}
        self.library = None
        self.naming = False

    def pixel(self, x, y):
        """Within the drawing, whatever the point."""
        x = round(float(x) / UNITS) + DRAWING_LEFT
        y = round(float(y) / UNITS) + DRAWING_TOP
        return (min(max(x, DRAWING_LEFT + 2), self.width - PANEL_WIDTH - 3),
                min(max(y, DRAWING_TOP + 2), self.height - STATUS_HEIGHT - 3))

    def at(self, x, y, *then):
        xdotool("mousemove", x, y, *then)

    def move(self, x, y):
        self.at(*self.pixel(x, y))

    def click(self, x, y):
        self.at(*self.pixel(x, y))
        self.at(*self.pixel(x, y), *CLICK, 1)

    def cancel(self, x, y):
        self.at(*self.pixel(x, y), *CLICK, 3)

    def of_panel(self, x):
        return x + self.width - 1024

    def press(self, name):
        self.library = LIBRARY_OF.get(name, self.library)
        self.naming = name in ("ml3", "ht5", "ass7")
        if name in BUTTONS:
            self.at(*BUTTONS[name], *CLICK, 1)
        elif name in FIELDS:
            self.at(self.of_panel(FIELDS[name][0]), FIELDS[name][1], *CLICK, 1)
        elif name.startswith("frmfilter."):
            self.press_in_filter(name)
        else:
            self.take_entry(MENUS[self.entries[name][0]], self.entries[name][1])

    def take_entry(self, x, downs):
        self.at(x, 14, *CLICK, 1)
        xdotool("key", *["Down"] * downs, "Return")

    def press_in_filter(self, name):
        """Of its menus only that of the colours is used."""
        until(lambda: form(FILTER_NAME), "the filter form")
        if name in FILTER:
            self.in_filter(*FILTER[name])
        else:
            menu, downs = self.entries[name]
            self.in_filter(*FILTER[menu])
            xdotool("key", *["Down"] * (downs - 1), "Return")  # its heading is greyed

    def in_filter(self, x, y):
        """As long as a hand holds it: the screen learns which window has the keys in the meantime."""
        geometry = xdotool("getwindowgeometry", "--shell", form(FILTER_NAME))
        left, top = (int(re.search(rf"^{side}=(-?\d+)", geometry, re.M)[1]) for side in ("X", "Y"))
        self.at(left + x, top + y, "mousedown", 1)
        xdotool("mouseup", 1)

    def pick(self, name, row):
        if name == "frmfilter.List1":
            until(lambda: form(FILTER_NAME), "the filter form")
            self.in_filter(60, 68 + ROW_HEIGHT * int(row))
            return
        index = self.index_of(row[1:]) if row.startswith("=") else int(row)
        self.at(self.of_panel(916), FIRST_ROW + ROW_HEIGHT * index, *CLICK, 1)

    def index_of(self, text):
        return EDITS.index(text) if text in EDITS else self.names[self.library].index(text)

    def put(self, name, text):
        if name == "frmfile.Text1":
            until(lambda: form("^(Open|Save)"), "the file dialog")
            if self.library:
                self.names[self.library].append(text)
        elif name in FIELDS:
            self.press(name)
        xdotool("key", "ctrl+a")
        xdotool("type", "--delay", 20, "--", text)

    def type(self, text):
        if self.naming:
            self.names[self.library].append(text)
            self.naming = False
        xdotool("type", "--delay", 20, "--", text)

    def enter(self):
        xdotool("key", "Return")

    def backspace(self):
        xdotool("key", "BackSpace")

    def scale(self, *_):
        pass

    def image(self, *_):
        pass

    def expect(self, question):
        value = question.split("==", 1)[1].strip().strip('"')
        if question.startswith("get session.curFunc"):
            if value not in ("Blank Line", "Move Dimension Text", "Change"):  # these leave the title as it is
                until(lambda: f"Current Function: {value}(" in title(), value)
        elif question.startswith("get session.drawingName"):
            until(lambda: f"Drawing Name: {value} " in title(), value)
        elif question.startswith("get frmfile.visible == false"):
            until(lambda: not form("^(Open|Save) "), "the file dialog to go")
        elif question.startswith("get frmprintset.visible == true"):
            until(lambda: form("^Print$"), "the print form")


def play():
    hand = Hand()
    for number, line in enumerate(open(PLAY, encoding="utf-8"), 1):
        line = line.strip()
        if not line or line.startswith("#"):
            continue
        command, _, rest = line.partition(" ")
        try:
            if command in ("type", "expect", "image"):
                getattr(hand, command)(rest)
            elif command in ("put", "pick"):
                getattr(hand, command)(*rest.split(" ", 1))
            else:
                getattr(hand, command)(*rest.split())
        except SystemExit as end:
            sys.exit(f"{PLAY}:{number}: {end}")


play()
