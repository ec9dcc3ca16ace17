# SPDX-License-Identifier: Apache-2.0
"""From an operation, sample types and channels to the export, and from values to its arguments.

Arguments are bound by the names that parameters have in the headers, so that no module of this package knows
the order of any function's arguments.
"""
from __future__ import annotations

import functools
from concurrent.futures import ThreadPoolExecutor
from typing import Any, Callable, Iterable, Sequence

import numpy as np

from .images import Image, destination, image, refuse_overlap, same
from .library import c, declared, ffi
from .statuses import check

_LONGEST = 2**31 - 1
ROUNDING = {"zero": c.tpxRoundTowardZero, "nearest": c.tpxRoundNearestEven, "away": c.tpxRoundHalfAway}
INTERPOLATIONS = {word: getattr(c, f"tpxInterpolation{word.capitalize()}")
                  for word in ("nearest", "linear", "cubic", "super", "lanczos")}


def choice(name: str, word: str, words: dict[str, Any]) -> Any:
    """What a word stands for; ValueError tells which words there are."""
    if word not in words:
        raise ValueError(f"{name} is one of {', '.join(words)}, not {word!r}")
    return words[word]


def data_type(code: str) -> int:
    """The selector of a sample type, 0 where the headers have none (which calls answer with a status)."""
    return getattr(c, f"tpxDataType{code}", 0)


class Pixel:
    """A value that parameters take as one sample, or as a sample a channel."""

    def __init__(self, value: Any, name: str) -> None:
        self.samples, self.name = np.ravel(value).tolist(), name

    def bound(self, as_array: bool, channels: int) -> Any:
        wanted = channels if as_array else 1
        samples = self.samples * wanted if len(self.samples) == 1 else self.samples
        if len(samples) != wanted:
            raise ValueError(f"{self.name} has {len(samples)} samples, and {wanted} are wanted")
        return samples if as_array else samples[0]


def layout_of(channels: int, alpha: bool) -> str:
    """C1, C3, C4, or AC4 where the fourth channel is alpha, which calls leave alone."""
    if alpha and channels != 4:
        raise ValueError(f"alpha=True wants 4 channels, not {channels}")
    return "AC4" if alpha else f"C{channels}"


@functools.lru_cache(maxsize=None)
def _offered(stem: str) -> str:
    names = [n[len(stem) + 1:] for n in declared.prototypes if n.startswith(stem + "_") and not n.endswith("_L")]
    return ", ".join(names) or "nothing of the name"


def refuse(stem: str, types: str, layout: str, wide: bool = False) -> TypeError:
    beyond = " with steps or sizes beyond 32 bits" if wide else ""
    return TypeError(f"there is no {stem} of {types} {layout}{beyond}; there is: {_offered(stem)}")


def find(stem: str, types: str, layout: str, flags: Iterable[str] = ("R",), wide: bool = False) -> str | None:
    """The name of the first export that there is with one of `flags`; `wide` asks for one of 64-bit steps."""
    names = (f"{stem}_{types}_{layout}{flag}" + ("_L" if wide else "") for flag in flags)
    return next((n for n in names if n in declared.prototypes), None)


def export(stem: str, types: str, layout: str, flags: Iterable[str] = ("R",)) -> str:
    """As `find`, but raises TypeError with what there is instead."""
    name = find(stem, types, layout, flags)
    if name is None:
        raise refuse(stem, types, layout)
    return name


def values_of(layout: str) -> int:
    """How many samples a pixel's value has: 3 of AC4."""
    return 3 if layout == "AC4" else int(layout[1])


def is_wide(images: Iterable[Image]) -> bool:
    """Whether a step or a size needs the functions of 64 bits."""
    return any(max(abs(i.step), i.width, i.height) > _LONGEST for i in images)


def call(name: str, values: dict[str, Any], channels: int = 1, quiet: tuple[int, ...] = ()) -> None:
    """Calls an export with the values of its parameters by name; raises and warns as its status tells, but for
    warnings in `quiet`, which are nothing to tell."""
    arguments = []
    for parameter in declared.prototypes[name].parameters:
        value = values[parameter.name]
        if isinstance(value, Pixel):
            value = value.bound(parameter.is_pointer, channels)
        arguments.append(value)
    status = getattr(c, name)(*arguments)
    if status not in quiet:
        check(status, name)


def results(name: str, words: Sequence[str]) -> dict[str, Any]:
    """Room for the results that a function stores through the parameters `words`: four entries each."""
    types = {p.name: p.base for p in declared.prototypes[name].parameters}
    return {word: ffi.new(f"{types[word]}[4]") for word in words}


def told(result: Any, channels: int) -> Any:
    """A result as a Python number of one channel, or as an array with an entry a channel."""
    return result[0] if channels == 1 else np.array([result[i] for i in range(channels)])


def number(word: str, function: str, values: dict[str, Any]) -> int:
    """The one number that a query stores through its parameter `word`."""
    stored = results(function, [word])
    call(function, {**values, **stored})
    return stored[word][0]


def block(size: int) -> tuple[np.ndarray, Any]:
    """Memory of at least `size` bytes for plans and work buffers, and a pointer to it. Keep the array alive."""
    memory = np.empty(max(size, 1), np.uint8)
    return memory, ffi.cast("Tpx8u*", memory.__array_interface__["data"][0])


def in_bands(height: int, threads: int, least: int, work: Callable[[int, int], None]) -> None:
    """Calls work(top, bottom) for bands of at least `least` rows, on so many threads."""
    bands = max(1, min(threads, height // max(least, 1)))
    edges = [height * i // bands for i in range(bands + 1)]
    if bands == 1:
        work(0, height)
        return
    with ThreadPoolExecutor(bands) as pool:
        list(pool.map(work, edges[:-1], edges[1:]))


def with_alpha(out: np.ndarray | None, source: Image, to: Image, alpha: bool) -> None:
    """Gives a new destination the alpha of its source, since calls on AC4 leave it as it was."""
    if alpha and out is None:
        if source.channels != 4 or source.code != to.code:
            raise ValueError("the fourth channel is kept as it is in the destination: give out=")
        to.array[..., 3] = source.array[..., 3]


def pointwise(stem: str, sources: dict[str, Any], out: np.ndarray | None = None, *, dtype: Any = None,
              alpha: bool = False, scale: int = 0, in_place: str = "",
              values: dict[str, Any] | None = None) -> np.ndarray:
    """Runs an operation that works on each sample by itself.

    sources   the arrays by the word of their parameters, {"Src": a} or {"Src1": a, "Src2": b}
    in_place  the word of the source that an in-place form takes over as its destination
    scale     other than 0 wants a form with a scale factor
    Where an operation has no form for the number of channels, and values are the same for all of them, samples are
    worked on as one channel; where it has in-place forms alone, the destination begins as a copy of that source.
    """
    values = values or {}
    inputs = {word: image(array, word.lower()) for word, array in sources.items()}
    first = next(iter(inputs.values()))
    for other in inputs.values():
        if (other.size, other.channels, other.code) != (first.size, first.channels, first.code):
            raise ValueError(f"{other.name} has shape {other.array.shape} of {other.array.dtype}, and {first.name} "
                             f"{first.array.shape} of {first.array.dtype}")
    to = destination(out, first, dtype)
    types = first.code + (to.code if to.code != first.code else "")
    wide = is_wide([*inputs.values(), to])
    taken_over = inputs.get(in_place)
    is_placed = taken_over is not None and same(taken_over, to)
    for word, source in inputs.items():
        if not (is_placed and (word == in_place or same(source, to))):
            refuse_overlap(source, to)
    with_alpha(out, first, to, alpha)

    layout = layout_of(first.channels, alpha)
    ways = [(layout, lambda i: i)]
    if not alpha and all(len(v.samples) == 1 for v in values.values() if isinstance(v, Pixel)):
        ways.append(("C1", Image.as_row_samples))
    for placed in ([True] if is_placed else [False, True] if taken_over else [False]):
        for way, shaped in ways:
            flags = [("I" if placed else "") + f for f in (["RSfs"] if scale else ["R", "Rs", "RSfs"])]
            name = find(stem, types, way, flags, wide)
            if name is None:
                continue
            if taken_over and placed and not is_placed:
                kept = 3 if alpha else None
                to.array[..., :kept] = taken_over.array[..., :kept]
            ends = {"SrcDst" if placed else "Dst": to}
            for word, source in inputs.items():
                if not placed or word != in_place:
                    ends["Src" if placed else word] = source
            named = {k: v for word, end in ends.items() for k, v in shaped(end).named(word).items()}
            call(name, {"roiSize": shaped(to).size, "scaleFactor": scale, **values, **named}, values_of(way))
            return to.array
    if is_placed and find(stem, types, layout, ["R", "Rs", "RSfs"], wide):
        raise ValueError(f"{stem} of {types} {layout} does not work in place; give another out")
    raise refuse(stem, types, layout, wide)
