// SPDX-License-Identifier: MIT
#include "interface/functions.h"

namespace zorcc::interface {

namespace {

constexpr Alpha alphaOf(const Name& name, bool isArgument)
{
    if (!hasAlpha(name.destination)) return Alpha::none;
    if (isArgument) return Alpha::argument;
    if (!hasAlpha(name.source)) return Alpha::zero;
    if (name.source.layout == "C4") return Alpha::converted;
    return isPlanar(name.source) || isPlanar(name.destination) ? Alpha::copy : Alpha::keep;
}

// Read once for a function.
template <class NameOf> constexpr Name nameRead = NameOf{}();

template <class Bound, class NameOf>
constexpr Function describe(std::string_view text, std::string_view argumentNames, NameOf)
{
    constexpr const Name& name = nameRead<NameOf>;
    static_assert(Bound::signature() == signatureOf(name), "name and parameters differ");
    return {text,
            {},
            name.variant,
            name.dither,
            &format<shapeOf(name, name.source)>,
            &format<shapeOf(name, name.destination)>,
            alphaOf(name, Bound::takes(arguments::alpha)),
            Bound::signature(),
            argumentNames,
            Bound::takes(arguments::slice),
            Bound::takes(arguments::scratch),
            Bound::takes(arguments::twist),
            Bound::takes(arguments::vMin),
            Bound::takes(arguments::levels),
            Bound::takes(arguments::weights),
            Bound::call};
}

// A row that opens a family has no name; functions() leaves it out when it fills in the titles.
struct Row {
    std::string_view title;
    Function function;
};

using namespace arguments;

#define ZOR_FAMILY(text) {text, {}},
#define ZOR_FUNCTION(function, ...)                                                                                    \
    {{},                                                                                                               \
     describe<Bound<&function __VA_OPT__(, ) __VA_ARGS__>>(#function, #__VA_ARGS__, [] { return parse(#function); })},
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
