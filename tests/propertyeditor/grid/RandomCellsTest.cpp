#include "LogCapture.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>

#include <QRandomGenerator>

using namespace orv;
using namespace GridFixture;

namespace {

/// Cells that look now like what a column knows, now like anything.
class Cells
{
public:
    explicit Cells(quint32 seed)
        : m_random(seed)
    {}

    QJsonObject cell(BaseItemType kind)
    {
        QJsonObject cell = WholeWorkflow::defaultCell(kind);
        QJsonArray entries = cell.value(text("properties")).toArray();
        for (qsizetype i = entries.size() - 1; i >= 0; --i) {
            QJsonObject entry = entries.at(i).toObject();
            if (chance(8)) {
                entries.removeAt(i);
                continue;
            }
            if (chance(2))
                continue;
            entry.insert(text("value"), chance(4) ? anything(0) : changed(entry.value(text("value")), 0));
            entries.replace(i, entry);
        }
        if (chance(4))
            entries.append(anything(2));
        cell.insert(text("properties"), chance(30) ? anything(1) : QJsonValue(entries));
        if (chance(4))
            cell.insert(text("Later"), anything(1));
        return cell;
    }

private:
    bool chance(int oneIn) { return m_random.bounded(oneIn) == 0; }

    QJsonValue anything(int depth)
    {
        switch (m_random.bounded(depth > 3 ? 5 : 8)) {
        case 0:
            return {};
        case 1:
            return chance(2);
        case 2:
            return m_random.bounded(2000) - 1000;
        case 3:
            return m_random.generateDouble() * (chance(2) ? 1e300 : 1);
        case 4:
            return word();
        case 5:
            return array(depth + 1);
        case 6:
            return QJsonObject{{text("data"), array(depth + 1)}, {text("children"), array(depth + 1)}};
        default:
            return QJsonObject{{word(), anything(depth + 1)}, {word(), anything(depth + 1)}};
        }
    }

    QJsonArray array(int depth)
    {
        QJsonArray array;
        for (int left = m_random.bounded(4); left > 0; --left)
            array.append(anything(depth));
        return array;
    }

    QString word()
    {
        static const QStringList words = text("|a|Name|Mass|Sequence|data|children|-1|1e9|0,5|<b>x</b>|"
                                              "A/B|\xe8\xb3\xaa\xe9\x87\x8f|; |\n|\t|%1|NaN|(1)|[x]")
                                             .split(u'|');
        return words.at(m_random.bounded(int(words.size())));
    }

    /// The same with something else here and there.
    QJsonValue changed(const QJsonValue &value, int depth)
    {
        if (chance(12))
            return anything(depth);
        if (value.isArray()) {
            QJsonArray array;
            for (const auto element : value.toArray()) {
                if (!chance(15))
                    array.append(changed(element, depth + 1));
                if (chance(15))
                    array.append(anything(depth + 1));
            }
            return array;
        }
        if (value.isObject()) {
            QJsonObject object = value.toObject();
            for (const QString &key : object.keys())
                object.insert(key, changed(object.value(key), depth + 1));
            if (chance(10))
                object.insert(word(), anything(depth + 1));
            return object;
        }
        return value;
    }

    QRandomGenerator m_random;
};

} // namespace

/// Whatever stands in a cell comes back as it was, or is refused in words.
class RandomCellsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ORVPropertyFactory::init(); }
    void uneditedCellsComeBackOrAreRefused_data();
    void uneditedCellsComeBackOrAreRefused();
    void whatIsNoTableIsLogged();
};

void RandomCellsTest::uneditedCellsComeBackOrAreRefused_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds()) {
        // Columns of settings hold what their set holds.
        if (kind != BaseItemType::Karvon)
            QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
    }
}

void RandomCellsTest::uneditedCellsComeBackOrAreRefused()
{
    QFETCH(BaseItemType, kind);
    constexpr int kCells = 60;
    const quint32 seed = 20261122;
    const WholeWorkflow::HostManager manager;
    const LogCapture log;
    Cells cells(seed + quint32(kind));
    int loaded = 0;
    for (int i = 0; i < kCells; ++i) {
        const std::unique_ptr<IGridItem> item(manager.createItem(kind));
        QJsonObject cell = cells.cell(kind);
        const Error error = item->setContent(cell);
        item->setName(text("Column"));
        item->widget()->resize(700, 500);
        QVERIFY(!item->widget()->grab().isNull());
        QCoreApplication::processEvents();
        if (error.hasError()) {
            QVERIFY(!error.errorMessage().isEmpty());
            continue;
        }
        ++loaded;
        cell.insert(text("name"), text("Column"));
        const QByteArray seen = bytes(item->content());
        QVERIFY2(seen == bytes(cell), ("seed " + QByteArray::number(seed) + ", cell " +
                                       QByteArray::number(i) + "\n" + bytes(cell) + "\n" + seen)
                                          .constData());
    }
    QVERIFY(loaded > 0);
}

void RandomCellsTest::whatIsNoTableIsLogged()
{
    const LogCapture log;
    IsotopeTableItem item;
    QVERIFY(!item.setContent(settingsCell("Isotope", {setting("Isotope", text("carbon"))})).hasError());
    QCOMPARE(log.warnings(),
             QStringList(text("The table Isotope of a column of the type Isotope can't be read. It is shown "
                              "empty and stays as it is unless it is edited.")));
}

WIDGET_REGISTER_TEST(RandomCellsTest)
#include "RandomCellsTest.moc"
