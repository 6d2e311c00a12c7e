#include "SameSettingPanel.h"

#include "panels/ColumnShares.h"
#include "panels/ShortText.h"
#include "panels/WorkList.h"

#include <orv/core/PlainTip.h>

#include <QAccessible>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace orv {

namespace {

constexpr qsizetype kLongestInHeading = 200;

} // namespace

SameSettingPanel::SameSettingPanel(QWidget *parent)
    : LeavablePanel(parent)
    , m_model(new SameSettingModel(this))
    , m_heading(new QLabel)
    , m_alone(new QLabel(tr("No other column has this setting.")))
    , m_list(new WorkList)
    , m_all(new QCheckBox(tr("&All columns")))
    , m_apply(new QPushButton)
    , m_outcome(new QLabel)
{
    for (QLabel *label : {m_heading, m_alone, m_outcome}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_heading->setObjectName(QStringLiteral("sameSettingHeading"));
    m_alone->setObjectName(QStringLiteral("sameSettingAlone"));
    m_outcome->setObjectName(QStringLiteral("sameSettingOutcome"));
    m_all->setObjectName(QStringLiteral("sameSettingAll"));
    m_all->setToolTip(tr("Check every column that can get the value"));
    m_apply->setObjectName(QStringLiteral("sameSettingApply"));
    m_apply->setAutoDefault(false);
    buildList();
    layOut();
    connect(m_model, &QAbstractItemModel::modelReset, this, &SameSettingPanel::update);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &SameSettingPanel::update);
    connect(m_all, &QCheckBox::clicked, m_model, &SameSettingModel::setAllChecked);
    connect(m_apply, &QPushButton::clicked, this, &SameSettingPanel::applied);
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT chosen(index.row()); });
    update();
}

SameSettingPanel::~SameSettingPanel() = default;

void SameSettingPanel::buildList()
{
    m_list->setObjectName(QStringLiteral("sameSettingColumns"));
    m_list->setAccessibleName(tr("Columns with this setting"));
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTabKeyNavigation(false);
    m_list->installEventFilter(this);
    new ColumnShares(m_list, {44, 24, 40});
    setFocusProxy(m_list);
}

void SameSettingPanel::layOut()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_all);
    buttons->addWidget(m_outcome, 1);
    buttons->addWidget(m_apply);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_alone);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
}

void SameSettingPanel::update()
{
    tellValue();
    m_alone->setVisible(m_model->rowCount() == 1);
    const qsizetype chosen = m_model->chosenRows().size();
    m_apply->setEnabled(chosen > 0);
    m_apply->setText(chosen == 1  ? tr("Ap&ply to 1 Column")
                     : chosen > 1 ? tr("Ap&ply to %1 Columns").arg(locale().toString(chosen))
                                  : tr("Ap&ply"));
    m_apply->setToolTip(chosen > 0 ? QString() : whyNothingIsApplied());
    int boxes = 0;
    int checked = 0;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QVariant state = m_model->index(row, SameSettingModel::Place).data(Qt::CheckStateRole);
        boxes += int(state.isValid());
        checked += int(state.toInt() == Qt::Checked);
    }
    m_all->setEnabled(boxes > 0);
    m_all->setChecked(boxes > 0 && checked == boxes);
}

QString SameSettingPanel::whyNothingIsApplied() const
{
    if (!m_model->refusal().isEmpty())
        return m_model->refusal();
    if (m_model->rowCount() == 1)
        return m_alone->text();
    return m_model->commonValue() ? tr("All columns with this setting have this value.")
                                  : tr("Check columns that have another value first.");
}

/// The value that all have, else a dash.
void SameSettingPanel::tellValue()
{
    QString text = tr("Choose a setting in a column: here are all columns that have it.");
    QString spoken = text;
    if (m_model->rowCount() > 0) {
        const std::optional<QString> common = m_model->commonValue();
        const QString value = !common             ? QStringLiteral("–")
                              : common->isEmpty() ? tr("(empty)")
                                                  : ShortText::line(*common, kLongestInHeading);
        text = tr("%1: %2").arg(m_model->caption(), value);
        spoken = common ? text : tr("%1: the columns differ").arg(m_model->caption());
    }
    m_heading->setText(text);
    m_heading->setAccessibleName(spoken);
    m_heading->setToolTip(spoken == text ? QString() : PlainTip::of(spoken));
}

void SameSettingPanel::tell(const QString &text)
{
    if (text == m_outcome->text())
        return;
    m_outcome->setText(text);
    m_outcome->setAccessibleName(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent event(m_outcome, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

/// All selected rows become what the current one becomes, whichever of its cells is current.
void SameSettingPanel::toggleSelected()
{
    const QModelIndex current = m_list->currentIndex().siblingAtColumn(SameSettingModel::Place);
    const bool wasChecked = current.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    QModelIndexList rows = m_list->selectionModel()->selectedRows(SameSettingModel::Place);
    if (!rows.contains(current))
        rows = {current};
    for (const QModelIndex &row : std::as_const(rows))
        m_model->setData(row, wasChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool SameSettingPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space &&
        static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier && m_list->currentIndex().isValid()) {
        toggleSelected();
        return true;
    }
    return LeavablePanel::eventFilter(watched, event);
}

void SameSettingPanel::showEvent(QShowEvent *event)
{
    LeavablePanel::showEvent(event);
    Q_EMIT shown();
}

} // namespace orv
