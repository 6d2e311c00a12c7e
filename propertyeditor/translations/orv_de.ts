<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AddedSamples</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Not added, because there is no sample in it: %1. Samples are files of mass spectra, folders of vendors and projects.</source>
        <translation>Nicht hinzugefügt, weil keine Probe darin ist: %1. Proben sind Dateien mit Massenspektren, Ordner von Herstellern und Projekte.</translation>
    </message>
    <message>
        <source>Samples added: %1.</source>
        <translation>Hinzugefügte Proben: %1.</translation>
    </message>
    <message>
        <source>Not added, because the table has them already: %1.</source>
        <translation>Nicht hinzugefügt, da die Tabelle sie schon hat: %1.</translation>
    </message>
</context>
<context>
    <name>CellEditors</name>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a Colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Choose from a list</source>
        <translation>Aus einer Liste wählen</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>Entries: %1</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
</context>
<context>
    <name>ControlHelp</name>
    <message>
        <source>This cell: %1</source>
        <translation>Diese Zelle: %1</translation>
    </message>
</context>
<context>
    <name>CustomColumns</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a column.</source>
        <translation>„%1“ kann nicht der Name einer Spalte sein.</translation>
    </message>
    <message>
        <source>It is empty, taken, or the name of another member of a sample. Choose another.</source>
        <translation>Er ist leer, vergeben oder der Name eines anderen Teils einer Probe. Wählen Sie einen anderen.</translation>
    </message>
</context>
<context>
    <name>DetachedWork</name>
    <message>
        <source>Something went wrong: %1</source>
        <translation>Etwas ging schief: %1</translation>
    </message>
    <message>
        <source>Close what isn&apos;t needed and try again.</source>
        <translation>Schließen Sie, was nicht gebraucht wird, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>there isn&apos;t enough memory.</source>
        <translation>der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>the reason isn&apos;t known.</source>
        <translation>der Grund ist nicht bekannt.</translation>
    </message>
</context>
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
    <name>ElutionPeaksOptions</name>
    <message>
        <source>&quot;%1&quot; is no number: &quot;%2&quot;.</source>
        <translation>„%1“ ist keine Zahl: „%2“.</translation>
    </message>
    <message>
        <source>Write it with a point and at most 9 decimals, as in &quot;1.00&quot;.</source>
        <translation>Schreiben Sie sie mit einem Punkt und höchstens 9 Nachkommastellen, etwa „1.00“.</translation>
    </message>
    <message>
        <source>A peak options preset has no name.</source>
        <translation>Eine Vorlage von Peak-Einstellungen hat keinen Namen.</translation>
    </message>
    <message>
        <source>The time range of the peak options preset &quot;%1&quot; is out of order (%2 to %3 minutes).</source>
        <translation>Der Zeitbereich der Peak-Einstellungen „%1“ ist verkehrt herum (%2 bis %3 Minuten).</translation>
    </message>
    <message>
        <source>The %1 of the peak options preset &quot;%2&quot; must be greater than 0.</source>
        <translation>Bei den Peak-Einstellungen „%2“ muss dies größer als 0 sein: %1.</translation>
    </message>
    <message>
        <source>smoothing width</source>
        <translation>Breite der Glättung</translation>
    </message>
    <message>
        <source>interval time</source>
        <translation>Zeit des Intervalls</translation>
    </message>
    <message>
        <source>smoothing width of the baseline</source>
        <translation>Breite der Glättung der Grundlinie</translation>
    </message>
    <message>
        <source>peak width factor</source>
        <translation>Faktor der Peakbreite</translation>
    </message>
</context>
<context>
    <name>ExtendedMetadataInfo</name>
    <message>
        <source>An element must be an object, but there is %1.</source>
        <translation>Ein Element muss ein Objekt sein, aber es gibt %1.</translation>
    </message>
    <message>
        <source>It is element %1 of &quot;%2&quot; in the extended metadata.</source>
        <translation>Es ist Element %1 von „%2“ in den erweiterten Metadaten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number.</source>
        <translation>„%1“ muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text.</source>
        <translation>„%1“ muss ein Text sein.</translation>
    </message>
    <message>
        <source>Two entries of the reference &quot;%1&quot; differ in &quot;%2&quot;.</source>
        <translation>Zwei Einträge des Verweises „%1“ unterscheiden sich in „%2“.</translation>
    </message>
</context>
<context>
    <name>FileAccessor</name>
    <message>
        <source>The file can&apos;t be saved there.</source>
        <translation>Dort kann die Datei nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Choose a file on this computer.</source>
        <translation>Wählen Sie eine Datei auf diesem Computer.</translation>
    </message>
</context>
<context>
    <name>FileChooserDialogManager</name>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
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
    <name>InclusionDialog</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Of the precursor, such as its peptide.</source>
        <translation>Des Vorläufers, etwa sein Peptid.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Where its retention time begins; empty for no limit.</source>
        <translation>Wo seine Retentionszeit beginnt; leer für keine Grenze.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Where its retention time ends; empty for no limit.</source>
        <translation>Wo seine Retentionszeit endet; leer für keine Grenze.</translation>
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
    <name>Internal::EditorDataModel</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Group of properties</source>
        <translation>Gruppe von Einstellungen</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>%1: %2, read only</source>
        <translation>%1: %2, nur lesen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Internal::FontEditor</name>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>strikeout</source>
        <translation>durchgestrichen</translation>
    </message>
    <message>
        <source>underline</source>
        <translation>unterstrichen</translation>
    </message>
</context>
<context>
    <name>JavaChecker</name>
    <message>
        <source>The Java runtime is missing. Install version %1 or later, or set JAVA_HOME to its folder.</source>
        <translation>Die Java-Laufzeit fehlt. Installieren Sie Version %1 oder eine spätere, oder setzen Sie JAVA_HOME auf ihren Ordner.</translation>
    </message>
    <message>
        <source>The Java runtime &quot;%1&quot; doesn&apos;t work. Install it anew, or set JAVA_HOME to another one.</source>
        <translation>Die Java-Laufzeit „%1“ arbeitet nicht. Installieren Sie sie neu, oder setzen Sie JAVA_HOME auf eine andere.</translation>
    </message>
    <message>
        <source>The Java runtime &quot;%1&quot; has version %2. Install version %3 or later.</source>
        <translation>Die Java-Laufzeit „%1“ hat Version %2. Installieren Sie Version %3 oder eine spätere.</translation>
    </message>
</context>
<context>
    <name>KPropertyBoolEditor</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>KPropertyColorComboEditor</name>
    <message>
        <source>More…</source>
        <translation>Mehr…</translation>
    </message>
</context>
<context>
    <name>KPropertyComposed</name>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>X Coordinate</source>
        <translation>X-Koordinate</translation>
    </message>
    <message>
        <source>Y Coordinate</source>
        <translation>Y-Koordinate</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Hor. Policy</source>
        <translation>Hor. Regel</translation>
    </message>
    <message>
        <source>Horizontal Policy</source>
        <translation>Horizontale Regel</translation>
    </message>
    <message>
        <source>Vert. Policy</source>
        <translation>Vert. Regel</translation>
    </message>
    <message>
        <source>Vertical Policy</source>
        <translation>Vertikale Regel</translation>
    </message>
    <message>
        <source>Hor. Stretch</source>
        <translation>Hor. Dehnung</translation>
    </message>
    <message>
        <source>Horizontal Stretch</source>
        <translation>Horizontale Dehnung</translation>
    </message>
    <message>
        <source>Vert. Stretch</source>
        <translation>Vert. Dehnung</translation>
    </message>
    <message>
        <source>Vertical Stretch</source>
        <translation>Vertikale Dehnung</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Preferred</source>
        <translation>Bevorzugt</translation>
    </message>
    <message>
        <source>Expanding</source>
        <translation>Wachsend</translation>
    </message>
    <message>
        <source>Minimum Expanding</source>
        <translation>Mindestens, wachsend</translation>
    </message>
    <message>
        <source>Ignored</source>
        <translation>Nicht beachtet</translation>
    </message>
</context>
<context>
    <name>KPropertyCursorEditor</name>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Up arrow</source>
        <translation>Pfeil nach oben</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Size vertically</source>
        <translation>Höhe ändern</translation>
    </message>
    <message>
        <source>Size horizontally</source>
        <translation>Breite ändern</translation>
    </message>
    <message>
        <source>Size slash</source>
        <translation>Größe ändern, aufsteigend</translation>
    </message>
    <message>
        <source>Size backslash</source>
        <translation>Größe ändern, absteigend</translation>
    </message>
    <message>
        <source>Size all</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Split vertically</source>
        <translation>Senkrecht teilen</translation>
    </message>
    <message>
        <source>Split horizontally</source>
        <translation>Waagerecht teilen</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>Zeigende Hand</translation>
    </message>
    <message>
        <source>Forbidden</source>
        <translation>Verboten</translation>
    </message>
    <message>
        <source>What&apos;s this?</source>
        <translation>Was ist das?</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Open hand</source>
        <translation>Offene Hand</translation>
    </message>
    <message>
        <source>Closed hand</source>
        <translation>Geschlossene Hand</translation>
    </message>
    <message>
        <source>Drag copy</source>
        <translation>Ziehen: kopieren</translation>
    </message>
    <message>
        <source>Drag move</source>
        <translation>Ziehen: verschieben</translation>
    </message>
    <message>
        <source>Drag link</source>
        <translation>Ziehen: verknüpfen</translation>
    </message>
</context>
<context>
    <name>KPropertyEditorView</name>
    <message>
        <source>Properties</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Undo changes</source>
        <translation>Änderungen zurücknehmen</translation>
    </message>
</context>
<context>
    <name>KPropertyGenericSelectionEditor</name>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
</context>
<context>
    <name>KPropertyLineStyleComboEditor</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Dash and dot</source>
        <translation>Strich und Punkt</translation>
    </message>
    <message>
        <source>Dash and two dots</source>
        <translation>Strich und zwei Punkte</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
</context>
<context>
    <name>KPropertyMultiLineStringEditor</name>
    <message>
        <source>… [%1 more letters: too long to be edited here]</source>
        <translation>… [%1 weitere Buchstaben: zu lang, um hier bearbeitet zu werden]</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
</context>
<context>
    <name>KPropertyPixmapEditor</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1x%2px</source>
        <translation>%1x%2px</translation>
    </message>
</context>
<context>
    <name>KPropertySet</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
</context>
<context>
    <name>KPropertyStringEditor</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
</context>
<context>
    <name>KPropertyUrlEditor</name>
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
</context>
<context>
    <name>KarvonPresetCreator</name>
    <message>
        <source>The workflow has no sample &quot;%1&quot;.</source>
        <translation>Der Workflow hat keine Probe „%1“.</translation>
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
    <name>MemberReader</name>
    <message>
        <source>&quot;%1&quot; must be %2, but there is %3.</source>
        <translation>„%1“ muss %2 sein, aber es gibt %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number.</source>
        <translation>„%1“ muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>an array of texts</source>
        <translation>eine Liste von Texten</translation>
    </message>
    <message>
        <source>an array of objects</source>
        <translation>eine Liste von Objekten</translation>
    </message>
    <message>
        <source>It is element %1 of &quot;%2&quot;.</source>
        <translation>Es ist Element %1 von „%2“.</translation>
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
    <name>PeakFilterDialog</name>
    <message>
        <source>m/z</source>
        <translation>m/z</translation>
    </message>
    <message>
        <source>Of the diagnostic peak.</source>
        <translation>Des diagnostischen Peaks.</translation>
    </message>
    <message>
        <source>Must be above 0.</source>
        <translation>Muss über 0 liegen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What makes the peak, such as an oxonium ion.</source>
        <translation>Woher der Peak stammt, etwa ein Oxonium-Ion.</translation>
    </message>
    <message>
        <source>A name stands on one line.</source>
        <translation>Ein Name steht in einer Zeile.</translation>
    </message>
</context>
<context>
    <name>PepmapReservedColumnsVerifierGui</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>The table of intact peaks has columns of these names itself: %1. Call them otherwise in the file, and import it again.</source>
        <translation>Die Tabelle der intakten Peaks hat selbst Spalten mit diesen Namen: %1. Benennen Sie sie in der Datei anders, und importieren Sie sie noch einmal.</translation>
    </message>
</context>
<context>
    <name>PreviewPreset</name>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Die Datei lässt sich nicht öffnen: %1</translation>
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
    <name>ProteinInputWidgetBase</name>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Follows from the chains, less two hydrogens for each disulfide bond, in Da.</source>
        <translation>Folgt aus den Ketten, abzüglich zweier Wasserstoffe je Disulfidbrücke, in Da.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>By which proteins name the chain; empty for that of the row.</source>
        <translation>Womit Proteine die Kette nennen; leer für die Nummer der Zeile.</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Letter of the chain, for people.</source>
        <translation>Buchstabe der Kette, für Menschen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the chain is called.</source>
        <translation>Wie die Kette heißt.</translation>
    </message>
    <message>
        <source>What the chain is made of; a protein where it is empty.</source>
        <translation>Woraus die Kette besteht; ein Protein, wo nichts steht.</translation>
    </message>
    <message>
        <source>Amino acids in one-letter code; nucleotides from the 5&apos; end.</source>
        <translation>Aminosäuren im Ein-Buchstaben-Code; Nukleotide vom 5&apos;-Ende an.</translation>
    </message>
    <message>
        <source>Chain numbers</source>
        <translation>Nummern der Ketten</translation>
    </message>
    <message>
        <source>There is no chain %1.</source>
        <translation>Es gibt keine Kette %1.</translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation>Disulfidbrücken</translation>
    </message>
    <message>
        <source>Chains</source>
        <translation>Ketten</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>What the protein is called; Auto(HC:0-2,LC:0-2) stands for all combinations of these chains.</source>
        <translation>Wie das Protein heißt; Auto(HC:0-2,LC:0-2) steht für alle Kombinationen dieser Ketten.</translation>
    </message>
    <message>
        <source>Numbers of the chains with commas between; a chain that occurs twice stands twice.</source>
        <translation>Nummern der Ketten mit Kommas dazwischen; eine Kette, die zweimal vorkommt, steht zweimal.</translation>
    </message>
    <message>
        <source>Number of bonds between cysteines, each of which costs two hydrogens.</source>
        <translation>Zahl der Brücken zwischen Cysteinen, von denen jede zwei Wasserstoffe kostet.</translation>
    </message>
    <message>
        <source>Names of the chains. Follow from the numbers.</source>
        <translation>Namen der Ketten. Folgen aus den Nummern.</translation>
    </message>
    <message>
        <source>Number of residues or nucleotides of all chains.</source>
        <translation>Zahl der Reste oder Nukleotide aller Ketten.</translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation>Mono. Masse</translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation>Mittlere Masse</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>By which sequences name the block; the case of letters counts.</source>
        <translation>Womit Sequenzen den Baustein nennen; Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>What the block is called.</source>
        <translation>Wie der Baustein heißt.</translation>
    </message>
    <message>
        <source>The place of the block in an oligonucleotide.</source>
        <translation>Der Platz des Bausteins in einem Oligonukleotid.</translation>
    </message>
    <message>
        <source>What the block adds to the chain.</source>
        <translation>Was der Baustein der Kette hinzufügt.</translation>
    </message>
    <message>
        <source>Monoisotopic mass of the formula in Da.</source>
        <translation>Monoisotopische Masse der Formel in Da.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>Mass spectra</source>
        <translation>Massenspektren</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 gibt es schon.
Möchten Sie sie ersetzen?</translation>
    </message>
</context>
<context>
    <name>QPushButton</name>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
</context>
<context>
    <name>QxtCheckComboBox</name>
    <message>
        <source>Several entries can be checked</source>
        <translation>Mehrere Einträge können angekreuzt werden</translation>
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
    <name>ReferenceTexts</name>
    <message>
        <source>&quot;%1&quot; is no reference to a file. Enter a path, or choose a file.</source>
        <translation>„%1“ ist kein Verweis auf eine Datei. Geben Sie einen Pfad ein, oder wählen Sie eine Datei.</translation>
    </message>
</context>
<context>
    <name>RowNodeBinding</name>
    <message>
        <source>These columns are kept but not shown: %1.</source>
        <translation>Diese Spalten bleiben erhalten, werden aber nicht gezeigt: %1.</translation>
    </message>
    <message>
        <source>Rows below other rows are kept but not shown: %1.</source>
        <translation>Zeilen unter anderen Zeilen bleiben erhalten, werden aber nicht gezeigt: %1.</translation>
    </message>
    <message>
        <source>Cells without a column are kept but not shown: %1.</source>
        <translation>Zellen ohne Spalte bleiben erhalten, werden aber nicht gezeigt: %1.</translation>
    </message>
</context>
<context>
    <name>RunFolder</name>
    <message>
        <source>No run was written. Bring the file back or choose another one.</source>
        <translation>Es wurde kein Lauf geschrieben. Stellen Sie die Datei wieder her, oder wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file of the sample &quot;%1&quot; can&apos;t be had any more.</source>
        <translation>Die Datei der Probe „%1“ ist nicht mehr zu bekommen.</translation>
    </message>
    <message>
        <source>Two samples or columns would share the parameter file &quot;%1&quot;. Give them names that differ.</source>
        <translation>Zwei Proben oder Spalten hätten dieselbe Parameterdatei „%1“. Geben Sie ihnen verschiedene Namen.</translation>
    </message>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The folder can&apos;t be made: %1</source>
        <translation>Der Ordner lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>The run that was there is kept in %1</source>
        <translation>Der Lauf, der dort war, liegt nun in %1</translation>
    </message>
    <message>
        <source>The folder exists already: %1</source>
        <translation>Der Ordner existiert bereits: %1</translation>
    </message>
    <message>
        <source>Choose another name, or remove it.</source>
        <translation>Wählen Sie einen anderen Namen, oder entfernen Sie ihn.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder: %1</source>
        <translation>In den Ordner lässt sich nichts schreiben: %1</translation>
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
    <name>SampleColumns</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What settings, proteins and results call the sample.</source>
        <translation>Wie Einstellungen, Proteine und Ergebnisse die Probe nennen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The file or folder with the spectra, or a project.</source>
        <translation>Die Datei oder der Ordner mit den Spektren, oder ein Projekt.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Whether the other samples are compared with this one.</source>
        <translation>Ob die anderen Proben mit dieser verglichen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of the server&apos;s metadata.</source>
        <translation>„%1“ aus den Metadaten des Servers.</translation>
    </message>
    <message>
        <source>Your own column &quot;%1&quot;.</source>
        <translation>Ihre eigene Spalte „%1“.</translation>
    </message>
    <message>
        <source>Trace files</source>
        <translation>Spurdateien</translation>
    </message>
    <message>
        <source>Files with traces of the sample, such as UV in text form, separated by &quot;;&quot;.</source>
        <translation>Dateien mit Spuren der Probe, etwa UV als Text, mit „;“ dazwischen.</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Results of searches and other companions, separated by &quot;;&quot;.</source>
        <translation>Ergebnisse von Suchen und andere Begleiter, mit „;“ dazwischen.</translation>
    </message>
    <message>
        <source>Sample type</source>
        <translation>Art der Probe</translation>
    </message>
    <message>
        <source>What kind of sample it is.</source>
        <translation>Welche Art Probe es ist.</translation>
    </message>
    <message>
        <source>Digestion</source>
        <translation>Verdauung</translation>
    </message>
    <message>
        <source>How the sample was digested.</source>
        <translation>Wie die Probe verdaut wurde.</translation>
    </message>
    <message>
        <source>Time unit</source>
        <translation>Zeiteinheit</translation>
    </message>
    <message>
        <source>Of times in the files of traces.</source>
        <translation>Der Zeiten in den Spurdateien.</translation>
    </message>
</context>
<context>
    <name>SampleNames</name>
    <message>
        <source>all samples</source>
        <translation>alle Proben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no id of a sample; write ids with commas between, such as 1, 2.</source>
        <translation>„%1“ ist keine ID einer Probe; schreiben Sie IDs mit Kommas dazwischen, etwa 1, 2.</translation>
    </message>
    <message>
        <source>There is no sample with the id %1.</source>
        <translation>Es gibt keine Probe mit der ID %1.</translation>
    </message>
    <message>
        <source>Sample ids</source>
        <translation>Proben-IDs</translation>
    </message>
    <message>
        <source>Ids of the samples that the row is for, with commas between; empty for all. F4 in the cell chooses them by name.</source>
        <translation>IDs der Proben, für die die Zeile gilt, mit Kommas dazwischen; leer für alle. F4 in der Zelle wählt sie nach Namen.</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>Names of the samples that the row is for. Follows from the ids.</source>
        <translation>Namen der Proben, für die die Zeile gilt. Folgt aus den IDs.</translation>
    </message>
</context>
<context>
    <name>SampleNotes</name>
    <message>
        <source>id %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SamplesCheck</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Several samples have one name, and settings that name it mean all of them: %1.</source>
        <translation>Mehrere Proben haben einen Namen, und Einstellungen, die ihn nennen, meinen alle: %1.</translation>
    </message>
    <message>
        <source>Several samples have one id, by which proteins, masses and traces refer to them: %1.</source>
        <translation>Mehrere Proben haben eine ID, mit der Proteine, Massen und Spuren auf sie verweisen: %1.</translation>
    </message>
    <message>
        <source>Every sample needs a name.</source>
        <translation>Jede Probe braucht einen Namen.</translation>
    </message>
    <message>
        <source>Samples without a name are in the rows %1.</source>
        <translation>Proben ohne Namen stehen in den Zeilen %1.</translation>
    </message>
    <message>
        <source>Every sample needs a file.</source>
        <translation>Jede Probe braucht eine Datei.</translation>
    </message>
    <message>
        <source>Samples without a file are in the rows %1. Choose a file, or remove the rows.</source>
        <translation>Proben ohne Datei stehen in den Zeilen %1. Wählen Sie eine Datei, oder entfernen Sie die Zeilen.</translation>
    </message>
</context>
<context>
    <name>SamplesInput</name>
    <message>
        <source>The samples are no table of rows.</source>
        <translation>Die Proben sind keine Tabelle aus Zeilen.</translation>
    </message>
    <message>
        <source>The sample &quot;%1&quot; refers to &quot;%2&quot;, which is no reference to a file.</source>
        <translation>Die Probe „%1“ verweist auf „%2“; das ist kein Verweis auf eine Datei.</translation>
    </message>
</context>
<context>
    <name>SamplesProteinsCsv</name>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be imported.</source>
        <translation>Die Datei „%1“ kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>It has no header.</source>
        <translation>Sie hat keine Kopfzeile.</translation>
    </message>
    <message>
        <source>Two columns are called &quot;%1&quot;.</source>
        <translation>Zwei Spalten heißen „%1“.</translation>
    </message>
</context>
<context>
    <name>SecondDocument</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The workflow can&apos;t be upgraded: %1</source>
        <translation>Der Workflow kann nicht aktualisiert werden: %1</translation>
    </message>
    <message>
        <source>%1 was upgraded from %2 for this comparison; its file stays as it is.</source>
        <translation>%1 wurde für diesen Vergleich von %2 aktualisiert; die Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>%1 comes from a newer version of the software (%2).</source>
        <translation>%1 kommt von einer neueren Version der Software (%2).</translation>
    </message>
    <message>
        <source>Nothing can be taken over from a workflow of a newer version of the software: it may mean something else there.</source>
        <translation>Aus einem Workflow einer neueren Version der Software kann nichts übernommen werden: Es kann dort etwas anderes bedeuten.</translation>
    </message>
    <message>
        <source>Files that it names from its own folder are shown with their whole paths.</source>
        <translation>Dateien, die er von seinem eigenen Ordner aus nennt, stehen hier mit ganzen Pfaden.</translation>
    </message>
    <message>
        <source>There are no tabs in this workflow.</source>
        <translation>In diesem Workflow gibt es keine Reiter.</translation>
    </message>
    <message>
        <source>This is the file of this workflow: what differs isn&apos;t saved yet.</source>
        <translation>Dies ist die Datei dieses Workflows: Was abweicht, ist noch nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>SequenceColumns</name>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Number of residues or nucleotides.</source>
        <translation>Zahl der Reste oder Nukleotide.</translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation>Mono. Masse</translation>
    </message>
    <message>
        <source>Monoisotopic mass of the neutral, unmodified chain in Da.</source>
        <translation>Monoisotopische Masse der neutralen, unmodifizierten Kette in Da.</translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation>Mittlere Masse</translation>
    </message>
    <message>
        <source>Average mass of the neutral, unmodified chain in Da.</source>
        <translation>Mittlere Masse der neutralen, unmodifizierten Kette in Da.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Atoms of the neutral, unmodified chain.</source>
        <translation>Atome der neutralen, unmodifizierten Kette.</translation>
    </message>
    <message>
        <source>Cleavage sites</source>
        <translation>Schnittstellen</translation>
    </message>
    <message>
        <source>Number of bonds that the enzyme of the digest cuts.</source>
        <translation>Zahl der Bindungen, die das Enzym des Verdaus schneidet.</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Abdeckung</translation>
    </message>
    <message>
        <source>Share of the residues that lie in a peptide of the digest, in percent.</source>
        <translation>Anteil der Reste, die in einem Peptid des Verdaus liegen, in Prozent.</translation>
    </message>
    <message>
        <source>Position %1 holds &quot;%2&quot;, which stands for no single amino acid.</source>
        <translation>An Position %1 steht „%2“, das für keine einzelne Aminosäure steht.</translation>
    </message>
</context>
<context>
    <name>SequenceDatabasesWidget</name>
    <message>
        <source>FASTA file</source>
        <translation>FASTA-Datei</translation>
    </message>
    <message>
        <source>The file with the sequences that are searched.</source>
        <translation>Die Datei mit den Sequenzen, die durchsucht werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no reference to a file. Enter a path, or choose a file.</source>
        <translation>„%1“ ist kein Verweis auf eine Datei. Geben Sie einen Pfad ein, oder wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>Is not a FASTA file. Its name must end with one of: %1.</source>
        <translation>Ist keine FASTA-Datei. Ihr Name muss auf eines davon enden: %1.</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Spezies</translation>
    </message>
    <message>
        <source>The species that is taken from the file; empty for all sequences.</source>
        <translation>Die Spezies, die aus der Datei genommen wird; leer für alle Sequenzen.</translation>
    </message>
</context>
<context>
    <name>SettingCopy</name>
    <message>
        <source>A value of the column can&apos;t be stored, see the log.</source>
        <translation>Ein Wert der Spalte kann nicht gespeichert werden, siehe Protokoll.</translation>
    </message>
</context>
<context>
    <name>SettingEdit</name>
    <message>
        <source>The column doesn&apos;t have this setting.</source>
        <translation>Die Spalte hat diese Einstellung nicht.</translation>
    </message>
    <message>
        <source>The settings of this column can only be read.</source>
        <translation>Die Einstellungen dieser Spalte können nur gelesen werden.</translation>
    </message>
    <message>
        <source>This setting can only be read.</source>
        <translation>Diese Einstellung kann nur gelesen werden.</translation>
    </message>
</context>
<context>
    <name>SettingPaste</name>
    <message>
        <source>The clipboard holds no settings. Copy settings first, or lines of caption, tabulator and value.</source>
        <translation>Die Zwischenablage enthält keine Einstellungen. Kopieren Sie zuerst Einstellungen, oder Zeilen aus Beschriftung, Tabulator und Wert.</translation>
    </message>
    <message>
        <source>The clipboard holds more than settings are: over %1 MiB or %2 lines.</source>
        <translation>Die Zwischenablage enthält mehr, als Einstellungen sind: über %1 MiB oder %2 Zeilen.</translation>
    </message>
    <message>
        <source>The value isn&apos;t of the setting&apos;s kind.</source>
        <translation>Der Wert passt nicht zur Art der Einstellung.</translation>
    </message>
    <message>
        <source>Allowed: %1.</source>
        <translation>Erlaubt: %1.</translation>
    </message>
    <message>
        <source>The column doesn&apos;t have this setting.</source>
        <translation>Die Spalte hat diese Einstellung nicht.</translation>
    </message>
    <message>
        <source>Several settings are called so. Give the name of one.</source>
        <translation>Mehrere Einstellungen heißen so. Geben Sie den Namen einer an.</translation>
    </message>
    <message>
        <source>There is no value.</source>
        <translation>Es gibt keinen Wert.</translation>
    </message>
    <message>
        <source>It stands there twice; the first value was taken.</source>
        <translation>Sie steht zweimal da; der erste Wert wurde genommen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>The setting has no unit, and &quot;%1&quot; stands behind its value.</source>
        <translation>Die Einstellung hat keine Einheit, und hinter ihrem Wert steht „%1“.</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1: %2 zu %3</translation>
    </message>
    <message>
        <source>Settings of &quot;%1&quot;</source>
        <translation>Einstellungen von „%1“</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; added</source>
        <translation>Spalte „%1“ hinzugefügt</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; removed</source>
        <translation>Spalte „%1“ entfernt</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; renamed to &quot;%2&quot;</source>
        <translation>Spalte „%1“ in „%2“ umbenannt</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; moved</source>
        <translation>Spalte „%1“ verschoben</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; added</source>
        <translation>Reiter „%1“ hinzugefügt</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; removed</source>
        <translation>Reiter „%1“ entfernt</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; renamed to &quot;%2&quot;</source>
        <translation>Reiter „%1“ in „%2“ umbenannt</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; moved</source>
        <translation>Reiter „%1“ verschoben</translation>
    </message>
    <message>
        <source>Workflow properties</source>
        <translation>Eigenschaften des Workflows</translation>
    </message>
    <message>
        <source>&quot;%1&quot; edited</source>
        <translation>„%1“ bearbeitet</translation>
    </message>
    <message>
        <source>Tabs and columns</source>
        <translation>Reiter und Spalten</translation>
    </message>
    <message>
        <source>%1 columns edited</source>
        <translation>%1 Spalten bearbeitet</translation>
    </message>
</context>
<context>
    <name>TableCaptions</name>
    <message>
        <source>Building blocks</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>On molecules</source>
        <translation>An Molekülen</translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation>Disulfidbrücken</translation>
    </message>
    <message>
        <source>Lowest m/z</source>
        <translation>Kleinstes m/z</translation>
    </message>
    <message>
        <source>Highest m/z</source>
        <translation>Größtes m/z</translation>
    </message>
    <message>
        <source>Lowest mass</source>
        <translation>Kleinste Masse</translation>
    </message>
    <message>
        <source>Highest mass</source>
        <translation>Größte Masse</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>Kleinste Ladung</translation>
    </message>
    <message>
        <source>Highest charge</source>
        <translation>Größte Ladung</translation>
    </message>
    <message>
        <source>Accession</source>
        <translation>Zugangsnummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Sample ids</source>
        <translation>Proben-IDs</translation>
    </message>
    <message>
        <source>Trace files</source>
        <translation>Spurdateien</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>FASTA file</source>
        <translation>FASTA-Datei</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Benutzen</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Spezies</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>entry %1</source>
        <translation>Eintrag %1</translation>
    </message>
    <message>
        <source>table %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>value %1 behind the last column</source>
        <translation>Wert %1 hinter der letzten Spalte</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>order of columns</source>
        <translation>Reihenfolge der Spalten</translation>
    </message>
    <message>
        <source>order of settings</source>
        <translation>Reihenfolge der Einstellungen</translation>
    </message>
    <message>
        <source>order of tabs</source>
        <translation>Reihenfolge der Reiter</translation>
    </message>
</context>
<context>
    <name>TableChecks</name>
    <message>
        <source>Must not repeat; row %1 holds the same.</source>
        <translation>Darf sich nicht wiederholen; in Zeile %1 steht dasselbe.</translation>
    </message>
</context>
<context>
    <name>TableClipboard</name>
    <message>
        <source>paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>TableColumn</name>
    <message>
        <source>Must lie between %1 and %2%3.</source>
        <translation>Muss zwischen %1 und %2%3 liegen.</translation>
    </message>
    <message>
        <source>Must be at least %1%2.</source>
        <translation>Muss mindestens %1%2 sein.</translation>
    </message>
    <message>
        <source>Must be at most %1%2.</source>
        <translation>Darf höchstens %1%2 sein.</translation>
    </message>
    <message>
        <source>May be %1 or %2; write it without a sign between thousands.</source>
        <translation>Kann %1 oder %2 sein; schreiben Sie es ohne Tausenderzeichen.</translation>
    </message>
    <message>
        <source>Is not a whole number.</source>
        <translation>Ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>Is not a number.</source>
        <translation>Ist keine Zahl.</translation>
    </message>
    <message>
        <source>Must be a whole number.</source>
        <translation>Muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>Position %1 holds &quot;%2&quot;, which no sequence has.</source>
        <translation>An Position %1 steht „%2“, was in keiner Sequenz vorkommt.</translation>
    </message>
    <message>
        <source>Is none of: %1.</source>
        <translation>Ist nichts von: %1.</translation>
    </message>
    <message>
        <source>Is no colour; write it as #rrggbb.</source>
        <translation>Ist keine Farbe; schreiben Sie sie als #rrggbb.</translation>
    </message>
    <message>
        <source>A whole number between %1 and %2%3.</source>
        <translation>Eine ganze Zahl zwischen %1 und %2%3.</translation>
    </message>
    <message>
        <source>A number between %1 and %2%3.</source>
        <translation>Eine Zahl zwischen %1 und %2%3.</translation>
    </message>
    <message>
        <source>A whole number of at least %1%2.</source>
        <translation>Eine ganze Zahl von mindestens %1%2.</translation>
    </message>
    <message>
        <source>A number of at least %1%2.</source>
        <translation>Eine Zahl von mindestens %1%2.</translation>
    </message>
    <message>
        <source>A whole number of at most %1%2.</source>
        <translation>Eine ganze Zahl von höchstens %1%2.</translation>
    </message>
    <message>
        <source>A number of at most %1%2.</source>
        <translation>Eine Zahl von höchstens %1%2.</translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation>Eine ganze Zahl.</translation>
    </message>
    <message>
        <source>A number.</source>
        <translation>Eine Zahl.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <translation>Eines von: %1.</translation>
    </message>
    <message>
        <source>A file; it can be dropped here.</source>
        <translation>Eine Datei; sie kann hierher gezogen werden.</translation>
    </message>
    <message>
        <source>A sequence; blanks and positions between its letters don&apos;t count.</source>
        <translation>Eine Sequenz; Leerzeichen und Positionen zwischen ihren Buchstaben zählen nicht.</translation>
    </message>
    <message>
        <source>A colour, written as #rrggbb.</source>
        <translation>Eine Farbe, geschrieben als #rrggbb.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Must not be empty.</source>
        <translation>Darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Must not repeat.</source>
        <translation>Darf sich nicht wiederholen.</translation>
    </message>
    <message>
        <source>Can&apos;t be changed.</source>
        <translation>Kann nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ausschnei&amp;den</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>Mit &amp;Überschriften kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste cells from a spreadsheet</source>
        <translation>Zellen aus einer Tabellenkalkulation einfügen</translation>
    </message>
    <message>
        <source>C&amp;lear Cells</source>
        <translation>Zellen &amp;leeren</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>Nach unten ausfüllen</translation>
    </message>
    <message>
        <source>Fill the selected cells with the topmost, or one cell with the cell above</source>
        <translation>Füllt die gewählten Zellen mit der obersten, oder eine Zelle mit der darüber</translation>
    </message>
    <message>
        <source>&amp;Add Row</source>
        <translation>&amp;Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Add a row below</source>
        <translation>Fügt darunter eine Zeile hinzu</translation>
    </message>
    <message>
        <source>Dupl&amp;icate Rows</source>
        <translation>Zeilen &amp;verdoppeln</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>Zeilen ent&amp;fernen</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Sort Ascendin&amp;g</source>
        <translation>Aufsteigend &amp;sortieren</translation>
    </message>
    <message>
        <source>Show the rows in the order of the current column</source>
        <translation>Zeigt die Zeilen in der Reihenfolge der aktuellen Spalte</translation>
    </message>
    <message>
        <source>Sort Descending</source>
        <translation>Absteigend sortieren</translation>
    </message>
    <message>
        <source>Own Order</source>
        <translation>Eigene Reihenfolge</translation>
    </message>
    <message>
        <source>Show the rows in the order that the table has</source>
        <translation>Zeigt die Zeilen in der Reihenfolge der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Keep This Order</source>
        <translation>Diese Reihenfolge &amp;behalten</translation>
    </message>
    <message>
        <source>Put the rows into the order in which they are shown</source>
        <translation>Ordnet die Zeilen, wie sie gezeigt werden</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>Su&amp;chen...</translation>
    </message>
    <message>
        <source>Find and R&amp;eplace...</source>
        <translation>Suchen und erse&amp;tzen...</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>&amp;Nächstes Problem</translation>
    </message>
    <message>
        <source>Go to the next cell that isn&apos;t allowed</source>
        <translation>Zur nächsten Zelle, die nicht erlaubt ist</translation>
    </message>
    <message>
        <source>Previous Pro&amp;blem</source>
        <translation>Voriges &amp;Problem</translation>
    </message>
    <message>
        <source>Hide C&amp;olumns</source>
        <translation>Sp&amp;alten verbergen</translation>
    </message>
    <message>
        <source>&amp;Show All Columns</source>
        <translation>Alle Spalten &amp;zeigen</translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation>I&amp;mportieren...</translation>
    </message>
    <message>
        <source>Add rows from a text file, such as CSV</source>
        <translation>Fügt Zeilen einer Textdatei hinzu, etwa CSV</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Write the shown rows to a text file</source>
        <translation>Schreibt die gezeigten Zeilen in eine Textdatei</translation>
    </message>
</context>
<context>
    <name>TableDialog</name>
    <message>
        <source>A cell that is hidden isn&apos;t allowed. Remove the filter, and show all columns.</source>
        <translation>Eine verborgene Zelle ist nicht erlaubt. Heben Sie den Filter auf, und zeigen Sie alle Spalten.</translation>
    </message>
</context>
<context>
    <name>TableDrop</name>
    <message>
        <source>drop files</source>
        <translation>Dateien ablegen</translation>
    </message>
</context>
<context>
    <name>TableFind</name>
    <message>
        <source>replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>TableImport</name>
    <message>
        <source>The file has another encoding.</source>
        <translation>Die Datei hat eine andere Kodierung.</translation>
    </message>
    <message>
        <source>Choose another encoding, or save the file as UTF-8.</source>
        <translation>Wählen Sie eine andere Kodierung, oder speichern Sie die Datei als UTF-8.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>No field goes to &quot;%1&quot;.</source>
        <translation>Kein Feld kommt nach „%1“.</translation>
    </message>
    <message>
        <source>Has %1 of %2 fields.</source>
        <translation>Hat %1 von %2 Feldern.</translation>
    </message>
    <message>
        <source>Must not repeat; row %1 of the table holds the same.</source>
        <translation>Darf sich nicht wiederholen; in Zeile %1 der Tabelle steht dasselbe.</translation>
    </message>
    <message>
        <source>Must not repeat; line %1 holds the same.</source>
        <translation>Darf sich nicht wiederholen; in Zeile %1 der Datei steht dasselbe.</translation>
    </message>
</context>
<context>
    <name>TableRules</name>
    <message>
        <source>Must lie below &quot;%1&quot;.</source>
        <translation>Muss unter „%1“ liegen.</translation>
    </message>
    <message>
        <source>Must not lie above &quot;%1&quot;.</source>
        <translation>Darf nicht über „%1“ liegen.</translation>
    </message>
    <message>
        <source>Must lie above &quot;%1&quot;.</source>
        <translation>Muss über „%1“ liegen.</translation>
    </message>
    <message>
        <source>Must not lie below &quot;%1&quot;.</source>
        <translation>Darf nicht unter „%1“ liegen.</translation>
    </message>
    <message>
        <source>One of these must be given: %1.</source>
        <translation>Eines davon muss angegeben sein: %1.</translation>
    </message>
</context>
<context>
    <name>TableSerializer</name>
    <message>
        <source>Row %1 contains invalid data</source>
        <translation>Zeile %1 enthält ungültige Daten</translation>
    </message>
    <message>
        <source>It has %1 cells, and there are %2 columns.</source>
        <translation>Sie hat %1 Zellen, und es gibt %2 Spalten.</translation>
    </message>
</context>
<context>
    <name>TableSheet</name>
    <message>
        <source>The table can&apos;t hold that much text.</source>
        <translation>So viel Text fasst die Tabelle nicht.</translation>
    </message>
    <message>
        <source>Split it into several tables.</source>
        <translation>Teilen Sie sie in mehrere Tabellen.</translation>
    </message>
</context>
<context>
    <name>TakeOverText</name>
    <message>
        <source>tab %1</source>
        <translation>Tab %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>setting %1</source>
        <translation>Einstellung %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>1 difference is checked.</source>
        <translation>1 Unterschied ist angekreuzt.</translation>
    </message>
    <message>
        <source>%1 differences are checked.</source>
        <translation>%1 Unterschiede sind angekreuzt.</translation>
    </message>
    <message>
        <source>%1 Taking over removes from this workflow: %2</source>
        <translation>%1 Das Übernehmen entfernt aus diesem Workflow: %2</translation>
    </message>
    <message>
        <source>Take over 1 setting from %1</source>
        <translation>1 Einstellung aus %1 übernehmen</translation>
    </message>
    <message>
        <source>Take over %1 settings from %2</source>
        <translation>%1 Einstellungen aus %2 übernehmen</translation>
    </message>
    <message>
        <source>Take over 1 difference from %1</source>
        <translation>1 Unterschied aus %1 übernehmen</translation>
    </message>
    <message>
        <source>Take over %1 differences from %2</source>
        <translation>%1 Unterschiede aus %2 übernehmen</translation>
    </message>
    <message>
        <source>1 difference taken over from %1.</source>
        <translation>1 Unterschied aus %1 übernommen.</translation>
    </message>
    <message>
        <source>%1 differences taken over from %2.</source>
        <translation>%1 Unterschiede aus %2 übernommen.</translation>
    </message>
    <message>
        <source>%1 Removed: %2</source>
        <translation>%1 Entfernt: %2</translation>
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
    <name>TraceColumns</name>
    <message>
        <source>Total ion current</source>
        <translation>Gesamtionenstrom</translation>
    </message>
    <message>
        <source>Base peak intensity</source>
        <translation>Basispeak-Intensität</translation>
    </message>
    <message>
        <source>Extracted ion</source>
        <translation>Extrahiertes Ion</translation>
    </message>
    <message>
        <source>UV</source>
        <translation>UV</translation>
    </message>
    <message>
        <source>Other chromatogram</source>
        <translation>Anderes Chromatogramm</translation>
    </message>
    <message>
        <source>Text file</source>
        <translation>Textdatei</translation>
    </message>
    <message>
        <source>Electropherogram</source>
        <translation>Elektropherogramm</translation>
    </message>
    <message>
        <source>icIEF</source>
        <translation>icIEF</translation>
    </message>
    <message>
        <source>IntaBio</source>
        <translation>IntaBio</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no id of a sample. Enter &quot;%2&quot;, or ids such as &quot;1; 2&quot;.</source>
        <translation>„%1“ ist keine ID einer Probe. Geben Sie „%2“ oder IDs wie „1; 2“ ein.</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, or the ids of samples, separated by &quot;;&quot;.</source>
        <translation>„%1“, oder die IDs von Proben, mit „;“ dazwischen.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>What the trace shows.</source>
        <translation>Was die Spur zeigt.</translation>
    </message>
    <message>
        <source>Peak options</source>
        <translation>Peak-Einstellungen</translation>
    </message>
    <message>
        <source>The preset by which peaks are found in the trace; empty for none.</source>
        <translation>Die Vorlage, nach der in der Spur Peaks gefunden werden; leer für keine.</translation>
    </message>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Es gibt keine Vorlage „%1“.</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>By peak width</source>
        <translation>Nach Peakbreite</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>What smoothing and interval are computed from.</source>
        <translation>Woraus Glättung und Intervall berechnet werden.</translation>
    </message>
    <message>
        <source>Peak width factor</source>
        <translation>Faktor der Peakbreite</translation>
    </message>
    <message>
        <source>By which the widths are multiplied that peaks are taken to have.</source>
        <translation>Womit die Breiten multipliziert werden, die für Peaks angenommen werden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By which traces name these options.</source>
        <translation>Womit Spuren diese Einstellungen nennen.</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Benutzen</translation>
    </message>
    <message>
        <source>Whether the trace is imported.</source>
        <translation>Ob die Spur importiert wird.</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>What the file calls the trace; of a text file its name.</source>
        <translation>Wie die Datei die Spur nennt; bei einer Textdatei ihr Name.</translation>
    </message>
    <message>
        <source>Channel id</source>
        <translation>Kanal-ID</translation>
    </message>
    <message>
        <source>By which the reader of the file finds the trace.</source>
        <translation>Womit der Leser der Datei die Spur findet.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Shortest distance of two peaks.</source>
        <translation>Kleinster Abstand zweier Peaks.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Where peaks begin to be looked for; empty for the whole trace.</source>
        <translation>Ab wo Peaks gesucht werden; leer für die ganze Spur.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Where peaks end to be looked for; empty for the whole trace.</source>
        <translation>Bis wo Peaks gesucht werden; leer für die ganze Spur.</translation>
    </message>
    <message>
        <source>Find peaks</source>
        <translation>Peaks suchen</translation>
    </message>
    <message>
        <source>Whether peaks are looked for at all.</source>
        <translation>Ob überhaupt Peaks gesucht werden.</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Sigma of the Gaussian that smooths the trace.</source>
        <translation>Sigma der Gaußkurve, die die Spur glättet.</translation>
    </message>
    <message>
        <source>Correct baseline</source>
        <translation>Grundlinie abziehen</translation>
    </message>
    <message>
        <source>Whether the baseline is subtracted first.</source>
        <translation>Ob die Grundlinie zuerst abgezogen wird.</translation>
    </message>
    <message>
        <source>Baseline smoothing</source>
        <translation>Glättung der Grundlinie</translation>
    </message>
    <message>
        <source>Sigma of the Gaussian that smooths the baseline.</source>
        <translation>Sigma der Gaußkurve, die die Grundlinie glättet.</translation>
    </message>
</context>
<context>
    <name>TraceImportAndProcessingOptions</name>
    <message>
        <source>There are several peak options presets with the name &quot;%1&quot;.</source>
        <translation>Es gibt mehrere Vorlagen von Peak-Einstellungen mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>The trace &quot;%1&quot; is listed more than once.</source>
        <translation>Die Spur „%1“ steht mehr als einmal in der Liste.</translation>
    </message>
    <message>
        <source>The trace &quot;%1&quot; uses the peak options preset &quot;%2&quot;, which does not exist.</source>
        <translation>Die Spur „%1“ benutzt die Peak-Einstellungen „%2“, die es nicht gibt.</translation>
    </message>
    <message>
        <source>The trace &quot;%1&quot; is imported for no sample.</source>
        <translation>Die Spur „%1“ wird für keine Probe importiert.</translation>
    </message>
</context>
<context>
    <name>TracesImportList</name>
    <message>
        <source>&quot;%1&quot; must hold whole numbers.</source>
        <translation>„%1“ muss ganze Zahlen enthalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array, but there is %2.</source>
        <translation>„%1“ muss eine Liste sein, aber es gibt %2.</translation>
    </message>
    <message>
        <source>Leave it out to use the trace for all samples.</source>
        <translation>Lassen Sie es weg, um die Spur für alle Proben zu benutzen.</translation>
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
    <name>orv::CodesDialog</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Wählen: %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Shows only lines with this text; those that are checked stay so.</source>
        <translation>Zeigt nur Zeilen mit diesem Text; angekreuzte bleiben es.</translation>
    </message>
    <message>
        <source>Space checks the current line.</source>
        <translation>Die Leertaste kreuzt die aktuelle Zeile an.</translation>
    </message>
</context>
<context>
    <name>orv::ColumnDialog</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>What the column is called, such as &quot;Condition&quot; or &quot;Replicate&quot;</source>
        <translation>Wie die Spalte heißt, etwa „Bedingung“ oder „Replikat“</translation>
    </message>
    <message>
        <source>What stands in the column</source>
        <translation>Was in der Spalte steht</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Add Column</source>
        <translation>&amp;Spalte hinzufügen</translation>
    </message>
    <message>
        <source>There is a column &quot;%1&quot; already.</source>
        <translation>Es gibt schon eine Spalte „%1“.</translation>
    </message>
</context>
<context>
    <name>orv::Comparison</name>
    <message>
        <source>Compare &amp;with...</source>
        <translation>Vergleichen &amp;mit...</translation>
    </message>
    <message>
        <source>Show in what another workflow differs from this one, and take over what you choose</source>
        <translation>Zeigt, worin ein anderer Workflow von diesem abweicht, und übernimmt, was Sie wählen</translation>
    </message>
    <message>
        <source>Compare With Workflow</source>
        <translation>Mit Workflow vergleichen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be compared.</source>
        <translation>%1 kann nicht verglichen werden.</translation>
    </message>
    <message>
        <source>This window is read only: nothing can be taken over.</source>
        <translation>Dieses Fenster ist nur zum Lesen: Nichts kann übernommen werden.</translation>
    </message>
    <message>
        <source>Nothing could be taken over from %1.</source>
        <translation>Aus %1 konnte nichts übernommen werden.</translation>
    </message>
    <message>
        <source>Co&amp;mparison</source>
        <translation>Ver&amp;gleich</translation>
    </message>
</context>
<context>
    <name>orv::ComparisonModel</name>
    <message>
        <source>Workflow</source>
        <translation>Workflow</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1 and what belongs to it (%2 more)</source>
        <translation>%1 und was dazugehört (%2 weitere)</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(nicht da)</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Only in %1</source>
        <translation>Nur in %1</translation>
    </message>
    <message>
        <source>Only in this workflow</source>
        <translation>Nur in diesem Workflow</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>This workflow</source>
        <translation>Dieser Workflow</translation>
    </message>
    <message>
        <source>What differs, and where. Space checks what is to be taken over, Enter goes there.</source>
        <translation>Was sich unterscheidet, und wo. Die Leertaste hakt an, was übernommen werden soll, die Eingabetaste führt dorthin.</translation>
    </message>
    <message>
        <source>What this workflow has</source>
        <translation>Was dieser Workflow hat</translation>
    </message>
    <message>
        <source>What %1 has, and what this workflow gets from it when it is taken over</source>
        <translation>Was %1 hat, und was dieser Workflow daraus bekommt, wenn es übernommen wird</translation>
    </message>
</context>
<context>
    <name>orv::ComparisonPanel</name>
    <message>
        <source>&amp;Other Workflow...</source>
        <translation>Anderer Wor&amp;kflow...</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>The workflows are being compared</source>
        <translation>Die Workflows werden verglichen</translation>
    </message>
    <message>
        <source>Choose the workflow to compare with</source>
        <translation>Wählen Sie den Workflow, mit dem verglichen wird</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>Nichts wird verglichen.</translation>
    </message>
    <message>
        <source>Choose another workflow to see in what it differs from this one, or drop its file here.</source>
        <translation>Wählen Sie einen anderen Workflow, um zu sehen, worin er von diesem abweicht, oder ziehen Sie seine Datei hierher.</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>%1 wird gelesen...</translation>
    </message>
    <message>
        <source>What differs will stand here.</source>
        <translation>Hier wird stehen, was abweicht.</translation>
    </message>
    <message>
        <source>Only the first %1 are shown.</source>
        <translation>Nur die ersten %1 werden gezeigt.</translation>
    </message>
    <message>
        <source>No differences to %1.</source>
        <translation>Keine Unterschiede zu %1.</translation>
    </message>
    <message>
        <source>1 difference to %1</source>
        <translation>1 Unterschied zu %1</translation>
    </message>
    <message>
        <source>%1 differences to %2</source>
        <translation>%1 Unterschiede zu %2</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Keine Unterschiede</translation>
    </message>
    <message>
        <source>Check what is to be taken over first.</source>
        <translation>Kreuzen Sie zuerst an, was übernommen werden soll.</translation>
    </message>
    <message>
        <source>Give this workflow what is checked, as one step that can be undone</source>
        <translation>Gibt diesem Workflow, was angekreuzt ist, als einen Schritt, der sich rückgängig machen lässt</translation>
    </message>
</context>
<context>
    <name>orv::CustomFieldsImportWidget</name>
    <message>
        <source>&amp;Import Text File...</source>
        <translation>Textdatei &amp;importieren...</translation>
    </message>
    <message>
        <source>Replace the table by a CSV file of samples and proteins</source>
        <translation>Ersetzt die Tabelle durch eine CSV-Datei mit Proben und Proteinen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No fields yet. Import a text file with a column for each.</source>
        <translation>Noch keine Felder. Importieren Sie eine Textdatei mit einer Spalte für jedes.</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Felder: %1</translation>
    </message>
    <message>
        <source>Samples and proteins</source>
        <translation>Proben und Proteine</translation>
    </message>
    <message>
        <source>There are no samples and proteins yet. Import a text file.</source>
        <translation>Noch gibt es keine Proben und Proteine. Importieren Sie eine Textdatei.</translation>
    </message>
    <message>
        <source>Import Samples and Proteins</source>
        <translation>Proben und Proteine importieren</translation>
    </message>
</context>
<context>
    <name>orv::DigestBar</name>
    <message>
        <source>Digest</source>
        <translation>Verdau</translation>
    </message>
    <message>
        <source>Enzyme as name @ residues | side of the cut.</source>
        <translation>Enzym als Name @ Reste | Seite des Schnitts.</translation>
    </message>
    <message>
        <source>Missed cleavages</source>
        <translation>Ausgelassene Schnitte</translation>
    </message>
    <message>
        <source>Number of missed cleavages, at most.</source>
        <translation>Höchstzahl ausgelassener Schnitte.</translation>
    </message>
    <message>
        <source>Shortest peptide</source>
        <translation>Kürzestes Peptid</translation>
    </message>
    <message>
        <source>Residues of the shortest peptide that can be seen.</source>
        <translation>Reste des kürzesten Peptids, das zu sehen ist.</translation>
    </message>
    <message>
        <source>Longest peptide</source>
        <translation>Längstes Peptid</translation>
    </message>
    <message>
        <source>Residues of the longest peptide that can be seen.</source>
        <translation>Reste des längsten Peptids, das zu sehen ist.</translation>
    </message>
    <message>
        <source>&amp;Digest:</source>
        <translation>Ver&amp;dau:</translation>
    </message>
    <message>
        <source>&amp;Missed:</source>
        <translation>A&amp;usgelassen:</translation>
    </message>
    <message>
        <source>&amp;Length:</source>
        <translation>&amp;Länge:</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>&amp;bis</translation>
    </message>
    <message>
        <source>Write an enzyme as name @ residues | C-term or N-term.</source>
        <translation>Schreiben Sie ein Enzym als Name @ Reste | C-term oder N-term.</translation>
    </message>
</context>
<context>
    <name>orv::DisulfideMap</name>
    <message>
        <source>Disulfide bonds between cysteines</source>
        <translation>Disulfidbrücken zwischen Cysteinen</translation>
    </message>
    <message>
        <source>Click two cysteines, or choose them with the arrow keys and Enter, to join them by a bond.</source>
        <translation>Klicken Sie zwei Cysteine an, oder wählen Sie sie mit Pfeiltasten und Eingabetaste, um sie durch eine Brücke zu verbinden.</translation>
    </message>
    <message>
        <source>%1 C%2</source>
        <translation>%1 C%2</translation>
    </message>
    <message>
        <source>%1, bond begins at %2</source>
        <translation>%1, Brücke beginnt bei %2</translation>
    </message>
    <message>
        <source>There are no proteins with cysteines.</source>
        <translation>Es gibt keine Proteine mit Cysteinen.</translation>
    </message>
</context>
<context>
    <name>orv::DisulfideWidget</name>
    <message>
        <source>The bond leads to the cysteine from which it comes.</source>
        <translation>Die Brücke führt zu dem Cystein, von dem sie kommt.</translation>
    </message>
    <message>
        <source>between chains</source>
        <translation>zwischen Ketten</translation>
    </message>
    <message>
        <source>%1 residues</source>
        <translation>%1 Reste</translation>
    </message>
    <message>
        <source>Accession of the protein that the cysteine belongs to.</source>
        <translation>Zugangsnummer des Proteins, zu dem das Cystein gehört.</translation>
    </message>
    <message>
        <source>Place of the cysteine, counted from 1.</source>
        <translation>Platz des Cysteins, von 1 an gezählt.</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Spannt</translation>
    </message>
    <message>
        <source>How far the cysteines lie apart. Follows from their places.</source>
        <translation>Wie weit die Cysteine auseinanderliegen. Folgt aus ihren Plätzen.</translation>
    </message>
    <message>
        <source>First protein</source>
        <translation>Erstes Protein</translation>
    </message>
    <message>
        <source>First cysteine</source>
        <translation>Erstes Cystein</translation>
    </message>
    <message>
        <source>Second protein</source>
        <translation>Zweites Protein</translation>
    </message>
    <message>
        <source>Second cysteine</source>
        <translation>Zweites Cystein</translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation>Disulfidbrücken</translation>
    </message>
    <message>
        <source>Or click two cysteines above.</source>
        <translation>Oder klicken Sie oben zwei Cysteine an.</translation>
    </message>
    <message>
        <source>add a bond</source>
        <translation>Brücke hinzufügen</translation>
    </message>
    <message>
        <source>Cysteines of %1: %2</source>
        <translation>Cysteine von %1: %2</translation>
    </message>
</context>
<context>
    <name>orv::DocumentHistory</name>
    <message>
        <source>Not all of the step can be shown: %1</source>
        <translation>Nicht alles von dem Schritt kann gezeigt werden: %1</translation>
    </message>
    <message>
        <source>Upgrade from %1 to %2</source>
        <translation>Aktualisierung von %1 auf %2</translation>
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
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>Warten auf %1...</translation>
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
        <source>The workflow was recovered. Save it to keep it.</source>
        <translation>Der Workflow wurde wiederhergestellt. Speichern Sie ihn, um ihn zu behalten.</translation>
    </message>
    <message>
        <source>The run was written to %1</source>
        <translation>Der Lauf steht in %1</translation>
    </message>
    <message>
        <source>Open a workflow with %1, or drop its file here.</source>
        <translation>Öffnen Sie einen Workflow mit %1, oder ziehen Sie seine Datei hierher.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>The workflow is open here already.</source>
        <translation>Der Workflow ist hier schon offen.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened here. Replace it?</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit sie hier geöffnet wurde. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>The file comes from a newer version of the software and stays as it is. Save under another name.</source>
        <translation>Die Datei stammt von einer neueren Version der Software und bleibt, wie sie ist. Speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>Unsave&amp;d Workflows</source>
        <translation>&amp;Ungespeicherte Workflows</translation>
    </message>
</context>
<context>
    <name>orv::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Previ&amp;ous</source>
        <translation>&amp;Vorige</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß/klein beachten</translation>
    </message>
    <message>
        <source>&amp;Whole cells</source>
        <translation>Gan&amp;ze Zellen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>A&amp;lle ersetzen</translation>
    </message>
    <message>
        <source>Cells changed: %1</source>
        <translation>Zellen geändert: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Cells: %1 or more</source>
        <translation>Zellen: %1 oder mehr</translation>
    </message>
    <message>
        <source>Cells: %1</source>
        <translation>Zellen: %1</translation>
    </message>
</context>
<context>
    <name>orv::FindHits</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>The caption of the setting. A sign stands at those that were changed.</source>
        <translation>Die Beschriftung der Einstellung. Ein Zeichen steht bei geänderten.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The value with its unit</source>
        <translation>Der Wert mit seiner Einheit</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>The default, where the value is another one. A click sets the setting back to it.</source>
        <translation>Die Vorgabe, wo der Wert ein anderer ist. Ein Klick setzt die Einstellung auf sie zurück.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>What was saved, where the value is another one now. A click sets the setting back to it.</source>
        <translation>Was gespeichert war, wo der Wert jetzt ein anderer ist. Ein Klick setzt die Einstellung darauf zurück.</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Tab and column</source>
        <translation>Reiter und Spalte</translation>
    </message>
    <message>
        <source>Found in</source>
        <translation>Gefunden in</translation>
    </message>
    <message>
        <source>Why the setting is in this list</source>
        <translation>Warum die Einstellung in dieser Liste steht</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Changed from the default</source>
        <translation>Anders als die Vorgabe</translation>
    </message>
    <message>
        <source>Changed since the last save</source>
        <translation>Seit dem letzten Speichern geändert</translation>
    </message>
    <message>
        <source>Has a finding</source>
        <translation>Mit Befund</translation>
    </message>
    <message>
        <source>Differs from the second document</source>
        <translation>Anders als im zweiten Dokument</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Set back to the default: %1</source>
        <translation>Auf die Vorgabe zurückgesetzt: %1</translation>
    </message>
    <message>
        <source>Set back to what was saved: %1</source>
        <translation>Auf das Gespeicherte zurückgesetzt: %1</translation>
    </message>
    <message>
        <source>%1, changed since the last save</source>
        <translation>%1, seit dem letzten Speichern geändert</translation>
    </message>
    <message>
        <source>%1, changed from the default</source>
        <translation>%1, anders als die Vorgabe</translation>
    </message>
    <message>
        <source>%1, the default, can&apos;t be set back to: the setting can only be read</source>
        <translation>Auf die Vorgabe %1 kann nicht zurückgesetzt werden: Die Einstellung kann nur gelesen werden</translation>
    </message>
    <message>
        <source>%1, which was saved, can&apos;t be set back to: the setting can only be read</source>
        <translation>Auf das Gespeicherte, %1, kann nicht zurückgesetzt werden: Die Einstellung kann nur gelesen werden</translation>
    </message>
</context>
<context>
    <name>orv::FindPanel</name>
    <message>
        <source>Changed from the defa&amp;ult</source>
        <translation>Anders als die &amp;Vorgabe</translation>
    </message>
    <message>
        <source>Changed since the last &amp;save</source>
        <translation>Seit dem letzten &amp;Speichern geändert</translation>
    </message>
    <message>
        <source>Has a fi&amp;nding</source>
        <translation>Mit Bef&amp;und</translation>
    </message>
    <message>
        <source>Differs from the se&amp;cond document</source>
        <translation>Anders als im &amp;zweiten Dokument</translation>
    </message>
    <message>
        <source>Find settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Caption, name, explanation or value of a setting</source>
        <translation>Beschriftung, Name, Erklärung oder Wert einer Einstellung</translation>
    </message>
    <message>
        <source>Words that stand in a setting&apos;s caption, name, explanation or value</source>
        <translation>Wörter aus Beschriftung, Name, Erklärung oder Wert einer Einstellung</translation>
    </message>
    <message>
        <source>Settings that were found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message>
        <source>Set Back to the &amp;Default</source>
        <translation>Auf die &amp;Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Set Back to What Was &amp;Saved</source>
        <translation>Auf das &amp;Gespeicherte zurücksetzen</translation>
    </message>
    <message>
        <source>Check the workflow first: then settings with a finding are known.</source>
        <translation>Prüfen Sie zuerst den Workflow: Dann sind Einstellungen mit Befund bekannt.</translation>
    </message>
    <message>
        <source>Open a second document to compare with first.</source>
        <translation>Öffnen Sie zuerst ein zweites Dokument zum Vergleichen.</translation>
    </message>
    <message>
        <source>There are no settings here. Open a workflow, or add a tab with a column of settings.</source>
        <translation>Hier gibt es keine Einstellungen. Öffnen Sie einen Workflow, oder fügen Sie einen Reiter mit einer Spalte von Einstellungen hinzu.</translation>
    </message>
    <message>
        <source>Type a word that stands in a setting&apos;s caption, name, explanation or value, or choose a filter.</source>
        <translation>Geben Sie ein Wort aus Beschriftung, Name, Erklärung oder Wert einer Einstellung ein, oder wählen Sie einen Filter.</translation>
    </message>
    <message>
        <source>No setting passes this filter.</source>
        <translation>Keine Einstellung passt zu diesem Filter.</translation>
    </message>
    <message>
        <source>No setting has all of these words and passes the filter. Type fewer letters, or take the filter away.</source>
        <translation>Keine Einstellung enthält alle diese Wörter und passt zum Filter. Geben Sie weniger Buchstaben ein, oder nehmen Sie den Filter weg.</translation>
    </message>
    <message>
        <source>No setting has all of these words. Type fewer letters or another word.</source>
        <translation>Keine Einstellung enthält alle diese Wörter. Geben Sie weniger Buchstaben oder ein anderes Wort ein.</translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation>1 Einstellung</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1 Einstellungen</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
</context>
<context>
    <name>orv::FindSettings</name>
    <message>
        <source>&amp;Find Settings...</source>
        <translation>Einstellungen &amp;suchen...</translation>
    </message>
    <message>
        <source>Search the settings of all tabs</source>
        <translation>Durchsucht die Einstellungen aller Reiter</translation>
    </message>
    <message>
        <source>Check the workflow first: then settings with a finding are known.</source>
        <translation>Prüfen Sie zuerst den Workflow: Dann sind Einstellungen mit Befund bekannt.</translation>
    </message>
    <message>
        <source>Open a second document to compare with first.</source>
        <translation>Öffnen Sie zuerst ein zweites Dokument zum Vergleichen.</translation>
    </message>
    <message>
        <source>This window is read only: nothing can be set back.</source>
        <translation>Dieses Fenster ist nur zum Lesen: Nichts kann zurückgesetzt werden.</translation>
    </message>
    <message>
        <source>What changed since the last save isn&apos;t known: %1</source>
        <translation>Was sich seit dem letzten Speichern geändert hat, ist nicht bekannt: %1</translation>
    </message>
    <message>
        <source>Find &amp;Settings</source>
        <translation>Einstellungen &amp;suchen</translation>
    </message>
</context>
<context>
    <name>orv::FindingCheck</name>
    <message>
        <source>The workflow can&apos;t be checked: %1</source>
        <translation>Der Workflow kann nicht geprüft werden: %1</translation>
    </message>
</context>
<context>
    <name>orv::FindingMarks</name>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
</context>
<context>
    <name>orv::Findings</name>
    <message>
        <source>&amp;Check Workflow</source>
        <translation>Workflow &amp;prüfen</translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation>&amp;Nächster Befund</translation>
    </message>
    <message>
        <source>Pre&amp;vious Finding</source>
        <translation>&amp;Voriger Befund</translation>
    </message>
    <message>
        <source>Look for errors in the workflow, as is done before it is run</source>
        <translation>Sucht nach Fehlern im Workflow, wie vor dem Ausführen</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>The workflow wasn&apos;t checked yet. Press %1 to check it.</source>
        <translation>Der Workflow wurde noch nicht geprüft. Drücken Sie %1, um ihn zu prüfen.</translation>
    </message>
    <message>
        <source>%1. Checking again...</source>
        <translation>%1. Wird noch einmal geprüft...</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft...</translation>
    </message>
    <message>
        <source>The check found nothing.</source>
        <translation>Die Prüfung fand nichts.</translation>
    </message>
    <message>
        <source>The last check found nothing.</source>
        <translation>Die letzte Prüfung hat nichts gefunden.</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>&amp;Befunde</translation>
    </message>
</context>
<context>
    <name>orv::FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and a finding</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>orv::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>What keeps an analysis from running as it should, where it is, and what to do. Enter goes there.</source>
        <translation>Was eine Analyse stört, wo es steht und was zu tun ist. Die Eingabetaste führt dorthin.</translation>
    </message>
</context>
<context>
    <name>orv::GlycanOptionsWidget</name>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Mass of the formula in Da.</source>
        <translation>Masse der Formel in Da.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>A monosaccharide, a label, an adduct that carries a charge, or a derivatisation.</source>
        <translation>Ein Monosaccharid, eine Markierung, ein Addukt, das eine Ladung trägt, oder eine Derivatisierung.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By which compositions and glycans name it.</source>
        <translation>Womit Zusammensetzungen und Glykane es nennen.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Of a monosaccharide the sugar without water, of the others what they add.</source>
        <translation>Bei einem Monosaccharid der Zucker ohne Wasser, bei den anderen, was sie hinzufügen.</translation>
    </message>
    <message>
        <source>On molecules</source>
        <translation>An Molekülen</translation>
    </message>
    <message>
        <source>Whether it is present on all molecules.</source>
        <translation>Ob es an allen Molekülen vorkommt.</translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation>Mono. Masse</translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation>Mittlere Masse</translation>
    </message>
    <message>
        <source>Glycan options</source>
        <translation>Glykan-Einstellungen</translation>
    </message>
    <message>
        <source>Rows without name, or with one that stands twice, aren&apos;t saved: %1.</source>
        <translation>Zeilen ohne Namen oder mit einem, der zweimal steht, werden nicht gespeichert: %1.</translation>
    </message>
</context>
<context>
    <name>orv::GlycanTableWidget</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the glycan is called, such as G0F.</source>
        <translation>Wie das Glykan heißt, etwa G0F.</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Zusammensetzung</translation>
    </message>
    <message>
        <source>Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).</source>
        <translation>Monosaccharide mit ihrer Zahl, etwa HexNAc(4)Hex(3)Fuc(1).</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Mass of the neutral, unlabelled glycan in Da; empty where it follows from the composition.</source>
        <translation>Masse des neutralen, unmarkierten Glykans in Da; leer, wo sie aus der Zusammensetzung folgt.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Name of the label at the reducing end; empty for none.</source>
        <translation>Name der Markierung am reduzierenden Ende; leer für keine.</translation>
    </message>
    <message>
        <source>Retention time</source>
        <translation>Retentionszeit</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Expected retention time in minutes.</source>
        <translation>Erwartete Retentionszeit in Minuten.</translation>
    </message>
    <message>
        <source>Calculated mass</source>
        <translation>Berechnete Masse</translation>
    </message>
    <message>
        <source>Monoisotopic mass in Da that follows from the composition, neutral and unlabelled.</source>
        <translation>Monoisotopische Masse in Da, die aus der Zusammensetzung folgt, neutral und unmarkiert.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Atoms that follow from the composition.</source>
        <translation>Atome, die aus der Zusammensetzung folgen.</translation>
    </message>
    <message>
        <source>Released glycans</source>
        <translation>Freigesetzte Glykane</translation>
    </message>
</context>
<context>
    <name>orv::GlycansDialog</name>
    <message>
        <source>Glycan database</source>
        <translation>Glykan-Datenbank</translation>
    </message>
    <message>
        <source>File with a composition in each line.</source>
        <translation>Datei mit einer Zusammensetzung in jeder Zeile.</translation>
    </message>
    <message>
        <source>Glycan databases (*.txt)</source>
        <translation>Glykan-Datenbanken (*.txt)</translation>
    </message>
    <message>
        <source>A path can&apos;t hold &quot;]&quot; here.</source>
        <translation>Ein Pfad kann hier kein „]“ enthalten.</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Zusammensetzung</translation>
    </message>
    <message>
        <source>Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).</source>
        <translation>Monosaccharide mit ihrer Zahl, etwa HexNAc(4)Hex(3)Fuc(1).</translation>
    </message>
    <message>
        <source>Site | use</source>
        <translation>Ort | Gebrauch</translation>
    </message>
    <message>
        <source>Kind of site and number on a peptide, such as NGlycan | rare1.</source>
        <translation>Art des Orts und Zahl je Peptid, etwa NGlycan | rare1.</translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation>Mono. Masse</translation>
    </message>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Monoisotopic mass of the free glycan in Da that follows from the composition.</source>
        <translation>Monoisotopische Masse des freien Glykans in Da, die aus der Zusammensetzung folgt.</translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation>Mittlere Masse</translation>
    </message>
    <message>
        <source>Average mass of the free glycan in Da that follows from the composition.</source>
        <translation>Mittlere Masse des freien Glykans in Da, die aus der Zusammensetzung folgt.</translation>
    </message>
    <message>
        <source>Glycans</source>
        <translation>Glykane</translation>
    </message>
    <message>
        <source>Glycan databases</source>
        <translation>Glykan-Datenbanken</translation>
    </message>
    <message>
        <source>Compositions</source>
        <translation>Zusammensetzungen</translation>
    </message>
    <message>
        <source>Tables and text</source>
        <translation>Tabellen und Text</translation>
    </message>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tabellen</translation>
    </message>
    <message>
        <source>Text of the glycans</source>
        <translation>Text der Glykane</translation>
    </message>
    <message>
        <source>Files of databases in square brackets and compositions, one in a line. Lines that begin with % are comments.</source>
        <translation>Dateien von Datenbanken in eckigen Klammern und Zusammensetzungen, je eine in einer Zeile. Zeilen, die mit % beginnen, sind Kommentare.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
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
    <name>orv::ImportPreviewModel</name>
    <message>
        <source>Goes to</source>
        <translation>Kommt nach</translation>
    </message>
</context>
<context>
    <name>orv::ImportProblemModel</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
</context>
<context>
    <name>orv::InclusionDialog</name>
    <message>
        <source>m/z</source>
        <translation>m/z</translation>
    </message>
    <message>
        <source>Of the precursor.</source>
        <translation>Des Vorläufers.</translation>
    </message>
    <message>
        <source>Must be above 0.</source>
        <translation>Muss über 0 liegen.</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Of the precursor; empty for any.</source>
        <translation>Des Vorläufers; leer für jede.</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Inclusion List</source>
        <translation>Einschlussliste</translation>
    </message>
    <message>
        <source>Inclusion list</source>
        <translation>Einschlussliste</translation>
    </message>
</context>
<context>
    <name>orv::InsilicoTableDialog</name>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>Residues in one-letter code.</source>
        <translation>Reste im Ein-Buchstaben-Code.</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Protein</translation>
    </message>
    <message>
        <source>Protein that the peptide is a piece of.</source>
        <translation>Protein, von dem das Peptid ein Stück ist.</translation>
    </message>
    <message>
        <source>First residue</source>
        <translation>Erster Rest</translation>
    </message>
    <message>
        <source>Place of the first residue in the protein, counted from 1.</source>
        <translation>Platz des ersten Rests im Protein, von 1 an gezählt.</translation>
    </message>
    <message>
        <source>Modifications</source>
        <translation>Modifikationen</translation>
    </message>
    <message>
        <source>Modifications that the peptide carries.</source>
        <translation>Modifikationen, die das Peptid trägt.</translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation>Disulfidbrücken</translation>
    </message>
    <message>
        <source>Bonds of cysteines of the peptide.</source>
        <translation>Brücken von Cysteinen des Peptids.</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Charge in which the peptide is looked for; empty for any.</source>
        <translation>Ladung, in der das Peptid gesucht wird; leer für jede.</translation>
    </message>
    <message>
        <source>Retention time</source>
        <translation>Retentionszeit</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Expected retention time in minutes.</source>
        <translation>Erwartete Retentionszeit in Minuten.</translation>
    </message>
    <message>
        <source>Theoretical Peptides</source>
        <translation>Theoretische Peptide</translation>
    </message>
    <message>
        <source>Theoretical peptides</source>
        <translation>Theoretische Peptide</translation>
    </message>
    <message>
        <source>%1: %2 residues</source>
        <translation>%1: %2 Reste</translation>
    </message>
    <message>
        <source>Proteins that are digested</source>
        <translation>Proteine, die verdaut werden</translation>
    </message>
    <message>
        <source>Check the proteins whose peptides are expected.</source>
        <translation>Kreuzen Sie die Proteine an, deren Peptide erwartet werden.</translation>
    </message>
    <message>
        <source>&amp;All Proteins</source>
        <translation>&amp;Alle Proteine</translation>
    </message>
    <message>
        <source>Checks every protein.</source>
        <translation>Kreuzt jedes Protein an.</translation>
    </message>
    <message>
        <source>digest</source>
        <translation>Verdau</translation>
    </message>
    <message>
        <source>There are more peptides than %1; choose fewer proteins or missed cleavages.</source>
        <translation>Es gibt mehr als %1 Peptide; wählen Sie weniger Proteine oder ausgelassene Schnitte.</translation>
    </message>
    <message>
        <source>Peptides of the digest: %1</source>
        <translation>Peptide des Verdaus: %1</translation>
    </message>
</context>
<context>
    <name>orv::IntactOptionsWidget</name>
    <message>
        <source>Deconvolution of intact proteins</source>
        <translation>Dekonvolution intakter Proteine</translation>
    </message>
</context>
<context>
    <name>orv::IsotopeTableWidget</name>
    <message>
        <source>There is no natural isotope &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>Es gibt kein natürliches Isotop „%1“ von „%2“.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the label is called; rows of one name belong together.</source>
        <translation>Wie die Markierung heißt; Zeilen eines Namens gehören zusammen.</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Symbol of the element, such as C.</source>
        <translation>Symbol des Elements, etwa C.</translation>
    </message>
    <message>
        <source>Mass number</source>
        <translation>Massenzahl</translation>
    </message>
    <message>
        <source>Protons and neutrons of the isotope, such as 13.</source>
        <translation>Protonen und Neutronen des Isotops, etwa 13.</translation>
    </message>
    <message>
        <source>Enrichment</source>
        <translation>Anreicherung</translation>
    </message>
    <message>
        <source>Share of the element&apos;s atoms in percent; empty for the natural abundance.</source>
        <translation>Anteil der Atome des Elements in Prozent; leer für die natürliche Häufigkeit.</translation>
    </message>
    <message>
        <source>Natural abundance</source>
        <translation>Natürliche Häufigkeit</translation>
    </message>
    <message>
        <source>Share of the element&apos;s atoms in nature, in percent.</source>
        <translation>Anteil der Atome des Elements in der Natur, in Prozent.</translation>
    </message>
    <message>
        <source>Isotopes</source>
        <translation>Isotope</translation>
    </message>
</context>
<context>
    <name>orv::MassTableWidget</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By which matches of this mass are told apart.</source>
        <translation>Womit Treffer dieser Masse unterschieden werden.</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Expected mass in Da, or a difference of masses, which may be negative.</source>
        <translation>Erwartete Masse in Da, oder ein Unterschied von Massen, der negativ sein darf.</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Protein</translation>
    </message>
    <message>
        <source>Name of the protein that the mass belongs to; empty for all.</source>
        <translation>Name des Proteins, zu dem die Masse gehört; leer für alle.</translation>
    </message>
    <message>
        <source>Window ±</source>
        <translation>Fenster ±</translation>
    </message>
    <message>
        <source>How far a match may lie from this mass, in Da. Follows from the match tolerance.</source>
        <translation>Wie weit ein Treffer von dieser Masse entfernt sein darf, in Da. Folgt aus der Toleranz der Treffer.</translation>
    </message>
    <message>
        <source>Masses</source>
        <translation>Massen</translation>
    </message>
    <message>
        <source>Match tolerance</source>
        <translation>Toleranz der Treffer</translation>
    </message>
    <message>
        <source>Largest difference between a measured and an expected mass, in Dalton or ppm.</source>
        <translation>Größter Unterschied zwischen gemessener und erwarteter Masse, in Dalton oder ppm.</translation>
    </message>
    <message>
        <source>Match &amp;tolerance:</source>
        <translation>&amp;Toleranz der Treffer:</translation>
    </message>
    <message>
        <source>Match tolerance: %1 %2</source>
        <translation>Toleranz der Treffer: %1 %2</translation>
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
    <name>orv::ModificationsDialog</name>
    <message>
        <source>The signs &quot;/&quot;, &quot;@&quot; and &quot;|&quot; part what a line holds.</source>
        <translation>Die Zeichen „/“, „@“ und „|“ trennen, was eine Zeile enthält.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>fixed: on each of the residues; common: on some; rare: on few.</source>
        <translation>fixed: an jedem der Reste; common: an einigen; rare: an wenigen.</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Largest number on one peptide; a fixed one has none.</source>
        <translation>Größte Zahl an einem Peptid; eine feste hat keine.</translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation>Mono. Masse</translation>
    </message>
    <message>
        <source>Da</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Monoisotopic mass in Da that follows from mass or formula.</source>
        <translation>Monoisotopische Masse in Da, die aus Masse oder Formel folgt.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By which results name the modification.</source>
        <translation>Womit Ergebnisse die Modifikation nennen.</translation>
    </message>
    <message>
        <source>Mass (Da) or formula</source>
        <translation>Masse (Da) oder Formel</translation>
    </message>
    <message>
        <source>What the modification adds: a mass in Da with its sign, or a formula such as C2H3NO.</source>
        <translation>Was die Modifikation hinzufügt: eine Masse in Da mit Vorzeichen, oder eine Formel wie C2H3NO.</translation>
    </message>
    <message>
        <source>Residues</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Letters of residues, NTerm or CTerm, with commas between.</source>
        <translation>Buchstaben von Resten, NTerm oder CTerm, mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Modifications</source>
        <translation>Modifikationen</translation>
    </message>
    <message>
        <source>Table and text</source>
        <translation>Tabelle und Text</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>Text of the modifications</source>
        <translation>Text der Modifikationen</translation>
    </message>
    <message>
        <source>One modification in a line: name / mass in Da @ residues | fixed, common1 or rare1. Lines that begin with % are comments.</source>
        <translation>Eine Modifikation in einer Zeile: Name / Masse in Da @ Reste | fixed, common1 oder rare1. Zeilen, die mit % beginnen, sind Kommentare.</translation>
    </message>
    <message>
        <source>Common modifications (%1)</source>
        <translation>Übliche Modifikationen (%1)</translation>
    </message>
    <message>
        <source>Common modifications</source>
        <translation>Übliche Modifikationen</translation>
    </message>
    <message>
        <source>&amp;Add to the Table</source>
        <translation>Zur T&amp;abelle hinzufügen</translation>
    </message>
    <message>
        <source>Adds the selected common modifications as common ones, once on a peptide.</source>
        <translation>Fügt die gewählten üblichen Modifikationen als „common“ hinzu, einmal an einem Peptid.</translation>
    </message>
    <message>
        <source>add common modifications</source>
        <translation>übliche Modifikationen hinzufügen</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may stand only once.</source>
        <translation>„%1“ darf nur einmal stehen.</translation>
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
    <name>orv::OligoMassTableWidget</name>
    <message>
        <source>Missing at the &amp;5&apos; end:</source>
        <translation>Fehlend am &amp;5&apos;-Ende:</translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that are missing at the 5&apos; end.</source>
        <translation>Höchstzahl der Nukleotide, die am 5&apos;-Ende fehlen.</translation>
    </message>
    <message>
        <source>Missing at the &amp;3&apos; end:</source>
        <translation>Fehlend am &amp;3&apos;-Ende:</translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that are missing at the 3&apos; end.</source>
        <translation>Höchstzahl der Nukleotide, die am 3&apos;-Ende fehlen.</translation>
    </message>
    <message>
        <source>&amp;Additions:</source>
        <translation>&amp;Zusätze:</translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that stand twice.</source>
        <translation>Höchstzahl der Nukleotide, die doppelt stehen.</translation>
    </message>
    <message>
        <source>&amp;Base losses:</source>
        <translation>&amp;Basenverluste:</translation>
    </message>
    <message>
        <source>Number of bases, at most, in whose place water was added.</source>
        <translation>Höchstzahl der Basen, an deren Platz Wasser getreten ist.</translation>
    </message>
    <message>
        <source>Masses of oligonucleotides</source>
        <translation>Massen von Oligonukleotiden</translation>
    </message>
    <message>
        <source>Tolerances</source>
        <translation>Toleranzen</translation>
    </message>
    <message>
        <source>Impurities</source>
        <translation>Verunreinigungen</translation>
    </message>
    <message>
        <source>&amp;Sulfur loss</source>
        <translation>&amp;Schwefelverlust</translation>
    </message>
    <message>
        <source>A phosphodiester stands in the place of a phosphorothioate.</source>
        <translation>Ein Phosphodiester steht anstelle eines Phosphorothioats.</translation>
    </message>
    <message>
        <source>Sulfur loss: yes</source>
        <translation>Schwefelverlust: ja</translation>
    </message>
    <message>
        <source>Sulfur loss: no</source>
        <translation>Schwefelverlust: nein</translation>
    </message>
</context>
<context>
    <name>orv::OligoOptionsWidget</name>
    <message>
        <source>Deconvolution of oligonucleotides</source>
        <translation>Dekonvolution von Oligonukleotiden</translation>
    </message>
</context>
<context>
    <name>orv::OptionsWidgetBase</name>
    <message>
        <source>Lowest m/z</source>
        <translation>Kleinstes m/z</translation>
    </message>
    <message>
        <source>Peaks below this m/z are left out.</source>
        <translation>Peaks unter diesem m/z werden weggelassen.</translation>
    </message>
    <message>
        <source>Highest m/z</source>
        <translation>Größtes m/z</translation>
    </message>
    <message>
        <source>Peaks above this m/z are left out.</source>
        <translation>Peaks über diesem m/z werden weggelassen.</translation>
    </message>
    <message>
        <source>Lowest mass</source>
        <translation>Kleinste Masse</translation>
    </message>
    <message>
        <source>The lightest neutral mass that is looked for.</source>
        <translation>Die leichteste neutrale Masse, die gesucht wird.</translation>
    </message>
    <message>
        <source>Highest mass</source>
        <translation>Größte Masse</translation>
    </message>
    <message>
        <source>The heaviest neutral mass that is looked for.</source>
        <translation>Die schwerste neutrale Masse, die gesucht wird.</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>Kleinste Ladung</translation>
    </message>
    <message>
        <source>The fewest charges that a molecule carries.</source>
        <translation>Die wenigsten Ladungen, die ein Molekül trägt.</translation>
    </message>
    <message>
        <source>Highest charge</source>
        <translation>Größte Ladung</translation>
    </message>
    <message>
        <source>The most charges that a molecule carries.</source>
        <translation>Die meisten Ladungen, die ein Molekül trägt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no chemical formula. Enter one such as H or Na.</source>
        <translation>„%1“ ist keine chemische Formel. Geben Sie eine wie H oder Na ein.</translation>
    </message>
    <message>
        <source>The options can&apos;t be shown, and stay as they are: %1</source>
        <translation>Die Einstellungen können nicht gezeigt werden und bleiben, wie sie sind: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What these options are for, such as &quot;Denatured&quot;.</source>
        <translation>Wofür diese Einstellungen gelten, etwa „Denaturiert“.</translation>
    </message>
    <message>
        <source>Adduct</source>
        <translation>Addukt</translation>
    </message>
    <message>
        <source>The formula of what carries one charge.</source>
        <translation>Die Formel dessen, was eine Ladung trägt.</translation>
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
    <message>
        <source>This is no value that can be taken: type %1.</source>
        <translation>Dieser Wert kann nicht übernommen werden: Geben Sie ein: %1.</translation>
    </message>
</context>
<context>
    <name>orv::PeakFilterDialog</name>
    <message>
        <source>Diagnostic Peaks</source>
        <translation>Diagnostische Peaks</translation>
    </message>
    <message>
        <source>Diagnostic peaks</source>
        <translation>Diagnostische Peaks</translation>
    </message>
    <message>
        <source>Add Oxonium &amp;Ions</source>
        <translation>Oxonium-&amp;Ionen hinzufügen</translation>
    </message>
    <message>
        <source>Adds the common oxonium ions of glycopeptides that the list lacks</source>
        <translation>Fügt die üblichen Oxonium-Ionen von Glykopeptiden hinzu, die der Liste fehlen</translation>
    </message>
    <message>
        <source>add oxonium ions</source>
        <translation>Oxonium-Ionen hinzufügen</translation>
    </message>
    <message>
        <source>Peaks added: %1.</source>
        <translation>Hinzugefügte Peaks: %1.</translation>
    </message>
</context>
<context>
    <name>orv::ProgressWindow</name>
    <message numerus="yes">
        <source>about %n s left</source>
        <translation>
            <numerusform>noch etwa %n s</numerusform>
            <numerusform>noch etwa %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n min left</source>
        <translation>
            <numerusform>noch etwa %n min</numerusform>
            <numerusform>noch etwa %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
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
    <message>
        <source>The workflow was saved, but some files that it names weren&apos;t copied, and aren&apos;t found from its folder. Copy them to where they are named:
%1</source>
        <translation>Der Workflow wurde gespeichert, aber einige Dateien, die er nennt, wurden nicht kopiert und werden von seinem Ordner aus nicht gefunden. Kopieren Sie sie dorthin, wo sie genannt sind:
%1</translation>
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
    <message>
        <source>This application can&apos;t show every column of the tab. As it is, the workflow can&apos;t be saved: undo this, or remove the tab.</source>
        <translation>Diese Anwendung kann nicht jede Spalte des Tabs zeigen. So kann der Workflow nicht gespeichert werden: Nehmen Sie dies zurück, oder entfernen Sie den Tab.</translation>
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
    <name>orv::ProteinAnnotationWidget</name>
    <message>
        <source>(ends before it begins)</source>
        <translation>(endet, bevor er beginnt)</translation>
    </message>
    <message>
        <source>(the protein ends at %1)</source>
        <translation>(das Protein endet bei %1)</translation>
    </message>
    <message>
        <source>There is no protein &quot;%1&quot;.</source>
        <translation>Es gibt kein Protein „%1“.</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Protein</translation>
    </message>
    <message>
        <source>Accession of the protein.</source>
        <translation>Zugangsnummer des Proteins.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the stretch is called, such as CDR-H3.</source>
        <translation>Wie der Abschnitt heißt, etwa CDR-H3.</translation>
    </message>
    <message>
        <source>First residue</source>
        <translation>Erster Rest</translation>
    </message>
    <message>
        <source>Counted from 1.</source>
        <translation>Von 1 an gezählt.</translation>
    </message>
    <message>
        <source>Last residue</source>
        <translation>Letzter Rest</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>In which the stretch is drawn; empty for the usual one.</source>
        <translation>In der der Abschnitt gezeichnet wird; leer für die übliche.</translation>
    </message>
    <message>
        <source>Residues</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>The stretch itself. Follows from the sequence of the protein.</source>
        <translation>Der Abschnitt selbst. Folgt aus der Sequenz des Proteins.</translation>
    </message>
    <message>
        <source>Annotations of proteins</source>
        <translation>Annotationen von Proteinen</translation>
    </message>
    <message>
        <source>Annotations of oligonucleotides</source>
        <translation>Annotationen von Oligonukleotiden</translation>
    </message>
</context>
<context>
    <name>orv::ProteinInputWidgetBase</name>
    <message>
        <source>Source of the proteins</source>
        <translation>Quelle der Proteine</translation>
    </message>
    <message>
        <source>Whether the proteins are typed here or come with an import of samples and proteins.</source>
        <translation>Ob die Proteine hier eingegeben werden oder mit einem Import von Proben und Proteinen kommen.</translation>
    </message>
    <message>
        <source>typed here</source>
        <translation>hier eingegeben</translation>
    </message>
    <message>
        <source>from a CSV file with samples</source>
        <translation>aus einer CSV-Datei mit Proben</translation>
    </message>
    <message>
        <source>P&amp;roteins:</source>
        <translation>P&amp;roteine:</translation>
    </message>
    <message>
        <source>Chains</source>
        <translation>Ketten</translation>
    </message>
    <message>
        <source>Proteins</source>
        <translation>Proteine</translation>
    </message>
    <message>
        <source>Building blocks</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Chains, proteins and building blocks</source>
        <translation>Ketten, Proteine und Bausteine</translation>
    </message>
    <message>
        <source>&amp;Chains</source>
        <translation>&amp;Ketten</translation>
    </message>
    <message>
        <source>&amp;Built proteins</source>
        <translation>Zusammen&amp;gesetzte Proteine</translation>
    </message>
    <message>
        <source>B&amp;uilding blocks</source>
        <translation>Ba&amp;usteine</translation>
    </message>
</context>
<context>
    <name>orv::ProteinTableWidget</name>
    <message>
        <source>Accession</source>
        <translation>Zugangsnummer</translation>
    </message>
    <message>
        <source>By which annotations and disulfide bonds name the protein.</source>
        <translation>Womit Annotationen und Disulfidbrücken das Protein nennen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the protein is called, for people.</source>
        <translation>Wie das Protein heißt, für Menschen.</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>One-letter code, without blanks.</source>
        <translation>Ein-Buchstaben-Code, ohne Leerzeichen.</translation>
    </message>
    <message>
        <source>Proteins</source>
        <translation>Proteine</translation>
    </message>
    <message>
        <source>Peptides of the digest</source>
        <translation>Peptide des Verdaus</translation>
    </message>
    <message>
        <source>Sequence and peptides</source>
        <translation>Sequenz und Peptide</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>&amp;Sequenz</translation>
    </message>
    <message>
        <source>&amp;Peptides</source>
        <translation>&amp;Peptide</translation>
    </message>
    <message>
        <source>Or paste or drop sequences as FASTA.</source>
        <translation>Oder fügen Sie Sequenzen als FASTA ein, oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>monoisotopic %1 Da</source>
        <translation>monoisotopisch %1 Da</translation>
    </message>
    <message>
        <source>average %1 Da</source>
        <translation>im Mittel %1 Da</translation>
    </message>
    <message>
        <source>letters without mass: %1</source>
        <translation>Buchstaben ohne Masse: %1</translation>
    </message>
</context>
<context>
    <name>orv::ProteinTreeTable</name>
    <message>
        <source>Protein or peptide</source>
        <translation>Protein oder Peptid</translation>
    </message>
    <message>
        <source>Residues</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Missed cleavages</source>
        <translation>Ausgelassene Schnitte</translation>
    </message>
    <message>
        <source>Mono. mass (Da)</source>
        <translation>Mono. Masse (Da)</translation>
    </message>
    <message>
        <source>Average mass (Da)</source>
        <translation>Mittlere Masse (Da)</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation>%1–%2</translation>
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
        <source>These workflows were not saved when their windows closed or the program ended. Nothing was written to their files.</source>
        <translation>Diese Workflows waren nicht gespeichert, als ihre Fenster geschlossen wurden oder das Programm endete. In ihre Dateien wurde nichts geschrieben.</translation>
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
    <message>
        <source>These workflows were open when the program ended. They have no unsaved changes.</source>
        <translation>Diese Workflows waren offen, als das Programm endete. Sie haben keine ungespeicherten Änderungen.</translation>
    </message>
    <message>
        <source>These workflows were not saved, or were open, when the program ended. Nothing was written to their files.</source>
        <translation>Diese Workflows waren nicht gespeichert oder noch offen, als das Programm endete. In ihre Dateien wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Workflows that can be opened as they were. Enter recovers those that are chosen.</source>
        <translation>Workflows, die geöffnet werden können, wie sie waren. Die Eingabetaste stellt die gewählten wieder her.</translation>
    </message>
    <message>
        <source>In what the unsaved workflow differs from its file</source>
        <translation>Worin sich der ungespeicherte Workflow von seiner Datei unterscheidet</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>Keine ungespeicherten Änderungen</translation>
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
    <name>orv::SameSetting</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 zu %2</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1: %2 zu %3</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 in %2 columns</source>
        <translation>%1 in %2 Spalten</translation>
    </message>
    <message>
        <source>Applied to 1 column.</source>
        <translation>Auf 1 Spalte angewendet.</translation>
    </message>
    <message>
        <source>Applied to %1 columns.</source>
        <translation>Auf %1 Spalten angewendet.</translation>
    </message>
    <message>
        <source>Not applied to %1</source>
        <translation>Nicht angewendet auf %1</translation>
    </message>
    <message>
        <source>The value doesn&apos;t fit here.</source>
        <translation>Der Wert passt hier nicht.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>This window is read only: nothing can be applied.</source>
        <translation>Dieses Fenster ist nur zum Lesen: Nichts kann angewendet werden.</translation>
    </message>
    <message>
        <source>Setting in &amp;Other Columns</source>
        <translation>Einstellung in anderen Spa&amp;lten</translation>
    </message>
</context>
<context>
    <name>orv::SameSettingModel</name>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Tab and column. Checked ones get the value when it is applied.</source>
        <translation>Reiter und Spalte. Angekreuzte bekommen den Wert beim Anwenden.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The value with its unit</source>
        <translation>Der Wert mit seiner Einheit</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>How the value relates to the one that is applied, and what is against it</source>
        <translation>Wie der Wert zu dem steht, der angewendet wird, und was dagegen spricht</translation>
    </message>
    <message>
        <source>This value is applied</source>
        <translation>Dieser Wert wird angewendet</translation>
    </message>
    <message>
        <source>Has this value</source>
        <translation>Hat diesen Wert</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>orv::SameSettingPanel</name>
    <message>
        <source>&amp;All columns</source>
        <translation>Alle S&amp;palten</translation>
    </message>
    <message>
        <source>Check every column that can get the value</source>
        <translation>Kreuzt jede Spalte an, die den Wert bekommen kann</translation>
    </message>
    <message>
        <source>Columns with this setting</source>
        <translation>Spalten mit dieser Einstellung</translation>
    </message>
    <message>
        <source>Ap&amp;ply to 1 Column</source>
        <translation>Auf 1 Spalte anwend&amp;en</translation>
    </message>
    <message>
        <source>Ap&amp;ply to %1 Columns</source>
        <translation>Auf %1 Spalten anwend&amp;en</translation>
    </message>
    <message>
        <source>Ap&amp;ply</source>
        <translation>Anwend&amp;en</translation>
    </message>
    <message>
        <source>Check columns that have another value first.</source>
        <translation>Kreuzen Sie zuerst Spalten an, die einen anderen Wert haben.</translation>
    </message>
    <message>
        <source>Choose a setting in a column: here are all columns that have it.</source>
        <translation>Wählen Sie eine Einstellung in einer Spalte: Hier stehen alle Spalten, die sie haben.</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: the columns differ</source>
        <translation>%1: Die Spalten sind verschieden</translation>
    </message>
    <message>
        <source>No other column has this setting.</source>
        <translation>Keine andere Spalte hat diese Einstellung.</translation>
    </message>
    <message>
        <source>All columns with this setting have this value.</source>
        <translation>Alle Spalten mit dieser Einstellung haben diesen Wert.</translation>
    </message>
</context>
<context>
    <name>orv::SampleFileChecker</name>
    <message>
        <source>not checked: the folder of the document is not known</source>
        <translation>nicht geprüft: der Ordner des Dokuments ist nicht bekannt</translation>
    </message>
    <message>
        <source>not checked: on a server</source>
        <translation>nicht geprüft: auf einem Server</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
</context>
<context>
    <name>orv::SamplesAndTracesInputWidget</name>
    <message>
        <source>There were too many files or folders to look into all.</source>
        <translation>Es waren zu viele Dateien oder Ordner, um in alle zu sehen.</translation>
    </message>
    <message>
        <source>Traces and peak options</source>
        <translation>Spuren und Peak-Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Only traces of the selected samples</source>
        <translation>&amp;Nur Spuren der gewählten Proben</translation>
    </message>
    <message>
        <source>Hides traces that none of the samples selected above uses</source>
        <translation>Verbirgt Spuren, die keine der oben gewählten Proben benutzt</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Da&amp;teien hinzufügen...</translation>
    </message>
    <message>
        <source>Add files as samples</source>
        <translation>Fügt Dateien als Proben hinzu</translation>
    </message>
    <message>
        <source>Add Fol&amp;der...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Add a folder of a vendor as one sample, or all samples that a folder holds</source>
        <translation>Fügt den Ordner eines Herstellers als eine Probe hinzu, oder alle Proben, die ein Ordner enthält</translation>
    </message>
    <message>
        <source>&amp;Name by Files</source>
        <translation>Nach Dateien ben&amp;ennen</translation>
    </message>
    <message>
        <source>Give samples without a name that of their file</source>
        <translation>Gibt Proben ohne Namen den ihrer Datei</translation>
    </message>
    <message>
        <source>&amp;Check Files</source>
        <translation>Dateien &amp;prüfen</translation>
    </message>
    <message>
        <source>Look again whether the files are there</source>
        <translation>Sieht noch einmal nach, ob die Dateien da sind</translation>
    </message>
    <message>
        <source>Colu&amp;mns</source>
        <translation>Spa&amp;lten</translation>
    </message>
    <message>
        <source>Add or remove columns of your own, such as &quot;Condition&quot;</source>
        <translation>Eigene Spalten hinzufügen oder entfernen, etwa „Bedingung“</translation>
    </message>
    <message>
        <source>T&amp;races</source>
        <translation>Sp&amp;uren</translation>
    </message>
    <message>
        <source>Show the traces of the samples, and how peaks are found in them</source>
        <translation>Zeigt die Spuren der Proben, und wie in ihnen Peaks gefunden werden</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>There are no samples yet.
Drop files or folders here, add them with &quot;Add Files&quot;, or paste rows from a spreadsheet.</source>
        <translation>Noch gibt es keine Proben.
Ziehen Sie Dateien oder Ordner hierher, fügen Sie sie mit „Dateien hinzufügen“ hinzu, oder fügen Sie Zeilen einer Tabellenkalkulation ein.</translation>
    </message>
    <message>
        <source>&amp;Add Column...</source>
        <translation>Sp&amp;alte hinzufügen...</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot;</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Peak options</source>
        <translation>Peak-Einstellungen</translation>
    </message>
    <message>
        <source>No traces are chosen yet. Add a row for each trace.</source>
        <translation>Noch sind keine Spuren gewählt. Fügen Sie für jede eine Zeile hinzu.</translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation>&amp;Spuren</translation>
    </message>
    <message>
        <source>&amp;Peak Options</source>
        <translation>Pea&amp;k-Einstellungen</translation>
    </message>
    <message>
        <source>The samples can&apos;t be shown, and stay as they are: %1 %2</source>
        <translation>Die Proben können nicht gezeigt werden und bleiben, wie sie sind: %1 %2</translation>
    </message>
    <message>
        <source>Looking for samples...</source>
        <translation>Proben werden gesucht...</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; added.</source>
        <translation>Spalte „%1“ hinzugefügt.</translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation>Spalte entfernen</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds values, which can&apos;t be brought back. Remove it?</source>
        <translation>Die Spalte „%1“ enthält Werte, die sich nicht zurückholen lassen. Soll sie entfernt werden?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; removed.</source>
        <translation>Spalte „%1“ entfernt.</translation>
    </message>
    <message>
        <source>All samples with a file have names already.</source>
        <translation>Alle Proben mit einer Datei haben schon Namen.</translation>
    </message>
    <message>
        <source>No samples were added. %1</source>
        <translation>Es wurden keine Proben hinzugefügt. %1</translation>
    </message>
    <message>
        <source>Samples named: %1.</source>
        <translation>Benannte Proben: %1.</translation>
    </message>
</context>
<context>
    <name>orv::SamplesAndTracesTables</name>
    <message>
        <source>%1, row %2, %3: %4</source>
        <translation>%1, Zeile %2, %3: %4</translation>
    </message>
    <message>
        <source>The samples can&apos;t be read.</source>
        <translation>Die Proben können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Nothing can be changed while they stay as they are.</source>
        <translation>Solange sie bleiben, wie sie sind, kann nichts geändert werden.</translation>
    </message>
    <message>
        <source>add samples</source>
        <translation>Proben hinzufügen</translation>
    </message>
    <message>
        <source>name samples</source>
        <translation>Proben benennen</translation>
    </message>
    <message>
        <source>A column can&apos;t be called &quot;%1&quot;.</source>
        <translation>Eine Spalte kann nicht „%1“ heißen.</translation>
    </message>
    <message>
        <source>Enter a name that no other column has.</source>
        <translation>Geben Sie einen Namen ein, den keine andere Spalte hat.</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Peak options</source>
        <translation>Peak-Einstellungen</translation>
    </message>
    <message>
        <source>no sample %1</source>
        <translation>keine Probe %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Cells of the samples that hold what isn&apos;t allowed there: %1.</source>
        <translation>Zellen der Proben mit unzulässigem Inhalt: %1.</translation>
    </message>
</context>
<context>
    <name>orv::ScientificTableWidget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>Row %1. %2</source>
        <translation>Zeile %1. %2</translation>
    </message>
    <message>
        <source>No rows.</source>
        <translation>Keine Zeilen.</translation>
    </message>
</context>
<context>
    <name>orv::SequenceDatabasesWidget</name>
    <message>
        <source>Sequence databases</source>
        <translation>Sequenzdatenbanken</translation>
    </message>
    <message>
        <source>There are no sequence databases yet.
Drop FASTA files here, or add a row and choose a file.</source>
        <translation>Noch gibt es keine Sequenzdatenbanken.
Ziehen Sie FASTA-Dateien hierher, oder fügen Sie eine Zeile hinzu und wählen Sie eine Datei.</translation>
    </message>
</context>
<context>
    <name>orv::SequenceView</name>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>Underlined: the enzyme cuts behind the residue. Waves: the letter has no mass. Coloured: the residue belongs to an annotation.</source>
        <translation>Unterstrichen: Das Enzym schneidet hinter dem Rest. Wellen: Der Buchstabe hat keine Masse. Farbig: Der Rest gehört zu einer Annotation.</translation>
    </message>
    <message>
        <source>Select a row to see its sequence.</source>
        <translation>Wählen Sie eine Zeile, um ihre Sequenz zu sehen.</translation>
    </message>
</context>
<context>
    <name>orv::SettingClipboard</name>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Caption, value and unit of the selected settings, a line for each</source>
        <translation>Beschriftung, Wert und Einheit der gewählten Einstellungen, je eine Zeile</translation>
    </message>
    <message>
        <source>&amp;JSON</source>
        <translation>&amp;JSON</translation>
    </message>
    <message>
        <source>The selected settings as files hold them</source>
        <translation>Die gewählten Einstellungen, wie Dateien sie enthalten</translation>
    </message>
    <message>
        <source>Command &amp;Line</source>
        <translation>&amp;Befehlszeile</translation>
    </message>
    <message>
        <source>A command that gives the column in the file the selected settings</source>
        <translation>Ein Befehl, der der Spalte in der Datei die gewählten Einstellungen gibt</translation>
    </message>
    <message>
        <source>Settings that were not pasted</source>
        <translation>Einstellungen, die nicht eingefügt wurden</translation>
    </message>
    <message>
        <source>Everything that was pasted last fitted.</source>
        <translation>Alles, was zuletzt eingefügt wurde, passte.</translation>
    </message>
    <message>
        <source>&amp;Copy Settings As</source>
        <translation>Einstellungen &amp;kopieren als</translation>
    </message>
    <message>
        <source>&amp;Paste Settings</source>
        <translation>Einstellungen &amp;einfügen</translation>
    </message>
    <message>
        <source>Give the column the settings that were copied as text, JSON or command line</source>
        <translation>Gibt der Spalte die Einstellungen, die als Text, JSON oder Befehlszeile kopiert wurden</translation>
    </message>
    <message>
        <source>Leave the value that is being edited first.</source>
        <translation>Verlassen Sie zuerst den Wert, der bearbeitet wird.</translation>
    </message>
    <message>
        <source>Go to a column of settings first.</source>
        <translation>Gehen Sie zuerst in eine Spalte mit Einstellungen.</translation>
    </message>
    <message>
        <source>No command line holds these settings: %1</source>
        <translation>Keine Befehlszeile fasst diese Einstellungen: %1</translation>
    </message>
    <message>
        <source>1 setting copied.</source>
        <translation>1 Einstellung kopiert.</translation>
    </message>
    <message>
        <source>%1 settings copied.</source>
        <translation>%1 Einstellungen kopiert.</translation>
    </message>
    <message>
        <source>%1 No command line holds: %2</source>
        <translation>%1 Keine Befehlszeile fasst: %2</translation>
    </message>
    <message>
        <source>WORKFLOW.wflw</source>
        <translation>WORKFLOW.wflw</translation>
    </message>
    <message>
        <source>Nothing was pasted: the clipboard holds no text.</source>
        <translation>Nichts wurde eingefügt: Die Zwischenablage enthält keinen Text.</translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation>Nichts wurde eingefügt. %1</translation>
    </message>
    <message>
        <source>Nothing was pasted: the column has none of the settings that the clipboard tells of.</source>
        <translation>Nichts wurde eingefügt: Die Spalte hat keine der Einstellungen, von denen die Zwischenablage spricht.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing was pasted.</source>
        <translation>Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>%1 Not pasted: %2</source>
        <translation>%1 Nicht eingefügt: %2</translation>
    </message>
    <message>
        <source>%1 Not pasted: %2 settings, see below.</source>
        <translation>%1 Nicht eingefügt: %2 Einstellungen, siehe unten.</translation>
    </message>
    <message>
        <source>This window is read only: nothing can be pasted.</source>
        <translation>Dieses Fenster ist nur zum Lesen: Nichts kann eingefügt werden.</translation>
    </message>
    <message>
        <source>Paste 1 setting into %1</source>
        <translation>1 Einstellung in %1 einfügen</translation>
    </message>
    <message>
        <source>Paste %1 settings into %2</source>
        <translation>%1 Einstellungen in %2 einfügen</translation>
    </message>
    <message>
        <source>1 setting pasted into %1.</source>
        <translation>1 Einstellung in %1 eingefügt.</translation>
    </message>
    <message>
        <source>%1 settings pasted into %2.</source>
        <translation>%1 Einstellungen in %2 eingefügt.</translation>
    </message>
    <message>
        <source>1 setting of %1 had its value already.</source>
        <translation>1 Einstellung von %1 hatte ihren Wert schon.</translation>
    </message>
    <message>
        <source>%1 settings of %2 had their values already.</source>
        <translation>%1 Einstellungen von %2 hatten ihre Werte schon.</translation>
    </message>
    <message>
        <source>Settings Not &amp;Pasted</source>
        <translation>N&amp;icht eingefügte Einstellungen</translation>
    </message>
</context>
<context>
    <name>orv::StatusLine</name>
    <message>
        <source>No version</source>
        <translation>Keine Version</translation>
    </message>
    <message>
        <source>Format %1</source>
        <translation>Format %1</translation>
    </message>
    <message>
        <source>The format of this application. It is written by a save.</source>
        <translation>Das Format dieser Anwendung. Es wird beim Speichern geschrieben.</translation>
    </message>
    <message>
        <source>Newer than this application, which knows format %1.</source>
        <translation>Neuer als diese Anwendung, die Format %1 kennt.</translation>
    </message>
    <message>
        <source>A save writes format %1.</source>
        <translation>Beim Speichern wird Format %1 geschrieben.</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft...</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>No findings</source>
        <translation>Keine Befunde</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Befunde: %1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Not in a file yet</source>
        <translation>Noch in keiner Datei</translation>
    </message>
    <message>
        <source>Save the workflow to give it a file.</source>
        <translation>Speichern Sie den Workflow, um ihm eine Datei zu geben.</translation>
    </message>
</context>
<context>
    <name>orv::TableCommands</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Rows copied: %1</source>
        <translation>Zeilen kopiert: %1</translation>
    </message>
    <message>
        <source>cut cells</source>
        <translation>Zellen ausschneiden</translation>
    </message>
    <message>
        <source>clear cells</source>
        <translation>Zellen leeren</translation>
    </message>
    <message>
        <source>Rows pasted: %1.</source>
        <translation>Zeilen eingefügt: %1.</translation>
    </message>
    <message>
        <source>There are no cells to paste.</source>
        <translation>Es gibt keine Zellen zum Einfügen.</translation>
    </message>
    <message>
        <source>Columns left out, as there is no room: %1.</source>
        <translation>Spalten weggelassen, da kein Platz ist: %1.</translation>
    </message>
    <message>
        <source>Cells left, as they can&apos;t be changed: %1.</source>
        <translation>Zellen belassen, da sie sich nicht ändern lassen: %1.</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>fill down</source>
        <translation>nach unten ausfüllen</translation>
    </message>
    <message>
        <source>Rows removed: %1. Undo brings them back.</source>
        <translation>Zeilen entfernt: %1. Rückgängig bringt sie zurück.</translation>
    </message>
    <message>
        <source>Rows can be moved when all are shown in their own order: clear the filter and the sorting first.</source>
        <translation>Zeilen lassen sich verschieben, wenn alle in ihrer eigenen Reihenfolge gezeigt werden: Heben Sie zuerst Filter und Sortierung auf.</translation>
    </message>
    <message>
        <source>Sorted by &quot;%1&quot;, ascending.</source>
        <translation>Nach „%1“ aufsteigend sortiert.</translation>
    </message>
    <message>
        <source>Sorted by &quot;%1&quot;, descending.</source>
        <translation>Nach „%1“ absteigend sortiert.</translation>
    </message>
    <message>
        <source>All shown cells are in order.</source>
        <translation>Alle gezeigten Zellen sind in Ordnung.</translation>
    </message>
    <message>
        <source>%1, row %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>One column has to stay.</source>
        <translation>Eine Spalte muss bleiben.</translation>
    </message>
</context>
<context>
    <name>orv::TableEditor</name>
    <message>
        <source>Filter rows</source>
        <translation>Zeilen filtern</translation>
    </message>
    <message>
        <source>Shows only rows that hold all of these words</source>
        <translation>Zeigt nur Zeilen, die alle diese Wörter enthalten</translation>
    </message>
    <message>
        <source>Show only rows with a cell that isn&apos;t allowed or with a finding</source>
        <translation>Nur Zeilen mit einer Zelle zeigen, die nicht erlaubt ist, oder mit einem Befund</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>Zeilen: %1 von %2</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>Import a Text File</source>
        <translation>Textdatei importieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>import</source>
        <translation>importieren</translation>
    </message>
    <message>
        <source>Rows imported: %1</source>
        <translation>Zeilen importiert: %1</translation>
    </message>
    <message>
        <source>Rows imported from %1: %2</source>
        <translation>Zeilen importiert aus %1: %2</translation>
    </message>
    <message>
        <source>Export the Table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Rows written to %1: %2</source>
        <translation>Zeilen geschrieben in %1: %2</translation>
    </message>
</context>
<context>
    <name>orv::TableImportDialog</name>
    <message>
        <source>Import %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Trennzeichen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Vertical bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>&amp;Quotes</source>
        <translation>&amp;Anführungszeichen</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>&amp;Dezimalzeichen</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>&amp;Kodierung</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>UTF-16</source>
        <translation>UTF-16</translation>
    </message>
    <message>
        <source>UTF-16, big endian</source>
        <translation>UTF-16, Big-Endian</translation>
    </message>
    <message>
        <source>Western (Windows 1252)</source>
        <translation>Westlich (Windows 1252)</translation>
    </message>
    <message>
        <source>The first row names the &amp;columns</source>
        <translation>Die erste Zeile nennt die &amp;Spalten</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>&amp;Take rows with problems too, and mark their cells</source>
        <translation>&amp;Auch Zeilen mit Problemen nehmen und ihre Zellen markieren</translation>
    </message>
    <message>
        <source>%1 goes to</source>
        <translation>%1 kommt nach</translation>
    </message>
    <message>
        <source>(left out)</source>
        <translation>(weggelassen)</translation>
    </message>
    <message>
        <source>The file can&apos;t be read to its end: %1</source>
        <translation>Die Datei kann nicht bis zum Ende gelesen werden: %1</translation>
    </message>
    <message>
        <source>Rows with problems: %1.</source>
        <translation>Zeilen mit Problemen: %1.</translation>
    </message>
    <message>
        <source>The first %1 of %2 problems are listed.</source>
        <translation>Die ersten %1 von %2 Problemen stehen in der Liste.</translation>
    </message>
    <message>
        <source>Import Rows (%1)</source>
        <translation>Zeilen importieren (%1)</translation>
    </message>
</context>
<context>
    <name>orv::TableSheet</name>
    <message>
        <source>change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>add rows</source>
        <translation>Zeilen hinzufügen</translation>
    </message>
    <message>
        <source>duplicate rows</source>
        <translation>Zeilen verdoppeln</translation>
    </message>
    <message>
        <source>remove rows</source>
        <translation>Zeilen entfernen</translation>
    </message>
    <message>
        <source>move rows</source>
        <translation>Zeilen verschieben</translation>
    </message>
    <message>
        <source>order the rows</source>
        <translation>Zeilen ordnen</translation>
    </message>
</context>
<context>
    <name>orv::TableView</name>
    <message>
        <source>There are no rows yet.
Paste cells from a spreadsheet (Ctrl+V), drop or import a file, or add a row (Insert).</source>
        <translation>Noch gibt es keine Zeilen.
Fügen Sie Zellen einer Tabellenkalkulation ein (Strg+V), ziehen oder importieren Sie eine Datei, oder fügen Sie eine Zeile hinzu (Einfg).</translation>
    </message>
    <message>
        <source>No row matches the filter.</source>
        <translation>Keine Zeile passt zum Filter.</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
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
    <name>orv::TargetProjectPathChooserDialog</name>
    <message>
        <source>Save Projects</source>
        <translation>Projekte speichern</translation>
    </message>
    <message>
        <source>&amp;Folder for the projects:</source>
        <translation>&amp;Ordner für die Projekte:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Where a project of that name exists:</source>
        <translation>Wo es ein Projekt dieses Namens gibt:</translation>
    </message>
    <message>
        <source>&amp;Keep both, with a number in the new name</source>
        <translation>&amp;Beide behalten, mit einer Nummer im neuen Namen</translation>
    </message>
    <message>
        <source>&amp;Overwrite it</source>
        <translation>Es ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>Leave the &amp;new one out</source>
        <translation>Das &amp;neue weglassen</translation>
    </message>
    <message>
        <source>Folder for the Projects</source>
        <translation>Ordner für die Projekte</translation>
    </message>
    <message>
        <source>Name a folder.</source>
        <translation>Nennen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>In diesen Ordner kann nichts geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>orv::TemplateEditor</name>
    <message>
        <source>Label Script</source>
        <translation>Beschriftungsskript</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>The script that labels a plot</source>
        <translation>Das Skript, das ein Diagramm beschriftet</translation>
    </message>
    <message>
        <source>Type a script, or load one from a file.</source>
        <translation>Geben Sie ein Skript ein, oder laden Sie eines aus einer Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no text in UTF-8.</source>
        <translation>Die Datei „%1“ ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
</context>
<context>
    <name>orv::TextTablesDialog</name>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>and further problems: %1</source>
        <translation>und weitere Probleme: %1</translation>
    </message>
    <message>
        <source>Lines too long to be laid out end with &quot;…&quot; here, and nothing can be typed. All of the text is kept; change it in the table.</source>
        <translation>Zeilen, die zu lang sind, enden hier mit „…“, und nichts kann eingegeben werden. Aller Text bleibt erhalten; ändern Sie ihn in der Tabelle.</translation>
    </message>
</context>
<context>
    <name>orv::TolerancesWidget</name>
    <message>
        <source>Tolerance of the full length product</source>
        <translation>Toleranz des Produkts voller Länge</translation>
    </message>
    <message>
        <source>Largest difference between a measured mass and that of the full length product, in Dalton or ppm.</source>
        <translation>Größter Unterschied zwischen einer gemessenen Masse und der des Produkts voller Länge, in Dalton oder ppm.</translation>
    </message>
    <message>
        <source>Tolerance of impurities</source>
        <translation>Toleranz der Verunreinigungen</translation>
    </message>
    <message>
        <source>Largest difference between a measured mass and that of an impurity, in Dalton or ppm.</source>
        <translation>Größter Unterschied zwischen einer gemessenen Masse und der einer Verunreinigung, in Dalton oder ppm.</translation>
    </message>
    <message>
        <source>&amp;Full length product:</source>
        <translation>&amp;Produkt voller Länge:</translation>
    </message>
    <message>
        <source>&amp;Impurities:</source>
        <translation>&amp;Verunreinigungen:</translation>
    </message>
    <message>
        <source>Mass tolerances</source>
        <translation>Massentoleranzen</translation>
    </message>
    <message>
        <source>Full length product: %1 %2</source>
        <translation>Produkt voller Länge: %1 %2</translation>
    </message>
    <message>
        <source>Impurities: %1 %2</source>
        <translation>Verunreinigungen: %1 %2</translation>
    </message>
</context>
<context>
    <name>orv::UnitField</name>
    <message>
        <source>Unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>Unit of: %1</source>
        <translation>Einheit von: %1</translation>
    </message>
</context>
<context>
    <name>orv::UpgradeModel</name>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>umbenannt</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>verschoben</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>%1, changes: %2</source>
        <translation>%1, Änderungen: %2</translation>
    </message>
</context>
<context>
    <name>orv::UpgradeView</name>
    <message>
        <source>Steps of the upgrade</source>
        <translation>Schritte der Aktualisierung</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>What each step of the upgrade changed: the place, and the value before and after</source>
        <translation>Was jeder Schritt der Aktualisierung geändert hat: die Stelle und den Wert vorher und nachher</translation>
    </message>
</context>
<context>
    <name>orv::Upgrades</name>
    <message>
        <source>What the upgrade from %1 to %2 changes; nothing is written before you save:</source>
        <translation>Was die Aktualisierung von %1 auf %2 ändert; vor dem Speichern wird nichts geschrieben:</translation>
    </message>
    <message>
        <source>Upgraded from %1 to %2. What that changed stands in %3.</source>
        <translation>Von %1 auf %2 aktualisiert. Was das geändert hat, steht in %3.</translation>
    </message>
    <message>
        <source>This workflow needed no upgrade.</source>
        <translation>Dieser Workflow brauchte keine Aktualisierung.</translation>
    </message>
    <message>
        <source>The upgrade from %1 to %2 was taken back; the file is as it was. Redo (%3) applies the upgrade again.</source>
        <translation>Die Aktualisierung von %1 auf %2 wurde zurückgenommen; die Datei ist, wie sie war. Wiederholen (%3) wendet sie wieder an.</translation>
    </message>
    <message>
        <source>Upgraded from %1 to %2, and saved.</source>
        <translation>Von %1 auf %2 aktualisiert und gespeichert.</translation>
    </message>
    <message>
        <source>Upgraded from %1 to %2. The file stays as it was until you save over it.</source>
        <translation>Von %1 auf %2 aktualisiert. Die Datei bleibt, wie sie war, bis Sie sie überschreiben.</translation>
    </message>
    <message>
        <source>The upgrade from %1 to %2 changes nothing but the version; nothing is written before you save.</source>
        <translation>Die Aktualisierung von %1 auf %2 ändert nichts als die Version; vor dem Speichern wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Upgraded from %1 to %2; nothing but the version changed.</source>
        <translation>Von %1 auf %2 aktualisiert; nichts als die Version hat sich geändert.</translation>
    </message>
    <message>
        <source>%1 Nothing but the version changed.</source>
        <translation>%1 Nichts als die Version hat sich geändert.</translation>
    </message>
    <message>
        <source>&amp;Upgrade</source>
        <translation>&amp;Aktualisierung</translation>
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
        <source>a number with at most two decimals, alone or with a blank and its unit (%1), as in &quot;10 %2&quot;</source>
        <translation>eine Zahl mit höchstens zwei Nachkommastellen, allein oder mit einem Leerzeichen und ihrer Einheit (%1), etwa „10 %2“</translation>
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
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>Nothing was edited yet.</source>
        <translation>Noch wurde nichts bearbeitet.</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Nothing was undone.</source>
        <translation>Es wurde nichts rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Next Ta&amp;b</source>
        <translation>Nächster &amp;Reiter</translation>
    </message>
    <message>
        <source>Previous &amp;Tab</source>
        <translation>Voriger R&amp;eiter</translation>
    </message>
    <message>
        <source>recovered edits</source>
        <translation>wiederhergestellte Änderungen</translation>
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
