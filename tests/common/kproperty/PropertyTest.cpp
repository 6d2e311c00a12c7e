#include <KProperty>
#include <KPropertyFactory>
#include <KPropertyListData>
#include <KPropertySet>
#include <kproperty_version.h>

#include <QDate>
#include <QDateTime>
#include <QLineF>
#include <QPoint>
#include <QRectF>
#include <QRegularExpression>
#include <QSize>
#include <QTest>
#include <QUrl>

// Code that was written for the Qt 5 library tests either name.
static_assert(KPROPERTYWIDGETS_VERSION == KPROPERTY_VERSION && KPROPERTYWIDGETS_VERSION >= 0x030200);

namespace {

constexpr int kPairType = KProperty::UserDefined + 10;

/// A point as two integers; counts how many live, since each belongs to a property.
class PairProperty : public KComposedPropertyInterface
{
public:
    explicit PairProperty(KProperty *parent)
        : KComposedPropertyInterface(parent)
    {
        ++s_alive;
        for (const char *name : {"x", "y"}) {
            new KProperty(name, QVariant(), QString::fromLatin1(name), QString(), KProperty::Int, parent);
        }
    }
    ~PairProperty() override { --s_alive; }
    Q_DISABLE_COPY_MOVE(PairProperty)

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions options) override
    {
        property->child("x")->setValue(value.toPoint().x(), options);
        property->child("y")->setValue(value.toPoint().y(), options);
    }

    static inline int s_alive = 0;

protected:
    void childValueChanged(KProperty *child, const QVariant &value, KProperty::ValueOptions options) override
    {
        QPoint point = child->parent()->value().toPoint();
        if (child->name() == "x") {
            point.setX(value.toInt());
        } else {
            point.setY(value.toInt());
        }
        child->parent()->setValue(point, options);
    }
};

} // namespace

class PropertyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aNullPropertyTakesNoValue();
    void typeComesFromTheValueUnlessGiven_data();
    void typeComesFromTheValueUnlessGiven();
    void zeroIsANumberAndNoListData();
    void builtInTypesAreQt6MetaTypes_data();
    void builtInTypesAreQt6MetaTypes();
    void captionIsOneLineAndKeepsItsFormForDisplaying();
    void valuesAreStoredExactly_data();
    void valuesAreStoredExactly();
    void pointsAndSizesAreStoredExactly_data();
    void pointsAndSizesAreStoredExactly();
    void comparingGoesByMeaning_data();
    void comparingGoesByMeaning();
    void oldValueIsThatBeforeTheFirstChange();
    void ignoreOldLeavesThePropertyUnmodified();
    void resetTakesBackAllChanges();
    void resetOfAnUnmodifiedPropertyDoesNothing();
    void smallDoublesAreStoredWithoutAPrecision();
    void precisionIsForShowingAlone_data();
    void precisionIsForShowingAlone();
    void composedEqualityStandsForValuesOfItsOwnType();
    void nullOptionUnsets_data();
    void nullOptionUnsets();
    void optionsAreInheritedFromParents();
    void childMakesItsParentModified();
    void deletedChildLeavesItsParent();
    void copyIsDeep();
    void assignmentKeepsMembershipOfTheSet();
    void listDataIsOwnedAndReplaced();
    void listDataFromPairs();
    void composedValueReachesItsChildren();
    void childValueReachesTheComposedParent();
    void composedPropertyDiesWithItsProperty();
    void displaysServeSeveralTypes();
    void unknownTypesHaveNoDisplay();
    void valueThatFitsNoTypeIsStoredWithAWarning();
};

void PropertyTest::initTestCase()
{
    auto *factory = new KPropertyFactory;
    factory->addComposedPropertyCreator(kPairType, new KComposedPropertyCreator<PairProperty>);
    KPropertyFactoryManager::self()->registerFactory(factory);
}

void PropertyTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void PropertyTest::aNullPropertyTakesNoValue()
{
    KProperty property;
    QVERIFY(property.isNull());
    QCOMPARE(property.type(), int(KProperty::Auto));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a name")));
    QVERIFY(!property.setValue(5));
    QVERIFY(!property.value().isValid());
    property.setName("named");
    QVERIFY(property.setValue(5));

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a name")));
    KProperty nameless(QByteArray(), 5, QStringLiteral("Caption"));
    QVERIFY(nameless.isNull());
    QVERIFY(!nameless.value().isValid());
    QCOMPARE(nameless.type(), int(KProperty::Int));
    QCOMPARE(nameless.caption(), QStringLiteral("Caption"));
    nameless.setName("named");
    QVERIFY(!nameless.value().isValid());
    QVERIFY(nameless.setValue(7));
}

void PropertyTest::typeComesFromTheValueUnlessGiven_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("expected");
    const int automatic = KProperty::Auto;
    QTest::newRow("int") << QVariant(1) << automatic << 2;
    QTest::newRow("double") << QVariant(1.5) << automatic << 6;
    QTest::newRow("text") << QVariant(QStringLiteral("t")) << automatic << 10;
    QTest::newRow("no value") << QVariant() << automatic << 0;
    QTest::newRow("user type") << QVariant(QStringLiteral("t")) << 4001 << 4001;
    QTest::newRow("other type than the value's") << QVariant(1) << int(KProperty::String) << 10;
}

void PropertyTest::typeComesFromTheValueUnlessGiven()
{
    QFETCH(QVariant, value);
    QFETCH(int, given);
    const KProperty property("p", value, QString(), QString(), given);
    QTEST(property.type(), "expected");
    QCOMPARE(property.value(), value);
    QVERIFY(!property.isModified());
    QVERIFY(!property.oldValue().isValid());
}

void PropertyTest::zeroIsANumberAndNoListData()
{
    QCOMPARE(KProperty("p", 0).type(), int(KProperty::Int));
    QCOMPARE(KProperty("p", false).type(), int(KProperty::Bool));
    QCOMPARE(KProperty("p", nullptr).type(), int(KProperty::ValueFromList));
}

void PropertyTest::builtInTypesAreQt6MetaTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("number");
    QTest::newRow("bool") << int(KProperty::Bool) << 1;
    QTest::newRow("unsigned 64 bit") << int(KProperty::ULongLong) << 5;
    QTest::newRow("map") << int(KProperty::Map) << 8;
    QTest::newRow("bytes") << int(KProperty::ByteArray) << 12;
    QTest::newRow("URL") << int(KProperty::Url) << 17;
    QTest::newRow("float rectangle") << int(KProperty::RectF) << 20;
    QTest::newRow("float point") << int(KProperty::PointF) << 26;
    QTest::newRow("value from list") << int(KProperty::ValueFromList) << 1000;
    QTest::newRow("line style") << int(KProperty::LineStyle) << 1003;
    QTest::newRow("first user type") << int(KProperty::UserDefined) << 4000;
    QTest::newRow("font") << int(KProperty::Font) << 4096;
    QTest::newRow("pixmap") << int(KProperty::Pixmap) << 4097;
    QTest::newRow("colour") << int(KProperty::Color) << 4099;
    QTest::newRow("cursor") << int(KProperty::Cursor) << 4106;
}

void PropertyTest::builtInTypesAreQt6MetaTypes()
{
    QFETCH(int, type);
    QTEST(type, "number");
}

void PropertyTest::captionIsOneLineAndKeepsItsFormForDisplaying()
{
    KProperty property("p");
    QCOMPARE(property.captionOrName(), QStringLiteral("p"));
    property.setCaption(QStringLiteral("  Allow\nZero \n"));
    QCOMPARE(property.caption(), QStringLiteral("Allow Zero"));
    QCOMPARE(property.captionForDisplaying(), QStringLiteral("  Allow\nZero \n"));
    QCOMPARE(property.captionOrName(), QStringLiteral("Allow Zero"));
}

void PropertyTest::valuesAreStoredExactly_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<bool>("changes");
    const auto change = [](const char *name, const QVariant &stored, const QVariant &given) {
        QTest::newRow(name) << stored << given << true;
    };
    const auto same = [](const char *name, const QVariant &stored, const QVariant &given) {
        QTest::newRow(name) << stored << given << false;
    };
    same("same", 2, 2);
    change("number as text", 2, QStringLiteral("2"));
    change("text as number", QStringLiteral("300"), 300);
    change("integer as double", 2, 2.0);
    change("integer as long", 2, 2LL);
    change("bool as integer", true, 1);
    change("bytes as text", QByteArray("a"), QStringLiteral("a"));
    change("other number", 2, 3);
    change("text that is no number", 0, QStringLiteral("x"));
    same("null text and empty text", QString(), QStringLiteral(""));
    change("nothing and empty text", QVariant(), QString());
    change("value to nothing", 1, QVariant());
    change("zero to nothing", 0.0, QVariant());
    change("no answer and no", QVariant(QMetaType::fromType<bool>()), false);
    change("next double", 0.1 + 0.2, 0.3);
    change("zero and less than any scale", 0.0, 1e-300);
    change("zero and minus zero", 0.0, -0.0);
    same("no number", qQNaN(), qQNaN());
    same("same list", QStringList{QStringLiteral("a")}, QStringList{QStringLiteral("a")});
    change("list with a number as text", QVariantList{1}, QVariantList{QStringLiteral("1")});
    change("longer list", QVariantList{1}, QVariantList{1, 1});
    change("map with an integer as double", QVariantMap{{QStringLiteral("k"), 1}},
           QVariantMap{{QStringLiteral("k"), 1.0}});
    change("map with another key", QVariantMap{{QStringLiteral("k"), 1}},
           QVariantMap{{QStringLiteral("l"), 1}});
    same("same hash", QVariantHash{{QStringLiteral("k"), 1.5}}, QVariantHash{{QStringLiteral("k"), 1.5}});
    change("hash with another value", QVariantHash{{QStringLiteral("k"), 1.5}},
           QVariantHash{{QStringLiteral("k"), QStringLiteral("1.5")}});
    const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
    same("same time", noon, noon);
    change("one moment in two zones", noon, noon.toOffsetFromUtc(3600));
}

void PropertyTest::valuesAreStoredExactly()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, given);
    QFETCH(bool, changes);
    KProperty property("p", stored, QString(), QString(), KProperty::UserDefined);
    QCOMPARE(property.setValue(given), changes);
    QCOMPARE(property.isModified(), changes);
    QCOMPARE(property.value().metaType(), (changes ? given : stored).metaType());
    QCOMPARE(property.value().isNull(), (changes ? given : stored).isNull());
    QCOMPARE(property.value().toString(), (changes ? given : stored).toString());
    QVERIFY(!property.setValue(property.value()));
}

void PropertyTest::pointsAndSizesAreStoredExactly_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("given");
    QTest::newRow("point") << QVariant(QPointF(1.0, 1.0)) << QVariant(QPointF(1.0, 1.0 + 1e-14));
    QTest::newRow("size") << QVariant(QSizeF(1.0, 1.0)) << QVariant(QSizeF(1.0 + 1e-14, 1.0));
    QTest::newRow("rectangle") << QVariant(QRectF(0, 0, 1.0, 1.0))
                               << QVariant(QRectF(0, 0, 1.0, 1.0 + 1e-14));
    QTest::newRow("line") << QVariant(QLineF(0, 0, 1, 1)) << QVariant(QLineF(0, 0, 1, 1 + 1e-14));
}

void PropertyTest::pointsAndSizesAreStoredExactly()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, given);
    KProperty property("p", stored);
    QVERIFY(!property.setValue(stored));
    QVERIFY(property.setValue(given));
    QVERIFY(property.isModified());
}

void PropertyTest::comparingGoesByMeaning_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << QVariant(2) << QVariant(2) << true;
    QTest::newRow("number as text") << QVariant(2) << QVariant(QStringLiteral("2")) << true;
    QTest::newRow("text as number") << QVariant(QStringLiteral("2")) << QVariant(2) << true;
    QTest::newRow("other number") << QVariant(2) << QVariant(3) << false;
    QTest::newRow("text that is no number") << QVariant(0) << QVariant(QStringLiteral("x")) << false;
    QTest::newRow("null text and empty text") << QVariant(QString()) << QVariant(QStringLiteral("")) << true;
    QTest::newRow("nothing and empty text") << QVariant() << QVariant(QString()) << false;
    QTest::newRow("zero and nothing") << QVariant(0.0) << QVariant() << false;
}

void PropertyTest::comparingGoesByMeaning()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, given);
    const KProperty property("p", stored);
    QTEST(property.valueEqualsTo(given), "equal");
    QTEST(property == KProperty("p", given), "equal");
}

void PropertyTest::oldValueIsThatBeforeTheFirstChange()
{
    KProperty property("p", 1);
    property.setValue(2);
    property.setValue(3);
    QCOMPARE(property.oldValue(), QVariant(1));
    property.clearModifiedFlag();
    QVERIFY(!property.isModified());
    property.setValue(4);
    QCOMPARE(property.oldValue(), QVariant(3));
}

void PropertyTest::ignoreOldLeavesThePropertyUnmodified()
{
    KProperty property("p", 1);
    property.setValue(2);
    QVERIFY(property.setValue(3, KProperty::ValueOption::IgnoreOld));
    QVERIFY(!property.isModified());
    QVERIFY(!property.oldValue().isValid());
}

void PropertyTest::resetTakesBackAllChanges()
{
    KProperty property("p", 1);
    property.setValue(2);
    property.setValue(3);
    property.resetValue();
    QCOMPARE(property.value(), QVariant(1));
    QVERIFY(!property.isModified());
    QVERIFY(!property.oldValue().isValid());
}

void PropertyTest::resetOfAnUnmodifiedPropertyDoesNothing()
{
    KProperty property("p", 1);
    property.setValue(2);
    property.clearModifiedFlag();
    property.resetValue();
    QCOMPARE(property.value(), QVariant(2));
}

void PropertyTest::smallDoublesAreStoredWithoutAPrecision()
{
    KProperty tolerance("toleranceDa", 0.0);
    QVERIFY(tolerance.setValue(0.001));
    QCOMPARE(tolerance.value(), QVariant(0.001));
    QVERIFY(tolerance.setValue(0.0010000001));
}

void PropertyTest::precisionIsForShowingAlone_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("stored");
    QTest::addColumn<double>("given");
    QTest::newRow("behind the decimals shown") << 2 << 0.01 << 0.01004;
    QTest::newRow("second decimal of one") << 1 << 2.5 << 2.51;
    QTest::newRow("next step, which truncation takes for the same") << 2 << 0.28 << 0.29;
    QTest::newRow("no decimals") << 0 << 400.0 << 400.6;
    QTest::newRow("third decimal of two") << 2 << 12.34 << 12.345;
}

void PropertyTest::precisionIsForShowingAlone()
{
    QFETCH(int, precision);
    QFETCH(double, stored);
    QFETCH(double, given);
    KProperty property("p", stored);
    property.setOption("precision", precision);
    QVERIFY(!property.valueEqualsTo(given));
    QVERIFY(property.setValue(given));
    QCOMPARE(property.value().toDouble(), given);
    QCOMPARE(property.oldValue().toDouble(), stored);
}

void PropertyTest::composedEqualityStandsForValuesOfItsOwnType()
{
    KProperty property("pair", QPoint(1, 2), QString(), QString(), kPairType);
    QVERIFY(!property.setValue(QPoint(1, 2)));
    QVERIFY(property.setValue(QPointF(1.0, 2.0)));
    QCOMPARE(property.value().typeId(), int(QMetaType::QPointF));
}

void PropertyTest::nullOptionUnsets_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isSet");
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("null text") << QVariant(QString()) << false;
    QTest::newRow("empty text") << QVariant(QStringLiteral("")) << true;
    QTest::newRow("null bytes") << QVariant(QByteArray()) << false;
    QTest::newRow("invalid date") << QVariant(QDate()) << false;
    QTest::newRow("null point") << QVariant(QPoint()) << false;
    QTest::newRow("invalid size") << QVariant(QSize()) << true;
    QTest::newRow("empty URL") << QVariant(QUrl()) << true;
    QTest::newRow("empty list") << QVariant(QStringList()) << true;
    QTest::newRow("zero") << QVariant(0) << true;
    QTest::newRow("false") << QVariant(false) << true;
}

void PropertyTest::nullOptionUnsets()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isSet);
    KProperty property("p", 1);
    property.setOption("o", 7);
    property.setOption("o", value);
    QCOMPARE(property.option("o", QStringLiteral("unset")),
             isSet ? value : QVariant(QStringLiteral("unset")));
    QCOMPARE(property.hasOptions(), isSet);
}

void PropertyTest::optionsAreInheritedFromParents()
{
    KProperty parent("parent", 1);
    auto *child = new KProperty("child", 1, QString(), QString(), KProperty::Int, &parent);
    parent.setOption("suffix", QStringLiteral(" ppm"));
    QCOMPARE(child->option("suffix"), QVariant(QStringLiteral(" ppm")));
    QVERIFY(child->hasOptions());
    child->setOption("suffix", QStringLiteral(" Da"));
    QCOMPARE(child->option("suffix"), QVariant(QStringLiteral(" Da")));
    QCOMPARE(parent.option("suffix"), QVariant(QStringLiteral(" ppm")));
    QCOMPARE(child->option("none", 9), QVariant(9));
}

void PropertyTest::childMakesItsParentModified()
{
    KProperty parent("parent", 1);
    auto *child = new KProperty("child", 1, QString(), QString(), KProperty::Int, &parent);
    QVERIFY(!parent.isModified());
    child->setValue(2);
    QVERIFY(parent.isModified());
    parent.clearModifiedFlag();
    QVERIFY(!child->isModified());
    QCOMPARE(parent.child("child"), child);
    QVERIFY(!parent.child("CHILD"));
}

void PropertyTest::deletedChildLeavesItsParent()
{
    KProperty parent("parent", 1);
    auto *child = new KProperty("child", 1, QString(), QString(), KProperty::Int, &parent);
    delete child;
    QVERIFY(parent.children()->isEmpty());
}

void PropertyTest::copyIsDeep()
{
    KProperty original(
        "p", new KPropertyListData(QStringList{QStringLiteral("k")}, QStringList{QStringLiteral("n")}),
        QVariant(QStringLiteral("k")), QStringLiteral("caption"));
    original.setOption("extraValueAllowed", true);
    new KProperty("child", 1, QString(), QString(), KProperty::Int, &original);
    KProperty copy(original);
    QVERIFY(copy == original);
    QVERIFY(copy.listData() != original.listData());
    QVERIFY(*copy.listData() == *original.listData());
    QCOMPARE(copy.child("child")->parent(), &copy);
    copy.child("child")->setValue(5);
    QCOMPARE(original.child("child")->value(), QVariant(1));
    QCOMPARE(copy.option("extraValueAllowed"), QVariant(true));
}

void PropertyTest::assignmentKeepsMembershipOfTheSet()
{
    KPropertySet set;
    set.addProperty(new KProperty("key", 1));
    set["key"] = KProperty("renamed", QStringLiteral("text"));
    QVERIFY(set.contains("key"));
    QVERIFY(!set.contains("renamed"));
    int changes = 0;
    connect(&set, &KPropertySet::propertyChanged, this, [&changes] { ++changes; });
    set["key"].setValue(QStringLiteral("other"));
    QCOMPARE(changes, 1);
}

void PropertyTest::listDataIsOwnedAndReplaced()
{
    KProperty property("p", new KPropertyListData(QVariantList{1, 2}, QStringList{QStringLiteral("one")}),
                       QVariant(1));
    QCOMPARE(property.type(), int(KProperty::ValueFromList));
    QCOMPARE(property.listData()->keysAsStringList(),
             QStringList({QStringLiteral("1"), QStringLiteral("2")}));
    property.setListData(property.listData());
    QCOMPARE(property.listData()->names().size(), 1);
    property.setListData({QStringLiteral("a")}, {QStringLiteral("A")});
    QCOMPARE(property.listData()->keys(), QVariantList{QStringLiteral("a")});
    property.setListData(nullptr);
    QVERIFY(!property.listData());
}

void PropertyTest::listDataFromPairs()
{
    const QList<QPair<int, QString>> numbered{{3, QStringLiteral("Trypsin")}, {5, QStringLiteral("Lys-C")}};
    const KPropertyListData numbers(numbered);
    QCOMPARE(numbers.keys(), QVariantList({3, 5}));
    QCOMPARE(numbers.namesAsStringList(), QStringList({QStringLiteral("Trypsin"), QStringLiteral("Lys-C")}));
    const QList<QPair<QString, QString>> keyed{{QStringLiteral("t"), QStringLiteral("Trypsin")}};
    QCOMPARE(KPropertyListData(keyed).keysAsStringList(), QStringList{QStringLiteral("t")});
}

void PropertyTest::composedValueReachesItsChildren()
{
    KProperty property("p", QPoint(1, 2), QString(), QString(), kPairType);
    QCOMPARE(property.child("y")->value(), QVariant(2));
    QVERIFY(!property.isModified());
    property.setValue(QPoint(3, 4));
    QCOMPARE(property.child("x")->value(), QVariant(3));
    property.resetValue();
    QCOMPARE(property.child("x")->value(), QVariant(1));
}

void PropertyTest::childValueReachesTheComposedParent()
{
    KPropertySet set;
    auto *property = new KProperty("p", QPoint(1, 2), QString(), QString(), kPairType);
    set.addProperty(property);
    int changes = 0;
    connect(&set, &KPropertySet::propertyChanged, this,
            [&changes, property](KPropertySet &, KProperty &changed) {
                ++changes;
                QCOMPARE(&changed, property);
                QCOMPARE(changed.value(), QVariant(QPoint(9, 2)));
            });
    QVERIFY(property->child("x")->setValue(9));
    QCOMPARE(changes, 1);
    QCOMPARE(property->oldValue(), QVariant(QPoint(1, 2)));
}

void PropertyTest::composedPropertyDiesWithItsProperty()
{
    const int before = PairProperty::s_alive;
    {
        const KProperty property("p", QPoint(1, 2), QString(), QString(), kPairType);
        KProperty copy(property);
        QCOMPARE(PairProperty::s_alive, before + 2);
        copy.setType(KProperty::Int);
        QCOMPARE(PairProperty::s_alive, before + 1);
    }
    QCOMPARE(PairProperty::s_alive, before);
}

namespace {

class TaggedDisplay : public KPropertyValueDisplayInterface
{
public:
    QString valueToString(const QVariant &value, const QLocale &) const override
    {
        return QLatin1Char('<') + value.toString() + QLatin1Char('>');
    }
};

} // namespace

void PropertyTest::displaysServeSeveralTypes()
{
    auto *factory = new KPropertyFactory;
    auto *display = new TaggedDisplay;
    factory->addDisplay(4100, display);
    factory->addDisplay(4101, display);
    KPropertyFactoryManager::self()->registerFactory(factory);
    QCOMPARE(KPropertyFactoryManager::self()->valueToString(4101, 5), QStringLiteral("<5>"));
    const KProperty property("p", 6, QString(), QString(), 4100);
    QCOMPARE(KPropertyFactoryManager::self()->propertyValueToLocalizedString(&property),
             QStringLiteral("<6>"));
}

void PropertyTest::unknownTypesHaveNoDisplay()
{
    const KPropertyFactoryManager *const manager = KPropertyFactoryManager::self();
    QVERIFY(!manager->canConvertValueToText(4999));
    QVERIFY(!manager->canConvertValueToText(static_cast<const KProperty *>(nullptr)));
    QCOMPARE(manager->propertyValueToString(nullptr), QString());
    const QString longText(300, QLatin1Char('x'));
    QCOMPARE(manager->valueToString(4999, longText), longText);
    QCOMPARE(manager->valueToLocalizedString(4999, longText).size(), 253);
}

void PropertyTest::valueThatFitsNoTypeIsStoredWithAWarning()
{
    KProperty property("p", QPoint(1, 1));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("\"p\" holds .* and is given")));
    QVERIFY(property.setValue(true));
    QCOMPARE(property.value(), QVariant(true));
}

QTEST_GUILESS_MAIN(PropertyTest)
#include "PropertyTest.moc"
