#include "orv/propertyeditor/editors/OrvGenericEditor.h"

#include "GenericEditorText.h"
#include "OrvGenericEditorPrivate.h"

#include <KProperty.h>
#include <KPropertyEditorItemEvent.h>
#include <KPropertyEditorView.h>
#include <KPropertyUtils.h>
#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/propertyeditor/editors/ValueUnitInput.h>
#include <orv/propertyeditor/editors/ValueUnitValidator.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVStyle.h>

#include <QAction>
#include <QFocusEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>

namespace orv {

namespace {

/// A letter that a line refuses vanishes, and what is left may be another value: "9.5 kDa" would become "9.5
/// Da". A number without a unit keeps the one that stands there.
class TypedValueValidator : public ValueUnitValidator
{
public:
    TypedValueValidator(double min, double max, const OrvGenericEditor *editor)
        : ValueUnitValidator(min, max)
        , m_editor(editor)
    {}

    void fixup(QString &input) const override
    {
        const QStringList parts = ValueUnitInput::partsOf(input);
        const QString unit =
            GenericEditorText::objectOf(m_editor->value()).value(QLatin1String("unit")).toString();
        if (parts.size() == 1 && !unit.isEmpty() && ValueUnitInput::numberOf(parts.constFirst()))
            input = parts.constFirst() + u' ' + unit;
    }

    [[nodiscard]] State validate(QString &input, int &position) const override
    {
        return std::max(Intermediate, ValueUnitValidator::validate(input, position));
    }

    /// Whether no more typing behind it makes the text a value.
    [[nodiscard]] bool isHopeless(QString text) const
    {
        int ignored = 0;
        return ValueUnitValidator::validate(text, ignored) == Invalid;
    }

private:
    const OrvGenericEditor *m_editor; ///< owns this
};

QByteArray nameOf(const KProperty *property)
{
    return property ? property->name() : QByteArray();
}

/// The editor is for reading; the dialog shows all of a text that nobody would read here.
QString readable(const QString &text)
{
    constexpr qsizetype kMostLetters = 20'000;
    return text.size() <= kMostLetters ? text : text.left(kMostLetters) + u'\u2026';
}

} // namespace

OrvGenericEditorPrivate::OrvGenericEditorPrivate(PropertySetCreator::Editor type,
                                                 const QByteArray &propertyName, QWidget *owner)
    : editorType(type)
    , object(OrvGenericEditorObjectManager::instance()->getGenericEditorObject(type))
    , m_owner(owner)
    , m_propertyName(propertyName)
{
    if (KPropertyEditorView *view = KPropertyUtils::viewForEditor(owner)) {
        connect(view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
                &OrvGenericEditorPrivate::handleItemEvent);
    }
}

OrvGenericEditorPrivate::~OrvGenericEditorPrivate() = default;

QString OrvGenericEditorPrivate::text() const
{
    return object ? object->toString(GenericEditorText::objectOf(value)).trimmed() : QString();
}

PropertyId OrvGenericEditorPrivate::propertyId() const
{
    return PropertiesNames::findPropertyForName(QString::fromUtf8(m_propertyName));
}

void OrvGenericEditorPrivate::handleItemEvent(KPropertyEditorItemEvent *event)
{
    if (!event->property() || event->property()->name() != m_propertyName ||
        event->name() != QLatin1String("edit"))
        return;
    // An editor that was closed lives on for a moment beside the one that asks.
    if (!m_owner || m_owner->isHidden())
        return;
    if (!object) {
        ORVStyle::warning(m_owner, {}, OrvGenericEditor::tr("Unknown editor type: #%1").arg(int(editorType)),
                          QMessageBox::Ok);
        return;
    }
    // While the dialog is open, or when a typed text is taken, the editor may be closed and the property may
    // go: then only the event stands. Its sender looks for the property.
    const QSharedPointer<IGenericEditorObject> kept = object;
    const KProperty property(*event->property());
    const QPointer<OrvGenericEditorPrivate> self(this);
    Q_EMIT aboutToEdit();
    if (!self || !m_owner || m_owner->isHidden())
        return;
    const QJsonObject before = GenericEditorText::objectOf(m_owner->property("value"));
    QJsonObject edited = before;
    // The same object in other bytes would be a change that nobody made.
    if (kept->handleEditObject(&edited, property, m_owner) && edited != before)
        event->setResult(GenericEditorText::valueOf(edited));
}

OrvGenericEditor::OrvGenericEditor(PropertySetCreator::Editor editorType, KProperty *property,
                                   QWidget *parent)
    : KPropertyStringEditor(parent)
    , d(std::make_unique<OrvGenericEditorPrivate>(editorType, nameOf(property), this))
{
    if (editorType != PropertySetCreator::Editor::ValueUnit || !property)
        return;
    constexpr double kMost = std::numeric_limits<double>::max();
    auto *const typed = new TypedValueValidator(property->option("min", -kMost).toDouble(),
                                                property->option("max", kMost).toDouble(), this);
    typed->setParent(this);
    setValidator(typed);
    connect(this, &QLineEdit::editingFinished, this, &OrvGenericEditor::commitText);
    connect(this, &QLineEdit::textChanged, this, &OrvGenericEditor::markRefused);
    connect(d.get(), &OrvGenericEditorPrivate::aboutToEdit, this, &OrvGenericEditor::settleText);
}

OrvGenericEditor::~OrvGenericEditor() = default;

QVariant OrvGenericEditor::value() const
{
    return d->value;
}

void OrvGenericEditor::setValue(const QVariant &value)
{
    d->value = value;
    const QSignalBlocker blocker(this);
    setText(d->text());
}

QString OrvGenericEditor::expectation() const
{
    const auto *typed = static_cast<const ValueUnitValidator *>(validator());
    return typed->expectation(PropertyText::knownUnits(d->propertyId()));
}

void OrvGenericEditor::markRefused()
{
    const auto *typed = static_cast<const TypedValueValidator *>(validator());
    const bool isRefused = typed->isHopeless(text()) && text() != d->text();
    if (!m_refused && !isRefused)
        return;
    if (!m_refused)
        m_refused = addAction(Icons::icon(IconName::Warning), QLineEdit::TrailingPosition);
    const QString reason =
        isRefused ? tr("This is no value that can be taken: type %1.").arg(expectation()) : QString();
    m_refused->setVisible(isRefused);
    m_refused->setToolTip(PlainTip::of(reason));
    setAccessibleDescription(reason);
}

void OrvGenericEditor::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        putBackRefused();
    KPropertyStringEditor::focusOutEvent(event);
}

void OrvGenericEditor::putBackRefused()
{
    if (QString whole = text(); validator() && !hasAcceptableInput()) {
        validator()->fixup(whole);
        setText(whole);
    }
    if (hasAcceptableInput() || text() == d->text())
        return;
    if (KPropertyEditorView *view = KPropertyUtils::viewForEditor(this))
        view->setRemark(this, tr("\"%1\" was not taken: type %2.").arg(text(), expectation()));
    setText(d->text());
}

void OrvGenericEditor::settleText()
{
    putBackRefused();
    if (hasAcceptableInput())
        commitText();
}

void OrvGenericEditor::commitText()
{
    // The text shows fewer digits than the value may have: what nobody typed in stays. A text that got its
    // unit counts as unmodified.
    if (!d->object || (!isModified() && text() == d->text()))
        return;
    setModified(false);
    // What the validator took and the object can't read would be no value at all.
    const QJsonObject typed = d->object->fromString(text());
    if (typed.isEmpty()) {
        setText(d->text());
        return;
    }
    if (typed == GenericEditorText::objectOf(d->value))
        return;
    d->value = GenericEditorText::valueOf(typed);
    Q_EMIT commitData(this);
}

OrvGenericMultiLineEditor::OrvGenericMultiLineEditor(PropertySetCreator::Editor editorType,
                                                     KProperty *property, QWidget *parent)
    : KPropertyMultiLineStringEditor(parent)
    , d(std::make_unique<OrvGenericEditorPrivate>(editorType, nameOf(property), this))
{
    setReadOnly(true);
}

OrvGenericMultiLineEditor::~OrvGenericMultiLineEditor() = default;

QVariant OrvGenericMultiLineEditor::value() const
{
    return d->value;
}

void OrvGenericMultiLineEditor::setValue(const QVariant &value)
{
    d->value = value;
    KPropertyMultiLineStringEditor::setValue(readable(d->text()));
}

} // namespace orv
