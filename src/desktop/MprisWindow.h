// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// What the media keys and a second start reach in the window. The
// application shell implements it, so the desktop bus needs nothing above it.
class MprisWindow
{
public:
    virtual ~MprisWindow() = default;

    // The widget that is raised and closed; its lifetime is the window's.
    virtual QWidget* mprisWidget() = 0;
    virtual QString mprisAudioPath() const = 0;
    virtual void mprisTogglePlayPause() = 0;
    virtual void mprisNextSegment() = 0;
    virtual void mprisPreviousSegment() = 0;
    // The direct road, as for a file given on the command line.
    virtual void mprisOpenFile(const QString& path) = 0;
};
