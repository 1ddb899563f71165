// SPDX-License-Identifier: MIT
// Floating point, and its neighbours: samples to 32 bits and back, and tables by an index.
#include "simd/floats.h"

#include "colormodels/common/power.h"
#include "demosaic/demosaicahd_lab.h"
#include "lines.h"
#include "simd/cube_root.h"
#include "simd/curve_table.h"
#include "simd/doubles.h"
#include "simd/lookup.h"
#include "simd/samples.h"
#include "simd/word_pairs.h"

namespace zorcc::ZORCC_TIER {
namespace {

// What no integer holds becomes the least one.
constexpr int integer(float v) { return v >= -0x1p31f && v < 0x1p31f ? static_cast<int>(v) : -2147483647 - 1; }

// What is no number, or infinite, becomes 0.
constexpr auto finite = [](auto v) { return v - v == 0 ? v : decltype(v){}; };
// Bits of floats between 2^-31 and 2^32, or 2^-31 and 2^32 less: the quotients have all digits.
constexpr auto moderate = [](auto bits) { return (bits & 0x9fffffff) + 0x30000000; };

constexpr auto left = [](int i, const auto& previous, const auto& here) {
    return i > 0 ? here[i - 1] : previous[lanes - 1];
};
constexpr auto right = [](int i, const auto& here, const auto& next) { return i + 1 < lanes ? here[i + 1] : next[0]; };

// Part i / lanes, per block four elements of it.
constexpr auto widened = [](int i, const auto& v) {
    constexpr int n = std::remove_cvref_t<decltype(v)>::blockSize;
    return v[i % lanes / 4 * n + i / lanes * 4 + i % 4];
};
template <class T>
constexpr auto narrowed = [](int i, const auto&... parts) {
    constexpr int n = 16 / sizeof(T);
    const int32_t* const part[] = {parts.e...};
    return saturated<T>(part[i % n / 4][i / n * 4 + i % 4]);
};
template <class T> ZORCC_INLINE Vec<T> narrowTo(auto... part) { return narrow<T>({{part...}}); }

constexpr Table<uint8_t> bytes = {{7, 250, 0, 31, 128, 99, 255, 64}};
constexpr Table<float> floats = {{0, 120, -120, 240, -360, 0.5f, 1.5f, -3}};
struct AllBytes {
    uint8_t of[256];
};
constexpr AllBytes allBytes = [] { // each once, in no simple order
    AllBytes all{};
    for (int i = 0; i < 256; ++i) all.of[i] = static_cast<uint8_t>(i * (i + 1) / 2);
    return all;
}();

// A curve whose first blocks no line fits, and bytes that none does.
constexpr AllBytes smoothBytes = [] {
    AllBytes curve{};
    for (int i = 0, root = 0; i < 256; ++i) {
        while ((root + 1) * (root + 1) <= 255 * i) ++root;
        curve.of[i] = static_cast<uint8_t>(root);
    }
    return curve;
}();
constexpr CurveTable smooth(smoothBytes.of), rough(allBytes.of);
ZORCC_INLINE u8v lookUpCurves(u8v index) { return lookUp(smooth, index) ^ (lookUp(rough, index) << 1); }
constexpr auto curvesOf = each([](int i) { return smoothBytes.of[i] ^ allBytes.of[i] << 1; });

// Digits that single precision has not.
ZORCC_INLINE f32v plusThird(f32v v)
{
    Doubles<2> d = toDoubles(finite(v));
    d = d / 3 + d;
    return toFloat(d);
}
constexpr auto plusThirdOf =
    each([](float v) { return static_cast<float>(finite(double{v}) / 3 + finite(double{v})); });

template <auto& table, class V> ZORCC_INLINE auto lookUpIn(V index) { return lookUp(table, (V)(index & 7)); }
constexpr auto floatOf = [](int i, const auto& v) { return floats.of[widened(i, v) & 7]; };

#define WIDENED(V) ZORCC_OPERATION(widen, widened, V)
#define SAMPLES(T)                                                                                                     \
    memory<T, int32_t, vectorBytes, lanes* int{sizeof(T)}>(                                                            \
        "storeIntegers " #T, [](auto* in, auto* out) { storeIntegers(reinterpret_cast<T*>(out), load<s32v>(in)); },    \
        [](int i, const int32_t* in) { return saturated<T>(in[i]); })
#define INTEGERS(T)                                                                                                    \
    memory<int32_t, T, lanes* int{sizeof(T)}, vectorBytes>(                                                            \
        "loadIntegers " #T, [](auto* in, auto* out) { store(out, loadIntegers(reinterpret_cast<const T*>(in))); },     \
        [](int i, const T* in) { return in[i]; })
// A sum of every pixel in its place.
#define WORD_PAIRS(bytes)                                                                                              \
    memory<uint8_t, uint8_t, bytes * vectorBytes, vectorBytes>(                                                        \
        "word pairs of " #bytes,                                                                                       \
        [](auto* in, auto* out) {                                                                                      \
            const WordPairs pairs = loadWordPairs<bytes>(in);                                                          \
            Widened<4> sum;                                                                                            \
            for (int p = 0; p < 4; ++p)                                                                                \
                sum.part[p] =                                                                                          \
                    mulAddPairs(pairs.first[p], fillPair16(1, 2)) + mulAddPairs(pairs.second[p], fillPair16(-3, 100)); \
            store(out, narrowPixels(sum));                                                                             \
        },                                                                                                             \
        [](int i, const uint8_t* in) {                                                                                 \
            const uint8_t* const c = in + bytes * i;                                                                   \
            return saturated<uint8_t>(c[0] + 2 * c[1] - 3 * c[2] + 100);                                               \
        })
#define SELECTED(V)                                                                                                    \
    operation<s32v, V, V>(                                                                                             \
        "select " #V, [](s32v x, V a, V b) { return select(x < 0, a, b); },                                            \
        each([](int x, auto a, auto b) { return x < 0 ? a : b; }))
#define QUOTIENTS(d)                                                                                                   \
    operation<f32v>(                                                                                                   \
        "divideBy " #d, [](f32v v) { return divideBy<d>(finite(v)); }, each([](float v) { return finite(v) / d; })),   \
        operation<u32v>(                                                                                               \
            "divideBy " #d ", all digits", [](u32v v) { return divideBy<d>((f32v)moderate(v)); },                      \
            each([](uint32_t v) { return __builtin_bit_cast(float, moderate(v)) / d; }))
#define MODERATE_QUOTIENTS(d)                                                                                          \
    operation<u32v>(                                                                                                   \
        "divideModerate by " #d, [](u32v v) { return divideModerate((f32v)moderate(v), Divisor(d)); },                 \
        each([](uint32_t v) { return __builtin_bit_cast(float, moderate(v)) / float{d}; }))
#define COUNTS(sign)                                                                                                   \
    ZORCC_OPERATION(addWhereBothWithin<sign>, each([](uint32_t n, float a, float x, float b, float y) {                \
                        return a <= x && b <= y ? n + sign : n;                                                        \
                    }),                                                                                                \
                    s32v, f32v, f32v, f32v, f32v)

constexpr Operation operations[] = {
    ZORCC_OPERATION(toFloat, each([](int v) { return static_cast<float>(v); }), s32v),
    ZORCC_OPERATION(truncate, each([](float v) { return integer(v); }), f32v),
    ZORCC_OPERATION(roundToEven, each([](float v) { return integer(__builtin_nearbyintf(v)); }), f32v),
    ZORCC_OPERATION(min, each([](float a, float b) { return a < b ? a : b; }), f32v, f32v),
    ZORCC_OPERATION(max, each([](float a, float b) { return a > b ? a : b; }), f32v, f32v),
    ZORCC_OPERATION(abs, each([](float v) { return __builtin_fabsf(v); }), f32v),
    ZORCC_OF_TWO(SELECTED, f32v, s32v),
    ZORCC_OF_TWO(COUNTS, 1, -1),
    ZORCC_OF_THREE(QUOTIENTS, 3, 60, 360),
    ZORCC_OF_FOUR(MODERATE_QUOTIENTS, 3, 255, 185.12712f, 250.13359f),
    operation<s32v, u32v>(
        "divideByEither",
        [](s32v x, u32v v) { return divideByEither(x < 0, (f32v)moderate(v), Divisor(116), Divisor(903.3f)); },
        each([](int x, uint32_t v) { return __builtin_bit_cast(float, moderate(v)) / (x < 0 ? 116 : 903.3f); })),
    operation<f32v>(
        "cubeRoot", [](f32v v) { return cubeRoot(finite(v)); },
        each([](float v) { return zorcc::cubeRoot(finite(v)); })),
    ZORCC_OPERATION(leftOf, left, f32v, f32v),
    ZORCC_OPERATION(rightOf, right, f32v, f32v),
    ZORCC_OF_FOUR(WIDENED, u8v, s8v, u16v, s16v),
    ZORCC_OPERATION(narrowTo<uint8_t>, narrowed<uint8_t>, s32v, s32v, s32v, s32v),
    ZORCC_OPERATION(narrowTo<int8_t>, narrowed<int8_t>, s32v, s32v, s32v, s32v),
    ZORCC_OPERATION(narrowTo<int16_t>, narrowed<int16_t>, s32v, s32v),
    ZORCC_OPERATION(narrowTo<uint16_t>, narrowed<uint16_t>, s32v, s32v),
    ZORCC_OF_TWO(INTEGERS, uint8_t, uint16_t),
    ZORCC_OF_TWO(WORD_PAIRS, 3, 4),
    ZORCC_OF_THREE(SAMPLES, uint8_t, uint16_t, int16_t),
    ZORCC_OPERATION(plusThird, plusThirdOf, f32v),
    ZORCC_OPERATION(lookUpCurves, curvesOf, u8v),
    ZORCC_OPERATION(lookUpIn<bytes>, each([](int i) { return bytes.of[i & 7]; }), u8v),
    ZORCC_OPERATION(lookUpIn<bytes>, each([](int i) { return 257 * bytes.of[i & 7]; }), u16v),
    ZORCC_OPERATION(lookUpIn<floats>, each([](int i) { return floats.of[i & 7]; }), s32v),
    ZORCC_OPERATION(lookUpIn<floats>, floatOf, u8v),
    ZORCC_OPERATION(lookUpIn<floats>, floatOf, u16v),
};

} // namespace

const test::Operations floatsOperations = table(operations);
// Of doubles; the elements are powers of numbers, not of vectors.
const test::Operation powers = operation<f64v>(
    "power", [](f64v v) { return power(Lockstep<double, 1>{{v}}, 2.2).v[0]; },
    each([](double v) { return power(v, 2.2); }));
const test::Operation labCurves =
    ZORCC_OPERATION(labCurve, each([](float v) { return integer(v); }), f32v); // compared in a test of its own

} // namespace zorcc::ZORCC_TIER
