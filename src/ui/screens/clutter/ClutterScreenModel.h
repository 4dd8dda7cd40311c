// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QStringList>
#include <string>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/clutter/LargeFileRows.h"
#include "ui/screens/clutter/TypePills.h"
#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

/// The large files of the last survey, filtered by type and sorted by size or age, and the actions on a file. Keeps its
/// rows while another survey runs. Main thread.
class ClutterScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged FINAL)
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen NOTIFY onScreenChanged FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY nothingChanged FINAL)
    Q_PROPERTY(QStringList orders READ orders CONSTANT FINAL)
    Q_PROPERTY(int order READ order NOTIFY orderChanged FINAL)
    Q_PROPERTY(zelk::TypePills* pills READ pills CONSTANT FINAL)
    Q_PROPERTY(zelk::LargeFileRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit ClutterScreenModel(AppModel& app);

    bool dark() const { return dark_; }
    void setDark(bool dark);
    /// Whether the screen is visible. Ages are computed when it becomes so.
    bool onScreen() const { return onScreen_; }
    void setOnScreen(bool onScreen);

    /// Whether the survey found no large file at all, regardless of the filter.
    bool nothing() const { return nothing_; }
    QStringList orders() const;
    int order() const { return sortByAge_ ? 1 : 0; }
    TypePills* pills() { return &pills_; }
    LargeFileRows* rows() { return &rows_; }
    UndoBarModel* undoBar() { return &undoBar_; }

    const TypePills::Filter& typeFilter() const { return pills_.chosen(); }
    bool sortByAge() const { return sortByAge_; }

public slots:
    /// Sorts by this index of `orders`.
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
    void darkChanged();
    void onScreenChanged();
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
    bool dark_ = true;
    bool onScreen_ = false;
    std::string picked_;  ///< a path in bytes; empty if none
};

}  // namespace zelk
