// SPDX-License-Identifier: MIT
// gallery [--out FILE] [--text-scale FACTOR]: shows every control in every state, in a window per theme. With --out it
// needs no display and saves a picture of both themes side by side; it then fails if Qt or the QML engine prints a
// warning.

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QPainter>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "QtMessages.h"
#include "ui/shell/Application.h"
#include "wall/Wall.h"

namespace {

bool photograph(zelk::GalleryWall& left, zelk::GalleryWall& right, const QString& file) {
    const QImage first = left.photograph();
    const QImage second = right.photograph();
    if (first.isNull() || second.isNull()) return false;
    QImage both(first.width() + second.width(), std::max(first.height(), second.height()), QImage::Format_RGB32);
    QPainter painter(&both);
    painter.drawImage(0, 0, first);
    painter.drawImage(first.width(), 0, second);
    painter.end();
    if (both.save(file, "PNG")) return true;
    std::fprintf(stderr, "gallery: cannot write %s\n", qPrintable(file));
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--out") != 0) continue;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }
    zelk::tour::keepQtMessages();
    QGuiApplication application(argc, argv);
    zelk::dressApplication();

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows every component of the interface in both themes."));
    options.addHelpOption();
    options.addOption({QStringLiteral("out"), QStringLiteral("Where the picture goes."), QStringLiteral("FILE")});
    options.addOption({QStringLiteral("text-scale"), QStringLiteral("How large the texts are."),
                       QStringLiteral("FACTOR"), QStringLiteral("1")});
    options.process(application);
    const QString file = options.value(QStringLiteral("out"));
    const double textScale = options.value(QStringLiteral("text-scale")).toDouble();

    zelk::GalleryWall dark(zelk::ZelkTheme::dark(), textScale);
    zelk::GalleryWall light(zelk::ZelkTheme::light(), textScale);
    if (!file.isEmpty()) {
        const bool taken = photograph(dark, light, file);
        const QStringList messages = zelk::tour::takeQtMessages();
        for (const QString& message : messages)
            std::fprintf(stderr, "gallery: a message of Qt: %s\n", qPrintable(message));
        return taken && messages.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    dark.show();
    light.show();
    return QGuiApplication::exec();
}
