"""Writes the sample drawings of this folder and values.tsv, the table that the tests compare with.

Each shape is built from its nominal dimensions (EN 10365, EN 10056-1, EN 10279, EN 10210-2) or is our own. The
closed-form rows integrate the drawn lines and arcs by Green's theorem, with 40 Gauss points along each arc, in code
that shares nothing with the library. The published rows are the rounded figures of the section tables; their bound
is half a unit of the last digit, rounded up.
"""
import math
import pathlib
import random

HERE = pathlib.Path(__file__).resolve().parent


def gauss_points(count):
    """Nodes and weights on 0..1, by Newton's method on the Legendre polynomial."""
    points = []
    for i in range(count):
        x = math.cos(math.pi * (i + 0.75) / (count + 0.5))
        for _ in range(100):
            p0, p1 = 1.0, x
            for k in range(2, count + 1):
                p0, p1 = p1, ((2 * k - 1) * x * p1 - (k - 1) * p0) / k
            slope = count * (x * p1 - p0) / (x * x - 1)
            step = p1 / slope
            x -= step
            if abs(step) < 1e-16:
                break
        points.append(((x + 1) / 2, 1 / ((1 - x * x) * slope * slope)))
    return points


GAUSS = gauss_points(40)


def arc_of(a, b, bulge):
    """Centre, radius, start angle and signed sweep; a positive bulge runs counter-clockwise."""
    chord = math.dist(a, b)
    toward = (1 - bulge * bulge) / (4 * bulge)
    cx = (a[0] + b[0]) / 2 - (b[1] - a[1]) * toward
    cy = (a[1] + b[1]) / 2 + (b[0] - a[0]) * toward
    radius = chord * (1 + bulge * bulge) / (4 * abs(bulge))
    return cx, cy, radius, math.atan2(a[1] - cy, a[0] - cx), 4 * math.atan(bulge)


def side_points(a, b, bulge):
    """(x, y, dx/dt, dy/dt, weight) along a side."""
    for t, weight in GAUSS:
        if bulge == 0:
            yield a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1]), b[0] - a[0], b[1] - a[1], weight
        else:
            cx, cy, r, start, sweep = arc_of(a, b, bulge)
            angle = start + t * sweep
            yield (cx + r * math.cos(angle), cy + r * math.sin(angle), -r * sweep * math.sin(angle),
                   r * sweep * math.cos(angle), weight)


def integrals(outlines):
    """A, integrals of x, y, x^2, y^2, xy, and the length of all sides."""
    sums = [0.0] * 7
    for outline in outlines:
        for i, (x1, y1, bulge) in enumerate(outline):
            x2, y2, _ = outline[(i + 1) % len(outline)]
            for x, y, dx, dy, w in side_points((x1, y1), (x2, y2), bulge):
                terms = (x * dy, x * x / 2 * dy, -y * y / 2 * dx, x ** 3 / 3 * dy, -y ** 3 / 3 * dx,
                         x * x * y / 2 * dy, math.hypot(dx, dy))
                sums = [s + w * term for s, term in zip(sums, terms)]
    return sums


def exact_values(outlines, unit):
    """Closed-form values in metres."""
    area, mx, my, mxx, myy, mxy, length = integrals(outlines)
    xc, yc = mx / area, my / area
    return {"area": area * unit ** 2, "perimeter": length * unit, "xc": xc * unit, "yc": yc * unit,
            "Ix": (myy - area * yc * yc) * unit ** 4, "Iy": (mxx - area * xc * xc) * unit ** 4,
            "Ixy": (mxy - area * xc * yc) * unit ** 4}


def rounded(corners):
    """Vertices with bulges of a counter-clockwise polygon whose corners (x, y, radius) are rounded by tangent arcs."""
    outline = []
    count = len(corners)
    for i, (x, y, radius) in enumerate(corners):
        if radius == 0:
            outline.append((x, y, 0.0))
            continue
        before, after = corners[i - 1], corners[(i + 1) % count]
        u = unit_vector(before[0] - x, before[1] - y)
        v = unit_vector(after[0] - x, after[1] - y)
        angle = math.acos(max(-1.0, min(1.0, u[0] * v[0] + u[1] * v[1])))
        distance = radius / math.tan(angle / 2)
        bulge = math.tan((math.pi - angle) / 4)
        if u[0] * v[1] - u[1] * v[0] > 0:  # a re-entrant corner turns the other way
            bulge = -bulge
        outline.append((x + u[0] * distance, y + u[1] * distance, bulge))
        outline.append((x + v[0] * distance, y + v[1] * distance, 0.0))
    return outline


def unit_vector(x, y):
    size = math.hypot(x, y)
    return x / size, y / size


def i_section(h, b, tw, tf, r):
    w, f = tw / 2, b / 2
    return rounded([(-f, 0, 0), (f, 0, 0), (f, tf, 0), (w, tf, r), (w, h - tf, r), (f, h - tf, 0), (f, h, 0),
                    (-f, h, 0), (-f, h - tf, 0), (-w, h - tf, r), (-w, tf, r), (-f, tf, 0)])


def channel_section(h, b, tw, tf, r1, r2):
    """Tapered flanges of 8 per cent; tf is measured at half the flange's width."""
    def lower(x):
        return tf + (b / 2 - x) * 0.08
    return rounded([(0, 0, 0), (b, 0, 0), (b, lower(b), r2), (tw, lower(tw), r1), (tw, h - lower(tw), r1),
                    (b, h - lower(b), r2), (b, h, 0), (0, h, 0)])


def angle_section(a, t, r1, r2):
    return rounded([(0, 0, 0), (a, 0, 0), (a, t, r2), (t, t, r1), (t, a, r2), (0, a, 0)])


def box(x1, y1, x2, y2, radius):
    return rounded([(x1, y1, radius), (x2, y1, radius), (x2, y2, radius), (x1, y2, radius)])


def circle(x, y, radius):
    return [(x + radius, y, 1.0), (x - radius, y, 1.0)]


def reversed_outline(outline):
    points = [(x, y) for x, y, _ in outline]
    bulges = [bulge for _, _, bulge in outline]
    points.reverse()
    bulges = [-bulge for bulge in reversed(bulges[:-1])] + [-bulges[-1]]
    return [(x, y, bulge) for (x, y), bulge in zip(points, bulges)]


# ---- writing --------------------------------------------------------------------------------------------------------


class Drawing:
    def __init__(self, units):
        self.lines = ["0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", "AC1015", "9", "$INSUNITS", "70", str(units),
                      "0", "ENDSEC"]

    def group(self, code, value):
        self.lines += [str(code), value if isinstance(value, str) else f"{value:.12g}"]

    def start(self, name):
        self.lines += ["0", "SECTION", "2", name]

    def end(self):
        self.lines += ["0", "ENDSEC"]

    def entity(self, name, layer, **_):
        self.group(0, name)
        self.group(8, layer)

    def line(self, a, b, layer="0"):
        self.entity("LINE", layer)
        for code, value in ((10, a[0]), (20, a[1]), (30, 0.0), (11, b[0]), (21, b[1]), (31, 0.0)):
            self.group(code, value)

    def arc(self, a, b, bulge, layer="0"):
        cx, cy, radius, start, sweep = arc_of(a, b, bulge)
        first, last = (start, start + sweep) if sweep > 0 else (start + sweep, start)
        self.entity("ARC", layer)
        for code, value in ((10, cx), (20, cy), (30, 0.0), (40, radius), (50, math.degrees(first) % 360),
                            (51, math.degrees(last) % 360)):
            self.group(code, value)

    def loose(self, outline, seed, layer="0"):
        """Every side on its own, shuffled, some of them the other way round."""
        order = list(range(len(outline)))
        random.Random(seed).shuffle(order)
        for i in order:
            x1, y1, bulge = outline[i]
            a, b = (x1, y1), outline[(i + 1) % len(outline)][:2]
            if bulge:
                self.arc(a, b, bulge, layer)
            elif i % 2:
                self.line(b, a, layer)
            else:
                self.line(a, b, layer)

    def lwpolyline(self, outline, closed=True, layer="0"):
        self.entity("LWPOLYLINE", layer)
        self.group(90, str(len(outline)))
        self.group(70, "1" if closed else "0")
        for x, y, bulge in outline:
            self.group(10, x)
            self.group(20, y)
            if bulge:
                self.group(42, bulge)

    def polyline(self, outline, layer="0"):
        self.entity("POLYLINE", layer)
        self.group(66, "1")
        self.group(70, "1")
        for x, y, bulge in outline:
            self.entity("VERTEX", layer)
            self.group(10, x)
            self.group(20, y)
            self.group(30, 0.0)
            self.group(42, bulge)
        self.group(0, "SEQEND")

    def circle(self, x, y, radius, layer="0"):
        self.entity("CIRCLE", layer)
        for code, value in ((10, x), (20, y), (30, 0.0), (40, radius)):
            self.group(code, value)

    def insert(self, block, x, y, **groups):
        self.entity("INSERT", groups.pop("layer", "0"))
        self.group(2, block)
        for code, value in ((10, x), (20, y), (30, 0.0)):
            self.group(code, value)
        for code, value in sorted((int(name[1:]), value) for name, value in groups.items()):
            self.group(code, str(value) if isinstance(value, int) else value)

    def begin_block(self, name, x, y):
        self.entity("BLOCK", "0")
        for code, value in ((2, name), (70, "0"), (10, x), (20, y), (30, 0.0), (3, name)):
            self.group(code, value)

    def end_block(self):
        self.group(0, "ENDBLK")

    def save(self, name):
        self.group(0, "EOF")
        (HERE / name).write_bytes(("\r\n".join(self.lines) + "\r\n").encode("ascii"))


MILLIMETRES, CENTIMETRES, METRES = 4, 5, 6
UNIT = {MILLIMETRES: 0.001, CENTIMETRES: 0.01, METRES: 1.0}
ROWS = []


def table(name, outlines, units, published):
    for quantity, value in exact_values(outlines, UNIT[units]).items():
        ROWS.append((name, quantity, f"{value:.12g}", "1e-6", "closed form"))
    for quantity, value, bound in published:
        ROWS.append((name, quantity, f"{value:.6g}", f"{bound:g}", "published"))


def one_shape(name, draw, outlines, units, published=()):
    drawing = Drawing(units)
    drawing.start("ENTITIES")
    draw(drawing)
    drawing.end()
    drawing.save(name)
    table(name, outlines, units, published)


def rolled_shapes():
    ipe = i_section(200, 100, 5.6, 8.5, 12)
    ipe_values = [("area", 28.48e-4, 2e-4), ("Ix", 1943e-8, 3e-4), ("Iy", 142.4e-8, 4e-4), ("Wx_top", 194.3e-6, 3e-4),
                  ("Wpl_x", 220.6e-6, 2e-3), ("Wpl_y", 44.61e-6, 2e-3)]
    one_shape("ipe200.dxf", lambda d: d.lwpolyline(ipe), [ipe], MILLIMETRES, ipe_values)
    heb = i_section(200, 200, 9, 15, 18)
    one_shape("heb200.dxf", lambda d: d.polyline(heb), [heb], MILLIMETRES,
              [("area", 78.08e-4, 1e-4), ("Ix", 5696e-8, 1e-4), ("Iy", 2003e-8, 3e-4), ("Wx_top", 569.6e-6, 1e-4),
               ("Wpl_x", 642.5e-6, 2e-3), ("Wpl_y", 305.8e-6, 2e-3)])
    upn = channel_section(200, 75, 8.5, 11.5, 11.5, 6)
    one_shape("upn200.dxf", lambda d: d.loose(upn, 7), [upn], MILLIMETRES,
              [("area", 32.2e-4, 2e-3), ("Ix", 1910e-8, 3e-3), ("Iy", 148e-8, 4e-3), ("xc", 20.1e-3, 3e-3),
               ("Wpl_x", 228e-6, 4e-3)])
    angle = angle_section(100, 10, 12, 6)
    one_shape("l100x100x10.dxf", lambda d: d.lwpolyline(reversed_outline(angle)), [angle], MILLIMETRES,
              [("area", 19.2e-4, 3e-3), ("Ix", 177e-8, 3e-3), ("xc", 28.2e-3, 2e-3), ("Imax", 280e-8, 3e-3),
               ("Imin", 73.0e-8, 3e-3)])
    half_shape("ipe200_halves.dxf", ipe, ipe_values)


def half_shape(name, ipe, published):
    """The right half as an open polyline in a block, inserted as it is and mirrored."""
    first = min(i for i, (x, y, _) in enumerate(ipe) if x > 0)
    right = [vertex for vertex in ipe[first:] + ipe[:first] if vertex[0] > 0]
    half = [(0.0, 0.0, 0.0), *right, (0.0, 200.0, 0.0)]
    drawing = Drawing(MILLIMETRES)
    drawing.start("BLOCKS")
    drawing.begin_block("HALF", 0.0, 100.0)
    drawing.lwpolyline(half, closed=False)
    drawing.end_block()
    drawing.end()
    drawing.start("ENTITIES")
    drawing.insert("HALF", 0.0, 100.0, layer="STEEL")
    drawing.insert("HALF", 0.0, 100.0, layer="STEEL", g41=-1.0)
    drawing.end()
    drawing.save(name)
    table(name, [ipe], MILLIMETRES, published)


def other_shapes():
    outer, inner = box(0, 0, 100, 200, 12), reversed_outline(box(8, 8, 92, 192, 8))

    def draw_hollow(drawing):
        drawing.lwpolyline(outer)
        drawing.loose(inner, 3)
    one_shape("rhs200x100x8.dxf", draw_hollow, [outer, inner], MILLIMETRES)

    tee = [(x, y, 0.0) for x, y in ((-0.15, 0), (0.15, 0), (0.15, 0.5), (0.6, 0.55), (0.6, 0.7), (-0.6, 0.7),
                                    (-0.6, 0.55), (-0.15, 0.5))]
    one_shape("t_beam.dxf", lambda d: d.loose(tee, 11), [tee], METRES)

    girder = rounded([(-200, 0, 30), (200, 0, 30), (250, 110, 0), (550, 150, 0), (550, 175, 0), (-550, 175, 0),
                      (-550, 150, 0), (-250, 110, 0)])
    voids = [(-120, 80, 45), (0, 80, 45), (120, 80, 45)]

    def draw_girder(drawing):
        drawing.lwpolyline(girder, layer="CONCRETE")
        for void in voids:
            drawing.circle(*void, layer="VOIDS")
    one_shape("box_girder.dxf", draw_girder, [girder] + [reversed_outline(circle(*void)) for void in voids],
              CENTIMETRES)
    pipe_rows()


def pipe_rows():
    """Six pipes from one block, inserted as an array of three columns and two rows, turned by 90 degrees."""
    drawing = Drawing(MILLIMETRES)
    drawing.start("BLOCKS")
    drawing.begin_block("PIPE", 0.0, 0.0)
    drawing.circle(0.0, 0.0, 30.0)
    drawing.circle(0.0, 0.0, 25.0)
    drawing.end_block()
    drawing.end()
    drawing.start("ENTITIES")
    drawing.insert("PIPE", 500.0, 100.0, g44=100.0, g45=80.0, g50=90.0, g70=3, g71=2)
    drawing.end()
    drawing.save("pipes.dxf")
    outlines = []
    for column in range(3):
        for row in range(2):
            x, y = 500 - 80 * row, 100 + 100 * column  # a quarter turn takes columns up and rows to the left
            outlines += [circle(x, y, 30), reversed_outline(circle(x, y, 25))]
    table("pipes.dxf", outlines, MILLIMETRES, ())


def main():
    rolled_shapes()
    other_shapes()
    rows = ["\t".join(row) for row in [("drawing", "quantity", "value", "bound", "source"), *ROWS]]
    (HERE / "values.tsv").write_text("\n".join(rows) + "\n", encoding="ascii")


main()
