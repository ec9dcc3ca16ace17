# SPDX-License-Identifier: Apache-2.0
"""Resizing: plans, which serve any number of tiles and threads, and the call for a whole image."""
from __future__ import annotations

from typing import Any

import numpy as np

from .calls import INTERPOLATIONS, block, call, choice, export, in_bands, layout_of, number, refuse
from .images import CODES, Image, destination, image, refuse_overlap
from .library import c as exports, declared, ffi

Rect = tuple[int, int, int, int]

# By name: the kind in the names of the exports, and lobes of Lanczos.
KINDS = {"nearest": ("Nearest", 0), "linear": ("Linear", 0), "cubic": ("Cubic", 0), "super": ("Super", 0),
         "lanczos2": ("Lanczos", 2), "lanczos3": ("Lanczos", 3)}


class ResizePlan:
    """Where every pixel of the destination lies in the source, and with which weights.

    source_size, size  (width, height) in pixels
    kind               one of KINDS
    dtype              the sample type of the images
    antialias          stretches linear, cubic and Lanczos kernels over what a reduced pixel stands for
    b, c               the parameters of the cubic kernels; 0 and 0.5 are the Catmull-Rom spline

    A plan is never changed once it is made, and may be used by any number of threads. To send one to another
    process is to make it again there: it pickles as its parameters.
    """

    def __init__(self, source_size: tuple[int, int], size: tuple[int, int], kind: str = "linear",
                 dtype: Any = np.uint8, antialias: bool = False, b: float = 0, c: float = 0.5) -> None:
        word, lobes = choice("kind", kind, KINDS)
        if min(*source_size, *size) < 1:
            raise ValueError(f"no image of {tuple(source_size)} pixels becomes one of {tuple(size)}")
        self._made_from = (source_size, size, kind, np.dtype(dtype).name, antialias, b, c)
        self.source_size, self.size = (int(source_size[0]), int(source_size[1])), (int(size[0]), int(size[1]))
        self.dtype, self.kind = np.dtype(dtype), kind
        self._code = CODES.get(self.dtype, self.dtype.name)
        stretches = antialias and word not in ("Nearest", "Super")  # the library warns where it is dropped
        self._stem = "tpxiResizeAntialiasing" if stretches else f"tpxiResize{word}"
        told = {"srcSize": self.source_size, "dstSize": self.size, "antialiasing": int(antialias),
                "interpolation": INTERPOLATIONS[word.lower()], "numLobes": lobes, "valueB": b, "valueC": c}
        stored = {"pSpecSize": ffi.new("int*"), "pInitBufSize": ffi.new("int*")}
        call(self._typed("tpxiResizeGetSize"), {**told, **stored})
        self._memory, spec = block(stored["pSpecSize"][0])
        self._spec = ffi.cast("TpxiResizeSpec*", spec)
        temporary, init = block(stored["pInitBufSize"][0])
        name = f"tpxiResizeAntialiasing{word}Init" if stretches else self._typed(f"tpxiResize{word}Init")
        call(name, {**told, "pSpec": self._spec, "pInitBuf": init})
        del temporary
        border = ffi.new("TpxiBorderSize*")
        call(self._typed("tpxiResizeGetBorderSize"), {"pSpec": self._spec, "pBorderSize": border})
        self._border = (border.left, border.top, border.right, border.bottom)

    def __reduce__(self) -> Any:
        return ResizePlan, self._made_from

    def _typed(self, stem: str) -> str:
        name = f"{stem}_{self._code}"
        if name not in declared.prototypes:
            raise refuse(stem, str(self._code), "of any layout")
        return name

    def _source(self, tile: Rect) -> Rect:
        """The source rectangle of a tile, without the pixels around it that the kernel reads."""
        offset, size = ffi.new("TpxiPoint*"), ffi.new("TpxiSize*")
        call(self._typed("tpxiResizeGetSrcRoi"), {"pSpec": self._spec, "dstRoiOffset": tile[:2],
             "dstRoiSize": tile[2:], "pSrcRoiOffset": offset, "pSrcRoiSize": size})
        return offset.x, offset.y, size.width, size.height

    def source_of(self, tile: Rect) -> Rect:
        """All the pixels of the source (x, y, width, height) that a tile of the destination is made from."""
        x, y, width, height = self._source(tile)
        left, top, right, bottom = self._border
        x0, y0 = max(x - left, 0), max(y - top, 0)
        return (x0, y0, min(x + width + right, self.source_size[0]) - x0,
                min(y + height + bottom, self.source_size[1]) - y0)

    def tile(self, a: np.ndarray, tile: Rect, origin: tuple[int, int] = (0, 0), out: np.ndarray | None = None,
             threads: int = 1) -> np.ndarray:
        """The tile (x, y, width, height) of the destination.

        `a` holds the source's pixels from `origin` (x, y) on: the whole image, or any part of it that covers
        source_of(tile). Tiles are the same bytes as parts of a call for the whole image.
        """
        source = image(a, "a")
        if a.dtype != self.dtype:
            raise ValueError(f"the plan is one for {self.dtype}, and a holds {a.dtype}")
        x, y, width, height = tile
        if x < 0 or y < 0 or width < 1 or height < 1 or x + width > self.size[0] or y + height > self.size[1]:
            raise ValueError(f"the tile {tile} does not lie in the destination of {self.size} pixels")
        need = self.source_of(tile)
        if (need[0] < origin[0] or need[1] < origin[1] or need[0] + need[2] > origin[0] + source.width
                or need[1] + need[3] > origin[1] + source.height):
            raise ValueError(f"the tile {tile} is made from {need} of the source; a has {source.size} pixels from "
                             f"{origin} on")
        to = destination(out, source, size=(width, height))
        refuse_overlap(source, to)
        name = export(self._stem, source.code, layout_of(source.channels, False))

        def work(top: int, bottom: int) -> None:
            self._run(name, source, origin, to, (x, y + top, width, bottom - top), top)

        in_bands(height, threads, 1, work)
        return to.array

    def _run(self, name: str, source: Image, origin: tuple[int, int], to: Image, tile: Rect, top: int) -> None:
        x, y, width, height = self._source(tile)
        left, up, right, down = self._border
        # Where the source goes on by less than the kernel reads, a plan knows its own edge, and needs no flag.
        sides = ((x >= left, exports.tpxBorderInMemLeft), (y >= up, exports.tpxBorderInMemTop),
                 (x + width + right <= self.source_size[0], exports.tpxBorderInMemRight),
                 (y + height + down <= self.source_size[1], exports.tpxBorderInMemBottom))
        word = sum(flag for goes_on, flag in sides if goes_on)
        offset = ffi.new("TpxiPoint*")
        call(self._typed("tpxiResizeGetSrcOffset"), {"pSpec": self._spec, "dstOffset": tile[:2], "pSrcOffset": offset})
        memory, buffer = block(number("pBufSize", self._typed("tpxiResizeGetBufferSize"), {
            "pSpec": self._spec, "dstSize": tile[2:], "numChannels": source.channels}))
        call(name, {**source.named("Src", offset.x - origin[0], offset.y - origin[1]), **to.named("Dst", 0, top),
                    "dstOffset": tile[:2], "dstSize": tile[2:], "border": word | exports.tpxBorderReplicate,
                    "pBorderValue": ffi.NULL, "pSpec": self._spec, "pBuffer": buffer})
        del memory


def resize(a: np.ndarray, size: tuple[int, int], kind: str = "linear", antialias: bool = False, b: float = 0,
           c: float = 0.5, out: np.ndarray | None = None, threads: int = 1) -> np.ndarray:
    """An image of `size` (width, height): kind is nearest, linear, cubic (with b and c), lanczos2, lanczos3, or
    super, the mean of the area (reductions). Edges are replicated."""
    source = image(a, "a")
    plan = ResizePlan(source.size, size, kind, a.dtype, antialias, b, c)
    return plan.tile(a, (0, 0, *plan.size), out=out, threads=threads)
