#include "orv/propertyeditor/content/LoadContext.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace orv::PropertyEditor {

namespace {

struct LoadContextTr
{
    Q_DECLARE_TR_FUNCTIONS(LoadContext)
};

/// The value as it stands in a document, cut where it is long.
QString textOf(const QJsonValue &value)
{
    constexpr qsizetype kMostCharacters = 80;
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QString text = QString::fromUtf8(array.mid(1, array.size() - 2));
    return text.size() <= kMostCharacters ? text : text.left(kMostCharacters) + QLatin1String("...");
}

} // namespace

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

void LoadContext::changed(const QString &key, const QString &what, const QJsonValue &stored,
                          const QJsonValue &read, const QString &why) const
{
    if (!m_observer)
        return;
    const QString both = LoadContextTr::tr("it reads as %1 instead of %2").arg(textOf(read), textOf(stored));
    m_observer->lost({m_pointer + QLatin1Char('/') + jsonPointerToken(key), what, why.isEmpty() ? both : why,
                      stored, read});
}

} // namespace orv::PropertyEditor
