<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About Zelk</source>
        <translation>Über Zelk</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Chip</source>
        <translation>Prozessor</translation>
    </message>
</context>
<context>
    <name>AnswerPaper</name>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>AppRow</name>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
</context>
<context>
    <name>AppTexts</name>
    <message>
        <source>flatpak</source>
        <translation>Flatpak</translation>
    </message>
    <message>
        <source>flatpak, all users</source>
        <translation>Flatpak, alle Benutzer</translation>
    </message>
    <message>
        <source>snap</source>
        <translation>Snap</translation>
    </message>
    <message>
        <source>AppImage</source>
        <translation>AppImage</translation>
    </message>
    <message>
        <source>unpacked</source>
        <translation>entpackt</translation>
    </message>
    <message>
        <source>system</source>
        <translation>System</translation>
    </message>
    <message>
        <source>package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>removed by flatpak</source>
        <translation>wird von flatpak entfernt</translation>
    </message>
    <message>
        <source>removed by snap</source>
        <translation>wird von snap entfernt</translation>
    </message>
    <message>
        <source>removed by an administrator</source>
        <translation>wird von einem Administrator entfernt</translation>
    </message>
    <message>
        <source>app %1 · data %2</source>
        <translation>Anwendung %1 · Daten %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of packages</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 und %2 weiteren</numerusform>
            <numerusform>%1 und %2 weiteren</numerusform>
        </translation>
    </message>
    <message>
        <source>Stays: it is part of the system.</source>
        <translation>Bleibt: Die Anwendung gehört zum System.</translation>
    </message>
    <message>
        <source>Stays: needed by %1.</source>
        <translation>Bleibt: wird von %1 benötigt.</translation>
    </message>
    <message>
        <source>Stays: only %1 can remove it, which is not installed.</source>
        <translation>Bleibt: Nur %1 kann die Anwendung entfernen, ist aber nicht installiert.</translation>
    </message>
    <message>
        <source>Stays: it is installed more than once. Its own tool can remove one of them.</source>
        <translation>Bleibt: Die Anwendung ist mehrfach installiert. Einzeln entfernen lässt sie sich mit ihrem eigenen Werkzeug.</translation>
    </message>
    <message>
        <source>Stays: it belongs to another user.</source>
        <translation>Bleibt: Die Anwendung gehört einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>Stays: it has changed since it was listed.</source>
        <translation>Bleibt: Die Anwendung hat sich geändert, seit sie aufgelistet wurde.</translation>
    </message>
    <message>
        <source>Stays: nothing here says what removes it.</source>
        <translation>Bleibt: Es ist nicht bekannt, womit sich die Anwendung entfernen lässt.</translation>
    </message>
    <message numerus="yes">
        <source>Moves the app and %1 leftover item(s) to Trash — %2.</source>
        <translation>
            <numerusform>Verschiebt die Anwendung und %1 Überrest in den Papierkorb – %2.</numerusform>
            <numerusform>Verschiebt die Anwendung und %1 Überreste in den Papierkorb – %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through flatpak for all users, for good — %1.</source>
        <translation>Entfernt die Anwendung mit flatpak endgültig für alle Benutzer – %1.</translation>
    </message>
    <message numerus="yes">
        <source>Removes the app through flatpak for all users, for good, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation>
            <numerusform>Entfernt die Anwendung mit flatpak endgültig für alle Benutzer und verschiebt %1 Überrest in den Papierkorb – %2.</numerusform>
            <numerusform>Entfernt die Anwendung mit flatpak endgültig für alle Benutzer und verschiebt %1 Überreste in den Papierkorb – %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through flatpak, for good — %1.</source>
        <translation>Entfernt die Anwendung mit flatpak endgültig – %1.</translation>
    </message>
    <message numerus="yes">
        <source>Removes the app through flatpak, for good, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation>
            <numerusform>Entfernt die Anwendung mit flatpak endgültig und verschiebt %1 Überrest in den Papierkorb – %2.</numerusform>
            <numerusform>Entfernt die Anwendung mit flatpak endgültig und verschiebt %1 Überreste in den Papierkorb – %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through snap for all users, for good — %1. Snap removes the folder of the app too, and may keep a copy of its data for a while.</source>
        <translation>Entfernt die Anwendung mit snap endgültig für alle Benutzer – %1. Snap entfernt auch den Ordner der Anwendung und hebt womöglich eine Zeit lang eine Kopie ihrer Daten auf.</translation>
    </message>
    <message>
        <source>Removes the package for all users, for good, once an administrator agrees — %1.</source>
        <translation>Entfernt das Paket endgültig für alle Benutzer, sobald ein Administrator zustimmt – %1.</translation>
    </message>
    <message numerus="yes">
        <source>Removes the package for all users, for good, once an administrator agrees, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation>
            <numerusform>Entfernt das Paket endgültig für alle Benutzer, sobald ein Administrator zustimmt, und verschiebt %1 Überrest in den Papierkorb – %2.</numerusform>
            <numerusform>Entfernt das Paket endgültig für alle Benutzer, sobald ein Administrator zustimmt, und verschiebt %1 Überreste in den Papierkorb – %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message>
        <source>%1 was not removed: an administrator has to agree to it.</source>
        <translation>%1 wurde nicht entfernt: Ein Administrator muss zustimmen.</translation>
    </message>
    <message>
        <source>%1 was not removed: what removes it could not be started.</source>
        <translation>%1 wurde nicht entfernt: Das dafür zuständige Werkzeug ließ sich nicht starten.</translation>
    </message>
    <message>
        <source>%1 was not removed.</source>
        <translation>%1 wurde nicht entfernt.</translation>
    </message>
    <message>
        <source>%1 was not removed: it is still there.</source>
        <translation>%1 wurde nicht entfernt: Die Anwendung ist noch da.</translation>
    </message>
    <message numerus="yes">
        <source>Moved to the Trash: %1 leftover item(s).</source>
        <translation>
            <numerusform>In den Papierkorb verschoben: %1 Überrest.</numerusform>
            <numerusform>In den Papierkorb verschoben: %1 Überreste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Where they were: %1 leftover item(s).</source>
        <translation>
            <numerusform>Am alten Ort geblieben: %1 Überrest.</numerusform>
            <numerusform>Am alten Ort geblieben: %1 Überreste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stays: only %1 can remove it, which Flatpak’s sandbox does not have.</source>
        <translation>Bleibt: Nur %1 kann sie entfernen, und das gibt es in der Sandbox von Flatpak nicht.</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Apps</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Total footprint</source>
        <translation>Gesamtbedarf</translation>
    </message>
    <message>
        <source>App size</source>
        <translation>Programmgröße</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
</context>
<context>
    <name>AppsView</name>
    <message>
        <source>No apps found</source>
        <translation>Keine Anwendungen gefunden</translation>
    </message>
</context>
<context>
    <name>CapacityCard</name>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>total</source>
        <translation>insgesamt</translation>
    </message>
    <message>
        <source>used</source>
        <translation>belegt</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>purgeable</source>
        <translation>löschbar</translation>
    </message>
    <message>
        <source>Volume capacity unavailable.</source>
        <translation>Die Kapazität des Datenträgers ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>CategoryPane</name>
    <message>
        <source>Select:</source>
        <translation>Auswahl:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Safe only</source>
        <translation>Nur unbedenkliche</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Map of the categories</source>
        <translation>Diagramm der Kategorien</translation>
    </message>
    <message>
        <source>Review &amp; Clean</source>
        <translation>Prüfen und bereinigen</translation>
    </message>
</context>
<context>
    <name>ChangesSheet</name>
    <message>
        <source>What changed</source>
        <translation>Was sich geändert hat</translation>
    </message>
    <message>
        <source>since your previous survey</source>
        <translation>seit Ihrer vorigen Analyse</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>No notable folder changes since the last survey.</source>
        <translation>Seit der letzten Analyse haben sich keine Ordner nennenswert geändert.</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>“%1” is not the path of anything that can be removed.</source>
        <translation>„%1“ ist kein Pfad zu etwas, das sich entfernen lässt.</translation>
    </message>
</context>
<context>
    <name>ClutterFiles</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>opens a menu</source>
        <translation>öffnet ein Menü</translation>
    </message>
</context>
<context>
    <name>ClutterHead</name>
    <message>
        <source>Clutter</source>
        <translation>Ballast</translation>
    </message>
    <message>
        <source>the heaviest files in your survey</source>
        <translation>die größten Dateien Ihrer Analyse</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Oldest</source>
        <translation>Älteste</translation>
    </message>
    <message>
        <source>Type of files</source>
        <translation>Dateityp</translation>
    </message>
</context>
<context>
    <name>ClutterView</name>
    <message>
        <source>Nothing heavy</source>
        <translation>Kein Ballast</translation>
    </message>
    <message>
        <source>No large files turned up in this survey.</source>
        <translation>Bei dieser Analyse wurden keine großen Dateien gefunden.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>cancelled or failed: </source>
        <translation>abgebrochen oder fehlgeschlagen: </translation>
    </message>
    <message>
        <source>failed: </source>
        <translation>fehlgeschlagen: </translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>No DNS cache runs here.</source>
        <translation>Hier läuft kein DNS-Zwischenspeicher.</translation>
    </message>
</context>
<context>
    <name>DevCleanupView</name>
    <message>
        <source>Clean drive</source>
        <translation>Alles sauber</translation>
    </message>
    <message>
        <source>Nothing to reclaim right now.</source>
        <translation>Zurzeit gibt es nichts zurückzugewinnen.</translation>
    </message>
</context>
<context>
    <name>DeviceFace</name>
    <message numerus="yes">
        <source>%1 cores</source>
        <translation>
            <numerusform>%1 Kern</numerusform>
            <numerusform>%1 Kerne</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>DeviceHeader</name>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
</context>
<context>
    <name>DiskImagesCard</name>
    <message>
        <source>Disk images &amp; VMs</source>
        <translation>Datenträgerabbilder und virtuelle Maschinen</translation>
    </message>
    <message>
        <source>Big disk-image and virtual-machine files. These often hold far more space than they really use — compacting reclaims it.</source>
        <translation>Große Dateien mit Datenträgerabbildern und virtuellen Maschinen. Sie belegen oft weit mehr Platz, als sie wirklich nutzen – durch Verdichten gewinnen Sie ihn zurück.</translation>
    </message>
</context>
<context>
    <name>DryRunReview</name>
    <message>
        <source>Review cleanup</source>
        <translation>Bereinigung prüfen</translation>
    </message>
    <message>
        <source>What will go</source>
        <translation>Was entfernt wird</translation>
    </message>
    <message>
        <source>Delete permanently instead of moving to Trash — irreversible</source>
        <translation>Endgültig löschen statt in den Papierkorb verschieben – unwiderruflich</translation>
    </message>
    <message>
        <source>Cleaning…</source>
        <translation>Wird bereinigt …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DryRunSheet</name>
    <message>
        <source>Space reclaimed</source>
        <translation>Platz zurückgewonnen</translation>
    </message>
    <message>
        <source>Moved to the Trash</source>
        <translation>In den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>Hide what was skipped</source>
        <translation>Übersprungenes ausblenden</translation>
    </message>
    <message>
        <source>Show what was skipped</source>
        <translation>Übersprungenes anzeigen</translation>
    </message>
    <message>
        <source>What was skipped</source>
        <translation>Übersprungenes</translation>
    </message>
    <message>
        <source>The Trash was emptied. Your free space is now updated.</source>
        <translation>Der Papierkorb wurde geleert. Der freie Platz ist jetzt aktuell.</translation>
    </message>
    <message>
        <source>Items were moved to the Trash, so they&apos;re recoverable — but your free space won&apos;t change until the Trash is emptied.</source>
        <translation>Die Objekte liegen im Papierkorb und lassen sich wiederherstellen – mehr freien Platz haben Sie aber erst, wenn der Papierkorb geleert ist.</translation>
    </message>
    <message>
        <source>Keep in Trash</source>
        <translation>Im Papierkorb lassen</translation>
    </message>
    <message>
        <source>Emptying…</source>
        <translation>Wird geleert …</translation>
    </message>
    <message>
        <source>Empty Trash &amp; free space</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>DuplicateRow</name>
    <message>
        <source>Keep first, trash rest</source>
        <translation>Erste behalten, Rest in den Papierkorb</translation>
    </message>
</context>
<context>
    <name>DuplicateSets</name>
    <message>
        <source>Duplicate sets</source>
        <translation>Gruppen gleicher Dateien</translation>
    </message>
</context>
<context>
    <name>DuplicatesView</name>
    <message>
        <source>No duplicates</source>
        <translation>Keine Duplikate</translation>
    </message>
    <message>
        <source>No byte-identical files over 2 MB turned up.</source>
        <translation>Es wurden keine byteweise gleichen Dateien über 2 MB gefunden.</translation>
    </message>
</context>
<context>
    <name>ExplanationSheet</name>
    <message>
        <source>regenerates</source>
        <translation>erneuert sich</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>“%1” couldn’t be moved to the Trash: %2</source>
        <translation>„%1“ ließ sich nicht in den Papierkorb verschieben: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be put back: %2</source>
        <translation>„%1“ ließ sich nicht zurücklegen: %2</translation>
    </message>
    <message>
        <source>another volume is mounted there</source>
        <translation>dort ist ein anderer Datenträger eingehängt</translation>
    </message>
    <message>
        <source>another volume is mounted in it</source>
        <translation>darin ist ein anderer Datenträger eingehängt</translation>
    </message>
    <message>
        <source>“%1” couldn’t be opened: %2</source>
        <translation>„%1“ ließ sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>it is part of the Trash itself</source>
        <translation>es gehört zum Papierkorb selbst</translation>
    </message>
    <message>
        <source>it is in the Trash already</source>
        <translation>es liegt bereits im Papierkorb</translation>
    </message>
    <message>
        <source>“%1” couldn’t be created: %2</source>
        <translation>„%1“ ließ sich nicht anlegen: %2</translation>
    </message>
    <message>
        <source>“%1” belongs to another user</source>
        <translation>„%1“ gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>“%1” may be changed by others</source>
        <translation>„%1“ darf von anderen geändert werden</translation>
    </message>
    <message>
        <source>“%1” is a link</source>
        <translation>„%1“ ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>„%1“ ist kein Ordner</translation>
    </message>
    <message>
        <source>“%1” is another volume</source>
        <translation>„%1“ ist ein anderer Datenträger</translation>
    </message>
    <message>
        <source>its volume has no place for a Trash</source>
        <translation>auf seinem Datenträger kann es keinen Papierkorb geben</translation>
    </message>
    <message>
        <source>“%1” is no longer the Trash of its volume</source>
        <translation>„%1“ ist nicht mehr der Papierkorb des Datenträgers</translation>
    </message>
    <message>
        <source>it is not on the same volume as its Trash</source>
        <translation>es liegt nicht auf demselben Datenträger wie der Papierkorb</translation>
    </message>
    <message>
        <source>the Trash is in it</source>
        <translation>der Papierkorb liegt darin</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed.</source>
        <translation>Der Vorgang ließ sich nicht abschließen.</translation>
    </message>
    <message>
        <source>the folder that it was found in is no longer there</source>
        <translation>der Ordner, in dem es gefunden wurde, ist nicht mehr da</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>„%1“ ließ sich nicht entfernen: %2</translation>
    </message>
    <message>
        <source>“%1” in “%2” couldn’t be removed: %3</source>
        <translation>„%1“ in „%2“ ließ sich nicht entfernen: %3</translation>
    </message>
    <message>
        <source>the folder it was in is no longer there</source>
        <translation>der Ordner, in dem es lag, ist nicht mehr da</translation>
    </message>
    <message>
        <source>another folder has taken the place of the one it was in</source>
        <translation>ein anderer Ordner hat den Platz seines Ordners eingenommen</translation>
    </message>
    <message>
        <source>something else is there now</source>
        <translation>dort liegt jetzt etwas anderes</translation>
    </message>
    <message>
        <source>it is no longer in the Trash</source>
        <translation>es liegt nicht mehr im Papierkorb</translation>
    </message>
    <message>
        <source>the Trash holds something else in its place</source>
        <translation>im Papierkorb liegt an seiner Stelle etwas anderes</translation>
    </message>
    <message>
        <source>it is on another volume than the folder it was in</source>
        <translation>es liegt auf einem anderen Datenträger als der Ordner, in dem es war</translation>
    </message>
    <message>
        <source>Flatpak’s sandbox has no %1.</source>
        <translation>In der Sandbox von Flatpak gibt es %1 nicht.</translation>
    </message>
    <message>
        <source>it belongs to the sandbox that Zelk runs in</source>
        <translation>es gehört zur Sandbox, in der Zelk läuft</translation>
    </message>
    <message>
        <source>Flatpak’s sandbox has no Trash for its folder</source>
        <translation>in der Sandbox von Flatpak gibt es für seinen Ordner keinen Papierkorb</translation>
    </message>
    <message>
        <source>“%1” belongs to something that was not restored.</source>
        <translation>„%1“ gehört zu etwas, das nicht wiederhergestellt wurde.</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>FileTypeLook</name>
    <message>
        <source>Video</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Abbilder</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
</context>
<context>
    <name>FindingsBlock</name>
    <message>
        <source>You can reclaim</source>
        <translation>Sie können zurückgewinnen</translation>
    </message>
    <message>
        <source>Clean drive</source>
        <translation>Alles sauber</translation>
    </message>
    <message>
        <source>Review  →</source>
        <extracomment>The arrow points onward: from right to left where one reads so.</extracomment>
        <translation>Prüfen  →</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Scanned storage</source>
        <translation>Analysierter Speicherplatz</translation>
    </message>
</context>
<context>
    <name>FirstRunSheets</name>
    <message>
        <source>waiting for access…</source>
        <translation>Warten auf Zugriff …</translation>
    </message>
    <message>
        <source>Continue without it</source>
        <translation>Ohne fortfahren</translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Choose a folder to survey</source>
        <translation>Ordner für die Analyse auswählen</translation>
    </message>
</context>
<context>
    <name>GaugeFace</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message numerus="yes">
        <source>%1 cores</source>
        <translation>
            <numerusform>%1 Kern</numerusform>
            <numerusform>%1 Kerne</numerusform>
        </translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>%1 belegt</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>on power</source>
        <translation>am Netz</translation>
    </message>
    <message>
        <source>on battery</source>
        <translation>im Akkubetrieb</translation>
    </message>
</context>
<context>
    <name>GradeHead</name>
    <message>
        <source>safe</source>
        <translation>unbedenklich</translation>
    </message>
    <message>
        <source>Pure caches and logs. Zero risk — the app simply rebuilds them as needed.</source>
        <translation>Reine Zwischenspeicher und Protokolle. Kein Risiko – die Anwendung legt sie bei Bedarf einfach neu an.</translation>
    </message>
    <message>
        <source>regenerates</source>
        <translation>erneuert sich</translation>
    </message>
    <message>
        <source>Build output like node_modules and build caches. Safe to delete; recreated automatically on your next build or install (the first one is slower).</source>
        <translation>Ergebnisse von Builds wie node_modules und deren Zwischenspeicher. Sie können sie bedenkenlos löschen; beim nächsten Build oder Installieren entstehen sie von selbst neu (das erste Mal dauert länger).</translation>
    </message>
    <message>
        <source>review</source>
        <translation>prüfen</translation>
    </message>
    <message>
        <source>May include things you chose to keep — device backups, virtual environments, saved state. Review before removing; left unchecked by default.</source>
        <translation>Kann enthalten, was Sie bewusst aufbewahren – Gerätesicherungen, virtuelle Umgebungen, gespeicherte Zustände. Sehen Sie vor dem Entfernen nach; von sich aus wählt Zelk hier nichts aus.</translation>
    </message>
    <message>
        <source>What&apos;s safe to remove?</source>
        <translation>Was kann bedenkenlos weg?</translation>
    </message>
    <message>
        <source>Everything moves to the Trash, so any removal is reversible until you empty it.</source>
        <translation>Alles kommt in den Papierkorb und lässt sich zurückholen, bis Sie ihn leeren.</translation>
    </message>
    <message>
        <source>only inactive &gt;</source>
        <translation>nur unbenutzt seit &gt;</translation>
    </message>
</context>
<context>
    <name>HealthFactsCard</name>
    <message>
        <source>Chip</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Kerne</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Betriebszeit</translation>
    </message>
</context>
<context>
    <name>HealthGradeFace</name>
    <message>
        <source>Excellent</source>
        <translation>Ausgezeichnet</translation>
    </message>
    <message>
        <source>Everything looks great — plenty of headroom.</source>
        <translation>Alles bestens – reichlich Reserven.</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>A cleanup would help free things up.</source>
        <translation>Eine Bereinigung würde Luft schaffen.</translation>
    </message>
    <message>
        <source>Requires Attention</source>
        <translation>Braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Worth reclaiming space and easing load.</source>
        <translation>Es lohnt sich, Platz zu schaffen und die Last zu senken.</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Low on resources — clean up soon.</source>
        <translation>Es wird knapp – räumen Sie bald auf.</translation>
    </message>
</context>
<context>
    <name>HealthImproveCard</name>
    <message>
        <source>Improve</source>
        <translation>Verbessern</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>in Arbeit …</translation>
    </message>
    <message>
        <source>Free up RAM</source>
        <translation>Arbeitsspeicher freigeben</translation>
    </message>
    <message>
        <source>Flush DNS cache</source>
        <translation>DNS-Zwischenspeicher leeren</translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation>Duplikate suchen</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Große Dateien suchen</translation>
    </message>
</context>
<context>
    <name>HealthScoreInfo</name>
    <message>
        <source>Learn more</source>
        <translation>Mehr erfahren</translation>
    </message>
</context>
<context>
    <name>HealthScreenModel</name>
    <message>
        <source>%1d %2h</source>
        <translation>%1 T. %2 Std.</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 Min.</translation>
    </message>
</context>
<context>
    <name>HelpTopic</name>
    <message>
        <source>Getting started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Zelk surveys your drive, shows what&apos;s using space, and helps you reclaim it safely.</source>
        <translation>Zelk analysiert Ihr Laufwerk, zeigt, was Platz belegt, und hilft Ihnen, ihn sicher zurückzugewinnen.</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>The home dashboard — your drive at a glance.</source>
        <translation>Die Startseite – Ihr Laufwerk auf einen Blick.</translation>
    </message>
    <message>
        <source>The storage ribbon breaks your scanned space down by file type. The finding cards summarise what&apos;s recoverable and route you to the right module.</source>
        <translation>Das Speicherband gliedert den analysierten Platz nach Dateitypen. Die Karten darunter fassen zusammen, was sich zurückgewinnen lässt, und führen Sie zum passenden Bereich.</translation>
    </message>
    <message>
        <source>Trends appears once you&apos;ve run two or more surveys, charting how your drive changes over time.</source>
        <translation>Der Verlauf erscheint ab der zweiten Analyse und zeigt, wie sich Ihr Laufwerk mit der Zeit verändert.</translation>
    </message>
    <message>
        <source>Reclaim &amp; safety</source>
        <translation>Aufräumen und Sicherheit</translation>
    </message>
    <message>
        <source>Clear caches, logs, and developer junk — safely.</source>
        <translation>Zwischenspeicher, Protokolle und Entwicklungsreste – sicher entfernt.</translation>
    </message>
    <message>
        <source>Items are graded: safe (pure cache, zero risk), regenerates (rebuilds on next build/install), and review (may lose non-code state — left unchecked by default).</source>
        <translation>Objekte sind eingestuft: „unbedenklich“ (reiner Zwischenspeicher, kein Risiko), „erneuert sich“ (entsteht beim nächsten Build oder Installieren neu) und „prüfen“ (kann mehr als Code verlieren – von sich aus nicht ausgewählt).</translation>
    </message>
    <message>
        <source>Normal mode offers one-click cleaning of safe items and a bubble map of categories; tap a bubble to clean just that category. Developer mode adds per-item control and an age filter.</source>
        <translation>Die normale Ansicht bereinigt Unbedenkliches mit einem Klick und zeigt die Kategorien als Blasendiagramm; klicken Sie auf eine Blase, um nur diese Kategorie zu bereinigen. In der Entwickleransicht wählen Sie jedes Objekt einzeln und filtern nach Alter.</translation>
    </message>
    <message>
        <source>Everything moves to the Trash by default, so it&apos;s reversible. A dry-run sheet always previews exactly what will be removed before anything happens.</source>
        <translation>Standardmäßig kommt alles in den Papierkorb und lässt sich zurückholen. Bevor irgendetwas geschieht, zeigt eine Vorschau immer genau, was entfernt wird.</translation>
    </message>
    <message>
        <source>Clutter</source>
        <translation>Ballast</translation>
    </message>
    <message>
        <source>Find your largest and oldest files.</source>
        <translation>Findet Ihre größten und ältesten Dateien.</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Find byte-identical files and keep just one.</source>
        <translation>Byteweise gleiche Dateien finden und nur eine davon behalten.</translation>
    </message>
    <message>
        <source>Only files of the same size are candidates, and only those are hashed (SHA-256), so the scan stays fast. Each set lets you keep the first copy and Trash the rest.</source>
        <translation>Nur gleich große Dateien kommen infrage, und nur für diese werden Prüfsummen (SHA-256) berechnet; so bleibt die Suche schnell. Aus jeder Gruppe können Sie die erste Datei behalten und den Rest in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>See where your space went.</source>
        <translation>Zeigt, wo Ihr Platz geblieben ist.</translation>
    </message>
    <message>
        <source>Bubbles sizes each folder as a circle; Browse is a drill-down list with size bars; Map is a treemap. In every mode you can open, reveal, or Trash a folder.</source>
        <translation>Blasen zeigt jeden Ordner als Kreis seiner Größe; Liste führt mit Größenbalken Ordner für Ordner in die Tiefe; Karte ist ein Kacheldiagramm. In jeder Darstellung können Sie einen Ordner öffnen, anzeigen oder in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Uninstall applications cleanly.</source>
        <translation>Deinstalliert Anwendungen sauber.</translation>
    </message>
    <message>
        <source>Lists installed apps by size. Uninstalling removes the app and its leftovers — caches, preferences, support files, and saved state — not just the bundle.</source>
        <translation>Zeigt installierte Anwendungen nach Größe. Beim Deinstallieren verschwinden mit der Anwendung auch ihre Überreste – Zwischenspeicher, Einstellungen, Hilfsdateien und gespeicherte Zustände –, nicht nur das Programm.</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>Clear browsing traces.</source>
        <translation>Entfernt Spuren im Browser.</translation>
    </message>
    <message>
        <source>Finds caches, histories, and cookies across your browsers, plus recent-item state. Quit a browser before clearing its data so its session isn&apos;t disrupted.</source>
        <translation>Findet Zwischenspeicher, Verläufe und Cookies all Ihrer Browser sowie Listen zuletzt benutzter Objekte. Beenden Sie einen Browser, bevor Sie seine Daten entfernen, damit seine Sitzung nicht gestört wird.</translation>
    </message>
    <message>
        <source>Zelk has no malware scanner — that requires a signature database, and a fake one would be worse than none.</source>
        <translation>Zelk sucht nicht nach Schadsoftware – dafür braucht es eine Signaturdatenbank, und eine vorgetäuschte Suche wäre schlimmer als keine.</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Quick performance levers.</source>
        <translation>Schnelle Handgriffe für mehr Leistung.</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Disk, memory, CPU, and battery gauges update every couple of seconds. The Improve section offers one-tap tune-ups and quick links to the relevant modules.</source>
        <translation>Die Anzeigen für Laufwerk, Arbeitsspeicher, CPU und Akku werden alle paar Sekunden aktualisiert. Unter „Verbessern“ finden Sie Handgriffe mit einem Klick und schnelle Wege in die passenden Bereiche.</translation>
    </message>
    <message>
        <source>System &amp; snapshots</source>
        <translation>System und Schnappschüsse</translation>
    </message>
    <message>
        <source>What a treemap can&apos;t show.</source>
        <translation>Was ein Kacheldiagramm nicht zeigen kann.</translation>
    </message>
    <message>
        <source>Privacy &amp; trust</source>
        <translation>Privatsphäre und Vertrauen</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zelk Help</source>
        <translation>Hilfe zu Zelk</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>Nothing that old</source>
        <translation>Nichts so Altes</translation>
    </message>
    <message>
        <source>Everything found was in use more recently. Move the slider to the left to see it.</source>
        <extracomment>Where one reads from right to left, the slider begins at the right.</extracomment>
        <translation>Alles Gefundene wurde in jüngerer Zeit benutzt. Schieben Sie den Regler nach links, um es zu sehen.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Clean selected</source>
        <translation>Auswahl bereinigen</translation>
    </message>
</context>
<context>
    <name>LargestCard</name>
    <message>
        <source>Largest files</source>
        <translation>Größte Dateien</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Alle anzeigen</translation>
    </message>
</context>
<context>
    <name>LensHead</name>
    <message>
        <source>Select:</source>
        <translation>Auswahl:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>LensList</name>
    <message>
        <source>What is this? (I)</source>
        <translation>Was ist das? (I)</translation>
    </message>
</context>
<context>
    <name>LensPanes</name>
    <message>
        <source>Nothing to map</source>
        <translation>Nichts darzustellen</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>No folders that take up space</source>
        <translation>Keine Ordner, die Platz belegen</translation>
    </message>
    <message>
        <source>Files that lie directly in this folder are counted with it and not listed one by one.</source>
        <translation>Dateien, die direkt in diesem Ordner liegen, zählen zu ihm und werden nicht einzeln aufgeführt.</translation>
    </message>
    <message>
        <source>Review and Remove</source>
        <translation>Prüfen und entfernen</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>used</source>
        <translation>belegt</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>total</source>
        <translation>insgesamt</translation>
    </message>
    <message>
        <source>Free up RAM</source>
        <translation>Arbeitsspeicher freigeben</translation>
    </message>
</context>
<context>
    <name>MenuButton</name>
    <message>
        <source>opens a menu</source>
        <translation>öffnet ein Menü</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>PrivacyView</name>
    <message>
        <source>browsing traces</source>
        <translation>Spuren im Browser</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QuitSheet</name>
    <message>
        <source>Something is still being removed</source>
        <translation>Es wird noch etwas entfernt</translation>
    </message>
    <message>
        <source>Nothing more begins. Zelk quits as soon as what has begun is finished.</source>
        <translation>Es beginnt nichts Neues. Zelk beendet sich, sobald alles Begonnene abgeschlossen ist.</translation>
    </message>
    <message>
        <source>Finish first, and Zelk quits by itself when everything is removed. Stop now, and what has begun is finished while the rest stays where it is.</source>
        <translation>Wenn Sie Zelk zuerst fertig werden lassen, beendet es sich von selbst, sobald alles entfernt ist. Wenn Sie jetzt anhalten, wird nur das Begonnene abgeschlossen; der Rest bleibt, wo er ist.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop now</source>
        <translation>Jetzt anhalten</translation>
    </message>
    <message>
        <source>Finish first</source>
        <translation>Zuerst fertig werden</translation>
    </message>
</context>
<context>
    <name>Reclaim</name>
    <message>
        <source>Build cache for a Next.js / Turbo / Vercel project. Regenerated on your next dev or build run.</source>
        <translation>Build-Zwischenspeicher eines Projekts mit Next.js, Turbo oder Vercel. Entsteht beim nächsten Lauf von dev oder build neu.</translation>
    </message>
    <message>
        <source>Build cache for a Gradle / Expo project. Re-downloaded or rebuilt automatically next time.</source>
        <translation>Build-Zwischenspeicher eines Projekts mit Gradle oder Expo. Wird beim nächsten Mal von selbst neu geladen oder erzeugt.</translation>
    </message>
    <message>
        <source>An isolated set of Python packages for a project. Recreate with python -m venv if you delete it.</source>
        <translation>Ein abgeschlossener Satz von Python-Paketen für ein Projekt. Falls Sie ihn löschen, legen Sie ihn mit python -m venv neu an.</translation>
    </message>
    <message>
        <source>Files synced with iCloud Drive. Removing local copies frees space; they stay in the cloud and re-download on demand.</source>
        <translation>Dateien, die mit iCloud Drive abgeglichen werden. Lokale Kopien zu entfernen schafft Platz; in der Cloud bleiben sie und werden bei Bedarf neu geladen.</translation>
    </message>
    <message>
        <source>Installed JavaScript packages for a project. Safe to delete — reinstall with npm/pnpm/yarn install when you next work on it.</source>
        <translation>Installierte JavaScript-Pakete eines Projekts. Sie können sie bedenkenlos löschen – installieren Sie sie mit npm/pnpm/yarn install neu, wenn Sie wieder daran arbeiten.</translation>
    </message>
    <message>
        <source>Xcode DerivedData</source>
        <translation>Xcode DerivedData</translation>
    </message>
    <message>
        <source>Xcode&apos;s build intermediates and indexes. Safe to delete; Xcode rebuilds them on the next build (the first build will be slower).</source>
        <translation>Zwischenergebnisse und Indizes von Xcode. Sie können sie bedenkenlos löschen; Xcode erzeugt sie beim nächsten Build neu (der erste dauert länger).</translation>
    </message>
    <message>
        <source>Python __pycache__</source>
        <translation>Python __pycache__</translation>
    </message>
    <message>
        <source>Compiled Python bytecode. Regenerated automatically when you run the code.</source>
        <translation>Übersetzter Python-Bytecode. Entsteht von selbst neu, wenn Sie den Code ausführen.</translation>
    </message>
    <message>
        <source>Python virtual environment</source>
        <translation>Virtuelle Python-Umgebung</translation>
    </message>
    <message>
        <source>Rust target</source>
        <translation>Rust target</translation>
    </message>
    <message>
        <source>Compiled Rust build output. Rebuilds with cargo build; the first rebuild will be slower.</source>
        <translation>Übersetzte Ergebnisse von Rust. Entsteht mit cargo build neu; das erste Mal dauert länger.</translation>
    </message>
    <message>
        <source>Git repository</source>
        <translation>Git-Repository</translation>
    </message>
    <message>
        <source>The full history of a Git project. Deleting it loses your version history — keep unless you know you don&apos;t need it.</source>
        <translation>Die vollständige Geschichte eines Git-Projekts. Beim Löschen geht der Versionsverlauf verloren – behalten Sie sie, außer Sie brauchen sie sicher nicht.</translation>
    </message>
    <message>
        <source>App cache</source>
        <translation>Zwischenspeicher einer Anwendung</translation>
    </message>
    <message>
        <source>Temporary files an app keeps to load faster. Safe to clear — the app rebuilds what it needs.</source>
        <translation>Temporäre Dateien, mit denen eine Anwendung schneller lädt. Sie können sie bedenkenlos entfernen – die Anwendung legt neu an, was sie braucht.</translation>
    </message>
    <message>
        <source>iOS device backup</source>
        <translation>Sicherung eines iOS-Geräts</translation>
    </message>
    <message>
        <source>A local backup of an iPhone or iPad. Only delete if you have another backup (iCloud or elsewhere).</source>
        <translation>Eine lokale Sicherung eines iPhones oder iPads. Löschen Sie sie nur, wenn Sie eine andere Sicherung haben (in iCloud oder anderswo).</translation>
    </message>
    <message>
        <source>iOS Simulators</source>
        <translation>iOS-Simulatoren</translation>
    </message>
    <message>
        <source>Simulator runtimes and device data for Xcode. Unavailable ones are safe to remove via xcrun simctl delete unavailable.</source>
        <translation>Laufzeitumgebungen und Gerätedaten der Simulatoren für Xcode. Nicht verfügbare können Sie bedenkenlos mit xcrun simctl delete unavailable entfernen.</translation>
    </message>
    <message>
        <source>Sandboxed app data</source>
        <translation>Daten einer abgeschotteten Anwendung</translation>
    </message>
    <message>
        <source>A sandboxed app&apos;s private data (often including its caches and saved state). Some is regenerated; some is real user data — review before deleting.</source>
        <translation>Private Daten einer abgeschotteten Anwendung (oft mit Zwischenspeichern und gespeicherten Zuständen). Manches entsteht neu, manches sind echte Benutzerdaten – sehen Sie vor dem Löschen nach.</translation>
    </message>
    <message>
        <source>App support files</source>
        <translation>Hilfsdateien einer Anwendung</translation>
    </message>
    <message>
        <source>Data an app stores to work — settings, databases, downloaded assets. May include real user data; review before deleting.</source>
        <translation>Daten, die eine Anwendung für ihre Arbeit ablegt – Einstellungen, Datenbanken, geladene Inhalte. Darunter können echte Benutzerdaten sein; sehen Sie vor dem Löschen nach.</translation>
    </message>
    <message>
        <source>iCloud Drive</source>
        <translation>iCloud Drive</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Diagnostic logs. Safe to clear.</source>
        <translation>Protokolle zur Fehlersuche. Sie können sie bedenkenlos entfernen.</translation>
    </message>
    <message>
        <source>Disk image / VM</source>
        <translation>Datenträgerabbild / VM</translation>
    </message>
    <message>
        <source>A disk image or virtual-machine disk. Often very large; safe to delete if you no longer need its contents.</source>
        <translation>Ein Datenträgerabbild oder das Laufwerk einer virtuellen Maschine. Oft sehr groß; Sie können es bedenkenlos löschen, wenn Sie den Inhalt nicht mehr brauchen.</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>A compressed archive or installer. Usually safe to delete once you&apos;ve extracted or installed what you needed.</source>
        <translation>Ein komprimiertes Archiv oder Installationspaket. Meist können Sie es bedenkenlos löschen, sobald Sie entpackt oder installiert haben, was Sie brauchten.</translation>
    </message>
    <message>
        <source>Files you&apos;ve downloaded. Often safe to clean out, but check for anything you want to keep.</source>
        <translation>Dateien, die Sie heruntergeladen haben. Oft kann das weg, aber sehen Sie nach, was Sie behalten möchten.</translation>
    </message>
    <message>
        <source>Files on your Desktop — including screenshots, which pile up.</source>
        <translation>Dateien auf Ihrem Schreibtisch – auch Bildschirmfotos, die sich ansammeln.</translation>
    </message>
    <message>
        <source>Your videos. Large files live here; review before deleting.</source>
        <translation>Ihre Videos. Hier liegen große Dateien; sehen Sie vor dem Löschen nach.</translation>
    </message>
    <message>
        <source>Your music and audio.</source>
        <translation>Ihre Musik und andere Tonaufnahmen.</translation>
    </message>
    <message>
        <source>Your photos and the Photos library.</source>
        <translation>Ihre Fotos und die Fotomediathek.</translation>
    </message>
    <message>
        <source>Your documents.</source>
        <translation>Ihre Dokumente.</translation>
    </message>
    <message>
        <source>Zelk doesn&apos;t have a specific note for this location. Check what&apos;s inside before deleting, and prefer moving to Trash.</source>
        <translation>Zu diesem Ort weiß Zelk nichts Genaueres. Sehen Sie vor dem Löschen nach, was darin ist, und nehmen Sie lieber den Papierkorb.</translation>
    </message>
    <message>
        <source>This item</source>
        <translation>Dieses Objekt</translation>
    </message>
    <message>
        <source>Docker&apos;s disk. Reclaim in Docker Desktop → Settings → Resources, or run: docker system prune</source>
        <translation>Laufwerk von Docker. Platz gewinnen Sie in Docker Desktop → Settings → Resources oder mit: docker system prune</translation>
    </message>
    <message>
        <source>Android emulator disk. Remove unused AVDs in Android Studio&apos;s Device Manager.</source>
        <translation>Laufwerk des Android-Emulators. Entfernen Sie unbenutzte AVDs im Device Manager von Android Studio.</translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).</source>
        <translation>Laufwerk einer VM. Fahren Sie die VM herunter und verdichten Sie es mit Ihrem VM-Programm (UTM/QEMU).</translation>
    </message>
    <message>
        <source>VM disk. Power off the VM, then compact from VMware/VirtualBox.</source>
        <translation>Laufwerk einer VM. Schalten Sie die VM aus und verdichten Sie es dann mit VMware/VirtualBox.</translation>
    </message>
    <message>
        <source>Sparse disk image. Compact with: hdiutil compact &lt;path&gt;</source>
        <translation>Mitwachsendes Abbild. Verdichten mit: hdiutil compact &lt;Pfad&gt;</translation>
    </message>
    <message>
        <source>Installer / disk image. Delete if you no longer need its contents.</source>
        <translation>Installationsmedium oder Abbild. Löschen Sie es, wenn Sie den Inhalt nicht mehr brauchen.</translation>
    </message>
    <message>
        <source>Large disk image. Delete if unneeded, or compact it from the tool that created it.</source>
        <translation>Großes Abbild. Löschen Sie es, wenn Sie es nicht brauchen, oder verdichten Sie es mit dem Programm, das es angelegt hat.</translation>
    </message>
    <message>
        <source>node_modules</source>
        <translation>node_modules</translation>
    </message>
    <message>
        <source>Rebuilds via npm/pnpm install.</source>
        <translation>Entsteht mit npm/pnpm install neu.</translation>
    </message>
    <message>
        <source>Xcode rebuilds these on next build.</source>
        <translation>Xcode erzeugt sie beim nächsten Build neu.</translation>
    </message>
    <message>
        <source>iOS DeviceSupport</source>
        <translation>iOS DeviceSupport</translation>
    </message>
    <message>
        <source>Re-created when you attach that iOS version again.</source>
        <translation>Entsteht neu, wenn Sie wieder ein Gerät mit dieser iOS-Version anschließen.</translation>
    </message>
    <message>
        <source>Unavailable simulators</source>
        <translation>Nicht verfügbare Simulatoren</translation>
    </message>
    <message>
        <source>Removes simulator runtimes macOS no longer lists.</source>
        <translation>Entfernt Simulator-Laufzeitumgebungen, die macOS nicht mehr führt.</translation>
    </message>
    <message>
        <source>Expo caches</source>
        <translation>Expo-Caches</translation>
    </message>
    <message>
        <source>Regenerated by the next expo run.</source>
        <translation>Entsteht beim nächsten Lauf von expo neu.</translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <translation>Gradle-Caches</translation>
    </message>
    <message>
        <source>Re-downloaded on next Gradle build.</source>
        <translation>Wird beim nächsten Gradle-Build neu geladen.</translation>
    </message>
    <message>
        <source>Android system images</source>
        <translation>Android-Systemabbilder</translation>
    </message>
    <message>
        <source>Re-downloadable; keep images for active AVDs.</source>
        <translation>Lassen sich neu laden; behalten Sie die Abbilder aktiver AVDs.</translation>
    </message>
    <message>
        <source>pnpm store</source>
        <translation>pnpm-Speicher</translation>
    </message>
    <message>
        <source>Pruned with pnpm store prune (preserves hardlinks).</source>
        <translation>Wird mit pnpm store prune gestutzt (Hardlinks bleiben erhalten).</translation>
    </message>
    <message>
        <source>npm cache</source>
        <translation>npm-Cache</translation>
    </message>
    <message>
        <source>Cleared with npm cache clean --force.</source>
        <translation>Wird mit npm cache clean --force geleert.</translation>
    </message>
    <message>
        <source>Yarn cache</source>
        <translation>Yarn-Cache</translation>
    </message>
    <message>
        <source>Re-populated on next install.</source>
        <translation>Füllt sich beim nächsten Installieren neu.</translation>
    </message>
    <message>
        <source>CocoaPods cache</source>
        <translation>CocoaPods-Cache</translation>
    </message>
    <message>
        <source>Re-populated on next pod install.</source>
        <translation>Füllt sich beim nächsten pod install neu.</translation>
    </message>
    <message>
        <source>App caches (Electron)</source>
        <translation>Zwischenspeicher (Electron)</translation>
    </message>
    <message>
        <source>Quit the app first; covers Cursor, VS Code, Claude, Chrome.</source>
        <translation>Beenden Sie zuerst die Anwendung; betrifft Cursor, VS Code, Claude, Chrome.</translation>
    </message>
    <message>
        <source>Editor workspace storage</source>
        <translation>Arbeitsbereiche von Editoren</translation>
    </message>
    <message>
        <source>Loses per-workspace UI state, not your code.</source>
        <translation>Verliert den Zustand der Oberfläche je Arbeitsbereich, nicht Ihren Code.</translation>
    </message>
    <message>
        <source>Next / Turbo / Vercel</source>
        <translation>Next / Turbo / Vercel</translation>
    </message>
    <message>
        <source>Rebuilds on next dev/build.</source>
        <translation>Entsteht beim nächsten dev oder build neu.</translation>
    </message>
    <message>
        <source>Rebuilds via cargo build.</source>
        <translation>Entsteht mit cargo build neu.</translation>
    </message>
    <message>
        <source>Regenerated automatically.</source>
        <translation>Entsteht von selbst neu.</translation>
    </message>
    <message>
        <source>Python .venv</source>
        <translation>Python .venv</translation>
    </message>
    <message>
        <source>Recreate with python -m venv / your tool.</source>
        <translation>Mit python -m venv oder Ihrem Werkzeug neu anzulegen.</translation>
    </message>
    <message>
        <source>iOS device backups</source>
        <translation>Sicherungen von iOS-Geräten</translation>
    </message>
    <message>
        <source>Local iPhone/iPad backups — only remove if you have another backup.</source>
        <translation>Lokale Sicherungen von iPhones und iPads – nur entfernen, wenn Sie eine andere Sicherung haben.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcode-Archive</translation>
    </message>
    <message>
        <source>Build archives and dSYMs from past releases.</source>
        <translation>Build-Archive und dSYMs früherer Veröffentlichungen.</translation>
    </message>
    <message>
        <source>Mail downloads</source>
        <translation>Downloads von Mail</translation>
    </message>
    <message>
        <source>Saved Mail attachments.</source>
        <translation>Gespeicherte Anhänge aus Mail.</translation>
    </message>
    <message>
        <source>Music &amp; Podcasts cache</source>
        <translation>Zwischenspeicher von Musik und Podcasts</translation>
    </message>
    <message>
        <source>Re-downloaded as needed.</source>
        <translation>Wird bei Bedarf neu geladen.</translation>
    </message>
    <message>
        <source>Photos cache</source>
        <translation>Zwischenspeicher von Fotos</translation>
    </message>
    <message>
        <source>Rebuilt by Photos.</source>
        <translation>Wird von Fotos neu angelegt.</translation>
    </message>
    <message>
        <source>Safari</source>
        <translation>Safari</translation>
    </message>
    <message>
        <source>Chrome</source>
        <translation>Chrome</translation>
    </message>
    <message>
        <source>Brave</source>
        <translation>Brave</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Edge</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arc</translation>
    </message>
    <message>
        <source>Firefox</source>
        <translation>Firefox</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>GNOME Web</source>
        <translation>GNOME Web</translation>
    </message>
    <message>
        <source>Chromium</source>
        <translation>Chromium</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Recent items</source>
        <translation>Zuletzt benutzte Objekte</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>Zwischenspeicher</translation>
    </message>
</context>
<context>
    <name>RootList</name>
    <message>
        <source>No folders yet. Add one, and a survey walks it.</source>
        <translation>Noch keine Ordner. Fügen Sie einen hinzu, und er wird analysiert.</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
</context>
<context>
    <name>SafetyLook</name>
    <message>
        <source>safe</source>
        <translation>unbedenklich</translation>
    </message>
    <message>
        <source>regenerates</source>
        <translation>erneuert sich</translation>
    </message>
    <message>
        <source>review</source>
        <translation>prüfen</translation>
    </message>
</context>
<context>
    <name>ScanButton</name>
    <message>
        <source>Scan</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>scanning…</source>
        <translation>Analyse läuft …</translation>
    </message>
    <message>
        <source>recoverable</source>
        <translation>rückgewinnbar</translation>
    </message>
    <message>
        <source>re-run</source>
        <translation>wiederholen</translation>
    </message>
</context>
<context>
    <name>ScreenLook</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>everything at a glance</source>
        <translation>alles auf einen Blick</translation>
    </message>
    <message>
        <source>Reclaim</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>caches, logs, junk</source>
        <translation>Datenmüll und Protokolle</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>browsing traces</source>
        <translation>Spuren im Browser</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>startup &amp; memory</source>
        <translation>Start und Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>uninstall cleanly</source>
        <translation>sauber deinstallieren</translation>
    </message>
    <message>
        <source>Clutter</source>
        <translation>Ballast</translation>
    </message>
    <message>
        <source>large &amp; old files</source>
        <translation>große und alte Dateien</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>gleiche Dateien</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>visual map</source>
        <translation>Bild der Belegung</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>vitals &amp; tune-up</source>
        <translation>Messwerte und Pflege</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>snapshots &amp; space</source>
        <translation>Schnappschüsse und Platz</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>what&apos;s included</source>
        <translation>was alles dabei ist</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Scan roots</source>
        <translation>Zu analysierende Ordner</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Delete permanently by default</source>
        <translation>Standardmäßig endgültig löschen</translation>
    </message>
    <message>
        <source>Off keeps cleanup reversible (moves to Trash).</source>
        <translation>Ausgeschaltet bleibt die Bereinigung umkehrbar (alles kommt in den Papierkorb).</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Re-scan now</source>
        <translation>Jetzt neu analysieren</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Seitenleiste ausklappen</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Seitenleiste einklappen</translation>
    </message>
    <message>
        <source>Developer view</source>
        <translation>Entwickleransicht</translation>
    </message>
    <message>
        <source>Show developer-focused junk and per-item controls in Reclaim</source>
        <translation>Zeigt beim Aufräumen auch Datenmüll aus der Softwareentwicklung und lässt Sie jedes Objekt einzeln wählen</translation>
    </message>
</context>
<context>
    <name>SnapshotRow</name>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
</context>
<context>
    <name>SnapshotSheet</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SnapshotsCard</name>
    <message>
        <source>Local snapshots</source>
        <translation>Lokale Schnappschüsse</translation>
    </message>
    <message>
        <source>Removing snapshots</source>
        <translation>Schnappschüsse werden entfernt</translation>
    </message>
    <message>
        <source>waiting for the system…</source>
        <translation>Warten auf das System …</translation>
    </message>
    <message>
        <source>Reload the local snapshots</source>
        <translation>Lokale Schnappschüsse neu laden</translation>
    </message>
    <message>
        <source>Reading the snapshots…</source>
        <translation>Schnappschüsse werden gelesen …</translation>
    </message>
    <message>
        <source>No local snapshots. Nothing to thin.</source>
        <translation>Keine lokalen Schnappschüsse. Es gibt nichts auszudünnen.</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Mehr anzeigen</translation>
    </message>
    <message>
        <source>Thin 5 GB</source>
        <translation>5 GB ausdünnen</translation>
    </message>
</context>
<context>
    <name>SurveyHero</name>
    <message>
        <source>Scan every corner of your drive in seconds.</source>
        <translation>Jeder Winkel Ihres Laufwerks, in Sekunden analysiert.</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>abbrechen</translation>
    </message>
    <message>
        <source>Tap to scan again · details below</source>
        <translation>Klicken für neue Analyse · Einzelheiten unten</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>System &amp; snapshots</source>
        <translation>System und Schnappschüsse</translation>
    </message>
    <message>
        <source>Protected areas</source>
        <translation>Geschützte Bereiche</translation>
    </message>
</context>
<context>
    <name>SystemTexts</name>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>your whole Mac</source>
        <translation>Ihres ganzen Mac</translation>
    </message>
    <message>
        <source>your whole computer</source>
        <translation>Ihres ganzen Computers</translation>
    </message>
    <message>
        <source>Scan your whole Mac and see space by type, the biggest files, and how it changes over time.</source>
        <translation>Analysiert Ihren ganzen Mac und zeigt den Platz nach Typen, die größten Dateien und wie sich alles mit der Zeit verändert.</translation>
    </message>
    <message>
        <source>Scan your whole computer and see space by type, the biggest files, and how it changes over time.</source>
        <translation>Analysiert Ihren ganzen Computer und zeigt den Platz nach Typen, die größten Dateien und wie sich alles mit der Zeit verändert.</translation>
    </message>
    <message>
        <source>A fast, private way to understand and clean your Mac.</source>
        <translation>Schnell und privat: verstehen, was auf Ihrem Mac liegt, und ihn aufräumen.</translation>
    </message>
    <message>
        <source>A fast, private way to understand and clean your computer.</source>
        <translation>Schnell und privat: verstehen, was auf Ihrem Computer liegt, und ihn aufräumen.</translation>
    </message>
    <message>
        <source>Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask first.</source>
        <translation>Zelk arbeitet vollständig auf Ihrem Mac. Nichts wird jemals hochgeladen, und bevor etwas gelöscht wird, werden Sie immer gefragt.</translation>
    </message>
    <message>
        <source>Zelk runs entirely on your computer. Nothing is ever uploaded, and destructive actions always ask first.</source>
        <translation>Zelk arbeitet vollständig auf Ihrem Computer. Nichts wird jemals hochgeladen, und bevor etwas gelöscht wird, werden Sie immer gefragt.</translation>
    </message>
    <message>
        <source>Mac health</source>
        <translation>Zustand des Mac</translation>
    </message>
    <message>
        <source>Computer health</source>
        <translation>Zustand des Computers</translation>
    </message>
    <message>
        <source>Mac Health</source>
        <translation>Zustand des Mac</translation>
    </message>
    <message>
        <source>Computer Health</source>
        <translation>Zustand des Computers</translation>
    </message>
    <message>
        <source>Mac Health Score</source>
        <translation>Bewertung des Mac</translation>
    </message>
    <message>
        <source>Computer Health Score</source>
        <translation>Bewertung des Computers</translation>
    </message>
    <message>
        <source>Zelk estimates your Mac&apos;s health from free disk space, memory pressure, CPU load, and battery — and watches how it trends over time.</source>
        <translation>Zelk schätzt den Zustand Ihres Mac nach freiem Platz, Speicherdruck, CPU-Last und Akku – und beobachtet, wie er sich mit der Zeit entwickelt.</translation>
    </message>
    <message>
        <source>Zelk estimates your computer&apos;s health from free disk space, memory pressure, CPU load, and battery — and watches how it trends over time.</source>
        <translation>Zelk schätzt den Zustand Ihres Computers nach freiem Platz, Speicherdruck, CPU-Last und Akku – und beobachtet, wie er sich mit der Zeit entwickelt.</translation>
    </message>
    <message>
        <source>Your Mac is in good shape.</source>
        <translation>Ihr Mac ist in guter Verfassung.</translation>
    </message>
    <message>
        <source>Your computer is in good shape.</source>
        <translation>Ihr Computer ist in guter Verfassung.</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Dieser Mac</translation>
    </message>
    <message>
        <source>macOS</source>
        <translation>macOS</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Reveal in Files</source>
        <translation>In Dateien anzeigen</translation>
    </message>
    <message>
        <source>Full Disk Access needed to read the Trash</source>
        <translation>Für den Papierkorb ist Festplattenvollzugriff nötig</translation>
    </message>
    <message>
        <source>not yours to read: see who owns its folder</source>
        <translation>nicht lesbar: Sehen Sie nach, wem der Ordner gehört</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message>
        <source>Zelk needs Full Disk Access</source>
        <translation>Zelk braucht Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Zelk may not read your whole drive</source>
        <translation>Zelk darf nicht Ihr ganzes Laufwerk lesen</translation>
    </message>
    <message>
        <source>to survey your whole drive.</source>
        <translation>um Ihr ganzes Laufwerk zu analysieren.</translation>
    </message>
    <message>
        <source>Some folders belong to another user.</source>
        <translation>Manche Ordner gehören einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>Open Settings → drag Zelk in → come back.</source>
        <translation>Einstellungen öffnen → Zelk hineinziehen → zurückkommen.</translation>
    </message>
    <message>
        <source>Ask their owner to share them, or go on without them.</source>
        <translation>Bitten Sie den Eigentümer um Freigabe, oder machen Sie ohne sie weiter.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Check this Mac</source>
        <translation>Diesen Mac prüfen</translation>
    </message>
    <message>
        <source>Check this computer</source>
        <translation>Diesen Computer prüfen</translation>
    </message>
    <message>
        <source>Drops the caches of files. They count as free already, so the figure “used” will hardly move, and files are read from the disk again for a while.</source>
        <translation>Verwirft zwischengespeicherte Dateien. Sie zählen schon als frei; der Wert „belegt“ ändert sich daher kaum, und Dateien werden eine Weile wieder vom Laufwerk gelesen.</translation>
    </message>
    <message>
        <source>Removes simulator runtimes macOS no longer lists.</source>
        <translation>Entfernt Simulator-Laufzeitumgebungen, die macOS nicht mehr führt.</translation>
    </message>
    <message>
        <source>Removes simulator runtimes that nothing lists any more.</source>
        <translation>Entfernt Simulator-Laufzeitumgebungen, die nirgends mehr geführt werden.</translation>
    </message>
    <message>
        <source>Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping hardlinks so the numbers match Finder.</source>
        <translation>Öffnen Sie die Übersicht und starten Sie die Analyse. Zelk geht durch Ihren persönlichen Ordner, misst den wirklich belegten Platz und zählt Hardlinks nur einmal, damit die Zahlen mit dem Finder übereinstimmen.</translation>
    </message>
    <message>
        <source>Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping hardlinks so the numbers match du.</source>
        <translation>Öffnen Sie die Übersicht und starten Sie die Analyse. Zelk geht durch Ihren persönlichen Ordner, misst den wirklich belegten Platz und zählt Hardlinks nur einmal, damit die Zahlen mit „du“ übereinstimmen.</translation>
    </message>
    <message>
        <source>Every module has its own scan button — nothing runs until you ask. Use the Go menu (⌘1–⌘9) or the sidebar to move between modules.</source>
        <translation>Jeder Bereich hat seinen eigenen Knopf zum Suchen – nichts läuft ungefragt. Mit dem Menü „Gehe zu“ (⌘1–⌘9) oder der Seitenleiste wechseln Sie zwischen den Bereichen.</translation>
    </message>
    <message>
        <source>Every module has its own scan button — nothing runs until you ask. Use the Go menu (Ctrl+1–Ctrl+9) or the sidebar to move between modules.</source>
        <translation>Jeder Bereich hat seinen eigenen Knopf zum Suchen – nichts läuft ungefragt. Mit dem Menü „Gehe zu“ (Strg+1–Strg+9) oder der Seitenleiste wechseln Sie zwischen den Bereichen.</translation>
    </message>
    <message>
        <source>Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some protected folders are skipped (that&apos;s normal).</source>
        <translation>Gewähren Sie auf Nachfrage Festplattenvollzugriff, damit Zelk Ihr ganzes Laufwerk sieht; ohne ihn werden manche geschützten Ordner übersprungen (das ist normal).</translation>
    </message>
    <message>
        <source>Zelk reads what your user may read; folders that belong to another user or to the system are skipped (that&apos;s normal).</source>
        <translation>Zelk liest, was Ihr Benutzer lesen darf; Ordner anderer Benutzer und des Systems werden übersprungen (das ist normal).</translation>
    </message>
    <message>
        <source>Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in Finder, or move it to the Trash.</source>
        <translation>Filtern Sie nach Typ – Videos, Audio, Fotos, Archive, Abbilder – und sortieren Sie nach Größe oder Alter. Alles lässt sich im Finder anzeigen oder in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in Files, or move it to the Trash.</source>
        <translation>Filtern Sie nach Typ – Videos, Audio, Fotos, Archive, Abbilder – und sortieren Sie nach Größe oder Alter. Alles lässt sich in Dateien anzeigen oder in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. Memory and DNS actions ask for administrator permission — Zelk never runs them silently.</source>
        <translation>Sehen Sie den Speicherdruck, geben Sie Arbeitsspeicher frei, leeren Sie den DNS-Zwischenspeicher und entfernen Sie Startagenten. Für Arbeitsspeicher und DNS ist die Erlaubnis eines Administrators nötig – ungefragt führt Zelk nichts davon aus.</translation>
    </message>
    <message>
        <source>See memory pressure, free up RAM, flush the DNS cache, and remove autostart entries. Freeing memory asks for administrator permission — Zelk never runs it silently.</source>
        <translation>Sehen Sie den Speicherdruck, geben Sie Arbeitsspeicher frei, leeren Sie den DNS-Zwischenspeicher und entfernen Sie Einträge im Autostart. Zum Freigeben des Arbeitsspeichers ist die Erlaubnis eines Administrators nötig – ungefragt tut Zelk das nie.</translation>
    </message>
    <message>
        <source>Live vitals for your Mac.</source>
        <translation>Aktuelle Messwerte Ihres Mac.</translation>
    </message>
    <message>
        <source>Live vitals for your computer.</source>
        <translation>Aktuelle Messwerte Ihres Computers.</translation>
    </message>
    <message>
        <source>Surfaces purgeable space and local APFS snapshots. macOS doesn&apos;t report a size per snapshot, only whether each is freeable — so Zelk shows the purgeable total and each snapshot&apos;s state.</source>
        <translation>Zeigt löschbaren Platz und lokale APFS-Schnappschüsse. macOS nennt keine Größe je Schnappschuss, nur ob er sich löschen lässt – deshalb zeigt Zelk die löschbare Summe und den Zustand jedes Schnappschusses.</translation>
    </message>
    <message>
        <source>Surfaces purgeable space and local snapshots, where your file system keeps any. A snapshot&apos;s own size is not always known — so Zelk shows the purgeable total and each snapshot&apos;s state.</source>
        <translation>Zeigt löschbaren Platz und lokale Schnappschüsse, sofern Ihr Dateisystem welche führt. Die Größe eines einzelnen ist nicht immer bekannt – deshalb zeigt Zelk die löschbare Summe und den Zustand jedes Schnappschusses.</translation>
    </message>
    <message>
        <source>Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, behind an administrator prompt.</source>
        <translation>Beim Ausdünnen wählt macOS, was freigegeben wird; löschen lassen sich nur als löschbar geführte Schnappschüsse, und nur mit Erlaubnis eines Administrators.</translation>
    </message>
    <message>
        <source>Thinning lets the system choose what to free; deletion is offered only for freeable snapshots, and always asks first.</source>
        <translation>Beim Ausdünnen wählt das System, was freigegeben wird; löschen lassen sich nur als löschbar geführte Schnappschüsse, und immer erst nach Rückfrage.</translation>
    </message>
    <message>
        <source>Zelk works entirely on your Mac.</source>
        <translation>Zelk arbeitet vollständig auf Ihrem Mac.</translation>
    </message>
    <message>
        <source>Zelk works entirely on your computer.</source>
        <translation>Zelk arbeitet vollständig auf Ihrem Computer.</translation>
    </message>
    <message>
        <source>Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and admin actions always go through the standard macOS authorization prompt.</source>
        <translation>Nichts wird irgendwohin hochgeladen – Analyse und Bereinigung geschehen nur auf Ihrem Gerät. Gelöschtes kommt standardmäßig in den Papierkorb, und was einen Administrator braucht, geht immer über die übliche Nachfrage von macOS.</translation>
    </message>
    <message>
        <source>Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and admin actions always go through your desktop&apos;s authorization prompt.</source>
        <translation>Nichts wird irgendwohin hochgeladen – Analyse und Bereinigung geschehen nur auf Ihrem Gerät. Gelöschtes kommt standardmäßig in den Papierkorb, und was einen Administrator braucht, geht immer über die Nachfrage Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Zelk is non-sandboxed so it can survey the whole drive; that&apos;s why it&apos;s distributed directly (Developer ID + notarization), not via the App Store.</source>
        <translation>Zelk läuft nicht abgeschottet, damit es das ganze Laufwerk analysieren kann; deshalb wird es direkt verteilt (Developer ID und Beglaubigung) und nicht über den App Store.</translation>
    </message>
    <message>
        <source>Zelk is non-sandboxed so it can survey the whole drive; that&apos;s why it&apos;s distributed as a package, not as a sandboxed bundle.</source>
        <translation>Zelk läuft nicht abgeschottet, damit es das ganze Laufwerk analysieren kann; deshalb wird es als Paket verteilt und nicht als abgeschottetes Bündel.</translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).</source>
        <translation>Laufwerk einer VM. Fahren Sie die VM herunter und verdichten Sie es mit Ihrem VM-Programm (UTM/QEMU).</translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down, then copy it without its empty space: qemu-img convert -O qcow2 &lt;path&gt; &lt;copy&gt;</source>
        <translation>Laufwerk einer VM. Fahren Sie die VM herunter und kopieren Sie es dann ohne den leeren Platz: qemu-img convert -O qcow2 &lt;Pfad&gt; &lt;Kopie&gt;</translation>
    </message>
    <message>
        <source>Sparse disk image. Compact with: hdiutil compact &lt;path&gt;</source>
        <translation>Mitwachsendes Abbild. Verdichten mit: hdiutil compact &lt;Pfad&gt;</translation>
    </message>
    <message>
        <source>Sparse disk image of another system. Compact it there, or delete it if you no longer need its contents.</source>
        <translation>Mitwachsendes Abbild eines anderen Systems. Verdichten Sie es dort, oder löschen Sie es, wenn Sie den Inhalt nicht mehr brauchen.</translation>
    </message>
    <message>
        <source>Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas.</source>
        <translation>Klärt die rätselhafte Lücke: löschbarer Platz, lokale Schnappschüsse und von SIP geschützte Bereiche.</translation>
    </message>
    <message>
        <source>Reconcile the mystery gap — purgeable space, local snapshots, and protected areas.</source>
        <translation>Klärt die rätselhafte Lücke: löschbarer Platz, lokale Schnappschüsse und geschützte Bereiche.</translation>
    </message>
    <message>
        <source>Purgeable space — including freeable snapshots — is reclaimed automatically by macOS under pressure. It&apos;s not junk.</source>
        <translation>Löschbaren Platz – auch löschbare Schnappschüsse – gibt macOS von selbst frei, wenn es eng wird. Er ist kein Datenmüll.</translation>
    </message>
    <message>
        <source>Purgeable space is what the system would free by itself under pressure. It&apos;s not junk. Snapshots are no part of it here: each keeps its space until it is removed.</source>
        <translation>Löschbar ist Platz, den das System von selbst freigibt, wenn es eng wird. Er ist kein Datenmüll. Schnappschüsse zählen hier nicht dazu: Jeder behält seinen Platz, bis er entfernt wird.</translation>
    </message>
    <message>
        <source>Time Machine</source>
        <translation>Time Machine</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>macOS doesn&apos;t report a size per snapshot — only whether each can be freed. The purgeable total above is the number that matters.</source>
        <translation>macOS nennt keine Größe je Schnappschuss – nur ob er sich löschen lässt. Auf die löschbare Summe oben kommt es an.</translation>
    </message>
    <message>
        <source>The size of a snapshot is seldom known — only whether each can be freed. What it alone still holds is part of the used space above.</source>
        <translation>Die Größe eines Schnappschusses ist selten bekannt – nur ob er sich löschen lässt. Was nur er noch festhält, zählt oben zum belegten Platz.</translation>
    </message>
    <message>
        <source>These are snapshots of ZFS. Zelk only shows them: remove them with its own tools, which know what depends on them.</source>
        <translation>Dies sind Schnappschüsse von ZFS. Zelk zeigt sie nur: Entfernen Sie sie mit den Werkzeugen von ZFS, die wissen, was davon abhängt.</translation>
    </message>
    <message>
        <source>Snapper keeps snapshots here, but did not show them. It answers those users whom its configuration allows.</source>
        <translation>Snapper führt hier Schnappschüsse, hat sie aber nicht gezeigt. Es antwortet nur Benutzern, die seine Konfiguration zulässt.</translation>
    </message>
    <message>
        <source>Prefer thinning — let macOS choose what to free.</source>
        <translation>Besser ausdünnen – macOS wählt, was freigegeben wird.</translation>
    </message>
    <message>
        <source>Prefer thinning — let snapper choose what to free.</source>
        <translation>Besser ausdünnen – snapper wählt, was freigegeben wird.</translation>
    </message>
    <message>
        <source>SIP-protected system folders stay invisible to any userspace app — Zelk can&apos;t enumerate them, and never claims to. The gap between your survey and the volume total lives there.</source>
        <translation>Von SIP geschützte Systemordner bleiben für jede Anwendung unsichtbar – Zelk kann sie nicht auflisten und behauptet das auch nie. Dort liegt die Lücke zwischen Ihrer Analyse und der Summe des Datenträgers.</translation>
    </message>
    <message>
        <source>Folders of the system and of other users stay invisible to your user — Zelk can&apos;t enumerate them, and never claims to. The gap between your survey and the volume total lives there.</source>
        <translation>Ordner des Systems und anderer Benutzer bleiben für Ihren Benutzer unsichtbar – Zelk kann sie nicht auflisten und behauptet das auch nie. Dort liegt die Lücke zwischen Ihrer Analyse und der Summe des Datenträgers.</translation>
    </message>
    <message>
        <source>Reading /Applications…</source>
        <translation>/Applications wird gelesen …</translation>
    </message>
    <message>
        <source>Reading applications…</source>
        <translation>Anwendungen werden gelesen …</translation>
    </message>
    <message>
        <source>There is no application in the folder Applications.</source>
        <translation>Im Ordner „Programme“ liegt keine Anwendung.</translation>
    </message>
    <message>
        <source>There is no application of flatpak, snap or the distribution, and no AppImage or unpacked application in your home folder.</source>
        <translation>Es gibt weder Anwendungen von Flatpak, Snap oder der Distribution noch ein AppImage oder eine entpackte Anwendung in Ihrem persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Only an administrator can, and nothing in Flatpak’s sandbox can ask for one.</source>
        <translation>Das kann nur ein Administrator, und in der Sandbox von Flatpak lässt sich keiner fragen.</translation>
    </message>
    <message>
        <source>See memory pressure and remove autostart entries. Freeing memory and flushing the DNS cache take tools that Flatpak&apos;s sandbox does not have.</source>
        <translation>Zeigt die Speicherauslastung und entfernt Autostart-Einträge. Um Speicher freizugeben und den DNS-Zwischenspeicher zu leeren, fehlen in der Sandbox von Flatpak die Werkzeuge.</translation>
    </message>
    <message>
        <source>Surfaces purgeable space. Snapshots cannot be seen from Flatpak&apos;s sandbox, which has none of the tools that list them.</source>
        <translation>Zeigt löschbaren Platz. Schnappschüsse sind aus der Sandbox von Flatpak nicht zu sehen, weil dort die Werkzeuge fehlen, die sie auflisten.</translation>
    </message>
    <message>
        <source>Thinning and deleting snapshots take those tools too: do it outside, or in a Zelk that is installed as a package.</source>
        <translation>Auch zum Ausdünnen und Löschen von Schnappschüssen braucht es diese Werkzeuge: Tun Sie es außerhalb oder mit einem Zelk, das als Paket installiert ist.</translation>
    </message>
    <message>
        <source>Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and nothing is ever done as an administrator: no prompt reaches Flatpak&apos;s sandbox.</source>
        <translation>Nichts wird irgendwohin übertragen – untersucht und bereinigt wird nur hier. Was entfernt wird, kommt in den Papierkorb, wenn Sie nichts anderes wählen, und nichts geschieht je als Administrator: Aus der Sandbox von Flatpak lässt sich keiner fragen.</translation>
    </message>
    <message>
        <source>This Zelk runs in Flatpak&apos;s sandbox, with your files opened to it so it can survey them. Tools and packages of the system stay outside: for those, install Zelk as a package.</source>
        <translation>Dieses Zelk läuft in der Sandbox von Flatpak, die ihm Ihre Dateien öffnet, damit es sie untersuchen kann. Werkzeuge und Pakete des Systems bleiben draußen: Für diese installieren Sie Zelk als Paket.</translation>
    </message>
    <message>
        <source>Whether there are snapshots is not known: Flatpak’s sandbox has none of the tools that list them.</source>
        <translation>Ob es Schnappschüsse gibt, ist nicht bekannt: In der Sandbox von Flatpak fehlen die Werkzeuge, die sie auflisten.</translation>
    </message>
    <message>
        <source>There is no AppImage or unpacked application in your home folder. Those of flatpak, snap and the distribution can’t be seen from Flatpak’s sandbox.</source>
        <translation>In Ihrem persönlichen Ordner gibt es weder ein AppImage noch eine entpackte Anwendung. Die von Flatpak, Snap und der Distribution sind aus der Sandbox von Flatpak nicht zu sehen.</translation>
    </message>
</context>
<context>
    <name>SystemView</name>
    <message>
        <source>System &amp; snapshots</source>
        <translation>System und Schnappschüsse</translation>
    </message>
    <message>
        <source>what the treemap can&apos;t show</source>
        <translation>was das Kacheldiagramm nicht zeigen kann</translation>
    </message>
</context>
<context>
    <name>ToolsView</name>
    <message>
        <source>everything Zelk can do</source>
        <translation>alles, was Zelk kann</translation>
    </message>
</context>
<context>
    <name>TracePane</name>
    <message>
        <source>No traces</source>
        <translation>Keine Spuren</translation>
    </message>
    <message>
        <source>No browser caches or histories to clear.</source>
        <translation>Es gibt keine Zwischenspeicher oder Verläufe zu entfernen.</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Firefox’s history is not listed: it shares a file with your bookmarks. Clear it in Firefox.</source>
        <translation>Der Verlauf von Firefox fehlt hier: Er liegt mit Ihren Lesezeichen in einer Datei. Löschen Sie ihn in Firefox.</translation>
    </message>
    <message>
        <source>Clear traces</source>
        <translation>Spuren entfernen</translation>
    </message>
</context>
<context>
    <name>TrashBanner</name>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>TrendsCard</name>
    <message>
        <source>Trends</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>What changed since last scan</source>
        <translation>Was sich seit der letzten Analyse geändert hat</translation>
    </message>
</context>
<context>
    <name>TuneHead</name>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>waiting for the system…</source>
        <translation>Warten auf das System …</translation>
    </message>
    <message>
        <source>Flush DNS cache</source>
        <translation>DNS-Zwischenspeicher leeren</translation>
    </message>
    <message>
        <source>Refresh memory</source>
        <translation>Arbeitsspeicher neu messen</translation>
    </message>
    <message>
        <source>Processes and apps that run in the background. You may not need all of them.</source>
        <translation>Prozesse und Anwendungen, die im Hintergrund laufen. Vielleicht brauchen Sie nicht alle.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Nothing here.</source>
        <translation>Nichts vorhanden.</translation>
    </message>
</context>
<context>
    <name>TuneLevers</name>
    <message>
        <source>Background items</source>
        <translation>Hintergrundprogramme</translation>
    </message>
</context>
<context>
    <name>TuneView</name>
    <message>
        <source>startup &amp; memory</source>
        <translation>Start und Arbeitsspeicher</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UninstallSheet</name>
    <message>
        <source>What will go</source>
        <translation>Was entfernt wird</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>zelk::AgentRows</name>
    <message>
        <source>in place of the system&apos;s own</source>
        <translation>anstelle des systemeigenen Eintrags</translation>
    </message>
    <message>
        <source>Not removable: without it the system&apos;s own item would start.</source>
        <translation>Nicht entfernbar: Ohne diesen Eintrag würde der des Systems starten.</translation>
    </message>
    <message>
        <source>Not removable: it belongs to the system.</source>
        <translation>Nicht entfernbar: gehört zum System.</translation>
    </message>
    <message>
        <source>system</source>
        <translation>System</translation>
    </message>
    <message>
        <source>not removable here</source>
        <translation>hier nicht entfernbar</translation>
    </message>
    <message>
        <source>Not removable here: what would start in its place can’t be seen.</source>
        <translation>Hier nicht entfernbar: Was stattdessen starten würde, ist nicht zu sehen.</translation>
    </message>
</context>
<context>
    <name>zelk::AppCommands</name>
    <message>
        <source>About Zelk</source>
        <translation>Über Zelk</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Zelk</source>
        <translation>Zelk beenden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Run Survey</source>
        <translation>Analyse starten</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Zelk Help</source>
        <translation>Hilfe zu Zelk</translation>
    </message>
</context>
<context>
    <name>zelk::AppModel</name>
    <message numerus="yes">
        <source>%1 items · %2</source>
        <translation>
            <numerusform>%1 Objekt · %2</numerusform>
            <numerusform>%1 Objekte · %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::AppRows</name>
    <message>
        <source>being removed</source>
        <translation>wird entfernt</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 deinstallieren</translation>
    </message>
</context>
<context>
    <name>zelk::AppsScreenModel</name>
    <message>
        <source>Apps</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>List installed apps by size and uninstall them cleanly — the app plus its leftover caches, preferences, and support files.</source>
        <translation>Zeigt installierte Anwendungen nach Größe und deinstalliert sie sauber – samt zurückgelassenen Zwischenspeichern, Einstellungen und Hilfsdateien.</translation>
    </message>
    <message>
        <source>Scan applications</source>
        <translation>Anwendungen suchen</translation>
    </message>
    <message numerus="yes">
        <source>%1 apps · footprint includes caches, support &amp; containers</source>
        <translation>
            <numerusform>%1 Anwendung · mit Zwischenspeichern, Hilfsdateien und Containern</numerusform>
            <numerusform>%1 Anwendungen · mit Zwischenspeichern, Hilfsdateien und Containern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 apps · those of flatpak, snap and the distribution can’t be seen from here</source>
        <translation>
            <numerusform>%1 Anwendung · die von Flatpak, Snap und der Distribution sind von hier nicht zu sehen</numerusform>
            <numerusform>%1 Anwendungen · die von Flatpak, Snap und der Distribution sind von hier nicht zu sehen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::BubbleNodes</name>
    <message>
        <source>less than 1% of the map</source>
        <translation>weniger als 1 % des Diagramms</translation>
    </message>
    <message>
        <source>%1% of the map</source>
        <translation>%1 % des Diagramms</translation>
    </message>
    <message>
        <source>reclaimable</source>
        <translation>rückgewinnbar</translation>
    </message>
</context>
<context>
    <name>zelk::BubblePicture</name>
    <message>
        <source>%1 · reclaimable</source>
        <translation>%1 · rückgewinnbar</translation>
    </message>
</context>
<context>
    <name>zelk::CategoryList</name>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>No categories selected</source>
        <translation>Keine Kategorien ausgewählt</translation>
    </message>
</context>
<context>
    <name>zelk::ChangesModel</name>
    <message>
        <source>Grew (%1)</source>
        <translation>Gewachsen (%1)</translation>
    </message>
    <message>
        <source>Appeared (%1)</source>
        <translation>Neu (%1)</translation>
    </message>
    <message>
        <source>Vanished (%1)</source>
        <translation>Verschwunden (%1)</translation>
    </message>
</context>
<context>
    <name>zelk::ClutterScreenModel</name>
    <message>
        <source>Clutter</source>
        <translation>Ballast</translation>
    </message>
    <message>
        <source>Find your largest and oldest files — videos, downloads, disk images, forgotten archives.</source>
        <translation>Findet Ihre größten und ältesten Dateien – Videos, Downloads, Datenträgerabbilder, vergessene Archive.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Große Dateien suchen</translation>
    </message>
    <message>
        <source>Hunting for heavy files…</source>
        <translation>Große Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>zelk::DiskImageRows</name>
    <message>
        <source>What is %1?</source>
        <translation>Was ist %1?</translation>
    </message>
</context>
<context>
    <name>zelk::DryRunModel</name>
    <message>
        <source>%1 to Trash · %2 via command · %3 to recover</source>
        <translation>%1 in den Papierkorb · %2 durch Befehl · %3 zurückzugewinnen</translation>
    </message>
    <message>
        <source>Delete %1 permanently</source>
        <translation>%1 endgültig löschen</translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation>%1 in den Papierkorb</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 · %2 item</source>
        <translation>%1 · %2 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %2 items</source>
        <translation>
            <numerusform>%1 · %2 Objekt</numerusform>
            <numerusform>%1 · %2 Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source> · %1 skipped</source>
        <translation> · %1 übersprungen</translation>
    </message>
</context>
<context>
    <name>zelk::DryRunRows</name>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>zelk::DuplicateRows</name>
    <message numerus="yes">
        <source>%1 copies · %2 each</source>
        <translation>
            <numerusform>%1 Kopie · je %2</numerusform>
            <numerusform>%1 Kopien · je %2</numerusform>
        </translation>
    </message>
    <message>
        <source>save %1</source>
        <translation>spart %1</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>dup</source>
        <translation>Duplikat</translation>
    </message>
    <message>
        <source>hard link</source>
        <translation>Hardlink</translation>
    </message>
    <message>
        <source>Keep first, trash rest: %1</source>
        <translation>Erste behalten, Rest in den Papierkorb: %1</translation>
    </message>
</context>
<context>
    <name>zelk::DuplicatesScreenModel</name>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Find byte-identical files — duplicate downloads, copied media, repeated exports — and keep just one.</source>
        <translation>Byteweise gleiche Dateien finden – doppelte Downloads, kopierte Medien, wiederholte Exporte – und nur eine davon behalten.</translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation>Duplikate suchen</translation>
    </message>
    <message>
        <source>Hashing candidates… this can take a moment</source>
        <translation>Kandidaten werden verglichen … das kann etwas dauern</translation>
    </message>
    <message numerus="yes">
        <source>%1 sets · %2 recoverable</source>
        <translation>
            <numerusform>%1 Gruppe · %2 rückgewinnbar</numerusform>
            <numerusform>%1 Gruppen · %2 rückgewinnbar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>zelk::FindingsModel</name>
    <message>
        <source>1 folder could not be read.</source>
        <translation>1 Ordner ließ sich nicht lesen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders could not be read.</source>
        <translation>
            <numerusform>%1 Ordner ließ sich nicht lesen.</numerusform>
            <numerusform>%1 Ordner ließen sich nicht lesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items of junk</source>
        <translation>
            <numerusform>%1 Objekt Datenmüll</numerusform>
            <numerusform>%1 Objekte Datenmüll</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 large files</source>
        <translation>
            <numerusform>%1 große Datei</numerusform>
            <numerusform>%1 große Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>review what landed here</source>
        <translation>nachsehen, was hier gelandet ist</translation>
    </message>
    <message>
        <source>purgeable &amp; snapshots</source>
        <translation>Löschbares und Schnappschüsse</translation>
    </message>
    <message>
        <source>Nothing to reclaim right now — you scanned %1.</source>
        <translation>Zurzeit gibt es nichts zurückzugewinnen – %1 wurden analysiert.</translation>
    </message>
    <message numerus="yes">
        <source>across %1 items.</source>
        <translation>
            <numerusform>aus %1 Objekt.</numerusform>
            <numerusform>aus %1 Objekten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>across %1 items · most space: %2</source>
        <translation>
            <numerusform>aus %1 Objekt · am meisten Platz: %2</numerusform>
            <numerusform>aus %1 Objekten · am meisten Platz: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
</context>
<context>
    <name>zelk::HealthScreenModel</name>
    <message>
        <source>Reclaim %1</source>
        <translation>%1 zurückgewinnen</translation>
    </message>
    <message>
        <source>Find junk to clean</source>
        <translation>Datenmüll suchen</translation>
    </message>
</context>
<context>
    <name>zelk::ItemList</name>
    <message numerus="yes">
        <source>%1 items selected</source>
        <translation>
            <numerusform>%1 Objekt ausgewählt</numerusform>
            <numerusform>%1 Objekte ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 angezeigt</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>aufgeklappt</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>zugeklappt</translation>
    </message>
    <message>
        <source>quit %1 to clear</source>
        <translation>zum Leeren „%1“ beenden</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 T.</translation>
    </message>
    <message>
        <source>needs %1, which Flatpak’s sandbox does not have</source>
        <translation>braucht %1, das es in der Sandbox von Flatpak nicht gibt</translation>
    </message>
    <message>
        <source>may be in use: what runs can’t be seen from here</source>
        <translation>vielleicht in Benutzung: Was läuft, ist von hier nicht zu sehen</translation>
    </message>
</context>
<context>
    <name>zelk::LargeFileRows</name>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message numerus="yes">
        <source>%1d ago</source>
        <translation>
            <numerusform>vor %1 Tag</numerusform>
            <numerusform>vor %1 Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1mo ago</source>
        <translation>
            <numerusform>vor %1 Monat</numerusform>
            <numerusform>vor %1 Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1y ago</source>
        <translation>
            <numerusform>vor %1 Jahr</numerusform>
            <numerusform>vor %1 Jahren</numerusform>
        </translation>
    </message>
    <message>
        <source>Actions for %1</source>
        <translation>Aktionen für %1</translation>
    </message>
</context>
<context>
    <name>zelk::LensRows</name>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>angekreuzt</translation>
    </message>
    <message>
        <source>What is %1?</source>
        <translation>Was ist %1?</translation>
    </message>
</context>
<context>
    <name>zelk::LensScreenModel</name>
    <message>
        <source>Lens</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Explore where your space went — a list and a live bubble map, side by side.</source>
        <translation>Erkunden Sie, wo Ihr Platz geblieben ist – mit Liste und Blasendiagramm nebeneinander.</translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation>Analyse starten</translation>
    </message>
    <message>
        <source>Surveying your drive…</source>
        <translation>Ihr Laufwerk wird analysiert …</translation>
    </message>
    <message>
        <source>Surveyed folders</source>
        <translation>Analysierte Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %2 folders</source>
        <translation>
            <numerusform>%1 · %2 Ordner</numerusform>
            <numerusform>%1 · %2 Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in files directly in this folder</source>
        <translation>%1 in Dateien direkt in diesem Ordner</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Folders in %1</source>
        <translation>Ordner in %1</translation>
    </message>
    <message>
        <source>Map of the surveyed folders</source>
        <translation>Diagramm der analysierten Ordner</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <translation>Diagramm von %1</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 von %2 belegt</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>%1 selected · %2</source>
        <translation>%1 ausgewählt · %2</translation>
    </message>
    <message>
        <source>Other (%1)</source>
        <translation>Sonstige (%1)</translation>
    </message>
</context>
<context>
    <name>zelk::PrivacyScreenModel</name>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>Clear browsing traces across your browsers — caches, histories, cookies. No malware scanner (that needs a signature database).</source>
        <translation>Entfernt Spuren aus all Ihren Browsern – Zwischenspeicher, Verläufe, Cookies. Keine Suche nach Schadsoftware (dafür braucht es eine Signaturdatenbank).</translation>
    </message>
    <message>
        <source>Scan for traces</source>
        <translation>Spuren suchen</translation>
    </message>
    <message>
        <source>Scanning browser traces…</source>
        <translation>Spuren im Browser werden gesucht …</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
</context>
<context>
    <name>zelk::ReclaimScreenModel</name>
    <message>
        <source>Reclaim</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Clear caches, logs, and developer junk — safely, to the Trash.</source>
        <translation>Räumt Zwischenspeicher, Protokolle und Entwicklungsreste sicher in den Papierkorb.</translation>
    </message>
    <message>
        <source>Scan for junk</source>
        <translation>Datenmüll suchen</translation>
    </message>
    <message>
        <source>Looking for reclaimable junk…</source>
        <translation>Datenmüll wird gesucht …</translation>
    </message>
</context>
<context>
    <name>zelk::ScanRootList</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>zelk::SettingsScreenModel</name>
    <message>
        <source>Age filter default: all</source>
        <translation>Vorgabe des Altersfilters: alle</translation>
    </message>
    <message numerus="yes">
        <source>Age filter default: %1 days</source>
        <translation>
            <numerusform>Vorgabe des Altersfilters: %1 Tag</numerusform>
            <numerusform>Vorgabe des Altersfilters: %1 Tage</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::SidebarModel</name>
    <message>
        <source>Clean</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Erkunden</translation>
    </message>
</context>
<context>
    <name>zelk::SnapshotRows</name>
    <message>
        <source>OS update</source>
        <translation>Systemaktualisierung</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>ohne Datum</translation>
    </message>
    <message>
        <source>freeable</source>
        <translation>löschbar</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>fixiert</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a date and a time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Delete snapshot %1</source>
        <translation>Schnappschuss %1 löschen</translation>
    </message>
</context>
<context>
    <name>zelk::SnapshotsModel</name>
    <message>
        <source>1 more snapshot is not shown.</source>
        <translation>1 weiterer Schnappschuss wird nicht angezeigt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more snapshots are not shown.</source>
        <translation>
            <numerusform>%1 weiterer Schnappschuss wird nicht angezeigt.</numerusform>
            <numerusform>%1 weitere Schnappschüsse werden nicht angezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete this snapshot?</source>
        <translation>Diesen Schnappschuss löschen?</translation>
    </message>
    <message>
        <source>Thin the snapshots?</source>
        <translation>Schnappschüsse ausdünnen?</translation>
    </message>
    <message>
        <source>The freeable ones are removed, as many as it takes to have %1 free. They cannot be brought back.</source>
        <translation>Löschbare Schnappschüsse werden entfernt, bis %1 frei sind. Sie lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>“%1” is removed for good. It cannot be brought back.</source>
        <translation>„%1“ wird endgültig entfernt und lässt sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>“%1” of %2 is removed for good. It cannot be brought back.</source>
        <translation>„%1“ vom %2 wird endgültig entfernt und lässt sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Thin 5 GB</source>
        <translation>5 GB ausdünnen</translation>
    </message>
    <message>
        <source>What was removed is not known: the list could not be read.</source>
        <translation>Was entfernt wurde, ist nicht bekannt: Die Liste ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>The snapshot is still there.</source>
        <translation>Der Schnappschuss ist noch da.</translation>
    </message>
    <message>
        <source>The snapshot is gone.</source>
        <translation>Der Schnappschuss wurde entfernt.</translation>
    </message>
    <message>
        <source>No snapshot was removed.</source>
        <translation>Es wurde kein Schnappschuss entfernt.</translation>
    </message>
    <message>
        <source>1 snapshot was removed.</source>
        <translation>1 Schnappschuss wurde entfernt.</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots were removed.</source>
        <translation>
            <numerusform>%n Schnappschuss wurde entfernt.</numerusform>
            <numerusform>%n Schnappschüsse wurden entfernt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::StatusMenu</name>
    <message>
        <source>Free space: %1</source>
        <translation>Freier Platz: %1</translation>
    </message>
    <message>
        <source>Open Zelk</source>
        <translation>Zelk öffnen</translation>
    </message>
    <message>
        <source>Surveying… %1</source>
        <translation>Analyse läuft … %1</translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation>Analyse starten</translation>
    </message>
    <message>
        <source>Clean safe caches (%1)</source>
        <translation>Unbedenkliche Zwischenspeicher bereinigen (%1)</translation>
    </message>
    <message>
        <source>Quit Zelk</source>
        <translation>Zelk beenden</translation>
    </message>
</context>
<context>
    <name>zelk::SurveyScreenModel</name>
    <message>
        <source>Reclaim junk</source>
        <translation>Datenmüll entfernen</translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation>Duplikate suchen</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Größte Dateien</translation>
    </message>
    <message>
        <source>Visual map</source>
        <translation>Bild der Belegung</translation>
    </message>
    <message>
        <source>scanning…</source>
        <translation>Analyse läuft …</translation>
    </message>
    <message>
        <source>Scan %1</source>
        <translation>Analyse %1</translation>
    </message>
    <message>
        <source>%1 recoverable, re-run</source>
        <translation>%1 rückgewinnbar, wiederholen</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 items</source>
        <translation>
            <numerusform>%1, %2 Objekt</numerusform>
            <numerusform>%1, %2 Objekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::SystemScreenModel</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation>Analyse starten</translation>
    </message>
    <message>
        <source>Surveying your drive…</source>
        <translation>Ihr Laufwerk wird analysiert …</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders skipped during the scan — normal.</source>
        <translation>
            <numerusform>%1 Ordner wurde bei der Analyse übersprungen – das ist normal.</numerusform>
            <numerusform>%1 Ordner wurden bei der Analyse übersprungen – das ist normal.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::ToolsScreenModel</name>
    <message>
        <source>Find caches, logs, and developer junk, grouped by safety.</source>
        <translation>Findet Zwischenspeicher, Protokolle und Entwicklungsreste, nach Bedenklichkeit geordnet.</translation>
    </message>
    <message>
        <source>clear it to the Trash</source>
        <translation>in den Papierkorb räumen</translation>
    </message>
    <message>
        <source>Explore where space went as bubbles, a drill-down list, or a treemap.</source>
        <translation>Zeigt, wo der Platz geblieben ist: als Blasen, als Liste mit Unterordnern oder als Kacheldiagramm.</translation>
    </message>
    <message>
        <source>delete folders you don&apos;t need</source>
        <translation>unnötige Ordner löschen</translation>
    </message>
    <message>
        <source>Surface your largest and oldest files, filterable by type.</source>
        <translation>Bringt Ihre größten und ältesten Dateien ans Licht, nach Typ gefiltert.</translation>
    </message>
    <message>
        <source>move them to the Trash</source>
        <translation>in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Find byte-identical files across your folders.</source>
        <translation>Findet byteweise gleiche Dateien in all Ihren Ordnern.</translation>
    </message>
    <message>
        <source>keep one copy, trash the rest</source>
        <translation>eine behalten, Rest in den Papierkorb</translation>
    </message>
    <message>
        <source>Live disk, memory, CPU, and battery gauges.</source>
        <translation>Aktuelle Anzeigen für Laufwerk, Arbeitsspeicher, CPU und Akku.</translation>
    </message>
    <message>
        <source>See apps by true footprint and uninstall them with all their leftovers.</source>
        <translation>Zeigt den wahren Platzbedarf der Anwendungen und deinstalliert sie mit allen Überresten.</translation>
    </message>
    <message>
        <source>Clear browsing traces — caches, histories, cookies — across your browsers.</source>
        <translation>Entfernt Spuren – Zwischenspeicher, Verläufe, Cookies – aus all Ihren Browsern.</translation>
    </message>
    <message>
        <source>Free up memory, flush the DNS cache, and manage startup items.</source>
        <translation>Gibt Arbeitsspeicher frei, leert den DNS-Zwischenspeicher und verwaltet, was beim Anmelden startet.</translation>
    </message>
    <message>
        <source>Local snapshots, purgeable space, and disk-image / VM bloat.</source>
        <translation>Lokale Schnappschüsse, löschbarer Platz sowie aufgeblähte Abbilder und virtuelle Maschinen.</translation>
    </message>
</context>
<context>
    <name>zelk::TraceRows</name>
    <message>
        <source>quit %1 to clear safely</source>
        <translation>zum sicheren Entfernen „%1“ beenden</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 may be running: quit it before clearing</source>
        <translation>%1 läuft vielleicht: vor dem Entfernen beenden</translation>
    </message>
</context>
<context>
    <name>zelk::TrashBannerModel</name>
    <message>
        <source>emptying the Trash…</source>
        <translation>Papierkorb wird geleert …</translation>
    </message>
    <message>
        <source>reading…</source>
        <translation>wird gelesen …</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>free it by emptying the Trash</source>
        <translation>frei, sobald der Papierkorb geleert ist</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
</context>
<context>
    <name>zelk::TrendsModel</name>
    <message numerus="yes">
        <source>≈ %1 days until full at this rate</source>
        <translation>
            <numerusform>≈ %1 Tag, bis bei diesem Tempo alles voll ist</numerusform>
            <numerusform>≈ %1 Tage, bis bei diesem Tempo alles voll ist</numerusform>
        </translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>grew</source>
        <translation>gewachsen</translation>
    </message>
    <message>
        <source>shrank</source>
        <translation>geschrumpft</translation>
    </message>
    <message numerus="yes">
        <source>since your last scan · %1 tracked</source>
        <translation>
            <numerusform>seit Ihrer letzten Analyse · %1 erfasst</numerusform>
            <numerusform>seit Ihrer letzten Analyse · %1 erfasst</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::TuneScreenModel</name>
    <message>
        <source>Tune</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Check memory pressure, free up RAM, flush caches, and trim startup items.</source>
        <translation>Prüft den Speicherdruck, gibt Arbeitsspeicher frei, leert Zwischenspeicher und lichtet, was beim Anmelden startet.</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>normal</translation>
    </message>
    <message>
        <source>elevated</source>
        <translation>erhöht</translation>
    </message>
    <message>
        <source>high</source>
        <translation>hoch</translation>
    </message>
    <message>
        <source>pressure: %1</source>
        <translation>Speicherdruck: %1</translation>
    </message>
    <message>
        <source>Background items (%1)</source>
        <translation>Hintergrundprogramme (%1)</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n selected</source>
        <translation>
            <numerusform>Auswahl entfernen (%n)</numerusform>
            <numerusform>Auswahl entfernen (%n)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::UndoBarModel</name>
    <message>
        <source>Restoring…</source>
        <translation>Wird wiederhergestellt …</translation>
    </message>
    <message>
        <source>Moved to the Trash</source>
        <translation>In den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>1 item was restored.</source>
        <translation>1 Objekt wurde wiederhergestellt.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were restored.</source>
        <translation>
            <numerusform>%n Objekt wurde wiederhergestellt.</numerusform>
            <numerusform>%n Objekte wurden wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item stays in the Trash.</source>
        <translation>1 Objekt bleibt im Papierkorb.</translation>
    </message>
    <message numerus="yes">
        <source>%n items stay in the Trash.</source>
        <translation>
            <numerusform>%n Objekt bleibt im Papierkorb.</numerusform>
            <numerusform>%n Objekte bleiben im Papierkorb.</numerusform>
        </translation>
    </message>
    <message>
        <source>And 1 more.</source>
        <translation>Und 1 weiteres.</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weiteres.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system did not say where 1 of them is there.</source>
        <translation>Bei 1 davon hat das System nicht gesagt, wo es dort liegt.</translation>
    </message>
    <message numerus="yes">
        <source>The system did not say where %n of them are there.</source>
        <translation>
            <numerusform>Bei %n davon hat das System nicht gesagt, wo es dort liegt.</numerusform>
            <numerusform>Bei %n davon hat das System nicht gesagt, wo sie dort liegen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::UninstallModel</name>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 deinstallieren</translation>
    </message>
    <message>
        <source>Looking for what it leaves behind…</source>
        <translation>Überreste werden gesucht …</translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation>%1 in den Papierkorb</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>zelk::UninstallRows</name>
    <message>
        <source>%1 · %2</source>
        <comment>a path, and what becomes of it</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>to the Trash</source>
        <translation>in den Papierkorb</translation>
    </message>
</context>
<context>
    <name>zelk::WelcomeModel</name>
    <message>
        <source>Welcome to Zelk</source>
        <translation>Willkommen bei Zelk</translation>
    </message>
    <message>
        <source>See your storage</source>
        <translation>Ihr Speicherplatz im Blick</translation>
    </message>
    <message>
        <source>Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble map you can drill into.</source>
        <translation>Analysieren Sie in Sekunden Ihr ganzes Laufwerk, gegliedert nach Typen und größten Dateien – mit einem Blasendiagramm, das bis in jeden Ordner führt.</translation>
    </message>
    <message>
        <source>Reclaim space safely</source>
        <translation>Platz sicher zurückgewinnen</translation>
    </message>
    <message>
        <source>Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so it&apos;s always reversible.</source>
        <translation>Entfernen Sie Zwischenspeicher, Datenmüll, Duplikate und vergessene große Dateien. Alles kommt in den Papierkorb und lässt sich immer zurückholen.</translation>
    </message>
    <message>
        <source>Private by design</source>
        <translation>Von Grund auf privat</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
</TS>
