// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <optional>
#include <string>
#include <vector>

#include "scan/FileType.h"
#include "ui/controls/UndoBarModel.h"
#include "ui/screens/clutter/LargeFileRows.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

/// The large files of the last survey, filtered by type and sorted by size or age, and the actions on a file. Keeps its
/// rows while another survey runs. Main thread.
class ClutterScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY nothingChanged FINAL)
    Q_PROPERTY(int order READ order NOTIFY orderChanged FINAL)
    Q_PROPERTY(QList<zelk::FileTypeLook> pills READ pills NOTIFY pillsChanged FINAL)
    Q_PROPERTY(int pill READ pill NOTIFY pillChanged FINAL)
    Q_PROPERTY(zelk::LargeFileRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit ClutterScreenModel(AppModel& app);

    /// Whether the screen is visible. Ages are computed when it becomes so.
    bool onScreen() const { return onScreen_; }
    void setOnScreen(bool onScreen);

    /// Whether the survey found no large file at all, regardless of the filter.
    bool nothing() const { return nothing_; }
    /// 0: the largest first, 1: the oldest.
    int order() const { return sortByAge_ ? 1 : 0; }
    /// The filters: "All", then the types of the survey, largest first.
    QList<FileTypeLook> pills() const;
    /// The index of the chosen filter, or -1 if no file of its type is left.
    int pill() const;
    LargeFileRows* rows() { return &rows_; }
    UndoBarModel* undoBar() { return &undoBar_; }

    /// None: all files.
    const std::optional<FileType>& typeFilter() const { return typeFilter_; }
    bool sortByAge() const { return sortByAge_; }

public slots:
    void sort(int order);
    /// Filters by the pill of this index.
    void filter(int pill);
    /// Makes the file in this row the target of the actions, even if rows change afterwards.
    void pick(int row);
    void reveal();
    void moveToTrash();
    /// Whether this key, a Qt::Key with Qt::KeyboardModifiers, moves the current file to the Trash: Delete alone, and
    /// on macOS its Delete key with Command, which Qt calls Backspace and Control there.
    bool isTrashKey(int key, int modifiers) const;

signals:
    void nothingChanged();
    void orderChanged();
    void pillsChanged();
    void pillChanged();
    /// The order or the filter changed, so the scroll position and current row are void.
    void rearranged();

private:
    void refresh();
    std::vector<LargeFile> shownFiles() const;

    AppModel& app_;
    LargeFileRows rows_;
    UndoBarModel undoBar_;
    std::vector<FileType> types_;
    std::optional<FileType> typeFilter_;
    bool sortByAge_ = false;
    bool nothing_ = true;
    bool onScreen_ = false;
    std::string picked_;  ///< a path in bytes; empty if none
};

}  // namespace zelk
