# SPDX-License-Identifier: Apache-2.0
"""Copies, arithmetic, thresholds and measures beside numpy."""
import numpy as np
import pytest

import tpxi

CHANNELS = (1, 3, 4)


def noise(shape, dtype, seed=0):
    random = np.random.default_rng(seed)
    if np.dtype(dtype).kind == "f":
        return random.normal(0, 100, shape).astype(dtype)
    limits = np.iinfo(dtype)
    return random.integers(limits.min, limits.max, shape, dtype, endpoint=True)


def image(channels, dtype, seed=0):
    return noise((13, 37) if channels == 1 else (13, 37, channels), dtype, seed)


def saturated(exact, dtype):
    if np.dtype(dtype).kind == "f":
        return exact.astype(dtype)
    limits = np.iinfo(dtype)
    return np.clip(np.rint(exact), limits.min, limits.max).astype(dtype)


@pytest.mark.parametrize("channels", CHANNELS)
@pytest.mark.parametrize("dtype", (np.uint8, np.uint16, np.int16, np.float32))
def test_arithmetic(channels, dtype):
    a, b = image(channels, dtype), image(channels, dtype, 1)
    is_float = dtype == np.float32
    wide = np.float32 if is_float else np.float64
    x, y = a.astype(wide), b.astype(wide)
    scale = 0 if is_float else 2
    for function, exact in ((tpxi.add, x + y), (tpxi.subtract, x - y), (tpxi.multiply, x * y)):
        wanted = saturated(exact * 2.0**-scale if scale else exact, dtype)
        assert (function(a, b, scale) == wanted).all()
        placed = a.copy()
        assert function(placed, b, scale, out=placed) is placed and (placed == wanted).all()
    for function, wanted in ((tpxi.minimum, np.minimum(a, b)), (tpxi.maximum, np.maximum(a, b))):
        assert (function(a, b) == wanted).all()
        assert (function(a, b, out=(second := b.copy())) == wanted).all() and second is not b
    assert (tpxi.square(a, scale) == saturated(x * x * 2.0**-scale if scale else x * x, dtype)).all()
    positive = np.maximum(a, 1)
    roots = tpxi.sqrt(positive, -1 if scale else 0)  # of 4 channels some types have no form, or one in place alone
    assert (roots == saturated(np.sqrt(positive.astype(wide)) * (2 if scale else 1), dtype)).all()
    assert np.allclose(tpxi.log(positive), np.log(positive.astype(wide)), atol=0.5 if scale else 0, rtol=1e-6)
    small = (positive % 5).astype(dtype)
    assert (np.abs(tpxi.exp(small) - np.exp(small.astype(wide))) <= (0.5 if scale else 1e-4)).all()
    if dtype in (np.int16, np.float32):
        assert (tpxi.absolute(a) == saturated(np.abs(x), dtype)).all()


def test_scales_and_places_that_there_are_not():
    a, b = image(1, np.float32), image(1, np.float32, 1)
    with pytest.raises(TypeError, match="no tpxiAdd of 32f C1; there is"):
        tpxi.add(a, b, scale=1)
    with pytest.raises(ValueError, match="shares memory"):
        tpxi.subtract(a, b, out=b)
    assert (tpxi.add(a, b, out=b) is b)
    with pytest.raises(ValueError, match=r"src2 has shape"):
        tpxi.add(a[1:], a)


def test_alpha_is_kept():
    a, b = image(4, np.uint8), image(4, np.uint8, 1)
    made = tpxi.add(a, b, alpha=True)
    assert (made[..., 3] == b[..., 3]).all() or (made[..., 3] == a[..., 3]).all()
    out = np.full_like(a, 9)
    tpxi.add(a, b, alpha=True, out=out)
    assert (out[..., 3] == 9).all() and (out[..., :3] == tpxi.add(a, b)[..., :3]).all()
    assert (tpxi.threshold_above(a, [10, 20, 30], alpha=True) == np.minimum(a, [10, 20, 30, 255])).all()
    assert (tpxi.maximum(a, b, alpha=True)[..., :3] == np.maximum(a, b)[..., :3]).all()
    with pytest.raises(ValueError, match="give out="):
        tpxi.convert(a, np.float32, alpha=True)
    with pytest.raises(ValueError, match="wants 4 channels"):
        tpxi.median(a[..., 0].copy(), 3, alpha=True)


@pytest.mark.parametrize("channels", CHANNELS)
def test_conversions(channels):
    for source, result in ((np.uint8, np.float32), (np.int16, np.int32), (np.uint16, np.uint8), (np.int32, np.int8),
                           (np.float32, np.uint8), (np.float32, np.int16), (np.int32, np.float32),
                           (np.float64, np.int16), (np.int16, np.uint16)):
        a = image(channels, source)
        assert (tpxi.convert(a, result) == saturated(a.astype(np.float64), result)).all(), (source, result)
    halves = np.array([[-1.5, -0.5, 0.5, 1.5, 2.5]], np.float32)
    assert tpxi.convert(halves, np.int16, "zero").tolist() == [[-1, 0, 0, 1, 2]]
    assert tpxi.convert(halves, np.int16, "away").tolist() == [[-2, -1, 1, 2, 3]]
    assert tpxi.convert(halves, np.int16, scale=-1).tolist() == [[-3, -1, 1, 3, 5]]


@pytest.mark.parametrize("channels", CHANNELS)
def test_thresholds(channels):
    for dtype in (np.uint8, np.int16, np.float32):
        a = image(channels, dtype)
        low, high = sorted(int(v) for v in a.ravel()[:2])
        assert (tpxi.threshold_above(a, high) == np.minimum(a, dtype(high))).all()
        assert (tpxi.threshold_below(a, low, 7) == np.where(a < low, 7, a)).all()
        outside = np.where(a < low, 3, np.where(a > high, 5, a))
        placed = a.copy()
        assert (tpxi.threshold_outside(a, low, 3, high, 5, out=placed if channels < 4 else None) == outside).all()


def test_movement():
    a = image(3, np.uint16)
    mask = image(1, np.uint8) % 2
    assert (tpxi.copy(a, mask=mask) == a * mask[..., None]).all()
    out = tpxi.fill(a.copy(), [1, 2, 3], mask=mask)
    assert (out == np.where(mask[..., None], np.uint16([1, 2, 3]), a)).all()
    assert (tpxi.swap_channels(a, [2, 0, 1]) == a[..., [2, 0, 1]]).all()
    four = tpxi.swap_channels(a, [0, 1, 2, 3], value=77)
    assert (four[..., :3] == a).all() and (four[..., 3] == 77).all()
    placed = image(4, np.uint8)
    wanted = placed[..., ::-1].copy()
    assert (tpxi.swap_channels(placed, [3, 2, 1, 0], out=placed) == wanted).all()
    planes = tpxi.split(a)
    assert all((planes[k] == a[..., k]).all() for k in range(3)) and (tpxi.merge(planes) == a).all()
    assert (tpxi.duplicate(mask, 3) == mask[..., None]).all()
    for border, mode in (("replicate", "edge"), ("mirror", "reflect"), ("constant", "constant")):
        assert (tpxi.pad(a, (2, 3, 4, 5), border) == np.pad(a, ((3, 5), (2, 4), (0, 0)), mode)).all()
    f = image(1, np.float32)
    assert (tpxi.pad(f, (2, 3, 4, 5), "wrap") == np.pad(f, ((3, 5), (2, 4)), "wrap")).all()
    bits = tpxi.to_bits(f, 0)
    assert (bits == np.packbits(f > 0, axis=1, bitorder="little")).all()
    assert (tpxi.from_bits(bits, 37, 5, 9) == np.where(f > 0, 9, 5)).all()
    rows = tpxi.aligned(5, 7, 3, np.int16)
    assert rows.shape == (5, 7, 3) and rows.strides == (64, 6, 2) and rows.ctypes.data % 64 == 0
    assert (tpxi.fill(rows, 4) == 4).all()


@pytest.mark.parametrize("channels", CHANNELS)
@pytest.mark.parametrize("dtype", (np.uint8, np.uint16, np.int16, np.float32))
def test_measures(channels, dtype):
    a, b = image(channels, dtype), image(channels, dtype, 1)
    x, y = a.reshape(-1, channels).astype(np.float64), b.reshape(-1, channels).astype(np.float64)

    def near(got, wanted, rtol=1e-12):
        return np.allclose(got, wanted[0] if channels == 1 else wanted, rtol)

    assert near(tpxi.sum(a), x.sum(0)) and near(tpxi.mean(a), x.mean(0))
    assert near(tpxi.min(a), x.min(0)) and near(tpxi.max(a), x.max(0)) and near(tpxi.min_max(a)[1], x.max(0))
    for found, at in ((tpxi.min_at(a), x.argmin(0)), (tpxi.max_at(a), x.argmax(0))):
        assert near(found[1], at % 37) and near(found[2], at // 37)
    assert near(tpxi.dot(a, b), (x * y).sum(0))
    for kind, measure in (("Inf", lambda v: np.abs(v).max(0)), ("L1", lambda v: np.abs(v).sum(0)),
                          ("L2", lambda v: np.sqrt((v * v).sum(0)))):
        rtol = 1e-6 if dtype == np.float32 else 1e-12  # "Inf" rounds differences of floats
        assert near(tpxi.norm(a, kind), measure(x))
        assert near(tpxi.norm_of_difference(a, b, kind), measure(x - y), rtol)
        assert near(tpxi.relative_norm(a, b, kind), measure(x - y) / measure(y), rtol)
    if channels == 4:
        assert np.allclose(tpxi.max(a, alpha=True), x.max(0)[:3])
    levels = np.linspace(x.min(), x.max(), 9).astype(int) if dtype != np.float32 else np.linspace(-90, 91, 9)
    counts = np.atleast_2d(tpxi.histogram(a, levels))
    for k in range(channels):
        inside = x[:, k][x[:, k] < levels[-1]]
        assert (counts[k] == np.histogram(inside, levels)[0]).all()
    if channels == 1:
        low, high = tpxi.block_min_max(a, 8, 5)
        assert (high == [[a[i:i + 5, j:j + 8].max() for j in range(0, 37, 8)] for i in range(0, 13, 5)]).all()
        assert low[-1, -1] == a[10:, 32:].min()


@pytest.mark.parametrize("channels", CHANNELS)
def test_tables(channels):
    a = image(channels, np.uint8)
    table = noise(256, np.uint8, 3)
    assert (tpxi.palette(a, table) == table[a]).all()
    assert (tpxi.lookup(a, range(257), [*table.tolist(), 0]) == table[a]).all()
    assert (tpxi.lookup(a, [0, 255, 256], [255, 0, 0], "linear") == 255 - a).all()
    f = image(channels, np.float32)
    assert (tpxi.lookup(f, [-1e6, 0, 1e6], [-1, 1, 0]) == np.where(f < 0, -1, 1)).all()
