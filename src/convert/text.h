// SPDX-License-Identifier: MIT
// Text in memory of its own, which ends where it is full.
#pragma once

#include <charconv>
#include <string_view>

namespace zorcc::conversion {

template <int capacity> class TextOf {
public:
    template <class... Parts> void add(const Parts&... parts) { (addOne(parts), ...); }

    void clear() { letters[length = 0] = 0; }
    const char* chars() const { return letters; }
    operator std::string_view() const { return {letters, static_cast<std::size_t>(length)}; }

private:
    char letters[capacity] = {};
    int length = 0;

    void addOne(std::string_view text)
    {
        for (char c : text)
            if (length + 1 < capacity) letters[length++] = c;
        letters[length] = 0;
    }

    void addOne(int number)
    {
        char digits[12];
        addOne(std::string_view(digits, std::to_chars(digits, digits + sizeof digits, number).ptr - digits));
    }
};

using Text = TextOf<2048>;
using Name = TextOf<64>;

// The number of letters to add, to leave out or to exchange that make one name of the other.
int distance(std::string_view a, std::string_view b);

Name lowerCase(std::string_view text);

} // namespace zorcc::conversion
