// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <string_view>

namespace zelk {

/// Texts that name the operating system, a part of it or a key: one table with a wording for macOS and one for Linux,
/// which may have another in a sandbox of Flatpak, from where less can be seen and done.
/// Views use the singleton, models the static functions. Main thread.
class SystemTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Key {
        WholeComputer,
        ScanWholeComputer,
        WelcomeLead,
        WelcomePrivacy,
        HealthTitle,
        HealthCaption,
        HealthScoreTitle,
        HealthScoreMeaning,
        HealthGood,
        ThisComputer,
        SystemName,
        RevealFile,
        TrashLocked,
        UnlockTrash,
        AccessTitle,
        AccessPurpose,
        AccessSteps,
        AccessSettings,  ///< empty where the system has no such settings
        CheckComputer,
        FreeMemoryNote,  ///< empty where it needs no explanation
        SimulatorNote,
        HelpMeasuring,
        HelpMenuKeys,
        HelpAccess,
        HelpClutter,
        HelpTune,
        HelpHealth,
        HelpSnapshots,
        HelpThinning,
        HelpPrivacy,
        HelpPrompts,
        HelpSandbox,
        ImageOfMachine,
        ImageThatGrows,
        SystemLead,
        PurgeableSpace,
        SnapshotKind,
        SnapshotSizes,
        SnapshotsOfZfs,    ///< empty where the system has no such file system
        SnapshotsRefused,  ///< empty where the system shows its snapshots to everybody
        PreferThinning,
        ProtectedFolders,
        ReadingApplications,
        WhereAppsAre,
        keyCount
    };
    Q_ENUM(Key)

    enum class System { macOS, desktopLinux, flatpak };

    using QObject::QObject;

    /// The translated wording for the system in use, see shown().
    Q_INVOKABLE static QString of(zelk::SystemTexts::Key key);
    /// Rewords a text of a lower layer, which does not know the system: if it equals the macOS wording of a row,
    /// returns the wording for the system in use, else the text itself, translated.
    static QString worded(std::string_view text);

    /// A cell of the table, UTF-8, untranslated.
    static const char* wording(Key key, System system);

    /// The system in use: the one built for, until somebody calls show(). Texts that were read before do not change.
    static System shown();
    static void show(System system);
};

}  // namespace zelk
