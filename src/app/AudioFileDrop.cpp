// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AudioFileDrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

AudioFileDrop::AudioFileDrop(QWidget& window, const QStringList& extensions,
                             std::function<void(const QString&)> open, QObject* parent)
    : QObject(parent), m_window(&window), m_extensions(extensions), m_open(std::move(open))
{
    window.setAcceptDrops(true);
    qApp->installEventFilter(this);
}

AudioFileDrop::~AudioFileDrop()
{
    qApp->removeEventFilter(this);
}

QString AudioFileDrop::audioFileIn(const QMimeData* data, const QStringList& extensions)
{
    if (!data || !data->hasUrls())
        return {};
    for (const QUrl& url : data->urls()) {
        if (!url.isLocalFile())
            continue;
        const QFileInfo file(url.toLocalFile());
        if (extensions.contains(file.suffix().toLower()) && file.isFile())
            return file.filePath();
    }
    return {};
}

bool AudioFileDrop::isInWindow(QObject* object) const
{
    auto* widget = qobject_cast<QWidget*>(object);
    return widget && m_window && widget->window() == m_window;
}

bool AudioFileDrop::eventFilter(QObject* watched, QEvent* event)
{
    // The receiver first: an event a worker posts to a non-widget is handed
    // over under Qt's lock, and is never opened here.
    if (!watched->isWidgetType() || !isInWindow(watched))
        return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto* drop = static_cast<QDropEvent*>(event);
    // Moves keep what the enter found; the enter and the drop look themselves.
    QString path;
    if (type != QEvent::DragMove) {
        if (drop->possibleActions() & Qt::CopyAction)
            path = audioFileIn(drop->mimeData(), m_extensions);
        m_dragTaken = !path.isEmpty();
    }
    if (!m_dragTaken)
        return false;
    // A copy, never a move: the learner's file must stay where it is.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop) {
        m_dragTaken = false;
        QTimer::singleShot(0, this, [this, path] {
            if (m_open)
                m_open(path);
        });
    }
    return true;
}
