# SPDX-License-Identifier: Apache-2.0
"""Two-dimensional Fourier transforms of any size, in single precision.

norm says where to divide, as in numpy: "backward" in inverse transforms, "forward" in forward ones, "ortho" by
the square root in both.
"""
from __future__ import annotations

import numpy as np

from .calls import block, call, choice, export, layout_of, with_alpha
from .images import destination, image, refuse_overlap, same
from .library import c, ffi

_DIVIDE = {"backward": c.tpxFftDivInverse, "forward": c.tpxFftDivForward, "ortho": c.tpxFftDivBySqrt}


def _transform(direction: str, kind: str, code: str, a: np.ndarray, norm: str, out: np.ndarray | None,
               alpha: bool = False) -> np.ndarray:
    """direction: Fwd or Inv; kind: RToPack, PackToR or CToC."""
    source = image(a, "a")
    to = destination(out, source)
    is_placed = same(source, to)
    if not is_placed:
        refuse_overlap(source, to)
    # Sides that are powers of two have transforms of their own.
    is_power = all(side & (side - 1) == 0 for side in source.size)
    word, letter = ("FFT" if is_power else "DFT"), ("C" if kind == "CToC" else "R")
    name = export(f"tpxi{word}{direction}_{kind}", source.code, layout_of(source.channels, alpha),
                  ["IR" if is_placed else "R"])
    with_alpha(out, source, to, alpha)
    told = {"orderX": source.width.bit_length() - 1, "orderY": source.height.bit_length() - 1, "roiSize": source.size,
            "flag": choice("norm", norm, _DIVIDE), "hint": c.tpxHintAccurate}
    sizes = {word: ffi.new("int*") for word in ("pSpecSize", "pInitBufSize", "pWorkSize")}
    call(f"tpxi{word}GetSize_{letter}_{code}", {**told, **sizes})
    memory, spec = block(sizes["pSpecSize"][0])
    spec = ffi.cast(f"Tpxi{word}2DSpec_{letter}*", spec)
    temporary, init = block(sizes["pInitBufSize"][0])
    work, buffer = block(sizes["pWorkSize"][0])
    call(f"tpxi{word}Init_{letter}_{code}", {**told, "pSpec": spec, "pInitBuf": init})
    call(name, {**source.named("Src"), **to.named("Dst"), **to.named("SrcDst"), "pSpec": spec, "pBuffer": buffer})
    del memory, temporary, work
    return to.array


def _complex(a: np.ndarray) -> np.ndarray:
    if a.dtype in (np.float32, np.complex64):
        return a.astype(np.complex64, copy=False)
    raise TypeError(f"Fourier transforms are of float32 and complex64, not {a.dtype}")


def fft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None) -> np.ndarray:
    """The transform (h, w) of a complex64 or float32 image of one channel as complex64, as numpy.fft.fft2 has it.

    A float32 image is turned into a complex one first; pack_fft2 needs half the time and memory."""
    return _transform("Fwd", "CToC", "32fc", _complex(a), norm, out)


def ifft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None) -> np.ndarray:
    """The inverse of fft2, as complex64."""
    return _transform("Inv", "CToC", "32fc", _complex(a), norm, out)


def pack_fft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The packed spectrum of each channel of a float32 image, an image of the same shape."""
    return _transform("Fwd", "RToPack", "32f", a, norm, out, alpha)


def pack_ifft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The float32 image of a packed spectrum."""
    return _transform("Inv", "PackToR", "32f", a, norm, out, alpha)


def unpack(packed: np.ndarray) -> np.ndarray:
    """A packed spectrum of one channel as complex64 of shape (h, w // 2 + 1), as numpy.fft.rfft2 has it."""
    height, width = packed.shape
    spectrum = np.empty((height, width // 2 + 1), np.complex64)
    spectrum[:, 1:(width + 1) // 2] = packed[:, 1:width - 1 + width % 2:2] + 1j * packed[:, 2::2]
    for column, at in [(0, 0)] + ([(width // 2, width - 1)] if width % 2 == 0 else []):
        values = np.zeros(height, np.complex64)
        half = (height - 1) // 2
        values[0] = packed[0, at]
        values[1:half + 1] = packed[1:2 * half:2, at] + 1j * packed[2:2 * half + 1:2, at]
        if height % 2 == 0:
            values[height // 2] = packed[height - 1, at]
        values[height - half:] = np.conj(values[half:0:-1])
        spectrum[:, column] = values
    return spectrum
