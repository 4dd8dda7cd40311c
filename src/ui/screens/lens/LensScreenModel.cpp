// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensScreenModel.h"

#include <QPointer>
#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int followInterval = 50;   // milliseconds
constexpr int rowDuration = 180;     // milliseconds
constexpr int bubbleDuration = 200;  // milliseconds

// In pixels: twice the size in points, for high-DPI screens.
constexpr int rowIconSide = 44;
constexpr int placeIconSide = 68;
constexpr int bubbleIconSide = 128;

/// The id of the bubble for all folders beyond the top ones. Not a possible path.
constexpr const char* foldedSlice = "__other__";

const QColor bubbleColor(124, 92, 255);

std::int64_t usedOf(const VolumeInfo& volume) {
    return std::max<std::int64_t>(volume.total - volume.available, 0);
}

}  // namespace

LensScreenModel::LensScreenModel(AppModel& app)
    : SurveyedModule(app, Screen::lens,
                     {.title = tr("Lens"),
                      .subtitle = tr("Explore where your space went — a list and a live bubble map, side by side."),
                      .scanLabel = tr("Run survey"),
                      .scanningLabel = tr("Surveying your drive…")}),
      app_(app),
      icons_(app.workspace(), DesktopIcons::Of::folders),
      rows_(walk_, [this](const std::string& path) { return icons_.image(path, rowIconSide); }),
      bubbles_({[this](const BubbleSlice& slice) {
                    const NodeRef node = bubbled(slice.id);
                    if (!node) return;
                    if (node->children().empty())
                        toggle(node);
                    else
                        enter(node, bubbleDuration);
                },
                [this](const BubbleSlice& slice) {
                    if (const NodeRef node = bubbled(slice.id)) toggle(node);
                },
                [this] { back(); }}),
      explanation_(app.home()),
      undoBar_(app, RemovalUndo::Source::folders) {
    // Coalesces many removals from the tree into a few updates per second.
    following_.setSingleShot(true);
    following_.setInterval(followInterval);
    connect(&following_, &QTimer::timeout, this, &LensScreenModel::followTree);
    connect(&app, &AppModel::rootChanged, this, [this] {
        if (!following_.isActive()) following_.start();
    });
    connect(&app, &AppModel::scanPhaseChanged, this, &LensScreenModel::followTree);
    connect(&app, &AppModel::volumeChanged, this, &LensScreenModel::volumeChanged);
    followTree();
}

LensScreenModel::~LensScreenModel() {
    walk_.startOver();
    walk_.setRoot(nullptr);
    leaveTrees();
}

QString LensScreenModel::place() const {
    const NodeRef node = walk_.currentNode();
    if (!node) return QStringLiteral("—");
    return isAboveRoots() ? tr("Surveyed folders") : nameText(node->fullPath());
}

/// "1 folders" is as intended: the word labels a count rather than agreeing with it.
QString LensScreenModel::placeLine() const {
    const NodeRef node = walk_.currentNode();
    if (!node) return {};
    const auto folders = static_cast<qint64>(node->children().size());
    return tr("%1 · %2 folders", "", forPlural(folders)).arg(byteFigure(node->size)).arg(folders);
}

QString LensScreenModel::looseLine() const {
    const NodeRef node = walk_.currentNode();
    if (!node) return {};
    std::int64_t loose = node->size;
    for (const FSNode& child : node->children()) loose -= child.size;
    return loose < 1 ? QString() : tr("%1 in files directly in this folder").arg(byteFigure(loose));
}

QVariant LensScreenModel::placeIcon() const {
    const NodeRef node = walk_.currentNode();
    return node ? icons_.image(node->fullPath(), placeIconSide) : QImage();
}

QString LensScreenModel::selectTitle() const {
    return removable() ? QString::number(walk_.selected().size()) : tr("None");
}

QString LensScreenModel::listName() const {
    return isAboveRoots() ? place() : tr("Folders in %1").arg(place());
}

QString LensScreenModel::mapName() const {
    return isAboveRoots() ? tr("Map of the surveyed folders") : tr("Map of %1").arg(place());
}

/// The synthetic top of several scan roots has no path.
bool LensScreenModel::isAboveRoots() const {
    const NodeRef node = walk_.currentNode();
    return node && node->fullPath().empty();
}

bool LensScreenModel::volumed() const {
    return app_.volume().has_value();
}

QString LensScreenModel::volumeLine() const {
    if (!volumed()) return {};
    return tr("%1 of %2 used").arg(byteFigure(usedOf(*app_.volume())), byteFigure(app_.volume()->total));
}

double LensScreenModel::usedShare() const {
    if (!volumed() || app_.volume()->total < 1) return 0;
    return static_cast<double>(usedOf(*app_.volume())) / static_cast<double>(app_.volume()->total);
}

QString LensScreenModel::caption() const {
    if (!removable()) return tr("No items selected");
    return tr("%1 selected · %2").arg(walk_.selected().size()).arg(byteFigure(walk_.selectedBytes()));
}

void LensScreenModel::followTree() {
    if (app_.scanPhase() == AppModel::ScanPhase::scanning) return;
    following_.stop();
    walk_.setRoot(app_.root());
    if (!(walk_.currentNode() == shown_)) return arrive();
    rows_.follow();
    emit placeChanged();
    tellSelection();
}

/// Shows another folder. The current row becomes that of `from`, the folder that was left, if it has one.
void LensScreenModel::arrive(const NodeRef& from) {
    rows_.show();
    shown_ = walk_.currentNode();
    emit placeChanged();
    tellSelection();
    emit arrived(std::max(0, rows_.rowOf(from)));
}

/// Releases trees of earlier surveys that neither the walk nor the rows refer to.
void LensScreenModel::leaveTrees() {
    for (NodeRef& tree : walk_.takeLeftTrees()) app_.releaseElsewhere(std::move(tree));
}

/// A slice for each of the top rows, with its path as id, and one for the rest, if any.
void LensScreenModel::showSlices() {
    const int alone = std::min(rows_.rowCount(), static_cast<int>(LensWalk::topCount));
    std::vector<BubbleSlice> slices;
    for (int row = 0; row < alone; ++row) {
        const FSNode& node = *rows_.node(row);
        BubbleSlice slice;
        slice.id = node.fullPath();
        slice.label = displayText(node.name());
        slice.bytes = node.size;
        slice.color = bubbleColor;
        slice.reclaimable = node.reclaimCategory != 0;
        slice.icon = icons_.image(slice.id, bubbleIconSide);
        slice.selected = walk_.isSelected(slice.id);
        slices.push_back(std::move(slice));
    }
    if (alone < rows_.rowCount()) {
        BubbleSlice rest;
        rest.id = foldedSlice;
        rest.label = tr("Other (%1)").arg(rows_.rowCount() - alone);
        for (int row = alone; row < rows_.rowCount(); ++row) rest.bytes += rows_.node(row)->size;
        slices.push_back(std::move(rest));
    }
    bubbles_.setSlices(std::move(slices));
}

/// The node of a bubble; null for the bubble of the rest.
NodeRef LensScreenModel::bubbled(const std::string& path) const {
    for (int row = 0; row < static_cast<int>(LensWalk::topCount); ++row) {
        const NodeRef node = rows_.node(row);
        if (!node || node->fullPath() == path) return node;
    }
    return nullptr;
}

/// The index of a row's bubble, which may be that of the rest; -1 without a row.
int LensScreenModel::bubbleOf(const NodeRef& node) const {
    return std::min(rows_.rowOf(node), static_cast<int>(LensWalk::topCount));
}

void LensScreenModel::startOver() {
    walk_.startOver();
    arrive();
}

void LensScreenModel::back() {
    if (!walk_.canGoBack()) return;
    const NodeRef left = walk_.currentNode();
    walk_.back();
    arrive(left);
    emit returned(bubbleOf(left));
}

void LensScreenModel::drill(int row) {
    const NodeRef node = rows_.node(row);
    if (node && !node->children().empty()) enter(node, rowDuration);
}

void LensScreenModel::enter(const NodeRef& node, int duration) {
    walk_.enter(node);
    emit drilled(duration, bubbleOf(node));
    arrive();
}

void LensScreenModel::toggle(int row) {
    if (const NodeRef node = rows_.node(row)) toggle(node);
}

void LensScreenModel::toggle(const NodeRef& node) {
    const std::string path = node->fullPath();
    if (walk_.isSelected(path))
        walk_.unselect(path);
    else
        walk_.select(node);
    rows_.tellTicked(rows_.rowOf(node));
    tellSelection();
}

void LensScreenModel::selectAll() {
    for (int row = 0; row < rows_.rowCount(); ++row) walk_.select(rows_.node(row));
    rows_.tellAllTicked();
    tellSelection();
}

void LensScreenModel::selectNone() {
    walk_.clearSelection();
    rows_.tellAllTicked();
    tellSelection();
}

void LensScreenModel::tellSelection() {
    showSlices();
    leaveTrees();
    emit selectionChanged();
}

void LensScreenModel::explain(int row) {
    if (const NodeRef node = rows_.node(row)) explanation_.open(node->fullPath());
}

void LensScreenModel::removeSelected() {
    if (!removable()) return;
    std::vector<NodeRef> leaving;
    for (const auto& [path, node] : walk_.selected()) leaving.push_back(node);
    app_.trashAndRemove(leaving, [self = QPointer(this)](const auto& gone) {
        if (self) self->endRemoval(gone);
    });
    // Cleared at once, so that a second press is a removal of its own.
    selectNone();
}

void LensScreenModel::endRemoval(const std::vector<NodeRef>& gone) {
    for (const NodeRef& node : gone) {
        walk_.unselectAtAndBelow(node->fullPath());
        walk_.leave(node->fullPath());
    }
    ++version_;
    followTree();
    bubbles_.rebuild();
}

}  // namespace zelk

#include "moc_LensScreenModel.cpp"
