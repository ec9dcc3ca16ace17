# SPDX-License-Identifier: Apache-2.0
"""Arrays as the library sees them: a pointer to the first pixel, a step in bytes, a size and channels.

An image is an array of shape (height, width) or (height, width, channels) with 1, 3 or 4 channels. Samples of a
pixel, and pixels of a row, follow each other in memory; rows may be any whole number of samples apart, forward.
So views of rows and columns (`a[10:20, 5:9]`), every other row (`a[::2]`) and padded images are taken as they
are. Nothing is ever copied behind the caller's back: other strides raise ValueError.
"""
from __future__ import annotations

from dataclasses import dataclass
from typing import Any

import numpy as np

from .library import ffi

CODES = {np.dtype(t): code for t, code in (
    ("uint8", "8u"), ("int8", "8s"), ("uint16", "16u"), ("int16", "16s"), ("uint32", "32u"), ("int32", "32s"),
    ("float32", "32f"), ("float64", "64f"), ("complex64", "32fc"))}


@dataclass(frozen=True)
class Image:
    """What a call is told of an array; `name` is the array's in error messages."""

    array: np.ndarray
    name: str
    code: str
    width: int
    height: int
    channels: int
    step: int

    @property
    def pixel_bytes(self) -> int:
        return self.channels * self.array.itemsize

    @property
    def size(self) -> tuple[int, int]:
        return self.width, self.height

    def at(self, x: int, y: int) -> Any:
        """A pointer to the pixel at column x, row y; it need not lie in the array."""
        address = self.array.__array_interface__["data"][0] + y * self.step + x * self.pixel_bytes
        return ffi.cast(f"Tpx{self.code}*", address)

    def named(self, word: str, x: int = 0, y: int = 0) -> dict[str, Any]:
        """The values of the parameters p<word> and <word>Step, from pixel (x, y) on."""
        return {f"p{word}": self.at(x, y), f"{word[0].lower()}{word[1:]}Step": self.step}

    def as_row_samples(self) -> "Image":
        """The same samples as an image of one channel."""
        return Image(self.array, self.name, self.code, self.width * self.channels, self.height, 1, self.step)


def image(array: Any, name: str, writable: bool = False) -> Image:
    """Describes an array, or raises TypeError or ValueError that say why it cannot be an image."""
    if not isinstance(array, np.ndarray):
        raise TypeError(f"{name} is no numpy array but {type(array).__name__}")
    if array.dtype not in CODES:
        raise TypeError(f"{name} has samples of {array.dtype!r}; the library has "
                        f"{', '.join(t.name for t in CODES)} in the machine's byte order")
    if array.ndim not in (2, 3) or (array.ndim == 3 and array.shape[2] not in (1, 3, 4)):
        raise ValueError(f"{name} has shape {array.shape}: (height, width) or (height, width, 1, 3 or 4) is an image")
    if array.size == 0:
        raise ValueError(f"{name} has no pixels: its shape is {array.shape}")
    if writable and not array.flags.writeable:
        raise ValueError(f"{name} is read-only")
    height, width = array.shape[:2]
    channels = array.shape[2] if array.ndim == 3 else 1
    return Image(array, name, CODES[array.dtype], width, height, channels,
                 _step(array, name, width, height, channels, writable))


def _step(array: np.ndarray, name: str, width: int, height: int, channels: int, writable: bool) -> int:
    """The bytes from row to row. Strides along axes of length 1 mean nothing and are not looked at."""
    strides, sample = array.strides, array.itemsize
    row = width * channels * sample
    told = f"{name} has strides {strides} and shape {array.shape}: "
    if channels > 1 and strides[2] != sample:
        raise ValueError(told + f"the samples of a pixel are {strides[2]} bytes apart, not {sample}; "
                         "take numpy.ascontiguousarray of it, or its planes one by one")
    if width > 1 and strides[1] != channels * sample:
        raise ValueError(told + f"the pixels of a row are {strides[1]} bytes apart, not {channels * sample} (a "
                         "transposed, mirrored or thinned-out image?); take numpy.ascontiguousarray of it")
    if height <= 1:
        return row
    if strides[0] <= 0:
        raise ValueError(told + f"a step of {strides[0]} bytes does not lead forward; take "
                         "numpy.ascontiguousarray of it")
    if strides[0] % sample:
        raise ValueError(told + f"a step of {strides[0]} bytes is no whole number of samples of {sample} bytes")
    if writable and strides[0] < row:
        raise ValueError(told + f"rows of {row} bytes that are {strides[0]} bytes apart overlap, and cannot be written")
    return strides[0]


def same(a: Image, b: Image) -> bool:
    """Whether two images are one: the same pixels in the same places."""
    return a.at(0, 0) == b.at(0, 0) and (a.step, a.size, a.channels, a.code) == (b.step, b.size, b.channels, b.code)


def refuse_overlap(source: Image, destination: Image) -> None:
    """Raises ValueError if a source and a destination share memory."""
    try:
        overlap = np.shares_memory(source.array, destination.array, max_work=10000)
    except np.TooHardError:
        overlap = True
    if overlap:
        raise ValueError(f"{destination.name} shares memory with {source.name}, and is not the same image in a call "
                         "that works in place; give another array")


def destination(out: np.ndarray | None, source: Image, dtype: Any = None, size: tuple[int, int] | None = None,
                channels: int | None = None) -> Image:
    """`out` if it fits, or a new array: the source's samples, size (width, height) and channels unless told."""
    width, height = size or source.size
    dtype = np.dtype(dtype or source.array.dtype)
    shape: tuple[int, ...] = (height, width)
    if (channels or source.channels) > 1 or source.array.ndim == 3:
        shape += (channels or source.channels,)
    if out is None:
        if dtype not in CODES or min(shape) < 0:
            raise ValueError(f"no image of {dtype} has the shape {shape}")
        return image(np.empty(shape, dtype), "out", writable=True)
    found = image(out, "out", writable=True)
    if out.dtype != dtype or out.shape != shape:
        raise ValueError(f"out has shape {out.shape} of {out.dtype}, where {shape} of {dtype} is needed")
    return found


def pointer(array: np.ndarray) -> Any:
    """A typed pointer to the first pixel of an image, for the exports in `tpxi.c`. Keep the array alive."""
    return image(array, "the array").at(0, 0)
