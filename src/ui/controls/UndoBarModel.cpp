// SPDX-License-Identifier: MIT
#include "ui/controls/UndoBarModel.h"

#include <QStringList>
#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

UndoBarModel::UndoBarModel(AppModel& app, RemovalUndo::Source source)
    : app_(app), removal_(app.removalUndo()), source_(source) {
    connect(&removal_, &RemovalUndo::offered, this, &UndoBarModel::showOffer);
    connect(&removal_, &RemovalUndo::changed, this, &UndoBarModel::changed);
    connect(&removal_, &RemovalUndo::ended, this, &UndoBarModel::showOutcome);
    if (!RemovalUndo::isOfSurvey(source_)) {
        connect(&app, &AppModel::trashChanged, this, [this] {
            if (app_.emptyingTrash()) hideUnlessRestoring();
        });
        return;
    }
    connect(&app.removals(), &RemovalsModel::underWayChanged, this, [this] {
        if (app_.removals().underWay()) hideUnlessRestoring();
    });
    connect(&app, &AppModel::scanPhaseChanged, this, [this] {
        if (app_.scanPhase() == AppModel::ScanPhase::scanning) hideUnlessRestoring();
    });
}

bool UndoBarModel::undoable() const {
    return state_ == State::offered && removal_.restorable() > 0;
}

QString UndoBarModel::spoken() const {
    QStringList sentences = details_.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    sentences.prepend(text_);
    return sentences.join(QLatin1Char(' '));
}

void UndoBarModel::undo() {
    if (!undoable()) return;
    offeredMeanwhile_ = false;
    show(State::restoring, tr("Restoring…"));
    app_.undoLastRemoval();
}

void UndoBarModel::dismiss() {
    show(State::hidden, {});
}

void UndoBarModel::show(State state, const QString& text, const QString& details) {
    state_ = state;
    text_ = text;
    details_ = details;
    emit changed();
}

void UndoBarModel::showOffer() {
    if (state_ == State::restoring) {
        offeredMeanwhile_ = true;  // shown after the outcome of the undo
        return;
    }
    if (removal_.source() == source_)
        show(State::offered, tr("Moved to the Trash"));
    else
        hideUnlessRestoring();
}

void UndoBarModel::showOutcome(const RemovalUndo::Outcome& outcome) {
    if (state_ != State::restoring) return;
    const std::size_t missing = outcome.failures.size() + outcome.notFound;
    if (missing == 0 && std::exchange(offeredMeanwhile_, false)) {
        state_ = State::hidden;
        showOffer();
        return emit changed();
    }
    // Chooses the English singular here, since English has no translation file and so no plural forms. Translations
    // have theirs in the second text.
    const auto restored = static_cast<int>(outcome.restored);
    QStringList sentences;
    if (restored > 0)
        sentences += restored == 1 ? tr("1 item was restored.") : tr("%n items were restored.", "", restored);
    if (missing > 0)
        sentences += missing == 1 ? tr("1 item stays in the Trash.")
                                  : tr("%n items stay in the Trash.", "", static_cast<int>(missing));
    QStringList reasons;
    constexpr std::size_t maximumReasons = 3;
    for (const std::string& failure : outcome.failures) {
        if (reasons.size() == static_cast<qsizetype>(maximumReasons)) break;
        reasons += displayText(failure);
    }
    if (outcome.failures.size() == maximumReasons + 1)
        reasons += tr("And 1 more.");
    else if (outcome.failures.size() > maximumReasons)
        reasons += tr("And %n more.", "", static_cast<int>(outcome.failures.size() - maximumReasons));
    if (outcome.notFound == 1)
        reasons += tr("The system did not say where 1 of them is there.");
    else if (outcome.notFound > 1)
        reasons += tr("The system did not say where %n of them are there.", "", static_cast<int>(outcome.notFound));
    show(State::ended, sentences.join(QLatin1Char(' ')), reasons.join(QLatin1Char('\n')));
}

/// Keeps the bar while an undo runs, so that its result is shown.
void UndoBarModel::hideUnlessRestoring() {
    if (state_ == State::offered || state_ == State::ended) dismiss();
}

}  // namespace zelk

#include "moc_UndoBarModel.cpp"
