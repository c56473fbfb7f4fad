// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/MprisRootAdaptor.h"

#include "desktop/MprisService.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

MprisRootAdaptor::MprisRootAdaptor(MprisService* service)
    : QDBusAbstractAdaptor(service), m_service(service)
{
}

QString MprisRootAdaptor::identity() const
{
    return LocalizedString(Texts::AppName);
}

QStringList MprisRootAdaptor::supportedMimeTypes() const
{
    // The types of the nine extensions, as the desktop entry lists them.
    return {QStringLiteral("audio/mpeg"),   QStringLiteral("audio/mp4"),
            QStringLiteral("audio/x-m4a"),  QStringLiteral("audio/x-m4r"),
            QStringLiteral("audio/aac"),    QStringLiteral("audio/x-wav"),
            QStringLiteral("audio/x-aiff"), QStringLiteral("audio/x-caf"),
            QStringLiteral("audio/flac")};
}

void MprisRootAdaptor::Raise()
{
    m_service->raise();
}

void MprisRootAdaptor::Quit()
{
    m_service->quit();
}
