# SPDX-License-Identifier: Apache-2.0
"""The raw layer: all that the headers declare is there, has its type, and answers."""
import re
from pathlib import Path

import pytest

import tpxi
from tpxi import c, ffi, library


def test_headers_are_read_to_the_last_prototype():
    exports = set((Path(__file__).parents[1] / "library" / "exports.txt").read_text().split())
    core = {"tpxMalloc", "tpxMalloc_L", "tpxFree", "tpxGetMaxCacheSizeB", "tpx_get_cache_line_size"}
    assert set(tpxi.prototypes) == exports | core
    text = (library.include / "tpxi" / "types.h").read_text()
    assert {s.name for s in tpxi.statuses.values()} == set(re.findall(r"\(((?:tpxErr|tpxWarn|tpxOk)\w*), -?\d", text))
    assert len(tpxi.statuses) > 50 and all(status.text for status in tpxi.statuses.values())


def zero(type_name):
    if "*" in type_name or "[" in type_name:
        return ffi.NULL
    fields = ffi.typeof(type_name).kind == "struct" and ffi.typeof(type_name).fields
    return (0,) * len(fields) if fields else 0


def test_every_export_is_there_and_answers():
    """Null pointers and zeros are refused by all, with a status of the headers."""
    for name, prototype in tpxi.prototypes.items():
        arguments = [zero(p.type) for p in prototype.parameters]
        result = getattr(c, name)(*arguments)
        if prototype.result == "TpxStatus":
            assert result < 0 and result in tpxi.statuses, name
        elif name.startswith(("tpxiMalloc", "tpxMalloc")):
            assert result == ffi.NULL, name
        else:
            assert name in ("tpxiFree", "tpxFree", "tpxiGetLibVersion", "tpxiWarpGetRectInfinite"), name


def test_types_of_the_headers_are_the_types_of_calls():
    assert str(tpxi.prototypes["tpxiCopy_8u_C3P3R"]) == (
        "TpxStatus tpxiCopy_8u_C3P3R(const Tpx8u* pSrc, int srcStep, Tpx8u* const[3] pDst, int dstStep, "
        "TpxiSize roiSize)")
    assert ffi.typeof(c.tpxiExp_32f_C1R).args[:3] == tuple(ffi.typeof(t) for t in ("float*", "int", "float*"))
    assert (c.tpxErrStep, c.tpxBorderInMemAll) == (-14, 0xF0)
    assert c.tpxiWarpGetRectInfinite().x == -1073741824
    with pytest.raises(AttributeError, match="tpxiNothing"):
        c.tpxiNothing


def test_a_call_as_it_stands():
    image = ffi.new("Tpx8u[]", 6)
    assert c.tpxiSet_8u_C1R(7, image, 3, (2, 2)) == 0
    assert list(image) == [7, 7, 0, 7, 7, 0]
