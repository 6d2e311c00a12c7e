#include "GridFixture.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/widgets/DialogAnswerer.h>

#include <QPushButton>

using namespace orv;
using namespace GridFixture;

using EditorMode = GridPropertyEditorView::EditorMode;

namespace {

void clickModify(const GridPropertyEditorView &view)
{
    for (QPushButton *candidate : view.findChildren<QPushButton *>()) {
        if (candidate->toolTip() == text("Modify property"))
            QTest::mouseClick(candidate, Qt::LeftButton);
    }
}

void chooseProperty(const QDialog &dialog, PropertyId id)
{
    combo(dialog, "comboProperty")->setCurrentIndex(combo(dialog, "comboProperty")->findData(int(id)));
}

} // namespace

/// What a property keeps when designers make another one of it.
class ModifiedPropertiesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void modifyingToAnotherListTakesItsDefault();
    void modifyingToAnotherEditorTakesItsDefault();
};

void ModifiedPropertiesTest::modifyingToAnotherListTakesItsDefault()
{
    Column column(settingsCell("Karvon", {setting("KarvonDigestCutterType", 1)}));
    column.view->setEditorMode(EditorMode::Designer);
    column.select("KarvonDigestCutterType");
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modify property"), [](QDialog &dialog) {
        chooseProperty(dialog, PropertyId::KarvonCentroidWidthType);
        return true;
    });
    clickModify(*column.view);
    QVERIFY(answers.isDone());
    QCOMPARE(valueIn(column.item.content(), "KarvonCentroidWidthType"), QJsonValue(0));
}

void ModifiedPropertiesTest::modifyingToAnotherEditorTakesItsDefault()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.select("KarvonFragmentMassError");
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modify property"), [](QDialog &dialog) {
        chooseProperty(dialog, PropertyId::KarvonGlycanText);
        return true;
    });
    clickModify(*column.view);
    QVERIFY(answers.isDone());
    QVERIFY(column.set().contains("KarvonGlycanText"));
    const QByteArray stored = bytes(column.item.content());
    QVERIFY2(!stored.contains("10.1234") && !stored.contains("ppm"), stored.constData());
}

WIDGET_REGISTER_TEST(ModifiedPropertiesTest)
#include "ModifiedPropertiesTest.moc"
