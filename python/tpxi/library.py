# SPDX-License-Identifier: Apache-2.0
"""The loaded library: every export of the headers as a function that can be called as it stands in C.

Headers and library are looked for in this order:

1. the environment: TPXI_INCLUDE, the folder of tpxi.h, and TPXI_LIBRARY, the file libtpxie9.so;
2. the prefix that this package is installed in (`<prefix>/lib/python3/dist-packages/tpxi`);
3. a source tree that this package lies in, built in build/release;
4. /usr/local and /usr.

No compiler is needed. Calls release the interpreter lock while they run.
"""
from __future__ import annotations

import os
from pathlib import Path
from typing import Any

from cffi import FFI

from . import declarations

_LIBRARY_FOLDERS = ("lib", "lib64", "lib/x86_64-linux-gnu")


def _places() -> list[tuple[Path, list[Path]]]:
    """Folders of headers, each with the folders where its library may be."""
    here = Path(__file__).resolve().parent
    above = [*here.parents, *[Path("/")] * 4]
    installed, tree = above[3], above[1]
    prefixes = [(prefix / "include", [prefix / folder for folder in _LIBRARY_FOLDERS])
                for prefix in (installed, Path("/usr/local"), Path("/usr"))]
    return [prefixes[0], (tree / "include", [tree / "build" / "release"]), *prefixes[1:]]


def find() -> tuple[Path, Path]:
    """The folder of the headers and the file of the library."""
    include, library = os.environ.get("TPXI_INCLUDE"), os.environ.get("TPXI_LIBRARY")
    for headers, folders in _places():
        headers = Path(include) if include else headers
        files = [Path(library)] if library else [f for d in folders for f in sorted(d.glob("libtpxie9.so*"))]
        if files and (headers / "tpxi" / "types.h").exists():
            return headers, files[0]
    raise ImportError("no tpxi headers with a libtpxie9.so: set TPXI_INCLUDE to the folder of tpxi.h and "
                      "TPXI_LIBRARY to the file libtpxie9.so, or install both into one prefix")


include, path = find()
declared = declarations.read(include)

ffi = FFI()
ffi.cdef(declared.types)

# Declaring all functions to cffi takes seconds. A pointer of the right type does the same for one function.
_loader = FFI()
_loader.cdef("void* dlopen(const char*, int); void* dlsym(void*, const char*); char* dlerror(void);")
_system = _loader.dlopen(None)


class Exports:
    """The exports as attributes: `c.tpxiSet_8u_C1R(7, tpxi.pointer(a), a.strides[0], (w, h))`.

    A function is made when it is first asked for. Records are given as tuples, arrays as lists or as what
    `ffi.new` makes; what comes back is the C function's result, a status in most cases. Enumerators of the headers
    are attributes too: `c.tpxErrStep`.
    """

    def __init__(self, file: Path) -> None:
        self._handle = _system.dlopen(os.fsencode(file), 2)
        if not self._handle:
            raise ImportError(_loader.string(_system.dlerror()).decode())

        self._constants = ffi.dlopen(os.fspath(file))

    def __getattr__(self, name: str) -> Any:
        prototype = declared.prototypes.get(name)
        if prototype is None:
            if name in dir(self._constants):
                setattr(self, name, getattr(self._constants, name))
                return getattr(self, name)
            raise AttributeError(f"the headers in {include} declare no {name}")
        address = _system.dlsym(self._handle, name.encode())
        if not address:
            raise AttributeError(f"{path} has no {name}, which the headers in {include} declare")
        function = ffi.cast(prototype.signature, ffi.cast("intptr_t", int(_loader.cast("intptr_t", address))))
        setattr(self, name, function)
        return function

    def __dir__(self) -> list[str]:
        return sorted(declared.prototypes)


c = Exports(path)
