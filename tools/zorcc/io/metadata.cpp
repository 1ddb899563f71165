// SPDX-License-Identifier: MIT
#include "metadata.h"

#include <optional>

#include "../messages.h"

namespace zorcc::tool {

namespace {

// A TIFF structure in memory, in the byte order of its mark. What lies outside is not there.
class Tiff {
public:
    explicit Tiff(std::span<const std::uint8_t> block) : bytes(block), isLittle(!block.empty() && block[0] == 'I') {}

    std::optional<std::uint32_t> number(std::size_t at, std::size_t count) const
    {
        if (count > bytes.size() || at > bytes.size() - count) return {};
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < count; ++i) value = value << 8 | bytes[at + (isLittle ? count - 1 - i : i)];
        return value;
    }

    // The value of a tag in the first directory, where it is one short number.
    std::optional<std::uint32_t> shortOf(std::uint32_t tag) const
    {
        constexpr std::uint32_t entryBytes = 12;
        const auto directory = number(4, 4);
        const auto entries = directory ? number(*directory, 2) : std::nullopt;
        for (std::uint32_t i = 0; entries && i < *entries; ++i) {
            const std::size_t entry = *directory + std::size_t{2} + std::size_t{i} * entryBytes;
            if (number(entry, 2) == tag) return number(entry + 8, 2);
        }
        return {};
    }

private:
    std::span<const std::uint8_t> bytes;
    bool isLittle;
};

} // namespace

void warnOfProfile(const InputFile& file) { warn(file.name(), "its colour profile is ignored"); }

void warnOfOrientation(const InputFile& file, std::span<const std::uint8_t> exif)
{
    constexpr std::uint32_t orientation = 0x112, upright = 1;
    const auto value = Tiff(exif).shortOf(orientation);
    if (value && *value > upright && *value <= 8)
        warn(file.name(),
             "its EXIF orientation " + std::to_string(*value) + " is ignored: the picture stays as stored");
}

} // namespace zorcc::tool
