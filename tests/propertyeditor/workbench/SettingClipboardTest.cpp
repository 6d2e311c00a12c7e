#include "ClipboardFixture.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/widgets/TableView.h>

#include <QElapsedTimer>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace ClipboardFixture;

class SettingClipboardTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theCurrentSettingIsCopiedAsText();
    void groupsAndSelectedRowsAreCopied();
    void clicksThatSelectOpenNoEditor();
    void programsThatGoToARowSelectItAlone();
    void textHasAllDigitsAndTheSignOfTheLanguage();
    void jsonIsWhatFilesHold();
    void whatWasCopiedComesBackInEveryForm_data();
    void whatWasCopiedComesBackInEveryForm();
    void typedLinesAreUnderstood_data();
    void typedLinesAreUnderstood();
    void whatDoesntFitIsToldAndTheRestApplied();
    void nothingUsableChangesNothing_data();
    void nothingUsableChangesNothing();
    void hostileClipboardsAreBounded();
    void pastingTheSameIsNoStep();
    void whatChangesIsToldApartFromWhatStays();
    void editorsTablesAndOtherPlacesKeepTheirKeys();
    void readOnlySettingsSaySo();
    void readOnlyWindowsTakeNothing();
    void filesKeepTheirFolder_data();
    void filesKeepTheirFolder();
    void theWindowMayGoInAPaste_data();
    void theWindowMayGoInAPaste();
    void aColumnMayGoInAPaste();
};

void SettingClipboardTest::theCurrentSettingIsCopiedAsText()
{
    const Desk d;
    const QString caption = d.property(0, kPeaks).caption();
    QCOMPARE(d.copied(), caption + u"\t500\t"_s);
    QCOMPARE(d.message(), u"1 setting copied."_s);
    d.standAt(0, kPrecursor);
    QCOMPARE(d.copied(), u"Precursor mass tolerance\t10.123456789\tppm"_s);
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasFormat(text(kJsonType)));
}

void SettingClipboardTest::groupsAndSelectedRowsAreCopied()
{
    const Desk d;
    d.tree(0).setCurrentIndex(LeavingWays::rowOf(d.tree(0), kPeaks).parent());
    QCOMPARE(d.copied().count(u'\n'), 1); // the samples, too
    d.standAt(0, kPeaks);
    d.key(Qt::Key_A);
    const QStringList all = d.copied().split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(all.size(), 4);
    d.standAt(0, kLetters);
    const QModelIndex mass = LeavingWays::rowOf(d.tree(0), kPrecursor);
    QTest::mouseClick(d.tree(0).viewport(), Qt::LeftButton, Qt::ControlModifier,
                      d.tree(0).visualRect(mass).center());
    QCOMPARE(d.copied().count(u'\n'), 1);
}

void SettingClipboardTest::clicksThatSelectOpenNoEditor()
{
    const Desk d;
    const QModelIndex value = LeavingWays::rowOf(d.tree(0), kLetters).siblingAtColumn(1);
    QTest::mouseClick(d.tree(0).viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      d.tree(0).visualRect(value).center());
    QVERIFY(!d.tree(0).indexWidget(value));
    QVERIFY(d.tree(0).hasFocus());
    QTest::mouseClick(d.tree(0).viewport(), Qt::LeftButton, {}, d.tree(0).visualRect(value).center());
    QVERIFY(d.tree(0).indexWidget(value));
}

void SettingClipboardTest::programsThatGoToARowSelectItAlone()
{
    const Desk d;
    d.property(0, kPeaks).setValue(7);
    d.bench->history()->takeIn();
    d.standAt(0, kLetters);
    // The key that takes back is still held when the row is shown.
    d.key(Qt::Key_Z);
    QCOMPARE(d.currentSetting(0, 0), QByteArray(kPeaks));
    QCOMPARE(d.copied(), u"Peaks kept per spectrum\t500\t"_s);
}

void SettingClipboardTest::textHasAllDigitsAndTheSignOfTheLanguage()
{
    const Desk d;
    d.window->setLocale(QLocale(QLocale::German));
    d.standAt(0, kPrecursor);
    QCOMPARE(d.copied(), u"Precursor mass tolerance\t10,123456789\tppm"_s);
    d.standAt(1, kPrecursor);
    d.key(Qt::Key_V);
    QCOMPARE(storedValue(d.stored(1), kPrecursor), QJsonValue(massOf(10.123456789)));
}

void SettingClipboardTest::jsonIsWhatFilesHold()
{
    const Desk d;
    d.key(Qt::Key_A);
    const QJsonObject copied = QJsonDocument::fromJson(d.copiedBy("copySettingsAsJson").toUtf8()).object();
    QCOMPARE(copied.keys(), QStringList({u"properties"_s, u"type"_s}));
    QCOMPARE(copied.value(u"type"_s), QJsonValue(u"Karvon"_s));
    QCOMPARE(copied.value(u"properties"_s).toArray(), fullCell().value(u"properties"_s).toArray());
    const Result<KPropertySet *> read = PropertySetCreator::objectToPropertySet(copied, BaseItemType::Karvon);
    QVERIFY(!read.hasError());
    const std::unique_ptr<KPropertySet> set(*read);
    QVERIFY(set->contains(kPrecursor));
}

void SettingClipboardTest::whatWasCopiedComesBackInEveryForm_data()
{
    QTest::addColumn<QString>("command");
    QTest::addRow("text") << u"copySettingsAsText"_s;
    QTest::addRow("JSON") << u"copySettingsAsJson"_s;
    QTest::addRow("command line") << u"copySettingsAsCommandLine"_s;
}

void SettingClipboardTest::whatWasCopiedComesBackInEveryForm()
{
    QFETCH(QString, command);
    const QJsonObject odd = fullCell("'R'\t\"K\"\nP");
    const Desk d(documentOf({odd, settingsCell("Karvon", {setting("Samples", u"S"_s), setting(kPeaks, 1),
                                                          setting(kLetters, u"D"_s, "Digestion"),
                                                          setting(kPrecursor, massOf(1, "Da"), "Masses")})}));
    d.key(Qt::Key_A);
    // As from another program, which keeps the text alone.
    const QString copied = d.copiedBy(command.toUtf8().constData());
    d.standAt(1, kPeaks);
    d.paste(copied);
    QCOMPARE(d.message(), u"4 settings pasted into Analysis › Karvon."_s);
    QCOMPARE(d.stored(1).value(u"properties"_s), d.stored(0).value(u"properties"_s));
    DocumentHistory *history = d.bench->history();
    QCOMPARE(history->count(), 1);
    QCOMPARE(history->undoText(), u"Paste 4 settings into Analysis › Karvon"_s);
    history->undo();
    QCOMPARE(storedValue(d.stored(1), kPeaks), QJsonValue(1));
}

void SettingClipboardTest::typedLinesAreUnderstood_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char *name, const QString &line, const char *setting, const QJsonValue &value) {
        QTest::newRow(name) << line << text(setting) << value;
    };
    row("caption", u"Precursor mass tolerance\t5\tppm"_s, kPrecursor, massOf(5));
    row("case of the caption", u"precursor MASS tolerance\t5\tppm"_s, kPrecursor, massOf(5));
    row("name", u"KarvonPrecursorMassError\t5"_s, kPrecursor, massOf(5));
    row("unit in the value", u"KarvonPrecursorMassError\t0.5 Da"_s, kPrecursor, massOf(0.5, "Da"));
    row("decimal comma", u"KarvonPrecursorMassError\t0,435\tDa"_s, kPrecursor, massOf(0.435, "Da"));
    row("lines of Windows", u"KarvonCentroidTopk\t7\r\n"_s, kPeaks, 7);
    row("command with a path",
        u"/opt/bin/orv-workflow set f.wflw --tab 0 --column 1 'KarvonCentroidTopk=7' -o -"_s, kPeaks, 7);
    row("cell of a file", QString::fromUtf8(QJsonDocument(karvonCell({setting(kPeaks, 7)})).toJson()), kPeaks,
        7);
}

void SettingClipboardTest::typedLinesAreUnderstood()
{
    QFETCH(QString, line);
    QFETCH(QString, setting);
    QFETCH(QJsonValue, value);
    const Desk d;
    d.paste(line);
    QVERIFY2(d.message().contains(u"1 setting pasted into "_s) && !d.message().contains(u"Not pasted"_s),
             qPrintable(d.message()));
    QCOMPARE(storedValue(d.stored(0), setting.toUtf8().constData()), value);
}

void SettingClipboardTest::whatDoesntFitIsToldAndTheRestApplied()
{
    const Desk d;
    d.paste(u"KarvonCentroidTopk\t7\nKarvonPrecursorMassError\tmany\tppm\nNo such\t5\n"
            "KarvonDigestLetters\nKarvonCentroidTopk\t8\nKarvonPrecursorMassError\t1,234\tDa\n"_s);
    QCOMPARE(d.property(0, kPeaks).value().toInt(), 7);
    QCOMPARE(d.message(), u"1 setting pasted into First › One. Not pasted: 5 settings, see below."_s);
    QVERIFY(d.panel("settingsNotPasted")->isVisible());
    const QStringList lines = d.refused().split(u'\n');
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.at(0).startsWith(u"KarvonPrecursorMassError: The value \"many ppm\" is not allowed"_s));
    QVERIFY(lines.at(0).contains(u"Allowed: a number "_s));
    QCOMPARE(lines.at(1), u"No such: The column doesn't have this setting."_s);
    QCOMPARE(lines.at(2), u"KarvonDigestLetters: There is no value."_s);
    QCOMPARE(lines.at(3), u"KarvonCentroidTopk: It stands there twice; the first value was taken."_s);
    QVERIFY(lines.at(4).contains(u"1,234"_s));
    QVERIFY(d.tree(0).hasFocus());
    d.child<QPlainTextEdit>("settingsNotPastedList")->setFocus();
    d.key(Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(!d.panel("settingsNotPasted")->isVisible());
    QVERIFY(d.tree(0).hasFocus());
    d.paste(u"No such\t1\nKarvonCentroidTopk\t9"_s);
    QVERIFY(d.panel("settingsNotPasted")->isVisible());
    d.paste(u"KarvonCentroidTopk\t10"_s);
    QVERIFY(!d.panel("settingsNotPasted")->isVisible());
}

void SettingClipboardTest::nothingUsableChangesNothing_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addRow("prose") << u"Dear colleagues,\nthe column is broken."_s;
    QTest::addRow("a table of something else") << u"Mass\tCharge\n1.5\t2\n"_s;
    QTest::addRow("JSON of something else") << u"{\"a\": 1}"_s;
    QTest::addRow("broken JSON") << u"{\"properties\": ["_s;
    QTest::addRow("odd entries") << u"{\"properties\": [1, null, \"x\", [], {}, {\"name\": 7}]}"_s;
    QTest::addRow("another command") << u"orv-workflow get f.wflw"_s;
    QTest::addRow("an open quote") << u"orv-workflow set f.wflw 'a=b"_s;
    QTest::addRow("characters") << QString(QChar(0)) + u"\x1\xfffe\t\xd83d"_s;
    QTest::addRow("deep JSON") << QString(100'000, u'{');
}

void SettingClipboardTest::nothingUsableChangesNothing()
{
    QFETCH(QString, pasted);
    const Desk d;
    const QJsonObject before = d.stored(0);
    d.paste(pasted);
    QVERIFY2(d.message().startsWith(u"Nothing was pasted"_s), qPrintable(d.message()));
    QCOMPARE(d.stored(0), before);
    QCOMPARE(d.bench->history()->count(), 0);
    QVERIFY(!d.panel("settingsNotPasted")->isVisible());
}

void SettingClipboardTest::hostileClipboardsAreBounded()
{
    const Desk d;
    const auto putJson = [](const QByteArray &json) {
        auto *data = new QMimeData;
        data->setData(text(kJsonType), json);
        QGuiApplication::clipboard()->setMimeData(data);
    };
    const QString tooMuch =
        u"Nothing was pasted. The clipboard holds more than settings are: over 16 MiB or 1000 lines."_s;
    QElapsedTimer clock;
    clock.start();
    putJson(QByteArray(100'000'000, '{'));
    d.key(Qt::Key_V);
    QCOMPARE(d.message(), tooMuch);
    putJson(QByteArray("{\"properties\":") + QByteArray(1'000'000, '[') + QByteArray(1'000'000, ']') + "}");
    d.key(Qt::Key_V);
    QVERIFY(d.message().startsWith(u"Nothing was pasted."_s));
    d.paste(QString(50'000'000, u'x'));
    QVERIFY(d.message().startsWith(u"Nothing was pasted."_s));
    d.paste(QString(2'000'000, u'\n'));
    QVERIFY(d.message().startsWith(u"Nothing was pasted."_s));
    d.window->statusBar()->clearMessage();
    d.paste(u"KarvonDigestLetters\t"_s + QString(1'000'000, u'\t'));
    QCOMPARE(d.message(), u"1 setting pasted into First › One."_s);
    d.paste(QString(u"a\tb\r"_s).repeated(500'000));
    QCOMPARE(d.message(), tooMuch);
    d.paste(u"orv-workflow set f "_s + QString(u"a=1 "_s).repeated(500'000));
    QCOMPARE(d.message(), tooMuch);
    putJson("{\"properties\": [{\"name\": \"KarvonDigestLetters\", \"value\": {\"a\": [1]}}]}");
    d.key(Qt::Key_V);
    QVERIFY2(d.message().startsWith(u"Nothing was pasted. Not pasted: "_s), qPrintable(d.message()));
    putJson("{\"properties\": [{\"name\": \"KarvonCentroidTopk\", \"value\": {\"a\": [1]}}]}");
    d.key(Qt::Key_V);
    QVERIFY2(d.message().startsWith(u"Nothing was pasted. Not pasted: "_s), qPrintable(d.message()));
    QVERIFY2(clock.elapsed() < 30'000, qPrintable(QString::number(clock.elapsed())));
}

void SettingClipboardTest::pastingTheSameIsNoStep()
{
    const Desk d;
    d.key(Qt::Key_A);
    d.key(Qt::Key_C);
    d.key(Qt::Key_V);
    QCOMPARE(d.message(), u"4 settings of First › One had their values already."_s);
    QCOMPARE(d.bench->history()->count(), 0);
    QVERIFY(!d.window->isWindowModified());
}

void SettingClipboardTest::whatChangesIsToldApartFromWhatStays()
{
    const Desk d;
    d.paste(u"KarvonCentroidTopk\t7\nKarvonDigestLetters\tRK\nNo such\t1"_s);
    QCOMPARE(d.message(),
             u"1 setting pasted into First › One. 1 setting of First › One had its value already. "
             "Not pasted: No such: The column doesn't have this setting."_s);
    QCOMPARE(d.bench->history()->undoText(), u"Paste 1 setting into First › One"_s);
    d.standAt(1, kPeaks);
    d.paste(u"KarvonCentroidTopk\t7\nKarvonPrecursorMassError\t5"_s);
    QCOMPARE(d.bench->history()->undoText(), u"Paste 2 settings into First › Two"_s);
}

void SettingClipboardTest::editorsTablesAndOtherPlacesKeepTheirKeys()
{
    const Desk d(documentOf({fullCell(), Documents::cell(u"Samples"_s)}));
    QVERIFY(LeavingWays::open(d.tree(0), kLetters));
    LeavingWays::type(u"abc"_s);
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::SelectAll);
    QCOMPARE(d.copied(), u"abc"_s);
    d.paste(u"KarvonCentroidTopk\t7"_s);
    QCOMPARE(d.property(0, kPeaks).value().toInt(), 500);
    QVERIFY(!d.child<QAction>("pasteSettings")->isEnabled());
    QVERIFY(d.child<QAction>("copySettingsAsText")->isEnabled());
    auto *table = d.window->grid(0)->items().at(1)->widget()->findChild<TableView *>();
    table->setFocus();
    QVERIFY(!d.child<QAction>("pasteSettings")->isEnabled());
    QVERIFY(!d.child<QAction>("copySettingsAsText")->isEnabled());
    QGuiApplication::clipboard()->setText(u"KarvonCentroidTopk\t8"_s);
    QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(d.property(0, kPeaks).value().toInt(), 500);
    d.standAt(0, kPeaks);
    QTest::keyClick(d.window, Qt::Key_E, Qt::AltModifier);
    QVERIFY(d.bench->editMenu()->isVisible());
    QVERIFY(d.child<QAction>("pasteSettings")->isEnabled());
    d.bench->editMenu()->close();
}

void SettingClipboardTest::readOnlySettingsSaySo()
{
    const Desk d;
    d.property(0, kPeaks).setReadOnly(true);
    d.paste(u"KarvonCentroidTopk\t7"_s);
    QCOMPARE(d.message(),
             u"Nothing was pasted. Not pasted: KarvonCentroidTopk: This setting can only be read."_s);
    QCOMPARE(d.property(0, kPeaks).value().toInt(), 500);
}

void SettingClipboardTest::readOnlyWindowsTakeNothing()
{
    const Desk d;
    QVERIFY(d.child<QAction>("pasteSettings")->isEnabled());
    d.window->setReadOnly();
    const QAction *paste = d.child<QAction>("pasteSettings");
    QTRY_VERIFY(!paste->isEnabled());
    QCOMPARE(paste->toolTip(), u"This window is read only: nothing can be pasted."_s);
    d.paste(u"KarvonCentroidTopk\t7"_s);
    QCOMPARE(d.property(0, kPeaks).value().toInt(), 500);
    // Copying takes nothing from anybody.
    QCOMPARE(d.copied(), u"Peaks kept per spectrum\t500\t"_s);
}

void SettingClipboardTest::filesKeepTheirFolder_data()
{
    QTest::addColumn<QString>("command");
    QTest::addRow("copied as text") << u"copySettingsAsText"_s;
    QTest::addRow("copied as JSON") << u"copySettingsAsJson"_s;
}

/// What names a file from the workflow's folder names the same file in a workflow of another folder.
void SettingClipboardTest::filesKeepTheirFolder()
{
    QFETCH(const QString, command);
    constexpr auto kFile = "InSilicoPeptidesFile";
    const auto document = [](const char *file) {
        return documentOf({settingsCell("Senthia", {setting(kFile, text(file), "Extras")})});
    };
    const QTemporaryDir first;
    const QTemporaryDir second;
    const Desk d;
    const auto open = [&d](const QTemporaryDir &folder, const QJsonObject &shown) {
        QCOMPARE(int(d.window->openWorkflow(write(folder, "a.wflw", shown))), int(kOpened));
        d.tree(0).expandAll();
        d.standAt(0, kFile);
    };
    open(first, document("data/a.csv"));
    (void)d.copiedBy(command.toLatin1().constData());
    const QJsonObject copied =
        QJsonDocument::fromJson(QGuiApplication::clipboard()->mimeData()->data(text(kJsonType))).object();
    const QString whole = first.filePath(u"data/a.csv"_s);
    QCOMPARE(storedValue(copied, kFile), QJsonValue(whole));
    open(second, document("data/b.csv"));
    d.key(Qt::Key_V);
    QCOMPARE(storedValue(d.stored(0), kFile), QJsonValue(whole));
}

void SettingClipboardTest::theWindowMayGoInAPaste_data()
{
    QTest::addColumn<bool>("isAtOnce");
    QTest::addRow("behind the event") << false;
    QTest::addRow("at once") << true;
}

void SettingClipboardTest::theWindowMayGoInAPaste()
{
    QFETCH(bool, isAtOnce);
    const Desk d;
    connect(d.window->workflowTabs(), &WorkflowTabs::edited, d.window, [&d, isAtOnce] {
        if (isAtOnce)
            delete d.window;
        else
            d.window->deleteLater();
    });
    d.paste(u"KarvonCentroidTopk\t7\nKarvonDigestLetters\tA\n"_s);
    QTRY_VERIFY(!d.window);
}

void SettingClipboardTest::aColumnMayGoInAPaste()
{
    const Desk d;
    connect(d.view(0, 1)->propertySet(), &KPropertySet::propertyChanged, d.window,
            [&d] { d.window->grid(0)->removeColumn(0); });
    QSignalSpy edited(d.window->workflowTabs(), &WorkflowTabs::columnsChanged);
    connect(d.window->workflowTabs(), &WorkflowTabs::edited, d.window, [&d] {
        if (d.window->grid(0)->items().size() == 2)
            d.window->grid(0)->removeColumn(0);
    });
    d.paste(u"KarvonCentroidTopk\t7\nKarvonDigestLetters\tA\n"_s);
    QCOMPARE(d.message(), u"1 setting pasted into First › One. Not pasted: KarvonDigestLetters: The column "
                          "doesn't have this setting."_s);
    QTRY_COMPARE(d.window->grid(0)->items().size(), 1);
}

WIDGET_REGISTER_TEST(SettingClipboardTest)
#include "SettingClipboardTest.moc"
