// SPDX-License-Identifier: MIT
// tour --out DIR --root PATH [--home DIR] [--size WxH] [--pseudo [--mirrored] | --language CODE]: runs the real window
// on the real file system without a display, presses its buttons, and saves a picture of every screen and state in both
// themes in DIR, and of the gallery. Nothing is removed: the services only report success. The tour's history goes to a
// temporary folder. With --home, history and Trash are those of a home made by `tools/sample_home --history`, which has
// something for every state: the tour then fails if it misses one. Otherwise it skips what the disk does not have. It
// also fails if Qt or the QML engine prints a warning. With --pseudo all texts are in a pseudo-language, in one theme,
// and the tour fails if a text is not translated or has no room for one that is 40% longer. With --mirrored too, that
// language is one from right to left, and the tour also fails if anything does not stand where the mirror image has it.
// With --language they are in a real one, as "de", and the tour fails if a text is not translated or has no room.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "MarkedLanguage.h"
#include "MirrorCheck.h"
#include "PausingContents.h"
#include "PausingDirectories.h"
#include "PretendingServices.h"
#include "PseudoLanguage.h"
#include "QtMessages.h"
#include "ScratchLocations.h"
#include "TextCheck.h"
#include "Tour.h"
#include "platform/NativePlatform.h"
#include "ui/shell/Application.h"
#include "ui/shell/Translations.h"
#include "ui/theme/DisplayText.h"

namespace {

QSize sizeFrom(const QString& text) {
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

/// The word after an option, read before there are tables of texts.
QString valueOf(const QString& option) {
    const QStringList words = QCoreApplication::arguments();
    const qsizetype at = words.indexOf(option);
    return at < 0 ? QString() : words.value(at + 1);
}

int failed(const char* why) {
    std::fprintf(stderr, "tour: %s\n", why);
    return EXIT_FAILURE;
}

void allowFolders(const zelk::FSNode& folder, zelk::tour::TextCheck& texts) {
    texts.allow(zelk::displayText(folder.name()));
    for (const zelk::FSNode& child : folder.children()) allowFolders(child, texts);
}

/// The names of the disk and of the machine are the same in every language.
void allowNames(zelk::AppModel& app, zelk::tour::TextCheck& texts) {
    texts.allow(QStringLiteral("Zelk"));
    for (const std::string& name : {app.device().computerName, app.device().chip, app.device().osVersion})
        texts.allow(zelk::displayText(name));
    for (const std::string& root : app.scanRoots()) texts.allow(zelk::nameText(root));
    if (app.root()) allowFolders(*app.root(), texts);
    for (const zelk::LargeFile& file : app.insights().topFiles) texts.allow(zelk::nameText(file.path));
    for (const zelk::LargeFile& image : app.insights().diskImages) texts.allow(zelk::nameText(image.path));
    for (const QString& text : zelk::tour::textsOfSnapshots()) texts.allow(text);
    for (const zelk::FolderChange& change : app.folderChanges().value_or(zelk::FolderChanges()).gone)
        texts.allow(zelk::nameText(change.path));
    for (const zelk::DuplicateGroup& group : app.duplicates().groups())
        for (const std::string& path : group.paths) texts.allow(zelk::displayText(path));
    // What a command answered, or the runner's own word for one that printed nothing.
    if (app.tune().lastOutput()) texts.allow(zelk::printedText(*app.tune().lastOutput()));
    for (const zelk::AppEntry& one : app.apps().apps()) {
        for (const std::string& text : {one.name, one.url, one.package, one.bundleID.value_or(one.url)})
            texts.allow(zelk::displayText(text));
        texts.allow(zelk::nameText(one.url));
        for (const zelk::Leftover& leftover : app.apps().leftoversFor(one)) texts.allow(zelk::nameText(leftover.url));
    }
    if (app.apps().lastEnding()) texts.allow(zelk::displayText(app.apps().lastEnding()->removal.words));
    for (const zelk::Agent& agent : app.tune().agents()) {
        texts.allow(zelk::displayText(agent.label));
        texts.allow(zelk::displayText(agent.path));
    }
    for (const zelk::Trace& trace : app.privacy().traces()) texts.allow(zelk::displayText(trace.paths.front()));
    for (const std::string& name : app.workspace().runningApplications()) texts.allow(zelk::displayText(name));
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
    // Installed before the first table of texts is made.
    const bool pseudo = QCoreApplication::arguments().contains(QStringLiteral("--pseudo"));
    const bool mirrored = pseudo && QCoreApplication::arguments().contains(QStringLiteral("--mirrored"));
    zelk::tour::PseudoLanguage language(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    if (pseudo) QCoreApplication::installTranslator(&language);
    const QString code = valueOf(QStringLiteral("--language"));
    // Also what the layers below say, and what Qt does.
    const zelk::Translations translations({code.isEmpty() ? QStringLiteral("en") : code},
                                          {zelk::tour::builtTranslations()});
    zelk::tour::MarkedLanguage marked(code);
    if (!code.isEmpty()) {
        if (!marked.isLoaded()) return failed("there is no such language");
        QCoreApplication::installTranslator(&marked);
        QLocale::setDefault(QLocale(code));
    }
    const bool checked = pseudo || !code.isEmpty();
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
    options.addOption({QStringLiteral("pseudo"), QStringLiteral("In a pseudo-language, whose texts are checked.")});
    options.addOption(
        {QStringLiteral("mirrored"), QStringLiteral("In one from right to left, whose layout is checked.")});
    options.addOption({QStringLiteral("language"), QStringLiteral("In this language, whose texts are checked."),
                       QStringLiteral("CODE")});
    options.process(application);
    const QSize size = sizeFrom(options.value(QStringLiteral("size")));
    const QString folder = options.value(QStringLiteral("out"));
    const QString root = options.value(QStringLiteral("root"));
    if (folder.isEmpty() || root.isEmpty() || size.isEmpty()) options.showHelp(2);
    if (!QDir().mkpath(folder)) return failed("cannot make the folder for the pictures");

    const bool sample = options.isSet(QStringLiteral("home"));
    zelk::NativePlatform native;
    const zelk::Platform& real = native.platform();
    zelk::tour::Pretence pretence;
    zelk::tour::PausingDirectories directories(real.directories);
    zelk::tour::PausingContents contents(real.contents);
    zelk::tour::PretendingClock clock(real.clock, pretence);
    zelk::tour::PretendingTrash trash(real.trash, pretence);
    zelk::tour::PretendingFiles files(real.files, pretence);
    zelk::tour::PretendingProcesses processes(pretence);
    zelk::tour::PretendingVitals vitals(real.vitals, pretence);
    zelk::tour::PretendingWorkspace workspace(real.workspace, pretence);
    // Each theme starts with the original history, so that its survey shows the same changes.
    zelk::tour::ScratchLocations forDark(real.locations, sample);
    zelk::tour::ScratchLocations forLight(real.locations, sample);

    bool complete = true;
    zelk::tour::TextCheck texts;
    zelk::tour::MirrorCheck mirror;
    for (const bool dark : {true, false}) {
        if (checked && !dark) break;
        const zelk::Platform platform{
            clock,      directories, files,     contents,   trash, vitals, dark ? forDark : forLight,
            real.tasks, processes,   workspace, real.system};
        zelk::AppModel app(platform);
        app.setScanRoots({QDir(root).absolutePath().toStdString()});
        const std::function<void(QQuickWindow&, const QString&)> inspect = [&](QQuickWindow& window,
                                                                               const QString& picture) {
            allowNames(app, texts);
            texts.allow(zelk::printedText(pretence.output()));
            texts.look(window, picture, !picture.startsWith(QStringLiteral("large-text")));
            if (mirrored) mirror.look(window, picture);
        };
        const zelk::tour::TourPlan plan{folder, size, dark, sample,
                                        checked ? inspect : std::function<void(QQuickWindow&, const QString&)>()};
        complete = complete && zelk::tour::Tour(app, directories, contents, pretence, plan).run();
    }
    for (const QString& finding : texts.findings() + mirror.findings()) {
        std::fprintf(stderr, "tour: %s\n", qPrintable(finding));
        complete = false;
    }
    for (const QString& missing : code.isEmpty() ? QStringList() : marked.takeMissing()) {
        std::fprintf(stderr, "tour: no translation of %s\n", qPrintable(missing));
        complete = false;
    }
    if (checked) std::printf("%lld texts in the language\n", static_cast<long long>(texts.translated()));
    if (mirrored)
        std::printf("%lld places compared with their mirror images\n", static_cast<long long>(mirror.compared()));
    directories.resume();
    contents.gate().resume();
    for (const QString& message : zelk::tour::takeQtMessages()) {
        std::fprintf(stderr, "tour: a message of Qt: %s\n", qPrintable(message));
        complete = false;
    }
    const int status = complete ? EXIT_SUCCESS : EXIT_FAILURE;
    if (!native.drain(10)) std::_Exit(status);
    return status;
}
