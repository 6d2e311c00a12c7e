#include <KPropertySet>
#include <KPropertySetBuffer>

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

class VisibleSelector : public KPropertySelector
{
public:
    bool operator()(const KProperty &property) const override { return property.isVisible(); }
    KPropertySelector *clone() const override { return new VisibleSelector; }
};

QByteArrayList names(KPropertySetIterator it)
{
    QByteArrayList result;
    for (; it.current(); ++it) {
        result.append(it.current()->name());
    }
    return result;
}

QByteArrayList names(const KPropertySet &set, KPropertySetIterator::Order order)
{
    KPropertySetIterator it(set);
    it.setOrder(order);
    return names(it);
}

void fill(KPropertySet &set)
{
    set.addProperty(new KProperty("zeta", 1, QStringLiteral("Yankee")));
    set.addProperty(new KProperty("Alpha", 2, QStringLiteral("Zulu")), "second");
    set.addProperty(new KProperty("mid", QStringLiteral("m"), QStringLiteral("alpha")));
    set.addProperty(new KProperty("beta", true), "second");
}

} // namespace

class PropertySetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void insertionOrderIsKeptAcrossGroups();
    void aPropertyIsInsertedBesideAnother();
    void insertionTouchesNoOtherProperty();
    void insertionRefusesWhatAdditionRefuses();
    void insertionBesideAStrangerStandsAtTheEnd();
    void ordersOfTheIterator();
    void iteratorSkipsWhatIsNotSelected();
    void iteratorDoesNotVisitLaterAdditions();
    void namesAreFoundInAnyCase();
    void missingNameGivesANullPropertyEachTime();
    void takenNameIsRefusedAndOwned();
    void nullPropertyIsRefusedAndOwned();
    void nullPointerIsRefused();
    void renamedPropertyIsFoundUnderItsFormerName();
    void removalTellsBeforeItDeletes();
    void removalOfAStrangerDoesNothing();
    void propertyDeletedByOthersLeavesTheSet();
    void emptyGroupDisappearsAndItsCaptionStays();
    void groupCaptionFallsBackToTheName();
    void changeSignalsComeInOrder();
    void changeOfAMissingPropertyWarns();
    void changeIfExistsIsSilent();
    void readOnlyFlagTellsOnce();
    void copyHasEachGroupOnce();
    void assignmentReplacesContents();
    void endOfLifeSignals();
    void bufferPassesChangesOn();
    void bufferKeepsWhatAllSetsHave();
    void bufferOutlivesItsSources();
};

void PropertySetTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void PropertySetTest::insertionOrderIsKeptAcrossGroups()
{
    KPropertySet set;
    fill(set);
    QCOMPARE(names(KPropertySetIterator(set)), QByteArrayList({"zeta", "Alpha", "mid", "beta"}));
    QCOMPARE(set.groupNames(), QByteArrayList({"common", "second"}));
    QCOMPARE(set.propertyNamesForGroup("second"), QByteArrayList({"Alpha", "beta"}));
    QCOMPARE(set.groupNameForProperty("BETA"), QByteArray("second"));
    QCOMPARE(set.count(), 4);
}

void PropertySetTest::aPropertyIsInsertedBesideAnother()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1), "first");
    set.addProperty(new KProperty("x", 1), "second");
    set.addProperty(new KProperty("b", 1), "first");
    set.insertProperty(new KProperty("behind-a", 1), set["a"], KPropertySet::Side::Behind);
    set.insertProperty(new KProperty("before-b", 1), set["b"], KPropertySet::Side::Before);
    set.insertProperty(new KProperty("before-a", 1), set["a"], KPropertySet::Side::Before);
    set.insertProperty(new KProperty("behind-b", 1), set["b"], KPropertySet::Side::Behind);
    QCOMPARE(names(KPropertySetIterator(set)),
             (QByteArrayList{"before-a", "a", "behind-a", "x", "before-b", "b", "behind-b"}));
    QCOMPARE(set.propertyNamesForGroup("first"),
             (QByteArrayList{"before-a", "a", "behind-a", "before-b", "b", "behind-b"}));
    QCOMPARE(set.propertyNamesForGroup("second"), QByteArrayList{"x"});
    QCOMPARE(set.groupNames(), (QByteArrayList{"first", "second"}));
    QCOMPARE(set.groupNameForProperty("behind-a"), QByteArray("first"));
    QVERIFY(set.contains("BEHIND-A"));
    set.removeProperty("a");
    set.removeProperty("behind-b");
    QCOMPARE(names(KPropertySetIterator(set)),
             (QByteArrayList{"before-a", "behind-a", "x", "before-b", "b"}));
}

void PropertySetTest::insertionTouchesNoOtherProperty()
{
    KPropertySet set;
    fill(set);
    QList<KProperty *> before;
    for (KPropertySetIterator it(set); it.current(); ++it) {
        before.append(it.current());
    }
    int deleted = 0;
    connect(&set, &KPropertySet::aboutToDeleteProperty, this, [&deleted] { ++deleted; });
    auto *const inserted = new KProperty("inserted", 1);
    set.insertProperty(inserted, *before.at(1), KPropertySet::Side::Before);
    int changes = 0;
    connect(&set, &KPropertySet::propertyChanged, this, [&changes] { ++changes; });
    inserted->setValue(2);
    QCOMPARE(changes, 1);
    before.insert(1, inserted);
    QList<KProperty *> after;
    for (KPropertySetIterator it(set); it.current(); ++it) {
        after.append(it.current());
    }
    QCOMPARE(after, before);
    QCOMPARE(deleted, 0);
}

void PropertySetTest::insertionRefusesWhatAdditionRefuses()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    set.insertProperty(new KProperty("A", 2), set["a"], KPropertySet::Side::Behind);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a name")));
    set.insertProperty(new KProperty, set["a"], KPropertySet::Side::Behind);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no property to add")));
    set.insertProperty(nullptr, set["a"], KPropertySet::Side::Behind);
    QCOMPARE(set.count(), 1);
    QCOMPARE(set.propertyValue("a"), QVariant(1));
}

void PropertySetTest::insertionBesideAStrangerStandsAtTheEnd()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1), "first");
    const KProperty stranger("a", 1);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("\"a\".*\"b\"")));
    set.insertProperty(new KProperty("b", 1), stranger, KPropertySet::Side::Before);
    QCOMPARE(names(KPropertySetIterator(set)), (QByteArrayList{"a", "b"}));
    QCOMPARE(set.groupNameForProperty("b"), QByteArray("common"));
}

void PropertySetTest::ordersOfTheIterator()
{
    KPropertySet set;
    fill(set);
    QCOMPARE(names(set, KPropertySetIterator::Order::Alphabetical),
             QByteArrayList({"mid", "beta", "zeta", "Alpha"}));
    QCOMPARE(names(set, KPropertySetIterator::Order::AlphabeticalByName),
             QByteArrayList({"Alpha", "beta", "mid", "zeta"}));
}

void PropertySetTest::iteratorSkipsWhatIsNotSelected()
{
    KPropertySet set;
    fill(set);
    set["zeta"].setVisible(false);
    set["beta"].setVisible(false);
    QCOMPARE(names(KPropertySetIterator(set, VisibleSelector())), QByteArrayList({"Alpha", "mid"}));
    QCOMPARE(set.count(VisibleSelector()), 2);
    QVERIFY(set.hasProperties(VisibleSelector()));
    set["Alpha"].setVisible(false);
    set["mid"].setVisible(false);
    QVERIFY(!set.hasVisibleProperties());
    QVERIFY(!KPropertySetIterator(set, VisibleSelector()).current());
}

void PropertySetTest::iteratorDoesNotVisitLaterAdditions()
{
    KPropertySet set;
    fill(set);
    KPropertySetIterator it(set);
    KPropertySetIterator copy(it);
    QVERIFY(it == copy);
    set.addProperty(new KProperty("late", 1));
    ++it;
    QVERIFY(it != copy);
    QCOMPARE(names(it), QByteArrayList({"Alpha", "mid", "beta"}));
    copy = it;
    QVERIFY(it == copy);
}

void PropertySetTest::namesAreFoundInAnyCase()
{
    KPropertySet set;
    fill(set);
    QVERIFY(set.contains("ZETA"));
    QCOMPARE(set.propertyValue("ZeTa"), QVariant(1));
    QCOMPARE(set.propertyValue("none", 7), QVariant(7));
    QVERIFY(!set.contains(""));
}

void PropertySetTest::missingNameGivesANullPropertyEachTime()
{
    const KPropertySet set;
    set["none"].setName("written by mistake");
    QVERIFY(set["none"].isNull());
}

void PropertySetTest::takenNameIsRefusedAndOwned()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    set.addProperty(new KProperty("A", 2), "other");
    QCOMPARE(set.count(), 1);
    QCOMPARE(set["a"].value(), QVariant(1));
    QCOMPARE(set.groupNames(), QByteArrayList{"common"});
}

void PropertySetTest::nullPropertyIsRefusedAndOwned()
{
    KPropertySet set;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a name is not added")));
    set.addProperty(new KProperty);
    QVERIFY(set.isEmpty());
}

void PropertySetTest::nullPointerIsRefused()
{
    KPropertySet set;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no property to add")));
    set.addProperty(nullptr);
    set.removeProperty(static_cast<KProperty *>(nullptr));
    QVERIFY(set.isEmpty());
}

void PropertySetTest::renamedPropertyIsFoundUnderItsFormerName()
{
    KPropertySet set;
    fill(set);
    set["zeta"].setName("renamed");
    QCOMPARE(set["zeta"].name(), QByteArray("renamed"));
    QVERIFY(!set.contains("renamed"));
    set.removeProperty("zeta");
    QCOMPARE(set.count(), 3);
}

void PropertySetTest::removalTellsBeforeItDeletes()
{
    KPropertySet set;
    fill(set);
    QByteArray doomed;
    connect(&set, &KPropertySet::aboutToDeleteProperty, this,
            [&doomed](KPropertySet &where, KProperty &property) {
                QVERIFY(where.contains(property.name()));
                doomed = property.name();
            });
    set.removeProperty("Mid");
    QCOMPARE(doomed, QByteArray("mid"));
    QVERIFY(!set.contains("mid"));
    set.addProperty(new KProperty("mid", 5));
    QCOMPARE(names(KPropertySetIterator(set)).last(), QByteArray("mid"));
}

void PropertySetTest::removalOfAStrangerDoesNothing()
{
    KPropertySet set;
    fill(set);
    KProperty stranger("zeta", 1);
    set.removeProperty(&stranger);
    set.removeProperty("none");
    QCOMPARE(set.count(), 4);
    QCOMPARE(set.groupNameForProperty(stranger), QByteArray());
}

void PropertySetTest::propertyDeletedByOthersLeavesTheSet()
{
    KPropertySet set;
    fill(set);
    delete &set["Alpha"];
    QVERIFY(!set.contains("Alpha"));
    QCOMPARE(set.count(), 3);
}

void PropertySetTest::emptyGroupDisappearsAndItsCaptionStays()
{
    KPropertySet set;
    fill(set);
    set.setGroupCaption("Second", QStringLiteral("The second"));
    set.removeProperty("alpha");
    set.removeProperty("beta");
    QCOMPARE(set.groupNames(), QByteArrayList{"common"});
    set.addProperty(new KProperty("late", 1), "SECOND");
    QCOMPARE(set.groupNames(), QByteArrayList({"common", "second"}));
    QCOMPARE(set.groupCaption("second"), QStringLiteral("The second"));
    set.clear();
    QCOMPARE(set.groupCaption("second"), QStringLiteral("second"));
}

void PropertySetTest::groupCaptionFallsBackToTheName()
{
    KPropertySet set;
    QCOMPARE(set.groupCaption("common"), QStringLiteral("General"));
    QCOMPARE(set.groupCaption("Not There"), QStringLiteral("Not There"));
    set.addProperty(new KProperty("a", 1), "");
    QCOMPARE(set.groupNameForProperty("a"), QByteArray("common"));
    set.setGroupIconName("COMMON", QStringLiteral("icon"));
    QCOMPARE(set.groupIconName("common"), QStringLiteral("icon"));
}

void PropertySetTest::changeSignalsComeInOrder()
{
    KPropertySet set;
    fill(set);
    QStringList heard;
    connect(&set, &KPropertySet::propertyReset, this, [&heard] { heard << QStringLiteral("reset"); });
    connect(&set, &KPropertySet::propertyChanged, this, [&heard] { heard << QStringLiteral("changed"); });
    connect(&set, &KPropertySet::propertyChangedInternal, this,
            [&heard] { heard << QStringLiteral("internal"); });
    set.changeProperty("zeta", 5);
    set.changeProperty("zeta", 5);
    QCOMPARE(heard, QStringList({QStringLiteral("internal"), QStringLiteral("changed")}));
    heard.clear();
    set["zeta"].resetValue();
    QCOMPARE(heard,
             QStringList({QStringLiteral("internal"), QStringLiteral("changed"), QStringLiteral("reset")}));
}

void PropertySetTest::changeOfAMissingPropertyWarns()
{
    KPropertySet set;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no property \"none\" to change")));
    set.changeProperty("none", 1);
    QVERIFY(set.isEmpty());
}

void PropertySetTest::changeIfExistsIsSilent()
{
    KPropertySet set;
    fill(set);
    set.changePropertyIfExists("none", 1);
    set.changePropertyIfExists("zeta", 8);
    QCOMPARE(set.propertyValue("zeta"), QVariant(8));
    QCOMPARE(set.propertyValues().size(), 4);
    QVERIFY(set.isModified());
    set.clearModifiedFlags();
    QVERIFY(!set.isModified());
}

void PropertySetTest::readOnlyFlagTellsOnce()
{
    KPropertySet set;
    const QSignalSpy spy(&set, &KPropertySet::readOnlyFlagChanged);
    set.setReadOnly(true);
    set.setReadOnly(true);
    QCOMPARE(spy.count(), 1);
}

void PropertySetTest::copyHasEachGroupOnce()
{
    KPropertySet set;
    fill(set);
    set.setGroupCaption("second", QStringLiteral("The second"));
    set.setPreviousSelection("mid");
    set.setReadOnly(true);
    const KPropertySet copy(set);
    QCOMPARE(copy.groupNames(), set.groupNames());
    QCOMPARE(copy.groupCaption("second"), QStringLiteral("The second"));
    QCOMPARE(copy.previousSelection(), QByteArray("mid"));
    QVERIFY(copy.isReadOnly());
    set.changeProperty("zeta", 9);
    QCOMPARE(copy.propertyValue("zeta"), QVariant(1));
}

void PropertySetTest::assignmentReplacesContents()
{
    KPropertySet source;
    fill(source);
    KPropertySet set;
    set.addProperty(new KProperty("gone", 1), "away");
    const QSignalSpy cleared(&set, &KPropertySet::aboutToBeCleared);
    set = source;
    QCOMPARE(cleared.count(), 1);
    QCOMPARE(set.groupNames(), source.groupNames());
    QVERIFY(!set.contains("gone"));
    const KPropertySet &same = set;
    set = same;
    QCOMPARE(set.count(), 4);
}

void PropertySetTest::endOfLifeSignals()
{
    QStringList heard;
    {
        KPropertySet set;
        fill(set);
        connect(&set, &KPropertySet::aboutToBeCleared, this,
                [&heard] { heard << QStringLiteral("cleared"); });
        connect(&set, &KPropertySet::aboutToBeDeleted, this,
                [&heard] { heard << QStringLiteral("deleted"); });
    }
    QCOMPARE(heard,
             QStringList({QStringLiteral("cleared"), QStringLiteral("deleted"), QStringLiteral("cleared")}));
}

void PropertySetTest::bufferPassesChangesOn()
{
    KPropertySet set;
    fill(set);
    KPropertySetBuffer buffer(set);
    buffer.changeProperty("zeta", 5);
    QCOMPARE(set.propertyValue("zeta"), QVariant(5));
    QVERIFY(!set.isModified());
    buffer["zeta"].resetValue();
    QCOMPARE(set.propertyValue("zeta"), QVariant(1));
}

void PropertySetTest::bufferKeepsWhatAllSetsHave()
{
    KPropertySet first;
    fill(first);
    KPropertySet second;
    second.addProperty(new KProperty("zeta", 7));
    second.addProperty(new KProperty("mid", 7));
    KPropertySetBuffer buffer;
    buffer.intersect(first);
    buffer.intersect(second);
    QCOMPARE(names(KPropertySetIterator(buffer)), QByteArrayList{"zeta"});
    buffer.changeProperty("zeta", 8);
    QCOMPARE(first.propertyValue("zeta"), QVariant(8));
    QCOMPARE(second.propertyValue("zeta"), QVariant(8));
}

void PropertySetTest::bufferOutlivesItsSources()
{
    KPropertySetBuffer buffer;
    {
        KPropertySet set;
        fill(set);
        buffer.intersect(set);
    }
    buffer.changeProperty("zeta", 8);
    QCOMPARE(buffer.propertyValue("zeta"), QVariant(8));
}

QTEST_GUILESS_MAIN(PropertySetTest)
#include "PropertySetTest.moc"
