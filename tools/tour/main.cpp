// SPDX-License-Identifier: MIT
// tour --out DIR --root PATH [--home DIR] [--size WxH]: runs the real window on the real file system without a display,
// presses its buttons, and saves a picture of every screen and state in both themes in DIR, and of the gallery. Nothing
// is removed: the services only report success. The tour's history goes to a temporary folder. With --home, history and
// Trash are those of a home made by `tools/sample_home --history`, which has something for every state: the tour then
// fails if it misses one. Otherwise it skips what the disk does not have. It also fails if Qt or the QML engine prints
// a warning.

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
    // Set before anything reads the user's locations.
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--home") != 0) continue;
        qputenv("HOME", QDir(QString::fromLocal8Bit(argv[i + 1])).absolutePath().toLocal8Bit());
        qunsetenv("XDG_DATA_HOME");
    }
    // Without a login there is no runtime folder, and Qt warns about that.
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
    // Each theme starts with the original history, so that its survey shows the same changes.
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
