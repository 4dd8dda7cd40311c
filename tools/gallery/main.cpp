// SPDX-License-Identifier: MIT
// gallery [--out FILE] [--text-scale FACTOR]: every component of the interface in every state, the dark theme in one
// window and the light one in another. With --out it needs no display and leaves a picture of both side by side.

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "GalleryModel.h"
#include "ui/shell/Application.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

void qml_register_types_Zelk_Gallery();

namespace {

template <class T>
T& singleton(QQmlEngine& engine, const char* name) {
    return *engine.singletonInstance<T*>(qmlTypeId("Zelk.Theme", 1, 0, name));
}

std::unique_ptr<QQuickView> wall(const zelk::ZelkTheme& theme, double textScale, bool still) {
    auto view = std::make_unique<QQuickView>();
    view->engine()->addImportPath(QStringLiteral("qrc:/"));
    singleton<zelk::Theme>(*view->engine(), "Theme").show(theme);
    singleton<zelk::TextScale>(*view->engine(), "TextScale").setFactor(textScale);
    singleton<zelk::Motion>(*view->engine(), "Motion").setReduced(still);
    view->setTitle(QStringLiteral("Zelk gallery"));
    view->setSource(QUrl(QStringLiteral("qrc:/Zelk/Gallery/Gallery.qml")));
    if (view->rootObject() == nullptr) std::exit(EXIT_FAILURE);
    view->show();
    return view;
}

/// The pointer on a bubble of one map, and the keyboard at the other.
void pointAtBubbles(QQuickView& view) {
    const auto* map = view.rootObject()->findChild<QQuickItem*>(QStringLiteral("bubbles"));
    const QPointF point = map->mapToScene({map->width() * 0.46, map->height() * 0.5});
    QMouseEvent move(QEvent::MouseMove, point, view.mapToGlobal(point), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    view.rootObject()->findChild<QQuickItem*>(QStringLiteral("plainBubbles"))->forceActiveFocus(Qt::TabFocusReason);
}

bool photograph(const std::vector<QQuickWindow*>& walls, const QString& file) {
    std::vector<QImage> pictures;
    QSize size;
    for (QQuickWindow* window : walls) {
        pictures.push_back(window->grabWindow());
        size = QSize(size.width() + pictures.back().width(), std::max(size.height(), pictures.back().height()));
    }
    QImage all(size, QImage::Format_RGB32);
    QPainter painter(&all);
    int left = 0;
    for (const QImage& picture : pictures) {
        painter.drawImage(left, 0, picture);
        left += picture.width();
    }
    painter.end();
    return all.save(file, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--out") != 0) continue;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }
    QGuiApplication application(argc, argv);
    zelk::dressApplication();
    zelk::registerInterface();
    qml_register_types_Zelk_Gallery();

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows every component of the interface in both themes."));
    options.addHelpOption();
    options.addOption({QStringLiteral("out"), QStringLiteral("Where the picture goes."), QStringLiteral("FILE")});
    options.addOption({QStringLiteral("text-scale"), QStringLiteral("How large the texts are."),
                       QStringLiteral("FACTOR"), QStringLiteral("1")});
    options.process(application);
    const QString file = options.value(QStringLiteral("out"));
    const double textScale = options.value(QStringLiteral("text-scale")).toDouble();

    const auto dark = wall(zelk::ZelkTheme::dark(), textScale, !file.isEmpty());
    const auto light = wall(zelk::ZelkTheme::light(), textScale, !file.isEmpty());
    if (file.isEmpty()) return QGuiApplication::exec();
    for (QQuickView* view : {dark.get(), light.get()}) {
        // The first frame lays out what the height depends on.
        view->grabWindow();
        view->resize(view->width(), static_cast<int>(view->rootObject()->implicitHeight()));
    }
    QCoreApplication::processEvents();
    for (QQuickView* view : {dark.get(), light.get()}) pointAtBubbles(*view);
    if (photograph({dark.get(), light.get()}, file)) return EXIT_SUCCESS;
    std::fprintf(stderr, "gallery: cannot write %s\n", qPrintable(file));
    return EXIT_FAILURE;
}
