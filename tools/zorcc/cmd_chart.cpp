// SPDX-License-Identifier: MIT
#include "chart.h"
#include "commands.h"
#include "error.h"

namespace zorcc::tool {

void chart(const ChartOptions& options)
{
    writeOnly(options.out, naming(options.out.path, [&] { return drawChart(options.size); }));
}

} // namespace zorcc::tool
