# SPDX-License-Identifier: Apache-2.0
"""Arithmetic on every sample: functions of one image, and of two.

Integer results are multiplied by 2^-scale, rounded to nearest with ties to even and saturated; float images take
no scale. `out` may be the image itself (of two images the first, or either where their order does not matter).
With alpha=True the fourth channel is left as it is in `out`.
"""
from __future__ import annotations

import numpy as np

from .calls import pointwise


def _unary(stem: str, a: np.ndarray, scale: int, out: np.ndarray | None, alpha: bool) -> np.ndarray:
    return pointwise(stem, {"Src": a}, out, alpha=alpha, scale=scale, in_place="Src")


def absolute(a: np.ndarray, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """|a| of int16 and float32; -32768 gives 32767."""
    return _unary("tpxiAbs", a, 0, out, alpha)


def square(a: np.ndarray, scale: int = 0, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """a * a * 2^-scale."""
    return _unary("tpxiSqr", a, scale, out, alpha)


def sqrt(a: np.ndarray, scale: int = 0, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """sqrt(a) * 2^-scale; warns of negative samples, which give 0 in int16 and NaN in float32."""
    return _unary("tpxiSqrt", a, scale, out, alpha)


def log(a: np.ndarray, scale: int = 0, out: np.ndarray | None = None) -> np.ndarray:
    """The natural logarithm times 2^-scale; warns of zeros and negative samples."""
    return _unary("tpxiLn", a, scale, out, False)


def exp(a: np.ndarray, scale: int = 0, out: np.ndarray | None = None) -> np.ndarray:
    """The exponential times 2^-scale."""
    return _unary("tpxiExp", a, scale, out, False)


def _commuting(stem: str, a: np.ndarray, b: np.ndarray, scale: int, out: np.ndarray | None, alpha: bool) -> np.ndarray:
    if out is b and b is not a:
        a, b = b, a
    return pointwise(stem, {"Src1": b, "Src2": a}, out, alpha=alpha, scale=scale, in_place="Src2")


def add(a: np.ndarray, b: np.ndarray, scale: int = 0, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """(a + b) * 2^-scale."""
    return _commuting("tpxiAdd", a, b, scale, out, alpha)


def subtract(a: np.ndarray, b: np.ndarray, scale: int = 0, out: np.ndarray | None = None,
             alpha: bool = False) -> np.ndarray:
    """(a - b) * 2^-scale."""
    return pointwise("tpxiSub", {"Src1": b, "Src2": a}, out, alpha=alpha, scale=scale, in_place="Src2")


def multiply(a: np.ndarray, b: np.ndarray, scale: int = 0, out: np.ndarray | None = None,
             alpha: bool = False) -> np.ndarray:
    """a * b * 2^-scale."""
    return _commuting("tpxiMul", a, b, scale, out, alpha)


def minimum(a: np.ndarray, b: np.ndarray, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The smaller of two samples."""
    return _commuting("tpxiMinEvery", a, b, 0, out, alpha)


def maximum(a: np.ndarray, b: np.ndarray, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The larger of two samples."""
    return _commuting("tpxiMaxEvery", a, b, 0, out, alpha)
