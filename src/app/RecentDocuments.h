// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class Defaults;

// The Open Recent list, kept in the defaults store under "RecentDocuments":
// paths, newest first, at most ten.
class RecentDocuments
{
public:
    static constexpr qsizetype MaximumCount = 10;

    explicit RecentDocuments(Defaults& store) : m_store(store) {}

    // Puts the path first, dropping an older entry of the same path.
    void add(const QString& path);
    QStringList paths() const;
    // The paths whose files still exist, for the menu.
    QStringList existingPaths() const;
    void clear();

private:
    Defaults& m_store;
};
