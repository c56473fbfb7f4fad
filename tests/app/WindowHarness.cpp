// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowHarness.h"

#include "app/AutoSaveQueue.h"
#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "localization/LanguageBundle.h"
#include "localization/LanguageManager.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

WindowHarness::WindowHarness(const QString& language, const QString& dataHome)
{
    // Per-user state (the typing journals) of this window alone, unless a test
    // hands the same folder to windows that stand for successive launches.
    qputenv("XDG_DATA_HOME", (dataHome.isEmpty() ? m_dataHome.path() : dataHome).toLocal8Bit());
    QFont::insertSubstitution(QStringLiteral("Menlo"),
                              QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family());
    regDefaultPreference(m_defaults.store());
    m_center = std::make_unique<NotificationCenter>();
    m_documents = std::make_unique<DocumentManager>(m_documentsDir.path());
    m_documents->createDirectory(DocumentManager::TranscriptionsFolder);
    m_engine = std::make_unique<AudioManager>(m_defaults.store(), *m_center);
    m_engine->setOutputFactory(
        [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime); });
    m_transcriptions = std::make_unique<TranscriptionManager>(
        [engine = m_engine.get()] { return engine->getTotalDuration(); });
    if (!language.isEmpty()) {
        m_defaults.store().setObject(QStringList{language}, PreferenceKeys::AppleLanguages);
        m_bundle = std::make_unique<LanguageBundle>(m_defaults.store());
        m_language = std::make_unique<LanguageManager>(m_defaults.store(), *m_center, *m_bundle);
        m_language->installStartupTranslator();
    }
    m_autoSave = std::make_unique<AutoSaveQueue>([this] { return m_autoSaveNow; });
    m_window = std::make_unique<MainWindowController>(
        SessionServices{*m_engine, *m_center, m_defaults.store(), *m_transcriptions,
                        *m_documents, *m_autoSave});
    m_window->resize(1280, 800);
    m_window->show();
    QApplication::processEvents();
}

WindowHarness::~WindowHarness()
{
    m_window.reset();
    m_autoSave.reset();
    if (m_language)
        m_language->removeStartupTranslator();
    QApplication::processEvents();
}

void WindowHarness::setClock(Clock& clock)
{
    m_engine->setClock(clock);
}

void WindowHarness::finishAutoSaves()
{
    m_autoSave->waitForDone();
    QApplication::processEvents();
}

QString WindowHarness::storePath()
{
    const std::optional<QString> identifier =
        FileIdentity::uniqueIdentifierForFileAtPath(session().currentAudioPath());
    return identifier ? FileIdentity::transcriptionPathForIdentifier(*identifier, *m_documents)
                      : QString();
}

SessionServices WindowHarness::services()
{
    return {*m_engine, *m_center, m_defaults.store(), *m_transcriptions, *m_documents, *m_autoSave};
}

ViewController& WindowHarness::session()
{
    return *m_window->viewController();
}

bool WindowHarness::open(const QString& path, bool* success)
{
    bool finished = false;
    session().setOpeningFinishedHandler([&](bool ok) {
        finished = true;
        if (success)
            *success = ok;
    });
    session().openFileFromPath(path);
    const bool done = waitFor([&] { return finished; }, 60000);
    session().setOpeningFinishedHandler({});
    // The table selects its first row on the next turn of the event loop,
    // and that selection saves: a test that writes the store file next
    // must not have the save land on top of it.
    QApplication::processEvents();
    finishAutoSaves();
    return done;
}

QImage WindowHarness::screenshot(const QString& name)
{
    QApplication::processEvents();
    const QImage image = m_window->grab().toImage();
    QDir().mkpath(QStringLiteral(KELMORA_SCREENSHOT_DIR));
    image.save(QStringLiteral(KELMORA_SCREENSHOT_DIR "/") + name + QStringLiteral(".png"));
    return image;
}

bool waitFor(const std::function<bool()>& condition, int timeoutMs)
{
    QDeadlineTimer deadline(timeoutMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

AlertAnswerer::AlertAnswerer(const QString& buttonText)
    : m_buttonText(buttonText), m_poll(std::make_unique<QTimer>())
{
    m_poll->setInterval(10);
    QObject::connect(m_poll.get(), &QTimer::timeout, [this] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(widget);
            if (!box || !box->isVisible() || box->property("kelmoraAnswered").toBool())
                continue;
            AlertSeen seen{box->windowTitle(), box->text(), box->informativeText(), {}};
            seen.icon = box->icon();
            QAbstractButton* chosen = nullptr;
            for (QAbstractButton* button : box->buttons()) {
                seen.buttons << button->text();
                if (button->text() == m_buttonText)
                    chosen = button;
            }
            m_seen << seen;
            box->setProperty("kelmoraAnswered", true);
            if (chosen)
                QMetaObject::invokeMethod(chosen, &QAbstractButton::click, Qt::QueuedConnection);
        }
    });
    m_poll->start();
}

AlertAnswerer::~AlertAnswerer() = default;

bool AlertAnswerer::waitForAlerts(qsizetype count, int timeoutMs)
{
    return waitFor([&] { return m_seen.size() >= count; }, timeoutMs);
}

namespace {

QDialog* visibleQuestion()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("alignLanguageDialog") && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    }
    return nullptr;
}

} // namespace

QDialog* alignmentQuestion(int timeoutMs)
{
    waitFor([] { return visibleQuestion() != nullptr; }, timeoutMs);
    return visibleQuestion();
}

bool dontAlign()
{
    QDialog* question = alignmentQuestion();
    if (!question)
        return false;
    QPointer<QWidget> window =
        question->parentWidget() ? question->parentWidget()->window() : nullptr;
    QPointer<QDialog> asked(question);
    QTest::keyClick(question, Qt::Key_Escape);
    // The question deletes itself once closed, and its window going takes the
    // activation with it: only after that is the window given it back. A
    // slow build (ThreadSanitizer) otherwise lost the focus mid-typing.
    const bool gone = waitFor([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return asked.isNull();
    });
    if (!gone)
        return false;
    QApplication::processEvents();
    // Offscreen, no window manager gives the window back its activation.
    if (window)
        QApplication::setActiveWindow(window);
    return waitFor([] { return QApplication::focusWidget() != nullptr; });
}
