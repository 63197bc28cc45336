#!/usr/bin/env python3
"""Gives the cities of cities.csv their Census codes and coordinates.

    locate_cities.py places.gz

`places.gz` is /usr/share/weather-util/places.gz of Debian's package weather-util-data: the places of the Gazetteer
files of the U.S. Census Bureau (2022, in the public domain), with their internal points in radians. Longitudes in
cities.csv are west of Greenwich, as on the maps of the suite.
"""

import csv
import gzip
import math
import re
import sys
from pathlib import Path

CITIES = Path(__file__).with_name("cities.csv")
KIND_OF_PLACE = re.compile(
    r"(?:[-/][A-Z]\w+(?: [A-Z]\w+)?)?"  # a county under one government with its city
    r" (?:city|town|village|urban county|(?:metro(?:politan)?|consolidated) government)(?: \(balance\))?$")


def places(path):
    """Each place's code, latitude and longitude by its name and state."""
    found = {}
    with gzip.open(path, "rt", encoding="utf-8") as file:
        for section in file.read().split("\n[")[1:]:
            code = re.match(r"fips(\d{7})\]", section)
            name = re.search(r"^description = (.+), ([A-Z]{2})$", section, re.M)
            centroid = re.search(r"^centroid = \((\S+), (\S+)\)$", section, re.M)
            if code and name and centroid:
                city = KIND_OF_PLACE.sub("", name[1])
                latitude, longitude = (math.degrees(float(radians)) for radians in centroid.groups())
                found.setdefault((city, name[2]), (code[1], f"{latitude:.4f}", f"{-longitude:.4f}"))
    return found


def main():
    where = places(sys.argv[1])
    with CITIES.open(newline="", encoding="utf-8") as file:
        cities = list(csv.DictReader(file))
    for city in cities:
        city["geoid"], city["latitude"], city["longitude"] = where[city["city"], city["state"]]
    with CITIES.open("w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, ["geoid", "city", "state", "latitude", "longitude", "census_2010"],
                                lineterminator="\n")
        writer.writeheader()
        writer.writerows(cities)


if __name__ == "__main__":
    main()
