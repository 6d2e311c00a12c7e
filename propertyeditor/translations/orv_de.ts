<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AbstractValidator</name>
    <message>
        <source>Enter %1.</source>
        <translation>Geben Sie ein: %1.</translation>
    </message>
    <message>
        <source>The workflow doesn&apos;t have any samples</source>
        <translation>Der Workflow hat keine Proben</translation>
    </message>
    <message>
        <source>Correct the row in the table of masses, or remove it.</source>
        <translation>Berichtigen Sie die Zeile in der Tabelle der Massen, oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>Enter an enzyme, its residues and the side of the cut, such as &quot;%1&quot;.</source>
        <translation>Geben Sie ein Enzym, seine Reste und die Seite des Schnitts ein, etwa „%1“.</translation>
    </message>
    <message>
        <source>No modifications found, including fixed modifications.</source>
        <translation>Keine Modifikationen gefunden, auch keine festen Modifikationen.</translation>
    </message>
    <message>
        <source>Enter the modifications that the peptides may carry.</source>
        <translation>Geben Sie die Modifikationen ein, die die Peptide tragen können.</translation>
    </message>
    <message>
        <source>Invalid digestion syntax.</source>
        <translation>Ungültige Schreibweise der Verdauung.</translation>
    </message>
    <message>
        <source>Invalid digestion format: %1.</source>
        <translation>Ungültiges Format der Verdauung: %1.</translation>
    </message>
    <message>
        <source>Correct the file, or choose another one.</source>
        <translation>Berichtigen Sie die Datei, oder wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Look through the file.</source>
        <translation>Sehen Sie die Datei durch.</translation>
    </message>
    <message>
        <source>Peptide mass range out of order (%1 to %2), please change the values.
</source>
        <translation>Der Bereich der Peptidmassen ist verkehrt herum (%1 bis %2), bitte ändern Sie die Werte.
</translation>
    </message>
    <message>
        <source>The smallest mass must lie below the largest.</source>
        <translation>Die kleinste Masse muss unter der größten liegen.</translation>
    </message>
    <message>
        <source>The workflow doesn&apos;t have any %1</source>
        <translation>Der Workflow hat keine %1</translation>
    </message>
    <message>
        <source>documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>samples</source>
        <translation>Proben</translation>
    </message>
    <message>
        <source>The sample with id &quot;%1&quot; has no MS traces selected. Please select at least one MS trace</source>
        <translation>Für die Probe mit der ID „%1“ sind keine MS-Spuren gewählt. Bitte wählen Sie mindestens eine MS-Spur</translation>
    </message>
    <message>
        <source>Import a trace of this sample, or remove the sample.</source>
        <translation>Importieren Sie eine Spur dieser Probe, oder entfernen Sie die Probe.</translation>
    </message>
    <message>
        <source>The workflow doesn&apos;t have samples table.</source>
        <translation>Der Workflow hat keine Tabelle der Proben.</translation>
    </message>
    <message>
        <source>Name the tab &quot;Samples&quot; and put the table of samples into its first cell.</source>
        <translation>Nennen Sie den Reiter „Samples“, und setzen Sie die Tabelle der Proben in seine erste Zelle.</translation>
    </message>
    <message>
        <source>Enter true.</source>
        <translation>Geben Sie true ein.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; is not valid.</source>
        <translation>Der Wert von „%1“ ist nicht gültig.</translation>
    </message>
    <message>
        <source>Enter a whole number from 1 to %1.</source>
        <translation>Geben Sie eine ganze Zahl von 1 bis %1 ein.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; cannot be greater than %2.</source>
        <translation>Der Wert von „%1“ darf nicht größer als %2 sein.</translation>
    </message>
    <message>
        <source>Enter a smaller number, or tell the conditions of more samples in the column &quot;Condition&quot;.</source>
        <translation>Geben Sie eine kleinere Zahl ein, oder nennen Sie in der Spalte „Condition“ die Bedingungen weiterer Proben.</translation>
    </message>
    <message>
        <source>Content is empty</source>
        <translation>Der Inhalt ist leer</translation>
    </message>
    <message>
        <source>Metadata mappings and Samples-Proteins table contain %1: %2. This may lead to project creation failure.</source>
        <translation>Die Zuordnungen der Metadaten und die Tabelle von Proben und Proteinen enthalten %1: %2. Daran kann das Anlegen des Projekts scheitern.</translation>
    </message>
    <message>
        <source>a duplicate column name</source>
        <translation>einen doppelten Spaltennamen</translation>
    </message>
    <message>
        <source>duplicate column names</source>
        <translation>doppelte Spaltennamen</translation>
    </message>
    <message>
        <source>Give each mapped attribute and each column a name of its own.</source>
        <translation>Geben Sie jedem zugeordneten Attribut und jeder Spalte einen eigenen Namen.</translation>
    </message>
    <message>
        <source>Enter names of samples, or patterns such as &quot;lot*&quot;; separate them by &quot;;&quot;. Empty uses all samples.</source>
        <translation>Geben Sie Namen von Proben oder Muster wie „lot*“ ein, mit „;“ dazwischen. Ohne Eingabe werden alle Proben benutzt.</translation>
    </message>
    <message>
        <source>%1 documents don&apos;t use any valid samples. At least one %1 document should use valid samples</source>
        <translation>%1-Dokumente benutzen keine gültigen Proben. Mindestens ein %1-Dokument muss gültige Proben benutzen</translation>
    </message>
    <message>
        <source>Not all %1 documents use valid samples</source>
        <translation>Nicht alle %1-Dokumente benutzen gültige Proben</translation>
    </message>
    <message>
        <source>Reference sample requires at least one non-reference sample.</source>
        <translation>Eine Referenzprobe braucht mindestens eine Probe, die keine Referenz ist.</translation>
    </message>
    <message>
        <source>Add the MS file of a sample that is compared with the project.</source>
        <translation>Fügen Sie die MS-Datei einer Probe hinzu, die mit dem Projekt verglichen wird.</translation>
    </message>
    <message>
        <source>Cannot handle a %1 document type</source>
        <translation>Mit Dokumenten der Art %1 lässt sich nichts anfangen</translation>
    </message>
    <message>
        <source>Remove the document.</source>
        <translation>Entfernen Sie das Dokument.</translation>
    </message>
    <message>
        <source>Add files to the table of samples.</source>
        <translation>Fügen Sie der Tabelle der Proben Dateien hinzu.</translation>
    </message>
    <message>
        <source>The workflow doesn&apos;t have any documents</source>
        <translation>Der Workflow hat keine Dokumente</translation>
    </message>
    <message>
        <source>Add a column with a search, an analysis or a report.</source>
        <translation>Fügen Sie eine Spalte mit einer Suche, einer Analyse oder einem Bericht hinzu.</translation>
    </message>
</context>
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
    <name>CellPlace</name>
    <message>
        <source>There is: %1.</source>
        <translation>Es gibt: %1.</translation>
    </message>
    <message>
        <source>The document has no tabs.</source>
        <translation>Das Dokument hat keine Reiter.</translation>
    </message>
    <message>
        <source>There is no tab &quot;%1&quot;.</source>
        <translation>Es gibt keinen Reiter „%1“.</translation>
    </message>
    <message>
        <source>There is no column &quot;%1&quot; in the tab &quot;%2&quot;.</source>
        <translation>Es gibt keine Spalte „%1“ im Reiter „%2“.</translation>
    </message>
    <message>
        <source>There is no row %1 in the column &quot;%2&quot;.</source>
        <translation>Es gibt keine Zeile %1 in der Spalte „%2“.</translation>
    </message>
    <message>
        <source>Its rows: %1, counted from 0.</source>
        <translation>Ihre Zeilen: %1, gezählt ab 0.</translation>
    </message>
</context>
<context>
    <name>CellStamps</name>
    <message>
        <source>the metadata of the cell</source>
        <translation>die Metadaten der Zelle</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;</source>
        <translation>Eintrag „%1“</translation>
    </message>
    <message>
        <source>a new stamp takes the place of the cell&apos;s metadata</source>
        <translation>ein neuer Stempel tritt an die Stelle der Metadaten der Zelle</translation>
    </message>
    <message>
        <source>they are not the JSON text of an object</source>
        <translation>kein JSON-Text eines Objekts</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>It is the sequence of the chain &quot;%1&quot;.</source>
        <translation>Es ist die Sequenz der Kette „%1“.</translation>
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
    <name>ChemicalFactory</name>
    <message>
        <source>A building block of oligonucleotides can&apos;t be used.</source>
        <translation>Ein Baustein für Oligonukleotide kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>It is &quot;%1&quot; of the type &quot;%2&quot;. %3</source>
        <translation>Es ist „%1“ von der Art „%2“. %3</translation>
    </message>
    <message>
        <source>There is no such type.</source>
        <translation>Diese Art gibt es nicht.</translation>
    </message>
    <message>
        <source>It has no symbol.</source>
        <translation>Er hat kein Symbol.</translation>
    </message>
    <message>
        <source>It belongs to the building block &quot;%1&quot;.</source>
        <translation>Sie gehört zum Baustein „%1“.</translation>
    </message>
    <message>
        <source>A sequence has no formula.</source>
        <translation>Eine Sequenz hat keine Formel.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>It is too long.</source>
        <translation>Sie ist zu lang.</translation>
    </message>
    <message>
        <source>There is no nucleotide</source>
        <translation>Es gibt kein Nukleotid</translation>
    </message>
    <message>
        <source>The sequence is too long</source>
        <translation>Die Sequenz ist zu lang</translation>
    </message>
    <message>
        <source>There is no building block &quot;%1&quot; of the type %2</source>
        <translation>Es gibt keinen Baustein „%1“ der Art %2</translation>
    </message>
    <message>
        <source>A &quot;[&quot; has no &quot;]&quot;</source>
        <translation>Einer „[“ fehlt die „]“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a base nor a base and a sugar</source>
        <translation>„%1“ ist weder eine Base noch eine Base mit einem Zucker</translation>
    </message>
    <message>
        <source>There is no nucleotide behind a &quot;%1&quot;</source>
        <translation>Hinter einem „%1“ steht kein Nukleotid</translation>
    </message>
    <message>
        <source>%1, at character %2.</source>
        <translation>%1, beim Zeichen %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no amino acid</source>
        <translation>„%1“ ist keine Aminosäure</translation>
    </message>
</context>
<context>
    <name>ChemicalFormula</name>
    <message>
        <source>The chemical formula is malformed.</source>
        <translation>Die chemische Formel ist falsch gebildet.</translation>
    </message>
    <message>
        <source>The formula is &quot;%1&quot;. %2</source>
        <translation>Die Formel ist „%1“. %2</translation>
    </message>
    <message>
        <source>It has %1 characters; %2 are allowed.</source>
        <translation>Sie hat %1 Zeichen; erlaubt sind %2.</translation>
    </message>
    <message>
        <source>At character %1 there is no element.</source>
        <translation>Beim Zeichen %1 steht kein Element.</translation>
    </message>
    <message>
        <source>The count &quot;%1&quot; of %2 is too large.</source>
        <translation>Die Anzahl „%1“ von %2 ist zu groß.</translation>
    </message>
</context>
<context>
    <name>ChemistryJson</name>
    <message>
        <source>The member &quot;%1&quot; must be %2.</source>
        <translation>Der Eintrag „%1“ muss %2 sein.</translation>
    </message>
    <message>
        <source>There is %1.</source>
        <translation>Es gibt %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>The member &quot;%1&quot; must be a whole number from %2 to %3.</source>
        <translation>Der Eintrag „%1“ muss eine ganze Zahl von %2 bis %3 sein.</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>The member &quot;%1&quot; must not be negative.</source>
        <translation>Der Eintrag „%1“ darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
</context>
<context>
    <name>ClosedReader</name>
    <message>
        <source>Could not open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>It isn&apos;t there, or its folder can&apos;t be read.</source>
        <translation>Sie ist nicht da, oder ihr Ordner ist nicht lesbar.</translation>
    </message>
    <message>
        <source>No format of MS data is recognised: %1</source>
        <translation>Kein Format von MS-Daten wird erkannt: %1</translation>
    </message>
    <message>
        <source>Check that the data are complete, or convert them to mzML.</source>
        <translation>Prüfen Sie, ob die Daten vollständig sind, oder wandeln Sie sie in mzML um.</translation>
    </message>
    <message>
        <source>Spectra of the format &quot;%1&quot; aren&apos;t read.</source>
        <translation>Spektren des Formats „%1“ werden nicht gelesen.</translation>
    </message>
    <message>
        <source>Convert the data to mzML.</source>
        <translation>Wandeln Sie die Daten in mzML um.</translation>
    </message>
    <message>
        <source>Reading the format &quot;%1&quot; needs a library of its vendor, which is not there.</source>
        <translation>Um das Format „%1“ zu lesen, wird eine Bibliothek seines Herstellers gebraucht, die nicht da ist.</translation>
    </message>
</context>
<context>
    <name>CommonModifications</name>
    <message>
        <source>Unimod, as ProteoWizard has it</source>
        <translation>Unimod, wie ProteoWizard es hat</translation>
    </message>
</context>
<context>
    <name>Content</name>
    <message>
        <source>What was loaded was removed in the middle of the load.</source>
        <translation>Was geladen wurde, wurde während des Ladens entfernt.</translation>
    </message>
</context>
<context>
    <name>ContentValidator</name>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
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
    <name>CsvReader</name>
    <message>
        <source>The table cannot be read.</source>
        <translation>Die Tabelle kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A quote stands where it may not.</source>
        <translation>Ein Anführungszeichen steht, wo es nicht stehen darf.</translation>
    </message>
    <message>
        <source>Quote the whole field, and write each quote inside it twice.</source>
        <translation>Setzen Sie das ganze Feld in Anführungszeichen, und schreiben Sie jedes Anführungszeichen darin doppelt.</translation>
    </message>
    <message>
        <source>A quoted field has no end.</source>
        <translation>Ein Feld in Anführungszeichen hat kein Ende.</translation>
    </message>
    <message>
        <source>Write the quote that ends it, or complete the file.</source>
        <translation>Schreiben Sie das Anführungszeichen, mit dem es endet, oder vervollständigen Sie die Datei.</translation>
    </message>
    <message>
        <source>A row has more than %1 fields.</source>
        <translation>Eine Zeile hat mehr als %1 Felder.</translation>
    </message>
    <message>
        <source>The table is not UTF-8.</source>
        <translation>Die Tabelle ist nicht in UTF-8.</translation>
    </message>
    <message>
        <source>Save it with the encoding UTF-8.</source>
        <translation>Speichern Sie sie mit der Kodierung UTF-8.</translation>
    </message>
    <message>
        <source>A field is larger than %1 bytes.</source>
        <translation>Ein Feld ist größer als %1 Bytes.</translation>
    </message>
    <message>
        <source>A row is larger than %1 bytes.</source>
        <translation>Eine Zeile ist größer als %1 Bytes.</translation>
    </message>
    <message>
        <source>See whether a quote is missing, or leave out what is too large.</source>
        <translation>Sehen Sie nach, ob ein Anführungszeichen fehlt, oder lassen Sie weg, was zu groß ist.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
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
    <name>DataSourceLocation</name>
    <message>
        <source>Vendor file name is empty</source>
        <translation>Der Dateiname des Herstellers ist leer</translation>
    </message>
    <message>
        <source>The path exceeds %1</source>
        <translation>Der Pfad ist länger als %1</translation>
    </message>
    <message>
        <source>It has %1 characters.</source>
        <translation>Er hat %1 Zeichen.</translation>
    </message>
    <message>
        <source>Move the data into a shorter folder, or write &quot;\\?\&quot; in front of the path.</source>
        <translation>Verschieben Sie die Daten in einen Ordner mit kürzerem Pfad, oder schreiben Sie „\\?\“ vor den Pfad.</translation>
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
    <name>DisulfideUtils</name>
    <message>
        <source>The table of disulfide bonds can&apos;t be read.</source>
        <translation>Die Tabelle der Disulfidbrücken kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Row %1: &quot;%2&quot; is no position of a residue.</source>
        <translation>Zeile %1: „%2“ ist keine Position eines Rests.</translation>
    </message>
    <message>
        <source>there is no chain &quot;%1&quot;.</source>
        <translation>es gibt keine Kette „%1“.</translation>
    </message>
    <message>
        <source>the chain &quot;%1&quot; has no residue %2.</source>
        <translation>die Kette „%1“ hat keinen Rest %2.</translation>
    </message>
    <message>
        <source>residue %1 of the chain &quot;%2&quot; is %3 and no cysteine.</source>
        <translation>Rest %1 der Kette „%2“ ist %3 und kein Cystein.</translation>
    </message>
    <message>
        <source>cysteine %1 of the chain &quot;%2&quot; stands in two bonds.</source>
        <translation>Cystein %1 der Kette „%2“ kommt in zwei Brücken vor.</translation>
    </message>
    <message>
        <source>Disulfide bond %1: %2</source>
        <translation>Disulfidbrücke %1: %2</translation>
    </message>
</context>
<context>
    <name>DocumentFindings</name>
    <message>
        <source>The path &quot;%1&quot; holds a control character.</source>
        <translation>Der Pfad „%1“ enthält ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>A backslash that was written once makes one of the letter behind it: write \\ in the file, or / instead.</source>
        <translation>Ein einfacher umgekehrter Schrägstrich macht aus dem Buchstaben dahinter ein Steuerzeichen: Schreiben Sie \\ in die Datei, oder stattdessen /.</translation>
    </message>
    <message>
        <source>The number %1 of the setting &quot;%2&quot; stands without quotes, and engines read 0 from it.</source>
        <translation>Die Zahl %1 der Einstellung „%2“ steht ohne Anführungszeichen, und Programme lesen daraus 0.</translation>
    </message>
    <message>
        <source>Write &quot;%1&quot; in quotes; saving the document does so, too.</source>
        <translation>Schreiben Sie „%1“ in Anführungszeichen; auch das Speichern des Dokuments tut das.</translation>
    </message>
</context>
<context>
    <name>DocumentSaving</name>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Nothing was changed. Save to another folder, or see that this one has room and can be written.</source>
        <translation>Nichts wurde geändert. Speichern Sie in einen anderen Ordner, oder sorgen Sie dafür, dass dieser Platz hat und beschrieben werden kann.</translation>
    </message>
</context>
<context>
    <name>DocumentStructure</name>
    <message>
        <source>Tab %1.</source>
        <translation>Reiter %1.</translation>
    </message>
    <message>
        <source>Mend the text at that place, or restore the file from a copy.</source>
        <translation>Berichtigen Sie den Text an dieser Stelle, oder stellen Sie die Datei aus einer Kopie wieder her.</translation>
    </message>
    <message>
        <source>%1 must be %2, but there is %3.</source>
        <translation>%1 muss %2 sein, aber es gibt %3.</translation>
    </message>
    <message>
        <source>A tab</source>
        <translation>Ein Reiter</translation>
    </message>
    <message>
        <source>There are cells, but no columns.</source>
        <translation>Es gibt Zellen, aber keine Spalten.</translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation>Zelle %1</translation>
    </message>
    <message>
        <source>Cell %1 is empty.</source>
        <translation>Zelle %1 ist leer.</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;</source>
        <translation>Eintrag „%1“</translation>
    </message>
    <message>
        <source>the format has no such member</source>
        <translation>das Format kennt keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>element of &quot;%1&quot;</source>
        <translation>Element von „%1“</translation>
    </message>
    <message>
        <source>it is %1</source>
        <translation>ist %1</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>ein Reiter</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a tab</source>
        <translation>„%1“ eines Reiters</translation>
    </message>
    <message>
        <source>the metadata of the document</source>
        <translation>die Metadaten des Dokuments</translation>
    </message>
    <message>
        <source>they are not the JSON text of an object</source>
        <translation>kein JSON-Text eines Objekts</translation>
    </message>
    <message>
        <source>the mode of the document</source>
        <translation>der Modus des Dokuments</translation>
    </message>
    <message>
        <source>it is no whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>the extended metadata of the document</source>
        <translation>die erweiterten Metadaten des Dokuments</translation>
    </message>
    <message>
        <source>they are not an object</source>
        <translation>kein Objekt</translation>
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
    <name>ElutionPeaksBackwardsCompatibility</name>
    <message>
        <source>The peak settings of a kind of trace are out of range.</source>
        <translation>Die Peak-Einstellungen einer Art von Spuren liegen außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Kind of trace: %1; smoothing width %2, interval time %3, smoothing width of the baseline %4 minutes.</source>
        <translation>Art der Spuren: %1; Breite der Glättung %2, Zeit des Intervalls %3, Breite der Glättung der Grundlinie %4 Minuten.</translation>
    </message>
    <message>
        <source>Set them to 0 or more with the version that wrote the document.</source>
        <translation>Setzen Sie sie mit der Version, die das Dokument geschrieben hat, auf 0 oder mehr.</translation>
    </message>
    <message>
        <source>The advanced setting &quot;%1&quot; has the value &quot;%2&quot;, which can&apos;t be read. It stays in the advanced configuration without effect; enter its value in the table of samples.</source>
        <translation>Die erweiterte Einstellung „%1“ hat den Wert „%2“, der nicht gelesen werden kann. Sie bleibt ohne Wirkung in der erweiterten Konfiguration stehen; geben Sie ihren Wert in der Tabelle der Proben ein.</translation>
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
    <name>ExternalDataSources</name>
    <message>
        <source>&quot;%1&quot; has no place on this machine.</source>
        <translation>„%1“ hat auf diesem Rechner keinen Ort.</translation>
    </message>
    <message>
        <source>It does not refer to an external data source.</source>
        <translation>Es verweist auf keine externe Datenquelle.</translation>
    </message>
    <message>
        <source>Its path leads out of the source; name the file by a path without &quot;..&quot; and backslashes.</source>
        <translation>Sein Pfad führt aus der Quelle hinaus; nennen Sie die Datei mit einem Pfad ohne „..“ und umgekehrte Schrägstriche.</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to the absolute path of the folder at which the source &quot;%2&quot; is mounted.</source>
        <translation>Setzen Sie „%1“ auf den absoluten Pfad des Ordners, in dem die Quelle „%2“ eingehängt ist.</translation>
    </message>
</context>
<context>
    <name>Fasta</name>
    <message>
        <source>The file is %1.</source>
        <translation>Die Datei ist %1.</translation>
    </message>
    <message>
        <source>The FASTA file has no sequence.</source>
        <translation>Die FASTA-Datei hat keine Sequenz.</translation>
    </message>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>FastaReader</name>
    <message>
        <source>Line %1: &quot;%2&quot; has no sequence and is passed over.</source>
        <translation>Zeile %1: „%2“ hat keine Sequenz und wird übergangen.</translation>
    </message>
    <message>
        <source>The FASTA text can&apos;t be read.</source>
        <translation>Der FASTA-Text kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Check that the file is FASTA: a line with &quot;&gt;&quot; and a name, then lines of letters.</source>
        <translation>Prüfen Sie, ob die Datei FASTA ist: eine Zeile mit „&gt;“ und einem Namen, dann Zeilen aus Buchstaben.</translation>
    </message>
    <message>
        <source>There are %1 more warnings.</source>
        <translation>Es gibt %1 weitere Warnungen.</translation>
    </message>
    <message>
        <source>Line %1: the name &quot;%2&quot; stands twice.</source>
        <translation>Zeile %1: Der Name „%2“ kommt zweimal vor.</translation>
    </message>
    <message>
        <source>Line %1: the sequence of &quot;%2&quot; has a stop inside.</source>
        <translation>Zeile %1: Die Sequenz von „%2“ enthält einen Stopp.</translation>
    </message>
    <message>
        <source>There is text before the first &quot;&gt;&quot;.</source>
        <translation>Vor dem ersten „&gt;“ steht Text.</translation>
    </message>
    <message>
        <source>A header is too long.</source>
        <translation>Eine Kopfzeile ist zu lang.</translation>
    </message>
    <message>
        <source>A sequence has the character &quot;%1&quot;.</source>
        <translation>Eine Sequenz enthält das Zeichen „%1“.</translation>
    </message>
    <message>
        <source>A &quot;[&quot; has no &quot;]&quot; in its line.</source>
        <translation>Einer „[“ fehlt die „]“ in ihrer Zeile.</translation>
    </message>
    <message>
        <source>A sequence has more than %1 letters.</source>
        <translation>Eine Sequenz hat mehr als %1 Buchstaben.</translation>
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
    <name>FileExtensionsNameFilter</name>
    <message>
        <source>All supported files</source>
        <translation>Alle unterstützten Dateien</translation>
    </message>
</context>
<context>
    <name>FileTypes</name>
    <message>
        <source>Workflow</source>
        <translation>Workflow</translation>
    </message>
    <message>
        <source>Portable workflow</source>
        <translation>Portabler Workflow</translation>
    </message>
    <message>
        <source>Property table</source>
        <translation>Tabelle von Einstellungen</translation>
    </message>
    <message>
        <source>Tab preset</source>
        <translation>Reiter-Vorlage</translation>
    </message>
    <message>
        <source>Cell preset</source>
        <translation>Zellen-Vorlage</translation>
    </message>
    <message>
        <source>Search engine parameters</source>
        <translation>Parameter der Suchmaschine</translation>
    </message>
    <message>
        <source>Preview preset</source>
        <translation>Vorlage der Vorschau</translation>
    </message>
    <message>
        <source>Sequence database</source>
        <translation>Sequenzdatenbank</translation>
    </message>
    <message>
        <source>Acquired sample</source>
        <translation>Aufgenommene Probe</translation>
    </message>
    <message>
        <source>Processed MS data</source>
        <translation>Verarbeitete MS-Daten</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Comma-separated values</source>
        <translation>Durch Kommas getrennte Werte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Electropherogram</source>
        <translation>Elektropherogramm</translation>
    </message>
    <message>
        <source>icIEF traces</source>
        <translation>icIEF-Spuren</translation>
    </message>
    <message>
        <source>Senthia project</source>
        <translation>Senthia-Projekt</translation>
    </message>
    <message>
        <source>Dravik project</source>
        <translation>Dravik-Projekt</translation>
    </message>
    <message>
        <source>Karvon project</source>
        <translation>Karvon-Projekt</translation>
    </message>
    <message>
        <source>Karvon search result</source>
        <translation>Karvon-Suchergebnis</translation>
    </message>
    <message>
        <source>Intact project</source>
        <translation>Intact-Projekt</translation>
    </message>
    <message>
        <source>Oligo project</source>
        <translation>Oligo-Projekt</translation>
    </message>
    <message>
        <source>Ostrale project</source>
        <translation>Ostrale-Projekt</translation>
    </message>
    <message>
        <source>Trenq project</source>
        <translation>Trenq-Projekt</translation>
    </message>
    <message>
        <source>Caldrin search result</source>
        <translation>Caldrin-Suchergebnis</translation>
    </message>
    <message>
        <source>Multi-document report</source>
        <translation>Bericht über mehrere Dokumente</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>It is a pipe or a device; name a regular file.</source>
        <translation>Es ist eine Pipe oder ein Gerät; nennen Sie eine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%1 The old content couldn&apos;t be put back: %2</source>
        <translation>%1 Der alte Inhalt konnte nicht zurückgeschrieben werden: %2</translation>
    </message>
    <message>
        <source>The name is empty; name a file.</source>
        <translation>Der Name ist leer; nennen Sie eine Datei.</translation>
    </message>
    <message>
        <source>Could not open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The file is too large: %1 (%2, at most %3 are read)</source>
        <translation>Die Datei ist zu groß: %1 (%2, gelesen werden höchstens %3)</translation>
    </message>
    <message>
        <source>It is a folder; name a file.</source>
        <translation>Es ist ein Ordner; nennen Sie eine Datei.</translation>
    </message>
    <message>
        <source>What is to be written is too large to be read again (%1, at most %2 are read)</source>
        <translation>Was geschrieben werden soll, ist zu groß, um wieder gelesen zu werden (%1, gelesen werden höchstens %2)</translation>
    </message>
    <message>
        <source>Nothing was written. Remove what isn&apos;t needed, or divide it.</source>
        <translation>Nichts wurde geschrieben. Entfernen Sie, was nicht gebraucht wird, oder teilen Sie es auf.</translation>
    </message>
</context>
<context>
    <name>FormatDetectors</name>
    <message>
        <source>Simulated msfaux</source>
        <translation>Simuliertes msfaux</translation>
    </message>
    <message>
        <source>Simulated msfaux2</source>
        <translation>Simuliertes msfaux2</translation>
    </message>
    <message>
        <source>Mascot generic format (mgf)</source>
        <translation>Mascot Generic Format (mgf)</translation>
    </message>
    <message>
        <source>Open data format mzml</source>
        <translation>Offenes Datenformat mzml</translation>
    </message>
    <message>
        <source>Open data format mzxml</source>
        <translation>Offenes Datenformat mzxml</translation>
    </message>
    <message>
        <source>Orv Acquisition file</source>
        <translation>Orv-Aufnahmedatei</translation>
    </message>
</context>
<context>
    <name>GlycanComposition</name>
    <message>
        <source>The composition of a glycan is malformed.</source>
        <translation>Die Zusammensetzung eines Glykans ist falsch gebildet.</translation>
    </message>
    <message>
        <source>It is &quot;%1&quot;. %2</source>
        <translation>Sie ist „%1“. %2</translation>
    </message>
    <message>
        <source>Write it as &quot;HexNAc(4)Hex(3)Fuc(1)&quot;.</source>
        <translation>Schreiben Sie sie als „HexNAc(4)Hex(3)Fuc(1)“.</translation>
    </message>
    <message>
        <source>It has more than %1 characters.</source>
        <translation>Sie hat mehr als %1 Zeichen.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>There is no name with a count at character %1.</source>
        <translation>Beim Zeichen %1 steht kein Name mit einer Anzahl.</translation>
    </message>
    <message>
        <source>A count is larger than %1.</source>
        <translation>Eine Anzahl ist größer als %1.</translation>
    </message>
    <message>
        <source>%1 stands twice.</source>
        <translation>%1 kommt zweimal vor.</translation>
    </message>
</context>
<context>
    <name>GlycanOptions</name>
    <message>
        <source>The table of glycan options can&apos;t be read.</source>
        <translation>Die Tabelle der Glykan-Einstellungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>A glycan has no formula.</source>
        <translation>Ein Glykan hat keine Formel.</translation>
    </message>
    <message>
        <source>There is no %1 &quot;%2&quot; among the glycan options.</source>
        <translation>In den Glykan-Einstellungen steht dies nicht: %1 „%2“.</translation>
    </message>
    <message>
        <source>There is no kind &quot;%1&quot;.</source>
        <translation>Es gibt keine Art „%1“.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is empty or stands twice.</source>
        <translation>Der Name „%1“ ist leer oder kommt zweimal vor.</translation>
    </message>
    <message>
        <source>It stands in row %1 of the glycan options.</source>
        <translation>Es steht in Zeile %1 der Glykan-Einstellungen.</translation>
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
    <name>GridPropertyEditorView</name>
    <message>
        <source>Open a preset file</source>
        <translation>Voreinstellungen öffnen</translation>
    </message>
    <message>
        <source>Loading file</source>
        <translation>Datei laden</translation>
    </message>
    <message>
        <source>Could not open preset file &quot;%1&quot;.</source>
        <translation>Die Voreinstellungen „%1“ konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not read preset file &quot;%1&quot;.</source>
        <translation>Die Voreinstellungen „%1“ konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>Save preset to file</source>
        <translation>Voreinstellungen speichern</translation>
    </message>
    <message>
        <source>Saving file</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Can&apos;t convert content to json.</source>
        <translation>Der Inhalt lässt sich nicht in JSON umwandeln.</translation>
    </message>
    <message>
        <source>Cannot save to file &quot;%1&quot;: %2</source>
        <translation>In die Datei „%1“ kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Failed to add a new property.</source>
        <translation>Die Eigenschaft konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Failed to modify the property:&lt;br&gt;%1</source>
        <translation>Die Eigenschaft konnte nicht geändert werden:&lt;br&gt;%1</translation>
    </message>
    <message>
        <source>Loading xenoset</source>
        <translation>xenoset laden</translation>
    </message>
    <message>
        <source>View does not contain property set</source>
        <translation>Die Ansicht enthält keine Einstellungen</translation>
    </message>
    <message>
        <source>Open xenoset</source>
        <translation>xenoset öffnen</translation>
    </message>
    <message>
        <source>Can&apos;t create KPropertySet from xenoset: %1</source>
        <translation>Aus xenoset lassen sich keine Einstellungen machen: %1</translation>
    </message>
    <message>
        <source>Open preview</source>
        <translation>Vorschau öffnen</translation>
    </message>
    <message>
        <source>Loading preview preset</source>
        <translation>Vorlage der Vorschau laden</translation>
    </message>
    <message>
        <source>Unable to load file</source>
        <translation>Die Datei kann nicht geladen werden</translation>
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
    <name>InclusionList</name>
    <message>
        <source>The inclusion list can&apos;t be read.</source>
        <translation>Die Einschlussliste kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The m/z must be a number above 0.</source>
        <translation>Das m/z muss eine Zahl über 0 sein.</translation>
    </message>
    <message>
        <source>The charge %1 is too high.</source>
        <translation>Die Ladung %1 ist zu hoch.</translation>
    </message>
    <message>
        <source>The retention times are negative or out of order.</source>
        <translation>Die Retentionszeiten sind negativ oder verkehrt herum.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time.</source>
        <translation>„%1“ ist keine Zeit.</translation>
    </message>
    <message>
        <source>There are more than %1 fields.</source>
        <translation>Es gibt mehr als %1 Felder.</translation>
    </message>
    <message>
        <source>The m/z or the charge is no number.</source>
        <translation>Das m/z oder die Ladung ist keine Zahl.</translation>
    </message>
    <message>
        <source>It has %1 entries; %2 are allowed.</source>
        <translation>Sie hat %1 Einträge; erlaubt sind %2.</translation>
    </message>
    <message>
        <source>It is entry %1 of the inclusion list.</source>
        <translation>Es ist Eintrag %1 der Einschlussliste.</translation>
    </message>
    <message>
        <source>It reads &quot;%1&quot;.</source>
        <translation>Er lautet „%1“.</translation>
    </message>
</context>
<context>
    <name>InsilicoPeptidesCsvReader</name>
    <message>
        <source>The file of in-silico peptides can&apos;t be read.</source>
        <translation>Die Datei der In-silico-Peptide kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>There are too many rows.</source>
        <translation>Es gibt zu viele Zeilen.</translation>
    </message>
    <message>
        <source>The file of in-silico peptides has no peptides.</source>
        <translation>Die Datei der In-silico-Peptide hat keine Peptide.</translation>
    </message>
    <message>
        <source>%1 rows have more fields than the header; the rest isn&apos;t used.</source>
        <translation>%1 Zeilen haben mehr Felder als die Kopfzeile; der Rest wird nicht benutzt.</translation>
    </message>
    <message>
        <source>%1 peptides stand twice.</source>
        <translation>%1 Peptide kommen zweimal vor.</translation>
    </message>
    <message>
        <source>There is no column &quot;Sequence&quot;.</source>
        <translation>Es gibt keine Spalte „Sequence“.</translation>
    </message>
    <message>
        <source>There is no sequence.</source>
        <translation>Es gibt keine Sequenz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no sequence of letters.</source>
        <translation>„%1“ ist keine Sequenz aus Buchstaben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no charge.</source>
        <translation>„%1“ ist keine Ladung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from 0.</source>
        <translation>„%1“ ist keine Zahl ab 0.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Die Datei ist %1.</translation>
    </message>
</context>
<context>
    <name>IntactOptionsUtils</name>
    <message>
        <source>The table of deconvolution options can&apos;t be read.</source>
        <translation>Die Tabelle der Dekonvolutions-Einstellungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Row %1: &quot;%2&quot; in the column &quot;%3&quot; is no number of its kind.</source>
        <translation>Zeile %1: „%2“ in der Spalte „%3“ ist keine Zahl dieser Art.</translation>
    </message>
    <message>
        <source>m/z</source>
        <translation>m/z</translation>
    </message>
    <message>
        <source>mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>The adduct &quot;%1&quot; is no chemical formula.</source>
        <translation>Das Addukt „%1“ ist keine chemische Formel.</translation>
    </message>
    <message>
        <source>The range of %1 (%2 to %3) is out of order.</source>
        <translation>Dieser Bereich ist verkehrt herum: %1 (%2 bis %3).</translation>
    </message>
    <message>
        <source>Deconvolution options &quot;%1&quot; (row %2): %3</source>
        <translation>Dekonvolutions-Einstellungen „%1“ (Zeile %2): %3</translation>
    </message>
    <message>
        <source>The deconvolution options &quot;%1&quot; stand twice.</source>
        <translation>Die Dekonvolutions-Einstellungen „%1“ kommen zweimal vor.</translation>
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
    <name>IsotopeUtils</name>
    <message>
        <source>The table of isotopes can&apos;t be read.</source>
        <translation>Die Tabelle der Isotope kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>A formula has no isotope envelope.</source>
        <translation>Eine Formel hat keine Isotopenhülle.</translation>
    </message>
    <message>
        <source>The formula is &quot;%1&quot;. %2</source>
        <translation>Die Formel ist „%1“. %2</translation>
    </message>
    <message>
        <source>There is no natural isotope &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>Es gibt kein natürliches Isotop „%1“ von „%2“.</translation>
    </message>
    <message>
        <source>The enrichment &quot;%1&quot; is no percentage.</source>
        <translation>Die Anreicherung „%1“ ist kein Prozentwert.</translation>
    </message>
    <message>
        <source>The cutoff %1 isn&apos;t between 0 and 1.</source>
        <translation>Die Grenze %1 liegt nicht zwischen 0 und 1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>There can&apos;t be %1 atoms of %2.</source>
        <translation>%1 Atome %2 kann es nicht geben.</translation>
    </message>
    <message>
        <source>Nature has no isotopes of %1.</source>
        <translation>In der Natur gibt es keine Isotope von %1.</translation>
    </message>
    <message>
        <source>The cutoff %1 would leave out %2 % of its molecules; choose a smaller one.</source>
        <translation>Die Grenze %1 würde %2 % seiner Moleküle weglassen; wählen Sie eine kleinere.</translation>
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
    <name>JsonNumbers</name>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>it has more digits than are kept</source>
        <translation>sie hat mehr Stellen, als aufbewahrt werden</translation>
    </message>
</context>
<context>
    <name>JsonUtils</name>
    <message>
        <source>Line %1, column %2.</source>
        <translation>Zeile %1, Spalte %2.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Der Text ist leer.</translation>
    </message>
    <message>
        <source>The text looks like UTF-16; save it as UTF-8.</source>
        <translation>Der Text sieht nach UTF-16 aus; speichern Sie ihn als UTF-8.</translation>
    </message>
    <message>
        <source>The file is binary, no text; name another file.</source>
        <translation>Die Datei ist binär und kein Text; nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8 from there on; save it as UTF-8.</source>
        <translation>Der Text ist von dort an kein gültiges UTF-8; speichern Sie ihn als UTF-8.</translation>
    </message>
    <message>
        <source>Arrays and objects are nested too deeply; at most 1024 levels are read.</source>
        <translation>Listen und Objekte sind zu tief verschachtelt; gelesen werden höchstens 1024 Ebenen.</translation>
    </message>
    <message>
        <source>There is no number that a double can store.</source>
        <translation>Dort steht keine Zahl, die als double gespeichert werden kann.</translation>
    </message>
    <message>
        <source>Text follows behind the document; remove it.</source>
        <translation>Hinter dem Dokument folgt Text; entfernen Sie ihn.</translation>
    </message>
    <message>
        <source>The document is too large for one JSON document.</source>
        <translation>Das Dokument ist zu groß für ein JSON-Dokument.</translation>
    </message>
    <message>
        <source>Mend the text at that place, or restore the file from a copy.</source>
        <translation>Berichtigen Sie den Text an dieser Stelle, oder stellen Sie die Datei aus einer Kopie wieder her.</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; stands twice in one object</source>
        <translation>der Schlüssel „%1“ steht zweimal in einem Objekt</translation>
    </message>
    <message>
        <source>Only one of the two values could be kept; remove the wrong one.</source>
        <translation>Nur einer der beiden Werte könnte bleiben; entfernen Sie den falschen.</translation>
    </message>
    <message>
        <source>the escape %1 is none that JSON knows</source>
        <translation>die Maskierung %1 kennt JSON nicht</translation>
    </message>
    <message>
        <source>The backslash would be lost; to mean one, write \\. Look at the other backslashes too: \t, \n and the like are read as control characters.</source>
        <translation>Der umgekehrte Schrägstrich ginge verloren; ist einer gemeint, schreiben Sie \\. Sehen Sie auch die anderen umgekehrten Schrägstriche an: \t, \n und dergleichen werden als Steuerzeichen gelesen.</translation>
    </message>
    <message>
        <source>the number %1 is none that JSON knows</source>
        <translation>die Zahl %1 kennt JSON nicht</translation>
    </message>
    <message>
        <source>A point has digits on both sides: write 0.5 and 1.0.</source>
        <translation>Ein Punkt hat auf beiden Seiten Ziffern: Schreiben Sie 0.5 und 1.0.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2, but there is %3.</source>
        <translation>„%1“ muss %2 sein, aber es gibt %3.</translation>
    </message>
    <message>
        <source>The JSON document is not an object.</source>
        <translation>Das JSON-Dokument ist kein Objekt.</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>a bool</source>
        <translation>eine Ja/Nein-Angabe</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
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
    <name>KarvonResultFile</name>
    <message>
        <source>The list of MS files is too large: %1</source>
        <translation>Die Liste der MS-Dateien ist zu groß: %1</translation>
    </message>
    <message>
        <source>At most %1 references are read. Restore the file from a copy, or search anew.</source>
        <translation>Höchstens %1 Verweise werden gelesen. Stellen Sie die Datei aus einer Kopie wieder her, oder suchen Sie neu.</translation>
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
    <name>LoadContext</name>
    <message>
        <source>it reads as %1 instead of %2</source>
        <translation>wird als %1 statt %2 gelesen</translation>
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
    <name>MassTolerance</name>
    <message>
        <source>A mass tolerance has an unknown unit.</source>
        <translation>Eine Massentoleranz hat eine unbekannte Einheit.</translation>
    </message>
    <message>
        <source>The unit is &quot;%1&quot;; there are %2.</source>
        <translation>Die Einheit ist „%1“; es gibt %2.</translation>
    </message>
</context>
<context>
    <name>MassTolerances</name>
    <message>
        <source>It is the member &quot;%1&quot; of the mass tolerances.</source>
        <translation>Es ist der Eintrag „%1“ der Massentoleranzen.</translation>
    </message>
</context>
<context>
    <name>MassUtils</name>
    <message>
        <source>Row %1 of the masses</source>
        <translation>Zeile %1 der Massen</translation>
    </message>
    <message>
        <source>Row %1 (&quot;%2&quot;) of the masses</source>
        <translation>Zeile %1 („%2“) der Massen</translation>
    </message>
    <message>
        <source>%1 has the mass &quot;%2&quot;, which is no number. Please enter the mass in Da.</source>
        <translation>%1 hat die Masse „%2“; das ist keine Zahl. Bitte geben Sie die Masse in Da ein.</translation>
    </message>
    <message>
        <source>%1 has no mass. Please enter the mass in Da or remove the row.</source>
        <translation>%1 hat keine Masse. Bitte geben Sie die Masse in Da ein, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>%1 is for the samples %2, which don&apos;t exist. Please choose samples or remove the row.</source>
        <translation>%1 ist für die Proben %2, die es nicht gibt. Bitte wählen Sie Proben, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>%1 is also for the samples %2, which don&apos;t exist.</source>
        <translation>%1 ist auch für die Proben %2, die es nicht gibt.</translation>
    </message>
    <message>
        <source>%1 has no name, so its matches can&apos;t be told apart.</source>
        <translation>%1 hat keinen Namen, sodass sich ihre Treffer nicht unterscheiden lassen.</translation>
    </message>
    <message>
        <source>%1 repeats row %2.</source>
        <translation>%1 wiederholt Zeile %2.</translation>
    </message>
    <message>
        <source>The match tolerance of the masses can&apos;t be read.</source>
        <translation>Die Treffertoleranz der Massen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The value is &quot;%1&quot; and must be a number that is not negative.</source>
        <translation>Der Wert ist „%1“ und muss eine Zahl sein, die nicht negativ ist.</translation>
    </message>
    <message>
        <source>The unit is &quot;%1&quot;; there are %2.</source>
        <translation>Die Einheit ist „%1“; es gibt %2.</translation>
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
    <name>MgfFileReader</name>
    <message>
        <source>The MGF text has no query.</source>
        <translation>Der MGF-Text hat keine Abfrage.</translation>
    </message>
    <message>
        <source>Check that the file is MGF: queries stand between BEGIN IONS and END IONS.</source>
        <translation>Prüfen Sie, ob die Datei MGF ist: Abfragen stehen zwischen BEGIN IONS und END IONS.</translation>
    </message>
</context>
<context>
    <name>MgfReader</name>
    <message>
        <source>A query begins before the one of line %1 has ended.</source>
        <translation>Eine Abfrage beginnt, bevor die in Zeile %1 geendet hat.</translation>
    </message>
    <message>
        <source>A query ends that has not begun.</source>
        <translation>Eine Abfrage endet, die nicht begonnen hat.</translation>
    </message>
    <message>
        <source>The text ends inside the query that begins in line %1.</source>
        <translation>Der Text endet innerhalb der Abfrage, die in Zeile %1 beginnt.</translation>
    </message>
    <message>
        <source>A line is longer than %1 bytes.</source>
        <translation>Eine Zeile ist länger als %1 Bytes.</translation>
    </message>
    <message>
        <source>The MGF text can&apos;t be read.</source>
        <translation>Der MGF-Text kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Copy or export the file again; it may have been cut short on the way.</source>
        <translation>Kopieren oder exportieren Sie die Datei noch einmal; vielleicht wurde sie unterwegs abgeschnitten.</translation>
    </message>
</context>
<context>
    <name>MirelElutionPeaksBackwardsCompatibility</name>
    <message>
        <source>The time range of interest from %1 to %2 minutes can&apos;t be held and is left out; enter it in the peak presets of the table of samples.</source>
        <translation>Der Zeitbereich von %1 bis %2 Minuten kann nicht übernommen werden und wird weggelassen; geben Sie ihn in den Peak-Einstellungen der Tabelle der Proben ein.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>File does not exist</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>The file: &quot;%1&quot; was not found. Would you like to load this file from another directory? If you choose to continue, the traces for this file will not be loaded.</source>
        <translation>Die Datei „%1“ wurde nicht gefunden. Möchten Sie diese Datei aus einem anderen Ordner laden? Wenn Sie fortfahren, werden die Spuren dieser Datei nicht geladen.</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation>Datei suchen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Do not ask again (for this workflow)</source>
        <translation>Nicht noch einmal fragen (für diesen Workflow)</translation>
    </message>
    <message>
        <source>Ms file</source>
        <translation>MS-Datei</translation>
    </message>
</context>
<context>
    <name>ModificationText</name>
    <message>
        <source>A modification can&apos;t be read.</source>
        <translation>Eine Modifikation kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Behind &quot;|&quot; stands &quot;%1&quot;; write fixed, common1 or rare1, with the largest number on a peptide.</source>
        <translation>Hinter „|“ steht „%1“; schreiben Sie fixed, common1 oder rare1, mit der größten Anzahl in einem Peptid.</translation>
    </message>
    <message>
        <source>Write it as name / mass @ residues | fixed, common1 or rare1, not as &quot;%1&quot;.</source>
        <translation>Schreiben Sie sie als Name / Masse @ Reste | fixed, common1 oder rare1, nicht als „%1“.</translation>
    </message>
    <message>
        <source>It has no name.</source>
        <translation>Sie hat keinen Namen.</translation>
    </message>
    <message>
        <source>A name that begins with &quot;%&quot; makes it a comment.</source>
        <translation>Ein Name, der mit „%“ beginnt, macht sie zum Kommentar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a mass in Da nor a formula.</source>
        <translation>„%1“ ist weder eine Masse in Da noch eine Formel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no residue; write letters, NTerm or CTerm with commas between.</source>
        <translation>„%1“ ist kein Rest; schreiben Sie Buchstaben, NTerm oder CTerm mit Kommas dazwischen.</translation>
    </message>
</context>
<context>
    <name>MsDataFormat</name>
    <message>
        <source>Could not find match for converting vendor data format to string: %1</source>
        <translation>Für das Datenformat eines Herstellers gibt es keinen passenden Text: %1</translation>
    </message>
</context>
<context>
    <name>MsReaderAccessor</name>
    <message>
        <source>The MS data can&apos;t be read.</source>
        <translation>Die MS-Daten können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>The MS data aren&apos;t open: %1</source>
        <translation>Die MS-Daten sind nicht geöffnet: %1</translation>
    </message>
</context>
<context>
    <name>MsXmlReading</name>
    <message>
        <source>The document is &quot;%1&quot;, not &quot;mzML&quot;.</source>
        <translation>Das Dokument ist „%1“, nicht „mzML“.</translation>
    </message>
    <message>
        <source>The document is &quot;%1&quot;, not &quot;mzXML&quot;.</source>
        <translation>Das Dokument ist „%1“, nicht „mzXML“.</translation>
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
    <name>ObsoleteCustomSettingsChecker</name>
    <message>
        <source>The advanced configuration has settings that are out of use: %1.</source>
        <translation>Die erweiterte Konfiguration enthält Einstellungen, die nicht mehr benutzt werden: %1.</translation>
    </message>
    <message>
        <source>Remove them from the advanced configuration, and enter their values in %1.</source>
        <translation>Entfernen Sie sie aus der erweiterten Konfiguration, und geben Sie ihre Werte hier ein: %1.</translation>
    </message>
</context>
<context>
    <name>OldSampleLosses</name>
    <message>
        <source>member &quot;%1&quot; of a sample</source>
        <translation>Eintrag „%1“ einer Probe</translation>
    </message>
    <message>
        <source>samples in rows have no such member</source>
        <translation>Proben in Zeilen haben keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>a value of a sample</source>
        <translation>ein Wert einer Probe</translation>
    </message>
    <message>
        <source>it stands behind the last column</source>
        <translation>er steht hinter der letzten Spalte</translation>
    </message>
</context>
<context>
    <name>OrvGenericEditor</name>
    <message>
        <source>...
[%1 more line(s)]</source>
        <translation>...
[Weitere Zeilen: %1]</translation>
    </message>
    <message>
        <source>Unknown editor</source>
        <translation>Unbekannter Editor</translation>
    </message>
</context>
<context>
    <name>PackedFile</name>
    <message>
        <source>The gzip file was cut short.</source>
        <translation>Die gzip-Datei wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>The gzip file is damaged: %1</source>
        <translation>Die gzip-Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>Could not open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>It isn&apos;t there, or its folder can&apos;t be read.</source>
        <translation>Sie ist nicht da, oder ihr Ordner ist nicht lesbar.</translation>
    </message>
    <message>
        <source>It is no regular file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The gzip file can&apos;t be read.</source>
        <translation>Die gzip-Datei kann nicht gelesen werden.</translation>
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
    <name>PortableSamples</name>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cannot copy %1 into %2: %3</source>
        <translation>%1 kann nicht nach %2 kopiert werden: %3</translation>
    </message>
    <message>
        <source>Can&apos;t write to %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>PortableTarget</name>
    <message>
        <source>The folder %1 isn&apos;t replaced.</source>
        <translation>Der Ordner %1 wird nicht ersetzt.</translation>
    </message>
    <message>
        <source>Name another folder, or move away what is in this one.</source>
        <translation>Nennen Sie einen anderen Ordner, oder räumen Sie weg, was in diesem liegt.</translation>
    </message>
    <message>
        <source>Failed to create %1</source>
        <translation>%1 konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>It holds what is no part of a portable workflow: %1.</source>
        <translation>Er enthält, was nicht zu einem portablen Workflow gehört: %1.</translation>
    </message>
    <message>
        <source>It holds what is no part of a portable workflow: %1 and %2 more files.</source>
        <translation>Er enthält, was nicht zu einem portablen Workflow gehört: %1 und %2 weitere Dateien.</translation>
    </message>
    <message>
        <source>Its document has the newer version %1.</source>
        <translation>Sein Dokument hat die neuere Version %1.</translation>
    </message>
    <message>
        <source>It is a file, no folder.</source>
        <translation>Es ist eine Datei und kein Ordner.</translation>
    </message>
    <message>
        <source>Its document can&apos;t be read: %1</source>
        <translation>Sein Dokument kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The folder that is to hold it can&apos;t be made.</source>
        <translation>Der Ordner, der ihn enthalten soll, kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>PreviewPreset</name>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Die Datei kann nicht geöffnet werden: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCreationOptionsDao</name>
    <message>
        <source>The creation options of the project can&apos;t be read: %1</source>
        <translation>Die Einstellungen, mit denen das Projekt angelegt wurde, können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The project has the form %1, and its table %2 lacks the column %3 or %4.</source>
        <translation>Das Projekt hat die Form %1, und seiner Tabelle %2 fehlt die Spalte %3 oder %4.</translation>
    </message>
    <message>
        <source>Open it with a newer version of this software.</source>
        <translation>Öffnen Sie es mit einer neueren Version dieser Software.</translation>
    </message>
    <message>
        <source>Restore the file from a copy, or create the project anew.</source>
        <translation>Stellen Sie die Datei aus einer Kopie wieder her, oder legen Sie das Projekt neu an.</translation>
    </message>
    <message>
        <source>The creation options of the project are too large: %1</source>
        <translation>Die Einstellungen, mit denen das Projekt angelegt wurde, sind zu groß: %1</translation>
    </message>
    <message>
        <source>The option %1 holds %2, at most %3 are read.</source>
        <translation>Die Einstellung %1 umfasst %2, gelesen werden höchstens %3.</translation>
    </message>
</context>
<context>
    <name>ProjectCreationStatusFile</name>
    <message>
        <source>The file is no status of a project&apos;s creation.</source>
        <translation>Die Datei ist kein Status eines Projekts, das angelegt wird.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2. Create the project anew.</source>
        <translation>„%1“ muss %2 sein. Legen Sie das Projekt neu an.</translation>
    </message>
    <message>
        <source>queued, running, done or failed</source>
        <translation>queued, running, done oder failed</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>a moment such as 2024-01-31T10:20:30Z</source>
        <translation>ein Zeitpunkt wie 2024-01-31T10:20:30Z</translation>
    </message>
    <message>
        <source>a whole number from 0 to 100</source>
        <translation>eine ganze Zahl von 0 bis 100</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Die Datei ist %1.</translation>
    </message>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCreationUtils</name>
    <message>
        <source>Could not create a temporary folder in: %1</source>
        <translation>Ein temporärer Ordner konnte nicht angelegt werden in: %1</translation>
    </message>
    <message>
        <source>The project is %1. Check that the folder exists, and the rights on it.</source>
        <translation>Das Projekt ist %1. Prüfen Sie, ob der Ordner da ist, und die Rechte darauf.</translation>
    </message>
</context>
<context>
    <name>ProjectFile</name>
    <message>
        <source>Two creation options of a project have one key: %1</source>
        <translation>Zwei Einstellungen eines Projekts haben denselben Schlüssel: %1</translation>
    </message>
    <message>
        <source>Give each key once.</source>
        <translation>Geben Sie jeden Schlüssel nur einmal an.</translation>
    </message>
    <message>
        <source>Unknown form of a project: %1</source>
        <translation>Unbekannte Form eines Projekts: %1</translation>
    </message>
    <message>
        <source>Known are 1 to %1.</source>
        <translation>Bekannt sind 1 bis %1.</translation>
    </message>
</context>
<context>
    <name>PropertiesCsvReader</name>
    <message>
        <source>The type option &quot;%1&quot; is not of the form name=value.</source>
        <translation>Die Angabe „%1“ zur Art hat nicht die Form Name=Wert.</translation>
    </message>
    <message>
        <source>The table ends too early.</source>
        <translation>Die Tabelle endet zu früh.</translation>
    </message>
    <message>
        <source>A row has %1 fields and not %2.</source>
        <translation>Eine Zeile hat %1 Felder und nicht %2.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>The columns are not %1.</source>
        <translation>Die Spalten sind nicht %1.</translation>
    </message>
    <message>
        <source>There are more than %1 properties.</source>
        <translation>Es gibt mehr als %1 Einstellungen.</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; stands where %2 belongs.</source>
        <translation>Die ID „%1“ steht, wo %2 hingehört.</translation>
    </message>
    <message>
        <source>The property %1 has no name.</source>
        <translation>Die Einstellung %1 hat keinen Namen.</translation>
    </message>
    <message>
        <source>Both %1 and %2 are named &quot;%3&quot;.</source>
        <translation>%1 und %2 heißen beide „%3“.</translation>
    </message>
</context>
<context>
    <name>PropertyEditorJsonUtils</name>
    <message>
        <source>The value is %1.</source>
        <translation>Der Wert ist %1.</translation>
    </message>
</context>
<context>
    <name>PropertyEditorUtils</name>
    <message>
        <source>Workflow has to contain at least one processing node</source>
        <translation>Der Workflow muss mindestens einen Verarbeitungsschritt enthalten</translation>
    </message>
    <message>
        <source>Add a column of a search, an analysis or a report.</source>
        <translation>Fügen Sie eine Spalte mit einer Suche, einer Analyse oder einem Bericht hinzu.</translation>
    </message>
    <message>
        <source>Current workflow processing nodes configuration is not supported</source>
        <translation>Die Verarbeitungsschritte des Workflows werden in dieser Zusammenstellung nicht unterstützt</translation>
    </message>
    <message>
        <source>Searches and previews of different kinds can&apos;t make one project. Keep those of one kind, or add an analysis.</source>
        <translation>Suchen und Vorschauen verschiedener Art ergeben kein gemeinsames Projekt. Behalten Sie die einer Art, oder fügen Sie eine Analyse hinzu.</translation>
    </message>
    <message>
        <source>The project is %1.</source>
        <translation>Das Projekt ist %1.</translation>
    </message>
    <message>
        <source>Name a project that was created from a workflow, or create it anew.</source>
        <translation>Nennen Sie ein Projekt, das aus einem Workflow angelegt wurde, oder legen Sie es neu an.</translation>
    </message>
    <message>
        <source>Workflow is not saved in the project database.</source>
        <translation>Der Workflow ist nicht in der Projektdatenbank gespeichert.</translation>
    </message>
    <message>
        <source>Unable to load the workflow, multiple MirelProjectCreationOptions keys found.</source>
        <translation>Der Workflow kann nicht geladen werden; es gibt mehrere Schlüssel MirelProjectCreationOptions.</translation>
    </message>
    <message>
        <source>Found are %1. Restore the project from a copy, or create it anew.</source>
        <translation>Gefunden wurden %1. Stellen Sie das Projekt aus einer Kopie wieder her, oder legen Sie es neu an.</translation>
    </message>
    <message>
        <source>Incompatible workflow version: %1</source>
        <translation>Nicht passende Version des Workflows: %1</translation>
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
    <name>PropertyGridWidget</name>
    <message>
        <source>Expand all</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Create copy</source>
        <translation>Kopie anlegen</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Load xenoset ...</source>
        <translation>xenoset laden ...</translation>
    </message>
    <message>
        <source>Load prv...</source>
        <translation>prv laden...</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>The column was removed while it was added.</source>
        <translation>Die Spalte wurde entfernt, während sie hinzugefügt wurde.</translation>
    </message>
    <message>
        <source>No items to load.</source>
        <translation>Es gibt keine Zellen zu laden.</translation>
    </message>
    <message>
        <source>No columns added.</source>
        <translation>Es wurden keine Spalten hinzugefügt.</translation>
    </message>
    <message>
        <source>Json parsing error: %1</source>
        <translation>JSON konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Type &quot;%1&quot; is not supported.</source>
        <translation>Die Art „%1“ wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Can&apos;t create item for &quot;%1&quot; type.</source>
        <translation>Für die Art „%1“ kann keine Zelle angelegt werden.</translation>
    </message>
    <message>
        <source>Rename column</source>
        <translation>Spalte umbenennen</translation>
    </message>
    <message>
        <source>New column name:</source>
        <translation>Neuer Name der Spalte:</translation>
    </message>
</context>
<context>
    <name>PropertyLists</name>
    <message>
        <source>&quot;%1&quot; must be an integer.</source>
        <translation>„%1“ muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the value %2 at the position %3.</source>
        <translation>„%1“ hat den Wert %2 an der Position %3.</translation>
    </message>
    <message>
        <source>The value %1 is given twice.</source>
        <translation>Der Wert %1 ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; is given twice.</source>
        <translation>Der Schlüssel „%1“ ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>An id is not the number of a property.</source>
        <translation>Eine ID ist nicht die Nummer einer Einstellung.</translation>
    </message>
    <message>
        <source>The property %1 has two lists.</source>
        <translation>Die Einstellung %1 hat zwei Listen.</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; is given twice.</source>
        <translation>Der Text „%1“ ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be true or false.</source>
        <translation>„%1“ muss true oder false sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of list.</source>
        <translation>„%1“ ist keine Art von Liste.</translation>
    </message>
    <message>
        <source>list %1 of the file</source>
        <translation>Liste %1 der Datei</translation>
    </message>
</context>
<context>
    <name>PropertyLosses</name>
    <message>
        <source>value of the property &quot;%1&quot;</source>
        <translation>Wert der Einstellung „%1“</translation>
    </message>
    <message>
        <source>it is %1 that this property can&apos;t hold</source>
        <translation>ist %1, was diese Einstellung nicht aufnimmt</translation>
    </message>
    <message>
        <source>group of the property &quot;%1&quot;</source>
        <translation>Gruppe der Einstellung „%1“</translation>
    </message>
    <message>
        <source>priority of the property &quot;%1&quot;</source>
        <translation>Priorität der Einstellung „%1“</translation>
    </message>
    <message>
        <source>member &quot;%1&quot; of the property &quot;%2&quot;</source>
        <translation>Eintrag „%1“ der Einstellung „%2“</translation>
    </message>
    <message>
        <source>the format has no such member here</source>
        <translation>das Format kennt hier keinen solchen Eintrag</translation>
    </message>
</context>
<context>
    <name>PropertySetCreator</name>
    <message>
        <source>Cannot find an internal name of the property #%1</source>
        <translation>Der interne Name der Einstellung #%1 ist nicht zu finden</translation>
    </message>
    <message>
        <source>Cannot apply the type of %1</source>
        <translation>Die Art von %1 lässt sich nicht anwenden</translation>
    </message>
    <message>
        <source>Cannot convert the value of %1</source>
        <translation>Der Wert von %1 lässt sich nicht umwandeln</translation>
    </message>
    <message>
        <source>member &quot;%1&quot; of a cell</source>
        <translation>Eintrag „%1“ einer Zelle</translation>
    </message>
    <message>
        <source>a cell of settings holds texts, numbers and switches only</source>
        <translation>eine Zelle von Einstellungen enthält nur Texte, Zahlen und Schalter</translation>
    </message>
    <message>
        <source>names that differ in case alone are one name</source>
        <translation>Namen, die sich nur in Groß- und Kleinschreibung unterscheiden, gelten als ein Name</translation>
    </message>
    <message>
        <source>Property &quot;%1&quot; is not supported.</source>
        <translation>Die Einstellung „%1“ wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>a setting of this name stands before it</source>
        <translation>eine Einstellung dieses Namens steht davor</translation>
    </message>
    <message>
        <source>property &quot;%1&quot;</source>
        <translation>Einstellung „%1“</translation>
    </message>
    <message>
        <source>Invalid JSON object.</source>
        <translation>Ungültiges JSON-Objekt.</translation>
    </message>
    <message>
        <source>Failed to parse json.</source>
        <translation>JSON konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>PropertyText</name>
    <message>
        <source> in %1</source>
        <translation> in %1</translation>
    </message>
    <message>
        <source> from %1 to %2</source>
        <translation> von %1 bis %2</translation>
    </message>
    <message>
        <source> above %1 and at most %2</source>
        <translation> über %1 und höchstens %2</translation>
    </message>
    <message>
        <source> of at least %1 and below %2</source>
        <translation> von mindestens %1 und unter %2</translation>
    </message>
    <message>
        <source> above %1 and below %2</source>
        <translation> über %1 und unter %2</translation>
    </message>
    <message>
        <source>%1 for &quot;%2&quot;</source>
        <translation>%1 für „%2“</translation>
    </message>
    <message>
        <source>any text, such as %1</source>
        <translation>beliebige Texte, etwa %1</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>eines von: %1</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not allowed for %2.</source>
        <translation>Der Wert „%1“ ist für %2 nicht erlaubt.</translation>
    </message>
    <message>
        <source>Allowed: %1.</source>
        <translation>Erlaubt: %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a path or the text of a reference</source>
        <translation>Pfad oder Text eines Verweises</translation>
    </message>
    <message>
        <source>a JSON object</source>
        <translation>ein JSON-Objekt</translation>
    </message>
    <message>
        <source>any of these, separated by commas: %1</source>
        <translation>beliebige davon, mit Kommas dazwischen: %1</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>a number from %1 to %2 with the unit %3, such as &quot;5 %4&quot;</source>
        <translation>eine Zahl von %1 bis %2 mit der Einheit %3, etwa „5 %4“</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
</context>
<context>
    <name>PropertyVerification</name>
    <message>
        <source>The value of &quot;%1&quot; must be greater than %2</source>
        <translation>Der Wert von „%1“ muss größer als %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must be greater or equal to %2</source>
        <translation>Der Wert von „%1“ muss größer oder gleich %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must be less than %2</source>
        <translation>Der Wert von „%1“ muss kleiner als %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must be less or equal to %2</source>
        <translation>Der Wert von „%1“ muss kleiner oder gleich %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must be equal to %2</source>
        <translation>Der Wert von „%1“ muss gleich %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must not be equal to %2</source>
        <translation>Der Wert von „%1“ darf nicht gleich %2 sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must not be empty</source>
        <translation>Der Wert von „%1“ darf nicht leer sein</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must contain &quot;%2&quot;</source>
        <translation>Der Wert von „%1“ muss „%2“ enthalten</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must not contain &quot;%2&quot;</source>
        <translation>Der Wert von „%1“ darf „%2“ nicht enthalten</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must start with &quot;%2&quot;</source>
        <translation>Der Wert von „%1“ muss mit „%2“ beginnen</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must end with &quot;%2&quot;</source>
        <translation>Der Wert von „%1“ muss mit „%2“ enden</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; must be empty</source>
        <translation>Der Wert von „%1“ muss leer sein</translation>
    </message>
    <message>
        <source>The value of &quot;%2&quot; must be in range %1</source>
        <translation>Der Wert von „%2“ muss im Bereich %1 liegen</translation>
    </message>
</context>
<context>
    <name>PropertyVerificationBuiltin</name>
    <message>
        <source>&quot;%1&quot; is not a URL</source>
        <translation>„%1“ ist keine URL</translation>
    </message>
    <message>
        <source>&quot;%1&quot; specifies a file that does not come from the application bundle &quot;%3&quot;</source>
        <translation>„%1“ nennt eine Datei, die nicht zu dieser Anwendung gehört: „%3“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; specifies a non-local file &quot;%3&quot;</source>
        <translation>„%1“ nennt eine Datei, die nicht auf diesem Rechner liegt: „%3“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; specifies a file on a network drive: &quot;%3&quot;. The project creation process may work unstable</source>
        <translation>„%1“ nennt eine Datei auf einem Netzlaufwerk: „%3“. Das Anlegen des Projekts läuft dann vielleicht nicht stabil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; specifies a non-existent file &quot;%3&quot;</source>
        <translation>„%1“ nennt eine Datei, die es nicht gibt: „%3“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; specifies an invalid reference to a file on the Talvane server</source>
        <translation>„%1“ enthält einen ungültigen Verweis auf eine Datei des Talvane-Servers</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must not contain more than one &quot;%2&quot; substring</source>
        <translation>„%1“ darf „%2“ nicht mehr als einmal enthalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must specify at least one isotope</source>
        <translation>„%1“ muss mindestens ein Isotop nennen</translation>
    </message>
</context>
<context>
    <name>ProteinAnnotationEntry</name>
    <message>
        <source>A protein annotation must be an object.</source>
        <translation>Eine Annotation eines Proteins muss ein Objekt sein.</translation>
    </message>
    <message>
        <source>There is %1.</source>
        <translation>Es gibt %1.</translation>
    </message>
    <message>
        <source>It is the protein annotation %1.</source>
        <translation>Es ist die Protein-Annotation %1.</translation>
    </message>
</context>
<context>
    <name>ProteinAutoPopulateOptions</name>
    <message>
        <source>The name of combined proteins is malformed.</source>
        <translation>Der Name kombinierter Proteine ist falsch gebildet.</translation>
    </message>
    <message>
        <source>Write it as &quot;Auto(HC:0-2,LC:0-2)&quot;.</source>
        <translation>Schreiben Sie ihn als „Auto(HC:0-2,LC:0-2)“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no chain with a count.</source>
        <translation>„%1“ ist keine Kette mit einer Anzahl.</translation>
    </message>
    <message>
        <source>The counts of &quot;%1&quot; are out of order or too large.</source>
        <translation>Die Anzahlen von „%1“ sind verkehrt herum oder zu groß.</translation>
    </message>
    <message>
        <source>It has more than %1 characters.</source>
        <translation>Er hat mehr als %1 Zeichen.</translation>
    </message>
    <message>
        <source>It must begin with &quot;Auto(&quot; and end with &quot;)&quot;.</source>
        <translation>Er muss mit „Auto(“ beginnen und mit „)“ enden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice.</source>
        <translation>„%1“ kommt zweimal vor.</translation>
    </message>
    <message>
        <source>There is no chain &quot;%1&quot;.</source>
        <translation>Es gibt keine Kette „%1“.</translation>
    </message>
    <message>
        <source>It stands for more than %1 proteins.</source>
        <translation>Er steht für mehr als %1 Proteine.</translation>
    </message>
</context>
<context>
    <name>ProteinDigestionItem</name>
    <message>
        <source>The digestion text is malformed.</source>
        <translation>Der Text der Verdauung ist falsch gebildet.</translation>
    </message>
    <message>
        <source>Write it as &quot;Trypsin @ R,K | C-term&quot;.</source>
        <translation>Schreiben Sie ihn als „Trypsin @ R,K | C-term“.</translation>
    </message>
    <message>
        <source>A sequence can&apos;t be digested.</source>
        <translation>Eine Sequenz kann nicht verdaut werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a residue: residues are single capital letters.</source>
        <translation>„%1“ ist kein Rest: Reste sind einzelne Großbuchstaben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a side: there are %2 and %3.</source>
        <translation>„%1“ ist keine Seite: Es gibt %2 und %3.</translation>
    </message>
    <message>
        <source>It has %1 residues; 1 to %2 can be digested.</source>
        <translation>Sie hat %1 Reste; verdaut werden können 1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at residue %2 is not a capital letter.</source>
        <translation>„%1“ beim Rest %2 ist kein Großbuchstabe.</translation>
    </message>
    <message>
        <source>The limits of a digestion are out of order.</source>
        <translation>Die Grenzen einer Verdauung sind verkehrt herum.</translation>
    </message>
    <message>
        <source>Missed cleavages: %1; lengths: %2 to %3.</source>
        <translation>Nicht geschnittene Stellen: %1; Längen: %2 bis %3.</translation>
    </message>
    <message>
        <source>There are too many peptides. Allow fewer missed cleavages or shorter peptides.</source>
        <translation>Es gibt zu viele Peptide. Erlauben Sie weniger nicht geschnittene Stellen oder kürzere Peptide.</translation>
    </message>
    <message>
        <source>It has %1 characters; %2 are allowed.</source>
        <translation>Er hat %1 Zeichen; erlaubt sind %2.</translation>
    </message>
    <message>
        <source>It must have one &quot;@&quot;, behind the name.</source>
        <translation>Er muss ein einziges „@“ haben, hinter dem Namen.</translation>
    </message>
    <message>
        <source>It must have one &quot;|&quot;, behind the residues.</source>
        <translation>Er muss ein einziges „|“ haben, hinter den Resten.</translation>
    </message>
    <message>
        <source>The name before &quot;@&quot; must not be empty and must not hold &quot;|&quot;.</source>
        <translation>Der Name vor „@“ darf nicht leer sein und kein „|“ enthalten.</translation>
    </message>
</context>
<context>
    <name>ProteinGenerator</name>
    <message>
        <source>A protein is too large.</source>
        <translation>Ein Protein ist zu groß.</translation>
    </message>
    <message>
        <source>The sequences of &quot;%1&quot; have more than %2 letters together.</source>
        <translation>Die Sequenzen von „%1“ haben zusammen mehr als %2 Buchstaben.</translation>
    </message>
    <message>
        <source>The tables of proteins can&apos;t be read.</source>
        <translation>Die Tabellen der Proteine können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Row %1 of the table &quot;%2&quot;: %3</source>
        <translation>Zeile %1 der Tabelle „%2“: %3</translation>
    </message>
    <message>
        <source>There is no type &quot;%1&quot; of chains.</source>
        <translation>Es gibt keine Art „%1“ von Ketten.</translation>
    </message>
    <message>
        <source>The number %1 is below 1 or another chain&apos;s.</source>
        <translation>Die Nummer %1 ist kleiner als 1 oder die einer anderen Kette.</translation>
    </message>
    <message>
        <source>There is no chain %1.</source>
        <translation>Es gibt keine Kette %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count of disulfide bonds.</source>
        <translation>„%1“ ist keine Anzahl von Disulfidbrücken.</translation>
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
    <name>ProteinUtils</name>
    <message>
        <source>No protein uses the chain &quot;%1&quot;.</source>
        <translation>Kein Protein benutzt die Kette „%1“.</translation>
    </message>
    <message>
        <source>Two chains have the id &quot;%1&quot;.</source>
        <translation>Zwei Ketten haben die ID „%1“.</translation>
    </message>
    <message>
        <source>Two chains have the name &quot;%1&quot;.</source>
        <translation>Zwei Ketten haben den Namen „%1“.</translation>
    </message>
    <message>
        <source>The chain &quot;%1&quot; has no sequence.</source>
        <translation>Die Kette „%1“ hat keine Sequenz.</translation>
    </message>
    <message>
        <source>The chain &quot;%1&quot; has no mass. %2</source>
        <translation>Die Kette „%1“ hat keine Masse. %2</translation>
    </message>
    <message>
        <source>A protein has no name, so its masses can&apos;t be told apart.</source>
        <translation>Ein Protein hat keinen Namen, sodass sich seine Massen nicht unterscheiden lassen.</translation>
    </message>
    <message>
        <source>The protein &quot;%1&quot; has no chains.</source>
        <translation>Das Protein „%1“ hat keine Ketten.</translation>
    </message>
    <message>
        <source>The protein &quot;%1&quot; has %2 disulfide bonds but %3 cysteines.</source>
        <translation>Das Protein „%1“ hat %2 Disulfidbrücken, aber %3 Cysteine.</translation>
    </message>
    <message>
        <source>The protein &quot;%1&quot; is for the samples %2, which don&apos;t exist.</source>
        <translation>Das Protein „%1“ ist für die Proben %2, die es nicht gibt.</translation>
    </message>
</context>
<context>
    <name>PtsonUtils</name>
    <message>
        <source>Cannot clean %1</source>
        <translation>%1 kann nicht geleert werden</translation>
    </message>
    <message>
        <source>Failed to create %1</source>
        <translation>%1 konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>URL &quot;%1&quot; is not valid</source>
        <translation>Die URL „%1“ ist nicht gültig</translation>
    </message>
    <message>
        <source>Cannot copy %1 into %2</source>
        <translation>%1 kann nicht nach %2 kopiert werden</translation>
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
    <name>QObject</name>
    <message>
        <source>The sample name at row #%1 is empty</source>
        <translation>Der Name der Probe in Zeile #%1 ist leer</translation>
    </message>
    <message>
        <source>Give the sample a name.</source>
        <translation>Geben Sie der Probe einen Namen.</translation>
    </message>
    <message>
        <source>The sample at row #%1 contains illegal character: &quot;</source>
        <translation>Die Probe in Zeile #%1 enthält ein unerlaubtes Zeichen: &quot;</translation>
    </message>
    <message>
        <source>Take the quotation mark out of the sample&apos;s name.</source>
        <translation>Nehmen Sie das Anführungszeichen aus dem Namen der Probe.</translation>
    </message>
    <message>
        <source>Duplicated sample names found: %1</source>
        <translation>Namen von Proben kommen mehrmals vor: %1</translation>
    </message>
    <message>
        <source>Give each sample a name of its own.</source>
        <translation>Geben Sie jeder Probe einen eigenen Namen.</translation>
    </message>
    <message>
        <source>Mend it among the options of traces of the table of samples.</source>
        <translation>Berichtigen Sie es bei den Einstellungen der Spuren in der Tabelle der Proben.</translation>
    </message>
    <message>
        <source>Cannot create a project using an MGF sample with no MS1 data.</source>
        <translation>Mit einer MGF-Probe ohne MS1-Daten kann kein Projekt angelegt werden.</translation>
    </message>
    <message>
        <source>Convert the raw data of &quot;%1&quot; anew, with its MS1 spectra.</source>
        <translation>Wandeln Sie die Rohdaten von „%1“ neu um, mit ihren MS1-Spektren.</translation>
    </message>
    <message>
        <source>Choose where it is now, or put it there: &quot;%1&quot;.</source>
        <translation>Wählen Sie, wo sie jetzt liegt, oder legen Sie sie dorthin: „%1“.</translation>
    </message>
    <message>
        <source>The traces path of the sample &quot;%1&quot; does not exist</source>
        <translation>Den Pfad der Spuren der Probe „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>The sample path of the sample &quot;%1&quot; does not exist</source>
        <translation>Den Pfad der Probe „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 gibt es nicht</translation>
    </message>
    <message>
        <source>The sample path and traces path of the sample &quot;%1&quot; are empty</source>
        <translation>Der Pfad der Probe „%1“ und der Pfad ihrer Spuren sind leer</translation>
    </message>
    <message>
        <source>Choose the file of this sample, or remove the sample.</source>
        <translation>Wählen Sie die Datei dieser Probe, oder entfernen Sie die Probe.</translation>
    </message>
    <message>
        <source>The sample path of the sample &quot;%1&quot; should be MS file or project file</source>
        <translation>Der Pfad der Probe „%1“ muss eine MS-Datei oder eine Projektdatei nennen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither. Choose mass-spectrometry data, or a project to compare with.</source>
        <translation>„%1“ ist keines von beiden. Wählen Sie massenspektrometrische Daten, oder ein Projekt zum Vergleichen.</translation>
    </message>
    <message>
        <source>Choose another file in place of &quot;%1&quot;, or remove it.</source>
        <translation>Wählen Sie anstelle von „%1“ eine andere Datei, oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>The traces path for electropherogram file (.pI) is only supported for Dravik</source>
        <translation>Ein Pfad von Spuren mit Elektropherogramm (.pI) wird nur für Dravik unterstützt</translation>
    </message>
    <message>
        <source>The traces path for icIEF file (.itb) is only supported for Intact</source>
        <translation>Ein Pfad von Spuren mit icIEF-Datei (.itb) wird nur für Intact unterstützt</translation>
    </message>
    <message>
        <source>The traces path of the sample &quot;%1&quot; should be %2 file / text file / pI file / icIEF file</source>
        <translation>Der Pfad der Spuren der Probe „%1“ muss eine von diesen nennen: %2-Datei / Textdatei / pI-Datei / icIEF-Datei</translation>
    </message>
    <message>
        <source>The document path with id &quot;%1&quot; is empty</source>
        <translation>Der Pfad des Dokuments mit der ID „%1“ ist leer</translation>
    </message>
    <message>
        <source>Choose a document, or remove the row.</source>
        <translation>Wählen Sie ein Dokument, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The file path with id &quot;%1&quot; is not a correct document type. Allowed files are: %2</source>
        <translation>Der Pfad der Datei mit der ID „%1“ nennt kein Dokument der richtigen Art. Erlaubte Dateien sind: %2</translation>
    </message>
    <message>
        <source>Choose the project of an analysis.</source>
        <translation>Wählen Sie das Projekt einer Analyse.</translation>
    </message>
    <message>
        <source>All documents should have the same type</source>
        <translation>Alle Dokumente müssen von derselben Art sein</translation>
    </message>
    <message>
        <source>Make a report of its own for each type of documents.</source>
        <translation>Machen Sie für jede Art von Dokumenten einen eigenen Bericht.</translation>
    </message>
    <message>
        <source>Put the file there, or choose another one.</source>
        <translation>Legen Sie die Datei dorthin, oder wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Multi-vendor projects are not yet supported. Please ensure all samples belong to the same vendor.</source>
        <translation>Projekte mit mehreren Herstellern werden noch nicht unterstützt. Bitte sorgen Sie dafür, dass alle Proben vom selben Hersteller stammen.</translation>
    </message>
    <message>
        <source>Move this sample and others of its vendor to a workflow of their own.</source>
        <translation>Verschieben Sie diese Probe und andere ihres Herstellers in einen eigenen Workflow.</translation>
    </message>
    <message>
        <source>Not valid source</source>
        <translation>Ungültige Quelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not reached by the server. Choose a file that it has.</source>
        <translation>„%1“ ist für den Server nicht erreichbar. Wählen Sie eine Datei, die er hat.</translation>
    </message>
    <message>
        <source>The sample path of the sample &quot;%1&quot; is invalid</source>
        <translation>Der Pfad der Probe „%1“ ist ungültig</translation>
    </message>
    <message>
        <source>The sample path of the sample &quot;%1&quot; should be an existing resource.</source>
        <translation>Der Pfad der Probe „%1“ muss eine vorhandene Ressource nennen.</translation>
    </message>
    <message>
        <source>The sample path of the sample &quot;%1&quot; should be tolq or reference project file</source>
        <translation>Der Pfad der Probe „%1“ muss tolq oder eine Referenz-Projektdatei nennen</translation>
    </message>
    <message>
        <source>Choose an acquired sample (.tolq), or a project to compare with.</source>
        <translation>Wählen Sie eine aufgenommene Probe (.tolq), oder ein Projekt zum Vergleichen.</translation>
    </message>
    <message>
        <source>The source path of the sample &quot;%1&quot; is unknown</source>
        <translation>Die Quelle des Pfads der Probe „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>The traces path of the sample &quot;%1&quot; is invalid</source>
        <translation>Der Pfad der Spuren der Probe „%1“ ist ungültig</translation>
    </message>
    <message>
        <source>The source of the traces path of the sample &quot;%1&quot; is unknown</source>
        <translation>Die Quelle des Pfads der Spuren der Probe „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>%1 is not valid talvane reference</source>
        <translation>%1 ist kein gültiger Talvane-Verweis</translation>
    </message>
    <message>
        <source>The source path of the document with id &quot;%1&quot; is unknown</source>
        <translation>Die Quelle des Pfads des Dokuments mit der ID „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>Cannot perform quantitative analysis using merged Ulvar2 files</source>
        <translation>Mit zusammengeführten Ulvar2-Dateien ist keine quantitative Analyse möglich</translation>
    </message>
    <message>
        <source>Use the files that &quot;%1&quot; was merged from.</source>
        <translation>Benutzen Sie die Dateien, aus denen „%1“ zusammengeführt wurde.</translation>
    </message>
    <message>
        <source>%1 is not an enum value</source>
        <translation>%1 ist kein Wert der Aufzählung</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; is &quot;%2&quot; or &quot;%3&quot;.</source>
        <translation>Die Einstellung „%1“ ist „%2“ oder „%3“.</translation>
    </message>
    <message>
        <source>For more efficient processing, the workflow was updated to use the fast XIC method.</source>
        <translation>Damit die Verarbeitung schneller ist, benutzt der Workflow jetzt das schnelle XIC-Verfahren.</translation>
    </message>
    <message>
        <source>Workflow does not contain the expected trace peak option presets.</source>
        <translation>Der Workflow enthält nicht die erwarteten Vorlagen von Peak-Einstellungen der Spuren.</translation>
    </message>
    <message>
        <source>There are %1 presets, and the fifth is the model of a new one. Add presets with the version that made the workflow.</source>
        <translation>Es gibt %1 Vorlagen, und die fünfte ist das Muster für eine neue. Fügen Sie mit der Version, die den Workflow gemacht hat, Vorlagen hinzu.</translation>
    </message>
    <message>
        <source>Cannot find properties for &quot;%1&quot; group</source>
        <translation>Die Einstellungen der Gruppe „%1“ sind nicht zu finden</translation>
    </message>
    <message>
        <source>The cell &quot;%1&quot; lacks them.</source>
        <translation>Sie fehlen der Zelle „%1“.</translation>
    </message>
    <message>
        <source>The building block &quot;%1&quot; has the unknown type &quot;%2&quot;.</source>
        <translation>Der Baustein „%1“ hat die unbekannte Art „%2“.</translation>
    </message>
    <message>
        <source>It belongs to the building block &quot;%1&quot;.</source>
        <translation>Sie gehört zum Baustein „%1“.</translation>
    </message>
    <message>
        <source>The workflow has no tab &quot;Sequences&quot; with a column. Add it with the version that made the workflow.</source>
        <translation>Der Workflow hat keinen Reiter „Sequences“ mit einer Spalte. Fügen Sie ihn mit der Version hinzu, die den Workflow gemacht hat.</translation>
    </message>
    <message>
        <source>Unable to get samples from the workflow.</source>
        <translation>Die Proben des Workflows lassen sich nicht lesen.</translation>
    </message>
    <message>
        <source>Upgrade not possible.</source>
        <translation>Die Aktualisierung ist nicht möglich.</translation>
    </message>
    <message>
        <source>There are no samples in the workflow.</source>
        <translation>Der Workflow enthält keine Proben.</translation>
    </message>
    <message>
        <source>Upgrade not possible. A valid compatibility metadata not provided in the Tolq file: %1</source>
        <translation>Die Aktualisierung ist nicht möglich. Der Tolq-Datei fehlen gültige Metadaten zur Kompatibilität: %1</translation>
    </message>
    <message>
        <source>Upgrade with sources different than Talvane server is not supported.</source>
        <translation>Die Aktualisierung mit anderen Quellen als dem Talvane-Server wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Upgrade not possible. An error occured while trying to access the file: %1.</source>
        <translation>Die Aktualisierung ist nicht möglich. Beim Zugriff auf diese Datei trat ein Fehler auf: %1.</translation>
    </message>
    <message>
        <source>Cannot update UNIFI sample metadata without UNIFI server being enabled.</source>
        <translation>Die Metadaten einer UNIFI-Probe lassen sich nicht aktualisieren, solange der UNIFI-Server nicht eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Cannot update metadata of the sample %1 due to the following error:
%2</source>
        <translation>Die Metadaten der Probe %1 lassen sich wegen dieses Fehlers nicht aktualisieren:
%2</translation>
    </message>
    <message>
        <source>Cannot get the metadata of the sample.</source>
        <translation>Die Metadaten der Probe sind nicht zu bekommen.</translation>
    </message>
    <message>
        <source>Cannot update a workflow with UNIFI sample without UNIFI server being enabled.</source>
        <translation>Ein Workflow mit einer UNIFI-Probe lässt sich nicht aktualisieren, solange der UNIFI-Server nicht eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Cannot update UNIFI reference without metadata.</source>
        <translation>Ein UNIFI-Verweis lässt sich ohne Metadaten nicht aktualisieren.</translation>
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
    <name>ResourceHandler</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Restore the file, or refer to another one.</source>
        <translation>Stellen Sie die Datei wieder her, oder verweisen Sie auf eine andere.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no metadata.</source>
        <translation>„%1“ hat keine Metadaten.</translation>
    </message>
</context>
<context>
    <name>ResourceManager</name>
    <message>
        <source>The reference is empty.</source>
        <translation>Der Verweis ist leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be reached from here.</source>
        <translation>„%1“ ist von hier aus nicht erreichbar.</translation>
    </message>
    <message>
        <source>The application is not connected to the server that holds it. Connect it, or refer to a local file.</source>
        <translation>Die Anwendung ist nicht mit dem Server verbunden, der sie hat. Verbinden Sie sie, oder verweisen Sie auf eine Datei dieses Rechners.</translation>
    </message>
</context>
<context>
    <name>ResourceReference</name>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>The identifier has no end.</source>
        <translation>Die Kennung hat kein Ende.</translation>
    </message>
    <message>
        <source>Write it in braces, &quot;unifi:/SERVER/{ID}/FOLDER/NAME&quot;.</source>
        <translation>Schreiben Sie sie in geschweiften Klammern, „unifi:/SERVER/{ID}/ORDNER/NAME“.</translation>
    </message>
    <message>
        <source>server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a reference to a file.</source>
        <translation>„%1“ ist kein Verweis auf eine Datei.</translation>
    </message>
    <message>
        <source>It holds a zero character; take that out.</source>
        <translation>Er enthält ein Nullzeichen; nehmen Sie es heraus.</translation>
    </message>
    <message>
        <source>Put a slash behind the colon, or &quot;./&quot; in front of a file name.</source>
        <translation>Setzen Sie einen Schrägstrich hinter den Doppelpunkt, oder „./“ vor einen Dateinamen.</translation>
    </message>
    <message>
        <source>It has no %1.</source>
        <translation>Es fehlt: %1.</translation>
    </message>
    <message>
        <source>Its percent codes are no UTF-8; name the file by its path.</source>
        <translation>Seine Prozent-Kodierungen sind kein UTF-8; nennen Sie die Datei mit ihrem Pfad.</translation>
    </message>
    <message>
        <source>It is the address of a service that isn&apos;t known here.</source>
        <translation>Es ist die Adresse eines Dienstes, der hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>A reference of scheme %1 has no parts.</source>
        <translation>Ein Verweis mit dem Schema %1 hat keine Teile.</translation>
    </message>
    <message>
        <source>A reference needs its %1.</source>
        <translation>Einem Verweis fehlt: %1.</translation>
    </message>
    <message>
        <source>It is to be of the form &quot;%1&quot;.</source>
        <translation>Er muss die Form „%1“ haben.</translation>
    </message>
    <message>
        <source>A part holds what separates parts.</source>
        <translation>Ein Teil enthält, was Teile voneinander trennt.</translation>
    </message>
    <message>
        <source>A UNIFI item needs its identifier.</source>
        <translation>Ein UNIFI-Objekt braucht seine Kennung.</translation>
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
    <name>SequenceDatabaseItems</name>
    <message>
        <source>A row of the sequence databases is no object.</source>
        <translation>Eine Zeile der Sequenzdatenbanken ist kein Objekt.</translation>
    </message>
    <message>
        <source>Element %1 of &quot;%2&quot; is %3; remove it, or restore the file from a copy.</source>
        <translation>Element %1 von „%2“ ist %3; entfernen Sie es, oder stellen Sie die Datei aus einer Kopie wieder her.</translation>
    </message>
    <message>
        <source>Sequence databases table cannot contain empty entries.</source>
        <translation>Die Tabelle der Sequenzdatenbanken darf keine leeren Zeilen enthalten.</translation>
    </message>
    <message>
        <source>Sequence databases table contains a fasta file that does not exist</source>
        <translation>Die Tabelle der Sequenzdatenbanken enthält eine FASTA-Datei, die es nicht gibt</translation>
    </message>
    <message>
        <source>Sequence databases table contains fasta files that do not exist</source>
        <translation>Die Tabelle der Sequenzdatenbanken enthält FASTA-Dateien, die es nicht gibt</translation>
    </message>
    <message>
        <source>Sequence databases table contains a non-fasta file.</source>
        <translation>Die Tabelle der Sequenzdatenbanken enthält eine Datei, die nicht FASTA ist.</translation>
    </message>
    <message>
        <source>Sequence databases table contains non-fasta files</source>
        <translation>Die Tabelle der Sequenzdatenbanken enthält Dateien, die nicht FASTA sind</translation>
    </message>
    <message>
        <source>Sequence databases table contains duplicate fasta files:
%1.</source>
        <translation>Die Tabelle der Sequenzdatenbanken enthält FASTA-Dateien mehrmals:
%1.</translation>
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
    <name>ServerSettings</name>
    <message>
        <source>Write it as https://HOST:PORT.</source>
        <translation>Schreiben Sie sie als https://HOST:PORT.</translation>
    </message>
    <message>
        <source>Take the user and the password out of it; who asks is shown by a token.</source>
        <translation>Nehmen Sie den Benutzer und das Passwort heraus; wer fragt, zeigt ein Token.</translation>
    </message>
    <message>
        <source>Take out what stands behind &quot;?&quot; or &quot;#&quot;.</source>
        <translation>Nehmen Sie heraus, was hinter „?“ oder „#“ steht.</translation>
    </message>
    <message>
        <source>Servers other than this machine are asked over https:// only.</source>
        <translation>Andere Server als dieser Rechner werden nur über https:// gefragt.</translation>
    </message>
    <message>
        <source>The address of the server isn&apos;t set.</source>
        <translation>Die Adresse des Servers ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to the address of the server.</source>
        <translation>Setzen Sie „%1“ auf die Adresse des Servers.</translation>
    </message>
    <message>
        <source>The address in the setting &quot;%1&quot; can&apos;t be used.</source>
        <translation>Die Adresse in der Einstellung „%1“ kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>The token in the variable %1 can&apos;t be used.</source>
        <translation>Das Token in der Variablen %1 kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>It holds blanks or characters that are no ASCII; copy it again.</source>
        <translation>Es enthält Leerzeichen oder Zeichen, die nicht ASCII sind; kopieren Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>Servers</name>
    <message>
        <source>The folder &quot;%1&quot; for files from servers can&apos;t be used.</source>
        <translation>Der Ordner „%1“ für Dateien von Servern kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>Set &quot;Servers/CacheFolder&quot; to an absolute path.</source>
        <translation>Setzen Sie „Servers/CacheFolder“ auf einen absoluten Pfad.</translation>
    </message>
    <message>
        <source>Set &quot;Servers/CacheFolder&quot; to a folder that can be written.</source>
        <translation>Setzen Sie „Servers/CacheFolder“ auf einen Ordner, der beschrieben werden kann.</translation>
    </message>
    <message>
        <source>%1 bytes are needed, and %2 are left of those that it may hold. Raise &quot;Servers/CacheSizeMiB&quot;, or empty the folder.</source>
        <translation>%1 Bytes werden gebraucht, und von denen, die er enthalten darf, sind %2 übrig. Erhöhen Sie „Servers/CacheSizeMiB“, oder leeren Sie den Ordner.</translation>
    </message>
    <message>
        <source>It can&apos;t be written; set &quot;Servers/CacheFolder&quot; to another one.</source>
        <translation>Er kann nicht beschrieben werden; setzen Sie „Servers/CacheFolder“ auf einen anderen.</translation>
    </message>
    <message>
        <source>A server can&apos;t be asked in a program without a QCoreApplication.</source>
        <translation>In einem Programm ohne QCoreApplication kann kein Server gefragt werden.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached.</source>
        <translation>Der Server „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Look at the network, and at the address in the setting &quot;%1&quot;.</source>
        <translation>Sehen Sie nach dem Netzwerk, und nach der Adresse in der Einstellung „%1“.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; sends to another place, which isn&apos;t followed.</source>
        <translation>Der Server „%1“ schickt an einen anderen Ort; dem wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to the address at which the server itself answers.</source>
        <translation>Setzen Sie „%1“ auf die Adresse, unter der der Server selbst antwortet.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be trusted.</source>
        <translation>Dem Server „%1“ kann nicht vertraut werden.</translation>
    </message>
    <message>
        <source>Have this machine trust the server&apos;s certificate, or mend the address in the setting &quot;%1&quot;.</source>
        <translation>Sorgen Sie dafür, dass dieser Rechner dem Zertifikat des Servers vertraut, oder berichtigen Sie die Adresse in der Einstellung „%1“.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses access.</source>
        <translation>Der Server „%1“ verweigert den Zugang.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no such thing.</source>
        <translation>Der Server „%1“ hat das nicht.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; is busy.</source>
        <translation>Der Server „%1“ ist ausgelastet.</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Put a valid token into the environment variable %2.</source>
        <translation>Setzen Sie ein gültiges Token in die Umgebungsvariable %2.</translation>
    </message>
    <message>
        <source>Ask for the right to read it, or put the token of somebody who has it into the environment variable %2.</source>
        <translation>Bitten Sie um das Recht, es zu lesen, oder setzen Sie das Token von jemandem, der es hat, in die Umgebungsvariable %2.</translation>
    </message>
    <message>
        <source>It was moved or deleted, or the address in the setting &quot;%1&quot; is that of another server.</source>
        <translation>Es wurde verschoben oder gelöscht, oder die Adresse in der Einstellung „%1“ ist die eines anderen Servers.</translation>
    </message>
    <message>
        <source>It was deleted.</source>
        <translation>Es wurde gelöscht.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; failed.</source>
        <translation>Beim Server „%1“ ist etwas gescheitert.</translation>
    </message>
    <message>
        <source>Try again later, or tell those who run the server.</source>
        <translation>Versuchen Sie es später noch einmal, oder sagen Sie es denen, die den Server betreiben.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not understand the request.</source>
        <translation>Der Server „%1“ hat die Anfrage nicht verstanden.</translation>
    </message>
    <message>
        <source>See whether the address in the setting &quot;%1&quot; is that of a server of the right kind and version.</source>
        <translation>Sehen Sie nach, ob die Adresse in der Einstellung „%1“ die eines Servers der richtigen Art und Version ist.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <translation>Der Server „%1“ hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The answer of the server &quot;%1&quot; was cut short.</source>
        <translation>Die Antwort des Servers „%1“ wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>The answer of the server &quot;%1&quot; is too large.</source>
        <translation>Die Antwort des Servers „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>See whether the address in the setting &quot;%1&quot; is the right one.</source>
        <translation>Sehen Sie nach, ob die Adresse in der Einstellung „%1“ die richtige ist.</translation>
    </message>
    <message>
        <source>At most %1 bytes are taken.</source>
        <translation>Höchstens %1 Bytes werden angenommen.</translation>
    </message>
    <message>
        <source>What the server &quot;%1&quot; sends can&apos;t be stored.</source>
        <translation>Was der Server „%1“ schickt, kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Make room on the disk, or set another folder.</source>
        <translation>Schaffen Sie Platz auf der Platte, oder setzen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>It says: %1</source>
        <translation>Er sagt: %1</translation>
    </message>
    <message>
        <source>Its answer has the status %1.</source>
        <translation>Seine Antwort hat den Status %1.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; answers something else than was asked for.</source>
        <translation>Der Server „%1“ antwortet etwas anderes, als gefragt war.</translation>
    </message>
    <message>
        <source>Something in between may have answered, such as the sign-in page of a network. See also whether the address in the setting &quot;%1&quot; is the right one.</source>
        <translation>Vielleicht hat etwas dazwischen geantwortet, etwa die Anmeldeseite eines Netzwerks. Sehen Sie auch nach, ob die Adresse in der Einstellung „%1“ die richtige ist.</translation>
    </message>
    <message>
        <source>It sends &quot;%1&quot; in place of &quot;%2&quot;.</source>
        <translation>Er schickt „%1“ anstelle von „%2“.</translation>
    </message>
    <message>
        <source>The answer of the server &quot;%1&quot; can&apos;t be read.</source>
        <translation>Die Antwort des Servers „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Tell those who run the server.</source>
        <translation>Sagen Sie es denen, die den Server betreiben.</translation>
    </message>
    <message>
        <source>&quot;size&quot; must be a count of bytes.</source>
        <translation>„size“ muss eine Anzahl von Bytes sein.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; on its server.</source>
        <translation>Auf seinem Server gibt es kein „%1“.</translation>
    </message>
    <message>
        <source>It was moved or deleted; refer to another one.</source>
        <translation>Es wurde verschoben oder gelöscht; verweisen Sie auf ein anderes.</translation>
    </message>
    <message>
        <source>UNIFI is not switched on.</source>
        <translation>UNIFI ist nicht eingeschaltet.</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to the address of the server, and don&apos;t set &quot;UNIFI/Enabled&quot; to false.</source>
        <translation>Setzen Sie „%1“ auf die Adresse des Servers, und setzen Sie „UNIFI/Enabled“ nicht auf false.</translation>
    </message>
    <message>
        <source>A UNIFI item without an identifier can&apos;t be asked for.</source>
        <translation>Nach einem UNIFI-Objekt ohne Kennung kann nicht gefragt werden.</translation>
    </message>
    <message>
        <source>Choose the sample&apos;s file again.</source>
        <translation>Wählen Sie die Datei der Probe noch einmal.</translation>
    </message>
    <message>
        <source>It kept silent before in this run, and wasn&apos;t asked again.</source>
        <translation>Er hat in diesem Lauf schon einmal nicht geantwortet und wurde nicht wieder gefragt.</translation>
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
    <name>SimpleFilesInfoManager</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Restore the file, or refer to another one.</source>
        <translation>Stellen Sie die Datei wieder her, oder verweisen Sie auf eine andere.</translation>
    </message>
    <message>
        <source>The file is none of those that are asked for.</source>
        <translation>Die Datei ist keine von denen, nach denen gefragt ist.</translation>
    </message>
</context>
<context>
    <name>SqliteConnection</name>
    <message>
        <source>Another program is using it. Close it there, or try again later.</source>
        <translation>Ein anderes Programm benutzt sie. Schließen Sie sie dort, oder versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The file is damaged or cut short. Restore it from a copy.</source>
        <translation>Die Datei ist beschädigt oder abgeschnitten. Stellen Sie sie aus einer Kopie wieder her.</translation>
    </message>
    <message>
        <source>A program was interrupted while it wrote the file. Open it once with that program, which mends it.</source>
        <translation>Ein Programm wurde unterbrochen, während es die Datei schrieb. Öffnen Sie sie einmal mit diesem Programm; das setzt sie instand.</translation>
    </message>
    <message>
        <source>Check the rights on the file and its folder, and the disk.</source>
        <translation>Prüfen Sie die Rechte auf die Datei und ihren Ordner, und die Platte.</translation>
    </message>
    <message>
        <source>The file doesn&apos;t have the form that is expected. Name another one, or create it anew.</source>
        <translation>Die Datei hat nicht die erwartete Form. Nennen Sie eine andere, oder legen Sie sie neu an.</translation>
    </message>
    <message>
        <source>Could not read the database: %1</source>
        <translation>Die Datenbank konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Name a file that one of the applications has written.</source>
        <translation>Nennen Sie eine Datei, die eine der Anwendungen geschrieben hat.</translation>
    </message>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is no SQLite database.</source>
        <translation>Die Datei ist keine SQLite-Datenbank.</translation>
    </message>
    <message>
        <source>The file is cut short after %1 bytes.</source>
        <translation>Die Datei ist nach %1 Bytes abgeschnitten.</translation>
    </message>
    <message>
        <source>Qt&apos;s driver for SQLite isn&apos;t installed, or the program has no application object. On Debian install libqt6sql6-sqlite.</source>
        <translation>Der SQLite-Treiber von Qt ist nicht installiert, oder das Programm hat kein Anwendungsobjekt. Unter Debian installieren Sie libqt6sql6-sqlite.</translation>
    </message>
    <message>
        <source>The file exists already: %1</source>
        <translation>Die Datei gibt es schon: %1</translation>
    </message>
    <message>
        <source>Choose another name, or remove the file first.</source>
        <translation>Wählen Sie einen anderen Namen, oder entfernen Sie zuerst die Datei.</translation>
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
    <name>TableLosses</name>
    <message>
        <source>member &quot;%1&quot; of a table cell</source>
        <translation>Eintrag „%1“ einer Tabellenzelle</translation>
    </message>
    <message>
        <source>the format has no such member here</source>
        <translation>das Format kennt hier keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>keine Liste</translation>
    </message>
    <message>
        <source>value of the table</source>
        <translation>Wert der Tabelle</translation>
    </message>
    <message>
        <source>it is no table</source>
        <translation>keine Tabelle</translation>
    </message>
    <message>
        <source>value of the property</source>
        <translation>Wert der Einstellung</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>property &quot;%1&quot;</source>
        <translation>Einstellung „%1“</translation>
    </message>
    <message>
        <source>this kind of cell doesn&apos;t have it</source>
        <translation>diese Art von Zelle hat sie nicht</translation>
    </message>
    <message>
        <source>only the first of its name is read</source>
        <translation>nur die erste ihres Namens wird gelesen</translation>
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
    <name>TextUtils</name>
    <message>
        <source>Errors: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Warnungen: %1</translation>
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
    <name>TolqArchive</name>
    <message>
        <source>Could not open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>It isn&apos;t there, no regular file, or may not be read.</source>
        <translation>Sie ist nicht da, keine gewöhnliche Datei, oder darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It is no zip archive, or was cut short.</source>
        <translation>Sie ist kein zip-Archiv, oder wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>It has more than %1 entries.</source>
        <translation>Sie hat mehr als %1 Einträge.</translation>
    </message>
    <message>
        <source>The entry is missing.</source>
        <translation>Der Eintrag fehlt.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Er ist zu groß.</translation>
    </message>
    <message>
        <source>Its checksum is wrong.</source>
        <translation>Seine Prüfsumme ist falsch.</translation>
    </message>
    <message>
        <source>It is there twice.</source>
        <translation>Er ist zweimal da.</translation>
    </message>
    <message>
        <source>Its list of entries is damaged.</source>
        <translation>Die Liste der Einträge ist beschädigt.</translation>
    </message>
    <message>
        <source>Its description is damaged.</source>
        <translation>Seine Beschreibung ist beschädigt.</translation>
    </message>
    <message>
        <source>Its name leads out of the archive, or too deep.</source>
        <translation>Sein Name führt aus dem Archiv hinaus, oder zu tief.</translation>
    </message>
    <message>
        <source>It is a link.</source>
        <translation>Er ist ein Link.</translation>
    </message>
    <message>
        <source>It is encrypted.</source>
        <translation>Er ist verschlüsselt.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be made.</source>
        <translation>Sein Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>It can&apos;t be unpacked.</source>
        <translation>Er kann nicht entpackt werden.</translation>
    </message>
    <message>
        <source>It unpacks to far more than samples do.</source>
        <translation>Entpackt ist es weit mehr, als Proben sind.</translation>
    </message>
    <message>
        <source>The acquired sample can&apos;t be read: %1</source>
        <translation>Die aufgenommene Probe kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Entry &quot;%1&quot;: %2</source>
        <translation>Eintrag „%1“: %2</translation>
    </message>
    <message>
        <source>Copy or download it again.</source>
        <translation>Kopieren Sie sie noch einmal, oder laden Sie sie noch einmal herunter.</translation>
    </message>
    <message>
        <source>Could not write the file: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>TolqMetadata</name>
    <message>
        <source>It is &quot;%1&quot;.</source>
        <translation>Es ist „%1“.</translation>
    </message>
    <message>
        <source>The version of the metadata is none.</source>
        <translation>Die Version der Metadaten ist keine.</translation>
    </message>
    <message>
        <source>The name of the sample is no plain name.</source>
        <translation>Der Name der Probe ist kein einfacher Name.</translation>
    </message>
    <message>
        <source>A trace is mapped twice.</source>
        <translation>Eine Spur ist zweimal zugeordnet.</translation>
    </message>
    <message>
        <source>Place: /%1/%2</source>
        <translation>Stelle: /%1/%2</translation>
    </message>
</context>
<context>
    <name>TolqReader</name>
    <message>
        <source>There is no place to unpack the sample.</source>
        <translation>Um die Probe zu entpacken, ist kein Platz.</translation>
    </message>
    <message>
        <source>An acquired sample lies inside another.</source>
        <translation>Eine aufgenommene Probe liegt in einer anderen.</translation>
    </message>
</context>
<context>
    <name>TolqUtils</name>
    <message>
        <source>File: %1, %2</source>
        <translation>Datei: %1, %2</translation>
    </message>
    <message>
        <source>The acquired sample can&apos;t be read: %1</source>
        <translation>Die aufgenommene Probe kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link that leads out of the folder.</source>
        <translation>„%1“ ist ein Link, der aus dem Ordner hinausführt.</translation>
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
    <name>Ulvar2Dao</name>
    <message>
        <source>Could not open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The Ulvar2 file can&apos;t be read: %1</source>
        <translation>Die Ulvar2-Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Process or copy the sample again.</source>
        <translation>Verarbeiten oder kopieren Sie die Probe noch einmal.</translation>
    </message>
    <message>
        <source>It isn&apos;t there, or its folder can&apos;t be read.</source>
        <translation>Sie ist nicht da, oder ihr Ordner ist nicht lesbar.</translation>
    </message>
    <message>
        <source>It is no regular file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is no SQLite database.</source>
        <translation>Es ist keine SQLite-Datenbank.</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing; on Debian: apt-get install libqt6sql6-sqlite</source>
        <translation>Der SQLite-Treiber von Qt fehlt; unter Debian: apt-get install libqt6sql6-sqlite</translation>
    </message>
    <message>
        <source>It has no table &quot;Info&quot;.</source>
        <translation>Sie hat keine Tabelle „Info“.</translation>
    </message>
    <message>
        <source>Its table &quot;Info&quot; has computed columns.</source>
        <translation>Ihre Tabelle „Info“ hat berechnete Spalten.</translation>
    </message>
    <message>
        <source>No Ulvar2 file is open.</source>
        <translation>Keine Ulvar2-Datei ist geöffnet.</translation>
    </message>
    <message>
        <source>Record %1 is too long.</source>
        <translation>Datensatz %1 ist zu lang.</translation>
    </message>
    <message>
        <source>It has more than %1 records.</source>
        <translation>Sie hat mehr als %1 Datensätze.</translation>
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
    <name>WflwMetaData</name>
    <message>
        <source>The version of the specified workflow (%1) is deprecated and not supported</source>
        <translation>Die Version des Workflows (%1) ist veraltet und wird nicht unterstützt</translation>
    </message>
    <message>
        <source>The workflow&apos;s version is %1, but the current software supports only workflow versions up to %2.x.x</source>
        <translation>Die Version des Workflows ist %1, aber diese Software unterstützt nur Workflow-Versionen bis %2.x.x</translation>
    </message>
    <message>
        <source>It stands within the text &quot;%1&quot;.</source>
        <translation>Es steht im Text „%1“.</translation>
    </message>
    <message>
        <source>The document&apos;s version &quot;%1&quot; is no version.</source>
        <translation>Die Version „%1“ des Dokuments ist keine Version.</translation>
    </message>
    <message>
        <source>It stands as &quot;%1&quot; in the text &quot;%2&quot;.</source>
        <translation>Sie steht als „%1“ im Text „%2“.</translation>
    </message>
    <message>
        <source>A version is numbers with dots between them, such as %1; write there which one the document has.</source>
        <translation>Eine Version besteht aus Zahlen mit Punkten dazwischen, wie %1; schreiben Sie dorthin, welche das Dokument hat.</translation>
    </message>
</context>
<context>
    <name>WflwUpgrader</name>
    <message>
        <source>Add the column of samples with the version that made the workflow.</source>
        <translation>Fügen Sie die Spalte der Proben mit der Version hinzu, die den Workflow gemacht hat.</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; of the cell &quot;%2&quot; can&apos;t be changed as the format needs it. Make the cell anew with the version that made the workflow.</source>
        <translation>Die Einstellung „%1“ der Zelle „%2“ lässt sich nicht so ändern, wie das Format es braucht. Machen Sie die Zelle mit der Version neu, die den Workflow gemacht hat.</translation>
    </message>
    <message>
        <source>Have the server process the sample again.</source>
        <translation>Lassen Sie den Server die Probe noch einmal verarbeiten.</translation>
    </message>
    <message>
        <source>Put the file on the server: %1</source>
        <translation>Legen Sie die Datei auf den Server: %1</translation>
    </message>
    <message>
        <source>The columns of the tab &quot;%1&quot; differ in height, and a tab is written as a rectangle. Complete its last row.</source>
        <translation>Die Spalten des Reiters „%1“ sind verschieden hoch, und ein Reiter wird als Rechteck geschrieben. Vervollständigen Sie seine letzte Zeile.</translation>
    </message>
    <message>
        <source>Sample &quot;%1&quot;: %2.</source>
        <translation>Probe „%1“: %2.</translation>
    </message>
    <message>
        <source>Set &quot;UNIFI/Address&quot; to the address of the server, and put a token into %1.</source>
        <translation>Setzen Sie „UNIFI/Address“ auf die Adresse des Servers, und ein Token in %1.</translation>
    </message>
    <message>
        <source>Choose the sample&apos;s file again with the version that made the workflow.</source>
        <translation>Wählen Sie die Datei der Probe mit der Version, die den Workflow gemacht hat, noch einmal.</translation>
    </message>
    <message>
        <source>Sample &quot;%1&quot;, of the server &quot;%2&quot;.</source>
        <translation>Probe „%1“, des Servers „%2“.</translation>
    </message>
    <message>
        <source>The upgrade from version %1 stopped at the step to %2.</source>
        <translation>Die Aktualisierung von Version %1 blieb beim Schritt auf %2 stehen.</translation>
    </message>
</context>
<context>
    <name>WorkflowCheck</name>
    <message>
        <source>There is no validator &quot;%1&quot;.</source>
        <translation>Es gibt keine Prüfung „%1“.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Es gibt: %1.</translation>
    </message>
</context>
<context>
    <name>WorkflowFile</name>
    <message>
        <source>The file is no workflow: %1</source>
        <translation>Die Datei ist kein Workflow: %1</translation>
    </message>
    <message>
        <source>The text is no workflow.</source>
        <translation>Der Text ist kein Workflow.</translation>
    </message>
    <message>
        <source>The workflow has the newer version %1 and is not written over: %2</source>
        <translation>Der Workflow hat die neuere Version %1 und wird nicht überschrieben: %2</translation>
    </message>
    <message>
        <source>Save to another file, or use the software that wrote it.</source>
        <translation>Speichern Sie in eine andere Datei, oder benutzen Sie die Software, die ihn geschrieben hat.</translation>
    </message>
    <message>
        <source>Save to another file, or accept the losses.</source>
        <translation>Speichern Sie in eine andere Datei, oder nehmen Sie die Verluste hin.</translation>
    </message>
    <message>
        <source>Something of the workflow would be lost: %1</source>
        <translation>Etwas vom Workflow ginge verloren: %1</translation>
    </message>
</context>
<context>
    <name>WorkflowNodeUpgradeUtils</name>
    <message>
        <source>The advanced setting &quot;%1&quot; has the value &quot;%2&quot;, which can&apos;t be read. It stays in the advanced configuration without effect; enter its value in the form.</source>
        <translation>Die erweiterte Einstellung „%1“ hat den Wert „%2“, der nicht gelesen werden kann. Sie bleibt ohne Wirkung in der erweiterten Konfiguration stehen; geben Sie ihren Wert im Formular ein.</translation>
    </message>
</context>
<context>
    <name>WorkflowRelink</name>
    <message>
        <source>Moving references from &quot;%1&quot; to &quot;%2&quot; needs two texts.</source>
        <translation>Um Verweise von „%1“ nach „%2“ umzustellen, braucht es zwei Texte.</translation>
    </message>
    <message>
        <source>Name what the references begin with, and what they are to begin with; &quot;.&quot; is the workflow&apos;s own folder.</source>
        <translation>Nennen Sie, womit die Verweise beginnen und womit sie beginnen sollen; „.“ ist der Ordner des Workflows selbst.</translation>
    </message>
</context>
<context>
    <name>WorkflowUpgrade</name>
    <message>
        <source>The document has no tabs, so it is no workflow.</source>
        <translation>Das Dokument hat keine Reiter und ist damit kein Workflow.</translation>
    </message>
    <message>
        <source>The upgraded document couldn&apos;t be opened.</source>
        <translation>Das aktualisierte Dokument konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>XenosetPreset</name>
    <message>
        <source>The text is no parameter file of the search engine.</source>
        <translation>Der Text ist keine Parameterdatei der Suchmaschine.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it holds a zero byte.</source>
        <translation>er enthält ein Nullbyte.</translation>
    </message>
    <message>
        <source>The file is binary or in UTF-16; save it as UTF-8 text.</source>
        <translation>Die Datei ist binär oder in UTF-16; speichern Sie sie als Text in UTF-8.</translation>
    </message>
    <message>
        <source>it is no UTF-8 text.</source>
        <translation>er ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>Save the file as UTF-8 text.</source>
        <translation>Speichern Sie die Datei als Text in UTF-8.</translation>
    </message>
    <message>
        <source>there are more than %1 keys.</source>
        <translation>es gibt mehr als %1 Schlüssel.</translation>
    </message>
    <message>
        <source>Name a parameter file of the search engine.</source>
        <translation>Nennen Sie eine Parameterdatei der Suchmaschine.</translation>
    </message>
</context>
<context>
    <name>XmlReaders</name>
    <message>
        <source>The MS data are damaged.</source>
        <translation>Die MS-Daten sind beschädigt.</translation>
    </message>
    <message>
        <source>After %1 unpacked bytes: %2</source>
        <translation>Nach %1 entpackten Bytes: %2</translation>
    </message>
    <message>
        <source>Copy or convert the file again.</source>
        <translation>Kopieren Sie die Datei noch einmal, oder wandeln Sie sie noch einmal um.</translation>
    </message>
    <message>
        <source>The MS data are cut short.</source>
        <translation>Die MS-Daten sind abgeschnitten.</translation>
    </message>
    <message>
        <source>The text ends after %1 bytes, before &quot;%2&quot;.</source>
        <translation>Der Text endet nach %1 Bytes, vor „%2“.</translation>
    </message>
</context>
<context>
    <name>XmlScanner</name>
    <message>
        <source>Elements are nested too deeply.</source>
        <translation>Elemente sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The text ends inside the document.</source>
        <translation>Der Text endet innerhalb des Dokuments.</translation>
    </message>
    <message>
        <source>A text is too long.</source>
        <translation>Ein Text ist zu lang.</translation>
    </message>
    <message>
        <source>The XML text can&apos;t be read.</source>
        <translation>Der XML-Text kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Copy or convert the file again; it may have been cut short on the way.</source>
        <translation>Kopieren Sie die Datei noch einmal, oder wandeln Sie sie noch einmal um; vielleicht wurde sie unterwegs abgeschnitten.</translation>
    </message>
</context>
<context>
    <name>orv::BaseTask</name>
    <message>
        <source>A task runs once.</source>
        <translation>Eine Aufgabe läuft nur einmal.</translation>
    </message>
    <message>
        <source>Make another task for another request.</source>
        <translation>Machen Sie für eine weitere Anfrage eine neue Aufgabe.</translation>
    </message>
    <message>
        <source>A server can&apos;t be asked in a program without a QCoreApplication.</source>
        <translation>In einem Programm ohne QCoreApplication kann kein Server gefragt werden.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
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
    <message>
        <source>There is no workflow to save yet.</source>
        <translation>Es gibt noch keinen Workflow zu speichern.</translation>
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
    <name>orv::PropertyEditor::BaseTableItem</name>
    <message>
        <source>Row %1, column &quot;%2&quot;: a file can&apos;t hold a value of the type %3. Store a text or a number instead.</source>
        <translation>Zeile %1, Spalte „%2“: Eine Datei kann keinen Wert der Art %3 enthalten. Speichern Sie stattdessen einen Text oder eine Zahl.</translation>
    </message>
    <message>
        <source>The names of its columns, or the rows within its rows, hold what a file can&apos;t.</source>
        <translation>Die Namen ihrer Spalten, oder die Zeilen innerhalb ihrer Zeilen, enthalten, was eine Datei nicht kann.</translation>
    </message>
    <message>
        <source>Could not parse JSON. Subobject &quot;%1&quot; is empty.</source>
        <translation>JSON konnte nicht gelesen werden. Das Teilobjekt „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The cell &quot;%1&quot; needs an entry of that name in its &quot;properties&quot;.</source>
        <translation>Die Zelle „%1“ braucht einen Eintrag dieses Namens in ihren „properties“.</translation>
    </message>
    <message>
        <source>Could not parse JSON. &quot;%1&quot; has unsupported format in &quot;%2&quot;.</source>
        <translation>JSON konnte nicht gelesen werden. „%1“ hat ein nicht unterstütztes Format in „%2“.</translation>
    </message>
    <message>
        <source>It has to be an array, and is %1.</source>
        <translation>Es muss eine Liste sein, und ist %1.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; can&apos;t be written.</source>
        <translation>Die Tabelle „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::Content</name>
    <message>
        <source>File content is not valid: %1</source>
        <translation>Der Inhalt der Datei ist nicht gültig: %1</translation>
    </message>
    <message>
        <source>the content mode of an old document</source>
        <translation>der Inhaltsmodus eines alten Dokuments</translation>
    </message>
    <message>
        <source>only the metadata&apos;s &quot;contentMode&quot; is read</source>
        <translation>nur „contentMode“ der Metadaten wird gelesen</translation>
    </message>
    <message>
        <source>member &quot;%1&quot; of the document</source>
        <translation>Eintrag „%1“ des Dokuments</translation>
    </message>
    <message>
        <source>the format has no such member</source>
        <translation>das Format kennt keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>the metadata of the document</source>
        <translation>die Metadaten des Dokuments</translation>
    </message>
    <message>
        <source>they are not the JSON text of an object</source>
        <translation>kein JSON-Text eines Objekts</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot;.</source>
        <translation>Reiter „%1“.</translation>
    </message>
    <message>
        <source>Workflow content is not valid</source>
        <translation>Der Inhalt des Workflows ist nicht gültig</translation>
    </message>
    <message>
        <source>A workflow has an array &quot;tabs&quot;, but there is %1.</source>
        <translation>Ein Workflow hat eine Liste „tabs“, aber es gibt %1.</translation>
    </message>
    <message>
        <source>the extended metadata of the document</source>
        <translation>die erweiterten Metadaten des Dokuments</translation>
    </message>
    <message>
        <source>they are not an object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>Tab %1 (&quot;%2&quot;).</source>
        <translation>Reiter %1 („%2“).</translation>
    </message>
    <message>
        <source>The columns of the tab &quot;%1&quot; differ in height, and a tab is a rectangle. Add the missing cells or remove the others.</source>
        <translation>Die Spalten des Reiters „%1“ sind verschieden hoch, und ein Reiter ist ein Rechteck. Fügen Sie die fehlenden Zellen hinzu, oder entfernen Sie die anderen.</translation>
    </message>
    <message>
        <source>Tab &quot;%1&quot;, column &quot;%2&quot;, row %3.</source>
        <translation>Reiter „%1“, Spalte „%2“, Zeile %3.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::ItemGroup</name>
    <message>
        <source>member &quot;%1&quot; of a tab</source>
        <translation>Eintrag „%1“ eines Reiters</translation>
    </message>
    <message>
        <source>the format has no such member</source>
        <translation>das Format kennt keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>column name that is no text</source>
        <translation>Spaltenname, der kein Text ist</translation>
    </message>
    <message>
        <source>it reads as an empty name</source>
        <translation>wird als leerer Name gelesen</translation>
    </message>
    <message>
        <source>Column %1 (&quot;%2&quot;), row %3.</source>
        <translation>Spalte %1 („%2“), Zeile %3.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::ItemSubGroup</name>
    <message>
        <source>Type &quot;%1&quot; is not supported.</source>
        <translation>Die Art „%1“ wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Can&apos;t create item for &quot;%1&quot; type.</source>
        <translation>Für die Art „%1“ kann keine Zelle angelegt werden.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::KeyValueItem</name>
    <message>
        <source>Could not parse JSON. &quot;%1&quot; has unsupported format.</source>
        <translation>JSON konnte nicht gelesen werden. „%1“ hat ein nicht unterstütztes Format.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; can&apos;t be written.</source>
        <translation>Die Einstellung „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>A file can&apos;t hold its value, which is of the type %1.</source>
        <translation>Eine Datei kann ihren Wert nicht enthalten, der von der Art %1 ist.</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::MassesTableItem</name>
    <message>
        <source>the match tolerance</source>
        <translation>die Treffertoleranz</translation>
    </message>
    <message>
        <source>it lacks a value or unit, and becomes the default</source>
        <translation>ihr fehlt ein Wert oder eine Einheit, und sie wird zur Vorgabe</translation>
    </message>
</context>
<context>
    <name>orv::PropertyEditor::SamplesTableItem</name>
    <message>
        <source>Could not parse JSON. Subobject &quot;%1&quot;is empty.</source>
        <translation>JSON konnte nicht gelesen werden. Das Teilobjekt „%1“ ist leer.</translation>
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
    <message>
        <source>The tab &quot;%1&quot; has cells, but no columns that show them.</source>
        <translation>Der Tab „%1“ hat Zellen, aber keine Spalten, die sie zeigen.</translation>
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
