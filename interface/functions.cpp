// SPDX-License-Identifier: MIT
#include "interface/functions.h"

#include <algorithm>
#include <vector>

namespace zorcc::interface {

namespace {

using namespace formats;

// A row that opens a family has no name; functions() leaves it out when it fills in the titles.
struct Row {
    std::string_view title;
    Function function;
};

#define ZOR_FAMILY(identifier, text) {text, {}},
#define ZOR_FUNCTION(function, source, destination, alpha)                                                             \
    {{},                                                                                                               \
     {#function,                                                                                                       \
      {},                                                                                                              \
      &source,                                                                                                         \
      &destination,                                                                                                    \
      Alpha::alpha,                                                                                                    \
      Bound<&function>::signature(),                                                                                   \
      Bound<&function>::call,                                                                                          \
      Bound<&function>::prepare}},
constexpr Row rowTable[] = {
#include "interface/functions.def"
};
#undef ZOR_FAMILY
#undef ZOR_FUNCTION

constexpr std::size_t countFunctions()
{
    std::size_t count = 0;
    for (const Row& row : rowTable) count += row.title.empty();
    return count;
}

struct Table {
    Function entry[countFunctions()];
};

constexpr Table makeTable()
{
    Table table{};
    std::string_view family;
    std::size_t count = 0;
    for (const Row& row : rowTable) {
        if (row.title.empty()) {
            table.entry[count] = row.function;
            table.entry[count++].family = family;
        } else {
            family = row.title;
        }
    }
    return table;
}

constexpr Table table = makeTable();

} // namespace

Extra Function::withScratch(Extra extra, ZorSize size) const
{
    if (signature.scratch) { // what the demosaicing functions ask for
        thread_local std::vector<std::uint8_t> memory;
        constexpr int rows = 64;
        extra.scratchStep = 32 * (size.width + 32);
        memory.resize(std::max(memory.size(), static_cast<std::size_t>(rows) * extra.scratchStep));
        extra.scratch = memory.data();
    }
    return extra;
}

std::span<const Function> functions() { return table.entry; }

const Function* findFunction(std::string_view name)
{
    for (const Function& function : table.entry)
        if (function.name == name) return &function;
    return nullptr;
}

void setContiguousSteps(const Format& format, int width, Image& image)
{
    for (int p = 0; p < format.planes; ++p) image.step[p] = static_cast<int>(rowBytes(format, p, width));
}

} // namespace zorcc::interface
