#include "orv/propertyeditor/content/RawCell.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>

#include <QJsonDocument>

namespace orv {

QByteArray RawCell::toJson() const
{
    return QJsonDocument(m_object).toJson(QJsonDocument::Compact);
}

QVariant RawCell::toVariant() const
{
    static const bool converterRegistered =
        QMetaType::registerConverter<RawCell, QByteArray>(&RawCell::toJson);
    Q_UNUSED(converterRegistered)
    return QVariant::fromValue(*this);
}

Result<QJsonObject> RawCell::parse(const QVariant &cell)
{
    if (cell.metaType() == QMetaType::fromType<RawCell>())
        return cell.value<RawCell>().object();
    return JsonUtils::objectFromJson(cell.toByteArray());
}

QJsonObject RawCell::objectOf(const QVariant &cell)
{
    if (cell.metaType() == QMetaType::fromType<RawCell>())
        return cell.value<RawCell>().object();
    if (!cell.isValid() || cell.isNull())
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(cell.toByteArray(), &error);
    if (error.error != QJsonParseError::NoError)
        qCWarning(propertyEditorLog) << "JSON parse error" << error.errorString() << "string:" << cell;
    return document.object();
}

} // namespace orv
