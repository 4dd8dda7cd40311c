// SPDX-License-Identifier: MIT
#include "ui/controls/DialogScope.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickWindow>
#include <algorithm>
#include <vector>

namespace zelk {

namespace {

/// Reads `Accessible.ignored`. Qt does not export the class of the attached object.
bool isIgnored(const QQuickItem& item) {
    const QObjectList& parts = item.children();
    return std::any_of(parts.begin(), parts.end(), [](const QObject* part) {
        return part->inherits("QQuickAccessibleAttached") && part->property("ignored").toBool();
    });
}

/// The nearest accessible descendants of `item`, in child order.
std::vector<QAccessibleInterface*> accessibleChildren(const QQuickItem& item) {
    std::vector<QAccessibleInterface*> found;
    const auto children = item.childItems();
    std::vector<QQuickItem*> pending(children.rbegin(), children.rend());
    while (!pending.empty()) {
        QQuickItem* next = pending.back();
        pending.pop_back();
        QAccessibleInterface* accessible = isIgnored(*next) ? nullptr : QAccessible::queryAccessibleInterface(next);
        if (accessible != nullptr) {
            found.push_back(accessible);
            continue;
        }
        const auto inside = next->childItems();
        pending.insert(pending.end(), inside.rbegin(), inside.rend());
    }
    return found;
}

class AccessibleDialog : public QAccessibleObject {
public:
    explicit AccessibleDialog(DialogScope& dialog) : QAccessibleObject(&dialog) {}

    QWindow* window() const override { return dialog().window(); }
    QAccessibleInterface* parent() const override {
        return window() == nullptr ? nullptr : QAccessible::queryAccessibleInterface(dialog().window());
    }
    int childCount() const override { return static_cast<int>(accessibleChildren(dialog()).size()); }
    QAccessibleInterface* child(int index) const override {
        const auto children = accessibleChildren(dialog());
        const auto at = static_cast<std::size_t>(index);
        return index >= 0 && at < children.size() ? children[at] : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto children = accessibleChildren(dialog());
        const auto at = std::find(children.begin(), children.end(), child);
        return at == children.end() ? -1 : static_cast<int>(at - children.begin());
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? dialog().title() : QString();
    }
    QRect rect() const override {
        if (dialog().window() == nullptr) return {};
        const QRectF box = dialog().mapRectToScene(dialog().boundingRect());
        return {dialog().window()->mapToGlobal(box.topLeft().toPoint()), box.size().toSize()};
    }
    QAccessible::Role role() const override { return QAccessible::Dialog; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.modal = true;
        state.active = dialog().hasActiveFocus();
        state.invisible = !dialog().isVisible() || window() == nullptr || !window()->isVisible();
        return state;
    }

private:
    DialogScope& dialog() const { return *static_cast<DialogScope*>(object()); }
};

QAccessibleInterface* createAccessibleDialog(const QString& type, QObject* object) {
    auto* dialog = qobject_cast<DialogScope*>(object);
    const bool ours = dialog != nullptr && type == QLatin1String(DialogScope::staticMetaObject.className());
    return ours ? new AccessibleDialog(*dialog) : nullptr;  // Qt owns it
}

}  // namespace

DialogScope::DialogScope(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
}

void DialogScope::setTitle(const QString& title) {
    if (title == title_) return;
    title_ = title;
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    emit titleChanged();
}

void installDialogReading() {
    QAccessible::installFactory(&createAccessibleDialog);
}

}  // namespace zelk

#include "moc_DialogScope.cpp"
