/* A C program that adds two arrays of vectors, few and many of them, and reads the thread count. */
#include <zepcore.h>
#include <zepm.h>

#include <stdio.h>

enum
{
    LEN = 3,
    COUNT = 5000
};

static float32 a[COUNT][LEN], b[COUNT][LEN], sum[COUNT][LEN];

static int adds(int32 count)
{
    const int32 stride0 = sizeof sum[0], stride2 = sizeof sum[0][0];
    Status status;
    int k, j;
    for (k = 0; k < count; ++k)
        for (j = 0; j < LEN; ++j) {
            a[k][j] = (float32)k;
            b[k][j] = (float32)j;
            sum[k][j] = -1;
        }
    status = zepmAdd_vava_32f(a[0], stride0, stride2, b[0], stride0, stride2, sum[0], stride0, stride2, LEN, count);
    if (status != stsOk) return 0;
    for (k = 0; k < count; ++k)
        for (j = 0; j < LEN; ++j)
            if (sum[k][j] != (float32)(k + j)) return 0;
    return 1;
}

int main(void)
{
    if (zepmGetLibVersion()->major != 7) return 1;
    if (zepSetNumThreads(2) != stsOk || ownGetNumThreads() != 2 || zepSetMinParallelWork(0) != stsOk) return 2;
    if (!adds(2) || !adds(COUNT)) return 3;
    puts("right");
    return 0;
}
