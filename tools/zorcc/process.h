// SPDX-License-Identifier: MIT
// What the tool asks of the process that it runs in.
#pragma once

namespace zorcc::tool {

// To be called once, before any file is opened and any thread started. A standard stream that is closed must not give
// its number to a file. Files that get too large and readers that go away are errors of the write, no signals. From
// here on SIGINT, SIGTERM and SIGHUP, and an exit from anywhere, remove the unfinished files.
void prepareProcess();

} // namespace zorcc::tool
