#include <KProperty>
#include <orv/core/OrvApplication.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QCursor>
#include <QPixmap>
#include <QTest>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using Creator = PropertySetCreator;

constexpr auto kNone = PropertyId::NoProperty;
constexpr auto kFlag = PropertyEditor::PropertyConversionFlag::KeepPaths;

} // namespace

/// Values that only a program with a screen can hold.
class TestPropertyPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureComesBack();
    void whatIsNoPictureFails_data();
    void whatIsNoPictureFails();
    void aCursorIsAShape();
    void anUnknownShapeFails();
    void aProgramWithAScreenIsNoConsoleApplication();
};

void TestPropertyPictures::aPictureComesBack()
{
    QPixmap pixmap(3, 2);
    pixmap.fill(Qt::red);
    const KProperty property("p", pixmap, {}, {}, KProperty::Pixmap);
    const QJsonValue stored = Creator::valueToJson(property, kFlag);
    QVERIFY(QByteArray::fromBase64(stored.toString().toLatin1()).startsWith("\x89PNG"));
    KProperty read("p", QVariant(), {}, {}, KProperty::Pixmap);
    QVERIFY(Creator::setValueFromJson(kNone, stored, &read));
    QCOMPARE(read.value().value<QPixmap>().toImage(), pixmap.toImage());
}

void TestPropertyPictures::whatIsNoPictureFails_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("no base64") << u"!"_s;
    QTest::newRow("other bytes") << u"AAAA"_s;
}

void TestPropertyPictures::whatIsNoPictureFails()
{
    QFETCH(QString, text);
    KProperty property("p", 1, {}, {}, KProperty::Pixmap);
    QVERIFY(!Creator::setValueFromJson(kNone, text, &property));
    QCOMPARE(property.value(), QVariant(1));
}

void TestPropertyPictures::aCursorIsAShape()
{
    KProperty property("p", QVariant(), {}, {}, KProperty::Cursor);
    QVERIFY(Creator::setValueFromJson(kNone, 13, &property));
    QCOMPARE(property.value().value<QCursor>().shape(), Qt::PointingHandCursor);
}

void TestPropertyPictures::anUnknownShapeFails()
{
    KProperty property("p", QVariant(), {}, {}, KProperty::Cursor);
    QVERIFY(!Creator::setValueFromJson(kNone, 26, &property));
    QVERIFY(!Creator::setValueFromJson(kNone, -1, &property));
}

void TestPropertyPictures::aProgramWithAScreenIsNoConsoleApplication()
{
    QVERIFY(!OrvApplication::isConsoleApplication());
}

QTEST_MAIN(TestPropertyPictures)
#include "TestPropertyPictures.moc"
