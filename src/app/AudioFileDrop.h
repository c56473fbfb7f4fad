// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>

class QMimeData;

// Audio files dropped anywhere on a window: a local file with one of the
// audio extensions is taken (as a copy: the file stays where it is) and
// handed on; anything else is left to the widget under the pointer, so text
// can still be dropped into a row. An event filter on the application, which
// sees a drag before the widget it is meant for, even a text field.
class AudioFileDrop : public QObject
{
    Q_OBJECT
public:
    // Makes `window` accept drops of files with one of `extensions`; `open`
    // hears the dropped file's path on the next turn of the event loop, once
    // the drag has ended.
    AudioFileDrop(QWidget& window, const QStringList& extensions,
                  std::function<void(const QString&)> open, QObject* parent = nullptr);
    ~AudioFileDrop() override;

    // The first local file among the dragged URLs whose extension is one of
    // `extensions` (without the dot, any case); empty when there is none.
    static QString audioFileIn(const QMimeData* data, const QStringList& extensions);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isInWindow(QObject* object) const;

    QPointer<QWidget> m_window;
    QStringList m_extensions;
    std::function<void(const QString&)> m_open;
    bool m_dragTaken = false; // the drag in progress holds an audio file
};
