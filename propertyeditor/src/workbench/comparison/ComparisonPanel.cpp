#include "ComparisonPanel.h"

#include "TakeOverText.h"
#include "panels/ColumnShares.h"
#include "panels/EvenRows.h"

#include <orv/propertyeditor/editors/SlowQuestion.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/Icons.h>

#include <QAccessible>
#include <QAction>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace orv {

namespace {

/// Empty for what can't be compared with.
QString workflowIn(const QMimeData *data)
{
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    const QString path =
        urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
    return WflwUtils::isMirelWorkflow(path) || WflwUtils::isMirelPortableWorkflow(path) ? path : QString();
}

QLabel *plainLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ComparisonView::ComparisonView(QWidget *parent)
    : WorkList(parent)
{
    new EvenRows(this);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!model()->hasChildren(index.siblingAtColumn(0)))
            Q_EMIT chosen(index.siblingAtColumn(0));
    });
}

void ComparisonView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isSpace = event->key() == Qt::Key_Space;
    if (!row.isValid() || (!isEnter && !isSpace)) {
        WorkList::keyPressEvent(event);
        return;
    }
    event->accept();
    if (isEnter) {
        Q_EMIT chosen(row);
        return;
    }
    const bool isChecked = row.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model()->setData(row, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

ComparisonPanel::ComparisonPanel(QAction *compare, QWidget *parent)
    : LeavablePanel(parent)
    , m_model(new ComparisonModel(this))
    , m_tree(new ComparisonView)
    , m_summary(plainLabel(QStringLiteral("comparisonSummary")))
    , m_note(plainLabel(QStringLiteral("comparisonNote")))
    , m_empty(plainLabel(QStringLiteral("comparisonEmpty")))
    , m_checked(plainLabel(QStringLiteral("comparisonChecked")))
    , m_progress(new QProgressBar)
    , m_compare(new QPushButton(Icons::icon(IconName::Open), tr("&Other Workflow...")))
    , m_takeOver(new QPushButton(Icons::icon(IconName::Import), tr("&Take Over")))
{
    setAcceptDrops(true);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setObjectName(QStringLiteral("comparisonProgress"));
    m_progress->setAccessibleName(tr("The workflows are being compared"));
    m_progress->hide();
    m_patience.setSingleShot(true);
    m_patience.setInterval(SlowQuestion::kPatience);
    connect(&m_patience, &QTimer::timeout, m_progress, &QWidget::show);
    m_takeOver->setObjectName(QStringLiteral("takeOver"));
    m_compare->setObjectName(QStringLiteral("otherWorkflow"));
    m_compare->setToolTip(tr("Choose the workflow to compare with"));
    buildTree();
    layOut(compare);
    connect(m_takeOver, &QAbstractButton::clicked, this, &ComparisonPanel::takeOverWanted);
    connect(m_model, &ComparisonModel::checkedChanged, this, &ComparisonPanel::updateButton);
    showNothing();
}

ComparisonPanel::~ComparisonPanel() = default;

void ComparisonPanel::buildTree()
{
    m_tree->setObjectName(QStringLiteral("differences"));
    m_tree->setAccessibleName(tr("Differences"));
    m_tree->setModel(m_model);
    new ColumnShares(m_tree, {52, 36, 36});
    connect(m_tree, &ComparisonView::chosen, this, &ComparisonPanel::chosen);
    const auto remember = [this](const QModelIndex &index, bool isUnfolded) {
        if (!m_isRestoring)
            m_unfolded.insert(m_model->node(index).key, isUnfolded);
    };
    connect(m_tree, &QTreeView::expanded, this,
            [remember](const QModelIndex &index) { remember(index, true); });
    connect(m_tree, &QTreeView::collapsed, this,
            [remember](const QModelIndex &index) { remember(index, false); });
}

void ComparisonPanel::layOut(QAction *compare)
{
    connect(m_compare, &QAbstractButton::clicked, compare, &QAction::trigger);
    auto *pages = new QWidget;
    m_pages = new QStackedLayout(pages);
    m_pages->addWidget(m_empty);
    m_pages->addWidget(m_tree);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_checked, 1);
    bottom->addWidget(m_takeOver);
    bottom->addWidget(m_compare);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_note);
    layout->addWidget(m_progress);
    layout->addWidget(pages, 1);
    layout->addLayout(bottom);
    setTabOrder(m_tree, m_takeOver);
    setTabOrder(m_takeOver, m_compare);
    setFocusProxy(m_tree);
}

void ComparisonPanel::showPage(const QString &summary, const QString &note, const QString &emptyText)
{
    m_summary->setText(summary);
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_empty->setText(emptyText);
    // The window may not be active yet behind the dialog in which the other workflow was chosen.
    const bool hadFocus = window()->focusWidget() == focusProxy();
    setFocusProxy(emptyText.isEmpty() ? static_cast<QWidget *>(m_tree) : m_compare);
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
    m_pages->setCurrentIndex(emptyText.isEmpty() ? 1 : 0);
    updateButton();
}

void ComparisonPanel::showNothing()
{
    m_unfolded.clear();
    m_outcome.clear();
    m_model->show({}, {});
    showPage(tr("Nothing is compared."), {},
             tr("Choose another workflow to see in what it differs from this one, or drop its file here."));
}

void ComparisonPanel::showReading(const QString &name)
{
    m_unfolded.clear();
    m_outcome.clear();
    m_model->show({}, {});
    showPage(tr("Reading %1...").arg(name), {}, tr("What differs will stand here."));
}

void ComparisonPanel::showError(const QString &summary, const QString &text)
{
    m_model->show({}, {});
    showPage(summary, {}, text);
}

void ComparisonPanel::showTree(const ComparisonTree &tree, const QString &otherName, const QString &note)
{
    const QModelIndex current = m_tree->currentIndex();
    const QString currentKey = current.isValid() ? m_model->node(current).key : QString();
    const QModelIndex top = m_tree->indexAt({0, 0});
    const QString topKey =
        top.isValid() && m_tree->verticalScrollBar()->value() > 0 ? m_model->node(top).key : QString();
    if (!std::exchange(m_isOutcomeNew, false))
        m_outcome.clear();
    m_isRestoring = true;
    m_model->show(tree, otherName);
    unfold({});
    m_isRestoring = false;
    const QLocale shown = locale();
    const QString count = shown.toString(tree.count + tree.notShown);
    QString notes = note;
    if (tree.notShown > 0) {
        notes += (notes.isEmpty() ? QString() : QStringLiteral("\n")) +
                 tr("Only the first %1 are shown.").arg(shown.toString(tree.count));
    }
    showPage(tree.count == 0   ? tr("No differences to %1.").arg(otherName)
             : tree.count == 1 ? tr("1 difference to %1").arg(otherName)
                               : tr("%1 differences to %2").arg(count, otherName),
             notes, tree.count == 0 ? tr("No differences") : QString());
    const QModelIndex row = m_model->indexOf(currentKey);
    m_tree->setCurrentIndex(row.isValid() ? row : m_model->index(0, 0));
    if (const QModelIndex first = m_model->indexOf(topKey); first.isValid())
        m_tree->scrollTo(first, QAbstractItemView::PositionAtTop);
}

/// Down to the settings, but for what somebody folded or unfolded.
void ComparisonPanel::unfold(const QModelIndex &above)
{
    for (int row = 0; row < m_model->rowCount(above); ++row) {
        const QModelIndex index = m_model->index(row, 0, above);
        const ComparisonNode &node = m_model->node(index);
        if (node.children.isEmpty())
            continue;
        const bool isUsual = node.kind != ComparisonNode::Kind::Setting;
        m_tree->setExpanded(index, m_unfolded.value(node.key, isUsual));
        unfold(index);
    }
}

void ComparisonPanel::tellOutcome(const QString &text)
{
    m_outcome = text;
    m_isOutcomeNew = true;
    updateButton();
}

void ComparisonPanel::setRefusal(const QString &reason)
{
    m_refusal = reason;
    updateButton();
}

void ComparisonPanel::setBusy(bool isBusy)
{
    if (!isBusy) {
        m_patience.stop();
        m_progress->hide();
    } else if (!m_patience.isActive() && m_progress->isHidden()) {
        m_patience.start();
    }
}

void ComparisonPanel::updateButton()
{
    const qsizetype count = m_model->checkedKeys().size();
    const QString reason = !m_refusal.isEmpty() ? m_refusal
                           : count == 0         ? tr("Check what is to be taken over first.")
                                                : QString();
    if (count > 0)
        m_outcome.clear();
    // A button that goes off would hand the focus to anybody.
    if (!reason.isEmpty() && m_takeOver->hasFocus())
        setFocus(Qt::OtherFocusReason);
    m_takeOver->setEnabled(reason.isEmpty());
    const QString told = TakeOverText::ofChecked(*m_model);
    m_takeOver->setToolTip(
        reason.isEmpty() ? tr("Give this workflow what is checked, as one step that can be undone") : reason);
    m_takeOver->setAccessibleDescription(reason.isEmpty() ? told : reason);
    m_checked->setText(!m_refusal.isEmpty() && m_model->rowCount() > 0 ? m_refusal
                       : count == 0                                    ? m_outcome
                                                                       : told);
}

void ComparisonPanel::announce()
{
    m_summary->setAccessibleName(m_summary->text());
    QAccessibleEvent event(m_summary, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void ComparisonPanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (workflowIn(event->mimeData()).isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void ComparisonPanel::dropEvent(QDropEvent *event)
{
    const QString path = workflowIn(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Whoever hears of it may close the window.
    QMetaObject::invokeMethod(
        this, [this, path] { Q_EMIT fileDropped(path); }, Qt::QueuedConnection);
}

} // namespace orv
