# SPDX-License-Identifier: Apache-2.0
"""What arrays are taken as images, and what is said of others."""
import threading
import time
import warnings

import numpy as np
import pytest

import tpxi


@pytest.fixture
def a():
    return np.random.default_rng(1).integers(0, 256, (40, 60), np.uint8)


def test_views_that_a_step_can_express(a):
    colours = a.reshape(40, 20, 3)
    for view in (a[3:17, 5:42], a[::2], a[1::3, 7:8], a[5:6, ::1], colours[:, 4:9], colours[::2],
                 np.asfortranarray(a)[:, 4:5].T, a[None, :, 3][:, :1]):
        out = np.zeros((90, 130) + view.shape[2:], np.uint8)
        inside = out[2:2 + 2 * view.shape[0]:2, 3:3 + view.shape[1]]
        assert tpxi.copy(view, inside) is inside
        assert (inside == view).all() and out.sum() == view.sum(dtype=int)


@pytest.mark.parametrize("view, why", [
    (lambda a: a.T, "pixels of a row are 60 bytes apart, not 1"),
    (lambda a: a[:, ::-1], "-1 bytes apart"),
    (lambda a: a[:, ::2], "2 bytes apart"),
    (lambda a: a[::-1], "-60 bytes does not lead forward"),
    (lambda a: np.broadcast_to(a[0], (9, 60)), "0 bytes does not lead forward"),
    (lambda a: a.reshape(40, 20, 3)[..., ::-1], "samples of a pixel are -1 bytes apart"),
    (lambda a: np.lib.stride_tricks.as_strided(a.view(np.int16), (4, 8), (33, 2)), "no whole number of samples"),
    (lambda a: a.reshape(40, 30, 2), "shape"),
    (lambda a: a[0], "shape"),
])
def test_strides_that_are_no_step_are_refused(a, view, why):
    with pytest.raises(ValueError, match=why):
        tpxi.copy(view(a))


def test_what_is_no_image(a):
    with pytest.raises(TypeError, match="no numpy array but list"):
        tpxi.copy([[1, 2]])
    for dtype in (np.int64, np.bool_, ">i2"):
        with pytest.raises(TypeError, match="samples of"):
            tpxi.copy(a.astype(dtype))
    with pytest.raises(TypeError, match="no tpxiSqrt of 32s C1; there is: .*16s_C1RSfs"):
        tpxi.sqrt(a.astype(np.int32))


def test_destinations(a):
    with pytest.raises(ValueError, match="read-only"):
        tpxi.copy(a, np.frombuffer(bytes(2400), np.uint8).reshape(40, 60))
    with pytest.raises(ValueError, match=r"\(40, 60\) of uint8 is needed"):
        tpxi.copy(a, np.empty((40, 61), np.uint8))
    with pytest.raises(ValueError, match="overlap, and cannot be written"):
        tpxi.fill(np.lib.stride_tricks.as_strided(a, (5, 8), (4, 1)), 1)
    with pytest.raises(ValueError, match="shares memory with src"):
        tpxi.copy(a[:-1], a[1:])
    tpxi.copy(a[:, :30], a[:, 30:])  # interleaved, but apart
    assert (a[:, :30] == a[:, 30:]).all()
    with pytest.raises(ValueError, match="shares memory"):
        tpxi.resize(a, (60, 40), out=a)


def test_statuses_are_exceptions_and_warnings(a):
    wanted = r"tpxiFilterMedianBorderGetBufferSize: tpxErrMaskSize \(-33\): mask size"
    with pytest.raises(tpxi.Error, match=wanted) as error:
        tpxi.median(a, 4)
    assert (error.value.status, error.value.name) == (-33, "tpxErrMaskSize")
    with pytest.warns(tpxi.Warned, match=r"tpxWarnSqrtNegArg \(3\)") as told:
        assert tpxi.sqrt(np.full((2, 2), -4, np.int16)).sum() == 0
    assert told[0].filename == __file__
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        tpxi.sqrt(a)


def test_steps_of_64_bits():
    """Rows more than 2 GB apart go to the functions of 64 bits, where there are such."""
    far = np.lib.stride_tricks.as_strided(np.zeros(5 << 29, np.uint8), (2, 9), ((1 << 31) + 64, 1))
    tpxi.add(np.full((2, 9), 3, np.uint8), far, out=far)
    assert (tpxi.copy(far) == 3).all()
    with pytest.raises(OverflowError):
        tpxi.median(far, 3)


def test_words_and_sizes_that_there_are_not(a):
    for call in (lambda: tpxi.resize(a, (9, 9), "bicubic"), lambda: tpxi.warp(a, np.eye(3), kind="super"),
                 lambda: tpxi.median(a, 3, "wrap"), lambda: tpxi.convert(a, np.float32, "up"),
                 lambda: tpxi.norm(a, "l2"), lambda: tpxi.pad(a, (1, 1, 1, 1), "edge")):
        with pytest.raises(ValueError, match=r"(kind|border|rounding) is one of \w+, "):
            call()
    with pytest.raises(ValueError, match="no image of"):
        tpxi.resize(a, (0, 9))
    with pytest.raises(ValueError, match=r"src1 has no pixels: its shape is \(0, 60\)"):
        tpxi.add(a[:0], a[:0])
    with pytest.warns(tpxi.Warned, match="tpxWarnNoAntialiasing"):
        assert (tpxi.resize(a, (30, 20), "nearest", antialias=True) == tpxi.resize(a, (30, 20), "nearest")).all()


def test_values_of_pixels(a):
    colours = np.zeros((4, 5, 3), np.int16)
    tpxi.fill(colours, [-1, 2, 3])
    assert (colours == [-1, 2, 3]).all()
    with pytest.raises(ValueError, match="value has 2 samples, and 3 are wanted"):
        tpxi.fill(colours, [1, 2])
    with pytest.raises(OverflowError):
        tpxi.fill(a, 256)


def test_the_interpreter_runs_on_during_calls():
    """A thread that only counts gets its turns while a long call runs."""
    noise = np.random.default_rng(2).random((2000, 3000), np.float32)
    stop, turns = threading.Event(), []

    def count():
        while not stop.is_set():
            turns.append(time.perf_counter())
            time.sleep(0.001)

    counter = threading.Thread(target=count)
    counter.start()
    begin = time.perf_counter()
    tpxi.median(noise, 15)
    end = time.perf_counter()
    stop.set()
    counter.join()
    # A held lock lets the other thread in at the call's ends alone.
    inside = [t for t in turns if begin + (end - begin) * 0.1 < t < begin + (end - begin) * 0.9]
    assert end - begin > 0.05 and len(inside) > 5
