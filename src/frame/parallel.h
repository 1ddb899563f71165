// SPDX-License-Identifier: MIT
// Rows of an image on several threads: the calling thread forks a team of ownGetNumThreads() members, every member
// converts its share, all join before the call returns. Members write different rows, so there are no locks, and the
// result does not depend on how many there are.
//
// Inside a parallel region of the caller nothing is forked: the calling thread does all the work.
#pragma once

#include "frame/function_ref.h"

namespace zorcc {

// Threads that a call may use here, at least 1: one inside a parallel region, and no more than a machine can make use
// of. What follows also uses no more than there are rows, bands or sections.
int threadsHere();

class MeetingPoint;

// One of the threads of a team.
struct Member {
    int index, count;
    MeetingPoint* meetingPoint; // of the team

    void waitForOthers() const; // every member must, equally often
};

// Calls work on every member of a team for which `threads` threads are asked, whatever the number that is configured;
// the runtime may give fewer.
void team(int threads, FunctionRef<void(const Member&)> work);

// Calls row(y) for every row; forks above 4096 pixels. Each member gets one contiguous band of rows.
void rowsAboveThreshold(int width, int height, FunctionRef<void(int y)> row);

// Calls row(y) for every row; forks from 192 rows.
void rowsOfTallImages(int height, FunctionRef<void(int y)> row);

// Calls row(y) for every row; forks whatever the size.
void rowsAlways(int height, FunctionRef<void(int y)> row);

// Calls band(first row, row count) for one band a thread; forks from 192 x 192 pixels. All bands have the same number
// of rows, but the last also takes the remainder. Bands without rows are left out.
void bandsAboveThreshold(int width, int height, FunctionRef<void(int firstRow, int rowCount)> band);

// The same with at most `mostBands` bands, for drivers whose bands need memory of their own; `index` counts them.
void bandsAboveThreshold(int width, int height, int mostBands,
                         FunctionRef<void(int index, int firstRow, int rowCount)> band);

// Groups of four rows, for fields of two rows that are filtered across group borders.
struct GroupBand {
    int firstGroup, groupCount;
    bool isFirst, isLast; // whether the image begins, ends with this band; both when there is only one
};

// Calls band for one band of groups a thread; forks from a width of 128 and above a height of 128. The bands hold
// height / 4 groups in all; up to three rows below them are left to the last band. The last group belongs to that band
// alone and is not divided: each band has an equal share of the groups before it, rounded down, and the last one takes
// the remainder.
void groupsAboveThreshold(int width, int height, FunctionRef<void(GroupBand)> band);

} // namespace zorcc
