# SPDX-License-Identifier: Apache-2.0
"""Filters, resizes, warps and transforms beside numpy; and their tiles and threads beside one call."""
import pickle

import numpy as np
import pytest

import tpxi
from test_samples import CHANNELS, image, noise, saturated

PAD = {"replicate": "edge", "mirror": "reflect", "constant": "constant"}


def windows(a, width, height, border):
    """All samples under a mask, on new last axes; even sides reach further to the right and below."""
    margins = ((height - 1) // 2, height // 2), ((width - 1) // 2, width // 2)
    if border != "memory":
        a = np.pad(a, margins + ((0, 0),) * (a.ndim - 2), PAD[border])
    return np.lib.stride_tricks.sliding_window_view(a, (height, width), (0, 1))


@pytest.mark.parametrize("channels", CHANNELS)
@pytest.mark.parametrize("border", ("replicate", "constant", "memory"))
def test_masks(channels, border):
    for dtype in (np.uint8, np.uint16, np.int16):
        a = image(channels, dtype)
        assert (tpxi.median(a, 5, border) == np.median(windows(a, 5, 5, border), (-1, -2))).all()
        assert (tpxi.box(a, (4, 3), border) == saturated(windows(a, 4, 3, border).mean((-1, -2)), dtype)).all()
        kernel = noise((3, 5), np.int8, 5).astype(int)
        exact = (windows(a, 5, 3, border) * kernel).sum((-1, -2))
        correlated = tpxi.correlate(a, kernel, 64, border=border).astype(int)
        assert (np.abs(correlated - saturated(exact / 64, dtype)) <= 1).all()
    f = image(channels, np.float32)
    assert np.allclose(tpxi.box(f, 5, border), windows(f, 5, 5, border).mean((-1, -2)), atol=1e-4)
    weights = noise((2, 3), np.float32, 6)
    assert np.allclose(tpxi.correlate(f, weights, border=border), (windows(f, 3, 2, border) * weights).sum((-1, -2)),
                       rtol=1e-4, atol=0.1)


def test_fixed_masks():
    a = image(1, np.uint8)
    w = windows(a, 3, 3, "mirror").astype(int)
    sobel = tpxi.derivative(a, "sobel_vert", border="mirror")
    assert sobel.dtype == np.int16 and (sobel == (w * [[1, 0, -1], [2, 0, -2], [1, 0, -1]]).sum((-1, -2))).all()
    for kind in tpxi.DERIVATIVES:
        assert (tpxi.derivative(np.full((9, 9), 7, np.float32), kind) == 0).all()
    around = 9 * a.astype(int) - w.sum((-1, -2))
    assert (tpxi.laplace(a, border="mirror") == saturated(around, np.uint8)).all()
    assert (tpxi.sharpen(a, border="mirror") == saturated((around + 8 * a.astype(int)) / 8, np.uint8)).all()
    around = 25 * a.astype(int) - windows(a, 5, 5, "replicate").sum((-1, -2))
    assert (tpxi.hipass(a.astype(np.int16), 5) == around).all()


def test_filters_of_memory_alone():
    a = image(3, np.uint8)
    crossed = windows(a, 3, 3, "memory").reshape(11, 35, 3, 9)[..., [1, 3, 4, 5, 7]]
    assert (tpxi.median_cross(a) == np.median(crossed, -1)).all()
    assert (tpxi.window_sum(a, 5, 0) == windows(a, 1, 5, "memory").sum((-1, -2))).all()
    assert (tpxi.window_sum(a, 4, 1, anchor=0) == windows(a, 4, 1, "memory").sum((-1, -2))).all()
    plane = image(1, np.uint8)
    assert (tpxi.median_weighted(plane, 1) == np.median(windows(plane, 3, 3, "memory"), (-1, -2))).all()
    colours = a[3:6, 8:11].reshape(9, 3).astype(int)
    apart = np.abs(colours[:, None] - colours[None]).sum((1, 2))
    assert (tpxi.median_color(a)[3, 8] == colours[apart.argmin()]).all()
    f = image(3, np.float32)
    assert (tpxi.median(f, 3, "memory") == np.median(windows(f, 3, 3, "memory"), (-1, -2))).all()
    d = image(1, np.float64)
    assert np.allclose(tpxi.box(d, 3, "memory"), windows(d, 3, 3, "memory").mean((-1, -2)))
    with pytest.raises(ValueError, match='border="memory" alone'):
        tpxi.median(f, 3)
    with pytest.raises(ValueError, match="no pixels in a region of"):
        tpxi.median(f[:2], 3, "memory")


def test_regions_and_threads_of_filters():
    a = noise((60, 70, 3), np.uint8)
    kernel = noise((5, 3), np.int8, 1).astype(int)
    filters = [lambda **k: tpxi.median(k.pop("a", a), 5, **k), lambda **k: tpxi.box(k.pop("a", a), (6, 3), **k),
               lambda **k: tpxi.laplace(k.pop("a", a), 5, **k),
               lambda **k: tpxi.correlate(k.pop("a", a), kernel, 77, **k)]
    for run in filters:
        whole = run()
        assert (run(threads=3) == whole).all()
        assert (run(region=(20, 12, 31, 40)) == whole[12:52, 20:51]).all()
        assert (run(region=(0, 30, 70, 30)) == whole[30:]).all()
        # A tile with the pixels around it, cut out.
        assert (run(a=a[16:40, 9:50], region=(4, 4, 33, 16)) == whole[20:36, 13:46]).all()
    with pytest.raises(ValueError, match="goes on for 1 pixels on the left .* of the 2 that the mask reaches"):
        tpxi.median(a, 5, region=(1, 0, 30, 30))
    with pytest.raises(ValueError, match="leaves a of 70 x 60 pixels"):
        tpxi.median(a, 5, region=(60, 0, 11, 30))
    placed = a.copy()
    assert (tpxi.median(placed, 3, out=placed, threads=2) == tpxi.median(a, 3)).all()


@pytest.mark.parametrize("channels", CHANNELS)
def test_resizes_with_whole_ratios(channels):
    for dtype in (np.uint8, np.uint16, np.int16, np.float32):
        a = noise((12, 18, channels), dtype)
        assert (tpxi.resize(a, (54, 24), "nearest") == a.repeat(2, 0).repeat(3, 1)).all()
        assert (tpxi.resize(a, (6, 6), "nearest") == a[::2, 1::3]).all()  # between two pixels: the lower one
        means = a.reshape(6, 2, 6, 3, channels).astype(np.float64).mean((1, 3))
        assert np.allclose(tpxi.resize(a, (6, 6), "super"), saturated(means, dtype), atol=1e-4)
        for kind in ("linear", "cubic", "lanczos2", "lanczos3"):
            assert (tpxi.resize(a, (18, 12), kind) == a).all()
    assert tpxi.resize(np.full((9, 9), 0.25), (5, 20)).tolist() == np.full((20, 5), 0.25).tolist()


@pytest.mark.parametrize("antialias", (False, True))
@pytest.mark.parametrize("kind", ("nearest", "linear", "cubic", "super", "lanczos2", "lanczos3"))
def test_tiles_of_resizes(kind, antialias):
    """Tiles, each from a copy of no more of the source than it is made from, are parts of the whole."""
    if antialias and kind in ("nearest", "super"):
        pytest.skip("no such plan")
    random = np.random.default_rng(4)
    for dtype, channels, size in ((np.uint8, 3, (41, 23)), (np.float32, 1, (33, 60)), (np.int16, 4, (150, 130))):
        if kind == "super" and size[0] > 70:
            continue
        a = noise((64, 71, channels), dtype)
        plan = pickle.loads(pickle.dumps(tpxi.ResizePlan((71, 64), size, kind, dtype, antialias)))
        whole = tpxi.resize(a, size, kind, antialias)
        assert (tpxi.resize(a, size, kind, antialias, threads=3) == whole).all()
        for _ in range(12):
            x, y = (int(random.integers(0, n)) for n in size)
            width, height = (int(random.integers(1, n - at + 1)) for n, at in zip(size, (x, y)))
            left, top, w, h = plan.source_of((x, y, width, height))
            part = a[top:top + h, left:left + w].copy()
            tile = plan.tile(part, (x, y, width, height), origin=(left, top))
            assert (tile == whole[y:y + height, x:x + width]).all(), (kind, dtype, x, y, width, height)
    with pytest.raises(ValueError, match="is made from .* of the source; a has"):
        plan.tile(a[:, :5], (0, 0, *plan.size))


def test_warps_with_exact_positions():
    for dtype in (np.uint8, np.int16, np.float32, np.float64):
        for channels in CHANNELS:
            a = noise((12, 18, channels), dtype)
            for kind in ("nearest", "linear", "cubic"):
                assert (tpxi.warp(a, [[1, 0, 0], [0, 1, 0]], kind=kind) == a).all()
                quarter = tpxi.rotation(90) + [[0, 0, 0], [0, 0, 17]]
                assert (tpxi.warp(a, quarter, (12, 18), kind) == np.rot90(a)).all()
                shifted = tpxi.warp(a, [[1, 0, 5], [0, 1, 2]], kind=kind)
                assert (shifted[2:, 5:] == a[:-2, :-5]).all() and (shifted[:2] == 0).all()
    a = noise((12, 18, 3), np.uint8)
    inverse = tpxi.warp(a, [[1, 0, 5], [0, 1, 2]], inverse=True, border="constant", value=[1, 2, 3])
    assert (inverse[:-2, :-5] == a[2:, 5:]).all() and (inverse[-1, -1] == [1, 2, 3]).all()
    corners = tpxi.quad_of((0, 0, 18, 12), [[1, 0, 5], [0, 1, 2]])
    assert (tpxi.warp(a, [tpxi.quad_of((0, 0, 18, 12), np.eye(2, 3)), corners], kind="nearest")[2:, 5:]
            == a[:-2, :-5]).all()
    x, y = np.meshgrid(np.arange(18, dtype=np.float32), np.arange(12, dtype=np.float32))
    for kind in ("nearest", "linear", "cubic", "lagrange", "lanczos"):
        assert (tpxi.remap(a, x, y, kind, threads=2) == a).all()
    assert (tpxi.remap(a, x + 3, y)[:, :-3] == a[:, 3:]).all()
    with pytest.raises(ValueError, match="samples 32f"):
        tpxi.remap(a, x.astype(np.float64), y)


@pytest.mark.parametrize("kind", ("nearest", "linear", "cubic"))
def test_tiles_of_warps(kind):
    """Tiles from a part of the source that holds what they take are parts of the whole."""
    a = noise((80, 90), np.uint8)
    turned = tpxi.rotation(20, (45, 40)) @ np.diag([1.25, 1.25, 1])
    coeffs = np.vstack([turned, [0, 0, 1]])
    whole = tpxi.warp(a, coeffs, (100, 95), kind)
    assert (tpxi.warp(a, coeffs[:2], (100, 95), kind) == whole).all()
    assert (tpxi.warp(a, coeffs, (100, 95), kind, threads=3) == whole).all()
    for x in range(0, 100, 30):
        for y in range(0, 95, 20):
            tile = (x, y, min(30, 100 - x), min(20, 95 - y))
            left, top, width, height = tpxi.source_of_tile((90, 80), coeffs, tile)
            left, right = max(left - 2, 0), min(left + width + 3, 90)
            top, bottom = max(top - 2, 0), min(top + height + 3, 80)
            part = (left, top, right - left, bottom - top)
            plan = pickle.loads(pickle.dumps(tpxi.WarpPlan((90, 80), (100, 95), coeffs, kind, part=part)))
            got = plan.tile(a[top:bottom, left:right].copy(), tile)
            assert (got == whole[y:y + tile[3], x:x + tile[2]]).all(), (kind, tile)


@pytest.mark.parametrize("size", ((32, 64), (31, 45), (30, 14), (1, 9), (8, 1)))
def test_fourier(size):
    a = noise(size, np.float32)
    z = (a + 1j * noise(size, np.float32, 1)).astype(np.complex64)
    for norm in ("backward", "ortho", "forward"):
        wanted = np.fft.fft2(z.astype(complex), norm=norm)
        assert np.abs(tpxi.fft2(z, norm) - wanted).max() < 1e-6 * np.abs(wanted).max()
        assert np.abs(tpxi.ifft2(tpxi.fft2(z, norm), norm) - z).max() < 1e-6 * np.abs(z).max()
        real = np.fft.rfft2(a.astype(float), norm=norm)
        packed = tpxi.pack_fft2(a, norm)
        assert np.abs(tpxi.unpack(packed) - real).max() < 1e-6 * np.abs(real).max()
        assert np.abs(tpxi.pack_ifft2(packed, norm, out=packed) - a).max() < 1e-6 * np.abs(a).max()
    assert np.abs(tpxi.fft2(a) - np.fft.fft2(a.astype(float))).max() < 1e-6 * np.abs(np.fft.fft2(a)).max()
    plan = pickle.loads(pickle.dumps(tpxi.FourierPlan(size[::-1], np.float32)))
    assert (plan.forward(a) == tpxi.pack_fft2(a)).all() and (plan.inverse(a) == tpxi.pack_ifft2(a)).all()
    with pytest.raises(ValueError, match="the plan is one for"):
        plan.forward(z)
    with pytest.raises(TypeError, match="of float32 and complex64, not float64"):
        tpxi.FourierPlan(size, np.float64)
    colours = np.stack([a, a + 1, a - 1], -1)
    assert (tpxi.pack_fft2(colours)[..., 0] == tpxi.pack_fft2(a)).all()


def test_geometry_of_maps():
    rect = (0, 0, 11, 6)
    assert tpxi.quad_of(rect, [[2, 0, 1], [0, 3, 0]]).tolist() == [[1, 0], [21, 0], [21, 15], [1, 15]]
    assert tpxi.bound_of(rect, [[2, 0, 1], [0, 3, 0]]).tolist() == [[1, 0], [21, 15]]
    quad = [[1, 2], [20, 3], [22, 18], [0, 15]]
    assert np.allclose(tpxi.quad_of(rect, tpxi.map_to_quad(rect, quad)), quad)
    assert np.allclose(tpxi.rotation(30, (4, 5))[:, :2] @ [4, 5] + tpxi.rotation(30, (4, 5))[:, 2], [4, 5])
