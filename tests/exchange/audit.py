"""Says what a reader that is none of ours finds wrong in a DXF file: nothing, for a good one. "missing" without it."""
import sys

try:
    import ezdxf
    from ezdxf import recover
except ImportError:
    print("missing")
    sys.exit()

document = ezdxf.readfile(sys.argv[1])
for found in (document.audit(), recover.readfile(sys.argv[1])[1]):
    for fault in found.errors + found.fixes:
        print(fault.code, fault.message)
