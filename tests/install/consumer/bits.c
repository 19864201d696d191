/* Prints a hash over the bits of results of every family at the levels below AVX-512. Its numbers are made of bits, so
 * that no flag of its own compiler tells. */
#include <zepcore.h>
#include <zepm.h>

#include <stdio.h>
#include <string.h>

enum
{
    COUNT = 40,
    LARGEST = 7,
    MATRIX = LARGEST * LARGEST
};

static uint64_t state, hash;

static uint32_t bits(void)
{
    state = state * 6364136223846793005u + 1442695040888963407u;
    return (uint32_t)(state >> 33);
}

static void add(const void* data, size_t size)
{
    const unsigned char* const bytes = (const unsigned char*)data;
    size_t n;
    for (n = 0; n < size; ++n) hash = (hash ^ bytes[n]) * 0x100000001b3u;
}

/* Magnitudes from 1/4 to 4, both signs; now and then a zero or an infinity of either sign. */
static void fill32(float32* x, int n, int special)
{
    for (; n > 0; --n, ++x) {
        const uint32_t sign = (bits() & 1) << 31;
        uint32_t word = (125 + (bits() & 3)) << 23 | (bits() & 0x7fffff);
        if (special && (bits() & 31) == 0) word = bits() & 1 ? 0x7f800000 : 0;
        word |= sign;
        memcpy(x, &word, sizeof word);
    }
}
static void fill64(float64* x, int n, int special)
{
    for (; n > 0; --n, ++x) {
        const uint64_t sign = (uint64_t)(bits() & 1) << 63;
        uint64_t word = (uint64_t)(1021 + (bits() & 3)) << 52 | (uint64_t)(bits() & 0xfffff) << 32 | bits();
        if (special && (bits() & 31) == 0) word = bits() & 1 ? 0x7ff0000000000000u : 0;
        word |= sign;
        memcpy(x, &word, sizeof word);
    }
}

/* A status and results go into the hash. The bits of a NaN are no part of the promise. */
static void record32(Status status, const float32* x, int n)
{
    add(&status, sizeof status);
    for (; n > 0; --n, ++x) {
        uint32_t word;
        memcpy(&word, x, sizeof word);
        if (word << 1 > 0x7f800000u << 1) word = 0x7fc00000;
        add(&word, sizeof word);
    }
}
static void record64(Status status, const float64* x, int n)
{
    add(&status, sizeof status);
    for (; n > 0; --n, ++x) {
        uint64_t word;
        memcpy(&word, x, sizeof word);
        if (word << 1 > (uint64_t)0x7ff << 53) word = (uint64_t)0x7ff8 << 48;
        add(&word, sizeof word);
    }
}

static void order32(int32 n, int special)
{
    static float32 a[MATRIX * COUNT], b[MATRIX * COUNT], d[MATRIX * COUNT], x[LARGEST * COUNT], values[LARGEST * COUNT];
    static int32 pivots[LARGEST * COUNT];
    const int32 s2 = sizeof a[0], s1 = n * s2, s0 = n * s1, all = n * n * COUNT;
    float32 buffer[MATRIX];
    Status status;
    int k, i, j;
    fill32(a, all, special);
    fill32(b, all, special);
    record32(zepmAdd_mama_32f(a, s0, s1, s2, b, s0, s1, s2, d, s0, s1, s2, n, n, COUNT), d, all);
    record32(zepmMul_mama_32f(a, s0, s1, s2, n, n, b, s0, s1, s2, n, n, d, s0, s1, s2, COUNT), d, all);
    record32(zepmMul_tam_32f(a, s0, s1, s2, n, n, b, s1, s2, n, n, d, s0, s1, s2, COUNT), d, all);
    record32(zepmLUDecomp_ma_32f(a, s0, s1, s2, pivots, d, s0, s1, s2, n, COUNT), d, all);
    status = zepmLUBackSubst_mava_32f(d, s0, s1, s2, pivots, b, s1, s2, x, s1, s2, n, COUNT);
    record32(status, x, n * COUNT);
    for (k = 0; k < COUNT; ++k)
        for (i = 0; i < n; ++i)
            for (j = 0; j < i; ++j) a[(k * n + i) * n + j] = a[(k * n + j) * n + i];
    status = zepmEigenValuesVectorsSym_ma_32f(a, s0, s1, s2, buffer, d, s0, s1, s2, values, n, COUNT);
    record32(status, values, n * COUNT);
    record32(status, d, all);
}

static void order64(int32 n, int special)
{
    static float64 a[MATRIX * COUNT], b[MATRIX * COUNT], d[MATRIX * COUNT], x[LARGEST * COUNT];
    static int32 pivots[LARGEST * COUNT];
    const int32 s2 = sizeof a[0], s1 = n * s2, s0 = n * s1, all = n * n * COUNT;
    fill64(a, all, special);
    fill64(b, all, special);
    record64(zepmMul_mama_64f(a, s0, s1, s2, n, n, b, s0, s1, s2, n, n, d, s0, s1, s2, COUNT), d, all);
    record64(zepmLUDecomp_ma_64f(a, s0, s1, s2, pivots, d, s0, s1, s2, n, COUNT), d, all);
    record64(zepmLUBackSubst_mva_64f(d, s1, s2, pivots, b, s1, s2, x, s1, s2, n, COUNT), x, n * COUNT);
}

static void points(int special)
{
    float32 m[3][16], p[3 * COUNT], d[3 * COUNT], inverse[16], det;
    fill32(m[0], 48, special);
    fill32(p, 3 * COUNT, special);
    record32(zepmAffineTransformCoord_m4v3a_32f(m[0], p, 12, d, 12, COUNT), d, 3 * COUNT);
    record32(zepmUnproject_m4v3a_32f(m[0], m[1], m[2], p, 12, 640, 480, 0, 1, d, 12, COUNT), d, 3 * COUNT);
    record32(zepmNormalize_v3_32f(p, d), d, 3);
    record32(zepmMin_v3_32f(p, p + 3, d), d, 3);
    record32(zepmInvert_m4_32f(m[0], &det, inverse), inverse, 16);
}

int main(void)
{
    int32 level, n;
    int special;
    zepSetNumThreads(1);
    for (level = 0; level < 2 && zepSetCpuLevel(level) == stsOk; ++level) {
        state = 1;
        hash = 0xcbf29ce484222325u;
        for (special = 0; special < 2; ++special) {
            for (n = 2; n <= LARGEST; ++n) {
                order32(n, special);
                order64(n, special);
            }
            points(special);
        }
        printf("level %d: %08x%08x\n", (int)level, (unsigned)(hash >> 32), (unsigned)hash);
    }
    return 0;
}
