"""Prints the nanoseconds that numpy.linalg.eigh takes for each 3 by 3 float32 matrix of a file."""
import sys
import time

import numpy

matrices = numpy.fromfile(sys.argv[1], dtype=numpy.float32).reshape(-1, 3, 3)
times = []
for _ in range(5):
    start = time.perf_counter()
    numpy.linalg.eigh(matrices)
    times.append(time.perf_counter() - start)
print(1e9 * sorted(times)[2] / len(matrices))
