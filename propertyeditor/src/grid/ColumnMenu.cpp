#include "ColumnMenu.h"

#include <KPropertySet.h>
#include <orv/widgets/Icons.h>

#include <QCoreApplication>

namespace orv {

namespace {

constexpr char kLogicalIndex[] = "logicalIndex";

struct ColumnMenuTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyGridWidget)
};

} // namespace

ColumnMenu::ColumnMenu(QWidget *parent)
    : QMenu(parent)
{
    m_fold = addCommand(ColumnMenuTr::tr("Expand all"), {}, &ColumnMenu::foldRequested);
    m_fold->setVisible(false);
    addSeparator();
    addCommand(ColumnMenuTr::tr("Remove"), Icons::hostIcon(IconName::Remove, ":/icons/delete", "edit-delete"),
               &ColumnMenu::removeRequested);
    addCommand(ColumnMenuTr::tr("Rename"), Icons::hostIcon(IconName::Edit, ":/icons/modify", "edit-rename"),
               &ColumnMenu::renameRequested);
    addCommand(ColumnMenuTr::tr("Create copy"), {}, &ColumnMenu::copyRequested);
    m_moveLeft =
        addAction(ColumnMenuTr::tr("Move left"), this, [this] { Q_EMIT moveRequested(index(), -1); });
    m_moveRight =
        addAction(ColumnMenuTr::tr("Move right"), this, [this] { Q_EMIT moveRequested(index(), 1); });
    addSeparator();
    const QIcon open = Icons::hostIcon(IconName::Open, nullptr, "document-open");
    m_karvon = addCommand(ColumnMenuTr::tr("Load xenoset ..."), open, &ColumnMenu::karvonRequested);
    m_preview = addCommand(ColumnMenuTr::tr("Load prv..."), open, &ColumnMenu::previewRequested);
}

ColumnMenu::~ColumnMenu() = default;

QAction *ColumnMenu::addCommand(const QString &text, const QIcon &icon, void (ColumnMenu::*requested)(int))
{
    return addAction(icon, text, this, [this, requested] { Q_EMIT(this->*requested)(index()); });
}

int ColumnMenu::index() const
{
    bool ok = false;
    const int index = property(kLogicalIndex).toInt(&ok);
    return ok ? index : -1;
}

void ColumnMenu::setIndex(int index)
{
    setProperty(kLogicalIndex, index);
}

void ColumnMenu::prepare(int count, GridPropertyEditorView *column)
{
    m_moveLeft->setVisible(index() != 0);
    m_moveRight->setVisible(index() != count - 1);
    const KPropertySet *set = column ? column->propertySet() : nullptr;
    if (set && !set->isEmpty()) {
        m_fold->setVisible(set->groupNames().size() >= 2);
        const bool isExpanded = column->isExpanded();
        m_fold->setText(isExpanded ? ColumnMenuTr::tr("Collapse all") : ColumnMenuTr::tr("Expand all"));
        m_fold->setIcon(
            isExpanded ? Icons::hostIcon(IconName::CollapseAll, ":/icons/collapse.png", "view-list-details")
                       : Icons::hostIcon(IconName::ExpandAll, ":/icons/expand.png", "view-list-tree"));
    }
    if (column) {
        const BaseItemType type = column->documentType();
        m_karvon->setVisible(type == BaseItemType::Karvon);
        m_preview->setVisible(type == BaseItemType::Preview || type == BaseItemType::TrenqPreview);
    }
}

} // namespace orv
