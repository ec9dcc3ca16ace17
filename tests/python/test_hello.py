# SPDX-License-Identifier: Apache-2.0
"""The first example, as README tells to run it."""
import subprocess
import sys
from pathlib import Path

import numpy as np
import pytest

Image = pytest.importorskip("PIL.Image")
EXAMPLES = Path(__file__).resolve().parents[2] / "examples"


def test_hello(tmp_path):
    photo, out = EXAMPLES / "data" / "coffee.png", tmp_path / "hello.png"
    run = subprocess.run([sys.executable, str(EXAMPLES / "hello.py"), str(photo), str(out)],
                         capture_output=True, text=True)
    assert run.returncode == 0 and "600 x 400 to 300 x 200" in run.stdout, run.stderr
    small = np.asarray(Image.open(out)).astype(float)
    means = np.asarray(Image.open(photo).convert("RGB")).reshape(200, 2, 300, 2, 3).mean((1, 3))
    assert small.shape == (200, 300, 3) and np.abs(small - means).mean() < 12
