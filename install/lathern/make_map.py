#!/usr/bin/env python3
"""Makes MAP.DAT, the outline of the conterminous United States with the borders of its states.

    make_map.py states-10m.json

`states-10m.json` is the file of that name in the npm package us-atlas 3.0.1: the cartographic boundary files of the
U.S. Census Bureau (states, 2017, in the public domain) as a topology, in which each border that two states share is one
arc. Arcs of one state are the outline, arcs of two are inner borders.
"""

import json
import math
import sys
from collections import Counter
from pathlib import Path

MAP = Path(__file__).parent.parent / "MAP.DAT"
ELSEWHERE = {"02", "15", "60", "66", "69", "72", "78"}  # Alaska, Hawaii and the territories

TOLERANCE = 0.02  # degrees that a simplified line may be off
SMALLEST_ISLAND = 0.15  # degrees across

# The map lies in the middle of an area of these proportions, true to shape at the middle latitude.
AREA_WIDTH, AREA_HEIGHT = 634, 428
WEST, EAST = 126.0, 65.5
MIDDLE_LATITUDE = 37.5

TEXT = "Conterminous United States, from the U.S. Census Bureau's cartographic boundary files of 2017"


def arcs_of(geometry):
    rings = geometry["arcs"] if geometry["type"] == "Polygon" else sum(geometry["arcs"], [])
    return {arc if arc >= 0 else ~arc for ring in rings for arc in ring}


def decoded(topology, arc):
    """An arc's points as latitudes and west longitudes."""
    (scale_x, scale_y), (left, bottom) = topology["transform"]["scale"], topology["transform"]["translate"]
    x = y = 0
    points = []
    for dx, dy in topology["arcs"][arc]:
        x, y = x + dx, y + dy
        points.append((y * scale_y + bottom, -(x * scale_x + left)))
    return points


def distance(point, start, end):
    """From a point to the line between two others, in degrees of latitude."""
    shrink = math.cos(math.radians(MIDDLE_LATITUDE))
    (py, px), (sy, sx), (ey, ex) = ((lat, lon * shrink) for lat, lon in (point, start, end))
    length = (ex - sx) ** 2 + (ey - sy) ** 2
    along = 0 if length == 0 else max(0, min(1, ((px - sx) * (ex - sx) + (py - sy) * (ey - sy)) / length))
    return math.hypot(px - sx - along * (ex - sx), py - sy - along * (ey - sy))


def simplified(points):
    """The fewest points of a line that the method of Douglas and Peucker (1973) keeps."""
    if len(points) < 3:
        return points
    farthest = max(range(1, len(points) - 1), key=lambda i: distance(points[i], points[0], points[-1]))
    if distance(points[farthest], points[0], points[-1]) <= TOLERANCE:
        return [points[0], points[-1]]
    return simplified(points[:farthest + 1])[:-1] + simplified(points[farthest:])


def is_speck(points):
    return points[0] == points[-1] and all(
        max(p[axis] for p in points) - min(p[axis] for p in points) < SMALLEST_ISLAND for axis in (0, 1))


def polylines(topology, arcs):
    lines = [decoded(topology, arc) for arc in sorted(arcs)]
    return [simplified(points) for points in lines if not is_speck(points)]


def bounds():
    """West, east, north and south in hundredths of a degree, in the proportions of the area."""
    degrees = (WEST - EAST) * math.cos(math.radians(MIDDLE_LATITUDE)) * AREA_HEIGHT / AREA_WIDTH
    return [round(100 * bound)
            for bound in (WEST, EAST, MIDDLE_LATITUDE + degrees / 2, MIDDLE_LATITUDE - degrees / 2)]


def listed(lines):
    yield str(len(lines))
    for points in lines:
        yield str(len(points))
        yield from (f"{latitude:.2f},{longitude:.2f}" for latitude, longitude in points)


def main():
    topology = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    states = topology["objects"]["states"]["geometries"]
    used = Counter(arc for state in states if state["id"] not in ELSEWHERE for arc in arcs_of(state))
    outline = polylines(topology, [arc for arc, states in used.items() if states == 1])
    borders = polylines(topology, [arc for arc, states in used.items() if states > 1])
    text = [",".join(map(str, bounds() + [0])), *listed(outline), f'"{TEXT}"', *listed(borders)]
    MAP.write_bytes("".join(line + "\r\n" for line in text).encode("ascii"))
    print(sum(map(len, outline)), "points of the outline,", sum(map(len, borders)), "of the borders")


if __name__ == "__main__":
    main()
