# SPDX-License-Identifier: Apache-2.0
"""The installed Python package works with what was installed beside it, in the prefix of the first argument."""
import sys
from pathlib import Path

import numpy as np

import tpxi

prefix = Path(sys.argv[1]).resolve()
for place in (tpxi.__file__, tpxi.library.path, tpxi.library.include):
    if prefix not in Path(place).resolve().parents:
        sys.exit(f"{place} is not in {prefix}")
if tpxi.add(np.full((2, 3), 200, np.uint8), np.full((2, 3), 100, np.uint8)).tolist() != [[255] * 3] * 2:
    sys.exit("a sum that should saturate does not")
