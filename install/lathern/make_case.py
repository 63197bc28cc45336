#!/usr/bin/env python3
"""Makes the base case of the Lathern Soap Company: FIL.DAT, OLDSOL.DAT and LTH01.dat.

The company and all its figures are invented. Its cities are real: their 2010 populations are from the decennial census
and their coordinates from the Gazetteer files of the U.S. Census Bureau, both in the public domain (cities.csv).

A customer stands for a territory, his state's population shared among the state's customers in proportion to their
cities, and buys so much soap a head. Costs differ by what labour and ground cost in a region, give or take a little.
"""

import csv
import random
from collections import defaultdict
from pathlib import Path

HERE = Path(__file__).parent
SEED = 1907

# Census divisions, which number the regions, with the level of costs in each.
DIVISIONS = {
    1: ("CT ME MA NH RI VT", 1.12),
    2: ("NJ NY PA", 1.10),
    3: ("IL IN MI OH WI", 1.00),
    4: ("IA KS MN MO NE ND SD", 0.94),
    5: ("DE DC FL GA MD NC SC VA WV", 0.95),
    6: ("AL KY MS TN", 0.88),
    7: ("AR LA OK TX", 0.92),
    8: ("AZ CO ID MT NV NM UT WY", 0.98),
    9: ("CA OR WA", 1.14),
}
DIVISION = {state: number for number, (states, _) in DIVISIONS.items() for state in states.split()}
LEVEL = {state: DIVISIONS[number][1] for state, number in DIVISION.items()}

# U.S. Census Bureau, 2010 Census: resident population.
STATE_POPULATION = {
    "AL": 4779736, "AZ": 6392017, "AR": 2915918, "CA": 37253956, "CO": 5029196, "CT": 3574097, "DE": 897934,
    "DC": 601723, "FL": 18801310, "GA": 9687653, "ID": 1567582, "IL": 12830632, "IN": 6483802, "IA": 3046355,
    "KS": 2853118, "KY": 4339367, "LA": 4533372, "ME": 1328361, "MD": 5773552, "MA": 6547629, "MI": 9883640,
    "MN": 5303925, "MS": 2967297, "MO": 5988927, "MT": 989415, "NE": 1826341, "NV": 2700551, "NH": 1316470,
    "NJ": 8791894, "NM": 2059179, "NY": 19378102, "NC": 9535483, "ND": 672591, "OH": 11536504, "OK": 3751351,
    "OR": 3831074, "PA": 12702379, "RI": 1052567, "SC": 4625364, "SD": 814180, "TN": 6346105, "TX": 25145561,
    "UT": 2763885, "VT": 625741, "VA": 8001024, "WA": 6724540, "WV": 1852994, "WI": 5686986, "WY": 563626,
}

SALES_PER_HEAD = 0.005  # cwt. a year

PLANTS = [  # city, state, capacity in cwt. a year, production cost in $/cwt.
    ("Chicago", "IL", 620000, 21.3),
    ("Memphis", "TN", 410000, 20.6),
    ("Allentown", "PA", 540000, 22.1),
    ("Atlanta", "GA", 360000, 20.9),
    ("Houston", "TX", 300000, 20.4),
    ("Sacramento", "CA", 450000, 22.8),
]
SELECTED_PLANTS = {"Chicago", "Memphis", "Allentown", "Sacramento"}

WAREHOUSES = """
    Albany NY, Albuquerque NM, Atlanta GA, Baltimore MD, Billings MT, Birmingham AL, Boise City ID, Boston MA,
    Buffalo NY, Charlotte NC, Chicago IL, Cleveland OH, Columbus OH, Dallas TX, Denver CO, Des Moines IA, Detroit MI,
    El Paso TX, Hartford CT, Houston TX, Indianapolis IN, Jackson MS, Jacksonville FL, Kansas City MO, Las Vegas NV,
    Los Angeles CA, Louisville KY, Memphis TN, Miami FL, Milwaukee WI, Minneapolis MN, Nashville TN, New Orleans LA,
    Newark NJ, Oklahoma City OK, Omaha NE, Philadelphia PA, Phoenix AZ, Pittsburgh PA, Portland OR, Raleigh NC,
    Richmond VA, Sacramento CA, St. Louis MO, Salt Lake City UT, San Antonio TX, Seattle WA, Tampa FL"""
SELECTED_WAREHOUSES = {"Atlanta", "Boston", "Charlotte", "Chicago", "Columbus", "Dallas", "Denver", "Kansas City",
                       "Los Angeles", "Memphis", "Minneapolis", "New Orleans", "Newark", "Philadelphia", "Sacramento",
                       "Salt Lake City", "Seattle", "Tampa"}

PLANT_WAREHOUSE = (0.92, 0.002)  # $/cwt., $/cwt./mile; whole truckloads
WAREHOUSE_CUSTOMER = (5.45, 0.0037)
CAPITAL_COST, PRODUCT_VALUE = 12, 26  # %/year, $/cwt.
INVENTORY = (11.3, 0.58)  # constant, exponent
DESIRED_DISTANCE = 300  # miles


def read_cities():
    with (HERE / "cities.csv").open(newline="", encoding="utf-8") as file:
        return {(row["city"], row["state"]): row for row in csv.DictReader(file)}


def number(value):
    """A number as the suite writes it: no zero before the point, none at the end."""
    text = f"{value:.4f}".rstrip("0").rstrip(".")
    return text[1:] if text.startswith("0.") else text


def label(city, state):
    return f'"{city.removesuffix(" City") if city == "Boise City" else city}, {state}"'


def place(city):
    return number(float(city["latitude"])), number(float(city["longitude"]))


def plant_lines(cities):
    for name, state, capacity, cost in PLANTS:
        yield [*place(cities[name, state]), label(name, state), number(capacity), number(cost)]


def warehouse_lines(cities, rng):
    for entry in WAREHOUSES.replace("\n", " ").split(","):
        name, state = entry.strip().rsplit(" ", 1)
        level = LEVEL[state]
        figures = [
            (level * rng.uniform(0.055, 0.075), 4),  # storage, $/$
            (level * rng.uniform(0.45, 0.75), 2),  # handling, $/cwt.
            (level * rng.uniform(16, 22), 2),  # stock order processing, $/order
            (rng.uniform(320, 480), 0),  # stock order size, cwt.
            (level * rng.uniform(1.5, 2.1), 2),  # customer order processing, $/order
            (rng.uniform(7, 12), 2),  # customer order size, cwt.
            (level * rng.uniform(1.6, 2.4), 2),  # local delivery, $/cwt.
        ]
        yield [*place(cities[name, state]), label(name, state), *(number(round(*figure)) for figure in figures)]


def customer_lines(cities, rng):
    population = defaultdict(int)
    for (_, state), city in cities.items():
        population[state] += int(city["census_2010"])
    for (name, state), city in cities.items():
        territory = STATE_POPULATION[state] * int(city["census_2010"]) / population[state]
        sales = territory * SALES_PER_HEAD * rng.uniform(0.9, 1.1)
        yield [number(DIVISION[state]), *place(city), number(round(sales)), label(name, state)]


def case_lines():
    cities = read_cities()
    rng = random.Random(SEED)
    for table in (plant_lines(cities), warehouse_lines(cities, rng), customer_lines(cities, rng)):
        rows = list(table)
        yield str(len(rows))
        yield from (",".join(row) for row in rows)
    for line in (PLANT_WAREHOUSE, (CAPITAL_COST, PRODUCT_VALUE, *INVENTORY), WAREHOUSE_CUSTOMER):
        yield ",".join(map(number, line))


def selection_lines():
    yield number(DESIRED_DISTANCE)
    warehouses = [entry.strip().rsplit(" ", 1)[0] for entry in WAREHOUSES.replace("\n", " ").split(",")]
    for names, selected in (([plant[0] for plant in PLANTS], SELECTED_PLANTS), (warehouses, SELECTED_WAREHOUSES)):
        yield str(len(names))
        yield from ('"X"' if name in selected else '" "' for name in names)


def write(name, lines):
    (HERE.parent / name).write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))


def main():
    case = list(case_lines())
    write("FIL.DAT", case)
    write("LTH01.dat", case)
    write("OLDSOL.DAT", selection_lines())


if __name__ == "__main__":
    main()
