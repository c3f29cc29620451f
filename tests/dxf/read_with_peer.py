"""Reads a drawing with an independent reader and prints its entities, a line each; exit code 9 without the reader."""
import sys

try:
    import ezdxf
except ImportError:
    sys.exit(9)


def point(p):
    return "(%.3f %.3f %.3f)" % tuple(p)


for entity in ezdxf.readfile(sys.argv[1]).modelspace():
    kind = entity.dxftype()
    words = [kind, entity.dxf.layer, str(entity.dxf.get("color", 256))]
    if kind == "LINE":
        words += [point(entity.dxf.start), point(entity.dxf.end), "%.3f" % entity.dxf.thickness]
    elif kind == "3DFACE":
        words += [point(entity.dxf.get(name)) for name in ("vtx0", "vtx1", "vtx2", "vtx3")]
    elif kind == "TEXT":
        words += [point(entity.dxf.insert), "%g" % entity.dxf.height, entity.dxf.text]
    elif kind == "POLYLINE":
        words += [str(entity.dxf.flags), point(entity.dxf.extrusion), point(entity.dxf.elevation)]
        words += ["%s %.3f %d" % (point(v.dxf.location), v.dxf.bulge, v.dxf.flags) for v in entity.vertices]
    print(" ".join(words))
