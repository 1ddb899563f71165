// SPDX-License-Identifier: MIT
#include "simd/order.h"

#include "lines.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Element i of every second one of the sequence a, b; of a0 b0 a1 b1 ...
template <int odd>
constexpr auto second = [](int i, const auto& a, const auto& b) {
    constexpr int n = sizeof a / sizeof a[0];
    const int from = 2 * i + odd;
    return from < n ? a[from] : b[from - n];
};
template <int half>
constexpr auto zipped = [](int i, const auto& a, const auto& b) {
    constexpr int n = sizeof a / sizeof a[0];
    const int k = half * n / 2 + i / 2;
    return i % 2 ? b[k] : a[k];
};

constexpr auto inQuarters = [](int i, const auto& v) {
    constexpr int blocks = vectorBytes / 16;
    return v[i / 4 % blocks * 16 + i / 4 / blocks * 4 + i % 4];
};

template <class V>
constexpr auto transposed = [](const uint8_t* in, uint8_t* out) {
    constexpr int count = vectorBytes / sizeof(ElementOf<V>);
    V row[count];
    for (int i = 0; i < count; ++i) row[i] = load<V>(in + i * vectorBytes);
    transpose(row);
    for (int i = 0; i < count; ++i) store(out + i * vectorBytes, row[i]);
};

#define ZIPPED_HALVES(V)                                                                                               \
    operation<ElementOf<V>, V, V>("zipHalf<0> " #V, ZORCC_ON(zipHalf<0>), zipped<0>),                                  \
        operation<ElementOf<V>, V, V>("zipHalf<1> " #V, ZORCC_ON(zipHalf<1>), zipped<1>)
#define UNZIPPED(V)                                                                                                    \
    operation<ElementOf<V>, V, V>("everySecond<0> " #V, ZORCC_ON(everySecond<0>), second<0>),                          \
        operation<ElementOf<V>, V, V>("everySecond<1> " #V, ZORCC_ON(everySecond<1>), second<1>),                      \
        operation<ElementOf<V>, V, V>(                                                                                 \
            "unzip, even " #V, [](V a, V b) { return unzip(a, b).even; }, second<0>),                                  \
        operation<ElementOf<V>, V, V>(                                                                                 \
            "unzip, odd " #V, [](V a, V b) { return unzip(a, b).odd; }, second<1>)
#define TRANSPOSED(V)                                                                                                  \
    memory<ElementOf<V>, ElementOf<V>, vectorBytes* int{sizeof(Elements<V>) / sizeof(ElementOf<V>)},                   \
           vectorBytes* int{sizeof(Elements<V>) / sizeof(ElementOf<V>)}>(                                              \
        "transpose " #V, transposed<V>, [](int i, const ElementOf<V>* in) {                                            \
            constexpr int n = vectorBytes / sizeof(ElementOf<V>);                                                      \
            return in[i % n * n + i / n];                                                                              \
        })

constexpr Operation operations[] = {
    operation<uint8_t, u8v>("orderQuarters", ZORCC_ON(orderQuarters), inQuarters),
    ZIPPED_HALVES(u8v),
    ZIPPED_HALVES(u16v),
    ZIPPED_HALVES(u32v),
    ZIPPED_HALVES(u64v),
    UNZIPPED(u8v),
    UNZIPPED(u16v),
    TRANSPOSED(u32v),
    TRANSPOSED(u16v),
    TRANSPOSED(u8v),
};

} // namespace

const test::Operations orderOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
