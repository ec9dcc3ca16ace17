# SPDX-License-Identifier: Apache-2.0
"""Thresholds: samples that are clamped or replaced."""
from __future__ import annotations

from typing import Any, Sequence

import numpy as np

from .calls import Pixel, pointwise

Value = float | Sequence[float]


def _threshold(word: str, a: np.ndarray, out: np.ndarray | None, alpha: bool, **values: Any) -> np.ndarray:
    pixels = {name: Pixel(value, name) for name, value in values.items()}
    return pointwise(f"tpxiThreshold_{word}", {"Src": a}, out, alpha=alpha, in_place="Src", values=pixels)


def threshold_above(a: np.ndarray, threshold: Value, value: Value | None = None, out: np.ndarray | None = None,
                    alpha: bool = False) -> np.ndarray:
    """Samples above the threshold become the threshold, or `value`; a number, or one a channel."""
    if value is None:
        return _threshold("GT", a, out, alpha, threshold=threshold)
    return _threshold("GTVal", a, out, alpha, threshold=threshold, value=value)


def threshold_below(a: np.ndarray, threshold: Value, value: Value | None = None, out: np.ndarray | None = None,
                    alpha: bool = False) -> np.ndarray:
    """Samples below the threshold become the threshold, or `value`; a number, or one a channel."""
    if value is None:
        return _threshold("LT", a, out, alpha, threshold=threshold)
    return _threshold("LTVal", a, out, alpha, threshold=threshold, value=value)


def threshold_outside(a: np.ndarray, low: Value, low_value: Value, high: Value, high_value: Value,
                      out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """Samples below `low` become `low_value`, those above `high` become `high_value`."""
    return _threshold("LTValGTVal", a, out, alpha, thresholdLT=low, valueLT=low_value, thresholdGT=high,
                      valueGT=high_value)
