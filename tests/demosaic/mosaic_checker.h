// SPDX-License-Identifier: MIT
// Runs a demosaicing function on regions of a mosaic against the reference of the whole picture, and looks at every
// byte.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>

#include "interface/functions.h"
#include "tests/harness/contents.h"
#include "tests/harness/test_image.h"
#include "tests/reference/mosaic.h"

namespace zorcc::test {

// Scratch memory as the functions that need it ask for it.
inline constexpr int scratchRows = 64;
constexpr int scratchRowBytes(int width) { return 32 * (width + 32); }

struct Method {
    std::string_view name;
    reference::Demosaic reference;
    int bits;
    int minSize;

    const interface::Function& function() const { return *interface::findFunction(name); }
};

std::span<const Method> methods();
const Method& methodNamed(std::string_view name);

inline constexpr ZorBayerGrid grids[] = {zorBayerBGGR, zorBayerRGGB, zorBayerGBRG, zorBayerGRBG};

class MosaicChecker {
public:
    explicit MosaicChecker(const Method& m) : method(m), function(m.function()) {}

    // The mosaic of the checks that follow.
    void use(ZorSize size, ZorBayerGrid grid, const Arrangement& arrangement = {}, Contents contents = Contents::random,
             std::uint32_t seed = 1);
    void use(const reference::Mosaic& mosaic, const Arrangement& arrangement = {});

    // Status, every byte of the destination and around it, of what lies around the scratch memory's rows, and of the
    // source; on every tier. The scratch memory lies `moved` bytes off the edge of a page.
    [[nodiscard]] testing::AssertionResult check(ZorRect region, const Arrangement& arrangement = {}, int moved = 0);
    [[nodiscard]] testing::AssertionResult checkAll() { return check({0, 0, size.width, size.height}); }

    const reference::Picture& expected() const { return whole; }

private:
    const Method method;
    const interface::Function& function;
    ZorSize size{};
    ZorBayerGrid grid{};
    reference::Picture whole{};
    TestImage source, destination;
    PlaneMemory scratch;

    void keepReference();
};

// The part of a rectangle inside an image.
ZorRect inside(ZorRect rect, ZorSize size);

// For googletest.
inline std::string nameOfMethod(const testing::TestParamInfo<Method>& info) { return std::string(info.param.name); }
inline void PrintTo(const Method& m, std::ostream* out) { *out << m.name; }
} // namespace zorcc::test
