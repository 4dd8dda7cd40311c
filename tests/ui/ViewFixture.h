// SPDX-License-Identifier: MIT
// One view of the interface alone in a real window, for the tests of its keyboard, its names and its room.
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
        singleton<TextScale>("TextScale").setFactor(1);  // whatever the desktop says
    }
    ~ViewFixture() override { close(); }

    template <class T>
    T& singleton(const char* name) {
        return *engine_.singletonInstance<T*>(qmlTypeId("Zelk.Controls", 1, 0, name));
    }

    /// Shows the view of a module that takes `model` as its `property`, filling a window of this size.
    void show(const QString& module, const QString& type, const char* property, QObject* model, QSize size) {
        show(QStringLiteral("import QtQuick\nimport %1\n%2 { focus: true }").arg(module, type), size,
             {{QString::fromLatin1(property), QVariant::fromValue(model)}});
    }
    /// Shows what this text tells, filling a window of this size.
    void show(const QString& source, QSize size, const QVariantMap& properties = {}) {
        QQmlComponent component(&engine_);
        component.setData(source.toUtf8(), QUrl(QStringLiteral("qrc:/test.qml")));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        window_ = std::make_unique<QQuickWindow>();
        window_->resize(size);
        view_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
        ASSERT_NE(view_, nullptr) << component.errorString().toStdString();
        // This platform cannot have a screen reader, but the controls take their roles as if one were there.
        QAccessible::setActive(true);
        view_->setParentItem(window_->contentItem());
        view_->setSize(size);
        window_->show();
        runUntil([&] { return window_->isExposed() && window_->isActive(); });
        settle();
    }
    /// The view reads its model: a fixture that holds the model closes first.
    void close() {
        view_.reset();
        window_.reset();
    }

    QQuickWindow& window() { return *window_; }
    QQuickItem& view() { return *view_; }

    /// Lays out what has changed.
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
    /// What has the keyboard, as a screen reader says it.
    std::string focusName() { return nameOf(window_->activeFocusItem()); }
    bool focusIsRinged() { return window_->activeFocusItem()->property("visualFocus").toBool(); }

    /// The names of all that the Tab key comes to, once round, from where the keyboard is.
    std::vector<std::string> tabOrder() {
        std::vector<std::string> names;
        const QQuickItem* first = window_->activeFocusItem();
        do {
            names.push_back(focusName());
            press(Qt::Key_Tab);
        } while (window_->activeFocusItem() != first && names.size() < 40);
        return names;
    }

    /// All items that are seen, each before its children, and those in their order.
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

    /// The texts that are seen, figures too, in the order in which a screen reader comes to them.
    std::vector<std::string> seenTexts() {
        std::vector<std::string> texts;
        for (QQuickItem* item : seen()) {
            const QString text = item->property("text").toString();
            const bool isText = item->inherits("QQuickText") || item->inherits("zelk::FigureText");
            if (isText && !text.isEmpty()) texts.push_back(text.toStdString());
        }
        return texts;
    }

    /// Each of these texts is seen.
    void expectTexts(std::initializer_list<const char*> wanted) {
        const std::vector<std::string> texts = seenTexts();
        for (const char* text : wanted) EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
    }

    /// The item that shows this text itself; nullptr if none is seen.
    QQuickItem* showing(const char* text) {
        for (QQuickItem* item : seen())
            if (item->property("text").toString() == QString::fromUtf8(text) &&
                (item->inherits("QQuickText") || item->inherits("zelk::FigureText")))
                return item;
        return nullptr;
    }
    /// In points at the normal text size; 0 if the text is not seen.
    double sizeOf(const char* text) {
        const QQuickItem* item = showing(text);
        if (item == nullptr) return 0;
        const QVariant own = item->property("pixelSize");
        return own.isValid() ? own.toDouble() : item->property("font").value<QFont>().pixelSize();
    }
    /// The symbol of this name that is seen; nullptr if there is none, or more than one.
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
    /// The side of a symbol that looks as large as a text of this size.
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

    /// Every text is inside the window from left to right, shows all its lines, and keeps off every other text.
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

    /// What has the keyboard is in sight as a whole.
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
