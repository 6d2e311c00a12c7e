#include "FindPanel.h"

#include "panels/ColumnShares.h"
#include "panels/EvenRows.h"

#include <orv/widgets/Icons.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <chrono>

namespace orv {

namespace {

/// No caption or value that anybody types is longer.
constexpr int kMostTyped = 1000;
/// Until then somebody types on, and a screen reader that spoke would be in the way.
constexpr std::chrono::milliseconds kPause{700};

struct FindFilter
{
    const char *name;
    const char *text;
};

// clang-format off
constexpr std::array<FindFilter, int(FindPanel::Filter::Count)> kFilters = {{
    {"changedFromDefault", QT_TRANSLATE_NOOP("orv::FindPanel", "Changed from the defa&ult")},
    {"changedSinceSaving", QT_TRANSLATE_NOOP("orv::FindPanel", "Changed since the last &save")},
    {"hasFinding", QT_TRANSLATE_NOOP("orv::FindPanel", "Has a fi&nding")},
    {"differs", QT_TRANSLATE_NOOP("orv::FindPanel", "Differs from the se&cond document")},
}};
// clang-format on

} // namespace

FindList::FindList(QWidget *parent)
    : WorkList(parent)
{
    setRootIsDecorated(false);
    new EvenRows(this);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        // With these a click selects.
        if (!(QGuiApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier)))
            Q_EMIT chosen(index);
    });
}

void FindList::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().isValid()) {
        event->accept();
        Q_EMIT chosen(currentIndex().siblingAtColumn(0));
        return;
    }
    WorkList::keyPressEvent(event);
}

FindPanel::FindPanel(SettingColumns *columns, QWidget *parent)
    : LeavablePanel(parent)
    , m_columns(columns)
    , m_hits(new FindHits(columns, this))
    , m_field(new QLineEdit)
    , m_count(new QLabel)
    , m_empty(new QLabel)
    , m_list(new FindList)
{
    buildField();
    m_count->setObjectName(QStringLiteral("findCount"));
    m_count->setTextFormat(Qt::PlainText);
    m_empty->setObjectName(QStringLiteral("findEmpty"));
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    columns->setParent(this);
    buildList();
    layOut();
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &FindPanel::announce);
    connect(columns, &SettingColumns::changed, this, &FindPanel::follow);
}

FindPanel::~FindPanel() = default;

void FindPanel::buildField()
{
    m_field->setObjectName(QStringLiteral("findField"));
    m_field->setAccessibleName(tr("Find settings"));
    m_field->setPlaceholderText(tr("Caption, name, explanation or value of a setting"));
    m_field->setToolTip(tr("Words that stand in a setting's caption, name, explanation or value"));
    m_field->setClearButtonEnabled(true);
    m_field->setMaxLength(kMostTyped);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &FindPanel::search);
    connect(m_field, &QLineEdit::returnPressed, this, [this] {
        const QModelIndex current = m_list->currentIndex();
        choose((current.isValid() ? current : m_hits->index(0, 0)).siblingAtColumn(0));
    });
}

void FindPanel::buildList()
{
    m_list->setObjectName(QStringLiteral("findHits"));
    m_list->setAccessibleName(tr("Settings that were found"));
    m_list->setModel(m_hits);
    new ColumnShares(m_list, {32, 24, 18, 18, 28, 24});
    connect(m_list, &FindList::chosen, this, &FindPanel::choose);
    addSetBack(tr("Set Back to the &Default"), QStringLiteral("setBackToDefault"),
               QKeySequence(Qt::CTRL | Qt::Key_Backspace), SettingColumns::Former::Default);
    addSetBack(tr("Set Back to What Was &Saved"), QStringLiteral("setBackToSaved"),
               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace), SettingColumns::Former::Saved);
}

void FindPanel::addSetBack(const QString &text, const QString &name, const QKeySequence &shortcut,
                           SettingColumns::Former former)
{
    auto *action = new QAction(Icons::icon(IconName::Undo), text, m_list);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(action);
    connect(action, &QAction::triggered, this, [this, former] {
        const QModelIndex current = m_list->currentIndex();
        if (current.isValid())
            Q_EMIT setBackWanted(m_hits->placeOf(current.row()), former);
    });
}

void FindPanel::setRefusal(const QString &reason)
{
    const QList<QAction *> actions = m_list->actions();
    for (QAction *action : actions) {
        action->setEnabled(reason.isEmpty());
        // Without a tool tip of its own an action has its text there.
        action->setToolTip(reason);
    }
}

QWidget *FindPanel::buildFilters()
{
    auto *filters = new QWidget;
    auto *grid = new QGridLayout(filters);
    grid->setContentsMargins({});
    for (int i = 0; i < int(Filter::Count); ++i) {
        auto *box = new QCheckBox(tr(kFilters.at(size_t(i)).text));
        box->setObjectName(QLatin1String(kFilters.at(size_t(i)).name));
        connect(box, &QCheckBox::toggled, this, &FindPanel::search);
        grid->addWidget(box, i / 2, i % 2);
        m_filters.at(size_t(i)) = box;
    }
    grid->setColumnStretch(2, 1);
    setFilter(Filter::HasFinding, {},
              tr("Check the workflow first: then settings with a finding are known."));
    setFilter(Filter::Differs, {}, tr("Open a second document to compare with first."));
    return filters;
}

void FindPanel::layOut()
{
    auto *top = new QHBoxLayout;
    top->addWidget(m_field, 1);
    top->addWidget(m_count);
    auto *pages = new QWidget;
    m_pages = new QStackedLayout(pages);
    m_pages->addWidget(m_empty);
    m_pages->addWidget(m_list);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(buildFilters());
    layout->addWidget(pages, 1);
    setFocusProxy(m_field);
}

void FindPanel::setFilter(Filter filter, const std::function<bool(const SettingPlace &)> &passes,
                          const QString &reason)
{
    QCheckBox *box = m_filters.at(size_t(filter));
    m_further.at(size_t(filter) - size_t(Filter::HasFinding)) = passes;
    const bool wasChecked = box->isChecked();
    box->setEnabled(bool(passes));
    box->setToolTip(passes ? QString() : reason);
    box->setAccessibleDescription(passes ? QString() : reason);
    if (!passes)
        box->setChecked(false);
    else if (wasChecked)
        searchAgain();
}

bool FindPanel::isChecked(Filter filter) const
{
    return m_filters.at(size_t(filter))->isChecked();
}

SettingQuery FindPanel::query() const
{
    SettingQuery query{m_field->text(), isChecked(Filter::FromDefault), isChecked(Filter::SinceSaving), {}};
    if (isChecked(Filter::HasFinding))
        query.further[0] = m_further[0];
    if (isChecked(Filter::Differs))
        query.further[1] = m_further[1];
    return query;
}

void FindPanel::begin()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void FindPanel::search()
{
    showHits();
    if (m_hits->rowCount() > 0)
        m_list->setCurrentIndex(m_hits->index(0, 0));
}

void FindPanel::searchAgain()
{
    const int current = m_list->currentIndex().row();
    const std::optional<SettingPlace> place =
        current >= 0 ? std::optional(m_hits->placeOf(current)) : std::nullopt;
    search();
    for (int row = 0; place && row < m_hits->rowCount(); ++row) {
        if (m_hits->placeOf(row) == *place)
            m_list->setCurrentIndex(m_hits->index(row, 0));
    }
}

void FindPanel::showHits()
{
    m_isStale = false;
    m_columns->refresh();
    const SettingQuery wanted = query();
    m_hits->show(wanted, m_columns->index().hits(wanted));
    m_empty->setText(emptyText(wanted));
    m_pages->setCurrentIndex(m_hits->rowCount() > 0 ? 1 : 0);
    tellCount();
}

/// Rows stay until the next search, but when columns came or went: places are others then.
void FindPanel::follow()
{
    if (!isVisible()) {
        m_isStale = true;
        return;
    }
    switch (m_columns->refresh()) {
    case SettingColumns::Change::None:
        break;
    case SettingColumns::Change::Values:
        m_hits->tellValues();
        break;
    case SettingColumns::Change::Places:
        searchAgain();
        break;
    }
}

void FindPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale)
        searchAgain();
}

QString FindPanel::emptyText(const SettingQuery &query) const
{
    if (m_columns->index().count() == 0)
        return tr("There are no settings here. Open a workflow, or add a tab with a column of settings.");
    if (query.text.trimmed().isEmpty() && !query.hasFilter()) {
        return tr("Type a word that stands in a setting's caption, name, explanation or value, or choose a "
                  "filter.");
    }
    if (query.text.trimmed().isEmpty())
        return tr("No setting passes this filter.");
    return query.hasFilter()
               ? tr("No setting has all of these words and passes the filter. Type fewer letters, or take "
                    "the filter away.")
               : tr("No setting has all of these words. Type fewer letters or another word.");
}

void FindPanel::tellCount()
{
    const SettingQuery wanted = query();
    const bool isAsked = !wanted.text.trimmed().isEmpty() || wanted.hasFilter();
    const int count = m_hits->rowCount();
    m_count->setText(!isAsked     ? QString()
                     : count == 1 ? tr("1 setting")
                                  : tr("%1 settings").arg(locale().toString(count)));
    m_pause.start();
}

void FindPanel::announce()
{
    if (!isVisible() || m_count->text().isEmpty())
        return;
    m_count->setAccessibleName(tr("%1 found").arg(m_count->text()));
    QAccessibleEvent event(m_count, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FindPanel::choose(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const SettingPlace place = m_hits->placeOf(index.row());
    const bool goesBack = (index.column() == FindHits::Default || index.column() == FindHits::Saved) &&
                          !index.data().toString().isEmpty();
    if (!goesBack)
        Q_EMIT chosen(place);
    else
        Q_EMIT setBackWanted(place, index.column() == FindHits::Default ? SettingColumns::Former::Default
                                                                        : SettingColumns::Former::Saved);
}

/// The field keeps the focus while one walks through the hits.
bool FindPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool isWalk =
        key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    if (!isWalk || m_hits->rowCount() == 0)
        return QWidget::eventFilter(watched, event);
    QCoreApplication::sendEvent(m_list, event);
    return true;
}

} // namespace orv
