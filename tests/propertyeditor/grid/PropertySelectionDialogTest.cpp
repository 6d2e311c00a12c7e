#include "GridFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/PropertySelectionDialog.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>

using namespace orv;
using namespace GridFixture;

class PropertySelectionDialogTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesCantBeAddedTwice();
    void theDialogOffersWhatTheTypeAllows();
};

void PropertySelectionDialogTest::propertiesCantBeAddedTwice()
{
    PropertySelectionDialog dialog(0, BaseItemType::Database);
    QPushButton *ok = dialog.findChild<QDialogButtonBox *>(text("buttonBox"))->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    dialog.enableProperties({}, false);
    QVERIFY(ok->isEnabled());
    dialog.enableProperties({"SequenceDatabases"}, false);
    QCOMPARE(combo(dialog, "comboProperty")->currentIndex(), -1);
    QCOMPARE(dialog.propertyId(), PropertyId::NoProperty);
    QVERIFY(!ok->isEnabled());
    dialog.enableProperties({"SequenceDatabases"}, true);
    QCOMPARE(int(dialog.propertyId()), 268);
}

void PropertySelectionDialogTest::theDialogOffersWhatTheTypeAllows()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    const QComboBox *properties = combo(dialog, "comboProperty");
    QVERIFY(properties->findData(60) >= 0);
    QVERIFY(properties->findData(1) < 0);
    QStringList texts;
    for (int row = 0; row < properties->count(); ++row)
        texts.append(properties->itemText(row));
    QStringList sorted = texts;
    sorted.sort();
    QCOMPARE(texts, sorted);
    const QComboBox *priorities = combo(dialog, "comboPriority");
    QCOMPARE(priorities->itemText(0), text("High"));
    QCOMPARE(priorities->itemData(0).toInt(), 1);
    QCOMPARE(priorities->itemText(1), text("Medium"));
    QCOMPARE(priorities->itemText(2), text("Low"));
    QCOMPARE(priorities->itemData(2).toInt(), 3);
    dialog.setGroups({text("b"), text("a")});
    QCOMPARE(combo(dialog, "comboGroup")->itemText(0), text("a"));
    QCOMPARE(PropertySelectionDialog(1, BaseItemType::Karvon).windowTitle(), text("Modify property"));
}

WIDGET_REGISTER_TEST(PropertySelectionDialogTest)
#include "PropertySelectionDialogTest.moc"
