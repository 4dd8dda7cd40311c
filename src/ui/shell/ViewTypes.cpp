// SPDX-License-Identifier: MIT
#include "ui/shell/ViewTypes.h"

#include <QDir>
#include <QQmlComponent>
#include <QUrl>
#include <algorithm>

namespace zelk {

ViewTypes::ViewTypes(QQmlEngine& engine) : engine_(engine) {}

ViewTypes::~ViewTypes() = default;

void ViewTypes::loadSoon(const QStringList& views) {
    for (const QString& view : views) load(view + QStringLiteral(".qml"));
}

void ViewTypes::loadAll() {
    all_ = true;
    waiting_ = QDir(QStringLiteral(":/Zelk/App")).entryList({QStringLiteral("*.qml")});
    loadNext();
}

bool ViewTypes::isLoading() const {
    return std::ranges::any_of(loaded_, [](const auto& component) { return component->isLoading(); });
}

void ViewTypes::load(const QString& view) {
    const QUrl url(QStringLiteral("qrc:/Zelk/App/") + view);
    QQmlComponent& component =
        *loaded_.emplace_back(std::make_unique<QQmlComponent>(&engine_, url, QQmlComponent::Asynchronous));
    if (component.isLoading())
        QObject::connect(&component, &QQmlComponent::statusChanged, &component, [this] { loadNext(); });
}

void ViewTypes::loadNext() {
    while (!isLoading() && !waiting_.isEmpty()) load(waiting_.takeFirst());
}

}  // namespace zelk
