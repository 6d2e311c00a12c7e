#include "orv/propertyeditor/content/LoadContext.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

namespace orv::PropertyEditor {

LoadContext LoadContext::member(const QString &key) const
{
    if (!m_observer)
        return {};
    return LoadContext(m_observer, m_pointer + QLatin1Char('/') + jsonPointerToken(key));
}

LoadContext LoadContext::element(qsizetype index) const
{
    if (!m_observer)
        return {};
    return LoadContext(m_observer,
                       m_pointer + QLatin1Char('/') + QString::number(m_offset + index * m_stride));
}

LoadContext LoadContext::column(qsizetype column, qsizetype columnCount) const
{
    LoadContext context = member(PropertyEditorStringConstants::CELLS_KEY);
    context.m_offset = column;
    context.m_stride = columnCount;
    return context;
}

void LoadContext::lost(const QString &key, const QString &what, const QString &why) const
{
    if (m_observer)
        m_observer->lost({m_pointer + QLatin1Char('/') + jsonPointerToken(key), what, why});
}

} // namespace orv::PropertyEditor
