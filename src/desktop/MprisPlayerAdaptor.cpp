// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/MprisPlayerAdaptor.h"

#include "desktop/MprisService.h"

MprisPlayerAdaptor::MprisPlayerAdaptor(MprisService* service)
    : QDBusAbstractAdaptor(service), m_service(service)
{
}

QString MprisPlayerAdaptor::playbackStatus() const
{
    return m_service->playbackStatus();
}

QVariantMap MprisPlayerAdaptor::metadata() const
{
    return m_service->metadata();
}

double MprisPlayerAdaptor::rate() const
{
    return m_service->rate();
}

void MprisPlayerAdaptor::PlayPause()
{
    m_service->playPause();
}

void MprisPlayerAdaptor::Play()
{
    m_service->play();
}

void MprisPlayerAdaptor::Pause()
{
    m_service->pause();
}

void MprisPlayerAdaptor::Stop()
{
    // Stopping would lose the learner's place; it pauses.
    m_service->pause();
}

void MprisPlayerAdaptor::Next()
{
    m_service->next();
}

void MprisPlayerAdaptor::Previous()
{
    m_service->previous();
}

// CanSeek is false: the learner moves by segment, so positions are ignored.
void MprisPlayerAdaptor::Seek(qlonglong) {}

void MprisPlayerAdaptor::SetPosition(const QDBusObjectPath&, qlonglong) {}

void MprisPlayerAdaptor::OpenUri(const QString& uri)
{
    m_service->openUri(uri);
}
