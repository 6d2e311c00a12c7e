#include "orv/propertyeditor/editors/ResourceReferenceEditorBase.h"

#include <KProperty.h>
#include <KPropertyEditorView.h>
#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/editors/ResourceReferenceDelegateBase.h>
#include <orv/propertyeditor/editors/SlowQuestion.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>

namespace orv {

using PropertyEditorStringConstants::kbaseUrl;

namespace {

FileExtensionsNameFilter filterOf(const KProperty &property)
{
    QList<FileType> types;
    for (const QString &name : property.option("ext").toString().split(u';', Qt::SkipEmptyParts)) {
        const FileType byName = FileTypes::fromName(name.trimmed());
        types.append(byName == FileType::Invalid ? FileTypes::typeOfPath(QLatin1String("x.") + name.trimmed())
                                                 : byName);
    }
    return FileExtensionsNameFilter(types);
}

/// A menu over the line takes the focus for a moment, and the text is still being typed.
bool endsTyping(const QEvent &event)
{
    if (event.type() == QEvent::FocusOut)
        return static_cast<const QFocusEvent &>(event).reason() != Qt::PopupFocusReason;
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

class ResourceReferenceEditorBase::Private
{
public:
    Private(const KProperty &property, QWidget *owner)
        : propertyName(property.name())
        , fileMode(property.option("fileMode").toString().toLower())
        , confirmOverwrite(property.option("confirmOverwrites", false).toBool())
        , filter(filterOf(property))
        , baseUrl(property.option(kbaseUrl).toUrl())
        , lineEdit(new QLineEdit(owner))
    {}

    const QByteArray propertyName;
    QVariant value;
    const QString fileMode;
    const bool confirmOverwrite;
    const FileExtensionsNameFilter filter;
    const QUrl baseUrl;
    QLineEdit *const lineEdit;
    QString lastText;
    bool isTaking = false;
};

ResourceReferenceEditorBase::ResourceReferenceEditorBase(const KProperty &property, QWidget *parent)
    : KPropertyGenericSelectionEditor(parent)
    , d(std::make_unique<Private>(property, this))
{
    d->lineEdit->setFrame(false);
    d->lineEdit->setClearButtonEnabled(true);
    setMainWidget(d->lineEdit);
    d->lineEdit->installEventFilter(this);
}

ResourceReferenceEditorBase::~ResourceReferenceEditorBase() = default;

ResourceReferenceSPtr ResourceReferenceEditorBase::value() const
{
    return d->value.metaType() == QMetaType::fromType<ResourceReferenceSPtr>()
               ? d->value.value<ResourceReferenceSPtr>()
               : ResourceReferenceSPtr();
}

void ResourceReferenceEditorBase::setValue(const ResourceReferenceSPtr &value)
{
    show(QVariant::fromValue(value));
}

QVariant ResourceReferenceEditorBase::storedValue() const
{
    return d->value;
}

void ResourceReferenceEditorBase::setStoredValue(const QVariant &value)
{
    show(value);
}

QString ResourceReferenceEditorBase::fileMode() const
{
    return d->fileMode;
}

bool ResourceReferenceEditorBase::confirmOverwrite() const
{
    return d->confirmOverwrite;
}

FileExtensionsNameFilter ResourceReferenceEditorBase::filter() const
{
    return d->filter;
}

QUrl ResourceReferenceEditorBase::baseUrl() const
{
    return d->baseUrl;
}

QLineEdit *ResourceReferenceEditorBase::lineEdit() const
{
    return d->lineEdit;
}

void ResourceReferenceEditorBase::show(const QVariant &value)
{
    d->value = value;
    d->lineEdit->setText(ResourceReferenceDelegateBase::displayText(value, d->baseUrl));
    // A line holds only so many characters, and what it cut off nobody typed.
    d->lastText = d->lineEdit->text();
}

bool ResourceReferenceEditorBase::eventFilter(QObject *object, QEvent *event)
{
    if (object == d->lineEdit && endsTyping(*event) && !d->isTaking) {
        const QPointer<ResourceReferenceEditorBase> self(this);
        takeText();
        if (!self)
            return true;
    }
    return KPropertyGenericSelectionEditor::eventFilter(object, event);
}

void ResourceReferenceEditorBase::takeText()
{
    const QString text = d->lineEdit->text();
    if (text == d->lastText)
        return;
    // Who is asked about the text may open boxes or run for long, and the editor may be gone then.
    const QPointer<ResourceReferenceEditorBase> self(this);
    d->isTaking = true;
    const bool isTaken = text.isEmpty() || verifyEnteredText(text);
    if (!self)
        return;
    d->isTaking = false;
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (!isTaken || reference.hasError()) {
        d->lineEdit->setText(d->lastText);
        return;
    }
    d->value = QVariant::fromValue(*reference);
    d->lastText = text;
    Q_EMIT commitData(this);
}

bool ResourceReferenceEditorBase::settleText()
{
    const QPointer<ResourceReferenceEditorBase> self(this);
    if (!d->isTaking)
        takeText();
    return self && !isHidden();
}

void ResourceReferenceEditorBase::take(const ResourceReferenceSPtr &reference)
{
    if (!reference)
        return;
    setValue(reference);
    Q_EMIT commitData(this);
}

void ResourceReferenceEditorBase::refuse(const QString &reason)
{
    refuse(d->lineEdit->text(), reason);
}

void ResourceReferenceEditorBase::refuse(const QString &text, const QString &reason)
{
    if (KPropertyEditorView *view = KPropertyUtils::viewForEditor(this))
        view->setRemark(
            this,
            tr("\"%1\" was not taken: %2").arg(ResourceReferenceUtils::withoutCredentials(text), reason));
}

bool ResourceReferenceEditorBase::isThere(const Question &question, const QString &reason)
{
    const QPointer<KPropertyEditorView> view = KPropertyUtils::viewForEditor(this);
    const QString text = d->lineEdit->text();
    const auto late = [view, reason, text, name = d->propertyName, baseUrl = d->baseUrl](bool isThere) {
        const KPropertySet *set = view ? view->propertySet() : nullptr;
        if (isThere || !set || !set->contains(name))
            return;
        const KProperty &property = set->property(name);
        const Result<ResourceReferenceSPtr> typed = ResourceReference::fromString(text);
        if (typed && ResourceReferenceDelegateBase::displayText(property.value(), baseUrl) ==
                         ResourceReferenceDelegateBase::displayText(QVariant::fromValue(*typed), baseUrl))
            view->setRemark(property, tr("\"%1\" was taken before the disk answered: %2").arg(text, reason));
    };
    const bool isThereSoon = SlowQuestion::ask(question, view ? view : parent(), late).value_or(true);
    if (!isThereSoon)
        refuse(reason);
    return isThereSoon;
}

ResourceReferenceSPtr ResourceReferenceEditorBase::resolvedFromText(const QString &text)
{
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (reference.hasError()) {
        refuse(reference.error().errorMessage());
        return {};
    }
    return ResourceReferenceUtils::resolved(*reference, d->baseUrl);
}

} // namespace orv
