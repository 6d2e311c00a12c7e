<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What these options are for, such as &quot;Denatured&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adduct</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The formula of what carries one charge.</source>
        <translation type="unfinished"></translation>
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
    <name>ControlHelp</name>
    <message>
        <source>This cell: %1</source>
        <translation>Diese Zelle: %1</translation>
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
    <name>FileAccessor</name>
    <message>
        <source>The file can&apos;t be saved there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file on this computer.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the precursor, such as its peptide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where its retention time begins; empty for no limit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where its retention time ends; empty for no limit.</source>
        <translation type="unfinished"></translation>
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
    <name>JavaChecker</name>
    <message>
        <source>The Java runtime is missing. Install version %1 or later, or set JAVA_HOME to its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Java runtime &quot;%1&quot; doesn&apos;t work. Install it anew, or set JAVA_HOME to another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Java runtime &quot;%1&quot; has version %2. Install version %3 or later.</source>
        <translation type="unfinished"></translation>
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
    <name>PeakFilterDialog</name>
    <message>
        <source>m/z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the diagnostic peak.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What makes the peak, such as an oxonium ion.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name stands on one line.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows from the chains, less two hydrogens for each disulfide bond, in Da.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which proteins name the chain; empty for that of the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter of the chain, for people.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the chain is called.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the chain is made of; a protein where it is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amino acids in one-letter code; nucleotides from the 5&apos; end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chain numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no chain %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the protein is called; Auto(HC:0-2,LC:0-2) stands for all combinations of these chains.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers of the chains with commas between; a chain that occurs twice stands twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bonds between cysteines, each of which costs two hydrogens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of the chains. Follow from the numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of residues or nucleotides of all chains.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which sequences name the block; the case of letters counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the block is called.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The place of the block in an oligonucleotide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the block adds to the chain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monoisotopic mass of the formula in Da.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QxtCheckComboBox</name>
    <message>
        <source>Several entries can be checked</source>
        <translation type="unfinished"></translation>
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
    <name>RowNodeBinding</name>
    <message>
        <source>These columns are kept but not shown: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows below other rows are kept but not shown: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells without a column are kept but not shown: %1.</source>
        <translation type="unfinished"></translation>
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
    <name>SampleNames</name>
    <message>
        <source>all samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no id of a sample; write ids with commas between, such as 1, 2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no sample with the id %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample ids</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ids of the samples that the row is for, with commas between; empty for all. F4 in the cell chooses them by name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>Names of the samples that the row is for. Follows from the ids.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SamplesProteinsCsv</name>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no header.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two columns are called &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SequenceColumns</name>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of residues or nucleotides.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monoisotopic mass of the neutral, unmodified chain in Da.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass of the neutral, unmodified chain in Da.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Atoms of the neutral, unmodified chain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleavage sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bonds that the enzyme of the digest cuts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the residues that lie in a peptide of the digest, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position %1 holds &quot;%2&quot;, which stands for no single amino acid.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; renamed to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; renamed to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot; moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workflow properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n column(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableChecks</name>
    <message>
        <source>Must not repeat; row %1 holds the same.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be at least %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be at most %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May be %1 or %2; write it without a sign between thousands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is not a whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be a whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position %1 holds &quot;%2&quot;, which no sequence has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is none of: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is no colour; write it as #rrggbb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number between %1 and %2%3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number between %1 and %2%3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number of at least %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of at least %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number of at most %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of at most %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file; it can be dropped here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sequence; blanks and positions between its letters don&apos;t count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A colour, written as #rrggbb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must not repeat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t be changed.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableDrop</name>
    <message>
        <source>drop files</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another encoding, or save the file as UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No field goes to &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has %1 of %2 fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must not repeat; row %1 of the table holds the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must not repeat; line %1 holds the same.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableRules</name>
    <message>
        <source>Must lie below &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must not lie above &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must lie above &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must not lie below &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of these must be given: %1.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
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
    <name>Tr</name>
    <message>
        <source>FASTA file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with the sequences that are searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no reference to a file. Enter a path, or choose a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is not a FASTA file. Its name must end with one of: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Species</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The species that is taken from the file; empty for all sequences.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only lines with this text; those that are checked stay so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space checks the current line.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ColumnDialog</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the column is called, such as &quot;Condition&quot; or &quot;Replicate&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What stands in the column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a column &quot;%1&quot; already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::CustomFieldsImportWidget</name>
    <message>
        <source>&amp;Import Text File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the table by a CSV file of samples and proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No fields yet. Import a text file with a column for each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples and proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no samples and proteins yet. Import a text file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Samples and Proteins</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::DigestBar</name>
    <message>
        <source>Digest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enzyme as name @ residues | side of the cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed cleavages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of missed cleavages, at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortest peptide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues of the shortest peptide that can be seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longest peptide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues of the longest peptide that can be seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Digest:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Missed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write an enzyme as name @ residues | C-term or N-term.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::DisulfideMap</name>
    <message>
        <source>Disulfide bonds between cysteines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click two cysteines, or choose them with the arrow keys and Enter, to join them by a bond.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 C%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, bond begins at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no proteins with cysteines.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::DisulfideWidget</name>
    <message>
        <source>The bond leads to the cysteine from which it comes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>between chains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accession of the protein that the cysteine belongs to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place of the cysteine, counted from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the cysteines lie apart. Follows from their places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First cysteine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second cysteine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or click two cysteines above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add a bond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cysteines of %1: %2</source>
        <translation type="unfinished"></translation>
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
    <message>
        <source>The run was written to %1</source>
        <translation>Der Lauf steht in %1</translation>
    </message>
</context>
<context>
    <name>orv::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
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
        <translation>&amp;Ganze Zellen</translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The caption of the setting. A sign stands at those that were changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The value with its unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default, where the value is another one. A click sets the setting back to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was saved, where the value is another one now. A click sets the setting back to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Tab and column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why the setting is in this list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed from the default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed since the last save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has a finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differs from the second document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set back to the default: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set back to what was saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, changed since the last save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, changed from the default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::FindPanel</name>
    <message>
        <source>Changed from the &amp;default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed since the last &amp;save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has a fi&amp;nding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differs &amp;from the second document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption, name, explanation or value of a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words that stand in a setting&apos;s caption, name, explanation or value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Back to the &amp;Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Back to What Was &amp;Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the workflow first: then settings with a finding are known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a second document to compare with first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no settings here. Open a workflow, or add a tab with a column of settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a word that stands in a setting&apos;s caption, name, explanation or value, or choose a filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting passes this filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting has all of these words and passes the filter. Type fewer letters, or take the filter away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting has all of these words. Type fewer letters or another word.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::FindSettings</name>
    <message>
        <source>Find Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the settings of all tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the workflow first: then settings with a finding are known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a second document to compare with first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::FindingCheck</name>
    <message>
        <source>The workflow can&apos;t be checked: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::FindingMarks</name>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::Findings</name>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check Workflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious Finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for errors in the workflow, as is done before it is run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The workflow wasn&apos;t checked yet. Press %1 to check it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Checking again...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check found nothing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>orv::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>orv::GlycanOptionsWidget</name>
    <message>
        <source>Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass of the formula in Da.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A monosaccharide, a label, an adduct that carries a charge, or a derivatisation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which compositions and glycans name it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a monosaccharide the sugar without water, of the others what they add.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On molecules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether it is present on all molecules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glycan options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows without name, or with one that stands twice, aren&apos;t saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::GlycanTableWidget</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the glycan is called, such as G0F.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass of the neutral, unlabelled glycan in Da; empty where it follows from the composition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Name of the label at the reducing end; empty for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retention time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected retention time in minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculated mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monoisotopic mass in Da that follows from the composition, neutral and unlabelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Atoms that follow from the composition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Released glycans</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::GlycansDialog</name>
    <message>
        <source>Glycan database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File with a composition in each line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glycan databases (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A path can&apos;t hold &quot;]&quot; here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site | use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of site and number on a peptide, such as NGlycan | rare1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monoisotopic mass of the free glycan in Da that follows from the composition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass of the free glycan in Da that follows from the composition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glycans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glycan databases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compositions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables and text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the glycans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of databases in square brackets and compositions, one in a line. Lines that begin with % are comments.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ImportProblemModel</name>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::InclusionDialog</name>
    <message>
        <source>m/z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the precursor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the precursor; empty for any.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inclusion List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inclusion list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::InsilicoTableDialog</name>
    <message>
        <source>Sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues in one-letter code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein that the peptide is a piece of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First residue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place of the first residue in the protein, counted from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifications that the peptide carries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disulfide bonds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bonds of cysteines of the peptide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge in which the peptide is looked for; empty for any.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retention time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected retention time in minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theoretical Peptides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theoretical peptides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proteins that are digested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the proteins whose peptides are expected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All Proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks every protein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>digest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more peptides than %1; choose fewer proteins or missed cleavages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peptides of the digest: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::IntactOptionsWidget</name>
    <message>
        <source>Deconvolution of intact proteins</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::IsotopeTableWidget</name>
    <message>
        <source>There is no natural isotope &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the label is called; rows of one name belong together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol of the element, such as C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protons and neutrons of the isotope, such as 13.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enrichment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the element&apos;s atoms in percent; empty for the natural abundance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Natural abundance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the element&apos;s atoms in nature, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Isotopes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::MassTableWidget</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which matches of this mass are told apart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected mass in Da, or a difference of masses, which may be negative.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the protein that the mass belongs to; empty for all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window ±</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far a match may lie from this mass, in Da. Follows from the match tolerance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest difference between a measured and an expected mass, in Dalton or ppm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match &amp;tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match tolerance: %1 %2</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fixed: on each of the residues; common: on some; rare: on few.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest number on one peptide; a fixed one has none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monoisotopic mass in Da that follows from mass or formula.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which results name the modification.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass (Da) or formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the modification adds: a mass in Da with its sign, or a formula such as C2H3NO.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of residues, NTerm or CTerm, with commas between.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table and text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the modifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One modification in a line: name / mass in Da @ residues | fixed, common1 or rare1. Lines that begin with % are comments.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Common modifications (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Common modifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add to the Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the selected common modifications as common ones, once on a peptide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add common modifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; may stand only once.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that are missing at the 5&apos; end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing at the &amp;3&apos; end:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that are missing at the 3&apos; end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Additions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of nucleotides, at most, that stand twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Base losses:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bases, at most, in whose place water was added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masses of oligonucleotides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impurities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sulfur loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A phosphodiester stands in the place of a phosphorothioate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sulfur loss: yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sulfur loss: no</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::OligoOptionsWidget</name>
    <message>
        <source>Deconvolution of oligonucleotides</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::OptionsWidgetBase</name>
    <message>
        <source>Lowest m/z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peaks below this m/z are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest m/z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peaks above this m/z are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lightest neutral mass that is looked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heaviest neutral mass that is looked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fewest charges that a molecule carries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The most charges that a molecule carries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no chemical formula. Enter one such as H or Na.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The options can&apos;t be shown, and stay as they are: %1</source>
        <translation type="unfinished"></translation>
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
    <name>orv::PeakFilterDialog</name>
    <message>
        <source>Diagnostic Peaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostic peaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Oxonium &amp;Ions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the common oxonium ions of glycopeptides that the list lacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add oxonium ions</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n peak(s) added.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
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
    <name>orv::ProteinAnnotationWidget</name>
    <message>
        <source>(ends before it begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(the protein ends at %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no protein &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accession of the protein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the stretch is called, such as CDR-H3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First residue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last residue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which the stretch is drawn; empty for the usual one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stretch itself. Follows from the sequence of the protein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Annotations of proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Annotations of oligonucleotides</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ProteinInputWidgetBase</name>
    <message>
        <source>Source of the proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the proteins are typed here or come with an import of samples and proteins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>typed here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from a CSV file with samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;roteins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Building blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chains, proteins and building blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Chains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Built proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;uilding blocks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ProteinTableWidget</name>
    <message>
        <source>Accession</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which annotations and disulfide bonds name the protein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the protein is called, for people.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One-letter code, without blanks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proteins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peptides of the digest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sequence and peptides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Peptides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or paste or drop sequences as FASTA.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>monoisotopic %1 Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>average %1 Da</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>letters without mass: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ProteinTreeTable</name>
    <message>
        <source>Protein or peptide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed cleavages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono. mass (Da)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average mass (Da)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished"></translation>
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
    <name>orv::SamplesAndTracesInputWidget</name>
    <message numerus="yes">
        <source>%n sample(s) added.</source>
        <translation>
            <numerusform>%n Probe hinzugefügt.</numerusform>
            <numerusform>%n Proben hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Without samples: %1</source>
        <translation>Ohne Proben: %1</translation>
    </message>
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
        <source>Add &amp;Files...</source>
        <translation>&amp;Dateien hinzufügen...</translation>
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
        <source>Name by F&amp;iles</source>
        <translation>Nach Da&amp;teien benennen</translation>
    </message>
    <message>
        <source>Give samples without a name that of their file</source>
        <translation>Gibt Proben ohne Namen den ihrer Datei</translation>
    </message>
    <message numerus="yes">
        <source>%n sample(s) named.</source>
        <translation>
            <numerusform>%n Probe benannt.</numerusform>
            <numerusform>%n Proben benannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Check Fi&amp;les</source>
        <translation>Dateien &amp;prüfen</translation>
    </message>
    <message>
        <source>Look again whether the files are there</source>
        <translation>Sieht noch einmal nach, ob die Dateien da sind</translation>
    </message>
    <message>
        <source>Colu&amp;mns</source>
        <translation>Sp&amp;alten</translation>
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
        <source>id %1</source>
        <translation>ID %1</translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underlined: the enzyme cuts behind the residue. Waves: the letter has no mass. Coloured: the residue belongs to an annotation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a row to see its sequence.</source>
        <translation type="unfinished"></translation>
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
        <source>Show only rows with a cell that isn&apos;t allowed</source>
        <translation>Nur Zeilen mit einer Zelle zeigen, die nicht erlaubt ist</translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-16, big endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western (Windows 1252)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first row names the &amp;columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take rows with problems too, and mark their cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 goes to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(left out)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file can&apos;t be read to its end: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows with problems: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 of %2 problems are listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Rows (%1)</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder for the projects:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where a project of that name exists:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep both, with a number in the new name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the &amp;new one out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for the Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::TemplateEditor</name>
    <message>
        <source>Label Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script that labels a plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a script, or load one from a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no text in UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::TextTablesDialog</name>
    <message>
        <source>Te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and further problems: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::TolerancesWidget</name>
    <message>
        <source>Tolerance of the full length product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest difference between a measured mass and that of the full length product, in Dalton or ppm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance of impurities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest difference between a measured mass and that of an impurity, in Dalton or ppm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full length product:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Impurities:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass tolerances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full length product: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impurities: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::UnitField</name>
    <message>
        <source>Unit: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of: %1</source>
        <translation type="unfinished"></translation>
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
