// SPDX-License-Identifier: MIT
#include "ui/screens/tune/TuneScreenModel.h"

#include <QStringList>
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

TuneScreenModel::TuneScreenModel(AppModel& app)
    : ModuleScreenModel(Screen::tune,
                        {.title = tr("Tune"),
                         .subtitle = tr("Check memory pressure, free up RAM, flush caches, and trim startup items."),
                         .scanLabel = SystemTexts::of(SystemTexts::CheckComputer),
                         .scanningLabel = tr("Scanning…")},
                        [&app] { app.tune().scan(); }),
      tune_(app.tune()),
      rows_(tune_, app.workspace()),
      undoBar_(app, RemovalUndo::Source::backgroundItems) {
    connect(&tune_, &TuneModel::memoryChanged, this, &TuneScreenModel::memoryChanged);
    connect(&tune_, &TuneModel::busyChanged, this, &TuneScreenModel::busyChanged);
    connect(&tune_, &TuneModel::lastOutputChanged, this, &TuneScreenModel::outputChanged);
    connect(&tune_, &TuneModel::agentsChanged, this, &TuneScreenModel::showAgents);
    connect(&tune_, &TuneModel::agentsChanged, this, &TuneScreenModel::agentsChanged);
    connect(&tune_, &TuneModel::agentsChanged, this, &TuneScreenModel::selectionChanged);
    connect(&tune_, &TuneModel::searchChanged, this, &TuneScreenModel::showAgents);
    connect(&tune_, &TuneModel::searchChanged, this, &TuneScreenModel::searchChanged);
    connect(&tune_, &TuneModel::selectionChanged, &rows_, &AgentRows::tellTicks);
    connect(&tune_, &TuneModel::selectionChanged, this, &TuneScreenModel::selectionChanged);
    connect(&tune_, &TuneModel::hasScannedChanged, this, &TuneScreenModel::followScan);
    showAgents();
    followScan();
}

/// The levers are there from the first scan on, which is done when it returns.
void TuneScreenModel::followScan() {
    setPhase(tune_.hasScanned() ? ModulePhase::results : ModulePhase::idle);
}

void TuneScreenModel::showAgents() {
    rows_.show(tune_.filteredAgents());
    if (std::exchange(nothing_, rows_.rowCount() == 0) != nothing_) emit nothingChanged();
}

QString TuneScreenModel::pressure() const {
    const auto word = [this] {
        switch (tune_.pressure()) {
            case TuneModel::Pressure::normal:
                return tr("normal");
            case TuneModel::Pressure::elevated:
                return tr("elevated");
            case TuneModel::Pressure::high:
                return tr("high");
        }
        return QString();
    };
    return tr("pressure: %1").arg(word());
}

double TuneScreenModel::used() const {
    return static_cast<double>(tune_.memory().used);
}
double TuneScreenModel::free() const {
    return static_cast<double>(tune_.memory().free);
}
double TuneScreenModel::total() const {
    return static_cast<double>(tune_.memory().total);
}
bool TuneScreenModel::busy() const {
    return tune_.busy();
}

QString TuneScreenModel::output() const {
    return printedText(tune_.lastOutput().value_or(""));
}

QString TuneScreenModel::heading() const {
    return tr("Background items (%1)").arg(tune_.agents().size());
}

QString TuneScreenModel::search() const {
    return tune_.search();
}

void TuneScreenModel::setSearch(const QString& search) {
    tune_.setSearch(search);
}

bool TuneScreenModel::removing() const {
    return tune_.selectedCount() > 0;
}

QString TuneScreenModel::removeLabel() const {
    return tr("Remove %n selected", "", static_cast<int>(tune_.selectedCount()));
}

void TuneScreenModel::freeMemory() {
    tune_.freeMemory();
}

void TuneScreenModel::flushDNS() {
    tune_.flushDNS();
}

void TuneScreenModel::refreshMemory() {
    tune_.refreshMemory();
}

void TuneScreenModel::toggle(int row) {
    tune_.toggle(rows_.pathAt(row));
}

void TuneScreenModel::chooseAll() {
    tune_.selectAll();
}

void TuneScreenModel::chooseNone() {
    tune_.selectNone();
}

void TuneScreenModel::removeChosen() {
    tune_.removeSelected();
}

}  // namespace zelk

#include "moc_TuneScreenModel.cpp"
