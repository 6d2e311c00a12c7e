#include "GridFixture.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/grid/PropertySelectionDialog.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringListModel>

using namespace orv;
using namespace GridFixture;

namespace {

QDialogButtonBox &selectionButtons(const QDialog &dialog)
{
    return *dialog.findChild<QDialogButtonBox *>(text("buttonBox"));
}

const QPushButton &selectionOk(const QDialog &dialog)
{
    return *selectionButtons(dialog).button(QDialogButtonBox::Ok);
}

bool isRowEnabled(const QComboBox &combo, int row)
{
    return combo.model()->flags(combo.model()->index(row, 0)).testFlag(Qt::ItemIsEnabled);
}

QList<QByteArray> allNames(BaseItemType type)
{
    QList<QByteArray> names;
    for (const PropertyId id : allowedProperties(type))
        names.append(PropertiesNames::internalNameForType(id).toUtf8());
    return names;
}

} // namespace

class PropertySelectionDialogTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsHaveTheirNamesAndLabels();
    void propertiesCantBeAddedTwice();
    void setsWithAllPropertiesLeaveNone();
    void theFirstPropertyThatIsFreeIsChosen();
    void okNeedsAProperty();
    void theDialogOffersWhatTheTypeAllows();
    void everyPropertyThatHasATypeIsOffered();
    void prioritiesAreChosen();
    void otherModelsAreTold();
};

void PropertySelectionDialogTest::partsHaveTheirNamesAndLabels()
{
    const PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    QCOMPARE(dialog.windowTitle(), text("Add a property"));
    QCOMPARE(PropertySelectionDialog(1, BaseItemType::Karvon).windowTitle(), text("Modify property"));
    QCOMPARE(PropertySelectionDialog(2, BaseItemType::Karvon).windowTitle(), text("Modify property"));
    QCOMPARE(dialog.objectName(), text("PropertySelectionDialog"));
    QVERIFY(dialog.findChild<QGridLayout *>(text("gridLayout")));
    QVERIFY(dialog.findChild<QGridLayout *>(text("gridLayout_2")));
    QStringList labels;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->buddy())
            labels.append(label->text() + label->buddy()->objectName());
    }
    QCOMPARE(labels, (QStringList{text("Property:comboProperty"), text("Group:comboGroup"),
                                  text("Priority:comboPriority")}));
    QCOMPARE(selectionButtons(dialog).standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void PropertySelectionDialogTest::propertiesCantBeAddedTwice()
{
    PropertySelectionDialog dialog(0, BaseItemType::Database);
    const QPushButton &ok = selectionOk(dialog);
    QVERIFY(ok.isEnabled());
    dialog.enableProperties({}, false);
    QVERIFY(ok.isEnabled());
    dialog.enableProperties({"SequenceDatabases"}, false);
    QCOMPARE(combo(dialog, "comboProperty")->currentIndex(), -1);
    QCOMPARE(dialog.propertyId(), PropertyId::NoProperty);
    QVERIFY(!ok.isEnabled());
    dialog.enableProperties({"SequenceDatabases"}, true);
    QCOMPARE(int(dialog.propertyId()), 268);
    QVERIFY(ok.isEnabled());
}

void PropertySelectionDialogTest::setsWithAllPropertiesLeaveNone()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    dialog.enableProperties(allNames(BaseItemType::Karvon), false);
    const QComboBox *properties = combo(dialog, "comboProperty");
    QVERIFY(properties->count() > 10);
    for (int row = 0; row < properties->count(); ++row)
        QVERIFY2(!isRowEnabled(*properties, row), qPrintable(properties->itemText(row)));
    QCOMPARE(properties->currentIndex(), -1);
    QVERIFY(!selectionOk(dialog).isEnabled());
}

void PropertySelectionDialogTest::theFirstPropertyThatIsFreeIsChosen()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    const QComboBox *properties = combo(dialog, "comboProperty");
    QCOMPARE(properties->currentIndex(), 0);
    const auto nameAt = [properties](int row) {
        return PropertiesNames::internalNameForType(PropertyId(properties->itemData(row).toInt())).toUtf8();
    };
    dialog.enableProperties({nameAt(3), nameAt(0), nameAt(1)}, false);
    QCOMPARE(properties->currentIndex(), 2);
    QVERIFY(!isRowEnabled(*properties, 0) && !isRowEnabled(*properties, 1) && isRowEnabled(*properties, 2));
    QVERIFY(!isRowEnabled(*properties, 3) && isRowEnabled(*properties, 4));
    dialog.enableProperties({nameAt(1)}, true);
    QCOMPARE(properties->currentIndex(), 1);
    QVERIFY(!isRowEnabled(*properties, 0) && isRowEnabled(*properties, 1) && !isRowEnabled(*properties, 3));
}

void PropertySelectionDialogTest::okNeedsAProperty()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.setPropertyId(PropertyId::NoProperty);
    QVERIFY(!selectionOk(dialog).isEnabled());
    QTest::keyClick(combo(dialog, "comboProperty"), Qt::Key_Down);
    QVERIFY(selectionOk(dialog).isEnabled());
    QTest::mouseClick(selectionButtons(dialog).button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
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
    dialog.setGroups({text("b"), text("a")});
    QCOMPARE(combo(dialog, "comboGroup")->itemText(0), text("a"));
    dialog.setGroup(text("b"));
    QCOMPARE(dialog.group(), text("b"));
}

void PropertySelectionDialogTest::everyPropertyThatHasATypeIsOffered()
{
    QStringList expected;
    QSet<int> offered;
    const LogCapture log;
    for (int type = 1; type <= 25; ++type) {
        for (const PropertyId id : allowedProperties(BaseItemType(type))) {
            if (PropertiesNames::valueTypeNameOfPropertyType(id).isEmpty())
                expected.append(text("Type name is empty for %1 so ignoring")
                                    .arg(PropertiesNames::internalNameForType(id)));
            else
                offered.insert(type * 1000 + int(id));
        }
        const PropertySelectionDialog dialog(0, BaseItemType(type));
        const QComboBox *properties = combo(dialog, "comboProperty");
        for (int row = 0; row < properties->count(); ++row)
            QVERIFY(offered.remove(type * 1000 + properties->itemData(row).toInt()));
    }
    QCOMPARE(offered, QSet<int>());
    QCOMPARE(log.texts(QtDebugMsg), expected);
}

void PropertySelectionDialogTest::prioritiesAreChosen()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    const QComboBox *priorities = combo(dialog, "comboPriority");
    const QStringList captions{text("High"), text("Medium"), text("Low")};
    QCOMPARE(priorities->count(), 3);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(priorities->itemText(row), captions.at(row));
        dialog.setPriority(row + 1);
        QCOMPARE(priorities->currentIndex(), row);
        QCOMPARE(dialog.priority(), row + 1);
    }
}

void PropertySelectionDialogTest::otherModelsAreTold()
{
    PropertySelectionDialog dialog(0, BaseItemType::Karvon);
    QStringListModel other({text("a"), text("b")});
    combo(dialog, "comboProperty")->setModel(&other);
    const LogCapture log;
    dialog.enableProperties({}, false);
    QCOMPARE(log.warnings(), QStringList());
    dialog.enableProperties({"Samples"}, false);
    QCOMPARE(log.warnings(), QStringList{text("Cannot get the properties model from the combobox")});
}

WIDGET_REGISTER_TEST(PropertySelectionDialogTest)
#include "PropertySelectionDialogTest.moc"
