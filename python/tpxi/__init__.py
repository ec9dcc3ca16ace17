# SPDX-License-Identifier: Apache-2.0
"""Image-processing primitives of libtpxie9 for numpy arrays.

Two layers. The plain one works on arrays of shape (height, width) or (height, width, 3 or 4) and picks the export
by sample type and channels:

    tpxi.resize(a, (w, h), "lanczos3", antialias=True, threads=2)
    tpxi.median(a, 5)
    tpxi.fft2(a)

`out=` gives the destination, which may be the source where a function works in place. Errors of arguments are
TypeError and ValueError; what the library refuses is tpxi.Error, what it warns of tpxi.Warned.

The other layer is every export as it stands: `tpxi.c.tpxiSet_8u_C1R(7, tpxi.pointer(a), a.strides[0], (w, h))`
gives the status. `print(tpxi.prototypes["tpxiSet_8u_C1R"])` shows its declaration, and the headers tell the rest.
"""
from .arithmetic import absolute, add, exp, log, maximum, minimum, multiply, sqrt, square, subtract
from .filters import (DERIVATIVES, box, correlate, derivative, hipass, laplace, median, median_color, median_cross,
                      median_weighted, sharpen, window_sum)
from .fourier import FourierPlan, fft2, ifft2, pack_fft2, pack_ifft2, unpack
from .images import pointer
from .library import c, declared, ffi
from .movement import (aligned, convert, copy, duplicate, fill, from_bits, merge, pad, split, swap_channels,
                       to_bits)
from .resize import ResizePlan, resize
from .statistics import (block_min_max, dot, histogram, lookup, max, max_at, mean, min, min_at, min_max, norm,
                         norm_of_difference, palette, relative_norm, sum)
from .statuses import Error, Warned
from .threshold import threshold_above, threshold_below, threshold_outside
from .warp import (WarpPlan, bound_of, map_to_quad, quad_of, remap, rotation, source_of_tile, warp)

prototypes = declared.prototypes
statuses = declared.statuses
__version__ = ffi.string(c.tpxiGetLibVersion().version).decode()

__all__ = [
    "DERIVATIVES", "Error", "FourierPlan", "ResizePlan", "Warned", "WarpPlan", "absolute", "add", "aligned",
    "block_min_max", "bound_of", "box", "c", "convert", "copy", "correlate", "derivative", "dot", "duplicate",
    "exp", "ffi", "fft2", "fill", "from_bits", "hipass", "histogram", "ifft2", "laplace", "log", "lookup",
    "map_to_quad", "max", "max_at", "maximum", "mean", "median", "median_color", "median_cross", "median_weighted",
    "merge", "min", "min_at", "min_max", "minimum", "multiply", "norm", "norm_of_difference", "pack_fft2",
    "pack_ifft2", "pad", "palette", "pointer", "prototypes", "quad_of", "relative_norm", "remap", "resize",
    "rotation", "sharpen", "source_of_tile", "split", "sqrt", "square", "statuses", "subtract", "sum",
    "swap_channels", "threshold_above", "threshold_below", "threshold_outside", "to_bits", "unpack", "warp",
    "window_sum",
]
