#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

#include <QMetaEnum>

using namespace orv;
using namespace orv::PropertyEditorJsonUtils;
using namespace Qt::StringLiterals;

/// New cells with their default tables.
class TestJsonUtilsDefaults : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void newCellsHoldTheirDefaults_data();
    void newCellsHoldTheirDefaults();
    void otherTypesAreRefused_data();
    void otherTypesAreRefused();
    void aNumberThatIsNoTypeIsRefused();
};

namespace {

using Entries = QList<QPair<QString, QJsonObject>>;

Entries one(const QString &name, const RowNode &node)
{
    return {{name, rowNodeToObject(node)}};
}

/// What each type of cell with a default is expected to hold.
QMap<QString, Entries> defaults()
{
    const QPair<QString, QJsonObject> masses{u"MassTable"_s, rowNodeToObject(MassUtils::defaultRowNode(5))};
    const QPair<QString, QJsonObject> tolerance{u"MatchTolerance"_s,
                                                rowNodeToObject(MassUtils::defaultMatchToleranceRowNode())};
    return {
        {u"DetachedGlycans"_s, one(u"DetachedGlycans"_s, DetachedGlycanUtils::defaultTableRowNode())},
        {u"Disulfide"_s, one(u"Disulfide"_s, Disulfide::DisulfideUtils::defaultRowNode())},
        {u"GlycanOptions"_s, one(u"GlycanOptions"_s, DetachedGlycanUtils::defaultOptionsRowNode())},
        {u"IntactOptions"_s, one(u"IntactOptions"_s, IntactOptionsUtils::defaultRowNode())},
        {u"OligoOptions"_s, one(u"OligoOptions"_s, IntactOptionsUtils::defaultRowNode())},
        {u"OligoMasses"_s, {masses, tolerance, {u"Tolerances"_s, MassTolerances().toJson()}}},
        {u"Isotope"_s, one(u"Isotope"_s, IsotopeUtils::defaultRowNode())},
        {u"Masses"_s, {masses, tolerance}},
        {u"Proteins"_s, one(u"Proteins"_s, ProteinUtils::defaultRowNode())},
        {u"IntactProteins"_s, one(u"IntactProteins"_s, ProteinUtils::defaultInputRowNode())},
        {u"OligoMolecules"_s, one(u"OligoMolecules"_s, ProteinUtils::defaultInputRowNode())},
        {u"SamplesProteins"_s, one(u"SamplesProteins"_s, RowNode())},
    };
}

} // namespace

void TestJsonUtilsDefaults::newCellsHoldTheirDefaults_data()
{
    QTest::addColumn<QString>("type");
    for (const QString &type : defaults().keys())
        QTest::newRow(qPrintable(type)) << type;
}

void TestJsonUtilsDefaults::newCellsHoldTheirDefaults()
{
    QFETCH(const QString, type);
    QJsonArray entries;
    for (const auto &[name, value] : defaults().value(type))
        entries.append(QJsonObject{{u"name"_s, name}, {u"value"_s, value}});
    const QJsonObject expected{{u"type"_s, type}, {u"properties"_s, entries}};
    QCOMPARE(defaultJsonContents(baseItemTypeFromString(type)), expected);
}

void TestJsonUtilsDefaults::otherTypesAreRefused_data()
{
    QTest::addColumn<BaseItemType>("type");
    const QMetaEnum types = QMetaEnum::fromType<BaseItemType>();
    for (int i = 0; i < types.keyCount(); ++i) {
        if (!defaults().contains(QString::fromLatin1(types.key(i))))
            QTest::newRow(types.key(i)) << BaseItemType(types.value(i));
    }
}

void TestJsonUtilsDefaults::otherTypesAreRefused()
{
    QFETCH(const BaseItemType, type);
    const LogCapture log;
    QCOMPARE(defaultJsonContents(type), QJsonObject());
    const QString warning =
        u"Cannot build a default JSON object of type \"%1\""_s.arg(baseItemTypeToString(type));
    QCOMPARE(log.warnings(), QStringList{warning});
}

void TestJsonUtilsDefaults::aNumberThatIsNoTypeIsRefused()
{
    const LogCapture log;
    QCOMPARE(defaultJsonContents(BaseItemType(99)), QJsonObject());
    QCOMPARE(log.warnings().size(), 1);
}

ORV_REGISTER_TEST(TestJsonUtilsDefaults)
#include "TestJsonUtilsDefaults.moc"
