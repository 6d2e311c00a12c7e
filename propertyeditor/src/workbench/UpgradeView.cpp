#include "UpgradeView.h"

#include "UpgradeModel.h"

#include <orv/widgets/Icons.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace orv {

namespace {

/// More of them are folded, as nobody reads them at once.
constexpr qsizetype kMostUnfolded = 200;

} // namespace

UpgradeView::UpgradeView(QWidget *parent)
    : LeavablePanel(parent)
    , m_model(new UpgradeModel(this))
    , m_title(new QLabel)
    , m_steps(new QTreeView)
{
    m_title->setObjectName(QStringLiteral("upgradeTitle"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_steps->setObjectName(QStringLiteral("upgradeSteps"));
    m_steps->setAccessibleName(tr("Steps of the upgrade"));
    m_steps->setModel(m_model);
    m_steps->setUniformRowHeights(true);
    m_steps->setAlternatingRowColors(true);
    m_steps->setTextElideMode(Qt::ElideMiddle);
    m_steps->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_steps->header()->setStretchLastSection(true);
    const int letter = m_steps->fontMetrics().averageCharWidth();
    constexpr std::array<int, UpgradeModel::ColumnCount> kLetters = {50, 11, 28, 28};
    for (int column = 0; column < UpgradeModel::ColumnCount; ++column)
        m_steps->setColumnWidth(column, letter * kLetters.at(size_t(column)));
    auto *copying = new QAction(Icons::icon(IconName::Copy), tr("&Copy"), m_steps);
    copying->setObjectName(QStringLiteral("copyUpgrade"));
    copying->setShortcuts(QKeySequence::Copy);
    copying->setShortcutContext(Qt::WidgetShortcut);
    m_steps->addAction(copying);
    m_steps->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(copying, &QAction::triggered, this, &UpgradeView::copy);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_steps, 1);
    setFocusProxy(m_steps);
}

UpgradeView::~UpgradeView() = default;

void UpgradeView::setUpgrade(const DocumentUpgrade &upgrade)
{
    m_model->setUpgrade(upgrade);
    for (int row = 0; row < m_model->rowCount(); ++row)
        m_steps->setFirstColumnSpanned(row, {}, true);
    if (changeCount() <= kMostUnfolded)
        m_steps->expandAll();
    m_steps->setVisible(m_model->rowCount() > 0);
}

qsizetype UpgradeView::changeCount() const
{
    return m_model->changeCount();
}

void UpgradeView::setTitle(const QString &text)
{
    m_title->setText(text);
    m_title->setAccessibleName(text);
}

void UpgradeView::copy()
{
    const QModelIndexList rows = m_steps->selectionModel()->selectedRows();
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setText(m_model->toText(rows));
}

} // namespace orv
