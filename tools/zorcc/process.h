// SPDX-License-Identifier: MIT
// What the tool asks of the process that it runs in.
#pragma once

namespace zorcc::tool {

// To be called once, before any file is opened and any thread started. No file gets the number of a closed standard
// stream. A file that becomes too large, or a reader that closes its end of a pipe, makes the write fail and sends no
// signal. SIGINT, SIGTERM and SIGHUP, and an exit from anywhere, remove the unfinished files.
void prepareProcess();

} // namespace zorcc::tool
