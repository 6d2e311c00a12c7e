#include "UpgradeView.h"

#include "UpgradeModel.h"
#include "panels/WorkList.h"
#include "panels/WrappedTexts.h"

#include <orv/widgets/Icons.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

namespace orv {

namespace {

/// More of them are folded, as nobody reads them at once.
constexpr qsizetype kMostUnfolded = 200;

} // namespace

UpgradeView::UpgradeView(QWidget *parent)
    : LeavablePanel(parent)
    , m_model(new UpgradeModel(this))
    , m_title(new QLabel)
    , m_steps(new WorkList)
{
    m_title->setObjectName(QStringLiteral("upgradeTitle"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_steps->setObjectName(QStringLiteral("upgradeSteps"));
    m_steps->setAccessibleName(tr("Steps of the upgrade"));
    m_steps->setWhatsThis(
        tr("What each step of the upgrade changed: the place, and the value before and after"));
    m_steps->setModel(m_model);
    m_steps->setAlternatingRowColors(true);
    new WrappedTexts(m_steps);
    m_steps->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_steps->header()->setStretchLastSection(false);
    m_steps->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_steps->header()->setSectionResizeMode(UpgradeModel::Change, QHeaderView::ResizeToContents);
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
    m_steps->setVisible(hasList());
    setFocusProxy(hasList() ? static_cast<QWidget *>(m_steps) : m_title);
    updateGeometry();
}

qsizetype UpgradeView::changeCount() const
{
    return m_model->changeCount();
}

/// The words alone need no room for a list.
bool UpgradeView::hasList() const
{
    return m_model->rowCount() > 0;
}

QSize UpgradeView::sizeHint() const
{
    if (!hasList())
        return LeavablePanel::sizeHint();
    constexpr int kLetters = 116;
    constexpr int kLines = 18;
    return {fontMetrics().averageCharWidth() * kLetters, fontMetrics().lineSpacing() * kLines};
}

QSize UpgradeView::minimumSizeHint() const
{
    if (!hasList())
        return LeavablePanel::minimumSizeHint();
    constexpr int kLetters = 40;
    constexpr int kLines = 6;
    return {fontMetrics().averageCharWidth() * kLetters, fontMetrics().lineSpacing() * kLines};
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
