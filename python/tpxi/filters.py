# SPDX-License-Identifier: Apache-2.0
"""Neighbourhood filters.

What a filter sees beyond the image is told by `border`: "replicate", "mirror" or "constant" (with `value`), or
"memory", where all pixels under the mask are pixels of the array. `region` = (x, y, width, height) asks for that
part alone: sides on which the array goes on beyond the region are read there, the border is for the others. So a
tile with the pixels around it gives the same bytes as the whole image. With "memory" and no region the result is
what lies so far inside that the mask never leaves the array, and is smaller than the array.

`threads` share the rows; results do not depend on their number.
"""
from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Callable, Sequence

import numpy as np

from .calls import (ROUNDING, Pixel, block, call, choice, data_type, export, find, in_bands, layout_of, number,
                    values_of, with_alpha)
from .images import CODES, Image, destination, image, refuse_overlap, same
from .library import c, ffi

_BORDERS = {"replicate": c.tpxBorderReplicate, "mirror": c.tpxBorderMirror, "constant": c.tpxBorderConstant,
            "memory": c.tpxBorderInMemAll}
Region = tuple[int, int, int, int]


@dataclass(frozen=True)
class Reach:
    """How many pixels a mask goes beyond its own pixel, on each side."""

    left: int
    top: int
    right: int
    bottom: int

    @staticmethod
    def of(width: int, height: int) -> "Reach":
        """Of a mask that is centred, even sides reaching further to the right and below."""
        return Reach((width - 1) // 2, (height - 1) // 2, width // 2, height // 2)


def _interior(source: Image, reach: Reach) -> Region:
    return (reach.left, reach.top, source.width - reach.left - reach.right, source.height - reach.top - reach.bottom)


def _sides(source: Image, region: Region, reach: Reach, border: str) -> int:
    """The word for a region's border: flags for sides where the array goes on, and the kind for the others."""
    x, y, width, height = region
    word, kind = 0, choice("border", border, _BORDERS)
    margins = (("left", x, reach.left, c.tpxBorderInMemLeft), ("top", y, reach.top, c.tpxBorderInMemTop),
               ("right", source.width - x - width, reach.right, c.tpxBorderInMemRight),
               ("bottom", source.height - y - height, reach.bottom, c.tpxBorderInMemBottom))
    for side, margin, needed, flag in margins:
        if margin < 0:
            raise ValueError(f"the region {region} leaves {source.name} of {source.width} x {source.height} pixels")
        if margin >= needed and (margin > 0 or border == "memory"):
            word |= flag
        elif margin > 0 or border == "memory":
            raise ValueError(f"{source.name} goes on for {margin} pixels on the {side} of the region {region}, of the "
                             f"{needed} that the mask reaches; begin the region at the edge, or further inside")
    return word if word == c.tpxBorderInMemAll else word | kind


def _filter(stem: str, a: np.ndarray, reach: Reach, border: str, value: Any, region: Region | None,
            out: np.ndarray | None, threads: int, *, alpha: bool = False, dtype: Any = None, in_place: bool = False,
            values: dict[str, Any] | None = None,
            prepare: Callable[[Image, tuple[int, int]], dict[str, Any]] | None = None,
            buffer_bytes: Callable[[tuple[int, int], dict[str, Any]], int] | None = None) -> np.ndarray:
    """Runs a filter over the region, in bands of rows. A filter without borders is named by its stem alone.

    prepare       makes what all bands share, for the largest of them: values by parameter
    buffer_bytes  tells the work buffer of a band of some size
    """
    source = image(a, "a")
    left, above, width, height = region or (
        _interior(source, reach) if border == "memory" else (0, 0, *source.size))
    if width < 1 or height < 1:
        raise ValueError(f"no pixels in a region of {width} x {height}, of an image of {source.size} pixels")
    _sides(source, (left, above, width, height), reach, border)
    to = destination(out, source, dtype, size=(width, height))
    is_placed = in_place and same(source, to)
    if not is_placed:
        refuse_overlap(source, to)
    inner = a[above:above + height, left:left + width]
    with_alpha(out, Image(inner, "a", source.code, width, height, source.channels, source.step), to, alpha)
    layout = layout_of(source.channels, alpha)
    types = source.code + (to.code if to.code != source.code else "")
    name = export(stem, types, layout)
    pixel = Pixel(value, "value")
    shared = {**(values or {}), **(prepare(source, to.size) if prepare else {})}

    def work(top: int, bottom: int) -> None:
        x, y, size = left, above + top, (width, bottom - top)
        memory, buffer = block(buffer_bytes(size, shared)) if buffer_bytes else (None, ffi.NULL)
        call(name, {**source.named("Src", x, y), **to.named("Dst", 0, top), "roiSize": size,
                    "border": _sides(source, (x, y, *size), reach, border), "borderValue": pixel,
                    "pBorderValue": pixel, "pBuffer": buffer, **shared}, values_of(layout))
        del memory

    # Bands are higher than the mask: a side then either goes on far enough, or ends with the image.
    in_bands(height, 1 if is_placed else threads, reach.top + reach.bottom + 2, work)
    return to.array


def _pair(size: int | tuple[int, int]) -> tuple[int, int]:
    return (int(size), int(size)) if isinstance(size, (int, np.integer)) else (int(size[0]), int(size[1]))


def _anchored(width: int, height: int) -> dict[str, Any]:
    return {"maskSize": (width, height), "anchor": ((width - 1) // 2, (height - 1) // 2)}


def box(a: np.ndarray, size: int | tuple[int, int], border: str = "replicate", value: Any = 0,
        region: Region | None = None, out: np.ndarray | None = None, threads: int = 1,
        alpha: bool = False) -> np.ndarray:
    """The mean over a mask of `size` pixels, or (width, height). float64 has border="memory" alone.

    The mean of float32 depends in its last bits on where a column of masks begins, so that it is made in one
    piece whatever `threads` says."""
    width, height = _pair(size)
    reach, values = Reach.of(width, height), _anchored(width, height)
    source = image(a, "a")
    if source.code == "64f":
        return _filter("tpxiFilterBox", a, reach, border, value, region, out, threads, values=values)

    def buffer_bytes(roi: tuple[int, int], shared: dict[str, Any]) -> int:
        return number("pBufferSize", "tpxiFilterBoxBorderGetBufferSize",
                      {**shared, "roiSize": roi, "dataType": data_type(source.code), "numChannels": source.channels})

    return _filter("tpxiFilterBoxBorder", a, reach, border, value, region, out, 1 if source.code == "32f" else threads,
                   alpha=alpha, in_place=True, values=values, buffer_bytes=buffer_bytes)


def median(a: np.ndarray, size: int | tuple[int, int], border: str = "replicate", value: Any = 0,
           region: Region | None = None, out: np.ndarray | None = None, threads: int = 1,
           alpha: bool = False) -> np.ndarray:
    """The median over a mask of odd `size`, or (width, height). float32 of 3 and 4 channels and float64 have
    border="memory" alone."""
    width, height = _pair(size)
    source = image(a, "a")
    layout = layout_of(source.channels, alpha)
    unbordered = (not find("tpxiFilterMedianBorder", source.code, layout)
                  and find("tpxiFilterMedian", source.code, layout) is not None)
    if unbordered and border != "memory":
        raise ValueError(f'a median of {a.dtype} with {source.channels} channels has border="memory" alone')
    query = f"tpxiFilterMedianGetBufferSize_{source.code}" if unbordered else "tpxiFilterMedianBorderGetBufferSize"

    def buffer_bytes(roi: tuple[int, int], shared: dict[str, Any]) -> int:
        return number("pBufferSize", query,
                      {**shared, "roiSize": roi, "dataType": data_type(source.code), "numChannels": source.channels})

    return _filter("tpxiFilterMedian" if unbordered else "tpxiFilterMedianBorder", a, Reach.of(width, height), border,
                   value, region, out, threads, alpha=alpha, in_place=not unbordered,
                   values=_anchored(width, height), buffer_bytes=buffer_bytes)


def _mask_code(size: int) -> dict[str, int]:
    """Masks of fixed shape are named 33 and 55 for 3x3 and 5x5."""
    return {"mask": 11 * size}


def median_cross(a: np.ndarray, size: int = 3, region: Region | None = None, out: np.ndarray | None = None,
                 threads: int = 1, alpha: bool = False) -> np.ndarray:
    """The median of the middle row and column of a mask of 3 or 5; all of it is read from the array."""
    return _filter("tpxiFilterMedianCross", a, Reach.of(size, size), "memory", 0, region, out, threads, alpha=alpha,
                   values=_mask_code(size))


def median_color(a: np.ndarray, size: int = 3, region: Region | None = None, out: np.ndarray | None = None,
                 threads: int = 1, alpha: bool = False) -> np.ndarray:
    """Of the pixels under a mask of 3 or 5 the one nearest to all others; all are read from the array."""
    return _filter("tpxiFilterMedianColor", a, Reach.of(size, size), "memory", 0, region, out, threads, alpha=alpha,
                   values=_mask_code(size))


def median_weighted(a: np.ndarray, weight: int, region: Region | None = None, out: np.ndarray | None = None,
                    threads: int = 1) -> np.ndarray:
    """The median of 3x3 samples of uint8 of which the middle one counts `weight` times."""
    return _filter("tpxiFilterMedianWeightedCenter3x3", a, Reach.of(3, 3), "memory", 0, region, out, threads,
                   values={"weight": weight})


def window_sum(a: np.ndarray, size: int, axis: int, anchor: int | None = None, region: Region | None = None,
               out: np.ndarray | None = None, threads: int = 1) -> np.ndarray:
    """Sums of `size` samples down a column (axis 0) or along a row (axis 1) as float32; the result's pixel is
    that of number `anchor`, the middle one unless told. All samples are read from the array."""
    anchor = (size - 1) // 2 if anchor is None else anchor
    before, after = anchor, size - 1 - anchor
    stem, reach = (("tpxiSumWindowColumn", Reach(0, before, 0, after)),
                   ("tpxiSumWindowRow", Reach(before, 0, after, 0)))[axis]
    return _filter(stem, a, reach, "memory", 0, region, out, threads, dtype=np.float32,
                   values={"maskSize": size, "anchor": anchor})


def _fixed(word: str, a: np.ndarray, size: int, border: str, value: Any, region: Region | None,
           out: np.ndarray | None, threads: int, alpha: bool = False, dtype: Any = None) -> np.ndarray:
    stem = f"tpxiFilter{word}Border"
    source = image(a, "a")

    def buffer_bytes(roi: tuple[int, int], shared: dict[str, Any]) -> int:
        return number("pBufferSize", f"{stem}GetBufferSize", {
            **shared, "roiSize": roi, "srcType": data_type(source.code), "numChannels": source.channels,
            "dstType": data_type(CODES[np.dtype(dtype or a.dtype)])})

    return _filter(stem, a, Reach.of(size, size), border, value, region, out, threads, alpha=alpha, dtype=dtype,
                   values=_mask_code(size), buffer_bytes=buffer_bytes)


DERIVATIVES = {"sobel_vert": "SobelVert", "sobel_horiz": "SobelHoriz", "sobel_neg_vert": "SobelNegVert",
               "sobel_vert_second": "SobelVertSecond", "sobel_horiz_second": "SobelHorizSecond",
               "scharr_vert": "ScharrVertMask", "scharr_horiz": "ScharrHorizMask", "prewitt_vert": "PrewittVert",
               "prewitt_horiz": "PrewittHoriz", "roberts_up": "RobertsUp", "roberts_down": "RobertsDown"}


def derivative(a: np.ndarray, kind: str, size: int = 3, border: str = "replicate", value: float = 0,
               region: Region | None = None, out: np.ndarray | None = None, threads: int = 1) -> np.ndarray:
    """A derivative by one of the masks DERIVATIVES, of 3 (Sobel also 5); uint8 gives int16. The header
    tpxi/filters_fixed.h has the weights and their signs."""
    return _fixed(choice("kind", kind, DERIVATIVES), a, size, border, value, region, out, threads,
                  dtype=np.int16 if a.dtype == np.uint8 else None)


def laplace(a: np.ndarray, size: int = 3, border: str = "replicate", value: float = 0, region: Region | None = None,
            out: np.ndarray | None = None, threads: int = 1, alpha: bool = False) -> np.ndarray:
    """The Laplacian by a mask of 3 or 5."""
    return _fixed("Laplace", a, size, border, value, region, out, threads, alpha)


def hipass(a: np.ndarray, size: int = 3, border: str = "replicate", value: float = 0, region: Region | None = None,
           out: np.ndarray | None = None, threads: int = 1, alpha: bool = False) -> np.ndarray:
    """The difference from the surroundings, by a mask of 3 or 5."""
    return _fixed("Hipass", a, size, border, value, region, out, threads, alpha)


def sharpen(a: np.ndarray, border: str = "replicate", value: float = 0, region: Region | None = None,
            out: np.ndarray | None = None, threads: int = 1, alpha: bool = False) -> np.ndarray:
    """Sharpens by a mask of 3x3: 17 times the middle sample less the sum of the nine, over 8."""
    return _fixed("Sharpen", a, 3, border, value, region, out, threads, alpha)


def correlate(a: np.ndarray, kernel: Any, divisor: int = 1, rounding: str = "nearest", border: str = "replicate",
              value: float | Sequence[float] = 0, region: Region | None = None, out: np.ndarray | None = None,
              threads: int = 1) -> np.ndarray:
    """Correlation with a kernel of shape (height, width), as it stands. Integer kernels (int16) have a divisor;
    others are taken as float32. Even sides reach one pixel further to the right and below. Regions narrower than
    16 pixels, and the strips along borders, may round quotients in another way (tpxi/filters_general.h)."""
    weights = np.asarray(kernel)
    is_integer = weights.dtype.kind in "iu"
    if weights.ndim != 2 or (is_integer and (weights.min() < -32768 or weights.max() > 32767)):
        raise ValueError(f"a kernel has two dimensions, and integers of 16 bits; this one has shape {weights.shape}")
    if not is_integer and divisor != 1:
        raise ValueError("a kernel of floats has no divisor")
    code, weights = ("16s", weights.astype(np.int16)) if is_integer else ("32f", weights.astype(np.float32))
    height, width = weights.shape

    def prepare(source: Image, size: tuple[int, int]) -> dict[str, Any]:
        told = {"kernelSize": (width, height), "roiSize": size, "dataType": data_type(source.code),
                "kernelType": data_type(code), "numChannels": source.channels}
        sizes = {"pSpecSize": ffi.new("int*"), "pBufferSize": ffi.new("int*")}
        call("tpxiFilterBorderGetSize", {**told, **sizes})
        memory, spec = block(sizes["pSpecSize"][0])
        spec = ffi.cast("TpxiFilterBorderBlock*", spec)
        call(f"tpxiFilterBorderInit_{code}", {
            **told, "pKernel": image(weights, "kernel").at(0, 0), "divisor": divisor, "pSpec": spec,
            "roundMode": choice("rounding", rounding, ROUNDING)})
        return {"pSpec": spec, "bytes": sizes["pBufferSize"][0], "memory": memory}

    return _filter("tpxiFilterBorder", a, Reach.of(width, height), border, value, region, out, threads,
                   prepare=prepare, buffer_bytes=lambda size, shared: shared["bytes"])
