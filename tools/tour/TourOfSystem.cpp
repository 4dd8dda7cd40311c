// SPDX-License-Identifier: MIT
#include <QQuickItem>

#include "Camera.h"
#include "Tour.h"
#include "system/CommandText.h"
#include "ui/screens/system/SnapshotsModel.h"

namespace zelk::tour {

namespace {

const QString reloadButton = QStringLiteral("reloadSnapshots");

struct PicturedSnapshot {
    int number;
    const char* type;
    const char* date;
    const char* cleanup;
    const char* description;
};

constexpr PicturedSnapshot pictured[] = {
    {41, "single", "2026-11-20 06:00:04", "timeline", "timeline"},
    {42, "pre", "2026-11-21 18:22:51", "number", "apt"},
    {43, "post", "2026-11-21 18:24:10", "number", "apt"},
    {44, "single", "2026-11-22 09:15:30", "", "before the new disk"},
    {45, "single", "", "timeline", "no one knows when"},
};

ChildOutcome printed(const std::string& text) {
    return {std::nullopt, 0, text};
}

/// What snapper prints for the pictured snapshots.
ChildOutcome someSnapshots() {
    std::string entries;
    for (const auto& [number, type, date, cleanup, description] : pictured)
        entries += std::string(entries.empty() ? "" : ",") + "{\"number\":" + std::to_string(number) +
                   R"(,"default":false,"active":false,"type":")" + type + R"(","date":")" + date + R"(","cleanup":")" +
                   cleanup + R"(","description":")" + description + R"(","userdata":null})";
    return printed("{\"root\":[" + entries + "]}");
}

ChildOutcome longAnswer() {
    std::string text;
    for (int number = 41; number < 53; ++number)
        text += "Deleting snapshot " + std::to_string(number) + " failed: another program uses its subvolume.\n";
    return {std::nullopt, 1, text};
}

ChildOutcome dismissed() {
    return {std::nullopt, 126, "Error executing command as another user: Request dismissed\n"};
}

}  // namespace

QStringList textsOfSnapshots() {
    QStringList texts;
    for (const PicturedSnapshot& one : pictured) texts.append(QString::fromLatin1(one.description));
    const auto answer = [](const ChildOutcome& outcome) {
        return QString::fromStdString(refusedAnswer() + outcome.output);
    };
    texts.append(answer(longAnswer()) + SnapshotsModel::tr("The snapshot is still there."));
    texts.append(answer(dismissed()));
    return texts;
}

/// The volume with its disk images, and the snapshots in every state.
bool Tour::system() {
    QQuickWindow& window = window_.window();
    if (!go(Screen::system) || !appears(window, "reloadSnapshots")) return missed("the snapshots");
    waitUntil([&] { return appears(window, "snapshotList"); });
    if (!picture(QStringLiteral("system-no-snapshots"))) return false;
    if (!snapshotsIn(QStringLiteral("system-refused"), {std::nullopt, 1, ""})) return false;
    if (!snapshotsIn(QStringLiteral("system-snapshots"), someSnapshots(), longAnswer())) return false;

    pretence_.hold();
    const bool loading = clickOn(window, reloadButton) && appears(window, "snapshotsLoading") &&
                         picture(QStringLiteral("system-loading"));
    pretence_.release();
    waitUntil([&] { return appears(window, "snapshotList"); });
    const bool taken = (loading || missed("the reading of snapshots")) && removingSnapshots();
    pretence_.setPrograms([](const std::string&, const std::vector<std::string>&) { return ChildOutcome(); });
    return taken && go(Screen::survey);
}

/// Shows the list that snapper prints. A removal is answered by `removal` if it may be tried without an administrator.
bool Tour::snapshotsIn(const QString& name, const ChildOutcome& list, const ChildOutcome& removal) {
    QQuickWindow& window = window_.window();
    pretence_.setPrograms(
        [list, removal](const std::string& executable, const std::vector<std::string>& arguments) -> ChildOutcome {
            if (arguments.back() == "list-configs")
                return printed(R"({"configs":[{"config":"root","subvolume":"/"}]})");
            if (arguments.back() == "list") return list;
            return executable == "/usr/bin/env" ? removal : dismissed();
        });
    QQuickItem* button = findControl(window, reloadButton);
    // Focus scrolls there.
    button->forceActiveFocus(Qt::OtherFocusReason);
    window.grabWindow();
    if (!clickOn(window, reloadButton)) return missed("the button that reloads");
    waitUntil([&] { return appears(window, "snapshotList"); });
    return picture(name);
}

/// The question, the removal that it leads to, and what the tool says: much, or that nobody agreed.
bool Tour::removingSnapshots() {
    QQuickWindow& window = window_.window();
    const auto press = [&](const char* name) {
        if (!appears(window, name)) return missed(name);
        findControl(window, QString::fromLatin1(name))->forceActiveFocus(Qt::OtherFocusReason);
        window.grabWindow();
        return clickOn(window, QString::fromLatin1(name)) || missed(name);
    };
    if (!press("deleteSnapshot0") || !appears(window, "removeSnapshots")) return missed("the question");
    if (!picture(QStringLiteral("system-question"))) return false;
    pretence_.hold();
    bool taken = clickOn(window, QStringLiteral("removeSnapshots")) && appears(window, "snapshotSpinner") &&
                 picture(QStringLiteral("system-removing"));
    pretence_.release();
    waitUntil([&] { return appears(window, "snapshotOutput"); });
    window.grabWindow();
    taken = taken && picture(QStringLiteral("system-output"));

    if (!taken ||
        !snapshotsIn(QStringLiteral("system-reloaded"), someSnapshots(), {std::nullopt, 1, "No permissions.\n"}))
        return false;
    if (!press("thinSnapshots") || !press("removeSnapshots")) return false;
    waitUntil([&] {
        const QQuickItem* output = findControl(window, QStringLiteral("snapshotOutput"));
        return output != nullptr && output->property("text").toString().contains(QStringLiteral("dismissed"));
    });
    window.grabWindow();
    return picture(QStringLiteral("system-cancelled"));
}

}  // namespace zelk::tour
