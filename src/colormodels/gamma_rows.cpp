// SPDX-License-Identifier: MIT
// Row drivers of gamma correction, compiled once for every tier.
#include "colormodels/gamma_rows.h"

#include "colormodels/gamma_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <class S> constexpr int sampleBytes = sizeof(S);
template <class S> constexpr int pixelsAtOnce = vectorBytes / sampleBytes<S>;

template <class S> using C3 = Sequences<pixelsAtOnce<S>, Line{{3 * sampleBytes<S>}}>;
template <class S> using AC4 = ColourSequence<S>;
template <class S>
using P3 = Sequences<pixelsAtOnce<S>, Line{{sampleBytes<S>}, 0}, Line{{sampleBytes<S>}, 1}, Line{{sampleBytes<S>}, 2}>;

template <class Layout, class Curve> constexpr Driver& convertRows = rows<Layout, Curve, Layout>;
template <class Layout, class Curve>
constexpr DriverWith<ValueRange>& convertFloats = rows<Layout, Curve, Layout, Threads::one, ValueRange>;

// ---- tables of words ------------------------------------------------------------------------------------------------

template <class Curve> void fillTable(uint16_t* table)
{
    constexpr uint16_t step = vectorBytes / 2;
    u16v words;
    for (uint16_t i = 0; i < step; ++i) words[i] = i;
    for (int i = 0; i < wordCount; i += step, words += step) store(table + i, Curve::of(words));
}

// The first `colours` of every `perPixel` samples of each plane.
template <int planes, int perPixel, int colours>
void lookUpWords(const Image& from, const Image& to, ZorSize size, WordTable table)
{
    const ptrdiff_t bytes = ptrdiff_t{2} * perPixel * size.width;
    for (int p = 0; p < planes; ++p)
        for (int y = 0; y < size.height; ++y) {
            const uint8_t* const src = from.row(p, y);
            uint8_t* const dst = to.row(p, y);
            for (ptrdiff_t i = 0; i < bytes; i += 2 * perPixel)
                for (int c = 0; c < 2 * colours; c += 2) {
                    uint16_t word;
                    __builtin_memcpy(&word, src + i + c, sizeof word);
                    __builtin_memcpy(dst + i + c, table + word, sizeof word);
                }
        }
}

} // namespace

const GammaRows gammaRows = {
    .myGammaFwd_8u_C3R = convertRows<C3<uint8_t>, ByteCurve<Forward>>,
    .myGammaFwd_8u_AC4R = convertRows<AC4<uint8_t>, ByteCurve<Forward>>,
    .myGammaFwd_8u_P3R = convertRows<P3<uint8_t>, ByteCurve<Forward>>,
    .myGammaInv_8u_C3R = convertRows<C3<uint8_t>, ByteCurve<Inverse>>,
    .myGammaInv_8u_AC4R = convertRows<AC4<uint8_t>, ByteCurve<Inverse>>,
    .myGammaInv_8u_P3R = convertRows<P3<uint8_t>, ByteCurve<Inverse>>,
    .myGammaFwd_16u_C3R = convertRows<C3<uint16_t>, WordCurve<Forward>>,
    .myGammaFwd_16u_AC4R = convertRows<AC4<uint16_t>, WordCurve<Forward>>,
    .myGammaFwd_16u_P3R = convertRows<P3<uint16_t>, WordCurve<Forward>>,
    .myGammaInv_16u_C3R = convertRows<C3<uint16_t>, WordCurve<Inverse>>,
    .myGammaInv_16u_AC4R = convertRows<AC4<uint16_t>, WordCurve<Inverse>>,
    .myGammaInv_16u_P3R = convertRows<P3<uint16_t>, WordCurve<Inverse>>,
    .myGammaFwd_32f_C3R = convertFloats<C3<float>, FloatCurve<Forward>>,
    .myGammaFwd_32f_AC4R = convertFloats<AC4<float>, FloatCurve<Forward>>,
    .myGammaFwd_32f_P3R = convertFloats<P3<float>, FloatCurve<Forward>>,
    .myGammaInv_32f_C3R = convertFloats<C3<float>, FloatCurve<Inverse>>,
    .myGammaInv_32f_AC4R = convertFloats<AC4<float>, FloatCurve<Inverse>>,
    .myGammaInv_32f_P3R = convertFloats<P3<float>, FloatCurve<Inverse>>,
    .myLookUp_16u_C3R = lookUpWords<1, 3, 3>,
    .myLookUp_16u_AC4R = lookUpWords<1, 4, 3>,
    .myLookUp_16u_P3R = lookUpWords<3, 1, 1>,
    .fillGammaFwd_16u = fillTable<WordCurve<Forward>>,
    .fillGammaInv_16u = fillTable<WordCurve<Inverse>>,
};

} // namespace zorcc::ZORCC_TIER
