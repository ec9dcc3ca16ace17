#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""An image through a resize, a median and a warp on a cluster, tile by tile, with the bytes of one process.

    python3 examples/cluster.py                            a generated image, worker processes on this machine
    python3 examples/cluster.py --size 60000x40000         one that is larger than memory
    python3 examples/cluster.py --image slide.tif --level 1 --out tiles
    python3 examples/cluster.py --scheduler tcp://host:8786

Every tile of the result is one task. It asks backwards what each step reads, reads that part of the source, and
works forwards: the resize makes the tile that the median wants with the pixels around it; the median reads those
as borders in memory; the warp takes its part of the filtered image. Rims are computed twice rather than sent
between workers, so that no task waits for another and a worker that dies costs no more than the tiles it had begun.

Workers of a scheduler need the package tpxi, and see a TIFF under the same path. Wants Debian's python3-distributed,
python3-numpy and python3-cffi, and python3-tifffile for --image; `tools/setup python` installs them.
"""
from __future__ import annotations

import argparse
import logging
import os
import signal
import sys
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Iterator

import dask
import numpy as np
from distributed import Client, LocalCluster, as_completed

import tpxi

Rect = tuple[int, int, int, int]  # x, y, width, height
MEDIAN = 5
WHOLE_AT_MOST = 1 << 30  # bytes of an image that one process works on in one piece, for comparison


# ---- Sources: anything with a size, a number of channels, and a way to read a rectangle --------------------


@dataclass(frozen=True)
class Generated:
    """An image that is computed where it is read, of any size."""

    size: tuple[int, int]
    channels: int = 3

    def read(self, rect: Rect) -> np.ndarray:
        x, y = np.arange(rect[0], rect[0] + rect[2]), np.arange(rect[1], rect[1] + rect[3])
        columns = (x[:, None] * (np.arange(self.channels) + 1) >> 3).astype(np.uint8)
        pixels = columns[None] ^ (y * 3 >> 3).astype(np.uint8)[:, None, None]
        # What a median takes away.
        specks_x, specks_y = ((at * 2654435761 >> 13).astype(np.uint8) for at in (x, y))
        pixels[(specks_x[None] ^ specks_y[:, None]) < 4] = 255
        return pixels


@dataclass(frozen=True)
class Tiff:
    """A level of a TIFF pyramid, of which only the segments that a rectangle touches are read."""

    path: str
    level: int
    size: tuple[int, int]
    channels: int

    @staticmethod
    def of(path: str, level: int = 0) -> Tiff:
        with tifffile().TiffFile(path) as file:
            page = file.series[0].levels[level].keyframe
            return Tiff(os.path.abspath(path), level, (page.imagewidth, page.imagelength), page.samplesperpixel)

    def read(self, rect: Rect) -> np.ndarray:
        x0, y0, x1, y1 = rect[0], rect[1], rect[0] + rect[2], rect[1] + rect[3]
        with tifffile().TiffFile(self.path) as file:
            page = file.series[0].levels[self.level].keyframe
            width, height = (page.tilewidth, page.tilelength) if page.is_tiled else (self.size[0], page.rowsperstrip)
            across = -(-self.size[0] // width)
            pixels = np.zeros((rect[3], rect[2], self.channels), page.dtype)
            for row in range(y0 // height, (y1 - 1) // height + 1):
                for column in range(x0 // width, (x1 - 1) // width + 1):
                    at = row * across + column
                    file.filehandle.seek(page.dataoffsets[at])
                    segment = page.decode(file.filehandle.read(page.databytecounts[at]), at)[0]
                    if segment is None:  # one that was never written
                        continue
                    left, top = column * width, row * height
                    part = segment[0, max(y0 - top, 0):y1 - top, max(x0 - left, 0):x1 - left]
                    y, x = max(top - y0, 0), max(left - x0, 0)
                    pixels[y:y + part.shape[0], x:x + part.shape[1]] = part
        return pixels


def tifffile() -> Any:
    """The package, which nobody needs who gives no --image."""
    import tifffile

    return tifffile


# ---- The work: one tile, and all of it in one piece --------------------------------------------------------


@dataclass(frozen=True)
class Job:
    """Resizes `source` to `size` (width, height), takes a median, and turns the result around its middle."""

    source: Generated | Tiff
    size: tuple[int, int]
    angle: float
    out: str | None = None

    @property
    def coeffs(self) -> np.ndarray:
        middle = ((self.size[0] - 1) / 2, (self.size[1] - 1) / 2)
        return np.vstack([tpxi.rotation(self.angle, middle), [0, 0, 1]])

    def tiles(self, side: int) -> Iterator[Rect]:
        for y in range(0, self.size[1], side):
            for x in range(0, self.size[0], side):
                yield x, y, min(side, self.size[0] - x), min(side, self.size[1] - y)


def resize_plan(job: Job) -> tpxi.ResizePlan:
    """The plan that all tiles share; on a cluster it is made anew in each process that is sent it."""
    return tpxi.ResizePlan(job.source.size, job.size, "lanczos3", antialias=True)


def grown(rect: Rect, by: int, size: tuple[int, int]) -> Rect:
    """A rectangle with so many pixels more on each side, as far as the image goes. A side that comes nearer to
    the image's edge than the median reaches goes to the edge, so that the edge itself is seen, or enough pixels."""
    near = MEDIAN // 2
    ends = []
    for at, length, limit in ((rect[0], rect[2], size[0]), (rect[1], rect[3], size[1])):
        begin, end = at - by, at + length + by
        ends.append((0 if begin < near else begin, limit if limit - end < near else end))
    (x0, x1), (y0, y1) = ends
    return x0, y0, x1 - x0, y1 - y0


def compute(job: Job, plan: tpxi.ResizePlan, tile: Rect) -> tuple[np.ndarray, int]:
    """A tile of the result, and the bytes of the source that it was made from."""
    # Backwards: what the warp takes, with a pixel more around it than linear interpolation reads; what the median
    # reads; what the resize reads.
    filtered = grown(tpxi.source_of_tile(job.size, job.coeffs, tile), 1, job.size)
    resized = grown(filtered, MEDIAN // 2, job.size)
    read = plan.source_of(resized)
    # Forwards.
    block = job.source.read(read)
    small = plan.tile(block, resized, origin=read[:2])
    inner = (filtered[0] - resized[0], filtered[1] - resized[1], filtered[2], filtered[3])
    clean = tpxi.median(small, MEDIAN, region=inner)
    warp = tpxi.WarpPlan(job.size, job.size, job.coeffs, "linear", channels=job.source.channels, part=filtered)
    return warp.tile(clean, tile), block.nbytes


def compute_whole(job: Job) -> np.ndarray:
    """The same by one call for each step."""
    small = resize_plan(job).tile(job.source.read((0, 0, *job.source.size)), (0, 0, *job.size))
    return tpxi.warp(tpxi.median(small, MEDIAN), job.coeffs, kind="linear")


def mixed(first: int, count: int) -> np.ndarray:
    """A well-mixed 64-bit number for each of the numbers from `first` on."""
    numbers = (np.arange(first, first + count, dtype=np.uint64) + np.uint64(1)) * np.uint64(0x9E3779B97F4A7C15)
    numbers = (numbers ^ numbers >> np.uint64(30)) * np.uint64(0xBF58476D1CE4E5B9)
    return numbers ^ numbers >> np.uint64(27)


def checksum(pixels: np.ndarray, x: int, y: int) -> int:
    """Samples times numbers of their columns and rows, summed in 64 bits: sums of tiles are that of the image."""
    height, width, channels = pixels.shape
    columns, rows = mixed((x + 2**32) * channels, width * channels), mixed(y, height)
    total = 0
    for top in range(0, height, 256):
        samples = pixels[top:top + 256].reshape(-1, width * channels).astype(np.uint64)
        total += int((samples @ columns * rows[top:top + 256]).sum())
    return total % 2**64


@dataclass(frozen=True)
class Done:
    """What comes back of a tile."""

    checksum: int
    read: int
    made: int
    process: int


def run_tile(job: Job, plan: tpxi.ResizePlan, tile: Rect) -> Done:
    pixels, read = compute(job, plan, tile)
    if job.out:
        np.save(Path(job.out) / f"{tile[1]:08}_{tile[0]:08}.npy", pixels)
    return Done(checksum(pixels, tile[0], tile[1]), read, pixels.nbytes, os.getpid())


# ---- The cluster -------------------------------------------------------------------------------------------


def run(client: Client, job: Job, side: int, kill_worker: bool) -> int:
    """Runs all tiles, shows how far it is, and gives the checksum of the image."""
    tiles = list(job.tiles(side))
    begin = time.perf_counter()
    total, read, made, processes = 0, 0, 0, set()
    plan = client.submit(resize_plan, job)
    futures = [client.submit(run_tile, job, plan, tile, pure=False) for tile in tiles]
    for count, (future, done) in enumerate(as_completed(futures, with_results=True), 1):
        total, read, made = (total + done.checksum) % 2**64, read + done.read, made + done.made
        processes.add(done.process)
        future.release()
        if kill_worker and count >= len(tiles) // 4:
            kill_worker, process = False, done.process
            os.kill(process, signal.SIGKILL)
            left = sum(future.status == "pending" for future in futures)
            print(f"\nkilled the worker process {process} with {left} tiles to go", flush=True)
        if sys.stdout.isatty() or count * 10 // len(tiles) > (count - 1) * 10 // len(tiles):
            seconds = time.perf_counter() - begin
            print(f"{count:6} of {len(tiles)} tiles, {made / 1e6:.1f} MB made at {made / 1e6 / seconds:.1f} MB/s",
                  end="\r" if sys.stdout.isatty() else "\n", flush=True)
    seconds = time.perf_counter() - begin
    print(f"\n{job.source.size[0]} x {job.source.size[1]} to {job.size[0]} x {job.size[1]}: {seconds:.2f} s, "
          f"{read / 1e6:.1f} MB read, {made / 1e6:.1f} MB made, {len(processes)} processes")
    return total


def size_of(text: str) -> tuple[int, int]:
    width, height = text.lower().split("x")
    return int(width), int(height)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--size", type=size_of, default=(6000, 4000), help="of the generated image (6000x4000)")
    parser.add_argument("--image", help="a TIFF file instead, best one in tiles")
    parser.add_argument("--level", type=int, default=0, help="of the TIFF's pyramid, 0 being the largest")
    parser.add_argument("--to", type=size_of, help="the result's size (three quarters of the image's)")
    parser.add_argument("--angle", type=float, default=7, help="of the warp, in degrees")
    parser.add_argument("--tile", type=int, default=512, help="the side of a tile in pixels")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), help="processes on this machine")
    parser.add_argument("--scheduler", help="the address of a cluster to use instead")
    parser.add_argument("--out", help="a folder, seen by all workers, for the tiles as YYYYYYYY_XXXXXXXX.npy")
    parser.add_argument("--kill-worker", action="store_true", help="kill a worker of this machine on the way")
    arguments = parser.parse_args()
    if arguments.scheduler and arguments.kill_worker:
        parser.error("--kill-worker is for workers of this machine")

    source: Generated | Tiff = Generated(arguments.size)
    if arguments.image:
        source = Tiff.of(arguments.image, arguments.level)
    if arguments.out:
        Path(arguments.out).mkdir(parents=True, exist_ok=True)
    job = Job(source, arguments.to or (source.size[0] * 3 // 4, source.size[1] * 3 // 4), arguments.angle,
              os.path.abspath(arguments.out) if arguments.out else None)

    if arguments.scheduler:
        with Client(arguments.scheduler) as client:
            total = run(client, job, arguments.tile, False)
    else:
        # A result that lay on a worker that died is asked for until this time has passed, and then made again.
        dask.config.set({"distributed.comm.timeouts.connect": "5s"})
        with (LocalCluster(n_workers=arguments.workers, threads_per_worker=1, dashboard_address=None,
                           silence_logs=logging.CRITICAL) as cluster,
              Client(cluster) as client):
            total = run(client, job, arguments.tile, arguments.kill_worker)
            client.wait_for_workers(arguments.workers)  # a killed one is replaced, and may still be starting
    print(f"checksum of the tiles      {total:016x}")

    if max(source.size[0] * source.size[1], job.size[0] * job.size[1]) * source.channels > WHOLE_AT_MOST:
        print("too large for one process to do in one piece")
        return 0
    begin = time.perf_counter()
    whole = checksum(compute_whole(job), 0, 0)
    print(f"checksum of one process    {whole:016x}, in {time.perf_counter() - begin:.2f} s")
    if whole != total:
        print("these differ")
    return int(whole != total)


if __name__ == "__main__":
    sys.exit(main())
