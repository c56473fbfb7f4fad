// SPDX-License-Identifier: GPL-3.0-or-later
// Help > Check for Updates… against a real HTTP service on 127.0.0.1: each
// answer ends in its sheet on the main window, and only a web page is opened.

#include "app/MainWindowController.h"
#include "app/UpdateAlertSheets.h"
#include "app/WindowHarness.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/LocalHttpServer.h"
#include "update/CheckAppUpdate.h"

#include <QAction>
#include <QDir>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

class UpdateCheckWindowTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        ASSERT_TRUE(server.listen());
        h.defaults().setObject(server.baseUrl(), PreferenceKeys::UpdateLookupURL);
        checker.setCurrentVersion("1.0.0");
        // What the application delegate does with the menu command.
        QObject::connect(&h.window(), &MainWindowController::checkForUpdatesRequested, &checker,
                         [this] { checker.checkForUpdates(true); });
        h.window().show();
    }

    // Chooses the menu command and waits for the sheet it ends in.
    QMessageBox* checkFromTheMenu()
    {
        auto* command = h.window().findChild<QAction*>("menuCheckForUpdates");
        EXPECT_NE(command, nullptr);
        if (!command)
            return nullptr;
        EXPECT_TRUE(command->isEnabled());
        command->trigger();
        QMessageBox* sheet = nullptr;
        waitFor([&] {
            for (QMessageBox* box : h.window().findChildren<QMessageBox*>()) {
                if (box->isVisible() && !box->property("seen").toBool())
                    sheet = box;
            }
            return sheet != nullptr;
        });
        if (sheet) {
            sheet->setProperty("seen", true);
            EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
            EXPECT_EQ(sheet->parentWidget(), &h.window());
        }
        return sheet;
    }

    static QStringList buttonTexts(QMessageBox* box)
    {
        QStringList texts;
        for (QAbstractButton* button : box->buttons())
            texts << button->text();
        return texts;
    }

    static void press(QMessageBox* box, const QString& text)
    {
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == text)
                button->click();
        }
        waitFor([box] { return !box->isVisible(); });
    }

    WindowHarness h;
    LocalHttpServer server;
    QList<QUrl> opened;
    UpdateAlertSheets sheets{&h.window(), [this](const QUrl& url) {
                                 opened << url;
                                 return true;
                             }};
    CheckAppUpdate checker{h.defaults(), sheets};
};

QByteArray offer(const QByteArray& trackUrl)
{
    return R"({"results":[{"version":"1.1","releaseNotes":"Pedal support.","trackViewUrl":")" +
           trackUrl + "\"}]}";
}

} // namespace

TEST_F(UpdateCheckWindowTest, UpdateOpensTheStorePageOnlyWhenItIsAWebAddress)
{
    server.answer(200, offer("https://kelmora.app/download"));
    QMessageBox* sheet = checkFromTheMenu();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->text(), "Update Available");
    EXPECT_EQ(sheet->informativeText(),
              "Version 1.1.0 is available.\n\nRelease Notes:\nPedal support.");
    EXPECT_EQ(buttonTexts(sheet), QStringList({"Update", "Later"}));
    QDir().mkpath(KELMORA_SCREENSHOT_DIR);
    sheet->grab().save(KELMORA_SCREENSHOT_DIR "/update-available.png");
    press(sheet, "Later");
    EXPECT_TRUE(opened.isEmpty());

    sheet = checkFromTheMenu();
    ASSERT_NE(sheet, nullptr);
    press(sheet, "Update");
    EXPECT_EQ(opened, QList<QUrl>({QUrl("https://kelmora.app/download")}));

    opened.clear();
    server.answer(200, offer("file:///etc/passwd"));
    sheet = checkFromTheMenu();
    ASSERT_NE(sheet, nullptr);
    press(sheet, "Update");
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(UpdateCheckWindowTest, TheLatestVersionIsSaidInAnInformationalSheet)
{
    server.answer(200, R"({"results":[{"version":"1.0.0"}]})");
    QMessageBox* sheet = checkFromTheMenu();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->text(), "App is already the latest version");
    EXPECT_EQ(sheet->icon(), QMessageBox::Information);
    EXPECT_EQ(buttonTexts(sheet), QStringList({"OK"}));
    press(sheet, "OK");
}

// Which failure gives which title is the checker's test; every one ends in
// the same warning sheet.
TEST_F(UpdateCheckWindowTest, AFailureEndsInTheWarningSheetAndTheWindowCarriesOn)
{
    server.answer(200, "{\"results\": [ oops");
    QMessageBox* sheet = checkFromTheMenu();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->text(), "Error parsing updates JSON");
    EXPECT_FALSE(sheet->informativeText().isEmpty());
    EXPECT_EQ(sheet->icon(), QMessageBox::Warning);
    EXPECT_EQ(buttonTexts(sheet), QStringList({"OK"}));
    press(sheet, "OK");
    EXPECT_TRUE(h.window().isVisible());
}
