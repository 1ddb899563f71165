// SPDX-License-Identifier: MIT
#include "interface/functions.h"

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
