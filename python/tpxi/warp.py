# SPDX-License-Identifier: Apache-2.0
"""Warps: images mapped through affine and perspective maps, between quadrangles, and by maps of positions.

Coefficients are arrays of 2 x 3 (affine) or 3 x 3 (perspective) on positions (x, y) in pixels, whole numbers
being centres of pixels. They map the source to the destination, or with inverse=True the destination to the
source. `border` is "transparent" (pixels outside keep what `out` holds; a new one has zeros), "replicate" or
"constant" with `value`.
"""
from __future__ import annotations

from typing import Any, Sequence

import numpy as np

from .calls import INTERPOLATIONS, block, call, choice, data_type, export, in_bands, layout_of, number, refuse
from .images import CODES, destination, image, refuse_overlap
from .library import c as exports, ffi

Rect = tuple[int, int, int, int]
_BORDERS = {"transparent": exports.tpxBorderTransparent, "replicate": exports.tpxBorderReplicate,
            "constant": exports.tpxBorderConstant}
_WHOLE = exports.tpxiWarpGetRectInfinite()
_KINDS = {kind: INTERPOLATIONS[kind] for kind in ("nearest", "linear", "cubic")}


class WarpPlan:
    """A map of a source onto a destination.

    source_size, size  (width, height) in pixels
    coeffs             2 x 3 or 3 x 3 numbers; or two quadrangles (source, destination) of four corners (x, y),
                       which are taken to each other by the perspective map of their corners
    kind               "nearest", "linear" or "cubic" (with b and c)
    part               the rectangle (x, y, width, height) of the source that there is, for perspective maps and
                       quadrangles: its edges are then those of the image, and the border is "transparent"

    A plan is never changed once it is made, and may be used by any number of threads. It pickles as its
    parameters.
    """

    def __init__(self, source_size: tuple[int, int], size: tuple[int, int], coeffs: Any, kind: str = "linear",
                 dtype: Any = np.uint8, channels: int = 1, inverse: bool = False, border: str = "transparent",
                 value: float | Sequence[float] = 0, smooth_edge: bool = False, b: float = 0, c: float = 0.5,
                 part: Rect | None = None) -> None:
        interpolation, border_word = choice("kind", kind, _KINDS), choice("border", border, _BORDERS)
        numbers = np.asarray(coeffs, np.float64)
        families = {(2, 3): "Affine", (3, 3): "Perspective", (2, 4, 2): "Quad"}
        if numbers.shape not in families:
            raise ValueError(f"coefficients are 2 x 3 or 3 x 3 numbers, or two quadrangles of four corners, not "
                             f"{numbers.shape}")
        self._family = families[numbers.shape]
        self._made_from = (source_size, size, coeffs, kind, np.dtype(dtype).name, channels, inverse, border, value,
                           smooth_edge, b, c, part)
        if part is not None and self._family == "Affine":
            raise ValueError("a part of the source wants coefficients of 3 x 3 (append the row 0, 0, 1)")
        self.source_size, self.size = (int(source_size[0]), int(source_size[1])), (int(size[0]), int(size[1]))
        self.dtype, self.channels, self.kind = np.dtype(dtype), channels, kind
        self.border = "transparent" if part is not None else border
        self._part = tuple(part) if part is not None else (0, 0, *self.source_size)
        if self.dtype not in CODES:
            raise refuse(f"tpxiWarp{self._family}{kind.capitalize()}", str(self.dtype), f"C{channels}")
        pixel = np.ravel(value).astype(float).tolist()
        told = {"srcSize": self.source_size, "srcRoi": _WHOLE if part is None else tuple(part), "dstSize": self.size,
                "dstRoi": (0, 0, *self.size), "coeffs": numbers.tolist(), "transform": 1, "direction": int(inverse),
                "dataType": data_type(CODES[self.dtype]), "numChannels": channels,
                "interpolation": interpolation, "border": border_word, "valueB": b, "valueC": c,
                "pBorderValue": pixel if len(pixel) > 1 else pixel * channels, "smoothEdge": int(smooth_edge)}
        if self._family == "Quad":
            told["srcQuad"], told["dstQuad"] = numbers.tolist()
        stored = {"pSpecSize": ffi.new("int*"), "pInitBufSize": ffi.new("int*")}
        call(f"tpxiWarp{self._family}GetSize", {**told, **stored})
        self._memory, spec = block(stored["pSpecSize"][0])
        self._spec = ffi.cast("TpxiWarpSpec*", spec)
        temporary, init = block(stored["pInitBufSize"][0])
        call(f"tpxiWarp{self._family}{kind.capitalize()}Init", {**told, "pSpec": self._spec, "pInitBuf": init},
             quiet=(exports.tpxWarnNoQuadOverlap,) if part is not None else ())
        del temporary

    def __reduce__(self) -> Any:
        return WarpPlan, self._made_from

    def tile(self, a: np.ndarray, tile: Rect, out: np.ndarray | None = None, threads: int = 1) -> np.ndarray:
        """The tile (x, y, width, height) of the destination, from the source or from its part of the plan.

        Tiles are the same bytes as parts of a call for the whole image.
        """
        source = image(a, "a")
        if a.dtype != self.dtype or source.channels != self.channels or source.size != self._part[2:]:
            raise ValueError(f"the plan is one for {self._part[2:]} pixels of {self.dtype} with {self.channels} "
                             f"channels; a has shape {a.shape} of {a.dtype}")
        x, y, width, height = tile
        if x < 0 or y < 0 or width < 1 or height < 1 or x + width > self.size[0] or y + height > self.size[1]:
            raise ValueError(f"the tile {tile} does not lie in the destination of {self.size} pixels")
        to = destination(out, source, size=(width, height))
        refuse_overlap(source, to)
        if out is None and self.border != "constant":
            to.array[...] = 0
        family = "Affine" if self._family == "Affine" else "Perspective"
        name = export(f"tpxiWarp{family}{self.kind.capitalize()}", source.code, layout_of(source.channels, False))

        def work(top: int, bottom: int) -> None:
            size = (width, bottom - top)
            memory, buffer = block(number("pBufSize", "tpxiWarpGetBufferSize", {"pSpec": self._spec, "dstSize": size}))
            # A source's first pixel is what plans count from, be it there or not.
            call(name, {**source.named("Src", -self._part[0], -self._part[1]), **to.named("Dst", 0, top),
                        "dstRoiOffset": (x, y + top), "dstRoiSize": size, "pSpec": self._spec, "pBuffer": buffer},
                 quiet=(exports.tpxWarnNoQuadOverlap,))
            del memory

        in_bands(height, threads, 1, work)
        return to.array


def warp(a: np.ndarray, coeffs: Any, size: tuple[int, int] | None = None, kind: str = "linear", inverse: bool = False,
         border: str = "transparent", value: float | Sequence[float] = 0, smooth_edge: bool = False, b: float = 0,
         c: float = 0.5, out: np.ndarray | None = None, threads: int = 1) -> np.ndarray:
    """An image mapped by 2 x 3 or 3 x 3 coefficients, or from one quadrangle to another, into an image of `size`
    (width, height), the source's unless told. See WarpPlan for the arguments."""
    source = image(a, "a")
    if size is None:
        size = source.size if out is None else image(out, "out").size
    plan = WarpPlan(source.size, size, coeffs, kind, a.dtype, source.channels, inverse, border, value, smooth_edge,
                    b, c)
    return plan.tile(a, (0, 0, *plan.size), out, threads)


def remap(a: np.ndarray, x: np.ndarray, y: np.ndarray, kind: str = "linear", smooth_edge: bool = False,
          region: Rect | None = None, out: np.ndarray | None = None, threads: int = 1,
          alpha: bool = False) -> np.ndarray:
    """Every pixel of the result takes its value from the position in `a` that the maps x and y (float32 of the
    result's shape; float64 for images of float64) hold for it. Positions outside the image, or its `region`,
    leave what `out` holds; a new one has zeros. kind: nearest, linear, cubic, lagrange or lanczos."""
    source, xs, ys = image(a, "a"), image(x, "x"), image(y, "y")
    needed = "64f" if source.code == "64f" else "32f"
    if xs.size != ys.size or {xs.code, ys.code} != {needed} or {xs.channels, ys.channels} != {1}:
        raise ValueError(f"the maps of {a.dtype} images are two of one shape, of samples {needed}; these have shapes "
                         f"{x.shape} and {y.shape} of {x.dtype} and {y.dtype}")
    to = destination(out, source, size=xs.size)
    refuse_overlap(source, to)
    if out is None:
        to.array[...] = 0
    name = export("tpxiRemap", source.code, layout_of(source.channels, alpha))
    mode = choice("kind", kind, {**INTERPOLATIONS, "lagrange": 4})

    def work(top: int, bottom: int) -> None:
        call(name, {**source.named("Src"), "srcSize": source.size, "srcRoi": region or (0, 0, *source.size),
                    "pxMap": xs.at(0, top), "xMapStep": xs.step, "pyMap": ys.at(0, top), "yMapStep": ys.step,
                    **to.named("Dst", 0, top), "dstRoiSize": (xs.width, bottom - top),
                    "interpolation": mode - (1 << 31) if smooth_edge else mode})

    in_bands(xs.height, threads, 1, work)
    return to.array


# ---- The geometry of maps --------------------------------------------------------------------------------


def _stored(name: str, word: str, shape: tuple[int, int], values: dict[str, Any]) -> np.ndarray:
    """Calls a function that stores an array of doubles through its parameter `word`."""
    result = np.zeros(shape)
    call(name, {**values, word: ffi.cast(f"double(*)[{shape[1]}]", result.ctypes.data)})
    return result


def rotation(angle: float, center: tuple[float, float] = (0, 0)) -> np.ndarray:
    """Coefficients 2 x 3 that turn by `angle` degrees counter-clockwise around a centre (x, y)."""
    x, y = ffi.new("double*"), ffi.new("double*")
    call("tpxiGetRotateShift", {"xCenter": center[0], "yCenter": center[1], "angle": angle, "xShift": x, "yShift": y})
    return _stored("tpxiGetRotateTransform", "coeffs", (2, 3), {"angle": angle, "xShift": x[0], "yShift": y[0]})


def map_to_quad(rect: Rect, quad: Any, kind: str = "perspective") -> np.ndarray:
    """The "affine", "perspective" or "bilinear" map that takes a rectangle's corners to those of a quadrangle."""
    shape = {"affine": (2, 3), "perspective": (3, 3), "bilinear": (2, 4)}[kind]
    return _stored(f"tpxiGet{kind.capitalize()}Transform", "coeffs", shape,
                   {"srcRoi": tuple(rect), "quad": np.asarray(quad, float).tolist()})


def _map_of(coeffs: Any) -> tuple[str, list]:
    numbers = np.asarray(coeffs, float)
    names: dict[tuple[int, ...], str] = {(2, 3): "Affine", (3, 3): "Perspective", (2, 4): "Bilinear"}
    if numbers.shape not in names:
        raise ValueError(f"a map has 2 x 3, 3 x 3 or 2 x 4 coefficients, not {numbers.shape}")
    return names[numbers.shape], numbers.tolist()


def quad_of(rect: Rect, coeffs: Any) -> np.ndarray:
    """Where a map takes the four corners of a rectangle (the centres of its outermost pixels)."""
    name, numbers = _map_of(coeffs)
    return _stored(f"tpxiGet{name}Quad", "quad", (4, 2), {"srcRoi": tuple(rect), "coeffs": numbers})


def bound_of(rect: Rect, coeffs: Any) -> np.ndarray:
    """The rectangle around quad_of: least x and y, greatest x and y."""
    name, numbers = _map_of(coeffs)
    return _stored(f"tpxiGet{name}Bound", "bound", (2, 2), {"srcRoi": tuple(rect), "coeffs": numbers})


def source_of_tile(source_size: tuple[int, int], coeffs: Any, tile: Rect, inverse: bool = False) -> Rect:
    """The source's pixels between which the positions of a tile lie, for affine maps; kernels read more around
    them (a pixel for linear, two for cubic)."""
    rect = ffi.new("TpxiRect*")
    call("tpxiGetAffineSrcRoi", {"srcSize": tuple(source_size), "coeffs": np.asarray(coeffs, float)[:2].tolist(),
                                 "direction": int(inverse), "dstRoi": tuple(tile), "pSrcRoi": rect})
    return rect.x, rect.y, rect.width, rect.height
