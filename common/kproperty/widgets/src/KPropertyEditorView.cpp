#include "KPropertyEditorView.h"

#include "KProperty.h"
#include "KPropertyEditorView_p.h"
#include "KPropertySet.h"
#include "internal/Painting.h"

#include <QHeaderView>

#include <algorithm>

using Internal::EditorDataModel;
using Internal::ItemDelegate;

namespace {

constexpr int kLeastColumnWidth = 48;
constexpr int kChangesOneByOne = 16;

/// A selection is remembered by name, and only the set's own properties have names that are unique.
QByteArray nameToRemember(const KProperty *property)
{
    while (property && property->parent()) {
        property = property->parent();
    }
    return property ? property->name() : QByteArray();
}

} // namespace

KPropertyEditorView::KPropertyEditorView(QWidget *parent)
    : QTreeView(parent)
    , d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("KPropertyEditorView"));
    d->model = new EditorDataModel(this);
    setModel(d->model);
    d->delegate = new ItemDelegate(this, d->model);
    setItemDelegate(d->delegate);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed |
                    QAbstractItemView::DoubleClicked);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAllColumnsShowFocus(true);
    setRootIsDecorated(false);
    setIndentation(16);
    setAnimated(false);
    setAlternatingRowColors(false);
    setExpandsOnDoubleClick(false);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Properties"));
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(kLeastColumnWidth);
    viewport()->setMouseTracking(true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (section == EditorDataModel::NameColumn && !d->sizingColumns) {
            d->nameWidth = width;
        }
    });
}

KPropertyEditorView::~KPropertyEditorView()
{
    // A set that outlives the view must not reach the half destroyed one.
    if (d->set) {
        d->set->disconnect(this);
    }
    d->delegate->outliveView();
}

QColor KPropertyEditorView::gridLineColor() const
{
    return d->gridLineColor;
}

void KPropertyEditorView::setGridLineColor(const QColor &color)
{
    d->gridLineColor = color;
    viewport()->update();
}

QSize KPropertyEditorView::sizeHint() const
{
    constexpr int kMaxRows = 24;
    int rows = 0;
    for (QModelIndex index = d->model->index(0, 0); index.isValid() && rows < kMaxRows;
         index = indexBelow(index)) {
        ++rows;
    }
    const int rowHeight = fontMetrics().lineSpacing() + 2 * Internal::Painting::verticalPadding();
    const int headerHeight = header()->isHidden() ? 0 : header()->sizeHint().height();
    return QSize(fontMetrics().averageCharWidth() * 56,
                 headerHeight + std::max(rows, 4) * rowHeight + 2 * frameWidth());
}

KPropertySet *KPropertyEditorView::propertySet() const
{
    return d->set;
}

bool KPropertyEditorView::childPropertyItemsExpanded() const
{
    return d->childItemsExpanded;
}

void KPropertyEditorView::setChildPropertyItemsExpanded(bool set)
{
    d->childItemsExpanded = set;
}

bool KPropertyEditorView::isValueSyncEnabled() const
{
    return d->valueSync;
}

void KPropertyEditorView::setValueSyncEnabled(bool set)
{
    d->valueSync = set;
}

bool KPropertyEditorView::groupsVisible() const
{
    return d->groupsVisible;
}

void KPropertyEditorView::setGroupsVisible(bool set)
{
    d->groupsVisible = set;
}

bool KPropertyEditorView::groupItemsExpanded() const
{
    return d->groupItemsExpanded;
}

void KPropertyEditorView::setGroupItemsExpanded(bool set)
{
    d->groupItemsExpanded = set;
}

bool KPropertyEditorView::toolTipsVisible() const
{
    return d->toolTipsVisible;
}

void KPropertyEditorView::setToolTipsVisible(bool set)
{
    d->toolTipsVisible = set;
    d->model->setToolTipsVisible(set);
}

void KPropertyEditorView::changeSet(KPropertySet *set, SetOptions options)
{
    const bool preserve = set && options.testFlag(SetOption::PreservePreviousSelection);
    changeSetInternal(set, options, preserve ? set->previousSelection() : QByteArray());
}

void KPropertyEditorView::changeSet(KPropertySet *set, const QByteArray &propertyToSelect, SetOptions options)
{
    changeSetInternal(set, options, propertyToSelect);
}

void KPropertyEditorView::changeSetInternal(KPropertySet *set, SetOptions options,
                                            const QByteArray &propertyToSelect)
{
    // Who hears of what was typed may delete the view, and the set that is to come.
    const QPointer<KPropertyEditorView> self(this);
    const QPointer<KPropertySet> next(set);
    if (d->set) {
        acceptInput();
    }
    if (!self) {
        return;
    }
    if (d->set) {
        d->set->disconnect(this);
    }
    set = next;
    d->set = set;
    d->model->setSet(set, {options.testFlag(SetOption::AlphabeticalOrder), d->groupsVisible});
    if (set) {
        connectSet(set);
        expandItems();
        const QModelIndex selected =
            d->model->indexForProperty(&set->property(propertyToSelect), EditorDataModel::NameColumn);
        if (selected.isValid()) {
            setCurrentIndex(selected);
            scrollTo(selected);
        }
    }
    Q_EMIT propertySetChanged(set);
}

void KPropertyEditorView::connectSet(KPropertySet *set)
{
    connect(set, &KPropertySet::propertyChangedInternal, this, &KPropertyEditorView::slotPropertyChanged);
    connect(set, &KPropertySet::propertyReset, this, &KPropertyEditorView::slotPropertyReset);
    connect(set, &KPropertySet::aboutToBeCleared, this, &KPropertyEditorView::slotSetWillBeCleared);
    connect(set, &KPropertySet::aboutToBeDeleted, this, &KPropertyEditorView::slotSetWillBeDeleted);
    connect(set, &KPropertySet::readOnlyFlagChanged, this, &KPropertyEditorView::slotReadOnlyFlagChanged);
    connect(set, &KPropertySet::aboutToDeleteProperty, this,
            [this](KPropertySet &, KProperty &property) { dropRow(property); });
    connect(set, &KPropertySet::aboutToDeleteChildInternal, this, &KPropertyEditorView::dropRow);
}

void KPropertyEditorView::dropRow(const KProperty &property)
{
    const KProperty *edited = d->property(d->delegate->editedIndex());
    while (edited && edited != &property) {
        edited = edited->parent();
    }
    if (edited && d->delegate->editor()) {
        closeEditor(d->delegate->editor(), QAbstractItemDelegate::RevertModelCache);
    }
    // Scrolling to the row that becomes current lays all rows out, and once is enough for many removals.
    const bool scrolls = hasAutoScroll();
    const QModelIndex current = currentIndex();
    setAutoScroll(false);
    d->model->removeProperty(&property);
    setAutoScroll(scrolls);
    if (scrolls && current != currentIndex()) {
        scrollToCurrentLater();
    }
}

void KPropertyEditorView::scrollToCurrentLater()
{
    if (d->scrollsLater) {
        return;
    }
    d->scrollsLater = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            d->scrollsLater = false;
            if (currentIndex().isValid()) {
                scrollTo(currentIndex());
            }
        },
        Qt::QueuedConnection);
}

void KPropertyEditorView::expandItems()
{
    const QAbstractItemModel *const rows = d->model;
    for (int row = 0; row < rows->rowCount(); ++row) {
        const QModelIndex index = rows->index(row, 0);
        if (!d->model->isGroup(index)) {
            expandChildren(index);
            continue;
        }
        if (d->groupItemsExpanded) {
            expand(index);
        }
        for (int child = 0; child < rows->rowCount(index); ++child) {
            expandChildren(rows->index(child, 0, index));
        }
    }
    executeDelayedItemsLayout();
}

/// The tree keeps an index for each row that it is told to expand, and removals move all of these: so none
/// for rows without children.
void KPropertyEditorView::expandChildren(const QModelIndex &index)
{
    if (!d->childItemsExpanded || d->model->rowCount(index) == 0) {
        return;
    }
    expand(index);
    for (int row = 0; row < d->model->rowCount(index); ++row) {
        expandChildren(d->model->index(row, 0, index));
    }
}

void KPropertyEditorView::slotSetWillBeCleared()
{
    letGoOfSet();
}

void KPropertyEditorView::slotSetWillBeDeleted()
{
    letGoOfSet();
}

void KPropertyEditorView::letGoOfSet()
{
    const QPointer<KPropertyEditorView> self(this);
    if (QWidget *const editor = d->delegate->editor()) {
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    }
    if (!self) {
        return;
    }
    changeSetInternal(nullptr, SetOption::None, QByteArray());
}

void KPropertyEditorView::slotReadOnlyFlagChanged()
{
    const QPointer<KPropertyEditorView> self(this);
    acceptInput();
    if (self) {
        d->model->refreshAll();
        viewport()->update();
    }
}

void KPropertyEditorView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                      const QList<int> &roles)
{
    if (d->changesInTurn == 0) {
        QMetaObject::invokeMethod(
            this, [this] { d->changesInTurn = 0; }, Qt::QueuedConnection);
    }
    // The tree looks through all rows for one that is out of sight. After a few changes it is cheaper to lay
    // them out anew, once for all changes up to then.
    if (++d->changesInTurn <= kChangesOneByOne) {
        QTreeView::dataChanged(topLeft, bottomRight, roles);
        return;
    }
    scheduleDelayedItemsLayout();
    // The tree's own would lay out every row at once.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): meant
    QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
}

void KPropertyEditorView::slotPropertyChanged(KPropertySet &, KProperty &property)
{
    d->model->setRemark(&property, QString());
    d->model->refresh(&property);
}

void KPropertyEditorView::slotPropertyReset(KPropertySet &, KProperty &property)
{
    d->model->setRemark(&property, QString());
    d->model->refresh(&property);
    updateEditorGeometries();
}

void KPropertyEditorView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    const QByteArray name = nameToRemember(d->property(current));
    if (d->set && !name.isEmpty()) {
        d->set->setPreviousSelection(name);
    }
}
