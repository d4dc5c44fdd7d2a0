"""Watches the pixels of the real window after each event, and tells how long they took to change.

watch.py WINDOW WIDTH HEIGHT TIMES: WINDOW stands at the upper left of the display, WIDTH by HEIGHT pixels, and shows the
drawing of bench/window. Events are sent by XTEST, pixels read from the screen. Prints a line for each kind of event:
milliseconds, the median and the worst of TIMES.
"""

import ctypes
import statistics
import sys
import time

WIDTH, HEIGHT, TIMES = int(sys.argv[2]), int(sys.argv[3]), int(sys.argv[4])
LEFT, TOP, RIGHT, FOOT = 165, 28, WIDTH - 216, HEIGHT - 26  # of the drawing in the window
PATIENCE, REST = 5.0, 0.004  # seconds: until nothing is expected any more; without a change, it is done
FRAME = 1000 / 60
Z_PIXMAP, ALL_PLANES = 2, ctypes.c_ulong(-1)
LEFT_BUTTON, RIGHT_BUTTON, WHEEL_UP, WHEEL_DOWN = 1, 3, 4, 5
SHIFT, ARROW_LEFT, ARROW_RIGHT = 0xFFE1, 0xFF51, 0xFF53

x11, xtst, xfixes = (ctypes.CDLL(name) for name in ("libX11.so.6", "libXtst.so.6", "libXfixes.so.3"))


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int), ("unit", ctypes.c_int), ("bit", ctypes.c_int),
                ("pad", ctypes.c_int), ("depth", ctypes.c_int), ("line", ctypes.c_int)]


class Cursor(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort), ("height", ctypes.c_ushort),
                ("xhot", ctypes.c_ushort), ("yhot", ctypes.c_ushort), ("serial", ctypes.c_ulong)]


x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XGetImage.restype = ctypes.POINTER(Image)
x11.XGetSubImage.restype = ctypes.POINTER(Image)
x11.XKeysymToKeycode.restype = ctypes.c_ubyte
xfixes.XFixesGetCursorImage.restype = ctypes.POINTER(Cursor)
display = ctypes.c_void_p(x11.XOpenDisplay(None))
root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
xfixes.XFixesQueryExtension(display, ctypes.byref(ctypes.c_int()), ctypes.byref(ctypes.c_int()))


def at(across, down):
    """A place in the drawing, by its share of it."""
    return round(LEFT + (RIGHT - LEFT) * across), round(TOP + (FOOT - TOP) * down)


class Pixels:
    """A part of the screen about a place."""

    SIDE = 60

    def __init__(self, across, down):
        x, y = at(across, down)
        self.x, self.y = x - self.SIDE // 2, y - self.SIDE // 2
        self.image = x11.XGetImage(display, root, self.x, self.y, self.SIDE, self.SIDE, ALL_PLANES, Z_PIXMAP)

    def look(self):
        x11.XGetSubImage(display, root, self.x, self.y, self.SIDE, self.SIDE, ALL_PLANES, Z_PIXMAP, self.image, 0, 0)
        return ctypes.string_at(self.image.contents.data, self.image.contents.line * self.SIDE)


class Pointer:
    """The shape of the pointer, which shows that a snap is on."""

    def look(self):
        found = xfixes.XFixesGetCursorImage(display)
        serial = found.contents.serial
        x11.XFree(found)
        return serial


def move(x, y):
    xtst.XTestFakeMotionEvent(display, -1, x, y, ctypes.c_ulong(0))
    x11.XFlush(display)


def button(number, x=None, y=None):
    if x is not None:
        move(x, y)
    for down in (1, 0):
        xtst.XTestFakeButtonEvent(display, number, down, ctypes.c_ulong(0))
    x11.XFlush(display)


def key(symbol, *ways):
    code = x11.XKeysymToKeycode(display, ctypes.c_ulong(symbol))
    for down in ways:
        xtst.XTestFakeKeyEvent(display, code, down, ctypes.c_ulong(0))
    x11.XFlush(display)


def settled(part):
    """Waits until nothing has changed for a while; gives what is seen then, and when it last changed."""
    seen, since = part.look(), time.perf_counter()
    while time.perf_counter() - since < REST:
        now = part.look()
        if now != seen:
            seen, since = now, time.perf_counter()
    return seen, since


def waited(part, event, what):
    """Milliseconds from an event until the part has changed for the last time."""
    before, _ = settled(part)
    began = time.perf_counter()
    event()
    while part.look() == before:
        if time.perf_counter() - began > PATIENCE:
            sys.exit(f"watch: nothing changed: {what}")
    return (settled(part)[1] - began) * 1000


def measure(what, part, *events):
    for event in events * 3:  # so that all is warm
        waited(part, event, what)
    times = [waited(part, events[i % len(events)], what) for i in range(TIMES)]
    print(f"{what:<28} {statistics.median(times):9.2f} ms  worst {max(times):9.2f} ms   aim <= {FRAME:.0f} ms", flush=True)


def clicked(across, down, number=LEFT_BUTTON):
    button(number, *at(across, down))
    time.sleep(0.3)


def chosen(x, y):
    button(LEFT_BUTTON, x, y)
    time.sleep(0.3)


def moves(*places):
    return [lambda place=place: move(*at(*place)) for place in places]


objects = Pixels(0.7, 0.3)
clicked(0.2, 0.85)
measure("rubber band", Pixels(0.5, 0.85), *moves((0.65, 0.85), (0.4, 0.85)))
measure("snap mark", Pointer(), lambda: key(SHIFT, 1), lambda: key(SHIFT, 0))
clicked(0.2, 0.85, RIGHT_BUTTON)
measure("pan step", objects, lambda: key(ARROW_RIGHT, 1, 0), lambda: key(ARROW_LEFT, 1, 0))
move(*at(0.5, 0.5))
measure("wheel step", objects, lambda: button(WHEEL_UP), lambda: button(WHEEL_DOWN))

chosen(64, 238)  # Window Select
chosen(*at(0.01, 0.01))
chosen(*at(0.43, 0.62))
clicked(0.2, 0.85, RIGHT_BUTTON)
chosen(WIDTH - 108, 381 + 18 * 7)  # Move, of the edits
clicked(0.1, 0.1)
measure("ghost of 10,000", Pixels(0.35, 0.8), *moves((0.2, 0.6), (0.21, 0.62)))
clicked(0.2, 0.85, RIGHT_BUTTON)
