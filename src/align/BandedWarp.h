// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <atomic>
#include <functional>
#include <optional>
#include <vector>

// Dynamic time warping of two feature sequences inside a Sakoe-Chiba band:
// only cells within `halfWidth` columns of the straight line from the first
// cell to the last are visited. Memory is rows x band: two rows of costs and
// two bits of path-back decision per cell.
//
// Rows are the recording's frames, columns the synthesis's. Each step goes
// one row down, one column right, or both; a cell costs the Euclidean
// distance between its two frames.
class BandedWarp
{
public:
    // For every column, the first and last row the cheapest path visits there.
    struct Path
    {
        std::vector<int> firstRow;
        std::vector<int> lastRow;
    };

    // `rows` and `columns` hold `dimensions` floats per frame. Nothing, with
    // `error` set, when cancelled ("Cancelled") or when no path fits in the
    // band (one sequence far longer than the other). The cancel flag is
    // looked at, and `progress` given the fraction of rows done, every 256 rows.
    static std::optional<Path> align(const std::vector<float>& rows,
                                     const std::vector<float>& columns, int dimensions,
                                     int halfWidth, const std::atomic<bool>* cancel,
                                     const std::function<void(double)>& progress, QString* error);

    // Bytes the path-back decisions of a warp of this size take.
    static std::size_t decisionBytes(std::size_t rowCount, int halfWidth);
};
