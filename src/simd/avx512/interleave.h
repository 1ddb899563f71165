// SPDX-License-Identifier: MIT
// Three and four interleaved channels on AVX-512, by permutations of bytes across whole vectors.
#pragma once

namespace zorcc::ZORCC_TIER {
namespace {

// ---- three channels -------------------------------------------------------------------------------------------------

// Sample n of three consecutive vectors is channel n % 3 of pixel n / 3. As the number of samples in a vector is not a
// multiple of 3, any position holds channel c in exactly one of the three vectors: blending the vectors gathers a
// channel, one permutation sorts it.
template <int size> struct Thirds {
    alignas(64) uint8_t sort[3][64];        // [channel][byte of a channel vector]: its position in the gathered channel
    alignas(64) uint8_t inOrder[3][64];     // [channel][position]: the byte that belongs there, of columns in order,
    alignas(64) uint8_t evenThenOdd[3][64]; // of columns that per block are first even, then odd,
    alignas(64) uint8_t evenOddHalves[3][64]; // and of the even columns in the lower half, the odd ones in the upper

    constexpr Thirds() : sort{}, inOrder{}, evenThenOdd{}, evenOddHalves{}
    {
        for (int n = 0; n < 192 / size; ++n)
            for (int i = 0; i < size; ++i) {
                const int position = n % (64 / size) * size + i;
                sort[n % 3][n / 3 * size + i] = static_cast<uint8_t>(position);
                const auto byteOf = [&](int column) { return static_cast<uint8_t>(column * size + i); };
                inOrder[n % 3][position] = byteOf(n / 3);
                evenThenOdd[n % 3][position] = byteOf(placeOf(n / 3, Columns::evenThenOdd, 16 / size));
                evenOddHalves[n % 3][position] = byteOf(placeOf(n / 3, Columns::evenThenOdd, 64 / size));
            }
    }
};
template <int size> constexpr Thirds<size> thirds;

// The bytes of sample positions p with p % 3 == r.
constexpr __mmask64 everyThird(int size, int r)
{
    __mmask64 bytes = 0;
    for (int p = r; p < 64 / size; p += 3) bytes |= ((__mmask64{1} << size) - 1) << p * size;
    return bytes;
}
template <int size> constexpr __mmask64 third[] = {everyThird(size, 0), everyThird(size, 1), everyThird(size, 2)};

// Sample position p of vector k belongs to channel (k * (64 / size) + p) % 3. The positions of channel c in it:
template <int size> constexpr __mmask64 thirdOf(int c, int k) { return third<size>[(c + k * (3 - 64 / size % 3)) % 3]; }

// In a register. As memory operands of permutations and blends, which compilers prefer, vectors would be read several
// times, which costs where images are not aligned and every read is of two lines.
template <class R> ZORCC_INLINE R loadToRegister(const uint8_t* p)
{
    R v;
    __builtin_memcpy(&v, p, 64);
    asm("" : "+v"(v));
    return v;
}

// Floats take two permutations of two vectors each, which is less than blending and permuting.
struct FloatThirds {
    alignas(64) int32_t sort[2][3][16];    // from vectors 0 and 1, from that and vector 2
    alignas(64) int32_t scatter[2][3][16]; // from channels 0 and 1, from that and channel 2

    constexpr FloatThirds() : sort{}, scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int i = 0; i < 16; ++i) {
                const int n = 3 * i + c, m = 16 * c + i; // where channel c of pixel i is; what element i of vector c is
                sort[0][c][i] = n < 32 ? n : 0;
                sort[1][c][i] = n < 32 ? i : n - 16;
                scatter[0][c][i] = m % 3 < 2 ? m % 3 * 16 + m / 3 : 0;
                scatter[1][c][i] = m % 3 < 2 ? i : 16 + m / 3;
            }
    }
};
constexpr FloatThirds floatThirds;

ZORCC_INLINE __m512 permuteThirds(const int32_t (&first)[16], const int32_t (&second)[16], __m512 a, __m512 b, __m512 c)
{
    return _mm512_permutex2var_ps(_mm512_permutex2var_ps(a, _mm512_load_si512(first), b), _mm512_load_si512(second), c);
}

ZORCC_INLINE void deinterleave(const uint8_t* p, f32v (&channel)[3])
{
    const __m512 a = loadToRegister<__m512>(p), b = loadToRegister<__m512>(p + 64), c = loadToRegister<__m512>(p + 128);
    for (int k = 0; k < 3; ++k)
        channel[k] = (f32v)permuteThirds(floatThirds.sort[0][k], floatThirds.sort[1][k], a, b, c);
}

template <Columns columns> ZORCC_INLINE void interleave(uint8_t* p, const f32v (&channel)[3])
{
    for (int k = 0; k < 3; ++k)
        _mm512_storeu_ps(p + 64 * k, permuteThirds(floatThirds.scatter[0][k], floatThirds.scatter[1][k],
                                                   reg(channel[0]), reg(channel[1]), reg(channel[2])));
}

template <class V> ZORCC_INLINE void deinterleave(const uint8_t* p, V (&channel)[3])
{
    constexpr int size = sampleSize<V>;
    const __m512i a = loadToRegister<__m512i>(p), b = loadToRegister<__m512i>(p + 64),
                  c = loadToRegister<__m512i>(p + 128);
    for (int k = 0; k < 3; ++k)
        channel[k] = (V)_mm512_permutexvar_epi8(
            reg(load(thirds<size>.sort[k])),
            _mm512_mask_mov_epi8(_mm512_mask_mov_epi8(a, thirdOf<size>(k, 1), b), thirdOf<size>(k, 2), c));
}

// The vectors of three channels to memory; `scatter` says where the bytes of each channel go.
template <int size, class V>
ZORCC_INLINE void scatterThirds(uint8_t* p, const V (&channel)[3], const uint8_t (&scatter)[3][64])
{
    __m512i v[3];
    for (int c = 0; c < 3; ++c) v[c] = _mm512_permutexvar_epi8(reg(load(scatter[c])), reg(channel[c]));
    for (int k = 0; k < 3; ++k)
        store(p + 64 * k, (u8v)_mm512_mask_mov_epi8(_mm512_mask_mov_epi8(v[0], thirdOf<size>(1, k), v[1]),
                                                    thirdOf<size>(2, k), v[2]));
}

template <Columns columns, class V> ZORCC_INLINE void interleave(uint8_t* p, const V (&channel)[3])
{
    constexpr int size = sampleSize<V>;
    scatterThirds<size>(p, channel, columns == Columns::inOrder ? thirds<size>.inOrder : thirds<size>.evenThenOdd);
}

// Pixels whose even and odd columns lie in vectors of their own.
template <class V> ZORCC_INLINE void interleaveColumns3(uint8_t* p, const V (&even)[3], const V (&odd)[3])
{
    constexpr int size = sampleSize<V>;
    for (int half = 0; half < 2; ++half) {
        V v[3];
        for (int c = 0; c < 3; ++c)
            v[c] = half == 0 ? (V)_mm512_inserti64x4(reg(even[c]), _mm512_castsi512_si256(reg(odd[c])), 1)
                             : (V)_mm512_shuffle_i64x2(reg(even[c]), reg(odd[c]), 0xee);
        scatterThirds<size>(p + half * 3 * vectorBytes, v, thirds<size>.evenOddHalves);
    }
}

// ---- four channels --------------------------------------------------------------------------------------------------

template <int size> struct Quarters {
    alignas(64) uint8_t sort[64]; // quarter c: channel c of the pixels
    alignas(64) uint8_t scatter[64];

    constexpr Quarters() : sort{}, scatter{}
    {
        for (int n = 0; n < 64; ++n) {
            sort[sortedPlace(n, size, 64)] = static_cast<uint8_t>(n);
            scatter[n] = static_cast<uint8_t>(sortedPlace(n, size, 64));
        }
    }
};
template <int size> constexpr Quarters<size> quarters;

// Block i of vector k becomes block k of vector i.
ZORCC_INLINE void transposeBlocks(__m512i (&v)[4])
{
    const __m512i low01 = _mm512_shuffle_i32x4(v[0], v[1], 0x44), low23 = _mm512_shuffle_i32x4(v[2], v[3], 0x44);
    const __m512i high01 = _mm512_shuffle_i32x4(v[0], v[1], 0xee), high23 = _mm512_shuffle_i32x4(v[2], v[3], 0xee);
    v[0] = _mm512_shuffle_i32x4(low01, low23, 0x88);
    v[1] = _mm512_shuffle_i32x4(low01, low23, 0xdd);
    v[2] = _mm512_shuffle_i32x4(high01, high23, 0x88);
    v[3] = _mm512_shuffle_i32x4(high01, high23, 0xdd);
}

template <class V> ZORCC_INLINE void deinterleave(const uint8_t* p, V (&channel)[4])
{
    __m512i v[4]; // each with its pixels sorted by channel, a block each
    for (int k = 0; k < 4; ++k)
        v[k] = _mm512_permutexvar_epi8(reg(load(quarters<sampleSize<V>>.sort)), reg(load(p + 64 * k)));
    transposeBlocks(v);
    for (int k = 0; k < 4; ++k) channel[k] = (V)v[k];
}

// Stores the bytes of the mask.
template <class V> ZORCC_INLINE void storePixels(uint8_t* p, V a, V b, V c, V d, __mmask64 mask)
{
    __m512i v[4] = {(__m512i)a, (__m512i)b, (__m512i)c, (__m512i)d};
    transposeBlocks(v);
    for (int k = 0; k < 4; ++k)
        _mm512_mask_storeu_epi8(p + 64 * k, mask,
                                _mm512_permutexvar_epi8(reg(load(quarters<sampleSize<V>>.scatter)), v[k]));
}

template <class V> ZORCC_INLINE void interleave(uint8_t* p, const V (&channel)[4])
{
    storePixels(p, channel[0], channel[1], channel[2], channel[3], ~__mmask64{});
}

// The fourth sample of every pixel stays as it is in memory.
template <class V> ZORCC_INLINE void interleaveBesideFourth(uint8_t* p, const V (&channel)[3])
{
    constexpr __mmask64 firstThree = sampleSize<V> == 1   ? 0x7777777777777777u
                                     : sampleSize<V> == 2 ? 0x3f3f3f3f3f3f3f3fu
                                                          : 0x0fff0fff0fff0fffu;
    storePixels(p, channel[0], channel[1], channel[2], V{}, firstThree);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
