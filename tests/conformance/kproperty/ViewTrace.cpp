#include "ViewTrace.h"

#include "Trace.h"

#include <KPropertyEditorView>
#include <KPropertyUtils>

#include <QApplication>
#include <QRect>

using Trace::describe;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString flagNames(const QModelIndex &index)
{
    QString names;
    names += index.flags() & Qt::ItemIsSelectable ? QLatin1String("s") : QLatin1String("-");
    names += index.flags() & Qt::ItemIsEditable ? QLatin1String("e") : QLatin1String("-");
    names += index.flags() & Qt::ItemIsEnabled ? QLatin1String("n") : QLatin1String("-");
    return names;
}

/// The original answers for group rows with a property that has no name, where its documentation says null.
const KProperty *propertyAt(const QModelIndex &index)
{
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    return property && !property->isNull() ? property : nullptr;
}

void dumpRow(const KPropertyEditorView &view, const QModelIndex &name, int depth)
{
    const QModelIndex value = name.sibling(name.row(), 1);
    Trace::line(QStringLiteral("%1%2 | %3 | %4 flags=%5/%6 %7%8")
                    .arg(QString(2 * depth + 2, QLatin1Char(' ')),
                         Trace::show(name.data(Qt::DisplayRole).toString()),
                         Trace::show(value.data(Qt::DisplayRole)), Trace::show(value.data(Qt::EditRole)),
                         flagNames(name), flagNames(value),
                         view.model()->hasChildren(name)
                             ? (view.isExpanded(name) ? QStringLiteral("+") : QStringLiteral("-"))
                             : QString(),
                         QStringLiteral(" of ") + Trace::show(propertyAt(value))));
    Trace::differs("tool-tips");
    Trace::line(QStringLiteral("  tip=") + Trace::show(name.data(Qt::ToolTipRole)) + QLatin1Char('/') +
                Trace::show(value.data(Qt::ToolTipRole)));
}

void dumpRows(const KPropertyEditorView &view, const QModelIndex &parent = QModelIndex(), int depth = 0)
{
    const QAbstractItemModel *const model = view.model();
    for (int row = 0; model && row < model->rowCount(parent); ++row) {
        if (view.isRowHidden(row, parent)) {
            Trace::line(QStringLiteral("  (hidden)"));
            continue;
        }
        const QModelIndex index = model->index(row, 0, parent);
        dumpRow(view, index, depth);
        dumpRows(view, index, depth + 1);
    }
}

void dumpView(const KPropertyEditorView &view)
{
    Trace::line(
        QStringLiteral("  view: set=%1 current=%2 column=%3")
            .arg(Trace::show(view.propertySet() != nullptr), Trace::show(propertyAt(view.currentIndex())))
            .arg(view.currentIndex().column()));
    dumpRows(view);
}

QString names(const KPropertyEditorView &view, const QModelIndex &parent = QModelIndex())
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        texts << index.data().toString() +
                     (view.model()->hasChildren(index) ? names(view, index) : QString());
    }
    return Trace::show(texts);
}

void fill(KPropertySet &set)
{
    set.addProperty(new KProperty("zeta", 1, text("Zeta\nnumber"), text("about zeta")));
    set.addProperty(new KProperty("flag", true, text("A flag"), text("about the flag")));
    set.addProperty(new KProperty("hidden", text("h"), text("Hidden")));
    set["hidden"].setVisible(false);
    set.addProperty(new KProperty("frame", QRect(1, 2, 3, 4), text("Frame"), text("about the frame")),
                    "geometry");
    set.addProperty(new KProperty("name", text("value"), text("Name")), "texts");
    set.addProperty(new KProperty("fixed", text("value"), text("Fixed")), "texts");
    set["fixed"].setReadOnly(true);
    set.setGroupCaption("texts", text("All texts"));
    set.setGroupIconName("texts", text("no-such-icon"));
}

QModelIndex find(const KPropertyEditorView &view, const QByteArray &name,
                 const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        const KProperty *const property = KPropertyUtils::propertyForIndex(index);
        if (property && property->name() == name) {
            return index;
        }
        const QModelIndex below = find(view, name, index);
        if (below.isValid()) {
            return below;
        }
    }
    return QModelIndex();
}

bool edit(KPropertyEditorView &view, const QByteArray &name, const QVariant &value)
{
    const QModelIndex index = find(view, name);
    return view.model()->setData(index.sibling(index.row(), 1), value, Qt::EditRole);
}

void traceContents()
{
    Trace::title("view: contents");
    KPropertyEditorView view;
    QObject::connect(&view, &KPropertyEditorView::propertySetChanged, &view, [](KPropertySet *set) {
        Trace::line(QStringLiteral("  set changed ") + Trace::show(set != nullptr));
    });
    GET(view.gridLineColor() == KPropertyEditorView::defaultGridLineColor());
    GET(view.childPropertyItemsExpanded());
    GET(view.isValueSyncEnabled());
    GET(view.groupsVisible());
    GET(view.groupItemsExpanded());
    Trace::differs("tool-tips");
    GET(view.toolTipsVisible());
    GET(view.propertySet() == nullptr);
    KPropertySet set;
    fill(set);
    Trace::watch(&set, text("set"));
    RUN(view.changeSet(&set));
    GET(view.model()->columnCount());
    GET(view.model()->headerData(0, Qt::Horizontal));
    GET(view.model()->headerData(1, Qt::Horizontal));
    dumpView(view);
    RUN(view.setToolTipsVisible(true));
    RUN(view.changeSet(&set));
    dumpView(view);
    RUN(view.changeSet(nullptr));
    dumpView(view);
    RUN(view.changeSet(&set));
    RUN(view.setGroupItemsExpanded(false));
    RUN(view.setChildPropertyItemsExpanded(false));
    dumpView(view);
    RUN(view.changeSet(nullptr));
    RUN(view.changeSet(&set));
    dumpView(view);
    RUN(set["hidden"].setVisible(true));
    RUN(set["zeta"].setVisible(false));
    RUN(view.changeSet(nullptr));
    RUN(view.changeSet(&set));
    dumpView(view);
    RUN(set.setReadOnly(true));
    dumpView(view);
    RUN(view.setGridLineColor(QColor()));
    GET(view.gridLineColor().isValid());
}

void traceOptions()
{
    Trace::title("view: options");
    KPropertySet set;
    fill(set);
    KPropertyEditorView flat;
    RUN(flat.setGroupsVisible(false));
    Trace::differs("groups-hidden");
    GET(flat.groupsVisible());
    RUN(flat.changeSet(&set));
    Trace::differs("groups-hidden");
    GET(names(flat));
    KPropertyEditorView sorted;
    RUN(sorted.changeSet(&set, KPropertyEditorView::SetOption::AlphabeticalOrder));
    Trace::differs("alphabetical-order");
    GET(names(sorted));
    KPropertyEditorView halfOpen;
    RUN(halfOpen.setChildPropertyItemsExpanded(false));
    RUN(halfOpen.changeSet(&set));
    dumpView(halfOpen);
    KPropertyEditorView closed;
    RUN(closed.setGroupItemsExpanded(false));
    RUN(closed.changeSet(&set));
    dumpView(closed);
}

void traceSelection()
{
    Trace::title("view: selection");
    KPropertySet set;
    fill(set);
    KPropertySet other;
    other.addProperty(new KProperty("only", 1));
    KPropertyEditorView view;
    RUN(view.changeSet(&set, "frame"));
    dumpView(view);
    RUN(view.changeSet(&set, "none"));
    GET(propertyAt(view.currentIndex()));
    RUN(view.changeSet(&other));
    GET(propertyAt(view.currentIndex()));
    RUN(view.changeSet(&set, "name"));
    RUN(view.changeSet(&other));
    Trace::differs("preserve-selection");
    GET(set.previousSelection());
    RUN(view.changeSet(&set, KPropertyEditorView::SetOption::PreservePreviousSelection));
    Trace::differs("preserve-selection");
    GET(propertyAt(view.currentIndex()));
    RUN(view.changeSet(&set));
    GET(propertyAt(view.currentIndex()));
    dumpView(view);
}

void traceChanges()
{
    Trace::title("view: changes");
    KPropertySet set;
    fill(set);
    KPropertyEditorView view;
    view.changeSet(&set);
    Trace::watch(&set, text("set"));
    RUN(set.changeProperty("zeta", 77));
    RUN(set["frame"].setValue(QRect(9, 8, 7, 6)));
    dumpView(view);
    GET(edit(view, "zeta", 5));
    GET(edit(view, "zeta", 5));
    GET(edit(view, "name", text("typed")));
    GET(edit(view, "x", 100));
    GET(edit(view, "flag", false));
    set.blockSignals(true);
    Trace::differs("read-only-data");
    GET(edit(view, "fixed", text("typed")));
    RUN(set["fixed"].setValue(text("value"), KProperty::ValueOption::IgnoreOld));
    set.blockSignals(false);
    dumpView(view);
    DUMP(set);
    RUN(set["frame"].resetValue());
    dumpView(view);
    RUN(set.removeProperty("zeta"));
    dumpView(view);
    RUN(set.addProperty(new KProperty("late", 5, text("Late")), "texts"));
    Trace::differs("late-addition");
    GET(names(view));
    RUN(view.changeSet(nullptr));
    RUN(view.changeSet(&set));
    dumpView(view);
    RUN(set.removeProperty("frame"));
    dumpView(view);
    RUN(set.clear());
    dumpView(view);
    RUN(view.changeSet(nullptr));
    auto *doomed = new KPropertySet;
    fill(*doomed);
    view.changeSet(doomed);
    RUN(delete doomed);
    dumpView(view);
}

void traceCommonOnly()
{
    Trace::title("view: one group");
    KPropertySet set;
    set.addProperty(new KProperty("a", 1, text("A")));
    set.addProperty(new KProperty("b", QSize(1, 2)));
    KPropertyEditorView view;
    view.changeSet(&set);
    dumpView(view);
    KPropertySet named;
    named.addProperty(new KProperty("a", 1, text("A")), "named");
    view.changeSet(&named);
    dumpView(view);
    KPropertySet invisible;
    invisible.addProperty(new KProperty("a", 1, text("A")), "first");
    invisible.addProperty(new KProperty("b", 1, text("B")), "second");
    invisible["a"].setVisible(false);
    view.changeSet(&invisible);
    Trace::differs("empty-group");
    GET(names(view));
    KPropertySet empty;
    view.changeSet(&empty);
    dumpView(view);
    Trace::title("end of views");
}

class RandomRun
{
public:
    explicit RandomRun(unsigned seed)
        : m_random(seed)
    {
        m_view.changeSet(&m_set);
        Trace::watch(&m_set, text("set"));
    }

    void step()
    {
        const QByteArray name = QByteArray("p") + QByteArray::number(m_random.below(12));
        const QByteArray group = QByteArray("g") + QByteArray::number(m_random.below(3));
        const int operation = m_random.below(12);
        const int number = m_random.below(5);
        Trace::line(QStringLiteral("op %1 %2 %3 %4")
                        .arg(operation)
                        .arg(Trace::show(name), Trace::show(group))
                        .arg(number));
        switch (operation) {
        case 0:
        case 1:
        case 2:
        case 3:
            if (!m_set.contains(name)) {
                m_view.changeSet(nullptr);
                m_set.addProperty(make(name, number), group);
                m_view.changeSet(&m_set);
            }
            break;
        case 4:
            m_view.changeSet(nullptr);
            m_set.removeProperty(name);
            m_view.changeSet(&m_set);
            break;
        case 5:
            m_view.setGroupItemsExpanded(number > 1);
            m_view.setChildPropertyItemsExpanded(number > 2);
            m_view.changeSet(nullptr);
            m_view.changeSet(&m_set);
            break;
        case 6:
        case 7:
            if (m_set.contains(name)) {
                Trace::line(Trace::show(edit(m_view, name, value(m_set[name].type(), number))));
            }
            break;
        case 8:
            m_set[name].resetValue();
            break;
        case 9:
            m_set[name].setVisible(number > 0);
            m_view.changeSet(nullptr);
            m_view.changeSet(&m_set);
            break;
        case 10:
            m_set[name].setReadOnly(number > 2);
            break;
        default:
            m_view.changeSet(nullptr);
            m_view.changeSet(&m_set, name);
            break;
        }
        dumpView(m_view);
    }

private:
    static QVariant value(int type, int number)
    {
        if (type == KProperty::Rect) {
            return QRect(number, 1, 2, 3);
        }
        return type == KProperty::String ? QVariant(QString::number(number)) : QVariant(number);
    }

    static KProperty *make(const QByteArray &name, int number)
    {
        const int types[] = {KProperty::Int, KProperty::String, KProperty::Rect, KProperty::Int,
                             KProperty::String};
        const QString caption = QString::fromLatin1(name).toUpper();
        return new KProperty(name, value(types[number], number), caption, text("tip"), types[number]);
    }

    Trace::Random m_random;
    KPropertySet m_set;
    KPropertyEditorView m_view;
};

} // namespace

void traceViews()
{
    traceContents();
    traceOptions();
    traceSelection();
    traceChanges();
    traceCommonOnly();
}

void traceRandomViews(unsigned seed, int operations)
{
    Trace::title("random views");
    Trace::line(QStringLiteral("seed %1").arg(seed));
    RandomRun run(seed);
    for (int i = 0; i < operations; ++i) {
        run.step();
    }
}
