// SPDX-License-Identifier: MIT
// Arithmetic, order of values, and elements of other sizes.
#include "lines.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Blocks of `lo` and of `hi` in turn, as elements T.
template <class T>
constexpr auto packed = [](int i, const auto& lo, const auto& hi) {
    constexpr int n = std::remove_cvref_t<decltype(lo)>::blockSize;
    const int block = i / (2 * n) * n, j = i % (2 * n);
    return saturated<T>(j < n ? lo[block + j] : hi[block + j - n]);
};

constexpr auto byOrder = each([](auto x, auto y, auto a, auto b, auto c) { return x < y ? a : y < x ? b : c; });
constexpr auto oneMore = each([](int v, int a, int b) { return v + (a > b); });

constexpr auto sumOfPair = [](int i, const auto& a, const auto& b) {
    return saturated<int16_t>(a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1]);
};
// Wraps as the instruction does where both products are the greatest.
constexpr auto sumOfProducts = [](int i, const auto& a, const auto& b) {
    return static_cast<uint32_t>(a[2 * i] * b[2 * i]) + static_cast<uint32_t>(a[2 * i + 1] * b[2 * i + 1]);
};

constexpr Block places = {{3, 1, 4, 0x80, 5, 9, 2, 6, 0xff, 15, 0, 8, 7, 9, 3, 2}};
// The byte of the block that an index stands for.
constexpr auto shuffled = [](int i, const auto& v, int index) {
    return index & 0x80 ? 0 : v[i / 16 * 16 + index % 16];
};

#define ARITHMETIC(V)                                                                                                  \
    ZORCC_OPERATION(averageUp, each([](int a, int b) { return (a + b + 1) / 2; }), V, V),                              \
        ZORCC_OPERATION(addSaturate, each([](auto a, auto b) { return saturated<decltype(a)>(a + b); }), V, V),        \
        ZORCC_OPERATION(subSaturate, each([](auto a, auto b) { return saturated<decltype(a)>(a - b); }), V, V),        \
        ZORCC_OPERATION(min, each([](int a, int b) { return a < b ? a : b; }), V, V),                                  \
        ZORCC_OPERATION(max, each([](int a, int b) { return a > b ? a : b; }), V, V),                                  \
        ZORCC_OPERATION(selectByOrder, byOrder, V, V, V, V, V),                                                        \
        operation<V, V, V>(                                                                                            \
            "select " #V, [](V x, V a, V b) { return select((V)(x < a), a, b); },                                      \
            each([](auto x, auto a, auto b) { return x < a ? a : b; })),                                               \
        operation<>(                                                                                                   \
            "even mask " #V, [] { return alternatingMask<V>(false); }, [](int i) { return i % 2 - 1; }),               \
        operation<>(                                                                                                   \
            "odd mask " #V, [] { return alternatingMask<V>(true); }, [](int i) { return -(i % 2); })

#define SHIFT(count)                                                                                                   \
    operation<u8v>(                                                                                                    \
        "shiftBytes " #count, [](u8v v) { return shiftBytes<count>(v); },                                              \
        each([](int a) { return a * 256 >> ((count) + 8); }))

constexpr Operation operations[] = {
    ZORCC_OF_TWO(ARITHMETIC, u8v, u16v),
    ZORCC_OPERATION(subSaturate, each([](int a, int b) { return saturated<int8_t>(a - b); }), s8v, s8v),
    ZORCC_OPERATION(mulAddPairs, sumOfPair, u8v, s8v),
    ZORCC_OPERATION(mulAddPairs, sumOfProducts, s16v, s16v),
    operation<u32v, s16v, s16v>(
        "mulAddPairs with a sum", [](u32v sum, s16v a, s16v b) { return mulAddPairs((s32v)(sum >> 2), a, b); },
        [](int i, const auto& sum, const auto& a, const auto& b) { return (sum[i] >> 2) + sumOfProducts(i, a, b); }),
    ZORCC_OPERATION(mulHigh, each([](int a, int b) { return a * b >> 16; }), s16v, s16v),
    ZORCC_OPERATION(mulHigh, each([](uint32_t a, uint32_t b) { return a * b >> 16; }), u16v, u16v),
    ZORCC_OPERATION(averageDown, each([](int a, int b) { return (a + b) / 2; }), u8v, u8v),
    operation<u8v>(
        "clamp", [](u8v v) { return clamp(v, 16, 235); }, each([](int a) { return a < 16    ? 16
                                                                                  : a > 235 ? 235
                                                                                            : a; })),
    ZORCC_OPERATION(packUnsigned, packed<uint8_t>, s16v, s16v),
    ZORCC_OPERATION(packSigned, packed<int8_t>, s16v, s16v),
    ZORCC_OPERATION(packSigned, packed<int16_t>, s32v, s32v),
    ZORCC_OPERATION(
        firstOfPairs, [](int i, const auto& v) { return v[2 * i]; }, u8v),
    ZORCC_OPERATION(
        secondOfPairs, [](int i, const auto& v) { return v[2 * i + 1]; }, u8v),
    ZORCC_OF_FOUR(SHIFT, 3, 0, 8, -5),
    ZORCC_OPERATION(shuffle, ([](int i, const auto& v, const auto& index) { return shuffled(i, v, index[i]); }), u8v,
                    u8v),
    operation<u8v>(
        "shuffle by a block", [](u8v v) { return shuffle(v, places); },
        [](int i, const auto& v) { return shuffled(i, v, places.byte[i % 16]); }),
    operation<>(
        "fillBlock", [] { return fillBlock(places); }, [](int i) { return places.byte[i % 16]; }),
    ZORCC_OPERATION(addOneWhere, oneMore, s16v, u16v, u16v),
    ZORCC_OPERATION(addOneWhere, oneMore, u8v, s8v, s8v),
};

} // namespace

const test::Operations vecOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
