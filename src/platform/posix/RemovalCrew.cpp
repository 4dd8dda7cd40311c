// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalCrew.h"

#include <iterator>
#include <utility>

namespace zelk {

RemovalCrew::RemovalCrew(int parent, const std::string& item, Size size)
    : FellowRemovers(item), size_(size), helpers_(size.helpers) {
    FellowRemovers& fellows = *this;
    Job& whole = jobs_.emplace_back(fellows, parent);
    whole.place = jobs_.begin();
    ready_.push_back(&whole);
}

Failure RemovalCrew::run() {
    work();
    helpers_.wait();
    return failure_;
}

void RemovalCrew::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        while (ready_.empty() && working_ > 0) {
            ++idle_;
            noteWanted();
            changed_.wait(lock);
            --idle_;
            noteWanted();
        }
        if (ready_.empty()) return changed_.notify_all();
        Job& job = *ready_.back();
        ready_.pop_back();
        noteWanted();
        ++working_;
        lock.unlock();
        const TreeRemover::State state = job.run();
        lock.lock();
        --working_;
        settle(job, state);
    }
}

bool RemovalCrew::wantFolders(std::size_t removed) {
    return wanted_.load(std::memory_order_relaxed) || (removed >= size_.large && helpers_.mayStart());
}

std::unique_ptr<RemovalPermit> RemovalCrew::permitForShare() {
    const std::lock_guard lock(mutex_);
    if (jobs_.size() >= maximumJobs || (!ready_.empty() && ready_.size() >= idle_)) return nullptr;
    return RemovalPermit::ifFree();
}

void RemovalCrew::take(TreeRemover& giver, FolderShare share) {
    auto& from = static_cast<Job&>(giver);
    const std::lock_guard lock(mutex_);
    // Of the folders that were given to the giver itself, its own giver waits for all.
    const bool passedOn = share.level == 0;
    Job* const owner = passedOn ? from.giver : &from;
    const std::size_t level = passedOn ? from.level : share.level;
    FellowRemovers& fellows = *this;
    const auto place = jobs_.emplace(std::next(from.place), fellows, std::move(share));
    place->place = place;
    place->giver = owner;
    place->level = level;
    ++owner->away[level];
    if (from.isStopped()) place->stop();
    makeReady(*place);
    // Should no thread start, the giver does it itself once it has nothing else to do.
    if (ready_.size() > idle_) helpers_.start([this] { work(); });
}

void RemovalCrew::settle(Job& job, TreeRemover::State state) {
    switch (state) {
        case TreeRemover::State::done:
            return end(job);
        case TreeRemover::State::waiting:
            job.waits = job.away.contains(job.waitsAt());
            if (!job.waits) makeReady(job);
            return;
        case TreeRemover::State::failed:
            return fail(job);
        case TreeRemover::State::stopped:
            return;  // it stays away from its giver, which must not go on either
    }
}

void RemovalCrew::end(Job& job) {
    Job* const giver = job.giver;
    const std::size_t level = job.level;
    jobs_.erase(job.place);
    if (giver == nullptr || --giver->away.at(level) > 0) return;
    giver->away.erase(level);
    if (!giver->waits || giver->waitsAt() != level) return;
    giver->waits = false;
    makeReady(*giver);
}

/// One that was stopped comes after the failure that stopped it. One that was not comes before every earlier failure.
void RemovalCrew::fail(const Job& job) {
    if (job.isStopped()) return;
    failure_ = job.failure();
    for (auto later = std::next(job.place); later != jobs_.end(); ++later) later->stop();
}

void RemovalCrew::makeReady(Job& job) {
    ready_.push_back(&job);
    noteWanted();
    changed_.notify_one();
}

}  // namespace zelk
