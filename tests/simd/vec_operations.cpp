// SPDX-License-Identifier: MIT
#include "lines.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr auto lowZipped = [](int j, auto* a, auto* b) { return j % 2 ? b[j / 2] : a[j / 2]; };
constexpr auto highZipped = [](int j, auto* a, auto* b) {
    const int k = 8 / int{sizeof *a} + j / 2;
    return j % 2 ? b[k] : a[k];
};
constexpr auto firstHalfZipped = [](int j, auto* v) { return v[j / 2 + j % 2 * (8 / int{sizeof *v})]; };
constexpr auto unzipped = [](int j, auto* v) {
    constexpr int n = 8 / int{sizeof *v};
    return v[j < n ? 2 * j : 2 * (j - n) + 1];
};

// Blocks of `lo` and of `hi` in turn, as elements T.
template <class T>
constexpr auto packed = [](int i, const auto& lo, const auto& hi) {
    constexpr int n = std::remove_cvref_t<decltype(lo)>::blockSize;
    const int block = i / (2 * n) * n, j = i % (2 * n);
    return saturated<T>(j < n ? lo[block + j] : hi[block + j - n]);
};

constexpr auto halvesOrdered = [](int i, const auto& v) {
    constexpr int n = std::remove_cvref_t<decltype(v)>::blockSize / 2, blocks = vectorBytes / 16;
    return v[i / n % blocks * 2 * n + i / n / blocks * n + i % n];
};

constexpr auto byOrder = [](auto x, auto y, auto a, auto b, auto c) { return x < y ? a : y < x ? b : c; };

// Wraps as the instruction does where both products are the greatest.
constexpr auto sumOfProducts = [](int i, const auto& a, const auto& b) {
    return static_cast<uint32_t>(a[2 * i] * b[2 * i]) + static_cast<uint32_t>(a[2 * i + 1] * b[2 * i + 1]);
};

constexpr uint8_t places[16] = {3, 1, 4, 0x80, 5, 9, 2, 6, 0xff, 15, 0, 8, 7, 9, 3, 2};
constexpr Block placesBlock = {{3, 1, 4, 0x80, 5, 9, 2, 6, 0xff, 15, 0, 8, 7, 9, 3, 2}};

#define ZIPS(V)                                                                                                        \
    operation<ElementOf<V>, V, V>("zipLow " #V, ZORCC_ON(zipLow), inBlocks(lowZipped)),                                \
        operation<ElementOf<V>, V, V>("zipHigh " #V, ZORCC_ON(zipHigh), inBlocks(highZipped))
#define ARITHMETIC(V)                                                                                                  \
    operation<ElementOf<V>, V, V>("averageUp " #V, ZORCC_ON(averageUp),                                                \
                                  each([](int a, int b) { return (a + b + 1) / 2; })),                                 \
        operation<ElementOf<V>, V, V>("addSaturate " #V, ZORCC_ON(addSaturate),                                        \
                                      each([](auto a, auto b) { return saturated<decltype(a)>(a + b); })),             \
        operation<ElementOf<V>, V, V>("subSaturate " #V, ZORCC_ON(subSaturate),                                        \
                                      each([](auto a, auto b) { return saturated<decltype(a)>(a - b); })),             \
        operation<ElementOf<V>, V, V>("min " #V, ZORCC_ON(min), each([](int a, int b) { return a < b ? a : b; })),     \
        operation<ElementOf<V>, V, V>("max " #V, ZORCC_ON(max), each([](int a, int b) { return a > b ? a : b; })),     \
        operation<ElementOf<V>, V, V, V, V, V>("selectByOrder " #V, ZORCC_ON(selectByOrder), each(byOrder)),           \
        operation<ElementOf<V>, V, V, V>(                                                                              \
            "select " #V, [](V x, V a, V b) { return select((V)(x < a), a, b); },                                      \
            each([](auto x, auto a, auto b) { return x < a ? a : b; })),                                               \
        operation<ElementOf<V>, V>("unzipHalves " #V, ZORCC_ON(unzipHalves), inBlocks(unzipped)),                      \
        operation<ElementOf<V>, V>("orderHalves " #V, ZORCC_ON(orderHalves), halvesOrdered),                           \
        operation<ElementOf<V>>(                                                                                       \
            "even mask " #V, [] { return alternatingMask<V>(false); }, [](int i) { return i % 2 - 1; }),               \
        operation<ElementOf<V>>(                                                                                       \
            "odd mask " #V, [] { return alternatingMask<V>(true); }, [](int i) { return -(i % 2); })

constexpr Operation operations[] = {
    ARITHMETIC(u8v),
    ARITHMETIC(u16v),
    ZIPS(u8v),
    ZIPS(s16v),
    ZIPS(u32v),
    ZIPS(u64v),
    operation<uint8_t, u8v>(
        "load", [](u8v v) { return v; }, each([](int a) { return a; })),
    memory<uint8_t, uint8_t, vectorBytes, vectorBytes>(
        "storeNonTemporal",
        [](const uint8_t* in, uint8_t* out) {
            storeNonTemporal(out, load(in));
            fenceStores();
        },
        [](int i, const uint8_t* in) { return in[i]; }),
    memory<uint8_t, int8_t, 1, vectorBytes>(
        "fill8", [](const uint8_t* in, uint8_t* out) { store(out, fill8(*in)); },
        [](int, const int8_t* in) { return *in; }),
    memory<int16_t, int16_t, 2, vectorBytes>(
        "fill16", [](const uint8_t* in, uint8_t* out) { store(out, fill16(load<int16_t>(in))); },
        [](int, const int16_t* in) { return *in; }),
    memory<int32_t, int32_t, 4, vectorBytes>(
        "fill32", [](const uint8_t* in, uint8_t* out) { store(out, fill32(load<int32_t>(in))); },
        [](int, const int32_t* in) { return *in; }),
    memory<int8_t, int8_t, 2, vectorBytes>(
        "fillPair8",
        [](const uint8_t* in, uint8_t* out) { store(out, fillPair8(load<int8_t>(in), load<int8_t>(in + 1))); },
        [](int i, const int8_t* in) { return in[i % 2]; }),
    memory<int16_t, int16_t, 4, vectorBytes>(
        "fillPair16",
        [](const uint8_t* in, uint8_t* out) { store(out, fillPair16(load<int16_t>(in), load<int16_t>(in + 2))); },
        [](int i, const int16_t* in) { return in[i % 2]; }),
    operation<uint8_t>(
        "fillBlock", [] { return fillBlock(placesBlock); }, [](int i) { return places[i % 16]; }),
    operation<int16_t, u8v, s8v>("mulAddPairs u8v", ZORCC_ON(mulAddPairs),
                                 [](int i, const auto& a, const auto& b) {
                                     return saturated<int16_t>(a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1]);
                                 }),
    operation<int32_t, s16v, s16v>("mulAddPairs s16v", ZORCC_ON(mulAddPairs), sumOfProducts),
    operation<int32_t, u32v, s16v, s16v>(
        "mulAddPairs with a sum", [](u32v sum, s16v a, s16v b) { return mulAddPairs((s32v)(sum >> 2), a, b); },
        [](int i, const auto& sum, const auto& a, const auto& b) { return (sum[i] >> 2) + sumOfProducts(i, a, b); }),
    operation<int16_t, s16v, s16v>("mulHigh s16v", ZORCC_ON(mulHigh), each([](int a, int b) { return a * b >> 16; })),
    operation<uint16_t, u16v, u16v>("mulHigh u16v", ZORCC_ON(mulHigh),
                                    each([](uint32_t a, uint32_t b) { return a * b >> 16; })),
    operation<uint8_t, u8v, u8v>("averageDown", ZORCC_ON(averageDown), each([](int a, int b) { return (a + b) / 2; })),
    operation<uint8_t, u8v>(
        "clamp", [](u8v v) { return clamp(v, 16, 235); }, each([](int a) { return a < 16    ? 16
                                                                                  : a > 235 ? 235
                                                                                            : a; })),
    operation<uint8_t, s16v, s16v>("packUnsigned", ZORCC_ON(packUnsigned), packed<uint8_t>),
    operation<int8_t, s16v, s16v>("packSigned s16v", ZORCC_ON(packSigned), packed<int8_t>),
    operation<int16_t, s32v, s32v>("packSigned s32v", ZORCC_ON(packSigned), packed<int16_t>),
    operation<int16_t, u8v>("firstOfPairs", ZORCC_ON(firstOfPairs), [](int i, const auto& v) { return v[2 * i]; }),
    operation<int16_t, u8v>("secondOfPairs", ZORCC_ON(secondOfPairs),
                            [](int i, const auto& v) { return v[2 * i + 1]; }),
    operation<uint8_t, u8v, u8v>("shuffle", ZORCC_ON(shuffle), inBlocks([](int j, auto* v, auto* index) {
                                     return index[j] & 0x80 ? 0 : v[index[j] & 15];
                                 })),
    operation<uint8_t, u8v>(
        "shuffle by a block", [](u8v v) { return shuffle(v, placesBlock); },
        inBlocks([](int j, auto* v) { return places[j] & 0x80 ? 0 : v[places[j]]; })),
    operation<uint8_t, u8v>("zipHalves", ZORCC_ON(zipHalves), inBlocks(firstHalfZipped)),
    operation<int16_t, s16v, u16v, u16v>("addOneWhere s16v", ZORCC_ON(addOneWhere),
                                         each([](int v, int a, int b) { return v + (a > b); })),
    operation<uint8_t, u8v, s8v, s8v>("addOneWhere u8v", ZORCC_ON(addOneWhere),
                                      each([](int v, int a, int b) { return v + (a > b); })),
};

} // namespace

const test::Operations vecOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
