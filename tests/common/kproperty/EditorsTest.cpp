#include "ExampleSet.h"

#include <KPropertyEditorItemEvent>
#include <KPropertyEditorView>
#include <KPropertyFactory>
#include <KPropertyListData>
#include <KPropertySet>
#include <KPropertyUrlEditor>
#include <KPropertyUtils>
#include <KPropertyWidgetsFactory>
#include <KPropertyWidgetsPluginManager>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QColor>
#include <QComboBox>
#include <QDateTime>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <limits>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// One property in a view, with its editor open.
class OpenEditor
{
public:
    explicit OpenEditor(KProperty *property)
    {
        m_set.addProperty(property);
        m_view.resize(400, 200);
        m_view.changeSet(&m_set, property->name());
        m_view.show();
        (void)QTest::qWaitForWindowActive(&m_view);
        QTest::keyClick(&m_view, Qt::Key_F2);
    }

    [[nodiscard]] KProperty &property() { return **KPropertySetIterator(m_set); }
    [[nodiscard]] QVariant value() { return property().value(); }
    [[nodiscard]] QWidget *widget() const { return m_view.indexWidget(m_view.model()->index(0, 1)); }
    [[nodiscard]] KPropertyEditorView &view() { return m_view; }

    template<typename T>
    [[nodiscard]] T *as() const
    {
        QWidget *const editor = widget();
        T *const found = qobject_cast<T *>(editor);
        return found || !editor ? found : editor->findChild<T *>();
    }

    void type(const char *keys, Qt::Key end = Qt::Key_Return) const
    {
        QWidget *const focus = QApplication::focusWidget();
        QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(focus, text(keys));
        QTest::keyClick(focus, end);
        QCoreApplication::processEvents();
    }

private:
    KPropertySet m_set;
    KPropertyEditorView m_view;
};

class UpperDelegate : public KPropertyEditorCreatorInterface, public KPropertyValueDisplayInterface
{
public:
    UpperDelegate() { ++s_alive; }
    ~UpperDelegate() override { --s_alive; }
    Q_DISABLE_COPY_MOVE(UpperDelegate)

    QWidget *createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        return new QLineEdit(parent);
    }
    QString valueToString(const QVariant &value, const QLocale &) const override
    {
        return value.toString().toUpper();
    }

    static inline int s_alive = 0;
};

} // namespace

class EditorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everyExamplePropertyShowsAndOpens();
    void openingAndLeavingChangesNothing_data();
    void openingAndLeavingChangesNothing();
    void whatAnEditorCannotShowSurvives();
    void numbersAreTypedWithinTheirBounds_data();
    void numbersAreTypedWithinTheirBounds();
    void valueOutsideTheBoundsSurvivesItsEditor();
    void prefixAndSuffixStandInTheEditor();
    void minValueTextShowsAtTheBound();
    void smallDoubleKeepsItsDigits();
    void largeIntegersStep();
    void listChoosesKeys();
    void listWithoutExtraValuesTakesNoText();
    void listWithExtraValuesTakesText();
    void foreignListValueSurvivesItsEditor();
    void threeStateBoolMayBeNull();
    void composedValueChangesThroughItsChildren();
    void dateBoundsHold();
    void urlTextCommitsOnEnter_data();
    void urlTextCommitsOnEnter();
    void urlDialogIsTheApplicationsToAnswer();
    void f4IsTheSelectButton();
    void f4ChoosesAPicture();
    void composedUrlTakesRelativePaths();
    void colorIsChosenFromTheList();
    void unknownTypeHasNoEditor();
    void factoryServesSeveralTypesAndOwnsItsCreators();
    void laterFactoryTakesOverAType();
    void creatorOptionsCompare();
};

void EditorsTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

void EditorsTest::init()
{
    QTest::failOnWarning(QRegularExpression(text(".?")));
}

void EditorsTest::everyExamplePropertyShowsAndOpens()
{
    const auto set = createExampleSet();
    KPropertyEditorView view;
    view.resize(500, 1400);
    view.changeSet(set.get());
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    int editors = 0;
    for (QModelIndex index = view.model()->index(0, 0); index.isValid(); index = view.indexBelow(index)) {
        const KProperty *const property = KPropertyUtils::propertyForIndex(index);
        const QModelIndex value = index.siblingAtColumn(1);
        if (!property) {
            continue;
        }
        QVERIFY2(!value.data().toString().isEmpty(), property->name().constData());
        if (value.flags().testFlag(Qt::ItemIsEditable)) {
            view.setCurrentIndex(index);
            QTest::keyClick(&view, Qt::Key_F2);
            QVERIFY2(view.indexWidget(value), property->name().constData());
            view.acceptInput();
            QVERIFY2(!property->isModified(), property->name().constData());
            ++editors;
        }
    }
    QVERIFY(editors > 40);
}

void EditorsTest::openingAndLeavingChangesNothing_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("type");
    const int automatic = KProperty::Auto;
    QTest::newRow("int") << QVariant(-7) << automatic;
    QTest::newRow("double beyond two decimals") << QVariant(0.00012345) << automatic;
    QTest::newRow("negative double") << QVariant(-1234.5) << automatic;
    QTest::newRow("huge unsigned") << QVariant(std::numeric_limits<qulonglong>::max()) << automatic;
    QTest::newRow("smallest 64 bit") << QVariant(std::numeric_limits<qlonglong>::min()) << automatic;
    QTest::newRow("unsigned") << QVariant(4294967295U) << automatic;
    QTest::newRow("text") << QVariant(text("a\tb")) << automatic;
    QTest::newRow("null bool") << QVariant() << int(KProperty::Bool);
    QTest::newRow("translucent colour") << QVariant(QColor(1, 2, 3, 4)) << automatic;
    QTest::newRow("custom dash") << QVariant(int(Qt::CustomDashLine)) << int(KProperty::LineStyle);
    QTest::newRow("URL with query") << QVariant(QUrl(text("http://host/a?b=c"))) << automatic;
    QTest::newRow("date and time with milliseconds")
        << QVariant(QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5, 678))) << automatic;
}

void EditorsTest::openingAndLeavingChangesNothing()
{
    QFETCH(QVariant, value);
    QFETCH(int, type);
    OpenEditor editor(new KProperty("p", value, QString(), QString(), type));
    QVERIFY(editor.widget());
    editor.view().acceptInput();
    QCOMPARE(editor.value(), value);
    QVERIFY(!editor.property().isModified());
}

void EditorsTest::whatAnEditorCannotShowSurvives()
{
    // A text edit has a plain space for one that doesn't break, and one kind of line break.
    const QString before = QStringLiteral("5\u00a0ppm\r\nb");
    auto *const property = new KProperty("p", before);
    property->setOption("multiLine", true);
    OpenEditor editor(property);
    QVERIFY(editor.widget());
    editor.view().acceptInput();
    QCOMPARE(editor.value().toString(), before);
    QVERIFY(!editor.property().isModified());
}

void EditorsTest::numbersAreTypedWithinTheirBounds_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("int") << QVariant(1) << QVariant() << QVariant() << QByteArray("-42") << QVariant(-42);
    QTest::newRow("int too large") << QVariant(1) << QVariant(0) << QVariant(50) << QByteArray("99")
                                   << QVariant(9);
    QTest::newRow("bounds the wrong way round")
        << QVariant(1) << QVariant(9) << QVariant(5) << QByteArray("99") << QVariant(99);
    QTest::newRow("double") << QVariant(1.0) << QVariant() << QVariant() << QByteArray("0.0005")
                            << QVariant(0.0005);
    QTest::newRow("negative double") << QVariant(1.0) << QVariant() << QVariant() << QByteArray("-2.5")
                                     << QVariant(-2.5);
    QTest::newRow("double too large")
        << QVariant(1.0) << QVariant(0.0) << QVariant(5.0) << QByteArray("7") << QVariant(1.0);
    QTest::newRow("64 bit") << QVariant(Q_INT64_C(1)) << QVariant() << QVariant() << QByteArray("-9000000000")
                            << QVariant(Q_INT64_C(-9000000000));
    QTest::newRow("unsigned takes no sign")
        << QVariant(1U) << QVariant() << QVariant() << QByteArray("-5") << QVariant(5U);
    QTest::newRow("letters") << QVariant(Q_INT64_C(1)) << QVariant() << QVariant() << QByteArray("12x")
                             << QVariant(Q_INT64_C(12));
}

void EditorsTest::numbersAreTypedWithinTheirBounds()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    QFETCH(QByteArray, typed);
    auto *const property = new KProperty("p", value);
    property->setOption("min", minimum);
    property->setOption("max", maximum);
    OpenEditor editor(property);
    editor.type(typed.constData());
    QTEST(editor.value(), "expected");
}

void EditorsTest::valueOutsideTheBoundsSurvivesItsEditor()
{
    auto *const property = new KProperty("p", 500);
    property->setOption("max", 100);
    OpenEditor editor(property);
    editor.view().acceptInput();
    QCOMPARE(editor.value(), QVariant(500));
}

void EditorsTest::prefixAndSuffixStandInTheEditor()
{
    auto *const property = new KProperty("p", Q_UINT64_C(5));
    property->setOption("prefix", text("~"));
    property->setOption("suffix", text("bytes"));
    OpenEditor editor(property);
    QCOMPARE(editor.as<QLineEdit>()->text(), text("~ 5 bytes"));
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("~ 5 bytes"));
}

void EditorsTest::minValueTextShowsAtTheBound()
{
    auto *const property = new KProperty("p", 0);
    property->setOption("min", 0);
    property->setOption("minValueText", text("automatic"));
    OpenEditor editor(property);
    QCOMPARE(editor.as<QLineEdit>()->text(), text("automatic"));
}

void EditorsTest::smallDoubleKeepsItsDigits()
{
    OpenEditor editor(new KProperty("p", 0.00012));
    QCOMPARE(editor.as<QLineEdit>()->text(), text("0.00012"));
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("0.00012"));
}

void EditorsTest::largeIntegersStep()
{
    auto *const property = new KProperty("p", std::numeric_limits<qulonglong>::max() - 1);
    property->setOption("step", 5);
    OpenEditor editor(property);
    QTest::keyClick(editor.widget(), Qt::Key_Up);
    QCOMPARE(editor.value(), QVariant(std::numeric_limits<qulonglong>::max()));
    QTest::keyClick(editor.widget(), Qt::Key_Down);
    QCOMPARE(editor.value(), QVariant(std::numeric_limits<qulonglong>::max() - 5));
}

namespace {

KProperty *listProperty(const QVariant &value)
{
    return new KProperty(
        "p", new KPropertyListData(QVariantList{1, 2}, QStringList{text("One"), text("Two")}), value);
}

} // namespace

void EditorsTest::listChoosesKeys()
{
    OpenEditor editor(listProperty(1));
    auto *const combo = editor.as<QComboBox>();
    QVERIFY(combo);
    QVERIFY(!combo->isEditable());
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(editor.value(), QVariant(2));
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("Two"));
}

void EditorsTest::listWithoutExtraValuesTakesNoText()
{
    OpenEditor editor(listProperty(1));
    QTest::keyClicks(editor.as<QComboBox>(), text("zzz"));
    editor.view().acceptInput();
    QCOMPARE(editor.value(), QVariant(1));
}

void EditorsTest::listWithExtraValuesTakesText()
{
    KProperty *const property = listProperty(1);
    property->setOption("extraValueAllowed", true);
    OpenEditor editor(property);
    editor.type("Three");
    QCOMPARE(editor.value(), QVariant(text("Three")));
}

void EditorsTest::foreignListValueSurvivesItsEditor()
{
    OpenEditor editor(listProperty(77));
    editor.view().acceptInput();
    QCOMPARE(editor.value(), QVariant(77));
}

void EditorsTest::threeStateBoolMayBeNull()
{
    auto *const property = new KProperty("p", true);
    property->setOption("3State", true);
    property->setOption("3rdStateName", text("unknown"));
    OpenEditor editor(property);
    auto *const combo = editor.as<QComboBox>();
    QVERIFY(combo);
    QCOMPARE(combo->itemText(2), text("unknown"));
    QTest::keyClick(combo, Qt::Key_End);
    QVERIFY(!editor.value().isValid());
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("unknown"));
    QTest::keyClick(combo, Qt::Key_Up);
    QCOMPARE(editor.value(), QVariant(false));
}

void EditorsTest::composedValueChangesThroughItsChildren()
{
    KPropertySet set;
    set.addProperty(new KProperty("p", QRectF(1, 2, 3, 4)));
    KPropertyEditorView view;
    view.changeSet(&set);
    const QModelIndex parent = view.model()->index(0, 0);
    QCOMPARE(view.model()->rowCount(parent), 4);
    QVERIFY(view.model()->setData(view.model()->index(0, 1, parent), 10.5, Qt::EditRole));
    QCOMPARE(set.propertyValue("p"), QVariant(QRectF(10.5, 2, 3, 4)));
}

void EditorsTest::dateBoundsHold()
{
    auto *const property = new KProperty("p", QDate(2020, 5, 5));
    property->setOption("min", QDate(2020, 5, 5));
    OpenEditor editor(property);
    QTest::keyClick(editor.widget(), Qt::Key_Down);
    QCOMPARE(editor.value(), QVariant(QDate(2020, 5, 5)));
}

void EditorsTest::urlTextCommitsOnEnter_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QUrl>("expected");
    QTest::newRow("path") << QByteArray("/data/a b.raw") << QUrl::fromLocalFile(text("/data/a b.raw"));
    QTest::newRow("URL") << QByteArray("https://host/x") << QUrl(text("https://host/x"));
    QTest::newRow("path with #") << QByteArray("/data/a#1") << QUrl::fromLocalFile(text("/data/a#1"));
}

void EditorsTest::urlTextCommitsOnEnter()
{
    QFETCH(QByteArray, typed);
    OpenEditor editor(new KProperty("p", QUrl(text("file:///old"))));
    editor.type(typed.constData());
    QTEST(editor.value().toUrl(), "expected");
}

void EditorsTest::urlDialogIsTheApplicationsToAnswer()
{
    auto *const property = new KProperty("p", QUrl(text("file:///old")));
    property->setOption("fileMode", text("dirsOnly"));
    OpenEditor editor(property);
    QVariant answer = QUrl();
    connect(&editor.view(), &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&answer](KPropertyEditorItemEvent *event) {
                QCOMPARE(event->name(), text("getOpenFileUrl"));
                QCOMPARE(event->parameters().value(text("url")).toUrl(), QUrl(text("file:///old")));
                QCOMPARE(event->parameters().value(text("caption")).toString(),
                         text("Select Existing Directory"));
                event->setResult(answer);
            });
    QTest::mouseClick(editor.as<QPushButton>(), Qt::LeftButton);
    QCOMPARE(editor.value().toUrl(), QUrl(text("file:///old")));
    answer = QUrl(text("file:///new"));
    QTest::mouseClick(editor.as<QPushButton>(), Qt::LeftButton);
    QCOMPARE(editor.value().toUrl(), QUrl(text("file:///new")));
}

void EditorsTest::f4IsTheSelectButton()
{
    OpenEditor editor(new KProperty("p", QUrl(text("file:///old"))));
    int events = 0;
    connect(&editor.view(), &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&events](KPropertyEditorItemEvent *event) {
                ++events;
                event->setResult(QUrl());
            });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(events, 1);
    editor.as<KPropertyUrlEditor>()->setSelectionButtonVisible(false);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(events, 1);
}

void EditorsTest::f4ChoosesAPicture()
{
    OpenEditor editor(new KProperty("p", QPixmap(4, 4)));
    auto *const button = editor.as<QPushButton>();
    QVERIFY(button);
    int clicks = 0;
    // In place of the dialog, which would wait for an answer.
    button->disconnect(editor.widget());
    connect(button, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(clicks, 1);
}

void EditorsTest::composedUrlTakesRelativePaths()
{
    const KPropertyComposedUrl url(QUrl(text("file:///data")), text("a.raw"));
    OpenEditor editor(
        new KProperty("p", QVariant::fromValue(url), QString(), QString(), KProperty::ComposedUrl));
    editor.type("sub/b.raw");
    QCOMPARE(editor.value().value<KPropertyComposedUrl>().value(), QUrl(text("file:///data/sub/b.raw")));
}

void EditorsTest::colorIsChosenFromTheList()
{
    OpenEditor editor(new KProperty("p", QColor(Qt::black)));
    auto *const combo = editor.as<QComboBox>();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(editor.value().value<QColor>(), combo->currentData().value<QColor>());
    QVERIFY(editor.property().isModified());
}

void EditorsTest::unknownTypeHasNoEditor()
{
    OpenEditor editor(new KProperty("p", text("v"), QString(), QString(), 4999));
    QVERIFY(!editor.widget());
    QVERIFY(!KPropertyWidgetsPluginManager::self()->isEditorForTypeAvailable(4999));
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("v"));
}

void EditorsTest::factoryServesSeveralTypesAndOwnsItsCreators()
{
    {
        KPropertyWidgetsFactory factory;
        auto *const creator = new UpperDelegate;
        factory.addEditor(4201, creator);
        factory.addEditor(4202, creator);
        QCOMPARE(factory.editorCreators().size(), 2);
        QCOMPARE(factory.valueDisplays().value(4202), creator);
        QCOMPARE(UpperDelegate::s_alive, 1);
    }
    QCOMPARE(UpperDelegate::s_alive, 0);
}

void EditorsTest::laterFactoryTakesOverAType()
{
    auto *const factory = new KPropertyWidgetsFactory;
    factory->addEditor(4203, new UpperDelegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
    OpenEditor editor(new KProperty("p", text("v"), QString(), QString(), 4203));
    QVERIFY(qobject_cast<QLineEdit *>(editor.widget()));
    QCOMPARE(editor.view().model()->index(0, 1).data().toString(), text("V"));
}

void EditorsTest::creatorOptionsCompare()
{
    KPropertyEditorCreatorOptions options;
    const KPropertyEditorCreatorOptions copy(options);
    QVERIFY(options == copy);
    options.setBordersVisible(true);
    QVERIFY(options != copy);
    UpperDelegate delegate;
    *delegate.options() = options;
    QVERIFY(delegate.options()->bordersVisible());
}

QTEST_MAIN(EditorsTest)
#include "EditorsTest.moc"
