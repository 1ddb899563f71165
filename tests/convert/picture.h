// SPDX-License-Identifier: MIT
// A picture in guarded memory, by what the conversion layer says of its format, and its samples one by one.
#pragma once

#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "interface/call.h"
#include "tests/harness/guarded.h"
#include "tests/harness/random.h"
#include "zorconvert.h"

namespace zorcc::test {

inline ZorLayout layoutOf(const std::string& format, ZorSize size)
{
    ZorLayout layout{};
    const ZorPicture picture{format.c_str(), nullptr, zorRangeDefault, size};
    if (zorPictureLayout(&picture, &layout) != zorStatusOk) throw std::runtime_error("no layout of " + format);
    return layout;
}

// How the rows of a picture lie in memory.
enum class Rows { tight, padded, upwards };

class PictureInMemory {
public:
    ZorLayout layout;
    ZorSize size;
    void* plane[ZOR_MAX_PLANES] = {};
    int step[ZOR_MAX_PLANES] = {};

    PictureInMemory(const std::string& format, ZorSize itsSize, Rows rows = Rows::tight, Edge edge = Edge::end)
        : layout(layoutOf(format, itsSize)), size(itsSize)
    {
        for (int p = 0; p < layout.planes; ++p) {
            const int bytes = layout.rowBytes[p] + (rows == Rows::padded ? 3 * layout.sampleBytes : 0);
            const std::size_t gaps = static_cast<std::size_t>(bytes) * (layout.rows[p] - 1);
            memory.push_back(std::make_unique<GuardedBuffer>(gaps + layout.rowBytes[p], edge));
            step[p] = rows == Rows::upwards ? -bytes : bytes;
            plane[p] = memory.back()->data() + (rows == Rows::upwards ? gaps : 0);
            sizes.push_back(gaps + layout.rowBytes[p]);
        }
    }

    std::uint8_t* row(int p, int y) const { return static_cast<std::uint8_t*>(plane[p]) + std::ptrdiff_t{step[p]} * y; }

    // All bytes, with those between rows.
    void fill(Random& random)
    {
        for (std::size_t p = 0; p < memory.size(); ++p)
            for (std::size_t i = 0; i < sizes[p]; ++i) memory[p]->data()[i] = static_cast<std::uint8_t>(random());
        if (layout.sample == zorSample32f) // 0..1, and what lies beyond now and then
            eachSample([&](std::uint8_t* at) {
                const float value = static_cast<float>(random.below(1200) - 100) / 1000;
                std::memcpy(at, &value, sizeof value);
            });
    }

    std::vector<std::uint8_t> bytes() const
    {
        std::vector<std::uint8_t> all;
        for (std::size_t p = 0; p < memory.size(); ++p)
            all.insert(all.end(), memory[p]->data(), memory[p]->data() + sizes[p]);
        return all;
    }

    interface::Image image() const
    {
        interface::Image result;
        for (int p = 0; p < layout.planes; ++p) result.plane[p] = plane[p], result.step[p] = step[p];
        return result;
    }

    std::string_view channels() const { return layout.channels; }
    bool has(char letter) const { return channels().find(letter) != std::string_view::npos; }
    bool isPackedBits() const { return layout.fieldBits[0] != 0; }

    // The sample of a channel that counts for a pixel.
    std::uint8_t* sample(char letter, int x, int y) const
    {
        const int count = static_cast<int>(channels().size()), index = static_cast<int>(channels().find(letter));
        const bool isChroma = (letter == 'U' || letter == 'V') && isLumaAndChroma();
        const int cx = isChroma ? x >> layout.log2ChromaX : x, cy = isChroma ? y >> layout.log2ChromaY : y;
        const int bytes = layout.sampleBytes;
        if (layout.planes == 1 && count == 4 && channels().find('Y') != channels().rfind('Y')) // packed 4:2:2
            return row(0, y) + (letter == 'Y' ? 2 * x + index : 4 * (x / 2) + index);
        if (layout.planes == 1) return row(0, y) + (count * x + index) * bytes;
        if (layout.planes == 2) return letter == 'Y' ? row(0, y) + x : row(1, cy) + 2 * cx + index - 1;
        return row(index, cy) + cx * bytes;
    }

private:
    std::vector<std::unique_ptr<GuardedBuffer>> memory;
    std::vector<std::size_t> sizes;

    bool isLumaAndChroma() const { return has('Y') && has('U') && has('V'); }

    template <class Visit> void eachSample(Visit visit)
    {
        for (int p = 0; p < layout.planes; ++p)
            for (int y = 0; y < layout.rows[p]; ++y)
                for (int i = 0; i + 4 <= layout.rowBytes[p]; i += 4) visit(row(p, y) + i);
    }
};

} // namespace zorcc::test
