// SPDX-License-Identifier: MIT
// What the comparison of plans needs of other libraries.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/picture.h"
#include "zorconvert.h"

namespace zorcc::bench {

// A frame of random bytes without gaps between its rows.
struct Frame {
    ZorSize size;
    void* plane[ZOR_MAX_PLANES] = {};
    int step[ZOR_MAX_PLANES] = {};

    Frame(const char* format, ZorSize itsSize) : size(itsSize)
    {
        const ZorPicture picture{format, nullptr, zorRangeDefault, size};
        ZorLayout layout{};
        if (zorPictureLayout(&picture, &layout) != zorStatusOk) throw std::runtime_error(format);
        for (int p = 0; p < layout.planes; ++p) {
            memory.emplace_back(static_cast<std::size_t>(layout.rowBytes[p]) * layout.rows[p]);
            plane[p] = memory.back().data();
            step[p] = layout.rowBytes[p];
        }
    }

    std::uint8_t* bytes(int p) const { return static_cast<std::uint8_t*>(plane[p]); }

private:
    std::vector<Buffer> memory;
};

struct Peer {
    std::string name;
    std::function<void()> work;
};

// On one thread. The frames outlive the work.
std::vector<Peer> peersOf(const std::string& from, const std::string& to, const Frame& source,
                          const Frame& destination);

} // namespace zorcc::bench
