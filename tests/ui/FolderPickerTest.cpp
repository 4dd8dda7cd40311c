// SPDX-License-Identifier: MIT
// Folder names are bytes; a dialog that hands out text only must not lose them.
#include "ui/shell/FolderPicker.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QTimer>

#include "fakes/Environment.h"
#include "fakes/FakeFileManager.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {

namespace {

using Chosen = std::optional<std::string>;

class FolderPicker : public testing::Test {
protected:
    Chosen chosen(const char* url) { return chosenFolder(QUrl(QString::fromUtf8(url)), files); }
    /// The answer of a dialog that hands out paths as text.
    Chosen chosenAsText(const std::string& path) {
        return chosenFolder(QUrl::fromLocalFile(QString::fromStdString(path)), files);
    }

    /// The result of a dialog that is closed without a choice.
    Chosen cancelled() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            answer.stop();
            dialog->reject();
        });
        answer.start(0);
        Chosen folder = pickFolder(files);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
        return folder;
    }
    static QString settingsFolder() {
        return QFileInfo(QSettings(QSettings::UserScope, QStringLiteral("Zelk")).fileName()).path();
    }

    fakes::FakeFileManager files;
};

}  // namespace

TEST_F(FolderPicker, decodesPathOfURL) {
    EXPECT_EQ(chosen("file:///data/My%20films"), "/data/My films");
    EXPECT_EQ(chosen("file:///data/caf%C3%A9"), "/data/caf\xc3\xa9");
    EXPECT_EQ(chosen("file:///100%25%23%3F"), "/100%#?");
    EXPECT_EQ(chosen("file:///"), "/");
}

TEST_F(FolderPicker, keepsBytesThatAreNotUTF8) {
    EXPECT_EQ(chosen("file:///data/caf%E9/%FF"), "/data/caf\xe9/\xff");
}

TEST_F(FolderPicker, normalisesTheFolder) {
    EXPECT_EQ(chosen("file:///data/"), "/data");
    EXPECT_EQ(chosen("file:///data/./films//"), "/data/films");
}

TEST_F(FolderPicker, rejectsURLsThatAreNotLocal) {
    for (const char* url : {"", "https:///data", "file://other/data", "data", "file:"})
        EXPECT_EQ(chosen(url), Chosen());
}

TEST_F(FolderPicker, resolvesRepairedName) {
    files.addFolder("/data/caf\xe9/\xff");
    files.addFolder("/data/caf");
    EXPECT_EQ(chosenAsText("/data/caf\xef\xbf\xbd"), "/data/caf\xe9");
    EXPECT_EQ(chosenAsText("/data/caf\xef\xbf\xbd/\xef\xbf\xbd"), "/data/caf\xe9/\xff");
}

TEST_F(FolderPicker, resolvesRepairedNameBelowRoot) {
    files.addFolder("/\xff");
    EXPECT_EQ(chosenAsText("/\xef\xbf\xbd"), "/\xff");
}

TEST_F(FolderPicker, prefersExactName) {
    files.addFolder("/data/\xe9");
    files.addFolder("/data/\xef\xbf\xbd");
    EXPECT_EQ(chosenAsText("/data/\xef\xbf\xbd"), "/data/\xef\xbf\xbd");
}

TEST_F(FolderPicker, rejectsAmbiguousRepairedName) {
    files.addFolder("/data/caf\xe8");
    files.addFolder("/data/caf\xe9");
    EXPECT_EQ(chosenAsText("/data/caf\xef\xbf\xbd"), Chosen());
}

TEST_F(FolderPicker, rejectsRepairedNameWithoutMatch) {
    files.addFolder("/data/tea");
    EXPECT_EQ(chosenAsText("/data/caf\xef\xbf\xbd"), Chosen());
    EXPECT_EQ(chosenAsText("/missing/caf\xef\xbf\xbd"), Chosen());
}

TEST_F(FolderPicker, returnsChosenFolder) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const zoo::TempFolder folder;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        answer.stop();
        dialog->setDirectory(QString::fromStdString(folder.path()));
        dialog->QDialog::done(QDialog::Accepted);
    });
    answer.start(0);
    EXPECT_EQ(pickFolder(files), folder.path());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
}

TEST_F(FolderPicker, returnsNothingWhenCancelled) {
    EXPECT_EQ(cancelled(), Chosen());
}

#ifdef __linux__
// The dialog stores its own settings there.
TEST_F(FolderPicker, doesNotCreateMissingHome) {
    const zoo::TempFolder folder;
    const QString before = settingsFolder();
    for (const char* kind : {"missing", "there"}) {
        const fakes::EnvironmentVariable variable("HOME", folder / kind);
        const QString configFolder = QString::fromStdString(folder / kind + "/.config");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configFolder);
        if (kind == std::string("there")) zoo::makeFolder(folder / kind);
        cancelled();
        EXPECT_EQ(settingsFolder(), configFolder);
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, before);
    EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(folder / "missing")));
    EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(folder / "there/.config")));
}
#endif

TEST_F(FolderPicker, opensAtHomeWithTitle) {
    const zoo::TempFolder folder;
    zoo::makeFolder(folder / "home");
    const fakes::EnvironmentVariable variable("HOME", folder / "home");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QString title;
    QString place;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        answer.stop();
        title = dialog->windowTitle();
        place = dialog->directory().path();
        dialog->reject();
    });
    answer.start(0);
    pickFolder(files);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
    EXPECT_EQ(title, QStringLiteral("Choose a folder to survey"));
    EXPECT_EQ(place.toStdString(), folder / "home");
}

}  // namespace zelk
