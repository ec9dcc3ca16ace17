# SPDX-License-Identifier: Apache-2.0
"""Copies, fills, channels, planes, margins, and changes of the sample type."""
from __future__ import annotations

from typing import Any, Sequence

import numpy as np

from .calls import (ROUNDING, Pixel, call, choice, export, find, is_wide, layout_of, pointwise, refuse, values_of,
                    with_alpha)
from .images import CODES, Image, destination, image, refuse_overlap, same
from .library import c, declared, ffi


def _mask(mask: np.ndarray, like: Image) -> dict[str, Any]:
    found = image(mask, "mask")
    if found.code != "8u" or found.channels != 1 or found.size != like.size:
        raise ValueError(f"a mask is one channel of uint8 of the image's size, not {mask.shape} of {mask.dtype}")
    return found.named("Mask")


def copy(a: np.ndarray, out: np.ndarray | None = None, mask: np.ndarray | None = None,
         alpha: bool = False) -> np.ndarray:
    """Copies an image, or its pixels where `mask` (uint8) is not 0; other pixels of `out` stay, and a new one
    has zeros there."""
    if mask is None:
        return pointwise("tpxiCopy", {"Src": a}, out, alpha=alpha)
    source = image(a, "a")
    to = destination(np.zeros_like(a) if out is None else out, source)
    refuse_overlap(source, to)
    with_alpha(out, source, to, alpha)
    name = export("tpxiCopy", source.code, layout_of(source.channels, alpha), ["MR"])
    call(name, {**source.named("Src"), **to.named("Dst"), **_mask(mask, to), "roiSize": to.size})
    return to.array


def fill(out: np.ndarray, value: float | Sequence[float], mask: np.ndarray | None = None,
         alpha: bool = False) -> np.ndarray:
    """Sets all pixels of `out`, or those where `mask` (uint8) is not 0, to a sample or to a sample a channel."""
    to = image(out, "out", writable=True)
    layout = layout_of(to.channels, alpha)
    name = export("tpxiSet", to.code, layout, ["R" if mask is None else "MR"])
    call(name, {"value": Pixel(value, "value"), **to.named("Dst"), "roiSize": to.size,
                **(_mask(mask, to) if mask is not None else {})}, values_of(layout))
    return out


def convert(a: np.ndarray, dtype: Any, rounding: str = "nearest", scale: int = 0, out: np.ndarray | None = None,
            alpha: bool = False) -> np.ndarray:
    """Changes the sample type: samples times 2^-scale, rounded ("nearest" with ties to even, "zero" or "away"
    for ties away from zero) and saturated."""
    return pointwise("tpxiConvert", {"Src": a}, out, dtype=dtype, alpha=alpha, scale=scale, in_place="Src",
                     values={"roundMode": choice("rounding", rounding, ROUNDING)})


def swap_channels(a: np.ndarray, order: Sequence[int], value: float = 0, out: np.ndarray | None = None) -> np.ndarray:
    """Destination channel k is source channel order[k]; (h, w, 3 or 4), as many channels as `order` has. From
    3 to 4 channels an entry of 3 takes `value`."""
    source = image(a, "a")
    to = destination(out, source, channels=len(order))
    pair = f"C{source.channels}" + (f"C{to.channels}" if to.channels != source.channels else "")
    ends: dict[str, Any] = {**source.named("Src"), **to.named("Dst")}
    is_placed = same(source, to)
    if not is_placed:
        refuse_overlap(source, to)
    name = export("tpxiSwapChannels", source.code, pair, ["IR" if is_placed else "R"])
    call(name, {**ends, **to.named("SrcDst"), "roiSize": to.size, "dstOrder": list(order),
                "val": Pixel(value, "value")})
    return to.array


def duplicate(a: np.ndarray, channels: int, out: np.ndarray | None = None) -> np.ndarray:
    """Writes each sample of one channel of uint8 into all of 3 or 4 channels."""
    source = image(a, "a")
    to = destination(out, source, channels=channels)
    refuse_overlap(source, to)
    call(export("tpxiDup", source.code, f"C{source.channels}C{channels}"),
         {**source.named("Src"), **to.named("Dst"), "roiSize": to.size})
    return to.array


def split(a: np.ndarray) -> list[np.ndarray]:
    """The planes of an image of 3 or 4 channels."""
    source = image(a, "a")
    planes = np.empty((source.channels, source.height, source.width), a.dtype)
    first = image(planes[0], "planes")
    call(export("tpxiCopy", source.code, f"C{source.channels}P{source.channels}"),
         {**source.named("Src"), "pDst": [image(p, "planes").at(0, 0) for p in planes], "dstStep": first.step,
          "roiSize": source.size})
    return list(planes)


def merge(planes: Sequence[np.ndarray], out: np.ndarray | None = None) -> np.ndarray:
    """An image of 3 or 4 channels from as many planes of one shape, type and step."""
    sources = [image(p, f"plane {i}") for i, p in enumerate(planes)]
    first = sources[0]
    for other in sources:
        if (other.size, other.code, other.channels, other.step) != (first.size, first.code, 1, first.step):
            raise ValueError(f"{other.name} has shape {other.array.shape} of {other.array.dtype} and strides "
                             f"{other.array.strides}; planes are alike in all three")
    to = destination(out, first, channels=len(planes))
    for source in sources:
        refuse_overlap(source, to)
    call(export("tpxiCopy", first.code, f"P{len(planes)}C{len(planes)}"),
         {"pSrc": [s.at(0, 0) for s in sources], "srcStep": first.step, **to.named("Dst"), "roiSize": to.size})
    return to.array


def pad(a: np.ndarray, margins: tuple[int, int, int, int], border: str = "replicate",
        value: float | Sequence[float] = 0) -> np.ndarray:
    """An image with margins of (left, top, right, bottom) pixels around it: "replicate", "mirror" (the edge is
    not repeated), "wrap" or "constant" with a sample or a sample a channel."""
    source = image(a, "a")
    left, top, right, bottom = margins
    stems = {"replicate": "tpxiCopyReplicateBorder", "mirror": "tpxiCopyMirrorBorder", "wrap": "tpxiCopyWrapBorder",
             "constant": "tpxiCopyConstBorder"}
    stem = choice("border", border, stems)
    to = destination(None, source, size=(source.width + left + right, source.height + top + bottom))
    layout = layout_of(source.channels, False)
    name = find(stem, source.code, layout, wide=is_wide([source, to]))
    if name is None:
        raise refuse(stem, source.code, layout)
    call(name, {**source.named("Src"), "srcRoiSize": source.size, **to.named("Dst"), "dstRoiSize": to.size,
                "topBorderHeight": top, "leftBorderWidth": left, "value": Pixel(value, "value")}, source.channels)
    return to.array


def from_bits(a: np.ndarray, width: int, low: float, high: float, dtype: Any = np.uint8, offset: int = 0) -> np.ndarray:
    """An image from rows of bits (uint8, the least significant bit first, from bit `offset` of 0 to 7 on)."""
    source = image(a, "a")
    if source.code != "8u" or source.channels != 1 or source.width * 8 < width + offset:
        raise ValueError(f"rows of {width} bits from bit {offset} on do not lie in {a.shape} of {a.dtype}")
    to = destination(None, source, dtype, size=(width, source.height))
    call(export("tpxiBinToGray", "1u" + to.code, "C1"),
         {**source.named("Src"), **to.named("Dst"), "roiSize": to.size, "srcBitOffset": offset, "loVal": low,
          "hiVal": high})
    return to.array


def to_bits(a: np.ndarray, threshold: float) -> np.ndarray:
    """Rows of bits, 1 where a sample is above the threshold; the least significant bit comes first."""
    source = image(a, "a")
    bits = np.zeros((source.height, (source.width + 7) // 8), np.uint8)
    call(export("tpxiGrayToBin", source.code + "1u", layout_of(source.channels, False)),
         {**source.named("Src"), **image(bits, "bits").named("Dst"), "dstBitOffset": 0, "roiSize": source.size,
          "threshold": threshold})
    return bits


def aligned(height: int, width: int, channels: int = 1, dtype: Any = np.uint8) -> np.ndarray:
    """An image in the library's own memory, all rows of which start on 64 bytes. It is released with the array."""
    code = CODES[np.dtype(dtype)]
    name = f"tpxiMalloc_{code}_C{channels}"
    if name not in declared.prototypes:
        raise refuse("tpxiMalloc", code, f"C{channels}")
    step = ffi.new("int*")
    memory = getattr(c, name)(width, height, step)
    if memory == ffi.NULL:
        raise MemoryError(f"no image of {width} x {height} pixels")
    owned = ffi.gc(ffi.cast("char*", memory), c.tpxiFree)
    rows = np.frombuffer(ffi.buffer(owned, step[0] * height), np.dtype(dtype)).reshape(height, -1)
    pixels = rows[:, :width * channels]
    return pixels.reshape(height, width, channels) if channels > 1 else pixels
