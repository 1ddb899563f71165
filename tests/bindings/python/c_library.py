# SPDX-License-Identifier: MIT
"""The C libraries themselves, by ctypes and the prototypes of their headers, on bytes without gaps."""
import ctypes
import os
import pathlib
import re

import numpy

from zorcc._headers import FUNCTIONS

_FOLDER = pathlib.Path(os.environ["ZORCC_LIBRARIES"])
_ZORCC = ctypes.CDLL(str(_FOLDER / "libzorccn8.so.6.1"))
_CONVERT = ctypes.CDLL(str(_FOLDER / "libzorconvert.so.6.1"))
_CONVERT.zorPlanCreate.restype = ctypes.c_void_p
_CONVERT.zorPlanDescribe.restype = ctypes.c_char_p


class Size(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int)]


class Rect(ctypes.Structure):
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), *Size._fields_]


class Picture(ctypes.Structure):
    _fields_ = [("format", ctypes.c_char_p), ("matrix", ctypes.c_char_p), ("range", ctypes.c_int), ("size", Size)]


def _pointers(planes):
    return (ctypes.c_void_p * 4)(*[plane.ctypes.data for plane in planes])


def _steps(planes):
    return (ctypes.c_int * 4)(*[plane.strides[0] for plane in planes])


def convert(planes, from_format, to_format, size, results):
    """Into the arrays of `results`; the status and the words of the plan"""
    pictures = [Picture(name.encode(), None, 0, Size(*size)) for name in (from_format, to_format)]
    plan = ctypes.c_void_p(_CONVERT.zorPlanCreate(*map(ctypes.byref, pictures), None))
    status = _CONVERT.zorPlanStatus(plan)
    if status == 0:
        status = _CONVERT.zorPlanRun(plan, _pointers(planes), _steps(planes), _pointers(results), _steps(results))
    text = _CONVERT.zorPlanDescribe(plan).decode()
    _CONVERT.zorPlanFree(plan)
    return status, text


def call(name, sources, results, size, arguments):
    """Calls an exported function with the arguments beside images as C has them, in their order; its status"""
    values = []
    rest = iter(arguments)
    for parameter in re.fullmatch(r".*?\((.*)\);", FUNCTIONS[name][0])[1].split(", "):
        planes = sources if "Src" in parameter or "src" in parameter else results
        chroma = "CbCr" in parameter
        if "roiSize" in parameter or "srcSize" in parameter:
            values.append(Size(*size))
        elif "srcRoi" in parameter:
            values.append(Rect(0, 0, *size))
        elif re.search(r"p(Src|Dst)\w*\[", parameter):
            values.append(_pointers(planes))
        elif re.search(r"p(Src|Dst)", parameter):
            values.append(ctypes.c_void_p(planes[chroma].ctypes.data))
        elif re.search(r"(src|dst)\w*Step\[", parameter):
            values.append(_steps(planes))
        elif re.search(r"(src|dst)\w*Step", parameter):
            values.append(planes[chroma].strides[0])
        elif "pTmp" in parameter:
            values.append(numpy.zeros(64 * 32 * (size[0] + 32), numpy.uint8).ctypes)
        elif "tmpStep" in parameter:
            values.append(32 * (size[0] + 32))
        else:
            values.append(next(rest))
    return getattr(_ZORCC, name)(*values)
