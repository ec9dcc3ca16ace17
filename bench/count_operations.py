#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Counts the operations of inner loops: what the busiest unit of a core has to do for a sample.

For each job it looks where perf finds the time, takes those loops from the library's code, asks llvm-mca for the cycles
of an iteration in which nothing waits, and divides them by the samples that an iteration goes forward. Jobs whose time
is not in loops over samples are left out. Writes bench/operations.inc, which bounds.cpp reads; that a machine is busy
does not matter.

    tools/setup bench operations && bench/count_operations.py [REGEX]     after bench/run has built build/bench

With a REGEX the counts of jobs that match are printed, and no file is written.
"""
import bisect
import collections
import itertools
import os
import re
import subprocess
import sys

BUILD = "build/bench"
BENCH = f"{BUILD}/bench/tpx_bench"
LIBRARY = os.path.realpath(f"{BUILD}/libtpxie9.so")
TABLE = "bench/operations.inc"
MODEL = "znver3"  # whose units are counted
SHARE = 0.7  # of a job's time in the library, that has to be in loops over samples
LOOP_SHARE = 0.05  # of a loop that is counted
LEAST_SAMPLES = 50  # of perf
FASTEST = 4.5  # cycles of a nanosecond, and what MODEL may be wrong by: more than a job takes are miscounted
MEMORY = r"(-?0x[0-9a-f]+)?\((%r\w+)?(?:,(%r\w+),?(\d)?)?\)"


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def disassemble():
    """The instruction of each address, and backward jumps (from, to), the shortest first."""
    code, jumps = {}, []
    for line in output("objdump", "-d", "--no-show-raw-insn", LIBRARY).splitlines():
        found = re.match(r" +([0-9a-f]+):\t(.*)", line)
        if not found:
            continue
        at, text = int(found[1], 16), re.sub(r" *(#.*)?$", "", found[2])
        code[at] = text
        jump = re.match(r"j\w+ +([0-9a-f]+) ", text + " ")
        if jump and int(jump[1], 16) < at:
            jumps.append((at, int(jump[1], 16)))
    return dict(sorted(code.items())), sorted(jumps, key=lambda jump: jump[0] - jump[1])


def sampled(job):
    """How often each address of the library was found, and nanoseconds of a sample."""
    data = f"{BUILD}/perf.{os.getpid()}.data"
    name = re.sub(r"([.()+])", r"\\\1", job)
    table = output("perf", "record", "-q", "-F", "5000", "-o", data, BENCH, f"--benchmark_filter=^{name}/iterations")
    function, size = job.rsplit("/", 1)
    time = float(re.search(rf"^{re.escape(function)} +{size} +[\d.]+ \ws +([\d.]+)", table, re.M)[1])
    base, found = 0, collections.Counter()
    for line in output("perf", "script", "-i", data, "-F", "ip,sym,symoff,dso", "--show-mmap-events").splitlines():
        mapped = re.search(r"\[0x([0-9a-f]+)\(0x[0-9a-f]+\) @ (0x[0-9a-f]+|0) .*r-xp \S*libtpxie9", line)
        at = re.match(r" *([0-9a-f]+) .*libtpxie9", line)
        if mapped:
            base = int(mapped[1], 16) - int(mapped[2], 16)
        elif at and "LUT_Init" not in line:  # all jobs on tables make them before any job is run
            found[int(at[1], 16) - base] += 1
    os.remove(data)
    return found, time


def loops_of(found, jumps):
    """The innermost loops that have some of the time, as (share, last, first)."""
    total = sum(found.values())
    if total < LEAST_SAMPLES:
        return []

    places = sorted(found)
    sums = [0, *itertools.accumulate(found[at] for at in places)]

    def share(jump):
        return (sums[bisect.bisect_right(places, jump[0])] - sums[bisect.bisect_left(places, jump[1])]) / total

    loops = []
    for jump in jumps:
        if share(jump) >= LOOP_SHARE and not any(jump[1] <= inner[1] <= jump[0] for inner in loops):
            loops.append(jump)
    return [(share(jump), *jump) for jump in loops]


def number(text):
    """As objdump writes it: with a sign, or as 64 bits."""
    value = int(text, 16)
    return value - (1 << 64) if value >= 1 << 63 else value


def steps_of(lines):
    """By how much an iteration changes each register."""
    steps = collections.defaultdict(int)
    for line in lines:
        if found := re.match(r"(add|sub) +\$(-?0x[0-9a-f]+),(%r\w+)$", line):
            steps[found[3]] += number(found[2]) * (1 if found[1] == "add" else -1)
        elif found := re.match(r"(inc|dec) +(%r\w+)$", line):
            steps[found[2]] += 1 if found[1] == "inc" else -1
        elif (found := re.match(r"lea +(-?0x[0-9a-f]+)\((%r\w+)\),(%r\w+)$", line)) and found[2] == found[3]:
            steps[found[3]] += number(found[1])
    return steps


def samples_of(lines, job):
    """Samples that an iteration goes forward: of the source or of the result, whichever is narrower there."""
    types = re.search(r"_(\d\w*?)_", job)[1]
    bits = [int(text) for text in re.findall(r"(\d+)[usf]", types)]
    steps = steps_of(lines)

    def least(pattern):
        moved = (abs(steps[found[2]] + steps[found[3]] * int(found[4] or 1))
                 for line in lines if "%rsp" not in line and (found := re.match(pattern, line)))
        return min((step for step in moved if step), default=0)

    loads, stores = least(rf"v\w+ +(?:\$\w+,)?{MEMORY},"), least(rf"v?mov\w* +.*,{MEMORY}$")
    if stores and (not loads or stores <= loads):
        return stores * 8 / bits[-1]
    return loads * 8 / bits[0]


def cycles_of(lines):
    text = "\n".join(re.sub(r"^(j\w+) +.*", r"\1 0", line) for line in lines if not line.startswith("nop"))
    found = re.search(r"Block RThroughput: +([\d.]+)", output("llvm-mca", f"-mcpu={MODEL}", input=text))
    return float(found[1])


def count(job, code, jumps):
    """Cycles of a sample and what they come from, or None and why there are none."""
    found, time = sampled(job)
    cycles, instructions, share = 0, 0, 0
    for part, last, first in loops_of(found, jumps):
        lines = [code[at] for at in range(first, last + 1) if at in code]
        samples = samples_of(lines, job)
        if samples and not any("call" in line for line in lines):
            cycles += cycles_of(lines) / samples
            instructions += len(lines)
            share += part
    if share < SHARE:
        return None, "not in loops over samples"
    if cycles > time * FASTEST:
        return None, f"{cycles:.4f} cycles are more than the time"
    return cycles, f"{instructions} instructions, {share:.2f} of the time, {cycles / time:.2f} cycles/ns"


def main():
    wanted = sys.argv[1] if len(sys.argv) > 1 else ""
    code, jumps = disassemble()
    table = []
    for line in output(BENCH, "--benchmark_list_tests").splitlines():
        job = re.sub(r"/iterations.*", "", line)
        function, size = job.rsplit("/", 1)
        # An inner loop does not know its image's size. Passes of resizes go over other samples than the results.
        if size != "640x480" or not re.search(wanted, function):
            continue
        cycles, why = count(job, code, jumps)
        print(f"{job}: {cycles:.4f} cycles, {why}" if cycles else f"{job}: {why}", flush=True)
        if cycles:
            table.append(f'{{"{function}", {cycles:.4f}}},')
    if not wanted:
        with open(TABLE, "w", encoding="utf-8") as out:
            out.write("// SPDX-License-Identifier: Apache-2.0\n// Written by bench/count_operations.py.\n")
            out.write("\n".join(table) + "\n")


if __name__ == "__main__":
    main()
