// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QStringList>
#include <string>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/clutter/LargeFileRows.h"
#include "ui/screens/clutter/TypePills.h"
#include "ui/screens/module/SurveyedModule.h"

namespace zelk {

/// The heaviest files of the last survey: narrowed to a type, the largest or the oldest first, and what can be done to
/// one. While another survey runs it keeps what it showed. Main thread.
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
    /// Whether a person looks at this screen: ages are those of the time when it came on screen.
    bool onScreen() const { return onScreen_; }
    void setOnScreen(bool onScreen);

    /// The survey found no large file at all. A filter that leaves none is no such thing.
    bool nothing() const { return nothing_; }
    QStringList orders() const;
    int order() const { return sortByAge_ ? 1 : 0; }
    TypePills* pills() { return &pills_; }
    LargeFileRows* rows() { return &rows_; }
    UndoBarModel* undoBar() { return &undoBar_; }

    const TypePills::Filter& typeFilter() const { return pills_.chosen(); }
    bool sortByAge() const { return sortByAge_; }

public slots:
    /// Sorts by the choice of this index in `orders`.
    void sort(int order);
    /// Narrows the list to what the pill in this row stands for.
    void filter(int pill);
    /// The file in this row is what the actions are for, also when rows come and go meanwhile.
    void pick(int row);
    void reveal();
    void moveToTrash();

signals:
    void darkChanged();
    void onScreenChanged();
    void nothingChanged();
    void orderChanged();
    /// Another order or another filter: what was in sight means nothing any more.
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
    std::string picked_;  ///< a path; empty: none
};

}  // namespace zelk
