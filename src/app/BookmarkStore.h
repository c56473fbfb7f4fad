// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

class Defaults;

// Remembers a folder the user opened audio from. Linux has no security-scoped
// bookmarks: a bookmark is the folder's absolute path (UTF-8), stored as
// base64 text like the bookmarks it stands in for, and "accessing" the folder
// means finding it there and readable.
class BookmarkStore
{
public:
    explicit BookmarkStore(Defaults& defaults);

    // The bookmark of a folder: its absolute path.
    static QByteArray bookmarkDataForDirectory(const QString& path);
    // The folder a bookmark names. Nothing, with the reason in `error`, when
    // the data is not a folder path or names something that is not a readable
    // folder. A folder that no longer exists resolves with `isStale` set.
    static std::optional<QString> resolveBookmarkData(const QByteArray& data, bool* isStale,
                                                      QString* error = nullptr);
    // Whether the folder can be used now (exists, is a folder, readable).
    static bool startAccessingDirectory(const QString& path);

    // Stores the data as base64 text under the key and synchronises the
    // store; absent data is logged and nothing is stored.
    void saveBookmarkData(const std::optional<QByteArray>& data, const QString& key);
    // The data stored under the key; nothing when absent or not base64.
    std::optional<QByteArray> loadBookmarkDataForKey(const QString& key) const;
    // Checks the remembered folder: when its bookmark no longer resolves, both
    // remembered keys are removed. It does not reopen the file.
    void restoreLastAudioFile();

private:
    Defaults& m_defaults;
};
