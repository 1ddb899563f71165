# SPDX-License-Identifier: MIT
"""Pictures for tests: planes of noise, and the same in other memory."""
import numpy


def noise(shape, dtype, seed=1):
    random = numpy.random.default_rng(seed)
    if numpy.dtype(dtype).kind == "f":
        return random.random(shape, dtype=dtype)
    limits = numpy.iinfo(dtype)
    return random.integers(limits.min, limits.max, shape, dtype=dtype, endpoint=True)


def planes_of(picture):
    return list(picture) if isinstance(picture, tuple) else [picture]


def packed(planes):
    """As an API takes them: a tuple, or the one plane"""
    return tuple(planes) if len(planes) > 1 else planes[0]


def padded(plane):
    """The same in a larger array, with rows further apart"""
    wide = numpy.zeros((plane.shape[0] + 2, plane.shape[1] + 3, *plane.shape[2:]), plane.dtype)
    inside = wide[1:-1, 1:-2]
    inside[...] = plane
    return inside


def upwards(plane):
    """The same with its last row first in memory"""
    return numpy.ascontiguousarray(plane[::-1])[::-1]


ARRANGEMENTS = {"padded": padded, "upwards": upwards, "padded upwards": lambda plane: padded(plane[::-1])[::-1]}


def equal(a, b):
    return all(numpy.array_equal(x, y, equal_nan=numpy.asarray(x).dtype.kind == "f")
               for x, y in zip(planes_of(a), planes_of(b), strict=True))
