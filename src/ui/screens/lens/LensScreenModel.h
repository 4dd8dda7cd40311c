// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <QTimer>
#include <cstdint>
#include <string>
#include <vector>

#include "ui/charts/BubbleModel.h"
#include "ui/controls/UndoBarModel.h"
#include "ui/screens/explanation/ExplanationModel.h"
#include "ui/screens/lens/LensRows.h"
#include "ui/screens/lens/LensWalk.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/theme/DesktopIcons.h"

namespace zelk {

class AppModel;

/// The Lens screen: walks through the surveyed tree by folder and removes the selected ones. Does not show the tree of
/// a running survey, which other threads still write. Main thread.
class LensScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool mapped READ mapped NOTIFY placeChanged FINAL)
    Q_PROPERTY(bool bare READ bare NOTIFY placeChanged FINAL)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY placeChanged FINAL)
    Q_PROPERTY(QString place READ place NOTIFY placeChanged FINAL)
    Q_PROPERTY(QString placeLine READ placeLine NOTIFY placeChanged FINAL)
    Q_PROPERTY(QString looseLine READ looseLine NOTIFY placeChanged FINAL)
    Q_PROPERTY(QVariant placeIcon READ placeIcon NOTIFY placeChanged FINAL)
    Q_PROPERTY(QString selectTitle READ selectTitle NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString listName READ listName NOTIFY placeChanged FINAL)
    Q_PROPERTY(QString mapName READ mapName NOTIFY placeChanged FINAL)
    Q_PROPERTY(zelk::LensRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(zelk::BubbleModel* bubbles READ bubbles CONSTANT FINAL)
    Q_PROPERTY(zelk::ExplanationModel* explanation READ explanation CONSTANT FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)
    Q_PROPERTY(bool volumed READ volumed NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QString volumeLine READ volumeLine NOTIFY volumeChanged FINAL)
    Q_PROPERTY(double usedShare READ usedShare NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QString caption READ caption NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool removable READ removable NOTIFY selectionChanged FINAL)

public:
    /// `app` must outlive it.
    explicit LensScreenModel(AppModel& app);
    ~LensScreenModel() override;

    bool mapped() const { return static_cast<bool>(walk_.currentNode()); }
    /// Whether the current folder has no subfolders to show.
    bool bare() const { return mapped() && rows_.rowCount() == 0; }
    bool canGoBack() const { return walk_.canGoBack(); }
    /// The name of the current folder, a heading above several scan roots, or a dash without a tree.
    QString place() const;
    QString placeLine() const;
    /// The bytes of the files that are in no subfolder, which the list does not show; empty without such files.
    QString looseLine() const;
    /// A QImage; null without a current folder.
    QVariant placeIcon() const;
    QString selectTitle() const;
    QString listName() const;
    QString mapName() const;
    LensRows* rows() { return &rows_; }
    BubbleModel* bubbles() { return &bubbles_; }
    ExplanationModel* explanation() { return &explanation_; }
    UndoBarModel* undoBar() { return &undoBar_; }
    bool volumed() const;
    QString volumeLine() const;
    double usedShare() const;
    QString caption() const;
    bool removable() const { return !walk_.selected().empty(); }

    const LensWalk& walk() const { return walk_; }
    /// The number of removals that have ended.
    int version() const { return version_; }

public slots:
    void startOver();
    void back();
    /// Here and below, invalid rows are ignored.
    void drill(int row);
    void toggle(int row);
    void explain(int row);
    void selectAll();
    void selectNone();
    /// Moves the selected folders to the Trash, ordered by path. All are unselected; those that fail stay in the tree.
    void removeSelected();

signals:
    void placeChanged();
    void selectionChanged();
    void volumeChanged();
    /// The current folder changed; `row` is to become the current row.
    void arrived(int row);
    /// Emitted before arrived() when a folder is entered, with the duration of the transition in milliseconds and the
    /// folder's bubble, while the rows and bubbles are still those of the folder that is left.
    void drilled(int duration, int bubble);
    /// Emitted after arrived() by back(), with the bubble of the folder that was left, or -1.
    void returned(int bubble);

private:
    bool isAboveRoots() const;
    void followTree();
    void enter(const NodeRef& node, int duration);
    void toggle(const NodeRef& node);
    void arrive(const NodeRef& from = nullptr);
    void tellSelection();
    void endRemoval(const std::vector<NodeRef>& gone);
    NodeRef bubbled(const std::string& path) const;
    int bubbleOf(const NodeRef& node) const;
    void showSlices();
    void leaveTrees();

    AppModel& app_;
    mutable DesktopIcons icons_;
    LensWalk walk_;
    LensRows rows_;
    BubbleModel bubbles_;
    ExplanationModel explanation_;
    UndoBarModel undoBar_;
    NodeRef shown_;
    QTimer following_;
    int version_ = 0;
};

}  // namespace zelk
