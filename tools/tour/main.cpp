// SPDX-License-Identifier: MIT
// tour --out DIR --root PATH [--home DIR] [--size WxH]: runs the real window on the real file system without a display,
// presses its buttons, and leaves a picture of every screen and state in both themes in DIR, and of the gallery of the
// components. Nothing is taken away: what the pressed buttons ask for is only said to be done. The history is left
// alone: that of the tour goes to a folder that is thrown away. With --home records and Trash are those of a home made
// by `tools/sample_home --history`. There is something for every state in it, so there the tour fails if it misses one;
// elsewhere it passes over what the disk does not have. It fails too where Qt or the QML engine has anything to warn
// of.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "PausingDirectories.h"
#include "PretendingServices.h"
#include "QtMessages.h"
#include "ScratchLocations.h"
#include "Tour.h"
#include "platform/NativePlatform.h"
#include "ui/shell/Application.h"

namespace {

QSize sizeFrom(const QString& text) {
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // What tells where the user's things are must be in place before anything asks.
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--home") != 0) continue;
        qputenv("HOME", QDir(QString::fromLocal8Bit(argv[i + 1])).absolutePath().toLocal8Bit());
        qunsetenv("XDG_DATA_HOME");
    }
    // Nobody is logged in where there is no display, and Qt warns of what a login brings.
    const QTemporaryDir runtime;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    zelk::tour::keepQtMessages();
    QApplication application(argc, argv);
    zelk::dressApplication();

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Takes pictures of every screen in both themes."));
    options.addHelpOption();
    options.addOption({QStringLiteral("out"), QStringLiteral("Folder for the pictures."), QStringLiteral("DIR")});
    options.addOption({QStringLiteral("root"), QStringLiteral("What to survey."), QStringLiteral("PATH")});
    options.addOption(
        {QStringLiteral("home"), QStringLiteral("Whose records and Trash are shown."), QStringLiteral("DIR")});
    options.addOption({QStringLiteral("size"), QStringLiteral("Size of the window."), QStringLiteral("WxH"),
                       QStringLiteral("1120x720")});
    options.process(application);
    const QSize size = sizeFrom(options.value(QStringLiteral("size")));
    const QString folder = options.value(QStringLiteral("out"));
    const QString root = options.value(QStringLiteral("root"));
    if (folder.isEmpty() || root.isEmpty() || size.isEmpty()) options.showHelp(2);
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "tour: cannot make %s\n", qPrintable(folder));
        return EXIT_FAILURE;
    }

    const bool sample = options.isSet(QStringLiteral("home"));
    zelk::NativePlatform native;
    const zelk::Platform& real = native.platform();
    zelk::tour::Pretence pretence;
    zelk::tour::PausingDirectories directories(real.directories);
    zelk::tour::PretendingClock clock(real.clock, pretence);
    zelk::tour::PretendingTrash trash(real.trash, pretence);
    zelk::tour::PretendingFiles files(real.files);
    zelk::tour::PretendingProcesses processes;
    zelk::tour::PretendingWorkspace workspace(real.workspace);
    // Each theme has the records as they were found, so that its survey has the same to tell.
    zelk::tour::ScratchLocations forDark(real.locations, sample);
    zelk::tour::ScratchLocations forLight(real.locations, sample);

    bool complete = true;
    for (const bool dark : {true, false}) {
        const zelk::Platform platform{clock,      directories, files,    trash, real.vitals, dark ? forDark : forLight,
                                      real.tasks, processes,   workspace};
        zelk::AppModel app(platform);
        app.setScanRoots({QDir(root).absolutePath().toStdString()});
        complete = complete && zelk::tour::Tour(app, directories, pretence, {folder, size, dark, sample}).run();
    }
    directories.resume();
    for (const QString& message : zelk::tour::takeQtMessages()) {
        std::fprintf(stderr, "tour: a message of Qt: %s\n", qPrintable(message));
        complete = false;
    }
    const int status = complete ? EXIT_SUCCESS : EXIT_FAILURE;
    if (!native.drain(10)) std::_Exit(status);
    return status;
}
