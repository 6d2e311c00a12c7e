// Every branch of opening, checking, saving and closing, with all that people are asked and told, compared
// with data/*.txt. With ORV_UPDATE_GOLDEN set these files are written anew.
#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>

#include <QDir>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

using PropertyEditor::AbstractValidator;

namespace {

class Scene
{
public:
    explicit Scene(const char *title)
        : m_lines{u"## "_s + text(title)}
    {
        window.show();
    }

    QString file(const char *name, const QJsonObject &document) { return write(folder, name, document); }
    QString path(const char *name) { return folder.filePath(text(name)); }

    void opened(const QString &path) { status(window.openWorkflow(path)); }
    void status(PropertyEditorWindow::OpenStatus status)
    {
        constexpr std::array names{"Opened", "NotOpened", "Rejected"};
        m_result = text("status %1").arg(QLatin1String(names.at(size_t(status))));
    }
    void result(bool isTrue) { m_result = isTrue ? u"true"_s : u"false"_s; }

    QStringList lines()
    {
        m_lines += transcriptOf(answers);
        for (const LogCapture::Line &line : log.lines()) {
            if (line.type == QtCriticalMsg)
                m_lines.append(u"log critical | "_s + line.text);
            else if (line.text == u"Workflow was upgraded"_s)
                m_lines.append(u"log info | "_s + line.text);
        }
        m_lines.append(m_result);
        QStringList titles;
        for (int i = 0; i < window.tabs().count(); ++i)
            titles.append(window.tabs().tabText(i));
        m_lines.append(u"window | %1 | %2"_s.arg(window.windowTitle(), titles.join(u", "_s)));
        if (!answers.isDone())
            m_lines.append(u"NOT AS SCRIPTED"_s);
        m_lines.replaceInStrings(folder.path(), u"FOLDER"_s);
        return m_lines;
    }

    QTemporaryDir folder;
    LogCapture log;
    ScriptedAnswerer answers;
    Window window;

private:
    QStringList m_lines;
    QString m_result;
};

/// Finds an error and a warning, where there are some.
class Finder : public AbstractValidator
{
public:
    Finder(const QString &error, const QString &warning)
        : m_error(error)
        , m_warning(warning)
    {}

    bool validate(const PropertyEditor::Content &, const QUrl &, QList<QString> *warnings,
                  QList<QString> *errors) const override
    {
        if (!m_warning.isEmpty())
            warnings->append(m_warning);
        if (!m_error.isEmpty())
            errors->append(m_error);
        return m_error.isEmpty();
    }

private:
    QString m_error;
    QString m_warning;
};

void compareWithGolden(const char *name, const QStringList &lines)
{
    const QByteArray found = (lines.join(u'\n') + u'\n').toUtf8();
    const QString path = u"%1/%2.txt"_s.arg(QStringLiteral(ORV_WINDOW_TEST_DATA), text(name));
    if (qEnvironmentVariableIsSet("ORV_UPDATE_GOLDEN")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(found), found.size());
        return;
    }
    const QStringList expected = QString::fromUtf8(TestData::read(path)).split(u'\n');
    const QStringList actual = QString::fromUtf8(found).split(u'\n');
    for (qsizetype i = 0; i < qMax(expected.size(), actual.size()); ++i)
        QCOMPARE(actual.value(i), expected.value(i));
}

QJsonObject server(const char *version)
{
    QJsonObject data = metadata(version);
    data[u"contentMode"_s] = 1;
    return data;
}

} // namespace

class WindowTranscriptTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void opening();
    void checking();
    void savingAndClosing();
};

void WindowTranscriptTest::opening()
{
    QStringList lines;
    {
        Scene scene("a current document");
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()})));
        lines += scene.lines();
    }
    {
        Scene scene("no document at all");
        scene.opened(write(scene.folder, "a.wflw", QByteArray("{")));
        lines += scene.lines();
    }
    for (const char *version : {"5.47.0", "5.46.0", "6.0.0"}) {
        Scene scene("no tabs");
        scene.answers.expectBox(u"Workflow is invalid"_s, u"OK"_s);
        scene.opened(scene.file("a.wflw", Documents::document({}, metadata(version))));
        lines += scene.lines();
    }
    for (const char *answer : {"No", "Yes"}) {
        Scene scene("a newer document");
        scene.answers.expectBox(u"Workflow is invalid"_s, text(answer));
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("6.0.0"))));
        lines += scene.lines();
    }
    {
        Scene scene("a server document of an age that servers refuse");
        scene.answers.expectBox(u"Workflow is invalid"_s, u"No"_s);
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, server("5.9.0"))));
        lines += scene.lines();
    }
    for (const char *answer : {"Cancel", "Apply"}) {
        Scene scene("an outdated document");
        scene.answers.expectBox(u"Workflow upgrade"_s, text(answer));
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("5.46.0"))));
        lines += scene.lines();
    }
    for (const char *path : {"", "b.wflw", "no/such/b.wflw"}) {
        Scene scene("an outdated document, saved");
        scene.answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
        scene.answers.expectPath(u"Save upgraded workflow"_s, *path ? scene.path(path) : QString());
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("5.46.0"))));
        lines += scene.lines();
    }
    {
        Scene scene("a version of fewer numbers");
        scene.answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("5.47"))));
        lines += scene.lines();
    }
    {
        Scene scene("an upgrade that fails, to be saved");
        scene.answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
        scene.answers.expectBox(u"Workflow updating failed"_s, u"Yes"_s);
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("5.38.0"))));
        lines += scene.lines();
    }
    {
        Scene scene("an upgrade that tells of changes");
        scene.answers.expectBox(u"Workflow upgrade"_s, u"Cancel"_s);
        scene.opened(TestData::examplePath(u"workflows/released_glycans.wflw"_s));
        QStringList found = scene.lines();
        found.replaceInStrings(QDir::toNativeSeparators(TestData::examplePath(u"workflows"_s)),
                               u"EXAMPLES"_s);
        lines += found;
    }
    for (const char *answer : {"No", "Yes"}) {
        Scene scene("an upgrade that fails");
        scene.answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
        scene.answers.expectBox(u"Workflow updating failed"_s, text(answer));
        scene.opened(scene.file("a.wflw", documentOf({karvonCell()}, metadata("5.38.0"))));
        lines += scene.lines();
    }
    {
        Scene scene("a cell that can't be shown");
        scene.answers.expectBox({}, u"OK"_s);
        scene.opened(scene.file("a.wflw", documentOf({karvonCell(), settingsCell("Nonsense", {})})));
        lines += scene.lines();
    }
    {
        Scene scene("references that aren't reached");
        scene.answers.expectBox(u"Unsupported reference type"_s, u"OK"_s);
        const QJsonObject layout = setting("KarvonLayout", u"talvane:/projects/1/layout.ini"_s);
        scene.opened(scene.file("a.wflw", documentOf({karvonCell({layout})})));
        lines += scene.lines();
    }
    compareWithGolden("opening", lines);
}

void WindowTranscriptTest::checking()
{
    struct Case
    {
        const char *title;
        const char *error;
        const char *warning;
        const char *answer;
    };
    const QString example = TestData::examplePath(u"workflows/intact_mass_check.wflw"_s);
    QStringList lines;
    for (const Case &row : {Case{"nothing is found", "", "", ""}, Case{"an error", "A < B", "", "OK"},
                            Case{"an error and a warning", "A < B", "B > A", "OK"},
                            Case{"a warning that is heeded", "", "B > A", "No"},
                            Case{"a warning that is passed over", "", "B > A", "Yes"}}) {
        Scene scene(row.title);
        scene.opened(example);
        scene.window.setAdditionalValidatorsCreatorFunction(
            [&row] { return QList<AbstractValidator *>{new Finder(text(row.error), text(row.warning))}; });
        if (*row.answer)
            scene.answers.expectBox(u"Project creation"_s, text(row.answer));
        if (!*row.error && qstrcmp(row.answer, "No") != 0)
            scene.answers.expectPath(u"Save project as"_s, {});
        scene.result(scene.window.createProjectClicked());
        QStringList found = scene.lines();
        found.replaceInStrings(QDir::toNativeSeparators(example), u"EXAMPLE"_s);
        lines += found;
    }
    compareWithGolden("checking", lines);
}

void WindowTranscriptTest::savingAndClosing()
{
    QStringList lines;
    for (const char *path : {"", "b.wflw", "no/such/b.wflw"}) {
        Scene scene("saving");
        scene.window.openWorkflow(scene.file("a.wflw", documentOf({karvonCell()})));
        scene.answers.expectPath(u"Save Workflow"_s, *path ? scene.path(path) : QString());
        if (text(path).startsWith(u"no/"_s))
            scene.answers.expectBox({}, u"OK"_s);
        scene.result(scene.window.saveWorkflowAs());
        lines += scene.lines();
    }
    {
        Scene scene("closing without changes");
        scene.window.openWorkflow(scene.file("a.wflw", documentOf({karvonCell()})));
        scene.result(scene.window.close());
        lines += scene.lines();
    }
    for (const char *answer : {"No", "Yes"}) {
        Scene scene("closing with changes");
        scene.window.openWorkflow(scene.file("a.wflw", documentOf({karvonCell()})));
        scene.window.tabs().setTabText(0, u"Renamed"_s);
        scene.answers.expectBox(u"Unsaved changes"_s, text(answer));
        if (text(answer) == u"Yes"_s)
            scene.answers.expectPath(u"Save Workflow"_s, scene.path("b.wflw"));
        scene.result(scene.window.close());
        lines += scene.lines();
    }
    compareWithGolden("saving", lines);
}

WIDGET_REGISTER_TEST(WindowTranscriptTest)
#include "WindowTranscriptTest.moc"
