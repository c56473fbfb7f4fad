// SPDX-License-Identifier: GPL-3.0-or-later
// A store file that was there but could not be used (damaged, cut short,
// typed under another cutting) is never written over: the save that would
// replace it moves it aside first, and the learner can bring it back.

#include "app/FileIdentity.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "common/Log.h"
#include "dialogs/Dialogs.h"
#include "dialogs/RecoverDictationDialog.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "transcript/DocumentManager.h"
#include "transcript/LrcReader.h"

#include <QDateTime>
#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStatusBar>

namespace {

const QString kSetAsideMark = QStringLiteral(".unused-");
const QString kStampFormat = QStringLiteral("yyyyMMdd-HHmmss");

// The first words typed in a set-aside file, for the list.
QString previewOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.read(64 * 1024));
    const Lrc::StampedLines lines = Lrc::readStampedLines(text);
    for (const QString& line : lines.texts) {
        if (!line.isEmpty())
            return line.size() > 60 ? line.left(60) + u'…' : line;
    }
    return {};
}

} // namespace

bool ViewController::setAsideUnusedStore(const QString& storePath)
{
    if (m_unusedStore.isEmpty() || storePath != m_unusedStore)
        return true;
    if (!QFileInfo::exists(m_unusedStore)) {
        m_unusedStore.clear();
        return true;
    }
    const QString base =
        m_unusedStore + kSetAsideMark + QDateTime::currentDateTime().toString(kStampFormat);
    QString aside = base;
    // Two-digit counters keep the names in the order of time.
    for (int n = 2; QFileInfo::exists(aside); ++n)
        aside = base + u'-' + QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
    if (!QFile::rename(m_unusedStore, aside)) {
        qCWarning(lcApp, "Could not set aside the unused store file %s",
                  qUtf8Printable(m_unusedStore));
        m_statusBar->showMessage(LocalizedString(Texts::StoreSetAsideFailed));
        return false;
    }
    qCWarning(lcApp, "Store file not loaded whole, set aside before a save: %s",
              qUtf8Printable(aside));
    m_statusBar->showMessage(LocalizedString(Texts::StoreSetAside), 15000);
    m_unusedStore.clear();
    return true;
}

QStringList ViewController::setAsideTranscripts() const
{
    const QString store = transcriptionStorePath();
    if (store.isEmpty())
        return {};
    const QFileInfo info(store);
    const QString prefix = info.fileName() + kSetAsideMark;
    QStringList names = QDir(info.path()).entryList({prefix + u'*'}, QDir::Files, QDir::Name);
    std::reverse(names.begin(), names.end()); // the stamps sort by time
    QStringList paths;
    for (const QString& name : std::as_const(names))
        paths.append(QDir(info.path()).filePath(name));
    return paths;
}

void ViewController::recoverEarlierDictation()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    const QStringList paths = setAsideTranscripts();
    if (paths.isEmpty()) {
        Dialogs::showMsg(LocalizedString(Texts::RecoverTitle),
                         LocalizedString(Texts::NothingSetAside));
        return;
    }
    QList<RecoverDictationDialog::Version> versions;
    const QLocale locale;
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).fileName();
        const QString stamp = name.mid(name.indexOf(kSetAsideMark) + kSetAsideMark.size(),
                                       kStampFormat.size());
        const QDateTime when = QDateTime::fromString(stamp, kStampFormat);
        versions.append({path,
                         when.isValid() ? locale.toString(when, QLocale::ShortFormat) : stamp,
                         previewOf(path)});
    }
    auto* dialog = new RecoverDictationDialog(versions, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    // The connection goes with this controller, so the dialog never calls a
    // session that is gone; nor one that moved on to another lesson.
    connect(dialog, &QDialog::accepted, this, [this, dialog, lesson = m_currentAudioPath] {
        if (!isProcessing() && m_currentAudioPath == lesson)
            importTranscriptionFrom(dialog->chosenPath(), true);
    });
    dialog->open();
}
