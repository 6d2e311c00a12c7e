#include "EditorApplication.h"

#include "EditorArguments.h"
#include "EditorWindow.h"
#include "LogCapture.h"
#include "Mnemonics.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/core_ms/MsFileInfo.h>
#include <orv/core_ms/SampleFileChecker.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>
#include <orv/propertyeditor/window/WorkflowIcons.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace orv;
using namespace Qt::StringLiterals;

class EditorApplicationTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeOfWorkflowHasItsIcon();
    void iconsDifferFromEachOtherAndUnderThePointer();
    void filesAreOpened();
    void helpAndVersionAreTold();
    void wrongArgumentsAreTold();
    void theProgramAnswersInATerminal();
    void killedProgramsAreRecovered();
    void windowsSpeakGerman();
    void germanMnemonicsDiffer();
    void findingsSpeakGerman();
    void errorsOfLoadsSpeakGerman_data();
    void errorsOfLoadsSpeakGerman();
    void formatsOfSamplesSpeakGerman();
    void translationsKeepTheirPlaces();
    void desktopsKnowTheApplicationAndItsFiles();
};

void EditorApplicationTest::everyTypeOfWorkflowHasItsIcon()
{
    EditorApplication::setIcons();
    for (const WorkflowType type : availableWorkflowTypes()) {
        const QString name = workflowTypeIconName(type);
        if (!name.isEmpty())
            QVERIFY2(WorkflowIcons::availableIcons().contains(name), qPrintable(name));
    }
    QVERIFY(WorkflowIcons::availableIcons().contains(u"default"_s));
    QVERIFY(!QApplication::windowIcon().isNull());
}

void EditorApplicationTest::iconsDifferFromEachOtherAndUnderThePointer()
{
    EditorApplication::setIcons();
    QList<QImage> seen;
    for (const QIcon &icon : WorkflowIcons::availableIcons()) {
        for (const int side : {48, 128}) {
            const QImage idle = icon.pixmap(QSize(side, side), 1, QIcon::Normal).toImage();
            const QImage hover = icon.pixmap(QSize(side, side), 1, QIcon::Selected).toImage();
            QCOMPARE(idle.size(), QSize(side, side));
            QVERIFY(idle != hover);
            QVERIFY(!seen.contains(idle));
            seen.append(idle);
        }
    }
}

void EditorApplicationTest::filesAreOpened()
{
    const EditorArguments arguments = readEditorArguments({u"editor"_s, u"a.wflw"_s, u"/data/b.wflw"_s});
    QVERIFY(!arguments.answer);
    QCOMPARE(arguments.files, QStringList({QDir::current().filePath(u"a.wflw"_s), u"/data/b.wflw"_s}));
}

void EditorApplicationTest::helpAndVersionAreTold()
{
    const EditorArguments help = readEditorArguments({u"editor"_s, u"--help"_s});
    QCOMPARE(help.answer->exitCode, 0);
    QVERIFY(help.answer->text.contains(u"[FILE...]"_s));
    const EditorArguments version = readEditorArguments({u"editor"_s, u"--version"_s});
    QCOMPARE(version.answer->exitCode, 0);
    QVERIFY(version.answer->text.endsWith(QCoreApplication::applicationVersion() + u'\n'));
}

void EditorApplicationTest::wrongArgumentsAreTold()
{
    const EditorArguments wrong = readEditorArguments({u"editor"_s, u"--nonsense"_s});
    QCOMPARE(wrong.answer->exitCode, 2);
    QVERIFY(wrong.answer->text.contains(u"nonsense"_s));
}

namespace {

/// The application in German while it lives.
class German
{
public:
    German()
    {
        EditorApplication::installTranslations(QLocale(QLocale::German));
        m_texts = qApp->findChildren<QTranslator *>();
    }
    ~German()
    {
        for (QTranslator *texts : m_texts)
            delete texts;
    }
    Q_DISABLE_COPY_MOVE(German)

private:
    QList<QTranslator *> m_texts;
};

QString read(const QString &name)
{
    return QString::fromUtf8(TestData::read(QString::fromUtf8(ORV_EDITOR_SOURCES) + name));
}

/// "%1" and the like, each once, sorted.
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(u"%L?[0-9n]"_s);
    QStringList places;
    for (auto match = place.globalMatch(text); match.hasNext();)
        places.append(match.next().captured());
    places.sort();
    places.removeDuplicates(); // a text with forms for one and many has them in each
    return places;
}

} // namespace

void EditorApplicationTest::theProgramAnswersInATerminal()
{
    // A platform that doesn't exist ends every program that needs a screen.
    QProcess program;
    program.setProgram(QString::fromUtf8(ORV_EDITOR_PROGRAM));
    program.setProcessEnvironment([] {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"none-such"_s);
        return environment;
    }());
    program.setArguments({u"--version"_s});
    program.start();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(program.readAllStandardOutput().startsWith("orv-workflow-editor "));
    program.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    program.setArguments({u"--nonsense"_s});
    program.start();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 2);
    QVERIFY(program.readAllStandardError().contains("nonsense"));
}

void EditorApplicationTest::killedProgramsAreRecovered()
{
    const QTemporaryDir data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, data.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, data.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    const QString file = TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s);
    program.start(QString::fromUtf8(ORV_EDITOR_PROGRAM), {file});
    QVERIFY(program.waitForStarted());
    const QDir journals(data.filePath(u"ORV/orv-workflow-editor/journals"_s));
    QTRY_COMPARE_WITH_TIMEOUT(QDir(journals.path()).entryList({u"*.journal"_s}).size(), 1, 60000);
    QVERIFY(RecoveryStore(journals.path()).entries().isEmpty());
    program.kill();
    QVERIFY(program.waitForFinished());
    const QList<RecoveryEntry> entries = RecoveryStore(journals.path()).entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().file, file);
    QVERIFY(!entries.first().hasDocument);
}

void EditorApplicationTest::windowsSpeakGerman()
{
    const German german;
    CoreMainWindow main;
    EditorWindow window(&main);
    QStringList menus;
    for (const QAction *menu : window.menuBar()->actions())
        menus.append(menu->text());
    QCOMPARE(menus, QStringList({u"&Datei"_s, u"&Bearbeiten"_s, u"&Ansicht"_s, u"&Hilfe"_s}));
    QVERIFY(window.windowTitle().startsWith(u"Projekt anlegen"_s));
    QCOMPARE(SampleFileChecker::askDisk(ResourceReferenceUtils::fromString(u"/no/such.mzML"_s)).text,
             u"nicht gefunden"_s);
    QVERIFY(readEditorArguments({u"editor"_s, u"--help"_s}).answer->text.contains(u"Workflows, die"_s));
}

void EditorApplicationTest::germanMnemonicsDiffer()
{
    const German german;
    EditorApplication::registerCreators();
    CoreMainWindow main;
    EditorWindow window(&main);
    QCOMPARE(entriesWithTakenLetters(window), QStringList());
    window.openWorkflow(TestData::examplePath(u"workflows/intact_mass_check.wflw"_s));
    QCOMPARE(window.centralWidget()->findChild<QTabWidget *>()->count(), 3);
    window.show();
    QCOMPARE(controlsWithTakenLetters(window), QStringList());
}

namespace {

/// What is found in an example whose highest charge lies above its range.
PropertyEditor::LocatedFinding findingOnCharge()
{
    QByteArray text = TestData::read(TestData::examplePath(u"workflows/intact_mass_check.wflw"_s));
    const QByteArray value = R"("value": "100")";
    const qsizetype position = text.indexOf(value, text.indexOf(R"("name": "ChargeMax")"));
    text.replace(position, value.size(), R"("value": "900")");
    const auto report = PropertyEditor::WorkflowCheck({u"Builtin"_s})
                            .run({QJsonDocument::fromJson(text).object(), text}, QUrl(u"file:///nowhere/"_s));
    return report ? report->findings.value(0) : PropertyEditor::LocatedFinding();
}

Error loadError(const QByteArray &text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"faulty.wflw"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return Error::NoError;
    file.close();
    PropertyEditor::Content content;
    return content.assignFromFile(file.fileName());
}

} // namespace

void EditorApplicationTest::findingsSpeakGerman()
{
    const QString english = u"The value of \"Highest charge\" must be in range [1;500]"_s;
    // Rules are made once, and must not stay with the language of their first finding.
    QCOMPARE(findingOnCharge().message, english);
    {
        const German german;
        const PropertyEditor::LocatedFinding finding = findingOnCharge();
        QCOMPARE(finding.message, u"Der Wert von „Highest charge“ muss im Bereich [1;500] liegen"_s);
        QCOMPARE(finding.hint, u"Geben Sie ein: eine Zahl von 1 bis 500."_s);
        QCOMPARE(finding.rule, u"Builtin/range"_s);
    }
    QCOMPARE(findingOnCharge().message, english);
}

void EditorApplicationTest::errorsOfLoadsSpeakGerman_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");
    QTest::newRow("cut short") << QByteArray("{") << u"Der Inhalt der Datei ist nicht gültig: "_s
                               << u"Zeile 1, Spalte 2."_s;
    QTest::newRow("empty") << QByteArray() << u"Der Inhalt der Datei ist nicht gültig: "_s
                           << u"Der Text ist leer."_s;
    QTest::newRow("no tabs") << QByteArray(R"({"tabs": 5})") << u"Der Inhalt des Workflows ist nicht gültig"_s
                             << u"Ein Workflow hat eine Liste „tabs“, aber es gibt eine Zahl."_s;
}

void EditorApplicationTest::errorsOfLoadsSpeakGerman()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    const LogCapture log;
    const German german;
    const Error error = loadError(text);
    QVERIFY2(error.errorMessage().startsWith(message), qPrintable(error.errorMessage()));
    QVERIFY2(error.details().contains(detail), qPrintable(error.details().join(u'\n')));
}

void EditorApplicationTest::formatsOfSamplesSpeakGerman()
{
    const auto mzml = [] {
        return msreader::MsFileInfo::formatDescription(msreader::VendorDataFormat::Mzml);
    };
    QCOMPARE(mzml(), u"Open data format mzml"_s);
    const German german;
    QCOMPARE(mzml(), u"Offenes Datenformat mzml"_s);
}

namespace {

struct Translated
{
    QString source;
    QString text; ///< its forms for one and many behind each other
    bool isFinished = false;
};

QList<Translated> germanTexts()
{
    QXmlStreamReader reader(read(u"/../../propertyeditor/translations/orv_de.ts"_s));
    QList<Translated> texts;
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"source"_s)
            source = reader.readElementText();
        if (reader.name() != u"translation"_s || !reader.isStartElement())
            continue;
        const bool isFinished = reader.attributes().value(u"type"_s).isEmpty();
        texts.append({source, reader.readElementText(QXmlStreamReader::IncludeChildElements), isFinished});
    }
    return reader.hasError() ? QList<Translated>() : texts;
}

} // namespace

void EditorApplicationTest::translationsKeepTheirPlaces()
{
    const QList<Translated> texts = germanTexts();
    QVERIFY2(texts.size() > 2000, qPrintable(QString::number(texts.size())));
    for (const Translated &each : texts) {
        QVERIFY2(each.isFinished && !each.text.isEmpty(), qPrintable(each.source));
        QVERIFY2(placesIn(each.source) == placesIn(each.text), qPrintable(each.source));
        QVERIFY2(each.source.endsWith(u"..."_s) == each.text.endsWith(u"..."_s), qPrintable(each.source));
    }
}

void EditorApplicationTest::desktopsKnowTheApplicationAndItsFiles()
{
    const QString entry = read(u"/desktop/org.orv.WorkflowEditor.desktop"_s);
    QVERIFY(entry.startsWith(u"[Desktop Entry]\n"_s));
    for (const QString &line : {u"Type=Application"_s, u"Exec=orv-workflow-editor %F"_s,
                                u"Icon=org.orv.WorkflowEditor"_s, u"MimeType=application/x-orv-workflow;"_s})
        QVERIFY2(entry.contains(u'\n' + line + u'\n'), qPrintable(line));
    QXmlStreamReader types(read(u"/desktop/org.orv.WorkflowEditor.xml"_s));
    QStringList found;
    while (!types.atEnd()) {
        types.readNext();
        if (types.isStartElement() && types.name() == u"mime-type"_s)
            found.append(types.attributes().value(u"type"_s).toString());
        if (types.isStartElement() && types.name() == u"glob"_s)
            found.append(types.attributes().value(u"pattern"_s).toString());
    }
    QVERIFY2(!types.hasError(), qPrintable(types.errorString()));
    QCOMPARE(found, QStringList({u"application/x-orv-workflow"_s, u"*.wflw"_s}));
}

WIDGET_REGISTER_TEST(EditorApplicationTest)
#include "EditorApplicationTest.moc"
