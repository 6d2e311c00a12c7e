#include "OrvTest.h"
#include "TableCells.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/ProteinsTableItem.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using TableCells::cell;
using TableCells::entry;
using TableCells::node;

/// Tables of proteins with their annotations.
class TestProteinsTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneIsEmpty();
    void proteinsAreReadAndWritten();
    void absentAnnotationsAreWrittenAsNone();
    void aLoadReplacesTheAnnotations();
    void theTableHasToBeThere();
    void aBadAnnotationFailsTheLoad();
    void annotationsThatAreNoArrayAreReported();
    void theContentIsGivenAndTaken();
    void clearingLeavesNothing();
};

namespace {

constexpr auto kKeepProteins = PropertyConversionFlag::KeepPaths;

ProteinAnnotationEntry annotation()
{
    ProteinAnnotationEntry annotation;
    annotation.protein = u"HC"_s;
    annotation.name = u"CDR-H3"_s;
    annotation.begin = 99;
    annotation.end = 108;
    return annotation;
}

QJsonObject proteinTable(const QJsonValue &annotations)
{
    QJsonObject value = node({u"ProteinAccessionName"_s, u"ProteinSequence"_s}, {{u"HC"_s, u"EVQLV"_s}});
    if (!annotations.isUndefined())
        value.insert(u"proteinAnnotations"_s, annotations);
    return value;
}

QJsonObject proteins(const QJsonValue &annotations = QJsonArray{annotation().toJson()})
{
    return cell(u"Proteins"_s, {entry(u"Proteins"_s, proteinTable(annotations))});
}

} // namespace

void TestProteinsTableItem::aNewOneIsEmpty()
{
    const ProteinsTableItem item;
    QCOMPARE(item.type(), BaseItemType::Proteins);
    QVERIFY(item.isEmpty());
    QVERIFY(item.proteinAnnotations().isEmpty());
}

void TestProteinsTableItem::proteinsAreReadAndWritten()
{
    LossCollector losses;
    ProteinsTableItem item;
    ORV_VERIFY_OK(item.load(proteins(), {}, LoadContext(&losses, u"/c"_s)));
    QCOMPARE(item.value(0, 1), QVariant(u"EVQLV"_s));
    QVERIFY(item.proteinAnnotations() == QList{annotation()});
    QCOMPARE(item.toJson(kKeepProteins), proteins());
    QCOMPARE(item.toJson(PropertyConversionFlag::AbsolutePaths), proteins());
    QCOMPARE(losses.losses(), QList<Loss>());
}

void TestProteinsTableItem::absentAnnotationsAreWrittenAsNone()
{
    ProteinsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(proteins(QJsonValue::Undefined), {}));
    QCOMPARE(item.toJson(kKeepProteins), proteins(QJsonArray()));
}

void TestProteinsTableItem::aLoadReplacesTheAnnotations()
{
    ProteinsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(proteins(), {}));
    ORV_VERIFY_OK(item.assignFromJson(proteins(QJsonArray()), {}));
    QVERIFY(item.proteinAnnotations().isEmpty());
}

void TestProteinsTableItem::theTableHasToBeThere()
{
    ProteinsTableItem item;
    const Error error = item.assignFromJson(cell(u"Proteins"_s, {entry(u"Isotope"_s, 1)}), {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), u"Could not parse JSON. Subobject \"Proteins\" is empty."_s);
}

void TestProteinsTableItem::aBadAnnotationFailsTheLoad()
{
    const QJsonArray bad{annotation().toJson(), QJsonObject{{u"name"_s, 5}}};
    ProteinsTableItem item;
    const Error error = item.assignFromJson(proteins(bad), {});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), ProteinAnnotationEntry::listFromJson(bad).error().errorMessage());
}

void TestProteinsTableItem::annotationsThatAreNoArrayAreReported()
{
    LossCollector losses;
    ProteinsTableItem item;
    ORV_VERIFY_OK(
        item.load(proteins(QJsonObject{{u"name"_s, u"CDR-H3"_s}}), {}, LoadContext(&losses, u"/c"_s)));
    QVERIFY(item.proteinAnnotations().isEmpty());
    QCOMPARE(losses.losses().size(), 1);
    QCOMPARE(losses.losses().first().path, u"/c/properties/0/value/proteinAnnotations"_s);
}

void TestProteinsTableItem::theContentIsGivenAndTaken()
{
    ProteinsTableItem source;
    ORV_VERIFY_OK(source.assignFromJson(proteins(), {}));
    ProteinsTableItem target;
    target.setContent(source.content());
    QCOMPARE(target.toJson(kKeepProteins), proteins());
    QVERIFY(target.content().root == source.content().root);
    QVERIFY(target.content().annotations == source.content().annotations);
}

void TestProteinsTableItem::clearingLeavesNothing()
{
    ProteinsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(proteins(), {}));
    item.clear();
    QCOMPARE(item.columnCount(), 0);
    QVERIFY(item.proteinAnnotations().isEmpty());
}

ORV_REGISTER_TEST(TestProteinsTableItem)
#include "TestProteinsTableItem.moc"
