#include "EditorApplication.h"

#include "EditorArguments.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/window/WorkflowIcons.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QDir>
#include <QImage>
#include <QPainter>

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

WIDGET_REGISTER_TEST(EditorApplicationTest)
#include "EditorApplicationTest.moc"
