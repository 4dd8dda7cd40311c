// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "state/AdminRunner.h"
#include "state/RemovalUndo.h"
#include "system/BackgroundItems.h"
#include "system/HealthScore.h"

namespace zelk {

/// The levers: free memory, flush the DNS cache, remove what starts in the background. Owned by AppModel, so that list
/// and selection outlive the screen; main thread only. What needs an administrator goes on while the screen is live;
/// everything else, reading the folders included, is done when the call returns. There are no errors but the text of an
/// administrator's command.
class TuneModel : public QObject {
    Q_OBJECT

public:
    using Pressure = LoadLevel;

    /// All must outlive it. Reads the memory.
    TuneModel(const Platform& platform, AdminRunner& admin, RemovalUndo& undo);

    const MemoryStats& memory() const { return memory_; }
    /// All background items found, by label.
    const std::vector<Agent>& agents() const { return agents_; }
    /// The paths of the ticked items.
    const std::set<std::string>& selected() const { return selected_; }
    const QString& search() const { return search_; }
    void setSearch(const QString& search);
    /// A command of an administrator is under way.
    bool busy() const { return busy_; }
    /// What the last one answered.
    const std::optional<std::string>& lastOutput() const { return lastOutput_; }
    /// Whether the first scan was asked for.
    bool hasScanned() const { return hasScanned_; }

    /// The items whose label or path contains the text that is searched for, in any case; all without such a text.
    std::vector<Agent> filteredAgents() const;
    /// The number of removable items that are ticked.
    std::size_t selectedCount() const;
    /// By the share of memory that is used, whatever the system says.
    Pressure pressure() const;

    /// Reads the memory, and the folders unless items are known already: they are read once.
    void scan();
    void refreshMemory();
    /// Ticks every removable item, whether or not the search shows it.
    void selectAll();
    void selectNone();
    /// Ticks the item with this path, or takes its tick away. Does nothing for an item that is not removable.
    void toggle(const std::string& path);
    /// Moves the ticked items to the Trash, of which RemovalUndo is told. One whose removal would start something by
    /// now, or that a link swapped in since leads elsewhere, stays where it is. All of them leave the list, moved or
    /// not, and go on running until the session ends.
    void removeSelected();
    /// Does nothing while busy.
    void freeMemory();
    /// Does nothing while busy.
    void flushDNS();

signals:
    void memoryChanged();
    void agentsChanged();
    void selectionChanged();
    void searchChanged();
    void busyChanged();
    void lastOutputChanged();  ///< a command has ended, perhaps with the text of the one before
    void hasScannedChanged();

private:
    bool isChosen(const Agent& agent) const { return agent.removable && selected_.contains(agent.path); }
    void select(std::set<std::string> paths);
    void setBusy(bool busy);
    void runAsAdministrator(const std::string& line, std::function<void()> afterwards);
    bool putBack(const Agent& agent);

    Platform platform_;
    AdminRunner& admin_;
    RemovalUndo& undo_;
    MemoryStats memory_;
    std::vector<Agent> agents_;
    std::set<std::string> selected_;
    QString search_;
    bool busy_ = false;
    std::optional<std::string> lastOutput_;
    bool hasScanned_ = false;
};

}  // namespace zelk
