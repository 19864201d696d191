#!/usr/bin/env python3
"""Compares Extract and Transpose with NumPy's ascontiguousarray: bench/movement_numpy.py path/of/libzepm.so

Both are called from Python, some microseconds a call, so that only large arrays tell. Prints the medians of interleaved
repetitions and NumPy's time divided by the library's.
"""
import ctypes
import statistics
import sys
import time

import numpy

REPETITIONS = 15


def median_times(calls):
    times = [[] for _ in calls]
    for _ in range(REPETITIONS):
        for call, list_of_times in zip(calls, times):
            start = time.perf_counter()
            call()
            list_of_times.append(time.perf_counter() - start)
    return [statistics.median(list_of_times) for list_of_times in times]


def compare(library, name, source, view, suffix, form):
    """view is what the result must be; source the array of matrices whose storage it shows."""
    count, height, width = view.shape
    result = numpy.zeros(view.shape, view.dtype)
    function = getattr(library, f"zepmExtract_{form}_{suffix}")
    strides = [ctypes.c_int32(stride) for stride in source.strides]
    sizes = [ctypes.c_int32(size) for size in (width, height, count)]
    source_at, result_at = ctypes.c_void_p(source.ctypes.data), ctypes.c_void_p(result.ctypes.data)
    kept = []

    def ours():
        if function(source_at, *strides, result_at, *sizes) != 0:
            sys.exit(f"{name}: wrong status")

    def theirs():
        kept[:] = [numpy.ascontiguousarray(view)]

    ours_time, theirs_time = median_times([ours, theirs])
    if not numpy.array_equal(result, view):
        sys.exit(f"{name}: wrong result")
    print(f"{name:44} {ours_time * 1e6:10.1f} us {theirs_time * 1e6:10.1f} us {theirs_time / ours_time:7.2f}")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    library = ctypes.CDLL(sys.argv[1])
    print(f"{'':44} {'zepm':>13} {'NumPy':>13} {'ratio':>7}")
    for suffix, element in (("32f", numpy.float32), ("64f", numpy.float64)):
        for order in (3, 4, 6, 16, 40):
            for elements in (9000, 9000000):
                count = elements // order**2
                room = numpy.random.default_rng(1).random((count, order, order + 1)).astype(element)
                gapped, dense = room[:, :, :order], numpy.ascontiguousarray(room[:, :, :order])
                case = f"{suffix}/order:{order}/n:{count}"
                compare(library, f"Extract_ma gapped {case}", gapped, gapped, suffix, "ma")
                compare(library, f"Extract_ta dense  {case}", dense, dense.transpose(0, 2, 1), suffix, "ta")


if __name__ == "__main__":
    main()
