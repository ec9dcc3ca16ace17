# SPDX-License-Identifier: Apache-2.0
"""Statuses become exceptions and warnings, in one place."""
from __future__ import annotations

import sys
import warnings
from pathlib import Path

from .declarations import Status
from .library import declared


def _told(status: int) -> Status:
    return declared.statuses.get(status, Status(status, f"status {status}", "not a status of the headers"))


class Error(Exception):
    """A call of the library stopped at a failed check, and wrote nothing.

    `status` is the number, `name` the word of the header for it, `function` the export that gave it.
    """

    def __init__(self, status: int, function: str) -> None:
        told = _told(status)
        super().__init__(f"{function}: {told.name} ({status}): {told.text}")
        self.status, self.name, self.function = status, told.name, function


class Warned(UserWarning):
    """A call ran to its end and has a defined result that the caller may not expect."""


def _depth_of_caller() -> int:
    """How many frames above `check` the package ends, so that a warning names the caller's line."""
    here, frame, depth = str(Path(__file__).parent), sys._getframe(2), 2
    while frame.f_back and frame.f_code.co_filename.startswith(here):
        frame, depth = frame.f_back, depth + 1
    return depth


def check(status: int, function: str) -> None:
    """Raises Error for negative statuses, and warns for positive ones."""
    if status < 0:
        raise Error(status, function)
    if status > 0:
        told = _told(status)
        warnings.warn(f"{function}: {told.name} ({status}): {told.text}", Warned, stacklevel=_depth_of_caller())
