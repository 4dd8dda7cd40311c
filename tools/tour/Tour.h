// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "PausingContents.h"
#include "PausingDirectories.h"
#include "PretendingServices.h"
#include "state/AppModel.h"
#include "ui/screens/reclaim/ItemList.h"
#include "ui/shell/MainWindow.h"

namespace zelk::tour {

/// Where to save the pictures, and what to show.
struct TourPlan {
    QString folder;
    QSize size;     ///< of the window
    bool dark;      ///< the theme
    bool complete;  ///< every state must be available; otherwise those that are not are skipped
    std::function<void(QQuickWindow&, const QString&)> inspect;  ///< called with the name of each picture; may be empty
};

/// What the tour's own snapshots are called, and what its tools answer: the same in every language.
QStringList textsOfSnapshots();

/// Walks through the application once, takes pictures and prints their paths.
class Tour {
public:
    /// All references must outlive it.
    Tour(AppModel& app, PausingDirectories& directories, PausingContents& contents, Pretence& pretence, TourPlan plan);

    /// Shows every screen, window and sheet, every phase of a survey, large text, the smallest window, and the gallery.
    /// False if something was missed or a picture could not be taken.
    bool run();

private:
    bool gallery();
    bool idle();
    bool heroes();
    bool survey();
    bool pressScan(bool withKeyboard);
    bool underWay();
    bool findings();
    bool trash();
    bool lens();
    bool lensMap();
    bool taking();
    bool changes();
    bool clutter();
    bool duplicates();
    bool hashing();
    bool tune();
    bool apps();
    bool appSheets();
    bool appRemovals();
    bool privacy();
    bool roots();
    bool windows();
    bool sidebarAndMenus();
    bool firstRun();
    bool smallAndLarge();
    bool focus();
    bool nothingFound();

    bool health();
    bool healthActions(QQuickItem& scroll);

    bool reclaim();
    bool chooseInMenu(int entry);
    bool items();
    bool youngItems(ItemList& list);
    bool keptItem();
    bool cleanUp();

    bool system();
    bool snapshotsIn(const QString& name, const ChildOutcome& list, const ChildOutcome& removal = {});
    bool removingSnapshots();

    bool go(Screen screen);
    void surveyOnly(const QString& folder);
    bool missed(const char* what) const;
    bool missing(const char* what) const;
    bool picture(const QString& name) { return picture(window_.window(), name); }
    bool picture(QQuickWindow& window, const QString& name);
    bool keep(const QImage& picture, const QString& name) const;
    bool scanning() const { return app_.scanPhase() == AppModel::ScanPhase::scanning; }

    AppModel& app_;
    PausingDirectories& directories_;
    PausingContents& contents_;
    Pretence& pretence_;
    TourPlan plan_;
    MainWindow window_;
};

}  // namespace zelk::tour
