# SPDX-License-Identifier: Apache-2.0
"""Two-dimensional Fourier transforms of any size, in single precision: plans, and calls that make one for themselves.

norm says where to divide, as in numpy: "backward" in inverse transforms, "forward" in forward ones, "ortho" by
the square root in both.
"""
from __future__ import annotations

from typing import Any

import numpy as np

from .calls import block, call, choice, export, layout_of, with_alpha
from .images import destination, image, refuse_overlap, same
from .library import c, ffi

_DIVIDE = {"backward": c.tpxFftDivInverse, "forward": c.tpxFftDivForward, "ortho": c.tpxFftDivBySqrt}


class FourierPlan:
    """A plan for transforms of images of `size` (width, height), which serves any number of threads.

    dtype  complex64 for complex spectra of complex images, float32 for packed spectra of real ones
    norm   where to divide
    It pickles as its parameters.
    """

    def __init__(self, size: tuple[int, int], dtype: Any = np.complex64, norm: str = "backward") -> None:
        self.size, self.dtype, self.norm = (int(size[0]), int(size[1])), np.dtype(dtype), norm
        if self.dtype not in (np.float32, np.complex64):
            raise TypeError(f"Fourier transforms are of float32 and complex64, not {self.dtype}")
        if min(self.size) < 1:
            raise ValueError(f"there is no transform of {self.size} pixels")
        width, height = self.size
        # Sides that are powers of two have transforms of their own.
        self._word = "FFT" if width & (width - 1) == 0 and height & (height - 1) == 0 else "DFT"
        letter = "R_32f" if self.dtype == np.float32 else "C_32fc"
        asked = {"orderX": width.bit_length() - 1, "orderY": height.bit_length() - 1, "roiSize": self.size,
                 "flag": choice("norm", norm, _DIVIDE), "hint": c.tpxHintAccurate}
        sizes = {word: ffi.new("int*") for word in ("pSpecSize", "pInitBufSize", "pWorkSize")}
        call(f"tpxi{self._word}GetSize_{letter}", {**asked, **sizes})
        self._memory, spec = block(sizes["pSpecSize"][0])
        self._spec = ffi.cast(f"Tpxi{self._word}2DSpec_{letter[0]}*", spec)
        self._work_bytes = sizes["pWorkSize"][0]
        temporary, init = block(sizes["pInitBufSize"][0])
        call(f"tpxi{self._word}Init_{letter}", {**asked, "pSpec": self._spec, "pInitBuf": init})
        del temporary

    def __reduce__(self) -> Any:
        return FourierPlan, (self.size, self.dtype.name, self.norm)

    def forward(self, a: np.ndarray, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
        """The spectrum of an image; of each channel of a float32 one."""
        return self._run("Fwd_CToC" if self.dtype == np.complex64 else "Fwd_RToPack", a, out, alpha)

    def inverse(self, a: np.ndarray, out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
        """The image of a spectrum."""
        return self._run("Inv_CToC" if self.dtype == np.complex64 else "Inv_PackToR", a, out, alpha)

    def _run(self, word: str, a: np.ndarray, out: np.ndarray | None, alpha: bool) -> np.ndarray:
        source = image(a, "a")
        if a.dtype != self.dtype or source.size != self.size:
            raise ValueError(f"the plan is one for {self.size} pixels of {self.dtype}; a has shape {a.shape} of "
                             f"{a.dtype}")
        to = destination(out, source)
        is_placed = same(source, to)
        if not is_placed:
            refuse_overlap(source, to)
        with_alpha(out, source, to, alpha)
        name = export(f"tpxi{self._word}{word}", source.code, layout_of(source.channels, alpha),
                      ["IR" if is_placed else "R"])
        work, buffer = block(self._work_bytes)
        call(name, {**source.named("Src"), **to.named("Dst"), **to.named("SrcDst"), "pSpec": self._spec,
                    "pBuffer": buffer})
        del work
        return to.array


def _plan_for(a: np.ndarray, dtype: Any, norm: str) -> FourierPlan:
    return FourierPlan(image(a, "a").size, dtype, norm)


def _complex(a: np.ndarray) -> np.ndarray:
    return a.astype(np.complex64) if a.dtype == np.float32 else a


def fft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None) -> np.ndarray:
    """The transform (h, w) of a complex64 or float32 image of one channel as complex64, as numpy.fft.fft2 has it.

    A float32 image is turned into a complex one first; pack_fft2 needs half the time and memory."""
    a = _complex(a)
    return _plan_for(a, np.complex64, norm).forward(a, out)


def ifft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None) -> np.ndarray:
    """The inverse of fft2, as complex64."""
    a = _complex(a)
    return _plan_for(a, np.complex64, norm).inverse(a, out)


def pack_fft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The packed spectrum of each channel of a float32 image, an image of the same shape."""
    return _plan_for(a, np.float32, norm).forward(a, out, alpha)


def pack_ifft2(a: np.ndarray, norm: str = "backward", out: np.ndarray | None = None, alpha: bool = False) -> np.ndarray:
    """The float32 image of a packed spectrum."""
    return _plan_for(a, np.float32, norm).inverse(a, out, alpha)


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
