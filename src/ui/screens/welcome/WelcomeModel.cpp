// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/WelcomeModel.h"

#include <utility>

#include "ui/controls/Spring.h"

namespace zelk {

namespace {

constexpr double turnResponse = 0.5;  // seconds

}  // namespace

const std::vector<WelcomeModel::Page>& WelcomeModel::pages() {
    static const std::vector<Page> all{
        {QStringLiteral("internaldrive.fill"),
         {245, 166, 35},
         QStringLiteral("Welcome to Zelk"),
         QStringLiteral("A fast, private way to understand and clean your Mac.")},
        {QStringLiteral("circle.hexagongrid.fill"),
         {232, 91, 196},
         QStringLiteral("See your storage"),
         QStringLiteral("Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble "
                        "map you can drill into.")},
        {QStringLiteral("sparkles"),
         {50, 199, 123},
         QStringLiteral("Reclaim space safely"),
         QStringLiteral("Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so "
                        "it's always reversible.")},
        {QStringLiteral("hand.raised.fill"),
         {62, 155, 255},
         QStringLiteral("Private by design"),
         QStringLiteral("Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask "
                        "first.")},
    };
    return all;
}

QString WelcomeModel::skipLabel() const {
    return QStringLiteral("Skip");
}
QString WelcomeModel::backLabel() const {
    return QStringLiteral("Back");
}
QString WelcomeModel::primaryLabel() const {
    return onLastPage() ? QStringLiteral("Get Started") : QStringLiteral("Next");
}
QString WelcomeModel::title() const {
    return pages()[static_cast<std::size_t>(page_)].title;
}
QString WelcomeModel::position() const {
    return QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(rowCount());
}

int WelcomeModel::turnTime() const {
    return static_cast<int>(1'000 * springRest(turnResponse));
}
QEasingCurve WelcomeModel::turnEasing() const {
    return springEasing();
}

int WelcomeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pages().size());
}

QVariant WelcomeModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Page& page = pages()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case symbolRole:
            return page.symbol;
        case tintRole:
            return page.color;
        case Qt::DisplayRole:
        case titleRole:
            return page.title;
        case bodyRole:
            return page.body;
        case currentRole:
            return index.row() == page_;
        default:
            return {};
    }
}

QHash<int, QByteArray> WelcomeModel::roleNames() const {
    return {
        {symbolRole, "symbol"}, {tintRole, "tint"}, {titleRole, "title"}, {bodyRole, "body"}, {currentRole, "current"}};
}

void WelcomeModel::next() {
    if (!onLastPage()) show(page_ + 1);
}

void WelcomeModel::back() {
    if (backShown()) show(page_ - 1);
}

void WelcomeModel::pressPrimary() {
    if (onLastPage())
        emit finished();
    else
        next();
}

void WelcomeModel::show(int page) {
    const int before = std::exchange(page_, page);
    for (const int row : {before, page}) emit dataChanged(index(row), index(row), {currentRole});
    emit pageChanged();
}

}  // namespace zelk

#include "moc_WelcomeModel.cpp"
