// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/SafetyGuide.h"

#include "reclaim/ReclaimCatalogue.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/SafetyLook.h"

namespace zelk {

namespace {

QString meaningOf(ReclaimSafety safety) {
    switch (safety) {
        case ReclaimSafety::safe:
            return SafetyGuide::tr("Pure caches and logs. Zero risk — the app simply rebuilds them as needed.");
        case ReclaimSafety::regenerates:
            return SafetyGuide::tr(
                "Build output like node_modules and build caches. Safe to delete; recreated automatically on your next "
                "build or install (the first one is slower).");
        case ReclaimSafety::review:
            return SafetyGuide::tr(
                "May include things you chose to keep — device backups, virtual environments, saved state. Review "
                "before removing; left unchecked by default.");
    }
    return {};
}

}  // namespace

QString SafetyGuide::title() const {
    return tr("What's safe to remove?");
}

QString SafetyGuide::closing() const {
    return tr("Everything moves to the Trash, so any removal is reversible until you empty it.");
}

QString SafetyGuide::spoken() const {
    QStringList texts{title()};
    for (const ReclaimSafety safety : allReclaimSafeties) texts << wordOf(safety) << meaningOf(safety);
    texts << closing();
    return AccessibleText::joined(texts);
}

QVariant SafetyGuide::value(std::size_t row, int role) const {
    const ReclaimSafety safety = allReclaimSafeties[row];
    switch (role) {
        case Qt::DisplayRole:
        case gradeRole:
            return wordOf(safety);
        case tintRole:
            return colorOf(safety);
        case meaningRole:
            return meaningOf(safety);
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_SafetyGuide.cpp"
