#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Makes a small, clean, sharpened picture of a PNG.

    python3 examples/hello.py IN.png OUT.png [WIDTH]

Wants Debian's python3-numpy, python3-cffi and python3-pil; `tools/setup python` installs them.
"""
import sys

import numpy as np
from PIL import Image

import tpxi


def main() -> None:
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    picture = np.asarray(Image.open(sys.argv[1]).convert("RGB"))
    height, width = picture.shape[:2]
    small_width = int(sys.argv[3]) if len(sys.argv) == 4 else max(width // 2, 1)
    size = (small_width, max(height * small_width // width, 1))

    small = tpxi.resize(picture, size, "lanczos3", antialias=True, threads=2)
    clean = tpxi.median(small, 3, threads=2)
    sharp = tpxi.sharpen(clean, threads=2)

    Image.fromarray(sharp).save(sys.argv[2])
    colour = np.round(tpxi.mean(sharp)).astype(int).tolist()
    print(f"{width} x {height} to {size[0]} x {size[1]}, mean colour {colour}: look at {sys.argv[2]}")


if __name__ == "__main__":
    main()
