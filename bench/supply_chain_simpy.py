#!/usr/bin/python3
"""The channel of bench_supply_chain, written plainly with SimPy (python3-simpy3), beside Vantore.

    supply_chain_simpy.py PATH-TO-bench_supply_chain [YEARS]

The same levels, calculated reorder points, normal demand and normal lead times; each level is a process that wakes
once a day, each order and shipment a process that waits for its lead time. The random numbers are Python's own, so
that the figures agree in kind, not digit by digit: mean stock and order counts are told for comparison. Both are
timed in this one run; without SimPy nothing is measured.
"""
import json
import math
import random
import subprocess
import sys
import time

try:
    import simpy
except ImportError:
    print("SimPy: not measured, python3-simpy3 isn't installed")
    sys.exit(0)

DAYS = 360
WARM_UP = 359


def days(mean, deviation):
    return max(1, math.floor(random.gauss(mean, deviation)))


def safety_factor(loss):
    """The normal deviate of a unit normal loss, by bisection."""
    if loss >= .3989:
        return 0
    low, high = 0, 4
    for _ in range(20):
        z = (low + high) / 2
        density = math.exp(-z * z / 2) / math.sqrt(2 * math.pi)
        tail = math.erfc(z / math.sqrt(2)) / 2
        if density - z * tail > loss:
            low = z
        else:
            high = z
    return low


class Level:
    def __init__(self, channel, name, value, lead_time, fill_time, transit):
        self.channel, self.name, self.value, self.lead_time = channel, name, value, lead_time
        self.fill_time, self.transit = fill_time, transit
        self.on_hand = self.back_orders = self.on_order = self.due = self.stock_days = self.orders = 0
        self.forecast, self.supplier, self.customer = 1.0, None, None

    def arrive(self, quantity, wait):
        yield self.channel.env.timeout(wait)
        self.on_hand += quantity
        self.on_order = max(0, self.on_order - quantity)

    def be_ordered(self, quantity, wait):
        yield self.channel.env.timeout(wait)
        self.due += quantity

    def fill(self):
        wanted = self.back_orders + self.due
        shipped = min(self.on_hand, wanted)
        self.on_hand -= shipped
        self.back_orders = wanted - shipped
        self.due = 0
        if shipped and self.customer:
            self.channel.env.process(self.customer.arrive(shipped, days(*self.customer.transit)))

    def replenish(self, demand):
        deviation = abs(demand - self.forecast)
        quantity = max(1, math.sqrt(2 * max(self.forecast, 0) * DAYS * 5 / (.25 * self.value)))
        spread = deviation * math.sqrt(self.lead_time)
        z = safety_factor(quantity * .05 / spread) if spread else 0
        point = max(1, math.floor(self.forecast * self.lead_time + z * spread))
        ordered = 0
        while self.on_hand + self.on_order - self.back_orders < point:
            self.on_order += round(quantity)
            ordered += round(quantity)
            self.orders += self.channel.env.now > WARM_UP
        self.forecast += .1 * (demand - self.forecast)
        return ordered


class Channel:
    def __init__(self, years):
        self.env, self.years, self.waiting = simpy.Environment(), years, 0
        retailer = Level(self, "retailer", 10, 5, (2, .5), (3, .7))
        distributor = Level(self, "distributor", 10, 5, (2, .5), (3, .7))
        warehouse = Level(self, "warehouse", 10, 7, (2, .5), (3, .7))
        distributor.customer, warehouse.customer = retailer, distributor
        self.levels = [retailer, distributor, warehouse]
        self.env.process(self.run())

    def demand(self, day):
        season = .9 + (day % DAYS // 30 + 1) / 60
        return max(0, math.floor(100 * (.98 + .02 * day / DAYS) * season + random.gauss(0, 20)))

    def run(self):
        for day in range(DAYS * (self.years + 1)):
            demand = self.demand(day)
            for level in self.levels:
                self.env.process(level.be_ordered(demand, days(*level.fill_time)))
                level.fill()
                demand = level.replenish(demand)
                level.stock_days += level.on_hand if day > WARM_UP else 0
            self.waiting += demand
            while self.waiting >= 100:
                self.waiting -= 100
                wait = days(4, 1) + days(*self.levels[-1].transit)
                self.env.process(self.levels[-1].arrive(100, wait))
            yield self.env.timeout(1)


def simpy_seconds(years):
    random.seed(1961)
    start = time.perf_counter()
    channel = Channel(years)
    channel.env.run()
    seconds = time.perf_counter() - start
    for level in channel.levels:
        print("  %-12s mean stock %.0f, orders a year %.0f" %
              (level.name, level.stock_days / DAYS / years, level.orders / years))
    return seconds


def vantore_seconds(program, years):
    out = subprocess.run([program, "--benchmark_filter=^simulateYears/%d$" % years, "--benchmark_format=json"],
                         check=True, capture_output=True, text=True).stdout
    return json.loads(out)["benchmarks"][0]["real_time"] / 1000


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    years = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    print("SimPy %s, %d years:" % (simpy.__version__, years))
    theirs = min(simpy_seconds(years) for _ in range(3))
    ours = vantore_seconds(sys.argv[1], years)
    print("SimPy %.1f ms, Vantore %.3f ms, ratio %.0f" % (1000 * theirs, 1000 * ours, theirs / ours))


if __name__ == "__main__":
    main()
