# SPDX-License-Identifier: Apache-2.0
"""The cluster example: its tiles are those of one process, also if a worker is killed on the way."""
import re
import subprocess
import sys
from pathlib import Path

import pytest

pytest.importorskip("distributed")
EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
sys.path.insert(0, str(EXAMPLES))
import cluster  # noqa: E402


def test_a_worker_that_is_killed_is_survived():
    """Two workers; the program itself compares with one process, and its checksum is compared here once more."""
    run = subprocess.run([sys.executable, str(EXAMPLES / "cluster.py"), "--size", "2100x1500", "--tile", "160",
                          "--angle", "11", "--workers", "2", "--kill-worker"],
                         capture_output=True, text=True, timeout=100)
    assert run.returncode == 0, run.stdout + run.stderr
    left = int(re.search(r"killed the worker process \d+ with (\d+) tiles to go", run.stdout)[1])
    assert left > 20 and re.search(r"\d\.\d\d s, \d+\.\d MB read, \d+\.\d MB made", run.stdout)
    tiles, whole = re.findall(r"checksum of \w+ \w+ +([0-9a-f]{16})", run.stdout)
    job = cluster.Job(cluster.Generated((2100, 1500)), (1575, 1125), 11)
    assert tiles == whole == f"{cluster.checksum(cluster.compute_whole(job), 0, 0):016x}"


def test_tiles_of_any_side_and_angle():
    for size, to, angle, side in (((300, 200), (410, 333), -30, 37), ((640, 480), (200, 190), 90, 64),
                                  ((300, 200), (300, 200), 0, 45), ((90, 500), (70, 350), 200, 53)):
        job = cluster.Job(cluster.Generated(size), to, angle)
        plan, whole = cluster.resize_plan(job), cluster.compute_whole(job)
        total = 0
        for x, y, width, height in job.tiles(side):
            tile, _ = cluster.compute(job, plan, (x, y, width, height))
            assert (tile == whole[y:y + height, x:x + width]).all(), (size, to, angle, (x, y, width, height))
            total += cluster.checksum(tile, x, y)
        assert total % 2**64 == cluster.checksum(whole, 0, 0)
        x, y = to[0] // 2, to[1] // 2
        whole[y, x, 1] ^= 1
        assert total % 2**64 != cluster.checksum(whole, 0, 0)


def test_levels_of_a_tiff(tmp_path):
    tifffile = pytest.importorskip("tifffile")
    pixels = cluster.Generated((700, 500)).read((0, 0, 700, 500))
    path = str(tmp_path / "pyramid.tif")
    with tifffile.TiffWriter(path) as file:
        file.write(pixels, tile=(64, 96), photometric="rgb", subifds=1)
        file.write(pixels[::2, ::2], tile=(64, 64), photometric="rgb", subfiletype=1)
    strips = str(tmp_path / "strips.tif")
    tifffile.imwrite(strips, pixels[..., 0], rowsperstrip=33)
    for source, wanted in ((cluster.Tiff.of(path), pixels), (cluster.Tiff.of(path, 1), pixels[::2, ::2]),
                           (cluster.Tiff.of(strips), pixels[..., :1])):
        assert source.size == wanted.shape[1::-1] and source.channels == wanted.shape[2]
        for x, y, width, height in ((0, 0, *source.size), (95, 63, 98, 70), (250, 200, 100, 50), (3, 249, 1, 1)):
            assert (source.read((x, y, width, height)) == wanted[y:y + height, x:x + width]).all()
    for source in (cluster.Tiff.of(path, 1), cluster.Tiff.of(strips)):
        job = cluster.Job(source, (200, 150), 20)
        tile, _ = cluster.compute(job, cluster.resize_plan(job), (64, 64, 64, 64))
        assert tile.any() and (tile == cluster.compute_whole(job)[64:128, 64:128]).all()
