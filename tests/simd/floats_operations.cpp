// SPDX-License-Identifier: MIT
// Single precision, and its neighbours: samples to 32 bits and back, and tables by an index.
#include "simd/floats.h"

#include "lines.h"
#include "simd/lookup.h"
#include "simd/samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr float beyond = 2147483648.0f;
constexpr int none = -2147483647 - 1;

// What is no number, or infinite, becomes 0.
constexpr auto finite = [](auto v) { return v - v == 0 ? v : decltype(v){}; };
// Between 2^-31 and 2^32, or 2^-31 and 2^32 less: the quotients have all digits.
ZORCC_INLINE u32v moderate(u32v bits) { return (bits & 0x9fffffff) + 0x30000000; }

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

template <class T>
constexpr auto integers =
    [](const uint8_t* in, uint8_t* out) { store(out, loadIntegers(reinterpret_cast<const T*>(in))); };
template <class T>
constexpr auto samples =
    [](const uint8_t* in, uint8_t* out) { storeIntegers(reinterpret_cast<T*>(out), load<s32v>(in)); };

constexpr Table<uint8_t> bytes = {{7, 250, 0, 31, 128, 99, 255, 64}};
constexpr Table<float> floats = {{0, 120, -120, 240, -360, 0.5f, 1.5f, -3}};

#define SAMPLES(T)                                                                                                     \
    memory<T, int32_t, vectorBytes, lanes* int{sizeof(T)}>(                                                            \
        "storeIntegers " #T, samples<T>, [](int i, const int32_t* in) { return saturated<T>(in[i]); })
#define INTEGERS(T)                                                                                                    \
    memory<int32_t, T, lanes* int{sizeof(T)}, vectorBytes>("loadIntegers " #T, integers<T>,                            \
                                                           [](int i, const T* in) { return in[i]; })
#define QUOTIENTS(d)                                                                                                   \
    operation<float, f32v>(                                                                                            \
        "divideBy " #d, [](f32v v) { return divideBy<d>(v - v == 0 ? v : f32v{}); },                                   \
        each([](float v) { return finite(v) / d; })),                                                                  \
        operation<float, u32v>(                                                                                        \
            "divideBy " #d ", all digits", [](u32v v) { return divideBy<d>((f32v)moderate(v)); },                      \
            each([](uint32_t v) { return __builtin_bit_cast(float, (v & 0x9fffffff) + 0x30000000) / d; }))
#define COUNTS(sign)                                                                                                   \
    operation<uint32_t, u32v, f32v, f32v, f32v, f32v>(                                                                 \
        "addWhereBothWithin<" #sign ">",                                                                               \
        [](u32v n, f32v a, f32v x, f32v b, f32v y) { return addWhereBothWithin<sign>((s32v)n, a, x, b, y); },          \
        each([](uint32_t n, float a, float x, float b, float y) { return a <= x && b <= y ? n + sign : n; }))

constexpr Operation operations[] = {
    memory<float, float, 4, vectorBytes>(
        "fillFloat", [](const uint8_t* in, uint8_t* out) { store(out, fillFloat(load<float>(in))); },
        [](int, const float* in) { return *in; }),
    operation<float, s32v>("toFloat", ZORCC_ON(toFloat), each([](int v) { return static_cast<float>(v); })),
    operation<int32_t, f32v>("truncate", ZORCC_ON(truncate),
                             each([](float v) { return v >= -beyond && v < beyond ? static_cast<int>(v) : none; })),
    operation<int32_t, f32v>("roundToEven", ZORCC_ON(roundToEven), each([](float v) {
                                 return v >= -beyond && v < beyond ? static_cast<int>(__builtin_nearbyintf(v)) : none;
                             })),
    operation<float, f32v, f32v>("min", ZORCC_ON(min), each([](float a, float b) { return a < b ? a : b; })),
    operation<float, f32v, f32v>("max", ZORCC_ON(max), each([](float a, float b) { return a > b ? a : b; })),
    operation<float, f32v>(
        "abs", [](f32v v) { return abs(v); }, each([](float v) { return __builtin_fabsf(v); })),
    operation<float, s32v, f32v, f32v>(
        "select f32v", [](s32v x, f32v a, f32v b) { return select(x < 0, a, b); },
        each([](int x, float a, float b) { return x < 0 ? a : b; })),
    operation<int32_t, s32v, s32v, s32v>(
        "select s32v", [](s32v x, s32v a, s32v b) { return select(x < 0, a, b); },
        each([](int x, int a, int b) { return x < 0 ? a : b; })),
    COUNTS(1),
    COUNTS(-1),
    QUOTIENTS(60),
    QUOTIENTS(360),
    operation<float, f32v, f32v>("leftOf", ZORCC_ON(leftOf), left),
    operation<float, f32v, f32v>("rightOf", ZORCC_ON(rightOf), right),
    operation<int32_t, u8v>("widen u8v", ZORCC_ON(widen), widened),
    operation<int32_t, u16v>("widen u16v", ZORCC_ON(widen), widened),
    operation<int32_t, s16v>("widen s16v", ZORCC_ON(widen), widened),
    operation<uint8_t, s32v, s32v, s32v, s32v>(
        "narrow u8v",
        [](s32v a, s32v b, s32v c, s32v d) {
            return narrow<uint8_t>({{a, b, c, d}});
        },
        narrowed<uint8_t>),
    operation<int16_t, s32v, s32v>(
        "narrow s16v",
        [](s32v a, s32v b) {
            return narrow<int16_t>({{a, b}});
        },
        narrowed<int16_t>),
    operation<uint16_t, s32v, s32v>(
        "narrow u16v",
        [](s32v a, s32v b) {
            return narrow<uint16_t>({{a, b}});
        },
        narrowed<uint16_t>),
    INTEGERS(uint8_t),
    INTEGERS(uint16_t),
    SAMPLES(uint8_t),
    SAMPLES(uint16_t),
    SAMPLES(int16_t),
    operation<uint8_t, u8v>(
        "lookUp bytes", [](u8v i) { return lookUp(bytes, (u8v)(i & 7)); }, each([](int i) { return bytes.of[i & 7]; })),
    operation<uint16_t, u16v>(
        "lookUp bytes in words", [](u16v i) { return lookUp(bytes, (u16v)(i & 7)); },
        each([](int i) { return 257 * bytes.of[i & 7]; })),
    operation<float, s32v>(
        "lookUp floats", [](s32v i) { return lookUp(floats, (s32v)(i & 7)); },
        each([](int i) { return floats.of[i & 7]; })),
    operation<float, u8v>(
        "lookUp floats by bytes", [](u8v i) { return lookUp(floats, (u8v)(i & 7)); },
        [](int i, const auto& v) { return floats.of[widened(i, v) & 7]; }),
    operation<float, u16v>(
        "lookUp floats by words", [](u16v i) { return lookUp(floats, (u16v)(i & 7)); },
        [](int i, const auto& v) { return floats.of[widened(i, v) & 7]; }),
};

} // namespace

const test::Operations floatsOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
