// SPDX-License-Identifier: MIT
#include "chart.h"
#include "commands.h"
#include "error.h"
#include "io/writer.h"

namespace zorcc::tool {

void chart(const std::string& out, ZorSize size)
{
    const auto writer = openWriter(out);
    writer->write(naming(out, [&] { return drawChart(size); }));
    writer->commit();
}

} // namespace zorcc::tool
