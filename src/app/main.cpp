// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora: the dictation-practice window. Paths on the command line are opened
// as the desktop's request to open a file, which is how a file manager's
// "Open With" reaches it.

#include "app/AppDelegate.h"
#include "app/MainWindowController.h"
#include "common/Log.h"
#include "desktop/MprisService.h"
#include "localization/LanguageManager.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>

int main(int argc, char* argv[])
{
    Log::writeOwnLinesPlain();
    QApplication::setApplicationName(QStringLiteral("Kelmora"));
    QApplication::setOrganizationName(QStringLiteral("Kelmora"));
    QApplication::setApplicationVersion(QStringLiteral(KELMORA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kelmora.Kelmora"));
    QApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Kelmora: play a recording sentence by sentence and type what you hear."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("audio"),
                                 QStringLiteral("An audio file to open (mp3, m4a, m4r, aac, wav, "
                                                "aif, aiff, caf, flac)."),
                                 QStringLiteral("[audio]"));
    parser.process(app);

    // The default table font names a Mac font; here it stands for the
    // desktop's fixed-width font.
    QFont::insertSubstitution(
        QStringLiteral("Menlo"),
        QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family());

    // Every preference has its value before the first window reads one.
    regDefaultPreference(Defaults::standard());
    LanguageManager::sharedInstance().installStartupTranslator();

    const SessionServices services = SessionServices::shared();
    AppDelegate delegate(services);
    // One Kelmora per desktop session: when one runs, it gets the files.
    MprisService mpris(services.engine, services.center);
    if (mpris.claimBusName() == MprisService::Claim::OwnedElsewhere &&
        mpris.handOverToRunningInstance(parser.positionalArguments()))
        return 0;
    QObject::connect(&delegate, &AppDelegate::aboutToRestart, &mpris,
                     &MprisService::releaseBusName);
    delegate.applicationDidFinishLaunching();
    mpris.attachWindow(delegate.mainWindowController());
    for (const QString& path : parser.positionalArguments())
        delegate.applicationOpenFile(path);
    return app.exec();
}
