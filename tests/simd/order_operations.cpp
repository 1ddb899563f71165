// SPDX-License-Identifier: MIT
// Elements that change places: from one value to all lanes, within blocks and across them, and from channels to pixels
// and back.
#include "simd/order.h"

#include "lines.h"
#include "simd/bit_fields.h"
#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int bytes = vectorBytes, half = bytes / 2;
template <class V> constexpr int lanesOf = bytes / sizeof(ElementOf<V>);
template <class V> constexpr int blockOf = 16 / sizeof(ElementOf<V>);

// Vectors that follow each other in memory, or those that a function fills.
template <class V, int count> struct Vectors {
    V of[count];

    Vectors() = default;
    explicit Vectors(auto fill) { fill(of); }
};

template <class V> Vectors<V, lanesOf<V>> transposed(Vectors<V, lanesOf<V>> rows)
{
    transpose(rows.of);
    return rows;
}

// ---- places: element i of the result is element place(i) of the vectors or the memory that it is made from ----------

constexpr auto same = [](int i) { return i; };
constexpr auto first = [](int) { return 0; };
constexpr auto ofBlock = [](int i) { return i % 16; };
constexpr auto afterTheLast = [](int i) { return i == 0 ? lanesOf<s16v> : i - 1; };
constexpr auto ofPair = [](int i) { return i % 2; };
template <int odd> constexpr auto second = [](int i) { return 2 * i + odd; };

// The first half (0) or the second (1) of a0 b0 a1 b1 ..., where a and b are `length` elements of a vector each.
template <class V, int which, int length>
constexpr auto zipped =
    [](int i) { return i % 2 * lanesOf<V> + i / length * length + which * length / 2 + i % length / 2; };

// The halves of each block zipped, or unzipped.
template <class V>
constexpr auto halvesZipped = [](int i) {
    const int j = i % blockOf<V>;
    return i - j + j / 2 + j % 2 * blockOf<V> / 2;
};
template <class V>
constexpr auto halvesUnzipped = [](int i) {
    const int j = i % blockOf<V>;
    return i - j + 2 * j % blockOf<V> + 2 * j / blockOf<V>;
};

// The first pieces of all blocks, then the second ones, and so on.
template <class V, int piecesOfBlock>
constexpr auto inPieces = [](int i) {
    constexpr int length = blockOf<V> / piecesOfBlock, blocks = bytes / 16;
    return i / length % blocks * blockOf<V> + i / length / blocks * length + i % length;
};

// Block b of vector k is block 2b + k of memory.
constexpr auto inMemory = [](int i) { return (i % bytes / 16 * 2 + i / bytes) * 16 + i % 16; };
constexpr auto inBlocks = [](int i) { return i / 16 % 2 * bytes + i / 32 * 16 + i % 16; };
constexpr auto fromHalves = [](int i) { return i % 16 / 8 * half + i / 16 * 8 + i % 8; };
constexpr auto toHalves = [](int i) { return i % half / 8 * 16 + i / half * 8 + i % 8; };
constexpr auto toEvenQuarters = [](int i) { return toHalves(2 * i); };
constexpr auto fromDoubledQuarters = [](int i) { return i % 16 / 8 * half / 2 + i / 16 * 4 + i % 8 / 2; };

// Channels, of which each takes a vector, from pixels, and pixels from channels.
template <class V, int channels>
constexpr auto deinterleaved = [](int i) { return i % lanesOf<V> * channels + i / lanesOf<V>; };
template <class V, int channels>
constexpr auto interleaved = [](int i) { return i % channels * lanesOf<V> + i / channels; };
template <class V> constexpr auto fromEvenThenOdd = [](int i) { return i % 3 * lanesOf<V> + halvesZipped<V>(i / 3); };
template <class V> constexpr auto fromColumns = [](int i) { return (i / 3 % 2 * 3 + i % 3) * lanesOf<V> + i / 6; };
// The fourth channel is that of four vectors which follow the others.
template <class V>
constexpr auto besideFourth = [](int i) { return i % 4 == 3 ? 3 * lanesOf<V> + i : interleaved<V, 4>(i); };

// ---- lines ----------------------------------------------------------------------------------------------------------

// What a statement does from memory `in` to memory `out`; a function of one vector, of two, or of channels.
#define MOVES(V, inBytes, outBytes, place, ...)                                                                        \
    memory<ElementOf<V>, ElementOf<V>, inBytes, outBytes>(                                                             \
        #__VA_ARGS__, [](const uint8_t* in, uint8_t* out) { __VA_ARGS__; },                                            \
        [](int i, const ElementOf<V>* elements) { return elements[place(i)]; })
#define OF_ONE(V, place, function) MOVES(V, bytes, bytes, place, store(out, function(load<V>(in))))
#define OF_TWO(V, place, function)                                                                                     \
    MOVES(V, 2 * bytes, bytes, place, store(out, function(load<V>(in), load<V>(in + bytes))))
#define CHANNELS(V, n, place, ...) MOVES(V, (n)*bytes, (n)*bytes, place, __VA_ARGS__)

#define ZIPS(V) OF_TWO(V, (zipped<V, 0, blockOf<V>>), zipLow), OF_TWO(V, (zipped<V, 1, blockOf<V>>), zipHigh)
#define ZIPPED_HALVES(V)                                                                                               \
    OF_TWO(V, (zipped<V, 0, lanesOf<V>>), zipHalf<0>), OF_TWO(V, (zipped<V, 1, lanesOf<V>>), zipHalf<1>)
#define HALVES_AND_SECONDS(V)                                                                                          \
    OF_ONE(V, halvesUnzipped<V>, unzipHalves), OF_ONE(V, (inPieces<V, 2>), orderHalves),                               \
        OF_TWO(V, second<0>, everySecond<0>), OF_TWO(V, second<1>, everySecond<1>),                                    \
        CHANNELS(V, 2, (deinterleaved<V, 2>), store(out, unzip(load<V>(in), load<V>(in + bytes))))
#define TRANSPOSED(V)                                                                                                  \
    CHANNELS(V, lanesOf<V>, (interleaved<V, lanesOf<V>>), store(out, transposed<V>(load<Vectors<V, lanesOf<V>>>(in))))
#define FROM_PIXELS(V, n)                                                                                              \
    CHANNELS(V, n, (deinterleaved<V, n>), store(out, Vectors<V, n>([=](auto& v) { deinterleave(in, v); })))
#define TO_PIXELS(V, columns, place)                                                                                   \
    CHANNELS(V, 3, place, interleave<Columns::columns>(out, load<Vectors<V, 3>>(in).of))
#define THREE(V) FROM_PIXELS(V, 3), TO_PIXELS(V, inOrder, (interleaved<V, 3>))
#define FOUR(V)                                                                                                        \
    FROM_PIXELS(V, 4), CHANNELS(V, 4, (interleaved<V, 4>), interleave(out, load<Vectors<V, 4>>(in).of)),               \
        MOVES(V, 7 * bytes, 4 * bytes, besideFourth<V>, store(out, load<Vectors<V, 4>>(in + 3 * bytes));               \
              interleaveBesideFourth(out, load<Vectors<V, 3>>(in).of))
#define EVEN_AND_ODD_COLUMNS(V)                                                                                        \
    TO_PIXELS(V, evenThenOdd, fromEvenThenOdd<V>),                                                                     \
        CHANNELS(V, 6, fromColumns<V>,                                                                                 \
                 interleaveColumns3(out, load<Vectors<V, 3>>(in).of, load<Vectors<V, 3>>(in + 3 * bytes).of))

// Fields of words, the first one lowest, as the top bits of bytes.
#define BITS(a, b, c)                                                                                                  \
    memory<uint8_t, uint16_t, 2 * bytes, 3 * bytes>(                                                                   \
        "fieldsAsBytes",                                                                                               \
        [](const uint8_t* in, uint8_t* out) {                                                                          \
            store(out, fieldsAsBytes<WordFields{{a, a + b, a + b + c}, {a, b, c}}>(in));                               \
        },                                                                                                             \
        [](int i, const uint16_t* words) {                                                                             \
            constexpr int begin[] = {0, a, a + b}, count[] = {a, b, c};                                                \
            return (words[i / 3] >> begin[i % 3] & ((1 << count[i % 3]) - 1)) << (8 - count[i % 3]);                   \
        })

constexpr Operation operations[] = {
    MOVES(u8v, bytes, bytes, same, store(out, load(in))),
    MOVES(u8v, bytes, bytes, same, storeNonTemporal(out, load(in)), fenceStores()),
    MOVES(u8v, 1, bytes, first, store(out, fill8(*in))),
    MOVES(u16v, 2, bytes, first, store(out, fill16(load<int16_t>(in)))),
    MOVES(u32v, 4, bytes, first, store(out, fill32(load<int32_t>(in)))),
    MOVES(f32v, 4, bytes, first, store(out, fillFloat(load<float>(in)))),
    MOVES(s16v, bytes + 2, bytes, afterTheLast, store(out, shiftIn(load<s16v>(in), load<int16_t>(in + bytes)))),
    MOVES(u8v, 16, bytes, ofBlock, store(out, fillBlock(loadBlock(in)))),
    MOVES(u8v, 2, bytes, ofPair, store(out, fillPair8(load<int8_t>(in), load<int8_t>(in + 1)))),
    MOVES(u16v, 4, bytes, ofPair, store(out, fillPair16(load<int16_t>(in), load<int16_t>(in + 2)))),
    ZORCC_OF_FOUR(ZIPS, u8v, s16v, u32v, u64v),
    ZORCC_OF_FOUR(ZIPPED_HALVES, u8v, u16v, u32v, u64v),
    ZORCC_OF_TWO(HALVES_AND_SECONDS, u8v, u16v),
    OF_ONE(u8v, halvesZipped<u8v>, zipHalves),
    OF_ONE(u8v, (inPieces<u8v, 4>), orderQuarters),
    ZORCC_OF_THREE(TRANSPOSED, u32v, u16v, u8v),
    ZORCC_OF_THREE(THREE, u8v, u16v, f32v),
    ZORCC_OF_THREE(FOUR, u8v, u16v, f32v),
    ZORCC_OF_TWO(EVEN_AND_ODD_COLUMNS, u8v, u16v),
    CHANNELS(u8v, 2, inMemory, store(out, Vectors<u8v, 2>([=](auto& v) {
                                         toBlocks({load(in), load(in + bytes)}, v);
                                     }))),
    CHANNELS(u8v, 2, inMemory, store(out, Vectors<u8v, 2>([=](auto& v) { loadBlocks(in, v); }))),
    CHANNELS(u8v, 2, inBlocks, store(out, Vectors<u8v, 2>([=](auto& v) {
                                         fromBlocks({load(in), load(in + bytes)}, v);
                                     }))),
    CHANNELS(u8v, 2, inBlocks, storeBlocks(out, load<Vectors<u8v, 2>>(in).of)),
    MOVES(u8v, bytes, bytes, fromHalves, store(out, loadHalves(in, in + half))),
    MOVES(u8v, half, bytes, fromDoubledQuarters, store(out, loadDoubledQuarters(in, in + half / 2))),
    BITS(5, 6, 5),
    BITS(4, 4, 4),
    MOVES(u8v, bytes, bytes, toHalves, storeHalves(out, out + half, load(in))),
    MOVES(u8v, bytes, half, toEvenQuarters, storeEvenQuarters(out, out + half / 2, load(in))),
};

} // namespace

const test::Operations orderOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
