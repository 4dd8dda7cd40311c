// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <optional>
#include <string>
#include <vector>

#include "scan/FileType.h"
#include "ui/controls/RowModel.h"
#include "ui/controls/UndoBarModel.h"
#include "ui/screens/clutter/LargeFileRows.h"
#include "ui/screens/module/SurveyedModule.h"

namespace zelk {

/// List model of the filter pills: "All", then the available types. Main thread.
class TypePills : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ClutterScreenModel")

public:
    /// `color` is invalid for files of no known type. `reached` marks the pill in the focus chain: the chosen one, or
    /// the first if the chosen one is gone.
    enum Role { nameRole = Qt::UserRole, symbolRole, colorRole, chosenRole, reachedRole };

    using Filter = std::optional<FileType>;  ///< none: all files

    TypePills() : RowModel({"name", "symbol", "color", "chosen", "reached"}) {}

    /// Shows "All" and `types`. Delegates of pills that stay are kept.
    void show(const std::vector<FileType>& types);
    void choose(Filter filter);

    const Filter& chosen() const { return chosen_; }
    /// The filter of the pill in this row.
    Filter filterAt(int row) const { return pills_[static_cast<std::size_t>(row)]; }

private:
    std::size_t size() const override { return pills_.size(); }
    QVariant value(std::size_t row, int role) const override;

    bool isReached(std::size_t row) const;

    std::vector<Filter> pills_{Filter()};
    Filter chosen_;
};

/// The large files of the last survey, filtered by type and sorted by size or age, and the actions on a file. Keeps its
/// rows while another survey runs. Main thread.
class ClutterScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY nothingChanged FINAL)
    Q_PROPERTY(int order READ order NOTIFY orderChanged FINAL)
    Q_PROPERTY(zelk::TypePills* pills READ pills CONSTANT FINAL)
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
    TypePills* pills() { return &pills_; }
    LargeFileRows* rows() { return &rows_; }
    UndoBarModel* undoBar() { return &undoBar_; }

    const TypePills::Filter& typeFilter() const { return pills_.chosen(); }
    bool sortByAge() const { return sortByAge_; }

public slots:
    void sort(int order);
    /// Filters by the pill in this row.
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
    /// The order or the filter changed, so the scroll position and current row are void.
    void rearranged();

private:
    void refresh();
    std::vector<LargeFile> shownFiles() const;

    AppModel& app_;
    TypePills pills_;
    LargeFileRows rows_;
    UndoBarModel undoBar_;
    bool sortByAge_ = false;
    bool nothing_ = true;
    bool onScreen_ = false;
    std::string picked_;  ///< a path in bytes; empty if none
};

}  // namespace zelk
