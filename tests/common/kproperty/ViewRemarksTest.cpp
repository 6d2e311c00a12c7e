#include "ViewFixture.h"

#include <KPropertyWidgetsFactory.h>
#include <KPropertyWidgetsPluginManager.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolTip>

namespace {

constexpr int kPickyType = KProperty::UserDefined + 71;

/// Takes texts in lower case alone, and tells so when the focus is lost or Enter was pressed.
class PickyEditor : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue USER true)

public:
    explicit PickyEditor(QWidget *parent)
        : QLineEdit(parent)
    {
        connect(this, &QLineEdit::editingFinished, this, &PickyEditor::finish);
    }

    [[nodiscard]] QString value() const { return m_value; }
    void setValue(const QString &value)
    {
        m_value = value;
        setText(value);
    }

Q_SIGNALS:
    void commitData(QWidget *editor);

private:
    void finish()
    {
        if (text() == m_value)
            return;
        if (text() != text().toLower()) {
            const QString typed = text();
            setText(m_value);
            KPropertyUtils::viewForEditor(this)->setRemark(
                this, QStringLiteral("\"%1\" was not taken: <b> is no small letter.").arg(typed));
            return;
        }
        m_value = text();
        Q_EMIT commitData(this);
    }

    QString m_value;
};

class PickyDelegate : public KPropertyEditorCreatorInterface
{
public:
    QWidget *createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        return new PickyEditor(parent);
    }
};

struct PickyFixture
{
    KPropertySet set;
    KPropertyEditorView view;

    PickyFixture()
    {
        set.addProperty(new KProperty("before", text("b"), text("Before")), "first");
        set.addProperty(
            new KProperty("picky", text("old"), text("Picky"), text("Small letters."), kPickyType), "first");
        view.resize(420, 300);
        view.changeSet(&set);
        view.show();
        (void)QTest::qWaitForWindowActive(&view);
    }

    [[nodiscard]] QModelIndex cell(int column = 1) const
    {
        return view.model()->index(1, column, view.model()->index(0, 0));
    }
    [[nodiscard]] QString toolTip(int column = 1) const
    {
        return cell(column).data(Qt::ToolTipRole).toString();
    }
    [[nodiscard]] QString spoken() const { return cell(0).data(Qt::AccessibleDescriptionRole).toString(); }

    QWidget *open()
    {
        view.setCurrentIndex(cell(0));
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_F2);
        return view.indexWidget(cell());
    }

    void typeAndLeave(const char *keys, Qt::Key key)
    {
        open();
        QWidget *const editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, text(keys));
        QTest::keyClick(editor, key);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

const char kReason[] = "\"Loud\" was not taken: <b> is no small letter.";

} // namespace

class ViewRemarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aRefusedTextIsExplained_data();
    void aRefusedTextIsExplained();
    void theEditorExplainsIt();
    void theNextEditEndsIt_data();
    void theNextEditEndsIt();
    void escapeSaysAndEndsNothing();
    void anotherRefusalReplacesIt();
    void aChangeOfTheValueEndsIt();
    void aRebuildKeepsItAndAnotherSetDoesNot();
    void propertiesMayGo();
    void withoutToolTipsItIsToldAllTheSame();
    void screenReadersReadIt();
    void aSignStandsInTheCell();
    void aRemarkHasTheSignOfItsKind();
    void aFoldedGroupShowsTheSignOfItsRows();
    void groupsTellTheRemarksOfTheirRows();
    void aCutValueStandsInTheToolTip();
};

void ViewRemarksTest::initTestCase()
{
    auto *const factory = new KPropertyWidgetsFactory;
    factory->addEditor(kPickyType, new PickyDelegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
}

void ViewRemarksTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void ViewRemarksTest::aRefusedTextIsExplained_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Enter") << Qt::Key_Return;
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Shift+Tab") << Qt::Key_Backtab;
}

void ViewRemarksTest::aRefusedTextIsExplained()
{
    QFETCH(Qt::Key, key);
    PickyFixture f;
    f.typeAndLeave("Loud", key);
    QCOMPARE(f.set.propertyValue("picky").toString(), text("old"));
    QCOMPARE(f.view.remark(f.set["picky"]), text(kReason));
    for (const int column : {0, 1})
        QCOMPARE(f.toolTip(column),
                 text("<b>Picky</b><br>&quot;Loud&quot; was not taken: &lt;b&gt; is no small letter.<br>"
                      "Small letters."));
    QCOMPARE(f.spoken(), text(kReason) + text("\nSmall letters."));
}

void ViewRemarksTest::theEditorExplainsIt()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    const QWidget *const editor = f.open();
    QVERIFY(editor);
    QCOMPARE(editor->toolTip(), text("&quot;Loud&quot; was not taken: &lt;b&gt; is no small letter."));
    QCOMPARE(editor->accessibleDescription(), text(kReason) + text("\nSmall letters."));
}

void ViewRemarksTest::theNextEditEndsIt_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("another text") << text("quiet");
    QTest::newRow("the same text as before") << text("old");
}

void ViewRemarksTest::theNextEditEndsIt()
{
    QFETCH(QString, typed);
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    f.typeAndLeave(qPrintable(typed), Qt::Key_Return);
    QCOMPARE(f.set.propertyValue("picky").toString(), typed);
    QCOMPARE(f.view.remark(f.set["picky"]), QString());
    QCOMPARE(f.toolTip(), text("<b>Picky</b><br>Small letters."));
}

void ViewRemarksTest::escapeSaysAndEndsNothing()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Escape);
    QCOMPARE(f.view.remark(f.set["picky"]), QString());
    f.typeAndLeave("Loud", Qt::Key_Return);
    f.typeAndLeave("quiet", Qt::Key_Escape);
    QCOMPARE(f.view.remark(f.set["picky"]), text(kReason));
}

void ViewRemarksTest::anotherRefusalReplacesIt()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    f.typeAndLeave("Loud", Qt::Key_Return);
    QCOMPARE(f.view.remark(f.set["picky"]), text(kReason));
    f.typeAndLeave("LOUD", Qt::Key_Tab);
    QCOMPARE(f.view.remark(f.set["picky"]), text("\"LOUD\" was not taken: <b> is no small letter."));
}

void ViewRemarksTest::aChangeOfTheValueEndsIt()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    f.set.changeProperty("picky", text("quiet"));
    QCOMPARE(f.view.remark(f.set["picky"]), QString());
    f.view.setRemark(f.set["picky"], text("said"));
    f.set["picky"].resetValue();
    QCOMPARE(f.view.remark(f.set["picky"]), QString());
}

void ViewRemarksTest::aRebuildKeepsItAndAnotherSetDoesNot()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    f.view.changeSet(&f.set, KPropertyEditorView::SetOption::AlphabeticalOrder);
    QCOMPARE(f.view.remark(f.set["picky"]), text(kReason));
    KPropertySet other(f.set);
    f.view.changeSet(&other);
    QCOMPARE(f.view.remark(other["picky"]), QString());
    f.view.changeSet(&f.set);
    QCOMPARE(f.view.remark(f.set["picky"]), QString());
}

void ViewRemarksTest::propertiesMayGo()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    QWidget *const editor = f.open();
    f.set.removeProperty("picky");
    f.view.setRemark(editor, text("too late"));
    f.view.setRemark(static_cast<QWidget *>(nullptr), text("nobody"));
    const KProperty stranger("picky", text("x"));
    f.view.setRemark(stranger, text("not shown"));
    QCOMPARE(f.view.remark(stranger), QString());
    f.set.clear();
    f.view.changeSet(nullptr);
}

void ViewRemarksTest::withoutToolTipsItIsToldAllTheSame()
{
    PickyFixture f;
    f.view.setToolTipsVisible(false);
    QCOMPARE(f.toolTip(), QString());
    f.view.setRemark(f.set["picky"], text("1 < 2"));
    QCOMPARE(f.toolTip(), text("1 &lt; 2"));
}

void ViewRemarksTest::screenReadersReadIt()
{
    PickyFixture f;
    f.typeAndLeave("Loud", Qt::Key_Return);
    QAccessibleInterface *const tree = QAccessible::queryAccessibleInterface(&f.view);
    QVERIFY(tree && tree->tableInterface());
    // Below the row of the group and that of the first property.
    QAccessibleInterface *const cell = tree->tableInterface()->cellAt(2, 0);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), text("Picky: old"));
    QCOMPARE(cell->text(QAccessible::Description), text(kReason) + text("\nSmall letters."));
}

void ViewRemarksTest::aSignStandsInTheCell()
{
    PickyFixture f;
    const QRect cell = f.view.visualRect(f.cell());
    const QImage plain = f.view.viewport()->grab(cell).toImage();
    f.view.setRemark(f.set["picky"], text("said"));
    QVERIFY(f.view.viewport()->grab(cell).toImage() != plain);
    f.view.setRemark(f.set["picky"], QString());
    QCOMPARE(f.view.viewport()->grab(cell).toImage(), plain);
}

void ViewRemarksTest::aRemarkHasTheSignOfItsKind()
{
    using Kind = KPropertyEditorView::RemarkKind;
    PickyFixture f;
    const auto square = [](Qt::GlobalColor color) {
        QPixmap pixmap(32, 32);
        pixmap.fill(color);
        return QIcon(pixmap);
    };
    f.view.setRemarkIcon(Kind::Hint, square(Qt::blue));
    f.view.setRemarkIcon(Kind::Error, square(Qt::red));
    const auto shows = [&f](const QModelIndex &index, Qt::GlobalColor color) {
        const QImage image = f.view.viewport()->grab(f.view.visualRect(index)).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(color))
                    return true;
            }
        }
        return false;
    };
    QCOMPARE(f.view.remarkKind(f.set["picky"]), Kind::Warning);
    f.view.setRemark(f.set["picky"], text("said"));
    QCOMPARE(f.view.remarkKind(f.set["picky"]), Kind::Warning);
    QVERIFY(!shows(f.cell(), Qt::red));
    f.view.setRemark(f.set["picky"], text("said"), Kind::Error);
    f.view.setRemark(f.set["before"], text("said"), Kind::Hint);
    QVERIFY(shows(f.cell(), Qt::red));
    QVERIFY(!shows(f.cell(), Qt::blue));
    f.view.changeSet(&f.set);
    QCOMPARE(f.view.remarkKind(f.set["picky"]), Kind::Error);
    f.view.collapse(f.view.model()->index(0, 0));
    QVERIFY(shows(f.view.model()->index(0, 0), Qt::red));
    QVERIFY(!shows(f.view.model()->index(0, 0), Qt::blue));
}

void ViewRemarksTest::aFoldedGroupShowsTheSignOfItsRows()
{
    PickyFixture f;
    const QModelIndex group = f.view.model()->index(0, 0);
    f.view.collapse(group);
    const QImage plain = f.view.grab().toImage();
    f.view.setRemark(f.set["picky"], text("Was not taken."));
    QVERIFY(f.view.grab().toImage() != plain);
    f.view.setRemark(f.set["picky"], QString());
    QCOMPARE(f.view.grab().toImage(), plain);
}

void ViewRemarksTest::groupsTellTheRemarksOfTheirRows()
{
    PickyFixture f;
    const QModelIndex group = f.view.model()->index(0, 0);
    QCOMPARE(group.data(Qt::AccessibleDescriptionRole).toString(), text("Group of properties"));
    QVERIFY(!group.data(Qt::ToolTipRole).isValid());
    QSignalSpy changes(f.view.model(), &QAbstractItemModel::dataChanged);
    f.view.setRemark(f.set["picky"], text("<b> was not taken."));
    f.view.setRemark(f.set["before"], text("Is odd."));
    QCOMPARE(group.data(Qt::AccessibleDescriptionRole).toString(),
             text("Group of properties\nBefore: Is odd.\nPicky: <b> was not taken."));
    QCOMPARE(group.data(Qt::ToolTipRole).toString(),
             text("Before: Is odd.<br>Picky: &lt;b&gt; was not taken."));
    QCOMPARE(changes.size(), 4);
}

void ViewRemarksTest::aCutValueStandsInTheToolTip()
{
    PickyFixture f;
    const auto shownAt = [&f](int column) {
        const QPoint place = f.view.visualRect(f.cell(column)).center();
        QHelpEvent event(QEvent::ToolTip, place, f.view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(f.view.viewport(), &event);
        return QToolTip::text();
    };
    QCOMPARE(shownAt(1), text("<b>Picky</b><br>Small letters."));
    f.set.changeProperty("picky", text("/a/<b>").repeated(30));
    QVERIFY2(shownAt(1).startsWith(text("<b>Picky</b><br>Small letters.<hr>/&#8203;a/&#8203;&lt;b&gt;/")),
             qPrintable(shownAt(1)));
    QCOMPARE(shownAt(0), text("<b>Picky</b><br>Small letters."));
    f.set.changeProperty("picky", text("x").repeated(1'000'000));
    QVERIFY(shownAt(1).size() < 3000);
    QToolTip::hideText();
}

QTEST_MAIN(ViewRemarksTest)
#include "ViewRemarksTest.moc"
