// SPDX-License-Identifier: MIT
#include "ui/screens/system/SnapshotRows.h"

#include <QDateTime>
#include <QRegularExpression>
#include <map>
#include <string_view>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

/// Qt has a date in full or in digits only: this is the one in full, without the day of the week.
QString abbreviatedDateFormat(const QLocale& locale) {
    static const QRegularExpression dayOfWeek(QStringLiteral("[\\s,،、]*\\bdddd\\b[\\s,،、]*|dddd"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.replace(dayOfWeek, QStringLiteral(" "));
    format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
    return format.trimmed();
}

QString kindOf(const LocalSnapshot& snapshot) {
    return snapshot.isOSUpdate ? SnapshotRows::tr("OS update") : SystemTexts::of(SystemTexts::SnapshotKind);
}

/// On macOS names are made by the system, and say what the row says already.
QString noteOf(const LocalSnapshot& snapshot) {
    return SystemTexts::shown() == SystemTexts::System::macOS ? QString() : displayText(snapshot.name);
}

QString dateOf(const LocalSnapshot& snapshot) {
    return snapshot.date ? shortDate(*snapshot.date) : SnapshotRows::tr("no date");
}

QString tagOf(const LocalSnapshot& snapshot) {
    return snapshot.purgeable ? SnapshotRows::tr("freeable") : SnapshotRows::tr("pinned");
}

}  // namespace

QString shortDate(TimePoint time, const QLocale& locale) {
    const QDateTime local = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(time));
    return isolated(SnapshotRows::tr("%1, %2", "a date and a time")
                        .arg(locale.toString(local.date(), abbreviatedDateFormat(locale)),
                             locale.toString(local.time(), QLocale::ShortFormat)));
}

void SnapshotRows::show(const std::vector<LocalSnapshot>& snapshots) {
    std::vector<Row> next;
    next.reserve(snapshots.size());
    std::map<std::string, int> seen;
    for (const LocalSnapshot& snapshot : snapshots) {
        const std::string key = snapshot.uuid + '\n' + snapshot.name;
        next.push_back({snapshot, key + '\n' + std::to_string(seen[key]++)});
    }
    edit(rows_, std::move(next), [](const Row& row) { return std::string_view(row.key); });
    allRowsChanged();
}

const LocalSnapshot* SnapshotRows::at(int row) const {
    return has(row) ? &rows_[static_cast<std::size_t>(row)].snapshot : nullptr;
}

QVariant SnapshotRows::value(std::size_t row, int role) const {
    const LocalSnapshot& snapshot = rows_[row].snapshot;
    switch (role) {
        case kindRole:
            return kindOf(snapshot);
        case noteRole:
            return noteOf(snapshot);
        case dateRole:
            return dateOf(snapshot);
        case purgeableRole:
            return snapshot.purgeable;
        case tagRole:
            return tagOf(snapshot);
        case spokenRole:
            return AccessibleText::joined({kindOf(snapshot), noteOf(snapshot), dateOf(snapshot), tagOf(snapshot)});
        case deleteNameRole:
            // Many may have one name, as those that are made by the clock.
            return AccessibleText::joined({tr("Delete snapshot %1").arg(displayText(snapshot.name)),
                                           snapshot.date ? shortDate(*snapshot.date) : QString()});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_SnapshotRows.cpp"
