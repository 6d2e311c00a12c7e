#include "GridFixture.h"
#include "LeavingWays.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/resources/ResourceReference.h>

#include <limits>
#include <set>

using namespace orv;
using namespace GridFixture;

namespace {

constexpr int kSettings = 307;

QByteArray nameOf(PropertyId id)
{
    return PropertiesNames::internalNameForType(id).toUtf8();
}

/// A setting as a file without it reads, between two others.
struct Row
{
    explicit Row(PropertyId id)
        : name(nameOf(id))
    {
        auto *setting = new KProperty;
        QStringList errors;
        const QJsonValue stored = PropertySetCreator::storedDefault(id);
        const bool isMade = stored.isUndefined()
                                ? PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::High,
                                                                      setting, &errors)
                                : PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::High,
                                                                      stored, setting, &errors);
        if (!isMade)
            qFatal("No setting %s: %s", name.constData(), qPrintable(errors.join(u'\n')));
        set.addProperty(new KProperty("before", text("b")), "group");
        set.addProperty(setting, "group");
        set.addProperty(new KProperty("behind", text("z")), "group");
        view.resize(500, 400);
        view.changeSet(&set);
        view.show();
    }

    [[nodiscard]] QByteArray json() const
    {
        // That broken bytes are saved as an empty object is logged.
        const LogCapture log;
        const auto object =
            PropertySetCreator::propertySetToObject(set, PropertyEditor::PropertyConversionFlag::KeepPaths);
        return object ? bytes(*object) : QByteArray("not storable");
    }
    KProperty &setting() { return set[name]; }

    QByteArray name;
    KPropertySet set;
    KPropertyEditorView view;
};

/// Opens the editor, if there is one, and leaves it. What is wrong then; empty when all is as it was.
QString changedByALook(Row &row, LeavingWays::Way way)
{
    const QVariant value = row.setting().value();
    const bool wasModified = row.setting().isModified();
    const QByteArray json = row.json();
    const QString shown = LeavingWays::rowOf(row.view, row.name).siblingAtColumn(1).data().toString();
    int changes = 0;
    const QObject context;
    QObject::connect(&row.set, &KPropertySet::propertyChanged, &context, [&changes] { ++changes; });
    if (LeavingWays::open(row.view, row.name) && !LeavingWays::leave(row.view, way))
        return text("the editor stayed open");
    const QVariant now = row.setting().value();
    if (now.metaType() != value.metaType() || now != value)
        return text("the value became another one");
    if (row.json() != json)
        return QString::fromUtf8(row.json());
    if (changes > 0 || row.setting().isModified() != wasModified)
        return text("a change was told");
    const bool isShownAlike =
        LeavingWays::rowOf(row.view, row.name).siblingAtColumn(1).data().toString() == shown;
    return isShownAlike ? QString() : text("the cell shows another text");
}

QVariant reference(const char *path)
{
    return QVariant::fromValue(*ResourceReference::fromString(text(path)));
}

/// Values that a file or a program may hold and an editor can't show, by type.
QVariantList oddValues(int type)
{
    const QString longText(40'000, u'x');
    const QVariantList texts = {text(" a\n\tb \n"), longText, QString(QChar(0x1F600 & 0xffff)), QString()};
    switch (type) {
    case KProperty::Bool:
        return {QVariant(), true, false, text("yes")};
    case KProperty::Int:
        return {QVariant(), std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), text("12 Da")};
    case KProperty::Double:
        return {QVariant(),
                0.1234567890123,
                1e-12,
                -1e300,
                std::numeric_limits<double>::infinity(),
                std::numeric_limits<double>::quiet_NaN(),
                text("1,5")};
    case KProperty::ValueFromList:
        return {QVariant(), text("no entry"), QString(), 3};
    case PropertiesTraits::ObjectType:
        return {QVariant(), QByteArray("{\"unit\":\"Da\",\"value\":1.23456789}"), QByteArray("[1,2"),
                QByteArray("{\"data\":{\"text\":[1,{\"a\":null}]},\"value\":\"x\"}"), text("[]")};
    case PropertiesTraits::ResourceReferenceType:
        return {QVariant(), reference("/missing/a #1.ini"), reference("unifi:/server/{1}/a/b"),
                text("no reference"), text("{}")};
    case PropertiesTraits::CheckableListType:
        return {QVariant(), QStringList{text("no entry"), text("no entry")}, text("text"), 7};
    default:
        return texts;
    }
}

bool isNaN(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<double>() && std::isnan(value.toDouble());
}

} // namespace

class RoundTripTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aLookLeavesEverySetting_data();
    void aLookLeavesEverySetting();
    void aLookLeavesOddValues_data();
    void aLookLeavesOddValues();
    void everyKindIsLeftInEveryWay_data();
    void everyKindIsLeftInEveryWay();
    void theWheelChangesNoSetting_data();
    void theWheelChangesNoSetting();

private:
    static void addSettings();
    static void addKinds();
};

void RoundTripTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void RoundTripTest::addSettings()
{
    QTest::addColumn<int>("id");
    for (int id = 0; id < kSettings; ++id)
        QTest::newRow(nameOf(PropertyId(id)).constData()) << id;
}

/// The first two settings of each type and kind of editor.
void RoundTripTest::addKinds()
{
    QTest::addColumn<int>("id");
    std::multiset<std::pair<int, int>> seen;
    for (int id = 0; id < kSettings; ++id) {
        const int type = int(PropertiesNames::valueTypeOfPropertyType(PropertyId(id)));
        const std::pair kind(type, int(PropertySetCreator::editorForProperty(PropertyId(id))));
        if (seen.count(kind) < 2)
            QTest::newRow(nameOf(PropertyId(id)).constData()) << id;
        seen.insert(kind);
    }
}

void RoundTripTest::aLookLeavesEverySetting_data()
{
    addSettings();
}

void RoundTripTest::aLookLeavesEverySetting()
{
    QFETCH(int, id);
    Row row{PropertyId(id)};
    QVERIFY(!row.setting().isNull());
    QCOMPARE(changedByALook(row, LeavingWays::Way::Tab), QString());
    QCOMPARE(changedByALook(row, LeavingWays::Way::ClickOnAnotherRow), QString());
}

void RoundTripTest::aLookLeavesOddValues_data()
{
    addKinds();
}

void RoundTripTest::aLookLeavesOddValues()
{
    QFETCH(int, id);
    Row row{PropertyId(id)};
    for (const QVariant &value : oddValues(row.setting().type())) {
        {
            // Storing what no editor of a type can show is told as a warning.
            const LogCapture log;
            row.setting().setValue(value);
        }
        if (isNaN(row.setting().value()))
            continue; // equal to nothing
        QCOMPARE(changedByALook(row, LeavingWays::Way::Tab), QString());
        QCOMPARE(row.setting().value(), value);
    }
}

void RoundTripTest::everyKindIsLeftInEveryWay_data()
{
    addKinds();
}

void RoundTripTest::everyKindIsLeftInEveryWay()
{
    QFETCH(int, id);
    Row row{PropertyId(id)};
    for (const LeavingWays::Way way : LeavingWays::all())
        QCOMPARE(changedByALook(row, way), QString());
}

void RoundTripTest::theWheelChangesNoSetting_data()
{
    addKinds();
}

void RoundTripTest::theWheelChangesNoSetting()
{
    QFETCH(int, id);
    Row row{PropertyId(id)};
    const QByteArray before = row.json();
    const QPointer<QWidget> editor = LeavingWays::openByKey(row.view, row.name);
    QWidgetList parts = editor ? editor->findChildren<QWidget *>() << editor : QWidgetList();
    for (QWidget *part : parts) {
        QWheelEvent wheel(QPointF(2, 2), part->mapToGlobal(QPointF(2, 2)), {}, QPoint(0, 120), Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(part, &wheel);
    }
    QCOMPARE(row.json(), before);
    if (editor)
        QVERIFY(LeavingWays::leave(row.view, LeavingWays::Way::Tab));
    QCOMPARE(row.json(), before);
}

WIDGET_REGISTER_TEST(RoundTripTest)
#include "RoundTripTest.moc"
