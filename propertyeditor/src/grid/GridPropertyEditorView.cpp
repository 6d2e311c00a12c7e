#include "orv/propertyeditor/grid/GridPropertyEditorView.h"

#include "GridPropertyEditorView_p.h"
#include "orv/propertyeditor/grid/TreePlace.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/core/FileUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>

#include <QScopedValueRollback>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

bool isAdvanced(const KProperty &property)
{
    return property.option("priority", int(PropertySetCreator::Priority::Unset)).toInt() ==
           int(PropertySetCreator::Priority::Low);
}

bool isGlycanDatabase(const KProperty &property)
{
    static const QByteArray names[] = {
        PropertiesNames::internalNameForType(PropertyId::KarvonGlycanText).toUtf8(),
        PropertiesNames::internalNameForType(PropertyId::InSilicoGlycans).toUtf8(),
    };
    return property.type() == PropertiesTraits::ObjectType &&
           (property.name() == names[0] || property.name() == names[1]);
}

} // namespace

GridPropertyEditorView::GridPropertyEditorView(QWidget *parent)
    : GridPropertyEditorView(new KPropertyCustomEditorView, parent)
{}

GridPropertyEditorView::GridPropertyEditorView(KPropertyCustomEditorView *view, QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>(this, view))
{}

GridPropertyEditorView::~GridPropertyEditorView() = default;

KPropertySet *GridPropertyEditorView::propertySet() const
{
    return d->set;
}

KPropertyCustomEditorView *GridPropertyEditorView::editorView() const
{
    return d->editorView;
}

Error GridPropertyEditorView::setPropertiesFromSerializedJson(const QByteArray &json)
{
    Result<KPropertySet *> set = PropertySetCreator::jsonToPropertySet(json, d->documentType);
    if (set.hasError())
        return set.ecatch();
    // The tree shows what is visible when it gets the set.
    d->updateVisibility(**set);
    changeSet(*set, true);
    return Error::NoError;
}

void GridPropertyEditorView::changeSet(KPropertySet *set, bool deleteOld)
{
    const QPointer<KPropertySet> old = d->set;
    const QPointer<GridPropertyEditorView> self(this);
    d->set = set;
    // An editor that is open takes over what was typed, and whoever hears of it may close the view.
    d->editorView->changeSet(set, KPropertyEditorView::SetOption::None);
    if (set != old) {
        if (self)
            d->listenTo(set, old);
        if (deleteOld)
            delete old;
    }
}

void GridPropertyEditorView::setEditorMode(EditorMode mode)
{
    d->editorMode = mode;
    d->showButtons(mode == EditorMode::Designer);
}

GridPropertyEditorView::EditorMode GridPropertyEditorView::editorMode() const
{
    return d->editorMode;
}

void GridPropertyEditorView::setPropertiesViewMode(PropertiesViewMode mode)
{
    d->propertiesViewMode = mode;
    if (d->set)
        d->updateVisibility(*d->set);
    const TreePlace place(*d->editorView);
    const QPointer<GridPropertyEditorView> self(this);
    changeSet(d->set, false);
    if (self)
        place.restore(d->editorView);
}

GridPropertyEditorView::PropertiesViewMode GridPropertyEditorView::propertiesViewMode() const
{
    return d->propertiesViewMode;
}

void GridPropertyEditorView::setDocumentType(BaseItemType type)
{
    d->documentType = type;
}

BaseItemType GridPropertyEditorView::documentType() const
{
    return d->documentType;
}

void GridPropertyEditorView::setBaseUrlForRelativeUrls(const QUrl &url)
{
    if (!d->set)
        return;
    qCDebug(propertyEditorLog) << "Setting base URL" << url;
    d->baseUrl = url;
    const QScopedValueRollback quiet(d->isQuiet, true);
    for (KPropertySetIterator property(*d->set); *property; ++property) {
        if ((*property)->type() == PropertiesTraits::ResourceReferenceType)
            (*property)->setOption(kbaseUrl, url);
        else if (isGlycanDatabase(**property))
            PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(*property, url);
    }
}

void GridPropertyEditorView::collapseAll()
{
    d->editorView->collapseAll();
}

void GridPropertyEditorView::expandAll()
{
    d->editorView->expandAll();
}

bool GridPropertyEditorView::isExpanded() const
{
    const QAbstractItemModel *model = d->editorView->model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        if (model->hasChildren(index) && d->editorView->isExpanded(index))
            return true;
    }
    return false;
}

GridPropertyEditorView::Folds GridPropertyEditorView::folds() const
{
    return TreePlace::folds(*d->editorView);
}

void GridPropertyEditorView::setFolds(const Folds &folds)
{
    TreePlace::setFolds(d->editorView, folds);
}

bool GridPropertyEditorView::goTo(const QByteArray &name)
{
    if (!d->set || !d->set->contains(name))
        return false;
    const QPointer<GridPropertyEditorView> self(this);
    if (!d->set->property(name).isVisible() && isAdvanced(d->set->property(name)))
        setPropertiesViewMode(PropertiesViewMode::Advanced);
    return self && TreePlace::goTo(d->editorView, name);
}

void GridPropertyEditorView::loadKarvonParameters(QWidget *parent)
{
    d->loadKarvonParameters(parent);
}

void GridPropertyEditorView::loadPreviewParameters(QWidget *parent)
{
    d->loadPreviewParameters(parent);
}

bool GridPropertyEditorView::validate(QStringList *) const
{
    return true;
}

void GridPropertyEditorView::Private::listenTo(KPropertySet *next, KPropertySet *old)
{
    if (old)
        disconnect(old, &KPropertySet::propertyChanged, q, nullptr);
    if (!next)
        return;
    const QPointer<GridPropertyEditorView> self(q);
    Q_EMIT q->propertySetChanged(*next);
    if (!self || set != next)
        return;
    connect(next, &KPropertySet::propertyChanged, q, &GridPropertyEditorView::propertyChanged);
    connect(next, &KPropertySet::propertyChanged, q, [this] {
        if (!isQuiet)
            tellEdited();
    });
}

void GridPropertyEditorView::Private::tellEdited()
{
    // Editors live in the viewport until the application is idle. They tell in the midst of a key or of
    // losing the focus, when the column must not go; whoever hears of an edit may close it.
    const bool hasEditor =
        !editorView->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).isEmpty();
    if (!hasEditor) {
        Q_EMIT q->contentEdited();
        return;
    }
    if (std::exchange(isTelling, true))
        return;
    QMetaObject::invokeMethod(
        q,
        [this] {
            isTelling = false;
            Q_EMIT q->contentEdited();
        },
        Qt::QueuedConnection);
}

void GridPropertyEditorView::Private::updateVisibility(KPropertySet &properties) const
{
    const bool isShown = propertiesViewMode == PropertiesViewMode::Advanced;
    for (KPropertySetIterator property(properties); *property; ++property) {
        if (isAdvanced(**property) && (*property)->isVisible() != isShown)
            (*property)->setVisible(isShown);
    }
}

void GridPropertyEditorView::Private::rebuild(const QByteArray &current)
{
    const TreePlace place(*editorView);
    const QPointer<GridPropertyEditorView> self(q);
    editorView->changeSet(set, KPropertyEditorView::SetOption::None);
    if (!self)
        return;
    place.restore(editorView, current);
    Q_EMIT q->contentEdited();
}

} // namespace orv
