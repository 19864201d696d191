// What the compilers' vector types have no spelling for: the machine's own instructions, each behind a name that says
// what it does. Nothing else in the library names one, so that another machine needs another block here and no more.
#pragma once

#include "frame/lanes.h"

#include <immintrin.h>

namespace zepm::ZEPM_LEVEL
{

// ---- Stores past the caches -----------------------------------------------------------------------------------------

// A whole register to an address aligned to it; fenceStreams() orders it before what comes after.
template <class T>
ZEPM_INLINE void streamVec(char* p, Vec<T, lanes<T>> x)
{
#if defined(__AVX512F__)
    _mm512_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m512>(x));
#elif defined(__AVX2__)
    _mm256_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m256>(x));
#else
    _mm_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m128>(x));
#endif
}

// 16 bytes to an address that is a multiple of 16, likewise.
template <class Piece>
ZEPM_INLINE void streamPiece(char* p, Piece x)
{
    _mm_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m128>(x));
}

ZEPM_INLINE void fenceStreams() { _mm_sfence(); }

// ---- Loads and stores -----------------------------------------------------------------------------------------------

// Two floats in the lower half of four lanes, the upper half zero.
ZEPM_INLINE Vec<float32, 4> loadTwo(const char* p)
{
    return reinterpret_cast<Vec<float32, 4>>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}

// The same 16 bytes twice: one load, where the compilers would spend a shuffle.
#if defined(__AVX__)
template <class T>
ZEPM_INLINE Vec<T, 32 / sizeof(T)> loadTwice(const char* p)
{
    return reinterpret_cast<Vec<T, 32 / sizeof(T)>>(_mm256_broadcast_ps(reinterpret_cast<const __m128*>(p)));
}
#endif

// The first three elements of each four: no other is touched.
#if defined(__AVX512F__)
ZEPM_INLINE Vec<float32, 16> loadThreeOfFour(const char* p)
{
    return reinterpret_cast<Vec<float32, 16>>(_mm512_maskz_loadu_ps(0x7777, p));
}
ZEPM_INLINE void storeThreeOfFour(char* p, Vec<float32, 16> x)
{
    _mm512_mask_storeu_ps(p, 0x7777, reinterpret_cast<__m512>(x));
}
#endif

// ---- Halves: the instructions for them take memory, where the compilers would load a half and then shuffle
// ------------

template <class T, int N>
ZEPM_INLINE Vec<T, 2 * N> join(Vec<T, N> low, Vec<T, N> high)
{
    [[maybe_unused]] constexpr int bytes = N * static_cast<int>(sizeof(T));
#if defined(__AVX512F__)
    if constexpr (bytes == 32)
        return reinterpret_cast<Vec<T, 2 * N>>(_mm512_insertf32x8(_mm512_castps256_ps512(reinterpret_cast<__m256>(low)),
                                                                  reinterpret_cast<__m256>(high), 1));
    else
#endif
#if defined(__AVX__)
        if constexpr (bytes == 16)
        return reinterpret_cast<Vec<T, 2 * N>>(_mm256_insertf128_ps(
            _mm256_castps128_ps256(reinterpret_cast<__m128>(low)), reinterpret_cast<__m128>(high), 1));
    else
#endif
        if constexpr (N == 1)
        return Vec<T, 2>{low, high};
    else
        return shuffle<T, N, 2 * N>(low, high, [](int lane) { return lane; });
}

// Half 0 is the lower lanes.
template <class T, int N, int Half>
ZEPM_INLINE Vec<T, N / 2> half(Vec<T, N> x)
{
    [[maybe_unused]] constexpr int bytes = N * static_cast<int>(sizeof(T));
#if defined(__AVX512F__)
    if constexpr (bytes == 64)
        return reinterpret_cast<Vec<T, N / 2>>(_mm512_extractf32x8_ps(reinterpret_cast<__m512>(x), Half));
    else
#endif
#if defined(__AVX__)
        if constexpr (bytes == 32)
        return reinterpret_cast<Vec<T, N / 2>>(_mm256_extractf128_ps(reinterpret_cast<__m256>(x), Half));
    else
#endif
        if constexpr (N == 2)
        return x[Half];
    else
        return permute<T, N, N / 2>(x, [](int lane) { return Half * (N / 2) + lane; });
}

// ---- Within pieces of 16 bytes --------------------------------------------------------------------------------------

// Element place of each lane's piece, modulo 4, for that lane.
#if defined(__AVX512F__)
ZEPM_INLINE Vec<float32, 16> permutePieces(Vec<float32, 16> x, Vec<int32, 16> place)
{
    return reinterpret_cast<Vec<float32, 16>>(
        _mm512_maskz_permutevar_ps(0xffff, reinterpret_cast<__m512>(x), reinterpret_cast<__m512i>(place)));
}
#endif
#if defined(__AVX2__)
ZEPM_INLINE Vec<float32, 8> permutePieces(Vec<float32, 8> x, Vec<int32, 8> place)
{
    return reinterpret_cast<Vec<float32, 8>>(
        _mm256_permutevar_ps(reinterpret_cast<__m256>(x), reinterpret_cast<__m256i>(place)));
}
#endif

// ---- Arithmetic -----------------------------------------------------------------------------------------------------

// All lanes in the masked forms of AVX-512: GCC 12 warns of an operand that its unmasked forms leave undefined.
template <class V>
ZEPM_INLINE V squareRootOf(V x)
{
    constexpr bool isFloat32 = sizeof(x[0]) == 4;
#if defined(__AVX512F__)
    if constexpr (sizeof(V) == 64 && isFloat32)
        return reinterpret_cast<V>(_mm512_maskz_sqrt_ps(0xffff, reinterpret_cast<__m512>(x)));
    else if constexpr (sizeof(V) == 64)
        return reinterpret_cast<V>(_mm512_maskz_sqrt_pd(0xff, reinterpret_cast<__m512d>(x)));
    else
#endif
#if defined(__AVX__)
        if constexpr (sizeof(V) == 32 && isFloat32)
        return reinterpret_cast<V>(_mm256_sqrt_ps(reinterpret_cast<__m256>(x)));
    else if constexpr (sizeof(V) == 32)
        return reinterpret_cast<V>(_mm256_sqrt_pd(reinterpret_cast<__m256d>(x)));
    else
#endif
        if constexpr (isFloat32)
        return reinterpret_cast<V>(_mm_sqrt_ps(reinterpret_cast<__m128>(x)));
    else
        return reinterpret_cast<V>(_mm_sqrt_pd(reinterpret_cast<__m128d>(x)));
}

// The 12-bit estimates of 1 / x and 1 / sqrt(x).
ZEPM_INLINE float32 reciprocalEstimate(float32 x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
ZEPM_INLINE float32 reciprocalRootEstimate(float32 x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

// A register of doubles as floats, in the lower lanes where these are fewer than a register's, and back.
using Doubles = Vec<float64, lanes<float64>>;
using Narrowed = Vec<float32, (lanes<float64> > 4 ? lanes<float64> : 4)>;
ZEPM_INLINE Narrowed narrowed(Doubles x)
{
#if defined(__AVX512F__)
    return reinterpret_cast<Narrowed>(_mm512_maskz_cvtpd_ps(0xff, reinterpret_cast<__m512d>(x)));
#elif defined(__AVX2__)
    return reinterpret_cast<Narrowed>(_mm256_cvtpd_ps(reinterpret_cast<__m256d>(x)));
#else
    return reinterpret_cast<Narrowed>(_mm_cvtpd_ps(reinterpret_cast<__m128d>(x)));
#endif
}
ZEPM_INLINE Doubles widened(Narrowed x)
{
#if defined(__AVX512F__)
    return reinterpret_cast<Doubles>(_mm512_maskz_cvtps_pd(0xff, reinterpret_cast<__m256>(x)));
#elif defined(__AVX2__)
    return reinterpret_cast<Doubles>(_mm256_cvtps_pd(reinterpret_cast<__m128>(x)));
#else
    return reinterpret_cast<Doubles>(_mm_cvtps_pd(reinterpret_cast<__m128>(x)));
#endif
}

// ---- Masks: all bits of a lane set or clear -------------------------------------------------------------------------

template <class M>
ZEPM_INLINE bool anyOf(M mask)
{
#if defined(__AVX512F__)
    if constexpr (sizeof(M) == 64) return _mm512_movepi32_mask(reinterpret_cast<__m512i>(mask)) != 0;
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(M) == 32) return _mm256_movemask_epi8(reinterpret_cast<__m256i>(mask)) != 0;
#endif
    if constexpr (sizeof(M) == 16) return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask)) != 0;
}

template <class M>
ZEPM_INLINE bool allOf(M mask)
{
    return !anyOf(~mask);
}

} // namespace zepm::ZEPM_LEVEL
