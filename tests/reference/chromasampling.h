// SPDX-License-Identifier: MIT
// Scalar references of the changes of chroma sampling: one for every rule, whatever the formats of source and
// destination. All copy luma but the last.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// Every sample of the destination is that of the pixel it starts at: columns and rows are kept, dropped or repeated.
void moveChroma(const Pixels& source, Pixels& destination);

// Two rows of 4:1:1 chroma are the even and the odd columns of a row of 4:2:0.
void rearrange411As420(const Pixels& source, Pixels& destination);
void rearrange420As411(const Pixels& source, Pixels& destination);

// Odd rows of 4:2:2 chroma from four of 4:2:0.
void filterOddRows(const Pixels& source, Pixels& destination);

// Each field on its own.
void mixFieldsTo420(const Pixels& source, Pixels& destination);
void mixFieldsTo422(const Pixels& source, Pixels& destination);

// Averages between samples.
void doubleColumnsAndRows(const Pixels& source, Pixels& destination);
void doubleColumns(const Pixels& source, Pixels& destination); // and halve rows
void doubleRows(const Pixels& source, Pixels& destination);    // and halve columns

// Luma and chroma low-passed vertically.
void deinterlace(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
