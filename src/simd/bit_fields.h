// SPDX-License-Identifier: MIT
// Fields of 16-bit words as interleaved bytes, without vectors of one channel between them.
#pragma once

#include "simd/vec.h"

namespace zorcc {

// The bits of the three fields of a word: the one after each, and their number.
struct WordFields {
    int end[3], count[3];
};

} // namespace zorcc

namespace zorcc::ZORCC_TIER {
namespace {

// Three bytes for each of vectorBytes pixels.
struct ThirdsOfPixels {
    u8v third[3];
};

// For byte i of three vectors: of which word it is a field, and where the words are that are loaded for it, `loaded` of
// them for every `bytes` bytes. The last ones end with the last word.
struct PlaceOfByte {
    int field, firstWord, inLoaded;

    constexpr PlaceOfByte(int i, int bytes, int loaded) : field(i % 3), firstWord(i / bytes * bytes / 3), inLoaded(0)
    {
        if (firstWord > vectorBytes - loaded) firstWord = vectorBytes - loaded;
        inLoaded = i / 3 - firstWord;
    }
};

constexpr uint8_t topOfByte(int count) { return static_cast<uint8_t>(0x100 - (0x100 >> count)); }

#if defined(ZORCC_TIER_avx512)
// Every eight bytes are made from four words, of which each byte takes eight bits.
template <WordFields fields> struct FieldsAsBytes {
    struct Third {
        alignas(vectorBytes) uint8_t words[vectorBytes], offset[vectorBytes], mask[vectorBytes];
    };

    static constexpr PlaceOfByte inVector(int i) { return {i, vectorBytes, vectorBytes / 2}; }
    static constexpr int firstWord(int third) { return inVector(third * vectorBytes).firstWord; }

    static constexpr auto thirds = [] {
        struct {
            Third of[3];
        } table{};
        for (int i = 0; i < 3 * vectorBytes; ++i) {
            const int firstOfFour = inVector(i / 8 * 8).inLoaded, field = i % 3;
            const int four = firstOfFour < vectorBytes / 2 - 4 ? firstOfFour : vectorBytes / 2 - 4;
            const int offset = 16 * (inVector(i).inLoaded - four) + fields.end[field] - 8;
            Third& third = table.of[i / vectorBytes];
            third.words[i % vectorBytes] = static_cast<uint8_t>(2 * four + i % 8);
            third.offset[i % vectorBytes] = static_cast<uint8_t>(offset & 63);
            third.mask[i % vectorBytes] = topOfByte(fields.count[field]);
        }
        return table;
    }();

    ZORCC_INLINE u8v third(const uint8_t* p, int k)
    {
        const Third& t = thirds.of[k];
        const __m512i words = _mm512_permutexvar_epi8(reg(load(t.words)), reg(load(p + 2 * firstWord(k))));
        return (u8v)_mm512_multishift_epi64_epi8(reg(load(t.offset)), words) & load(t.mask);
    }
};
#else
// Every block is made from eight words, of which each byte needs one: the even bytes by the upper half of a product of
// it, or of its lower byte alone, with a power of 2, the odd ones by the lower half of another.
template <WordFields fields> struct FieldsAsBytes {
    struct Third {
        alignas(vectorBytes) uint8_t even[vectorBytes], odd[vectorBytes];
        alignas(vectorBytes) uint16_t evenFactor[vectorBytes / 2], oddFactor[vectorBytes / 2];
        alignas(vectorBytes) uint8_t evenMask[vectorBytes], oddMask[vectorBytes];
    };

    static constexpr PlaceOfByte inBlock(int i) { return {i, 16, 8}; }

    static constexpr auto thirds = [] {
        struct {
            Third of[3];
        } table{};
        for (int i = 0; i < 3 * vectorBytes; ++i) {
            const PlaceOfByte place = inBlock(i);
            const int end = fields.end[place.field], word = 2 * place.inLoaded, at = i % vectorBytes;
            const auto lower = static_cast<uint8_t>(word), upper = static_cast<uint8_t>(word + 1);
            Third& third = table.of[i / vectorBytes];
            if (i % 2 == 0) {
                third.even[at] = end > 8 ? lower : 0x80;
                third.even[at + 1] = end > 8 ? upper : lower;
                third.evenFactor[at / 2] = static_cast<uint16_t>(1 << (end > 8 ? 24 - end : 16 - end));
                third.evenMask[at] = topOfByte(fields.count[place.field]);
            } else {
                third.odd[at - 1] = lower;
                third.odd[at] = upper;
                third.oddFactor[at / 2] = static_cast<uint16_t>(1 << (16 - end));
                third.oddMask[at] = topOfByte(fields.count[place.field]);
            }
        }
        return table;
    }();

    ZORCC_INLINE u8v third(const uint8_t* p, int k)
    {
        const auto blockFor = [&](int byte) { return loadBlock(p + 2 * inBlock(k * vectorBytes + byte).firstWord); };
    #if defined(ZORCC_TIER_avx2)
        const u8v words = (u8v)_mm256_set_m128i(blockFor(16), blockFor(0));
    #else
        const u8v words = (u8v)blockFor(0);
    #endif
        const Third& t = thirds.of[k];
        const u16v even = mulHigh((u16v)shuffle(words, load(t.even)), load<u16v>(t.evenFactor)),
                   odd = (u16v)shuffle(words, load(t.odd)) * load<u16v>(t.oddFactor);
        return ((u8v)even & load(t.evenMask)) | ((u8v)odd & load(t.oddMask));
    }
};
#endif

// From vectorBytes words.
template <WordFields fields> ZORCC_INLINE ThirdsOfPixels fieldsAsBytes(const uint8_t* p)
{
    using Way = FieldsAsBytes<fields>;
    return {{Way::third(p, 0), Way::third(p, 1), Way::third(p, 2)}};
}

} // namespace
} // namespace zorcc::ZORCC_TIER
