#!/usr/bin/env python3
"""Compares the estimated peak of a solve with what the process takes.

Usage: tools/memory_peaks.py PROGRAM [NAME...]

Solves each spot of a table (or those named) with the headless tool for one iteration and a
measure, and prints estimate, peak resident memory of the process and their ratio.
"""

import json
import os
import subprocess
import sys
import tempfile

WIDE = "22+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s," \
       "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,42o+,32o"
MIDDLE = "22+,A2s+,K9s+,Q9s+,J9s+,T8s+,98s,87s,76s,65s,ATo+,KTo+,QJo"
NARROW = "AA,KK,AKs"


def spot(board, oop, ip, stack, sizes, raises="", **more):
    keys = {"board": board, "oop_range": oop, "ip_range": ip, "starting_pot": 100,
            "effective_stack": stack, "max_iterations": 1}
    for seat in ("oop", "ip"):
        for street in ("flop", "turn", "river"):
            keys[f"{seat}_{street}_bet_sizes"] = sizes
            keys[f"{seat}_{street}_raise_sizes"] = raises
    keys.update(more)
    return keys


RAKE = {"rake_percent": 5, "rake_cap": 30}
RIVER = "Kh9d4s7c2h"
MANY = "20,33,50,66,75,100,125,150,200"
# Name: the spot, its number of threads, and how many of its first decision nodes are locked.
SPOTS = {
    "river, wide": (spot(RIVER, WIDE, WIDE, 10000, MANY, "2x,3x,4x,5x"), 1, 0),
    "river, wide, rake": (spot(RIVER, WIDE, WIDE, 3000, MANY, "2x,3x,4x", **RAKE), 2, 0),
    "river, wide, locks": (spot(RIVER, WIDE, WIDE, 3000, MANY, "2x,3x,4x"), 1, 2000),
    "river, narrow": (spot(RIVER, NARROW, NARROW, 30000, MANY, "2x,3x,4x,5x"), 1, 0),
    "turn, wide": (spot(RIVER[:8], WIDE, WIDE, 1500, "33,75,150", "3x"), 1, 0),
    "turn, wide, rake": (spot(RIVER[:8], WIDE, WIDE, 1500, "33,75,150", "3x", **RAKE), 2, 0),
    "turn, narrow": (spot(RIVER[:8], NARROW, NARROW, 10000, MANY, "2x,3x"), 2, 0),
    "flop, wide": (spot(RIVER[:6], WIDE, WIDE, 300, "50", "a"), 1, 0),
    "flop, middle, rake": (spot(RIVER[:6], MIDDLE, MIDDLE, 600, "50", "3x", **RAKE), 2, 0),
    "flop, middle": (spot(RIVER[:6], MIDDLE, MIDDLE, 600, "33,75", "3x"), 2, 0),
    "flop, narrow": (spot(RIVER[:6], NARROW, NARROW, 2000, "33,75,150", "3x"), 1, 0),
    "flop, one hand": (spot(RIVER[:6], "AsAc", "QsQc", 1500, "33,75", "3x"), 2, 0),
    "flop, one suit": (spot("KhQh2h", MIDDLE, NARROW, 1000, "33,75", "3x"), 1, 0),
}


def peak_of(command):
    """Peak resident bytes of a process, which must succeed."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{command} ended with {status}")
    return usage.ru_maxrss * 1024


def write_locks(program, path, folder, count):
    """Locks at the first decision nodes of a spot, which its export lists."""
    export = os.path.join(folder, "solution.jsonl")
    subprocess.run([program, "solve", path, "--iterations", "0", "--quiet", "--export", export],
                   check=True, stdout=subprocess.DEVNULL)
    with open(export, encoding="utf-8") as file:
        next(file)
        nodes = [json.loads(line)["node"] for line, _ in zip(file, range(count))]
    locks = os.path.join(folder, "locks.json")
    with open(locks, "w", encoding="utf-8") as file:
        json.dump([{"node": node, "hand": "AA", "action": 0, "frequency": 1} for node in nodes],
                  file)
    return locks


def main():
    program, names = sys.argv[1], sys.argv[2:] or list(SPOTS)
    print("| spot | threads | decisions | tables, MB | estimate, MB | peak, MB | ratio |")
    print("|---|---|---|---|---|---|---|")
    with tempfile.TemporaryDirectory() as folder:
        for name in names:
            keys, threads, locked = SPOTS[name]
            path = os.path.join(folder, "spot.json")
            with open(path, "w", encoding="utf-8") as file:
                json.dump(keys, file)
            options = ["--threads", str(threads)]
            if locked:
                options += ["--locks", write_locks(program, path, folder, locked)]
            text = subprocess.run([program, "estimate", path, *options], check=True,
                                  stdout=subprocess.PIPE).stdout
            estimate = json.loads(text)
            peak = peak_of([program, "solve", path, "--quiet", *options])
            print(f"| {name} | {threads} | {estimate['decision_node_count']:,} "
                  f"| {estimate['state_bytes'] / 1e6:,.0f} | {estimate['peak_bytes'] / 1e6:,.0f} "
                  f"| {peak / 1e6:,.0f} | {estimate['peak_bytes'] / peak:.2f} |", flush=True)


if __name__ == "__main__":
    main()
