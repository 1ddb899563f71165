// SPDX-License-Identifier: MIT
// Row drivers of samples that change places, compiled once for every tier.
#include "convert/moves_rows.h"

#include "lumachroma/common/chroma_moves.h"
#include "pixels/alpha.h"
#include "pixels/packed_bits.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <class S> struct Opaque {
    [[gnu::always_inline]] Samples<S, 4> operator()(const Samples<S>& colours) const
    {
        return withAlpha(colours, static_cast<S>(~S{}));
    }
};

template <class S, Order order>
constexpr conversion::MoveRows::OfPixels ofPixels = {{
    {rows<C3<S, order>, Unchanged, C3<S>>, rows<C3<S, order>, Opaque<S>, C4<S>>},
    {rows<AC4<S, order>, Unchanged, C3<S>>, rows<C4<S, order>, Unchanged, C4<S>>},
}};

template <class S>
constexpr conversion::MoveRows::OfSample ofSample = {
    .pixels = ofPixels<S, Order::asStored>,
    .reversed = ofPixels<S, Order::reversed>,
    .split = {rows<C3<S>, Unchanged, P3<S>>, rows<C4<S>, Unchanged, AP4<S>>},
    .merge = {rows<P3<S>, Unchanged, C3<S>>, rows<AP4<S>, Unchanged, C4<S>>},
};

using Pairs = Sequences<vectorBytes, Line{{2}}>;
using TwoPlanes = Sequences<vectorBytes, Line{{1}, 0}, Line{{1}, 1}>;

template <FieldBits bits>
constexpr conversion::MoveRows::OfBits ofBits = {
    .digits = 101 * bits.outer + 10 * bits.green,
    .unpack = rows<Rgb16<bits>, Unchanged, C3<>>,
    .pack = rows<C3<>, Unchanged, Rgb16<bits>>,
};

} // namespace

const conversion::MoveRows moveRows = {
    .bytes = ofSample<uint8_t>,
    .words = ofSample<uint16_t>,
    .splitPairs = rows<Pairs, Unzip, TwoPlanes>,
    .mergePairs = rows<TwoPlanes, Zip, Pairs>,
    .bits = {ofBits<bits565>, ofBits<bits555>, ofBits<bits444>},
};

} // namespace zorcc::ZORCC_TIER
