// SPDX-License-Identifier: MIT
#include "state/RemovalsModel.h"

#include <algorithm>

namespace zelk {

namespace {

constexpr int progressInterval = 500;  // milliseconds

}  // namespace

RemovalsModel::RemovalsModel() {
    timer_.setInterval(progressInterval);
    connect(&timer_, &QTimer::timeout, this, &RemovalsModel::tellProgress);
}

std::shared_ptr<Removal> RemovalsModel::begin(std::size_t items) {
    auto removal = std::make_shared<Removal>(items, [this, sender = mainThread_.sender()](const Removal& ended) {
        sender.post([this, &ended] { end(ended); });  // running_ keeps it alive until then
    });
    if (stopping_) removal->stop();
    if (items == 0) return removal;
    running_.push_back(removal);
    if (running_.size() > 1) return removal;
    signalled_ = {};
    timer_.start();
    emit underWayChanged();
    return removal;
}

RemovalsModel::Progress RemovalsModel::progress() const {
    Progress all;
    for (const std::shared_ptr<Removal>& removal : running_) {
        all.done += removal->done();
        all.items += removal->items();
    }
    return all;
}

void RemovalsModel::stop() {
    if (!underWay()) return;
    stopping_ = true;
    for (const std::shared_ptr<Removal>& removal : running_) removal->stop();
}

void RemovalsModel::end(const Removal& removal) {
    std::erase_if(running_, [&](const std::shared_ptr<Removal>& one) { return one.get() == &removal; });
    if (underWay()) return;
    stopping_ = false;
    timer_.stop();
    emit underWayChanged();
}

void RemovalsModel::tellProgress() {
    const Progress now = progress();
    if (now == signalled_) return;
    signalled_ = now;
    emit progressChanged();
}

}  // namespace zelk

#include "moc_RemovalsModel.cpp"
