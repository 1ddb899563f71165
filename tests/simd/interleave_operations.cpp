// SPDX-License-Identifier: MIT
#include "simd/interleave.h"

#include "lines.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int vectors = vectorBytes; // bytes of one

template <class V, int count> struct Channels {
    V of[count];

    explicit Channels(const uint8_t* in)
    {
        for (int k = 0; k < count; ++k) of[k] = load<V>(in + k * vectorBytes);
    }
};

// Sample i of interleaved pixels, from channels of which each takes a vector; columns may be in another order.
template <class V, int count, Columns columns = Columns::inOrder>
constexpr auto interleaved = [](int i, const ElementOf<V>* in) {
    constexpr int block = 16 / sizeof(ElementOf<V>), n = vectorBytes / sizeof(ElementOf<V>);
    const int column = i / count, inBlock = column % block,
              place = columns == Columns::inOrder ? inBlock : inBlock / 2 + inBlock % 2 * (block / 2);
    return in[i % count * n + column - inBlock + place];
};

template <class V, int count>
constexpr auto deinterleaved = [](int i, const ElementOf<V>* in) {
    constexpr int n = vectorBytes / sizeof(ElementOf<V>);
    return in[i % n * count + i / n];
};

template <class V, int count>
constexpr auto fromPixels = [](const uint8_t* in, uint8_t* out) {
    V channel[count];
    deinterleave(in, channel);
    for (int k = 0; k < count; ++k) store(out + k * vectorBytes, channel[k]);
};

#define FROM_PIXELS(V, count)                                                                                          \
    memory<ElementOf<V>, ElementOf<V>, count * vectors, count * vectors>(                                              \
        "deinterleave " #count " " #V, fromPixels<V, count>, deinterleaved<V, count>)
#define THREE(V, columns)                                                                                              \
    memory<ElementOf<V>, ElementOf<V>, 3 * vectors, 3 * vectors>(                                                      \
        "interleave<" #columns "> 3 " #V,                                                                              \
        [](const uint8_t* in, uint8_t* out) { interleave<Columns::columns>(out, Channels<V, 3>(in).of); },             \
        interleaved<V, 3, Columns::columns>)
#define FOUR(V)                                                                                                        \
    memory<ElementOf<V>, ElementOf<V>, 4 * vectors, 4 * vectors>(                                                      \
        "interleave 4 " #V, [](const uint8_t* in, uint8_t* out) { interleave(out, Channels<V, 4>(in).of); },           \
        interleaved<V, 4>),                                                                                            \
        memory<ElementOf<V>, ElementOf<V>, 7 * vectors, 4 * vectors>(                                                  \
            "interleaveBesideFourth " #V,                                                                              \
            [](const uint8_t* in, uint8_t* out) {                                                                      \
                for (int k = 0; k < 4; ++k) store(out + k * vectorBytes, load(in + (3 + k) * vectorBytes));            \
                interleaveBesideFourth(out, Channels<V, 3>(in).of);                                                    \
            },                                                                                                         \
            [](int i, const ElementOf<V>* in) {                                                                        \
                constexpr int n = vectorBytes / sizeof(ElementOf<V>);                                                  \
                return i % 4 == 3 ? in[3 * n + i] : in[i % 4 * n + i / 4];                                             \
            })
#define COLUMNS(V)                                                                                                     \
    memory<ElementOf<V>, ElementOf<V>, 6 * vectors, 6 * vectors>(                                                      \
        "interleaveColumns3 " #V,                                                                                      \
        [](const uint8_t* in, uint8_t* out) {                                                                          \
            interleaveColumns3(out, Channels<V, 3>(in).of, Channels<V, 3>(in + 3 * vectorBytes).of);                   \
        },                                                                                                             \
        [](int i, const ElementOf<V>* in) {                                                                            \
            constexpr int n = vectorBytes / sizeof(ElementOf<V>);                                                      \
            return in[(i / 3 % 2 * 3 + i % 3) * n + i / 6];                                                            \
        })

// Block b of v[k] is block 2b + k of memory.
constexpr int inMemory(int i) { return (i % vectorBytes / 16 * 2 + i / vectorBytes) * 16 + i % 16; }
constexpr int inVectors(int i) { return i / 16 % 2 * vectorBytes + i / 32 * 16 + i % 16; }
constexpr int half = vectorBytes / 2;
constexpr auto fromHalves = [](int i, const uint8_t* in) { return in[i % 16 / 8 * half + i / 16 * 8 + i % 8]; };

constexpr Operation operations[] = {
    FROM_PIXELS(u8v, 3),
    FROM_PIXELS(u16v, 3),
    FROM_PIXELS(f32v, 3),
    FROM_PIXELS(u8v, 4),
    FROM_PIXELS(u16v, 4),
    FROM_PIXELS(f32v, 4),
    THREE(u8v, inOrder),
    THREE(u16v, inOrder),
    THREE(f32v, inOrder),
    THREE(u8v, evenThenOdd),
    THREE(u16v, evenThenOdd),
    FOUR(u8v),
    FOUR(u16v),
    FOUR(f32v),
    COLUMNS(u8v),
    COLUMNS(u16v),
    memory<uint8_t, uint8_t, 2 * vectors, 2 * vectors>(
        "toBlocks",
        [](const uint8_t* in, uint8_t* out) {
            u8v v[2];
            toBlocks({load(in), load(in + vectorBytes)}, v);
            for (int k = 0; k < 2; ++k) store(out + k * vectorBytes, v[k]);
        },
        [](int i, const uint8_t* in) { return in[inMemory(i)]; }),
    memory<uint8_t, uint8_t, 2 * vectors, 2 * vectors>(
        "loadBlocks",
        [](const uint8_t* in, uint8_t* out) {
            u8v v[2];
            loadBlocks(in, v);
            for (int k = 0; k < 2; ++k) store(out + k * vectorBytes, v[k]);
        },
        [](int i, const uint8_t* in) { return in[inMemory(i)]; }),
    memory<uint8_t, uint8_t, 2 * vectors, 2 * vectors>(
        "storeBlocks", [](const uint8_t* in, uint8_t* out) { storeBlocks(out, Channels<u8v, 2>(in).of); },
        [](int i, const uint8_t* in) { return in[inVectors(i)]; }),
    memory<uint8_t, uint8_t, vectors, vectors>(
        "loadHalves", [](const uint8_t* in, uint8_t* out) { store(out, loadHalves(in, in + half)); }, fromHalves),
    memory<uint8_t, uint8_t, half, vectors>(
        "loadDoubledQuarters",
        [](const uint8_t* in, uint8_t* out) { store(out, loadDoubledQuarters(in, in + half / 2)); },
        [](int i, const uint8_t* in) { return in[i % 16 / 8 * half / 2 + i / 16 * 4 + i % 8 / 2]; }),
    memory<uint8_t, uint8_t, vectors, vectors>(
        "storeHalves", [](const uint8_t* in, uint8_t* out) { storeHalves(out, out + half, load(in)); },
        [](int i, const uint8_t* in) { return in[i % half / 8 * 16 + i / half * 8 + i % 8]; }),
};

} // namespace

const test::Operations interleaveOperations = table(operations);

} // namespace zorcc::ZORCC_TIER
