// SPDX-License-Identifier: MIT
#include "ui/shell/QuitQuestion.h"

#include <utility>

#include "state/RemovalsModel.h"

namespace zelk {

QuitQuestion::QuitQuestion(RemovalsModel& removals, std::function<void()> quit)
    : removals_(removals), quit_(std::move(quit)) {
    connect(&removals, &RemovalsModel::underWayChanged, this, &QuitQuestion::follow);
}

bool QuitQuestion::holds() const {
    return removals_.underWay();
}

void QuitQuestion::quit() {
    if (!holds()) return leave();
    if (!stopping()) go(Way::asking);
}

void QuitQuestion::quitUnasked() {
    if (!holds()) return leave();
    removals_.stop();
    go(Way::stopping);
}

bool QuitQuestion::stay() {
    if (way_ == Way::finishing) go(Way::none);
    return !left_ && !stopping();
}

bool QuitQuestion::endSession(bool mayAsk) {
    if (!holds()) return false;
    mayAsk ? quit() : quitUnasked();
    return mayAsk;
}

void QuitQuestion::cancel() {
    if (asking()) go(Way::none);
}

void QuitQuestion::finishFirst() {
    if (asking()) go(Way::finishing);
}

void QuitQuestion::stopNow() {
    if (!asking()) return;
    removals_.stop();
    go(Way::stopping);
}

void QuitQuestion::follow() {
    if (holds()) return;
    const bool leaving = way_ == Way::finishing || stopping();
    go(Way::none);
    if (leaving) leave();
}

void QuitQuestion::leave() {
    left_ = true;
    quit_();
}

void QuitQuestion::go(Way way) {
    if (way == way_) return;
    way_ = way;
    asked_ = asked_ || shown();
    emit changed();
}

}  // namespace zelk

#include "moc_QuitQuestion.cpp"
