// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/BandedWarp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

enum Step : uint8_t
{
    Diagonal = 0,
    Down = 1,  // from the row above, same column
    Right = 2, // from the column before, same row
};

constexpr float kUnreached = std::numeric_limits<float>::infinity();

// The band of row i: columns [first, first + width) clipped to the matrix.
struct Band
{
    std::size_t rows;
    std::size_t columns;
    int halfWidth;

    long centre(std::size_t row) const
    {
        if (rows <= 1)
            return 0;
        return long(std::llround(double(row) * double(columns - 1) / double(rows - 1)));
    }
    long first(std::size_t row) const { return centre(row) - halfWidth; }
    long begin(std::size_t row) const { return std::max(0L, first(row)); }
    long end(std::size_t row) const
    {
        return std::min(long(columns), first(row) + 2L * halfWidth + 1);
    }
};

float distance(const float* a, const float* b, int dimensions)
{
    float sum = 0.0f;
    for (int d = 0; d < dimensions; ++d) {
        const float diff = a[d] - b[d];
        sum += diff * diff;
    }
    return std::sqrt(sum);
}

} // namespace

std::size_t BandedWarp::decisionBytes(std::size_t rowCount, int halfWidth)
{
    const std::size_t width = 2 * std::size_t(halfWidth) + 1;
    return rowCount * ((width + 3) / 4);
}

std::optional<BandedWarp::Path> BandedWarp::align(const std::vector<float>& rows,
                                                  const std::vector<float>& columns, int dimensions,
                                                  int halfWidth, const std::atomic<bool>* cancel,
                                                  const std::function<void(double)>& progress,
                                                  QString* error)
{
    auto fail = [error](const QString& message) -> std::optional<Path> {
        if (error)
            *error = message;
        return std::nullopt;
    };
    const std::size_t n = rows.size() / std::size_t(dimensions);
    const std::size_t m = columns.size() / std::size_t(dimensions);
    if (n == 0 || m == 0)
        return fail(QStringLiteral("Nothing to align"));
    const Band band{n, m, halfWidth};
    // Neighbouring rows' bands must overlap, or no path can cross them.
    const double slope = n > 1 ? double(m - 1) / double(n - 1) : double(m - 1);
    if (slope > double(halfWidth))
        return fail(QStringLiteral("The text is far longer than the recording"));

    const std::size_t width = 2 * std::size_t(halfWidth) + 1;
    const std::size_t rowBytes = (width + 3) / 4;
    std::vector<uint8_t> decisions(n * rowBytes, 0);
    std::vector<float> previous(width, kUnreached), current(width, kUnreached);
    auto setDecision = [&](std::size_t row, std::size_t offset, Step step) {
        decisions[row * rowBytes + offset / 4] |= uint8_t(step << (2 * (offset % 4)));
    };
    auto decision = [&](std::size_t row, std::size_t offset) {
        return Step((decisions[row * rowBytes + offset / 4] >> (2 * (offset % 4))) & 3);
    };

    long previousFirst = 0;
    for (std::size_t i = 0; i < n; ++i) {
        if ((i & 255) == 0) {
            if (cancel && cancel->load(std::memory_order_relaxed))
                return fail(QStringLiteral("Cancelled"));
            if (progress)
                progress(double(i) / double(n));
        }
        const long first = band.first(i);
        const long begin = band.begin(i), end = band.end(i);
        std::fill(current.begin(), current.end(), kUnreached);
        const float* row = &rows[i * std::size_t(dimensions)];
        for (long j = begin; j < end; ++j) {
            const std::size_t offset = std::size_t(j - first);
            const float cost =
                distance(row, &columns[std::size_t(j) * std::size_t(dimensions)], dimensions);
            if (i == 0 && j == 0) {
                current[offset] = cost;
                continue;
            }
            float best = kUnreached;
            Step step = Diagonal;
            if (i > 0) {
                const long up = j - previousFirst; // same column, row above
                if (up >= 0 && up < long(width) && previous[std::size_t(up)] < best) {
                    best = previous[std::size_t(up)];
                    step = Down;
                }
                const long diagonal = up - 1;
                if (diagonal >= 0 && diagonal < long(width) &&
                    previous[std::size_t(diagonal)] <= best) {
                    best = previous[std::size_t(diagonal)];
                    step = Diagonal;
                }
            }
            if (offset > 0 && current[offset - 1] < best) {
                best = current[offset - 1];
                step = Right;
            }
            if (best == kUnreached)
                continue;
            current[offset] = best + cost;
            setDecision(i, offset, step);
        }
        std::swap(previous, current);
        previousFirst = first;
    }
    const long lastOffset = long(m - 1) - band.first(n - 1);
    if (lastOffset < 0 || lastOffset >= long(width) ||
        previous[std::size_t(lastOffset)] == kUnreached)
        return fail(QStringLiteral("The text and the recording could not be matched"));

    Path path;
    path.firstRow.assign(m, -1);
    path.lastRow.assign(m, -1);
    long i = long(n) - 1, j = long(m) - 1;
    while (true) {
        const std::size_t col = std::size_t(j);
        if (path.lastRow[col] < 0)
            path.lastRow[col] = int(i);
        path.firstRow[col] = int(i);
        if (i == 0 && j == 0)
            break;
        const std::size_t offset = std::size_t(j - band.first(std::size_t(i)));
        switch (decision(std::size_t(i), offset)) {
        case Diagonal:
            --i;
            --j;
            break;
        case Down:
            --i;
            break;
        case Right:
            --j;
            break;
        }
        if (i < 0 || j < 0) // cannot happen on a reached cell; guards the walk
            return fail(QStringLiteral("The text and the recording could not be matched"));
    }
    return path;
}
