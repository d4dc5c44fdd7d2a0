"""Lists the objects of a DXF file as a reader that is none of ours sees them. Exits with 77 without it."""
import sys

try:
    import ezdxf
except ImportError:
    sys.exit(77)

for e in ezdxf.readfile(sys.argv[1]).modelspace():
    d = e.dxf
    if e.dxftype() == "LINE":
        numbers = (d.start.x, d.start.y, d.end.x, d.end.y)
    elif e.dxftype() == "CIRCLE":
        numbers = (d.center.x, d.center.y, d.radius)
    elif e.dxftype() == "ARC":
        numbers = (d.center.x, d.center.y, d.radius, d.start_angle, d.end_angle)
    else:
        numbers = (d.insert.x, d.insert.y, d.height, d.rotation)
    words = d.text if e.dxftype() == "TEXT" else d.linetype
    print(e.dxftype(), *("%.6g" % n for n in numbers), d.layer, d.color, words)
