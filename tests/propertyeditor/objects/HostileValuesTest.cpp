#include "LogCapture.h"
#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <QJsonDocument>
#include <QPixmap>
#include <QRandomGenerator>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

QJsonValue nested(int depth, const char *key)
{
    QJsonValue value = text("deep");
    for (int i = 0; i < depth; ++i)
        value = i % 2 ? QJsonValue(QJsonArray{value}) : QJsonValue(QJsonObject{{text(key), value}});
    return QJsonObject{{text(key), value}};
}

QJsonObject longTable(int rows)
{
    QJsonArray children;
    for (int i = 0; i < rows; ++i)
        children.append(QJsonObject{{text("data"), QJsonArray{i, text("row"), i / 3.0}}});
    return {{text("data"), QJsonArray{text("Name"), text("Mass"), text("Sequence")}},
            {text("children"), children}};
}

/// What a document may hold where an object of a kind is expected.
QList<std::pair<QByteArray, QJsonValue>> hostileValues()
{
    return {
        {"null", QJsonValue()},
        {"text", text("text")},
        {"array", QJsonArray{1, QJsonArray{}, QJsonObject{}}},
        {"deep", nested(200, "children")},
        {"long table", longTable(500)},
        {"long text", QJsonObject{{text("modifications"), QString(1 << 14, u'x')},
                                  {text("glycans"), QString(1 << 12, u'\n')},
                                  {text("peakfilter"), QString(1 << 12, u'\n')},
                                  {text("tracePlot"), QString(1 << 14, u'{')}}},
        {"huge numbers", object(R"({"value":1e308,"unit":"Da","inclusion":[{"mz":1e308}]})")},
    };
}

/// Members that kinds know, with what they don't expect there.
QList<QJsonObject> oddMembers()
{
    const char *const members[] = {
        "value",      "unit",      "data",    "children",  "modifications",     "glycans",
        "peakfilter", "tracePlot", "dmsPlot", "inclusion", "proteinAnnotations"};
    const QList<QJsonValue> odd = {QJsonValue(),
                                   true,
                                   -1e300,
                                   text("\u202e<b>&\t\n"),
                                   QJsonArray{QJsonValue()},
                                   QJsonObject{{text("$double"), text("nan")}},
                                   QJsonArray{QJsonObject{{text("data"), 5}}}};
    QList<QJsonObject> objects;
    for (const QJsonValue &value : odd) {
        QJsonObject all;
        for (const char *member : members)
            all.insert(text(member), value);
        objects.append(all);
    }
    return objects;
}

QJsonValue randomValue(QRandomGenerator *random, int depth)
{
    static const char *const kWords[] = {"value",     "unit", "data",         "children", "glycans",
                                         "inclusion", "mz",   "Name",         "Mass",     "Da",
                                         "Moiety",    "",     "\u00e9\u4e2d", "1e5"};
    const auto word = [random] { return text(kWords[random->bounded(int(std::size(kWords)))]); };
    switch (random->bounded(depth > 4 ? 4 : 6)) {
    case 0:
        return word();
    case 1:
        return random->bounded(2000) - 1000;
    case 2:
        return random->generateDouble() * 1e6;
    case 3:
        return random->bounded(2) ? QJsonValue() : QJsonValue(true);
    case 4: {
        QJsonArray array;
        for (int i = random->bounded(4); i > 0; --i)
            array.append(randomValue(random, depth + 1));
        return array;
    }
    default: {
        QJsonObject object;
        for (int i = random->bounded(5); i > 0; --i)
            object.insert(word(), randomValue(random, depth + 1));
        return object;
    }
    }
}

/// Presses the same button of everything, which isn't shown.
class BlindAnswerer : public DialogAnswerer
{
public:
    explicit BlindAnswerer(const QString &button)
        : m_button(button)
        , m_earlier(DialogService::install(this))
    {}
    ~BlindAnswerer() override { DialogService::install(m_earlier); }

    [[nodiscard]] std::optional<DialogAnswer> answer(const DialogRequest &) override
    {
        return DialogAnswer{m_button, {}};
    }

private:
    QString m_button;
    DialogAnswerer *m_earlier;
};

} // namespace

/// Values that no editor would write never break the tree, its dialogs, or themselves.
class HostileValuesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startApplication(); }
    void everyValueIsShownAndKept_data() { addKinds(); }
    void everyValueIsShownAndKept();
    void oddMembersAreReadAndKept_data() { addKinds(); }
    void oddMembersAreReadAndKept();
    void randomValuesAreReadAndKept_data() { addKinds(); }
    void randomValuesAreReadAndKept();
    void bytesThatAreNoJsonAreShown_data() { addKinds(); }
    void bytesThatAreNoJsonAreShown();

private:
    static void check(const Kind &kind, const QJsonObject &value);
};

/// Reads a value and leaves its dialog, which isn't shown, both ways.
void HostileValuesTest::check(const Kind &kind, const QJsonObject &value)
{
    const auto editorObject = objectFor(kind.editor);
    const KProperty property(kind.property);
    (void)editorObject->toString(value);
    for (const char *button : {"OK", "Cancel"}) {
        QJsonObject edited = value;
        BlindAnswerer answers(text(button));
        QCOMPARE(editorObject->handleEditObject(&edited, property, nullptr), button[0] == 'O');
        QCOMPARE(edited, value);
    }
}

void HostileValuesTest::everyValueIsShownAndKept()
{
    QFETCH(int, editor);
    const LogCapture log;
    for (const auto &[name, value] : hostileValues()) {
        Row row(kindOf(Editor(editor)).property, value);
        row.property().setOption("selectButton", true);
        const QByteArray before = row.bytes();
        QVERIFY(!row.tree().grab().isNull());
        AcceptingAnswerer answers;
        QVERIFY2(row.pressButton(), name.constData());
        QCOMPARE(answers.dialogs, 1);
        QVERIFY2(row.bytes() == before, name.constData());
        QVERIFY2(row.told() == 0, name.constData());
    }
}

void HostileValuesTest::oddMembersAreReadAndKept()
{
    QFETCH(int, editor);
    const LogCapture log;
    for (const QJsonObject &value : oddMembers()) {
        check(kindOf(Editor(editor)), value);
        if (QTest::currentTestFailed()) {
            qInfo() << "value:" << value;
            return;
        }
    }
}

void HostileValuesTest::randomValuesAreReadAndKept()
{
    QFETCH(int, editor);
    constexpr quint32 kSeed = 20261;
    const LogCapture log;
    QRandomGenerator random(kSeed + quint32(editor));
    for (int i = 0; i < 16; ++i) {
        const QJsonObject value = randomValue(&random, 0).toObject();
        if (value.isEmpty())
            continue;
        check(kindOf(Editor(editor)), value);
        if (QTest::currentTestFailed()) {
            qInfo() << "seed" << kSeed << "value:" << value;
            return;
        }
    }
}

void HostileValuesTest::bytesThatAreNoJsonAreShown()
{
    QFETCH(int, editor);
    const LogCapture log;
    for (const QVariant &value : {QVariant(), QVariant(QByteArray("{")), QVariant(QByteArray("\xff\x00", 2)),
                                  QVariant(text("no json")), QVariant(QByteArray("[1]")), QVariant(42),
                                  QVariant(QStringList{text("a")})}) {
        Row row(kindOf(Editor(editor)));
        row.property().setOption("selectButton", true);
        row.property().setValue(value);
        const qsizetype edits = row.told();
        QVERIFY(!row.tree().grab().isNull());
        AcceptingAnswerer answers;
        QVERIFY(row.pressButton());
        QCOMPARE(row.property().value(), value);
        QCOMPARE(row.told(), edits);
    }
}

WIDGET_REGISTER_TEST(HostileValuesTest)
#include "HostileValuesTest.moc"
