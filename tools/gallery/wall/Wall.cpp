// SPDX-License-Identifier: MIT
#include "wall/Wall.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickItem>
#include <cstdio>
#include <utility>
#include <vector>

#include "Camera.h"
#include "ui/shell/Application.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

void qml_register_types_Zelk_Gallery();

namespace zelk {

namespace {

using tour::waitUntil;

// Pixels around an item that its picture includes, for the focus ring.
constexpr int rim = 6;
constexpr int firstHeight = 860;
// An empty spot of the wall.
constexpr QPointF corner(1, 1);

void registerGallery() {
    static bool registered = false;
    if (std::exchange(registered, true)) return;
    registerInterface();
    qml_register_types_Zelk_Gallery();
}

template <class T>
T& singleton(QQmlEngine& engine, const char* name) {
    return *engine.singletonInstance<T*>(qmlTypeId("Zelk.Controls", 1, 0, name));
}

/// All items whose object name is the state, from top to bottom.
std::vector<QQuickItem*> itemsIn(QQuickItem& wall, const char* state) {
    std::vector<QQuickItem*> found;
    if (wall.objectName() == QLatin1String(state)) found.push_back(&wall);
    for (QQuickItem* child : wall.childItems()) {
        const std::vector<QQuickItem*> below = itemsIn(*child, state);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

/// The item that takes the focus: `item` itself or its first focusable descendant.
QQuickItem* controlOf(QQuickItem& item) {
    if (item.isFocusScope() || item.activeFocusOnTab()) return &item;
    for (QQuickItem* child : item.childItems())
        if (QQuickItem* found = controlOf(*child)) return found;
    return nullptr;
}

/// The point to hover or press: the centre, or where `pointAt` says.
QPointF pointIn(const QQuickItem& item) {
    const QVariant share = item.property("pointAt");
    return item.mapToScene({item.width() * (share.isValid() ? share.toReal() : 0.5), item.height() / 2});
}

}  // namespace

GalleryWall::GalleryWall(const ZelkTheme& theme, double textScale) {
    registerGallery();
    view_.engine()->addImportPath(QStringLiteral("qrc:/"));
    singleton<Theme>(*view_.engine(), "Theme").show(theme);
    singleton<TextScale>(*view_.engine(), "TextScale").setFactor(textScale);
    view_.setTitle(QStringLiteral("Zelk gallery"));
    view_.setColor(theme.ground);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.setSource(QUrl(QStringLiteral("qrc:/Zelk/Gallery/Gallery.qml")));
    if (const QQuickItem* wall = view_.rootObject()) view_.resize(static_cast<int>(wall->implicitWidth()), firstHeight);
}

void GalleryWall::show() {
    view_.show();
}

QImage GalleryWall::photograph() {
    if (view_.rootObject() == nullptr) return {};
    // Pictures must not show the middle of an animation.
    singleton<Motion>(*view_.engine(), "Motion").setReduced(true);
    show();
    // Only the active window has the focus.
    view_.requestActivate();
    waitUntil([this] { return view_.isExposed() && view_.isActive(); });
    // The implicit height is known after the first frame.
    view_.grabWindow();
    QQuickItem& wall = *view_.rootObject();
    const QSize size(view_.width(), static_cast<int>(wall.implicitHeight()));
    view_.resize(size);
    waitUntil([&] { return wall.size() == QSizeF(size); });

    // There is only one pointer and one focus, so each state is a grab of its own, pasted into the picture.
    QImage photograph = view_.grabWindow();
    QPainter painter(&photograph);
    using Action = bool (GalleryWall::*)(QQuickItem&, QPainter&);
    for (const auto& [state, act] : {std::pair<const char*, Action>("hovered", &GalleryWall::hover),
                                     std::pair<const char*, Action>("pressed", &GalleryWall::press),
                                     std::pair<const char*, Action>("focused", &GalleryWall::focus),
                                     std::pair<const char*, Action>("opened", &GalleryWall::open)}) {
        for (QQuickItem* item : itemsIn(wall, state)) {
            if ((this->*act)(*item, painter)) continue;
            std::fprintf(stderr, "gallery: one of type %s is not %s\n", item->metaObject()->className(), state);
            return {};
        }
    }
    return photograph;
}

void GalleryWall::point(QEvent::Type type, QPointF place, Qt::MouseButtons held) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, view_.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&view_, &event);
}

bool GalleryWall::hover(QQuickItem& item, QPainter& photograph) {
    point(QEvent::MouseMove, pointIn(item));
    copy(item, photograph);
    point(QEvent::MouseMove, corner);
    return true;
}

bool GalleryWall::press(QQuickItem& item, QPainter& photograph) {
    point(QEvent::MouseMove, pointIn(item));
    point(QEvent::MouseButtonPress, pointIn(item), Qt::LeftButton);
    copy(item, photograph);
    // Releasing elsewhere does not click.
    point(QEvent::MouseMove, corner, Qt::LeftButton);
    point(QEvent::MouseButtonRelease, corner);
    return true;
}

bool GalleryWall::focus(QQuickItem& item, QPainter& photograph) {
    QQuickItem* control = controlOf(item);
    if (control == nullptr) return false;
    control->forceActiveFocus(Qt::TabFocusReason);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(&view_, &release);
    copy(item, photograph);
    return control->hasActiveFocus();
}

bool GalleryWall::open(QQuickItem& item, QPainter& photograph) {
    auto* popup = item.property("popup").value<QObject*>();
    if (popup == nullptr || !QMetaObject::invokeMethod(popup, "open")) return false;
    waitUntil([&] { return popup->property("opened").toBool(); });
    copy(item, photograph);
    QMetaObject::invokeMethod(popup, "close");
    waitUntil([&] { return !popup->property("visible").toBool(); });
    return true;
}

void GalleryWall::copy(const QQuickItem& item, QPainter& photograph) {
    const QRect part = item.mapRectToScene(item.boundingRect()).toAlignedRect().adjusted(-rim, -rim, rim, rim);
    const QImage grab = view_.grabWindow();
    const qreal ratio = grab.devicePixelRatio();
    photograph.drawImage(part, grab, QRectF(part.topLeft() * ratio, part.size() * ratio));
}

}  // namespace zelk
