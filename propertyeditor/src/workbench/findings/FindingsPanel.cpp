#include "FindingsPanel.h"

#include "panels/ColumnShares.h"
#include "panels/WrappedTexts.h"

#include <orv/widgets/Icons.h>

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace orv {

using PropertyEditor::LocatedFinding;

namespace {

constexpr qsizetype kMostWrapped = 200;

bool areAlike(const LocatedFinding &first, const LocatedFinding &second)
{
    return first.pointer == second.pointer && first.rule == second.rule && first.message == second.message;
}

} // namespace

FindingsPanel::FindingsPanel(QWidget *parent)
    : LeavablePanel(parent)
    , m_model(new FindingsModel(this))
    , m_list(new FindList)
    , m_summary(new QLabel)
{
    m_summary->setObjectName(QStringLiteral("findingsSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_list->setObjectName(QStringLiteral("findings"));
    m_list->setAccessibleName(tr("Findings"));
    m_list->setWhatsThis(tr(
        "What keeps an analysis from running as it should, where it is, and what to do. Enter goes there."));
    m_list->setModel(m_model);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_even = m_list->itemDelegate();
    m_wrapped = new WrappedTexts(m_list);
    new ColumnShares(m_list, {0, 64, 40, 40, 18});
    auto *copying = new QAction(Icons::icon(IconName::Copy), tr("&Copy"), m_list);
    copying->setObjectName(QStringLiteral("copyFindings"));
    copying->setShortcuts(QKeySequence::Copy);
    copying->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(copying);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    setFocusProxy(m_list);
    connect(copying, &QAction::triggered, this, &FindingsPanel::copy);
    connect(m_list, &FindList::chosen, this, [this](const QModelIndex &index) {
        m_visited = index.row();
        Q_EMIT chosen(index.row());
    });
}

FindingsPanel::~FindingsPanel() = default;

void FindingsPanel::show(const QList<LocatedFinding> &findings)
{
    const int current = m_list->currentIndex().row();
    const std::optional<LocatedFinding> before =
        current >= 0 ? std::optional(m_model->findings().at(current)) : std::nullopt;
    setWrapped(findings.size() <= kMostWrapped);
    m_model->show(findings);
    const auto again = std::ranges::find_if(
        findings, [&before](const LocatedFinding &each) { return before && areAlike(each, *before); });
    const bool isThere = again != findings.cend();
    if (!isThere)
        m_visited = -1;
    if (!findings.isEmpty()) {
        const int row = isThere ? int(again - findings.cbegin()) : 0;
        m_visited = m_visited < 0 ? -1 : row;
        m_list->setCurrentIndex(m_model->index(row, 0));
    }
}

/// A few findings are read whole; of many, each has a line, as all would have to be measured.
void FindingsPanel::setWrapped(bool isWrapped)
{
    m_list->setItemDelegate(isWrapped ? m_wrapped : m_even);
    m_list->setUniformRowHeights(!isWrapped);
    m_list->setWordWrap(isWrapped);
    m_list->setTextElideMode(isWrapped ? Qt::ElideNone : Qt::ElideRight);
}

void FindingsPanel::setSummary(const QString &text)
{
    m_summary->setText(text);
    m_summary->setAccessibleName(text);
}

void FindingsPanel::announce()
{
    QAccessibleEvent event(m_summary, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

int FindingsPanel::step(int step)
{
    const int count = m_model->rowCount();
    if (count == 0)
        return -1;
    const int current = std::max(m_list->currentIndex().row(), 0);
    m_visited = m_visited < 0 && step > 0 ? current : (current + step + count) % count;
    m_list->setCurrentIndex(m_model->index(m_visited, 0));
    return m_visited;
}

void FindingsPanel::copy()
{
    QList<int> rows;
    const QModelIndexList selected = m_list->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    std::ranges::sort(rows);
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setText(m_model->toText(rows));
}

} // namespace orv
