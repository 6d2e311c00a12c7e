#include "EditorApplication.h"

#include "EditorArguments.h"
#include "EditorWindow.h"
#include "Mnemonics.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/core_ms/SampleFileChecker.h>
#include <orv/propertyeditor/window/WorkflowIcons.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QDir>
#include <QImage>
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

void EditorApplicationTest::translationsKeepTheirPlaces()
{
    QXmlStreamReader texts(read(u"/../../propertyeditor/translations/orv_de.ts"_s));
    QString source;
    int count = 0;
    while (!texts.atEnd()) {
        texts.readNext();
        if (texts.isStartElement() && texts.name() == u"source"_s) {
            source = texts.readElementText();
        } else if (texts.isStartElement() && texts.name() == u"translation"_s &&
                   texts.attributes().value(u"type"_s).isEmpty()) {
            const QString translation = texts.readElementText(QXmlStreamReader::IncludeChildElements);
            QVERIFY2(placesIn(source) == placesIn(translation), qPrintable(source));
            QVERIFY2(source.endsWith(u"..."_s) == translation.endsWith(u"..."_s), qPrintable(source));
            ++count;
        }
    }
    QVERIFY2(!texts.hasError(), qPrintable(texts.errorString()));
    QVERIFY2(count > 200, qPrintable(QString::number(count)));
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
