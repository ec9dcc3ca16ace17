# SPDX-License-Identifier: Apache-2.0
"""Measuring images: reductions, norms, histograms; and lookup tables.

Results are a number for images of one channel, and an array with an entry a channel for others.
"""
from __future__ import annotations

from typing import Any, Sequence

import numpy as np

from .calls import (INTERPOLATIONS, block, call, choice, data_type, export, layout_of, number, pointwise, results,
                    told, values_of, with_alpha)
from .images import destination, image
from .library import declared, ffi

_ACCURATE = 2


def _reduce(stem: str, images: dict[str, np.ndarray], words: Sequence[str], alpha: bool = False,
            types: str = "") -> list[Any]:
    """Calls a reduction, and gives what it stores through the parameters `words`."""
    inputs = {word: image(array, word.lower()) for word, array in images.items()}
    first = next(iter(inputs.values()))
    for other in inputs.values():
        if (other.size, other.channels, other.code) != (first.size, first.channels, first.code):
            raise ValueError(f"images of shapes {first.array.shape} and {other.array.shape}, of {first.array.dtype} "
                             f"and {other.array.dtype}, cannot be compared")
    layout = layout_of(first.channels, alpha)
    name = export(stem, first.code + types, layout)
    stored = results(name, words)
    named = {k: v for word, i in inputs.items() for k, v in i.named(word).items()}
    call(name, {**named, **stored, "roiSize": first.size, "hint": _ACCURATE})
    return [told(stored[word], values_of(layout)) for word in words]


def sum(a: np.ndarray) -> Any:
    """The sum of each channel, in double precision."""
    return _reduce("tpxiSum", {"Src": a}, ["pSum"])[0]


def mean(a: np.ndarray) -> Any:
    """The mean of each channel, in double precision."""
    return _reduce("tpxiMean", {"Src": a}, ["pMean"])[0]


def min(a: np.ndarray, alpha: bool = False) -> Any:
    """The smallest sample of each channel (alpha=True: of the first three)."""
    return _reduce("tpxiMin", {"Src": a}, ["pMin"], alpha)[0]


def max(a: np.ndarray, alpha: bool = False) -> Any:
    """The largest sample of each channel."""
    return _reduce("tpxiMax", {"Src": a}, ["pMax"], alpha)[0]


def min_max(a: np.ndarray, alpha: bool = False) -> tuple[Any, Any]:
    """The smallest and the largest sample of each channel."""
    low, high = _reduce("tpxiMinMax", {"Src": a}, ["pMin", "pMax"], alpha)
    return low, high


def min_at(a: np.ndarray, alpha: bool = False) -> tuple[Any, Any, Any]:
    """The smallest sample of each channel, and column and row of the first pixel that holds it."""
    value, x, y = _reduce("tpxiMinIndx", {"Src": a}, ["pMin", "pIndexX", "pIndexY"], alpha)
    return value, x, y


def max_at(a: np.ndarray, alpha: bool = False) -> tuple[Any, Any, Any]:
    """The largest sample of each channel, and column and row of the first pixel that holds it."""
    value, x, y = _reduce("tpxiMaxIndx", {"Src": a}, ["pMax", "pIndexX", "pIndexY"], alpha)
    return value, x, y


def dot(a: np.ndarray, b: np.ndarray, alpha: bool = False) -> Any:
    """The sum of the products of two images' samples."""
    return _reduce("tpxiDotProd", {"Src1": a, "Src2": b}, ["pDp"], alpha, "64f")[0]


def _kind(kind: str) -> str:
    return choice("kind", kind, {word: word for word in ("Inf", "L1", "L2")})


def norm(a: np.ndarray, kind: str = "L2") -> Any:
    """The norm "Inf", "L1" or "L2" of each channel."""
    return _reduce(f"tpxiNorm_{_kind(kind)}", {"Src": a}, ["pValue"])[0]


def norm_of_difference(a: np.ndarray, b: np.ndarray, kind: str = "L2") -> Any:
    """The norm of a - b."""
    return _reduce(f"tpxiNormDiff_{_kind(kind)}", {"Src1": a, "Src2": b}, ["pValue"])[0]


def relative_norm(a: np.ndarray, reference: np.ndarray, kind: str = "L2") -> Any:
    """The norm of a - reference over that of the reference."""
    return _reduce(f"tpxiNormRel_{_kind(kind)}", {"Src": a, "SrcRef": reference}, ["pValue"])[0]


def block_min_max(a: np.ndarray, width: int, height: int) -> tuple[np.ndarray, np.ndarray]:
    """Images of the smallest and the largest sample of each block of so many pixels; the last ones may be cut."""
    source = image(a, "a")
    blocks = (-(-source.width // width), -(-source.height // height))
    low, high = (destination(None, source, size=blocks) for _ in range(2))
    call(export("tpxiBlockMinMax", source.code, layout_of(source.channels, False)),
         {**source.named("Src"), **low.named("DstMin"), **high.named("DstMax"), "srcSize": source.size,
          "blockSize": (width, height), "pDstGlobalMin": ffi.NULL, "pDstGlobalMax": ffi.NULL})
    return low.array, high.array


def _each(values: Any, channels: int, dtype: str, name: str) -> list[np.ndarray]:
    """A list for all channels, or one a channel, as contiguous arrays."""
    is_nested = len(values) > 0 and np.ndim(values[0]) > 0
    if is_nested and len(values) != channels:
        raise ValueError(f"{name} has {len(values)} lists for {channels} channels")
    return [np.ascontiguousarray(v, dtype) for v in (values if is_nested else [values] * channels)]


def _pointers(arrays: list[np.ndarray], type_name: str) -> list[Any]:
    return [ffi.cast(f"{type_name}*", a.ctypes.data) for a in arrays]


def histogram(a: np.ndarray, levels: Any) -> np.ndarray:
    """Bin k counts the samples with levels[k] <= x < levels[k + 1]: uint32 of shape (bins,) or (channels, bins).

    `levels` rise; they are one list for all channels, or a list a channel, all of one length.
    """
    source = image(a, "a")
    name = export("tpxiHistogram", source.code, layout_of(source.channels, False))
    bounds = _each(levels, source.channels, "float32", "levels")
    counts = np.zeros((source.channels, len(bounds[0]) - 1 if len(bounds[0]) else 0), np.uint32)
    if {len(b) for b in bounds} != {counts.shape[1] + 1}:
        raise ValueError("channels have different numbers of levels; ask for them one by one")
    told_once = {"dataType": data_type(source.code), "nChannels": source.channels, "nLevels": [len(b) for b in bounds],
                 "roiSize": source.size, "uniform": 0}
    sizes = results("tpxiHistogramGetBufferSize", ["pSpecSize", "pBufferSize"])
    call("tpxiHistogramGetBufferSize", {**told_once, **sizes})
    memory, spec = block(sizes["pSpecSize"][0])
    spec = ffi.cast("TpxHistogramSpec*", spec)
    work, buffer = block(sizes["pBufferSize"][0])
    call("tpxiHistogramInit", {**told_once, "pLevels": _pointers(bounds, "Tpx32f"), "pSpec": spec})
    bins = _pointers(list(counts), "Tpx32u")
    call(name, {**source.named("Src"), "roiSize": source.size, "pHist": bins[0] if source.channels == 1 else bins,
                "pSpec": spec, "pBuffer": buffer})
    del memory, work
    return counts[0] if source.channels == 1 else counts


def lookup(a: np.ndarray, levels: Any, values: Any, interpolation: str = "nearest", out: np.ndarray | None = None,
           alpha: bool = False) -> np.ndarray:
    """Maps samples through levels and values: nearest, linear or cubic between them. Samples outside all levels
    stay. Lists are one for all channels, or one a channel."""
    source = image(a, "a")
    channels = values_of(layout_of(source.channels, alpha))
    word = "float32" if source.code == "32f" else "int32"
    x, y = _each(levels, channels, word, "levels"), _each(values, channels, word, "values")
    if [len(v) for v in x] != [len(v) for v in y]:
        raise ValueError("levels and values are not of the same number")
    type_name = "Tpx32f" if source.code == "32f" else "Tpx32s"
    if f"tpxiLUT_Init_{source.code}" not in declared.prototypes:
        export("tpxiLUT", source.code, layout_of(source.channels, alpha))
    told_once = {"interpolation": choice("interpolation", interpolation, INTERPOLATIONS),
                 "dataType": data_type(source.code), "roiSize": source.size,
                 "layout": {1: 1, 3: 3, 4: 9 if alpha else 4}[source.channels], "nLevels": [len(v) for v in x]}
    memory, spec = block(number("pSpecSize", "tpxiLUT_GetSize", told_once))
    spec = ffi.cast("TpxiLUT_Spec*", spec)
    call(f"tpxiLUT_Init_{source.code}", {**told_once, "pValues": _pointers(y, type_name),
                                         "pLevels": _pointers(x, type_name), "pSpec": spec})
    mapped = pointwise("tpxiLUT", {"Src": a}, out, alpha=alpha, in_place="Src", values={"pSpec": spec})
    del memory
    return mapped


def palette(a: np.ndarray, table: Any, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """Replaces samples by entries of a table of 2^n entries, which their low n bits name: one list for all
    channels, or a list a channel. The table's type is that of the result (uint8 and uint16 to uint8, uint16 or
    uint32)."""
    source = image(a, "a")
    layout = layout_of(source.channels, alpha)
    first = np.asarray(table)
    tables = _each(first, values_of(layout), first.dtype.name, "table")
    bits = len(tables[0]).bit_length() - 1
    if len({len(t) for t in tables} | {1 << bits}) != 1:
        raise ValueError("tables have a power of two of entries, all the same")
    to = destination(out, source, first.dtype)
    pointers = [image(t[None], "table").at(0, 0) for t in tables]
    name = export("tpxiLUTPalette", source.code + (to.code if to.code != source.code else ""), layout)
    with_alpha(out, source, to, alpha)
    call(name, {**source.named("Src"), **to.named("Dst"), "roiSize": to.size, "nBitSize": bits,
                "pTable": pointers if source.channels > 1 else pointers[0]})
    return to.array

