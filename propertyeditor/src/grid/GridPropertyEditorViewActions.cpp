#include "GridPropertyEditorView_p.h"
#include "ValueTransfer.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/core/FileUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>
#include <orv/propertyeditor/engine/PreviewPreset.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertySelectionDialog.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/widgets/DefaultWidgetCreator.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMetaEnum>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::PropertyConversionFlag;

namespace {

constexpr FileSystemSettings::DirectoryLocation kPresetLocation = {QLatin1String("CellPresetLocation"),
                                                                   QLatin1String("FSS_CellPresetLocation")};
constexpr FileSystemSettings::DirectoryLocation kParametersLocation = {
    QLatin1String("ParametersLocation"), QLatin1String("FSS_ParametersLocation")};

struct GridViewTr
{
    Q_DECLARE_TR_FUNCTIONS(GridPropertyEditorView)
};

void warn(QWidget *parent, const QString &title, const QString &text)
{
    ORVStyle::warning(parent, title, text, QMessageBox::Ok);
}

QString htmlList(const QStringList &texts)
{
    QString items;
    for (const QString &text : texts)
        items += QStringLiteral("<li>%1</li>").arg(text.toHtmlEscaped());
    return QStringLiteral("<ul>%1</ul>").arg(items);
}

/// A property as a file without it reads: its default in the file's units.
KProperty *newProperty(PropertyId id, int priority)
{
    KProperty *property =
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority(priority));
    if (!property)
        return nullptr;
    const QJsonValue stored = PropertySetCreator::storedDefault(id);
    if (!stored.isUndefined())
        PropertySetCreator::setValueFromJson(id, stored, property);
    return property;
}

} // namespace

GridPropertyEditorView::Private::Private(GridPropertyEditorView *view, KPropertyCustomEditorView *tree)
    : editorView(tree)
    , q(view)
{
    makeButtons();
    if (ORVStyle::isEnabled())
        layOutWithToolBar();
    else
        layOutWithRow();
    showButtons(false);
}

GridPropertyEditorView::Private::~Private()
{
    delete set;
}

void GridPropertyEditorView::Private::makeButtons()
{
    struct Row
    {
        QPushButton *Private::*button;
        IconName drawing;
        const char *icon;
        const char *themeIcon;
        const char *toolTip;
        void (Private::*clicked)();
    };
    static const Row rows[] = {
        {&Private::openButton, IconName::Open, ":/icons/file_open", "document-open",
         QT_TRANSLATE_NOOP("GridPropertyEditorView::Private", "Open a preset file"), &Private::openClicked},
        {&Private::saveButton, IconName::Save, ":/icons/save", "document-export",
         QT_TRANSLATE_NOOP("GridPropertyEditorView::Private", "Save preset to file"), &Private::saveClicked},
        {&Private::addButton, IconName::Add, ":/icons/add", "list-add-user",
         QT_TRANSLATE_NOOP("GridPropertyEditorView::Private", "Add new property"), &Private::addNewProperty},
        {&Private::removeButton, IconName::Remove, ":/icons/delete", "list-remove-user",
         QT_TRANSLATE_NOOP("GridPropertyEditorView::Private", "Remove property"), &Private::removeProperty},
        {&Private::modifyButton, IconName::Edit, ":/icons/modify", "document-edit",
         QT_TRANSLATE_NOOP("GridPropertyEditorView::Private", "Modify property"), &Private::modifyProperty},
    };
    for (const Row &row : rows) {
        auto *button = new QPushButton(q);
        button->setFlat(true);
        button->setIcon(
            Icons::hostIcon(row.drawing, row.icon, ORVStyle::isEnabled() ? row.themeIcon : nullptr));
        button->setToolTip(tr(row.toolTip));
        button->setAccessibleName(tr(row.toolTip));
        connect(button, &QPushButton::clicked, q, [this, clicked = row.clicked] { (this->*clicked)(); });
        this->*row.button = button;
    }
}

QList<QPushButton *> GridPropertyEditorView::Private::buttons() const
{
    return {openButton, saveButton, addButton, removeButton, modifyButton};
}

void GridPropertyEditorView::Private::layOutWithToolBar()
{
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_toolBar = new QToolBar(q);
    for (QPushButton *button : buttons())
        m_toolBarActions.append(m_toolBar->addWidget(button));
    layout->addWidget(m_toolBar);
    layout->addWidget(editorView, 1);
}

void GridPropertyEditorView::Private::layOutWithRow()
{
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(editorView, 1);
    auto *row = new QHBoxLayout;
    for (QPushButton *button : buttons())
        row->addWidget(button);
    row->addStretch();
    layout->addLayout(row);
}

void GridPropertyEditorView::Private::showButtons(bool isShown)
{
    // A tool bar decides itself which of its widgets show, and an empty one would still take a line.
    if (m_toolBar)
        m_toolBar->setVisible(isShown);
    for (QAction *action : std::as_const(m_toolBarActions))
        action->setVisible(isShown);
    for (QPushButton *button : buttons())
        button->setVisible(isShown);
}

KProperty *GridPropertyEditorView::Private::currentProperty() const
{
    const QModelIndex index = editorView->currentIndex();
    KProperty *property = KPropertyUtils::propertyForIndex(index);
    // A row below a property shows a part of it.
    KProperty *whole = property ? KPropertyUtils::propertyForIndex(index.parent()) : nullptr;
    return whole ? whole : property;
}

QList<QByteArray> GridPropertyEditorView::Private::namesOfSet() const
{
    QList<QByteArray> names;
    for (KPropertySetIterator property(*set); *property; ++property)
        names.append((*property)->name());
    return names;
}

void GridPropertyEditorView::Private::prepare(KProperty *property) const
{
    if (property->option("priority").toInt() == int(PropertySetCreator::Priority::Low) &&
        propertiesViewMode == PropertiesViewMode::Basic)
        property->setVisible(false);
    if (property->type() == PropertiesTraits::ResourceReferenceType)
        property->setOption(kbaseUrl, baseUrl);
}

void GridPropertyEditorView::Private::openClicked()
{
    const QPointer<GridPropertyEditorView> self(q);
    const QString path = ORVFileDialog::getOpenFileName(q, GridViewTr::tr("Open a preset file"), {},
                                                        {MirelFileTypes::PTCELL}, kPresetLocation);
    if (path.isEmpty() || !self)
        return;
    const QString title = GridViewTr::tr("Loading file");
    const Result<QByteArray> bytes = FileUtils::readFile(path);
    if (bytes.hasError()) {
        warn(q, title,
             (bytes.error().code() == ErrorCode::CannotOpenFile
                  ? GridViewTr::tr("Could not open preset file \"%1\".")
                  : GridViewTr::tr("Could not read preset file \"%1\"."))
                 .arg(path));
        return;
    }
    if (bytes->isEmpty()) {
        warn(q, title, GridViewTr::tr("The file \"%1\" is empty.").arg(path));
        return;
    }
    const Error error = q->setPropertiesFromSerializedJson(*bytes);
    if (!self)
        return;
    if (error.hasError())
        qCWarning(propertyEditorLog).noquote()
            << "Can't open the preset" << path << ":" << error.errorMessage();
    q->setBaseUrlForRelativeUrls(baseUrl);
    if (!error.hasError())
        Q_EMIT q->contentEdited();
}

void GridPropertyEditorView::Private::saveClicked()
{
    const QPointer<GridPropertyEditorView> self(q);
    const QString path = ORVFileDialog::getSaveFileName(q, GridViewTr::tr("Save preset to file"), {},
                                                        {MirelFileTypes::PTCELL}, kPresetLocation);
    if (path.isEmpty() || !self)
        return;
    const QString title = GridViewTr::tr("Saving file");
    QByteArray bytes;
    if (set)
        WflwMetaData::setPresetMetaData(set);
    // The stamp is told like any change.
    if (!self)
        return;
    if (!set || !PropertySetCreator::propertySetToJson(*set, &bytes, PropertyConversionFlag::KeepPaths)) {
        warn(q, title, GridViewTr::tr("Can't convert content to json."));
        return;
    }
    QString errorText;
    if (FileUtils::writeToFile(path, bytes, &errorText) != QFileDevice::NoError) {
        qCWarning(propertyEditorLog).noquote()
            << "Can't write property set to file" << path << ":" << errorText;
        warn(q, title, GridViewTr::tr("Cannot save to file \"%1\": %2").arg(path, errorText));
    }
}

void GridPropertyEditorView::Private::addNewProperty()
{
    if (!set) {
        qCWarning(propertyEditorLog) << "Set is empty";
        return;
    }
    const QPointer<GridPropertyEditorView> self(q);
    ModalDialog dialog(new PropertySelectionDialog(0, documentType, q));
    dialog->enableProperties(namesOfSet(), false);
    dialog->setGroups(KPropertySetUtils::groupCaptions(*set));
    if (!dialog.exec() || !self || !set)
        return;
    KProperty *property = newProperty(dialog->propertyId(), dialog->priority());
    if (!property || set->contains(property->name())) {
        delete property;
        ORVStyle::critical(q, {}, GridViewTr::tr("Failed to add a new property."), QMessageBox::Ok);
        return;
    }
    prepare(property);
    const QByteArray name = property->name();
    KPropertySetUtils::insertInKPropertySet(dialog->group(), property, set, -1);
    rebuild(name);
}

void GridPropertyEditorView::Private::modifyProperty()
{
    if (!set) {
        qCWarning(propertyEditorLog) << "Set is empty";
        return;
    }
    const KProperty *current = currentProperty();
    if (!current)
        return;
    const QPointer<GridPropertyEditorView> self(q);
    const QByteArray name = current->name();
    ModalDialog dialog(new PropertySelectionDialog(1, documentType, q));
    QList<QByteArray> others = namesOfSet();
    others.removeAll(name);
    dialog->enableProperties(others, false);
    dialog->setGroups(KPropertySetUtils::groupCaptions(*set));
    dialog->setGroup(set->groupCaption(set->groupNameForProperty(name)));
    dialog->setPropertyId(PropertiesNames::findPropertyForName(QString::fromUtf8(name)));
    dialog->setPriority(current->option("priority", int(PropertySetCreator::Priority::Unset)).toInt());
    if (!dialog.exec() || !self || !set || !set->contains(name))
        return;
    auto property = std::make_unique<KProperty>();
    QStringList errors;
    if (!PropertySetCreator::modifyKProperty(dialog->propertyId(),
                                             PropertySetCreator::Priority(dialog->priority()), property.get(),
                                             &errors)) {
        ORVStyle::critical(
            q, {},
            DisplayString::html(GridViewTr::tr("Failed to modify the property:<br>%1").arg(htmlList(errors))),
            QMessageBox::Ok);
        return;
    }
    replaceProperty(&set->property(name), property.release(), dialog->group());
}

void GridPropertyEditorView::Private::replaceProperty(KProperty *old, KProperty *property,
                                                      const QString &group)
{
    const QPointer<GridPropertyEditorView> self(q);
    std::unique_ptr<KProperty> next(property);
    prepare(property);
    if (takesValueOf(*old, *property))
        property->setValue(old->value());
    const QByteArray name = property->name();
    const QString oldName = QString::fromUtf8(old->name());
    const int place = KPropertySetUtils::propertyIndex(oldName, group, *set);
    set->removeProperty(old);
    // Who hears of a removal may close the view, or give it another set.
    if (!self || !set)
        return;
    KPropertySetUtils::insertInKPropertySet(group, next.release(), set, place);
    rebuild(name);
}

void GridPropertyEditorView::Private::removeProperty()
{
    KProperty *property = set ? currentProperty() : nullptr;
    if (!property)
        return;
    const QPointer<GridPropertyEditorView> self(q);
    set->removeProperty(property);
    if (self && set)
        rebuild();
}

QString GridPropertyEditorView::getParametersFile(const QString &title, FileType type, QWidget *parent)
{
    return DefaultWidgetCreator::fileAccessor()->getOpenFileName(parent, title, {}, {type},
                                                                 kParametersLocation);
}

bool GridPropertyEditorView::Private::hasSetFor(QWidget *parent) const
{
    if (set)
        return true;
    warn(parent, GridViewTr::tr("Loading xenoset"), GridViewTr::tr("View does not contain property set"));
    return false;
}

void GridPropertyEditorView::Private::loadKarvonParameters(QWidget *parent)
{
    const QPointer<GridPropertyEditorView> self(q);
    const QString path =
        q->getParametersFile(GridViewTr::tr("Open xenoset"), MirelFileTypes::XENOSET, parent);
    if (path.isEmpty() || !self)
        return;
    const std::unique_ptr<KPropertySet> loaded(KarvonPresetCreator::propertySetFromXenoset(path));
    if (!loaded) {
        warn(parent, GridViewTr::tr("Loading xenoset"),
             GridViewTr::tr("Can't create KPropertySet from xenoset: %1").arg(path));
        return;
    }
    if (!hasSetFor(parent))
        return;
    for (KPropertySetIterator property(*loaded); *property && self && set; ++property)
        set->changePropertyIfExists((*property)->name(), (*property)->value());
}

void GridPropertyEditorView::Private::loadPreviewParameters(QWidget *parent)
{
    const QPointer<GridPropertyEditorView> self(q);
    const QString path = q->getParametersFile(GridViewTr::tr("Open preview"), FileTypes::PRV, parent);
    if (path.isEmpty() || !self)
        return;
    Result<PreviewPreset::Content> content = PreviewPreset::Content::fromPreviewPresetFile(path);
    if (content.hasError()) {
        static_cast<void>(content.ecatch());
        warn(parent, GridViewTr::tr("Loading preview preset"), GridViewTr::tr("Unable to load file"));
        return;
    }
    if (!hasSetFor(parent))
        return;
    const auto values = PreviewPreset::MirelProperties::fromPreviewPreset(*content).toPropertiesMap();
    const QMetaEnum ids = QMetaEnum::fromType<PropertyId>();
    for (auto value = values.cbegin(); value != values.cend() && self && set; ++value)
        set->changePropertyIfExists(ids.valueToKey(int(value.key())), value.value());
}

} // namespace orv
