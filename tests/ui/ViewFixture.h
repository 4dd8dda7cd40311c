// SPDX-License-Identifier: MIT
// Shows a single view in a real window, to test its keyboard handling, accessible names and layout.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "Camera.h"
#include "state/AppModelFixture.h"
#include "ui/shell/Application.h"
#include "ui/theme/Motion.h"
#include "ui/theme/SymbolItem.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

namespace zelk {

class ViewFixture : public AppModelFixture {
protected:
    ViewFixture() {
        registerInterface();
        engine_.addImportPath(QStringLiteral("qrc:/"));
        singleton<Theme>("Theme").follow(model());
        singleton<Motion>("Motion").setReduced(true);
        singleton<TextScale>("TextScale").setFactor(1);  // independent of the desktop
    }
    ~ViewFixture() override { close(); }

    template <class T>
    T& singleton(const char* name) {
        return *engine_.singletonInstance<T*>(qmlTypeId("Zelk.Controls", 1, 0, name));
    }

    /// Shows this type of a QML module, with `model` as its `property`, in a window of this size.
    void show(const QString& module, const QString& type, const char* property, QObject* model, QSize size) {
        show(QStringLiteral("import QtQuick\nimport %1\n%2 { focus: true }").arg(module, type), size,
             {{QString::fromLatin1(property), QVariant::fromValue(model)}});
    }
    /// Shows this QML document, an item or a window, at this size.
    void show(const QString& source, QSize size, const QVariantMap& properties = {}) {
        QQmlComponent component(&engine_);
        component.setData(source.toUtf8(), QUrl(QStringLiteral("qrc:/test.qml")));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        QObject* made = component.createWithInitialProperties(properties);
        ASSERT_NE(made, nullptr) << component.errorString().toStdString();
        window_.reset(qobject_cast<QQuickWindow*>(made));
        if (!window_) window_ = std::make_unique<QQuickWindow>();
        window_->resize(size);
        view_.reset(qobject_cast<QQuickItem*>(made));
        // The offscreen platform has no screen reader; without this the controls would not set their roles.
        QAccessible::setActive(true);
        if (view_) {
            view_->setParentItem(window_->contentItem());
            view_->setSize(size);
        }
        window_->show();
        runUntil([&] { return window_->isExposed() && window_->isActive(); });
        settle();
    }
    /// Destroys the view, which reads its model: a fixture that owns the model calls this first.
    void close() {
        view_.reset();
        // The animations of the view are stopped while the window that drives them is there.
        if (window_) runWhatIsThere();
        window_.reset();
    }

    QQuickWindow& window() { return *window_; }
    QQuickItem& view() { return view_ ? *view_ : *window_->contentItem(); }

    /// Runs pending events and renders a frame, which applies the layout.
    void settle() {
        runWhatIsThere();
        window_->grabWindow();
    }

    void press(Qt::Key key) {
        tour::pressKey(*window_, key);
        settle();
    }
    void click(const char* name) {
        ASSERT_TRUE(tour::clickOn(*window_, QString::fromLatin1(name))) << name;
        settle();
    }
    QQuickItem* find(const char* name) { return tour::findControl(*window_, QString::fromLatin1(name)); }

    static std::string nameOf(QQuickItem* item) {
        QAccessibleInterface* control = QAccessible::queryAccessibleInterface(item);
        return control == nullptr ? std::string() : control->text(QAccessible::Name).toStdString();
    }
    /// The names that a screen reader finds inside of an item, in its order.
    static std::vector<std::string> namesInside(QQuickItem* item) {
        std::vector<std::string> names;
        std::vector<QAccessibleInterface*> pending{QAccessible::queryAccessibleInterface(item)};
        while (!pending.empty()) {
            QAccessibleInterface* part = pending.back();
            pending.pop_back();
            if (part == nullptr) continue;
            names.push_back(part->text(QAccessible::Name).toStdString());
            for (int child = part->childCount() - 1; child >= 0; --child) pending.push_back(part->child(child));
        }
        names.erase(names.begin());  // its own
        return names;
    }
    /// The accessible name of the focused item.
    std::string focusName() { return nameOf(window_->activeFocusItem()); }
    bool focusIsRinged() { return window_->activeFocusItem()->property("visualFocus").toBool(); }

    /// The accessible names in Tab order, one full cycle from the focused item.
    std::vector<std::string> tabOrder() {
        std::vector<std::string> names;
        const QQuickItem* first = window_->activeFocusItem();
        do {
            names.push_back(focusName());
            press(Qt::Key_Tab);
        } while (window_->activeFocusItem() != first && names.size() < 40);
        return names;
    }

    /// All visible items, parents before their children and siblings in order.
    std::vector<QQuickItem*> seen() {
        std::vector<QQuickItem*> found;
        std::vector<QQuickItem*> pending{window_->contentItem()};
        while (!pending.empty()) {
            QQuickItem* item = pending.back();
            pending.pop_back();
            if (!item->isVisible() || item->opacity() == 0) continue;
            found.push_back(item);
            const QList<QQuickItem*> children = item->childItems();
            for (auto child = children.rbegin(); child != children.rend(); ++child) pending.push_back(*child);
        }
        return found;
    }

    /// The visible texts, including figures, in the order in which a screen reader visits them.
    std::vector<std::string> seenTexts() {
        std::vector<std::string> texts;
        for (QQuickItem* item : seen()) {
            const QString text = item->property("text").toString();
            const bool isText = item->inherits("QQuickText") || item->inherits("zelk::NumberItem");
            if (isText && !text.isEmpty()) texts.push_back(text.toStdString());
        }
        return texts;
    }

    /// Expects each of these texts to be visible.
    void expectTexts(std::initializer_list<const char*> wanted) {
        const std::vector<std::string> texts = seenTexts();
        for (const char* text : wanted) EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
    }

    /// The visible item that shows exactly this text, or nullptr.
    QQuickItem* showing(const char* text) {
        for (QQuickItem* item : seen())
            if (item->property("text").toString() == QString::fromUtf8(text) &&
                (item->inherits("QQuickText") || item->inherits("zelk::NumberItem")))
                return item;
        return nullptr;
    }
    /// The font size of a text in points at the normal text scale, or 0 if it is not visible.
    double sizeOf(const char* text) {
        const QQuickItem* item = showing(text);
        if (item == nullptr) return 0;
        const QVariant own = item->property("pixelSize");
        return own.isValid() ? own.toDouble() : item->property("font").value<QFont>().pixelSize();
    }
    /// The only visible symbol of this name; nullptr if there is none or more than one.
    SymbolItem* symbol(const char* name) {
        SymbolItem* found = nullptr;
        for (QQuickItem* item : seen()) {
            auto* symbol = qobject_cast<SymbolItem*>(item);
            if (symbol == nullptr || symbol->name() != QLatin1String(name)) continue;
            if (found != nullptr) return nullptr;
            found = symbol;
        }
        return found;
    }
    /// The colours of all visible symbols of this name.
    std::vector<QColor> colorsOf(const char* name) {
        std::vector<QColor> colors;
        for (QQuickItem* item : seen())
            if (auto* symbol = qobject_cast<SymbolItem*>(item);
                symbol != nullptr && symbol->name() == QLatin1String(name))
                colors.push_back(symbol->color());
        return colors;
    }
    /// The side of a symbol that matches a text of this size.
    static int sideBesideText(double points) { return static_cast<int>(std::lround(points * 1.2)); }

    void expectAllControlsNamed() {
        int controls = 0;
        for (QQuickItem* item : seen()) {
            if (!item->activeFocusOnTab() || !item->isEnabled()) continue;
            ++controls;
            EXPECT_NE(nameOf(item), "") << item->metaObject()->className();
        }
        EXPECT_GT(controls, 0);
    }

    /// Expects every text to be inside the window horizontally, untruncated, and clear of all other texts.
    void expectNoTextClipped() {
        std::vector<std::pair<QRectF, std::string>> boxes;
        for (QQuickItem* item : seen()) {
            if (!item->inherits("QQuickText")) continue;
            const std::string text = item->property("text").toString().toStdString();
            const QRectF box = item->mapRectToScene(item->boundingRect());
            EXPECT_GE(box.left(), 0) << text;
            EXPECT_LE(box.right(), window_->width()) << text;
            EXPECT_FALSE(item->property("truncated").toBool()) << text;
            EXPECT_LE(item->property("contentWidth").toReal(), item->width() + 0.5) << text;
            EXPECT_LE(item->property("contentHeight").toReal(), item->height() + 0.5) << text;
            for (const auto& [other, said] : boxes)
                EXPECT_FALSE(other.adjusted(0.5, 0.5, -0.5, -0.5).intersects(box)) << text << " over " << said;
            boxes.emplace_back(box, text);
        }
        EXPECT_FALSE(boxes.empty());
    }

    /// Expects the focused item to be completely inside the window.
    void expectFocusInSight() {
        const QQuickItem* item = window_->activeFocusItem();
        const QRectF box = item->mapRectToScene(item->boundingRect());
        EXPECT_TRUE(QRectF(QPointF(), window_->size()).contains(box)) << focusName();
    }

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    std::unique_ptr<QQuickItem> view_;
};

}  // namespace zelk
