#include "orv/propertyeditor/grid/KPropertyCustomEditorView.h"

#include <KProperty.h>
#include <KPropertyUtils.h>
#include <orv/core/FileTypes.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/editors/OrvGenericDelegate.h>
#include <orv/resources/ResourceReference.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/Icons.h>

#include <QDragEnterEvent>
#include <QIcon>
#include <QMimeData>
#include <QUrl>

namespace orv {

namespace {

bool isReference(const KProperty *property)
{
    return property && property->type() == PropertiesTraits::ResourceReferenceType;
}

/// Whether the options of the reference \a property let it hold \a file.
bool takesFile(const KProperty &property, const QFileInfo &file)
{
    const QStringList types = property.option("ext").toString().split(u';', Qt::SkipEmptyParts);
    if (types.isEmpty())
        return true;
    const QString mode = property.option("fileMode").toString().toLower();
    if (mode == QLatin1String("dirsonly"))
        return file.isDir();
    if (mode != QLatin1String("existingfile"))
        return false;
    return file.isFile() &&
           FileTypes::fileSuffixesFromExtensionTypes(types).contains(file.suffix(), Qt::CaseInsensitive);
}

} // namespace

KPropertyCustomEditorView::KPropertyCustomEditorView(QWidget *parent)
    : KPropertyEditorView(parent)
{
    setHeaderHidden(true);
    setGridLineColor(QColor());
    setAcceptDrops(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setRemarkIcon(RemarkKind::Hint, Icons::icon(IconName::Information));
    setRemarkIcon(RemarkKind::Warning, Icons::icon(IconName::Warning));
    setRemarkIcon(RemarkKind::Error, Icons::icon(IconName::Error));
}

KPropertyCustomEditorView::~KPropertyCustomEditorView() = default;

QString KPropertyCustomEditorView::wholeValueText(const KProperty &property, const QString &shown) const
{
    return property.type() == PropertiesTraits::ObjectType ? OrvGenericDelegate::summary(property) : shown;
}

QItemSelectionModel::SelectionFlags KPropertyCustomEditorView::selectionCommand(const QModelIndex &index,
                                                                                const QEvent *event) const
{
    // Without an event the program goes to the row, and keys that are held, as for undo, mean something else.
    return event ? KPropertyEditorView::selectionCommand(index, event)
                 : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void KPropertyCustomEditorView::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty() || !urls.constFirst().isLocalFile()) {
        event->ignore();
        return;
    }
    m_dragged = QFileInfo(urls.constFirst().toLocalFile());
    event->acceptProposedAction();
}

void KPropertyCustomEditorView::dragMoveEvent(QDragMoveEvent *event)
{
    const KProperty *property = KPropertyUtils::propertyForIndex(indexAt(event->position().toPoint()));
    if (isReference(property) && takesFile(*property, m_dragged))
        event->acceptProposedAction();
    else
        event->ignore();
}

void KPropertyCustomEditorView::dropEvent(QDropEvent *event)
{
    KProperty *property = KPropertyUtils::propertyForIndex(indexAt(event->position().toPoint()));
    if (!property) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    if (!isReference(property))
        return;
    const Result<ResourceReferenceSPtr> reference =
        ResourceReference::fromString(m_dragged.absoluteFilePath());
    // Two references to one file are no equal values, and setting the second would be told as an edit.
    const auto held = property->value().value<ResourceReferenceSPtr>();
    if (reference && *reference &&
        ResourceReferenceUtils::toString(*reference) != ResourceReferenceUtils::toString(held))
        property->setValue(QVariant::fromValue(*reference));
}

} // namespace orv
