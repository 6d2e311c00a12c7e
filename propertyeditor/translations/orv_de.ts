<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>EditorArguments</name>
    <message>
        <source>Views, edits, checks and upgrades mass-spectrometry workflows.</source>
        <translation>Zeigt, bearbeitet, prüft und aktualisiert Massenspektrometrie-Workflows.</translation>
    </message>
    <message>
        <source>Workflows to open, a window each.</source>
        <translation>Workflows, die geöffnet werden, jeder in einem Fenster.</translation>
    </message>
    <message>
        <source>Try --help.</source>
        <translation>Hilfe gibt es mit --help.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
</context>
<context>
    <name>GridItemEditorObjects</name>
    <message>
        <source>The value is no table.</source>
        <translation>Der Wert ist keine Tabelle.</translation>
    </message>
    <message>
        <source>Moieties</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Adducts</source>
        <translation>Addukte</translation>
    </message>
    <message>
        <source>Derivatization</source>
        <translation>Derivatisierung</translation>
    </message>
    <message>
        <source>%1 glycans.</source>
        <translation>%1 Glykane.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>GridPropertyEditorView::Private</name>
    <message>
        <source>Open a preset file</source>
        <translation>Voreinstellungen öffnen</translation>
    </message>
    <message>
        <source>Save preset to file</source>
        <translation>Voreinstellungen speichern</translation>
    </message>
    <message>
        <source>Add new property</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Remove property</source>
        <translation>Eigenschaft entfernen</translation>
    </message>
    <message>
        <source>Modify property</source>
        <translation>Eigenschaft ändern</translation>
    </message>
</context>
<context>
    <name>IGridItem</name>
    <message>
        <source>The object is not initialized.</source>
        <translation>Das Objekt ist nicht initialisiert.</translation>
    </message>
</context>
<context>
    <name>InclusionEditorObject</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>LabelScriptsGenericObject</name>
    <message>
        <source>Label Script of Deconvolved Masses</source>
        <translation>Beschriftungsskript der dekonvolvierten Massen</translation>
    </message>
    <message>
        <source>Label Script of Traces</source>
        <translation>Beschriftungsskript der Spuren</translation>
    </message>
    <message>
        <source>Load Label Script</source>
        <translation>Beschriftungsskript laden</translation>
    </message>
    <message>
        <source>Save Label Script</source>
        <translation>Beschriftungsskript speichern</translation>
    </message>
    <message>
        <source>Load...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
</context>
<context>
    <name>MassTableItem</name>
    <message>
        <source>Failed to load data into the mass table widget.</source>
        <translation>Die Massentabelle kann die Daten nicht laden.</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Add tab</source>
        <translation>Reiter hinzufügen</translation>
    </message>
    <message>
        <source>New tab name:</source>
        <translation>Name des neuen Reiters:</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Column name:</source>
        <translation>Name der Spalte:</translation>
    </message>
    <message>
        <source>Column:</source>
        <translation>Spalte:</translation>
    </message>
    <message>
        <source>Remove column</source>
        <translation>Spalte entfernen</translation>
    </message>
    <message>
        <source>Column to remove:</source>
        <translation>Spalte, die entfernt wird:</translation>
    </message>
    <message>
        <source>Rename column</source>
        <translation>Spalte umbenennen</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>Neuer Name:</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWindow</name>
    <message>
        <source>Save project to...</source>
        <translation>Projekt speichern in...</translation>
    </message>
    <message>
        <source>Project creation</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Save project as</source>
        <translation>Projekt speichern unter</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWindowJsonFile</name>
    <message>
        <source>The file is no tab preset: %1</source>
        <translation>Die Datei ist keine Reiter-Vorlage: %1</translation>
    </message>
    <message>
        <source>There is no content</source>
        <translation>Es gibt keinen Inhalt</translation>
    </message>
</context>
<context>
    <name>RecoveryChanges</name>
    <message>
        <source>Name of the workflow</source>
        <translation>Name des Workflows</translation>
    </message>
    <message>
        <source>Description of the workflow</source>
        <translation>Beschreibung des Workflows</translation>
    </message>
    <message>
        <source>Icon of the workflow</source>
        <translation>Symbol des Workflows</translation>
    </message>
    <message>
        <source>Type of the workflow</source>
        <translation>Art des Workflows</translation>
    </message>
</context>
<context>
    <name>RecoveryStore</name>
    <message>
        <source>The unsaved workflow is in use by another window or program.</source>
        <translation>Der ungespeicherte Workflow wird von einem anderen Fenster oder Programm benutzt.</translation>
    </message>
    <message>
        <source>The journal is %1.</source>
        <translation>Das Journal ist %1.</translation>
    </message>
    <message>
        <source>The unsaved workflow isn&apos;t there any more.</source>
        <translation>Der ungespeicherte Workflow ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The journal was %1.</source>
        <translation>Das Journal war %1.</translation>
    </message>
    <message>
        <source>What was kept of the workflow is damaged and can&apos;t be recovered.</source>
        <translation>Was vom Workflow aufbewahrt wurde, ist beschädigt und kann nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The journal was set aside: %1</source>
        <translation>Das Journal wurde beiseitegelegt: %1</translation>
    </message>
    <message>
        <source>The unsaved workflow can&apos;t be discarded: %1</source>
        <translation>Der ungespeicherte Workflow kann nicht verworfen werden: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryWriter</name>
    <message>
        <source>Unsaved changes can&apos;t be kept for recovery: %1</source>
        <translation>Ungespeicherte Änderungen können nicht zur Wiederherstellung aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>The journal is %1.</source>
        <translation>Das Journal ist %1.</translation>
    </message>
    <message>
        <source>Save the workflow soon.</source>
        <translation>Speichern Sie den Workflow bald.</translation>
    </message>
    <message>
        <source>the workflow is too large (%1, at most %2)</source>
        <translation>der Workflow ist zu groß (%1, höchstens %2)</translation>
    </message>
    <message>
        <source>the folder can&apos;t be made: %1</source>
        <translation>der Ordner kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>nothing can be written to the folder: %1</source>
        <translation>in den Ordner kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>Writing the run folder...</source>
        <translation>Der Laufordner wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>TheoreticalTableEditor</name>
    <message>
        <source>Row %1 contains invalid data</source>
        <translation>Zeile %1 enthält ungültige Daten</translation>
    </message>
    <message>
        <source>The value is no table.</source>
        <translation>Der Wert ist keine Tabelle.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Error %1 - %2</source>
        <translation>Fehler %1 - %2</translation>
    </message>
    <message>
        <source>There is no text &quot;%1&quot;.</source>
        <translation>Den Text „%1“ gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>ValueUnitEditorObject</name>
    <message>
        <source>The value is no number.</source>
        <translation>Der Wert ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>orv::CheckableListWidget</name>
    <message>
        <source>Left out, since it is no entry of the list: %1. Undo brings it back.</source>
        <translation>Weggelassen, da es kein Eintrag der Liste ist: %1. Rückgängig bringt es zurück.</translation>
    </message>
</context>
<context>
    <name>orv::EditableTabBar</name>
    <message>
        <source>Title of the tab</source>
        <translation>Titel des Reiters</translation>
    </message>
</context>
<context>
    <name>orv::EditorWindow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>Workflow &amp;Properties...</source>
        <translation>&amp;Eigenschaften des Workflows...</translation>
    </message>
    <message>
        <source>Create Pro&amp;ject...</source>
        <translation>&amp;Projekt anlegen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>No workflow was opened yet</source>
        <translation>Noch wurde kein Workflow geöffnet</translation>
    </message>
    <message>
        <source>&amp;Forget These</source>
        <translation>Diese &amp;vergessen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About ORV Workflow Editor</source>
        <translation>Ü&amp;ber ORV Workflow Editor</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>ORV Workflow Editor %1
Format version %2 of workflows
Licence: %3

It stands on:
%4</source>
        <translation>ORV Workflow Editor %1
Formatversion %2 der Workflows
Lizenz: %3

Er beruht auf:
%4</translation>
    </message>
    <message>
        <source>About ORV Workflow Editor</source>
        <translation>Über ORV Workflow Editor</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Not opened:
%1</source>
        <translation>Nicht geöffnet:
%1</translation>
    </message>
    <message>
        <source>Launch Workflow</source>
        <translation>Workflow öffnen</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>The workflow isn&apos;t there any more: %1</source>
        <translation>Der Workflow ist nicht mehr da: %1</translation>
    </message>
    <message>
        <source>Project creation</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>There is a run already, and it was kept: %1
To make another one, choose to keep both, or another name.</source>
        <translation>Es gibt schon einen Lauf, und er wurde behalten: %1
Für einen weiteren behalten Sie beide oder wählen einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (wiederhergestellt)</translation>
    </message>
    <message>
        <source>Unsaved Workflows</source>
        <translation>Ungespeicherte Workflows</translation>
    </message>
    <message>
        <source>The workflow was recovered. Save it to keep it.</source>
        <translation>Der Workflow wurde wiederhergestellt. Speichern Sie ihn, um ihn zu behalten.</translation>
    </message>
</context>
<context>
    <name>orv::GridItemDialog</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The value is no table.</source>
        <translation>Der Wert ist keine Tabelle.</translation>
    </message>
    <message>
        <source>The value can&apos;t be shown: %1 It stays as it is unless you enter another one.</source>
        <translation>Der Wert kann nicht gezeigt werden: %1 Er bleibt, wie er ist, bis Sie einen anderen eingeben.</translation>
    </message>
</context>
<context>
    <name>orv::MirelResourceReferenceEditor</name>
    <message>
        <source>Select Existing File</source>
        <translation>Vorhandene Datei wählen</translation>
    </message>
    <message>
        <source>Select Existing Directory</source>
        <translation>Vorhandenen Ordner wählen</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>it counts from the folder of the workflow, which has none yet. Type the whole path.</source>
        <translation>er zählt vom Ordner des Workflows an, der noch keinen hat. Geben Sie den ganzen Pfad ein.</translation>
    </message>
    <message>
        <source>there is no such folder here. Choose one with the &quot;…&quot; button.</source>
        <translation>diesen Ordner gibt es hier nicht. Wählen Sie einen mit dem Knopf „…“.</translation>
    </message>
    <message>
        <source>there is no such file here. Choose one with the &quot;…&quot; button.</source>
        <translation>diese Datei gibt es hier nicht. Wählen Sie eine mit dem Knopf „…“.</translation>
    </message>
</context>
<context>
    <name>orv::NameDialog</name>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>orv::OrvGenericEditor</name>
    <message>
        <source>Unknown editor type: #%1</source>
        <translation>Unbekannte Art von Editor: #%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken: type %2.</source>
        <translation>„%1“ wurde nicht übernommen: Geben Sie ein: %2.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditorDesktopWindow</name>
    <message>
        <source>Save As Portable Workflow...</source>
        <translation>Als portablen Workflow speichern...</translation>
    </message>
    <message>
        <source>Save as a portable workflow</source>
        <translation>Als portablen Workflow speichern</translation>
    </message>
    <message>
        <source>Save As Portable Workflow</source>
        <translation>Als portablen Workflow speichern</translation>
    </message>
    <message>
        <source>Cannot handle the specified workflow: %1</source>
        <translation>Mit diesem Workflow lässt sich nichts anfangen: %1</translation>
    </message>
    <message>
        <source>Saving the portable workflow...</source>
        <translation>Der portable Workflow wird gespeichert...</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditorWindow</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (nur lesen)</translation>
    </message>
    <message>
        <source>Launch Workflow...</source>
        <translation>Workflow öffnen...</translation>
    </message>
    <message>
        <source>Launch Workflow from a file</source>
        <translation>Workflow aus einer Datei öffnen</translation>
    </message>
    <message>
        <source>Save Workflow...</source>
        <translation>Workflow speichern...</translation>
    </message>
    <message>
        <source>Save workflow to a file</source>
        <translation>Workflow in eine Datei speichern</translation>
    </message>
    <message>
        <source>Workflow Properties...</source>
        <translation>Eigenschaften...</translation>
    </message>
    <message>
        <source>Open workflow properties</source>
        <translation>Eigenschaften des Workflows öffnen</translation>
    </message>
    <message>
        <source>Update workflows from dir...</source>
        <translation>Workflows eines Ordners aktualisieren...</translation>
    </message>
    <message>
        <source>Updates all system worklows into newest version</source>
        <translation>Bringt alle Workflows des Systems auf die neueste Version</translation>
    </message>
    <message>
        <source>Add tab</source>
        <translation>Reiter hinzufügen</translation>
    </message>
    <message>
        <source>Remove current tab</source>
        <translation>Aktuellen Reiter entfernen</translation>
    </message>
    <message>
        <source>Which settings are shown</source>
        <translation>Welche Einstellungen gezeigt werden</translation>
    </message>
    <message>
        <source>Basic Options</source>
        <translation>Wichtige Einstellungen</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message>
        <source>Whether workflows are designed or used</source>
        <translation>Ob Workflows entworfen oder benutzt werden</translation>
    </message>
    <message>
        <source>Designer mode</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>User mode</source>
        <translation>Benutzung</translation>
    </message>
    <message>
        <source>Removing tab</source>
        <translation>Reiter entfernen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove current tab?</source>
        <translation>Soll der aktuelle Reiter entfernt werden?</translation>
    </message>
    <message>
        <source>Open Tab</source>
        <translation>Reiter öffnen</translation>
    </message>
    <message>
        <source>Save tab to file</source>
        <translation>Reiter speichern</translation>
    </message>
    <message>
        <source>to project creation</source>
        <translation>mit dem Anlegen des Projekts</translation>
    </message>
    <message>
        <source>saving workflow</source>
        <translation>mit dem Speichern des Workflows</translation>
    </message>
    <message>
        <source>submitting a job</source>
        <translation>mit dem Einreichen</translation>
    </message>
    <message>
        <source>Following errors have been found:%1</source>
        <translation>Folgende Fehler wurden gefunden:%1</translation>
    </message>
    <message>
        <source>Workflow content error</source>
        <translation>Fehler im Workflow</translation>
    </message>
    <message>
        <source>Following issues have been found:%1Would you like to continue %2 or cancel ?</source>
        <translation>Folgendes wurde gefunden:%1Möchten Sie %2 fortfahren oder abbrechen?</translation>
    </message>
    <message>
        <source>Workflow content warnings</source>
        <translation>Warnungen zum Workflow</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Checking workflow content...</source>
        <translation>Der Workflow wird geprüft...</translation>
    </message>
    <message>
        <source>There are possible problems with the workflow:</source>
        <translation>Mit dem Workflow gibt es möglicherweise Probleme:</translation>
    </message>
    <message>
        <source>Possible problems:</source>
        <translation>Mögliche Probleme:</translation>
    </message>
    <message>
        <source>Please correct the following errors:</source>
        <translation>Bitte beheben Sie diese Fehler:</translation>
    </message>
    <message>
        <source>The workflow is not valid.&lt;br&gt;&lt;br&gt;%1%2</source>
        <translation>Der Workflow ist nicht gültig.&lt;br&gt;&lt;br&gt;%1%2</translation>
    </message>
    <message>
        <source>%1Are you sure you want to continue?</source>
        <translation>%1Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Cannot handle the specified workflow: %1</source>
        <translation>Mit diesem Workflow lässt sich nichts anfangen: %1</translation>
    </message>
    <message>
        <source>Looking for the Java runtime...</source>
        <translation>Die Java-Laufzeit wird gesucht...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Project creation</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Project Creation</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Create Project...</source>
        <translation>Projekt anlegen...</translation>
    </message>
    <message>
        <source>Process workflow...</source>
        <translation>Workflow ausführen...</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Workflow</translation>
    </message>
    <message>
        <source>Launch Workflow</source>
        <translation>Workflow öffnen</translation>
    </message>
    <message>
        <source>Workflow is invalid</source>
        <translation>Workflow ist ungültig</translation>
    </message>
    <message>
        <source>This workflow is invalid and thus cannot be loaded.</source>
        <translation>Dieser Workflow ist ungültig und kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>%1.

Some parts of the workflow may not be loaded or work correctly. Would you like to continue?</source>
        <translation>%1.

Teile des Workflows lassen sich vielleicht nicht laden oder arbeiten nicht richtig. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Opening the workflow...</source>
        <translation>Der Workflow wird geöffnet...</translation>
    </message>
    <message>
        <source>&lt;br/&gt;Also, the following changes were applied: %1</source>
        <translation>&lt;br/&gt;Dabei wurde Folgendes geändert: %1</translation>
    </message>
    <message>
        <source>This workflow was outdated and was automatically upgraded for this version of the application to work properly. %1Would you like to apply this upgrade and proceed?</source>
        <translation>Dieser Workflow war veraltet und wurde für diese Version der Anwendung aktualisiert. %1Möchten Sie die Aktualisierung übernehmen und fortfahren?</translation>
    </message>
    <message>
        <source>Workflow upgrade</source>
        <translation>Aktualisierung des Workflows</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Apply and save...</source>
        <translation>Übernehmen und speichern...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>It&apos;s not possible to upgrade the workflow.</source>
        <translation>Der Workflow lässt sich nicht aktualisieren.</translation>
    </message>
    <message>
        <source>%1

Some parts of the workflow may not be loaded or work correctly. Would you like to continue?</source>
        <translation>%1

Teile des Workflows lassen sich vielleicht nicht laden oder arbeiten nicht richtig. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Workflow updating failed</source>
        <translation>Aktualisierung ist gescheitert</translation>
    </message>
    <message>
        <source>Save upgraded workflow</source>
        <translation>Aktualisierten Workflow speichern</translation>
    </message>
    <message>
        <source>Failed to launch the specified workflow</source>
        <translation>Der Workflow kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>: %1</source>
        <translation>: %1</translation>
    </message>
    <message>
        <source>The metadata of the server can&apos;t be read: %1</source>
        <translation>Die Metadaten des Servers sind nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The window was closed meanwhile.</source>
        <translation>Das Fenster wurde inzwischen geschlossen.</translation>
    </message>
    <message>
        <source>Append column</source>
        <translation>Spalte anfügen</translation>
    </message>
    <message>
        <source>Append row</source>
        <translation>Zeile anfügen</translation>
    </message>
    <message>
        <source>Open Tab Preset...</source>
        <translation>Reiter-Vorlage öffnen...</translation>
    </message>
    <message>
        <source>Save Tab Preset...</source>
        <translation>Reiter-Vorlage speichern...</translation>
    </message>
    <message>
        <source>%1 - Project Creation</source>
        <translation>%1 - Projekt anlegen</translation>
    </message>
    <message>
        <source>A workflow cannot be launched. It contains unsupported references: %1</source>
        <translation>Der Workflow kann nicht geöffnet werden. Er enthält Verweise, die nicht unterstützt werden: %1</translation>
    </message>
    <message>
        <source>In order to use this workflow you need to use %1.</source>
        <translation>Für diesen Workflow brauchen Sie %1.</translation>
    </message>
    <message>
        <source>Unsupported reference type</source>
        <translation>Nicht unterstützte Art von Verweis</translation>
    </message>
    <message>
        <source>Save Workflow</source>
        <translation>Workflow speichern</translation>
    </message>
    <message>
        <source>Something of the workflow isn&apos;t known to this application and would not be saved. Save without it?</source>
        <translation>Etwas im Workflow ist dieser Anwendung nicht bekannt und würde nicht gespeichert. Ohne dies speichern?</translation>
    </message>
    <message>
        <source>Failed to save the workflow</source>
        <translation>Der Workflow konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The workflow was saved, and can&apos;t be shown again: %1
Open it from its file: %2</source>
        <translation>Der Workflow wurde gespeichert und kann nicht wieder gezeigt werden: %1
Öffnen Sie ihn aus seiner Datei: %2</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>There are some unsaved changes. Do you want to save ?</source>
        <translation>Es gibt ungespeicherte Änderungen. Möchten Sie speichern?</translation>
    </message>
    <message>
        <source>Sample protein csv file does not exist.</source>
        <translation>Die CSV-Datei mit Proben und Proteinen gibt es nicht.</translation>
    </message>
    <message>
        <source>Provided workflow doesn&apos;t contain Sample Proteins tab</source>
        <translation>Der Workflow hat keine Tabelle von Proben und Proteinen</translation>
    </message>
    <message>
        <source>Select workflows directory</source>
        <translation>Ordner der Workflows wählen</translation>
    </message>
    <message>
        <source>Updating workflows...</source>
        <translation>Workflows werden aktualisiert...</translation>
    </message>
    <message>
        <source>Updating workflows finished</source>
        <translation>Workflows sind aktualisiert</translation>
    </message>
</context>
<context>
    <name>orv::PropertySelectionDialog</name>
    <message>
        <source>Add a property</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Modify property</source>
        <translation>Eigenschaft ändern</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Eigenschaft:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorität:</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
</context>
<context>
    <name>orv::PropertySplitterWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>orv::RecoveryChangesModel</name>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Unsaved</source>
        <translation>Ungespeichert</translation>
    </message>
</context>
<context>
    <name>orv::RecoveryModel</name>
    <message>
        <source>New workflow</source>
        <translation>Neuer Workflow</translation>
    </message>
    <message>
        <source>none, was open</source>
        <translation>keine, war offen</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Nie gespeichert</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Workflow</translation>
    </message>
    <message>
        <source>Last Edited</source>
        <translation>Zuletzt bearbeitet</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
</context>
<context>
    <name>orv::RecoveryPanel</name>
    <message>
        <source>Unsaved workflows</source>
        <translation>Ungespeicherte Workflows</translation>
    </message>
    <message>
        <source>Changes of the unsaved workflow</source>
        <translation>Änderungen des ungespeicherten Workflows</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Opens the workflow as it was. Its file stays as it is until you save.</source>
        <translation>Öffnet den Workflow, wie er war. Seine Datei bleibt, wie sie ist, bis Sie speichern.</translation>
    </message>
    <message>
        <source>&amp;Keep for Later</source>
        <translation>&amp;Für später behalten</translation>
    </message>
    <message>
        <source>Closes this panel. The View menu opens it again.</source>
        <translation>Schließt diese Leiste. Das Menü „Ansicht“ öffnet sie wieder.</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>Ve&amp;rwerfen...</translation>
    </message>
    <message>
        <source>Deletes what was kept of the chosen workflows.</source>
        <translation>Löscht, was von den gewählten Workflows aufbewahrt wurde.</translation>
    </message>
    <message>
        <source>These workflows were not saved when their windows closed or the program ended. Their files are as they were.</source>
        <translation>Diese Workflows waren nicht gespeichert, als ihre Fenster geschlossen wurden oder das Programm endete. Ihre Dateien sind, wie sie waren.</translation>
    </message>
    <message>
        <source>There are no unsaved workflows to recover.</source>
        <translation>Es gibt keine ungespeicherten Workflows.</translation>
    </message>
    <message>
        <source>What couldn&apos;t be read was set aside: %1</source>
        <translation>Was nicht lesbar war, wurde beiseitegelegt: %1</translation>
    </message>
    <message>
        <source>The first %1 of %2 changes:</source>
        <translation>Die ersten %1 von %2 Änderungen:</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>Looking whether the file was changed since...</source>
        <translation>Es wird nachgesehen, ob die Datei seither geändert wurde...</translation>
    </message>
    <message>
        <source>Its file wasn&apos;t changed since it was opened.</source>
        <translation>Seine Datei wurde seit dem Öffnen nicht geändert.</translation>
    </message>
    <message>
        <source>It was open without unsaved changes; recovering opens its file.</source>
        <translation>Er war ohne ungespeicherte Änderungen offen; Wiederherstellen öffnet seine Datei.</translation>
    </message>
    <message>
        <source>Its file was changed since it was opened. It is recovered as a new workflow; compare the two before you save it in place of the file.</source>
        <translation>Seine Datei wurde seit dem Öffnen geändert. Er wird als neuer Workflow wiederhergestellt; vergleichen Sie beide, bevor Sie ihn an die Stelle der Datei speichern.</translation>
    </message>
    <message>
        <source>Its file isn&apos;t there any more. It is recovered as a new workflow.</source>
        <translation>Seine Datei ist nicht mehr da. Er wird als neuer Workflow wiederhergestellt.</translation>
    </message>
    <message>
        <source>It was never saved.</source>
        <translation>Er wurde nie gespeichert.</translation>
    </message>
    <message>
        <source>Whether its file was changed since can&apos;t be told. It is recovered as a new workflow.</source>
        <translation>Ob seine Datei seither geändert wurde, lässt sich nicht sagen. Er wird als neuer Workflow wiederhergestellt.</translation>
    </message>
    <message>
        <source>Discard Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen verwerfen</translation>
    </message>
    <message>
        <source>The unsaved changes of these workflows are deleted and can&apos;t be brought back:
%1</source>
        <translation>Die ungespeicherten Änderungen dieser Workflows werden gelöscht und lassen sich nicht zurückholen:
%1</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>orv::ResourceReferenceEditorBase</name>
    <message>
        <source>&quot;%1&quot; was not taken: %2</source>
        <translation>„%1“ wurde nicht übernommen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken before the disk answered: %2</source>
        <translation>„%1“ wurde übernommen, bevor die Platte antwortete: %2</translation>
    </message>
</context>
<context>
    <name>orv::TalvaneResourceReferenceEditor</name>
    <message>
        <source>there is no such file. Choose one with the &quot;…&quot; button.</source>
        <translation>diese Datei gibt es nicht. Wählen Sie eine mit dem Knopf „…“.</translation>
    </message>
</context>
<context>
    <name>orv::ValueUnitDialog</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>orv::ValueUnitValidator</name>
    <message>
        <source>a number with at most two decimals, a blank, and Da, ppm or mmu, as in &quot;10 ppm&quot;</source>
        <translation>eine Zahl mit höchstens zwei Nachkommastellen, ein Leerzeichen und Da, ppm oder mmu, etwa „10 ppm“</translation>
    </message>
    <message>
        <source>%1; the least number is %2</source>
        <translation>%1; die kleinste Zahl ist %2</translation>
    </message>
    <message>
        <source>%1; the number is from %2 to %3</source>
        <translation>%1; die Zahl liegt zwischen %2 und %3</translation>
    </message>
</context>
<context>
    <name>orv::Workbench</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
</context>
<context>
    <name>orv::WorkflowPropertiesDialog</name>
    <message>
        <source>Workflow Properties</source>
        <translation>Eigenschaften des Workflows</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Icon:</source>
        <translation>Symbol:</translation>
    </message>
</context>
<context>
    <name>orv::WorkflowTabs</name>
    <message>
        <source>The tab was removed while it was added.</source>
        <translation>Der Reiter wurde entfernt, während er hinzugefügt wurde.</translation>
    </message>
</context>
</TS>
