// SPDX-License-Identifier: MIT
#include "state/TuneModel.h"

#include <QCollator>
#include <QPointer>
#include <algorithm>
#include <iterator>
#include <utility>

#include "state/TextFinder.h"
#include "state/UserLocale.h"
#include "system/MaintenanceLines.h"

namespace zelk {

namespace {

QCollator labelOrder() {
    QCollator order(userLocale());
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

/// Items of the same label stay in the order in which they were found.
void sortByLabel(std::vector<Agent>& agents) {
    const QCollator order = labelOrder();
    std::vector<std::pair<QCollatorSortKey, Agent>> keyed;
    keyed.reserve(agents.size());
    for (Agent& agent : agents) {
        QCollatorSortKey key = order.sortKey(QString::fromStdString(agent.label));
        keyed.emplace_back(std::move(key), std::move(agent));
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), agents.begin(), [](auto& one) { return std::move(one.second); });
}

}  // namespace

TuneModel::TuneModel(const Platform& platform, AdminRunner& admin, RemovalUndo& undo)
    : platform_(platform), admin_(admin), undo_(undo), memory_(platform.vitals.memory()) {}

void TuneModel::setSearch(const QString& search) {
    if (search == search_) return;
    search_ = search;
    emit searchChanged();
}

std::vector<Agent> TuneModel::filteredAgents() const {
    if (search_.isEmpty()) return agents_;
    const TextFinder finder(search_);
    std::vector<Agent> found;
    std::copy_if(agents_.begin(), agents_.end(), std::back_inserter(found),
                 [&](const Agent& agent) { return finder.isIn(agent.label) || finder.isIn(agent.path); });
    return found;
}

std::size_t TuneModel::selectedCount() const {
    return static_cast<std::size_t>(
        std::count_if(agents_.begin(), agents_.end(), [this](const Agent& agent) { return isChosen(agent); }));
}

TuneModel::Pressure TuneModel::pressure() const {
    return loadLevel(memoryFraction(memory_));
}

void TuneModel::scan() {
    const bool isFirst = !std::exchange(hasScanned_, true);
    refreshMemory();
    if (agents_.empty()) {
        agents_ = backgroundItems(platform_.files, platform_.locations);
        sortByLabel(agents_);
        if (!agents_.empty()) emit agentsChanged();
    }
    if (isFirst) emit hasScannedChanged();
}

void TuneModel::refreshMemory() {
    const MemoryStats memory = platform_.vitals.memory();
    if (memory == memory_) return;
    memory_ = memory;
    emit memoryChanged();
}

void TuneModel::selectAll() {
    std::set<std::string> paths;
    for (const Agent& agent : agents_)
        if (agent.removable) paths.insert(agent.path);
    select(std::move(paths));
}

void TuneModel::selectNone() {
    select({});
}

void TuneModel::toggle(const std::string& path) {
    const auto isIt = [&](const Agent& agent) { return agent.path == path && agent.removable; };
    if (std::none_of(agents_.begin(), agents_.end(), isIt)) return;
    std::set<std::string> paths = selected_;
    if (paths.erase(path) == 0) paths.insert(path);
    select(std::move(paths));
}

void TuneModel::select(std::set<std::string> paths) {
    if (paths == selected_) return;
    selected_ = std::move(paths);
    emit selectionChanged();
}

void TuneModel::removeSelected() {
    std::vector<RemovalUndo::Item> restorable;
    std::size_t moved = 0;
    const std::string home = platform_.locations.home();
    for (const Agent& agent : agents_) {
        // The list may be days old.
        if (!isChosen(agent) || !isRemovableNow(platform_.files, platform_.locations, agent)) continue;
        // Below the home, or the link that leads out of it, no other link is followed.
        const std::optional<ItemPath> item = ItemPath::below(agent.link.empty() ? home : agent.link, agent.path);
        if (!item) continue;
        TrashResult result = platform_.trash.trash(*item);
        if (result.failure) continue;
        ++moved;
        // Called by an object of the same owner, while both exist.
        if (result.item) restorable.push_back({std::move(*result.item), [this, agent] { return putBack(agent); }});
    }
    const std::size_t gone = std::erase_if(agents_, [this](const Agent& agent) { return isChosen(agent); });
    if (gone > 0) emit agentsChanged();
    select({});
    undo_.offer(RemovalUndo::Source::backgroundItems, moved, std::move(restorable));
}

/// Lists an item that was restored from the Trash again.
bool TuneModel::putBack(const Agent& agent) {
    const auto isIt = [&](const Agent& other) { return other.path == agent.path; };
    if (std::any_of(agents_.begin(), agents_.end(), isIt)) return true;
    agents_.push_back(agent);
    sortByLabel(agents_);
    emit agentsChanged();
    return true;
}

void TuneModel::freeMemory() {
    runAsAdministrator(freeMemoryLine(platform_.system), [this] { refreshMemory(); });
}

void TuneModel::flushDNS() {
    runAsAdministrator(flushDNSLine(platform_.system), [] {});
}

void TuneModel::setBusy(bool busy) {
    busy_ = busy;
    emit busyChanged();
}

void TuneModel::runAsAdministrator(const std::string& line, std::function<void()> afterwards) {
    if (busy_) return;
    setBusy(true);
    admin_.run(line, [model = QPointer<TuneModel>(this), afterwards = std::move(afterwards)](const std::string& text) {
        if (!model) return;
        model->lastOutput_ = text;
        emit model->lastOutputChanged();
        model->setBusy(false);
        afterwards();
    });
}

}  // namespace zelk

#include "moc_TuneModel.cpp"
