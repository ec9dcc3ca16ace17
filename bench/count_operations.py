#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Counts the operations of jobs: what the busiest unit of a core has to do for a sample.

Callgrind tells how often each instruction of the library is executed in a call. They are thrown into one heap, whatever
loop or pass they come from, and llvm-mca tells the cycles that the heap takes a core whose units never wait, of the faster of two kinds. Divided by
the samples of the image that is the bound of the job. Writes bench/operations.inc, which bounds.cpp reads; that a
machine is busy does not matter.

    tools/setup bench operations && bench/count_operations.py [REGEX]     after bench/run has built build/bench

With a REGEX, the counts of jobs that match are renewed, and the others stay.
"""
import glob
import os
import re
import subprocess
import sys
import tempfile

BUILD = "build/bench"
BENCH = f"{BUILD}/bench/tpx_bench"
LIBRARY = os.path.realpath(f"{BUILD}/libtpxie9.so")
TABLE = "bench/operations.inc"
MODELS = "znver3", "icelake-server"  # whose units are counted; the faster of both is the bound
BATCH = 10  # jobs between writes of the table
HEAP = 20000  # instructions, which stand for all of a call


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def disassemble():
    """The instruction of each address, as llvm-mca takes it: jumps and calls have no place to go to."""
    code = {}
    for line in output("objdump", "-d", "--no-show-raw-insn", LIBRARY).splitlines():
        if found := re.match(r" +([0-9a-f]+):\t(.*)", line):
            text = re.sub(r" *[#<].*$", "", found[2])
            code[int(found[1], 16)] = re.sub(r"^((?:bnd |notrack )?(?:j\w+|call)) +.*", r"\1 0", text)
    return code


def executed(path):
    """The job and its samples of a file of callgrind's, and how often the library's instructions were executed."""
    job, samples, counts, ours, call = None, 0, {}, False, False
    with open(path, encoding="utf-8") as file:
        for line in file:
            if found := re.match(r"desc: Trigger: Client Request: (.*) = (\d+)$", line):
                job, samples = found[1], int(found[2])
            elif line.startswith("ob="):
                ours = "libtpxie9" in line
            elif line.startswith("calls="):
                call = True  # the next line has the costs of what was called
            elif line.startswith("0x"):
                if ours and not call:
                    at, count = line.split()[:2]
                    counts[int(at, 16)] = counts.get(int(at, 16), 0) + int(count)
                call = False
    return job, samples, counts


def cycles_of(counts, code):
    """Of all that was executed, from a heap of fewer instructions in the same proportions."""
    total = sum(counts.values())
    heap, due = [], 0.0
    for at in sorted(counts):
        due += counts[at] * HEAP / total
        heap += [code[at]] * int(due)
        due -= int(due)
    # A repeated store is a single instruction, but counted as often as it stores.
    text = "\n".join(line for line in heap if not line.startswith(("nop", "endbr", "data16", "rep ")))
    least = min(float(re.search(r"Block RThroughput: +([\d.]+)", output(
        "llvm-mca", f"-mcpu={model}", "-iterations=1", "--instruction-info=0", "--resource-pressure=0",
        input=text))[1]) for model in MODELS)
    return least * total / HEAP


def count(jobs, code):
    """Cycles of a sample, by job."""
    cycles = {}
    with tempfile.TemporaryDirectory() as folder:
        names = "|".join(re.sub(r"([.()+])", r"\\\1", job) for job in jobs)
        output("valgrind", "-q", "--tool=callgrind", "--dump-instr=yes", "--dump-line=no", "--compress-strings=no",
               "--compress-pos=no", "--instr-atstart=no", f"--callgrind-out-file={folder}/out",
               BENCH, f"--benchmark_filter=^({names})/iterations")
        for path in glob.glob(f"{folder}/out*"):
            job, samples, counts = executed(path)
            if job and counts:
                cycles[job] = cycles_of(counts, code) / samples
    return cycles


def main():
    wanted = sys.argv[1] if len(sys.argv) > 1 else "."
    table = {}
    with open(TABLE, encoding="utf-8") as file:
        known = dict(re.findall(r'^\{"(.*)", ([\d.]+)\},$', file.read(), re.M))
    code = disassemble()
    for line in output(BENCH, "--benchmark_list_tests").splitlines():
        job = re.sub(r"/iterations.*", "", line)
        function, size = job.rsplit("/", 1)
        # What a sample needs depends little on the image, but on both sizes of a resize.
        if re.match(r"640x480|1920x1080 to ", size):
            table[job if " to " in size else function] = job
    jobs = [job for job in table.values() if re.search(wanted, job)]
    for start in range(0, len(jobs), BATCH):
        for job, cycles in count(jobs[start:start + BATCH], code).items():
            print(f"{job}: {cycles:.4f} cycles", flush=True)
            known[next(key for key in table if table[key] == job)] = f"{cycles:.4f}"
        with open(TABLE, "w", encoding="utf-8") as out:
            out.write("// SPDX-License-Identifier: Apache-2.0\n// Written by bench/count_operations.py.\n")
            out.writelines(f'{{"{key}", {known[key]}}},\n' for key in table if key in known)


if __name__ == "__main__":
    main()
