// SPDX-License-Identifier: MIT
// The texts are in LensTexts.cpp.
#include "ui/screens/lens/LensScreenModel.h"

#include <QPointer>
#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "ui/screens/lens/LensSlices.h"

namespace zelk {

namespace {

constexpr int followInterval = 50;   // milliseconds
constexpr int rowDuration = 180;     // milliseconds
constexpr int bubbleDuration = 200;  // milliseconds

// In pixels: twice the size in points, for high-DPI screens.
constexpr int rowIconSide = 44;
constexpr int bubbleIconSide = 128;

ModuleTexts texts() {
    ModuleTexts texts;
    texts.title = LensScreenModel::tr("Lens");
    texts.subtitle = LensScreenModel::tr("Explore where your space went — a list and a live bubble map, side by side.");
    texts.scanLabel = LensScreenModel::tr("Run survey");
    texts.scanningLabel = LensScreenModel::tr("Surveying your drive…");
    return texts;
}

}  // namespace

LensScreenModel::LensScreenModel(AppModel& app)
    : SurveyedModule(app, Screen::lens, texts()),
      app_(app),
      icons_(app.workspace()),
      rows_(walk_, [this](const std::string& path) { return icon(path, rowIconSide); }),
      bubbles_({[this](const BubbleSlice& slice) {
                    const NodeRef node = bubbled(slice.id);
                    if (!node) return;
                    if (node->children.empty())
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

void LensScreenModel::setDark(bool dark) {
    if (std::exchange(dark_, dark) == dark) return;
    const ZelkTheme& theme = dark ? ZelkTheme::dark() : ZelkTheme::light();
    icons_.setTheme(theme);
    explanation_.setTheme(theme);
    showSlices();
    emit darkChanged();
}

void LensScreenModel::followTree() {
    if (app_.scanPhase() == AppModel::ScanPhase::scanning) return;
    following_.stop();
    walk_.setRoot(app_.root());
    if (!(walk_.currentNode() == shown_)) return arrive();
    rows_.follow();
    showSlices();
    leaveTrees();
    emit placeChanged();
    emit selectionChanged();
}

/// Shows another folder. The current row becomes that of `from`, the folder that was left, if it has one.
void LensScreenModel::arrive(const NodeRef& from) {
    rows_.show();
    shown_ = walk_.currentNode();
    showSlices();
    leaveTrees();
    emit placeChanged();
    emit selectionChanged();
    emit arrived(std::max(0, rows_.rowOf(from)));
}

/// Releases trees of earlier surveys that neither the walk nor the rows refer to.
void LensScreenModel::leaveTrees() {
    for (NodeRef& tree : walk_.takeLeftTrees()) app_.releaseElsewhere(std::move(tree));
}

void LensScreenModel::showSlices() {
    const ZelkTheme& theme = dark_ ? ZelkTheme::dark() : ZelkTheme::light();
    bubbles_.setSlices(
        slicesOf(rows_, walk_, theme.inkSoft, [this](const std::string& path) { return icon(path, bubbleIconSide); }));
}

QImage LensScreenModel::icon(const std::string& path, int side) const {
    return icons_.image(path, true, side);
}

/// The node of a bubble; null for the bubble of the rest.
NodeRef LensScreenModel::bubbled(const std::string& path) const {
    for (int row = 0; row < static_cast<int>(LensWalk::topCount); ++row) {
        const NodeRef node = rows_.node(row);
        if (!node || node->fullPath() == path) return node;
    }
    return nullptr;
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
}

void LensScreenModel::drill(int row) {
    const NodeRef node = rows_.node(row);
    if (node && !node->children.empty()) enter(node, rowDuration);
}

void LensScreenModel::enter(const NodeRef& node, int duration) {
    walk_.enter(node);
    emit drilled(duration);
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
    // Before selectNone(): clearing the last selection of an older tree would release it, and with it the paths of its
    // nodes.
    app_.trashAndRemove(leaving, [self = QPointer(this)](const auto& gone) {
        if (self) self->endRemoval(gone);
    });
    // Cleared at once, so that a second press is a removal of its own.
    selectNone();
}

void LensScreenModel::endRemoval(const std::vector<NodeRef>& gone) {
    for (const NodeRef& node : gone) walk_.unselectAtAndBelow(node->fullPath());
    ++version_;
    followTree();
    bubbles_.rebuild();
}

}  // namespace zelk

#include "moc_LensScreenModel.cpp"
