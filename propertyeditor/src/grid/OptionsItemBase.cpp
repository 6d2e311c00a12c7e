#include "orv/propertyeditor/grid/OptionsItemBase.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/IntactOptionsWidget.h>
#include <orv/widgets/OligoOptionsWidget.h>

namespace orv {

namespace {

OptionsWidgetBase *widgetFor(PropertyId id)
{
    if (id == PropertyId::IntactOptions)
        return new IntactOptionsWidget;
    if (id == PropertyId::OligoOptions)
        return new OligoOptionsWidget;
    qCWarning(propertyEditorLog) << "Unsupported property:" << int(id);
    return nullptr;
}

/// The lines of the widget's HTML; the escaped text stands in them.
void appendLines(const QString &html, QStringList *lines)
{
    if (lines)
        lines->append(html.split(u'\n', Qt::SkipEmptyParts));
}

} // namespace

OptionsItemBase::OptionsItemBase(PropertyId id)
    : IGridItem({id})
    , m_id(id)
    , m_widget(widgetFor(id))
{
    if (m_widget)
        QObject::connect(m_widget.get(), &OptionsWidgetBase::optionsChanged, edits(),
                         [this] { tellEdited(); });
}

OptionsItemBase::~OptionsItemBase() = default;

QWidget *OptionsItemBase::widget()
{
    return m_widget.get();
}

bool OptionsItemBase::validate(QStringList *warnings, QStringList *errors, QStringList *,
                               WidgetValidationType) const
{
    if (!m_widget)
        return true;
    QString errorText;
    QString warningText;
    m_widget->validateUiValues(&errorText, &warningText);
    appendLines(warningText, warnings);
    appendLines(errorText, errors);
    return errorText.split(u'\n', Qt::SkipEmptyParts).isEmpty();
}

Error OptionsItemBase::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    m_widget->setToUI(rowNodeForType(m_id));
    return Error::NoError;
}

QJsonObject OptionsItemBase::content() const
{
    if (!m_widget)
        return {};
    QString error;
    QString warning;
    const RowNode table = m_widget->getFromUI(&error, &warning);
    if (!error.isEmpty()) {
        qCCritical(propertyEditorLog).noquote() << error;
        return storedContent();
    }
    if (!warning.isEmpty())
        qCWarning(propertyEditorLog).noquote() << warning;
    return contentWith({{m_id, PropertyEditorJsonUtils::rowNodeToObject(table)}});
}

} // namespace orv
