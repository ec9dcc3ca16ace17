# SPDX-License-Identifier: Apache-2.0
"""Reading the C headers: types for cffi, the prototypes of all exports, and the texts of the statuses.

There is no list of functions in this package. What the installed headers declare is what can be called.
"""
from __future__ import annotations

import re
from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Parameter:
    """A parameter of a prototype: `type` without its name ("const Tpx8u*", "const Tpx64f[2][3]")."""

    type: str
    name: str

    @property
    def is_pointer(self) -> bool:
        return "*" in self.type or "[" in self.type

    @property
    def base(self) -> str:
        """The type that a pointer or an array of one dimension is of."""
        return re.sub(r"\bconst\b|[*\[\]\d ]+$", "", self.type).strip()


@dataclass(frozen=True)
class Prototype:
    """A function of the boundary, as its header declares it."""

    name: str
    result: str
    parameters: tuple[Parameter, ...]

    @property
    def signature(self) -> str:
        """The type of a pointer to the function, as short as calls need it, so that many functions share one."""
        types = (re.sub(r"\[\d*\]$", "*", re.sub(r" *\bconst\b *", "", p.type)) if "][" not in p.type else p.type
                 for p in self.parameters)
        return f"{self.result}(*)({', '.join(types) or 'void'})"

    def __str__(self) -> str:
        return f"{self.result} {self.name}({', '.join(f'{p.type} {p.name}' for p in self.parameters) or 'void'})"


@dataclass(frozen=True)
class Status:
    """A status: its number, its name and what the header says of it."""

    number: int
    name: str
    text: str


@dataclass(frozen=True)
class Declarations:
    """What a folder of headers declares."""

    types: str  # typedefs and enumerations, for FFI.cdef
    prototypes: dict[str, Prototype]
    statuses: dict[int, Status]


def read(folder: Path) -> Declarations:
    """Reads tpxcore.h and tpxi/*.h below `folder`."""
    shared = folder / "tpxi" / "types.h"
    headers = [shared, *sorted(set((folder / "tpxi").glob("*.h")) - {shared}), folder / "tpxcore.h"]
    types, prototypes = [], {}
    for header in headers:
        text = re.sub(r"/\*.*?\*/|//[^\n]*|^#[^\n]*", "", header.read_text(), flags=re.DOTALL | re.MULTILINE)
        types += re.findall(r"^(?:typedef\b[^;{]*(?:\{[^}]*\}[^;]*)?|enum\b[^;(]*);", text, re.MULTILINE)
        for declaration in re.findall(r"^TPX_API\b([^;]*);", text, re.MULTILINE):
            prototypes |= {p.name: p for p in _prototypes(" ".join(declaration.split()))}
    statuses = _statuses(shared.read_text())
    types.append(f"enum {{ {', '.join(f'{s.name} = {s.number}' for s in statuses.values())} }};")
    return Declarations("\n".join(types), prototypes, statuses)


def _prototypes(declaration: str) -> list[Prototype]:
    """All functions of one declaration: `TpxStatus f(int a), g(int b)`, `void *f(int a), *g(int b)`."""
    match = re.fullmatch(r"(.*?) ?(\**\w+\(.*\))", declaration)
    if not match:
        raise ValueError(f"no prototypes that can be read: {declaration}")
    return [Prototype(name, match[1] + stars, _parameters(parameters))
            for stars, name, parameters in re.findall(r"(\**)(\w+)\(([^)]*)\)", match[2])]


def _parameters(text: str) -> tuple[Parameter, ...]:
    found = re.findall(r"(?:^|, )(\w[^,]*?)\s*\b(\w+)((?:\[\d*\])*)(?=,|$)", "" if text == "void" else text)
    return tuple(Parameter(kind + sides, word) for kind, word, sides in found)


def _statuses(text: str) -> dict[int, Status]:
    """The list of statuses in types.h, a macro: `status(tpxErrStep, -14, "a step below 1, or not accepted")`."""
    found = re.findall(r"\b\w+\((tpx\w+), (-?\d+), \"([^\"]*)\"\)", text)
    return {int(number): Status(int(number), name, words) for name, number, words in found}
