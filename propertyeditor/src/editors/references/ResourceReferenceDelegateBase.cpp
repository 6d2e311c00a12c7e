#include "orv/propertyeditor/editors/ResourceReferenceDelegateBase.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QDir>
#include <QJsonDocument>

namespace orv {

using PropertyEditorStringConstants::kbaseUrl;

namespace {

QString folderOf(const QUrl &baseUrl)
{
    const QString base = baseUrl.isLocalFile() ? baseUrl.toLocalFile() : QString();
    return base.left(base.lastIndexOf(u'/') + 1);
}

QString referenceText(const ResourceReferenceSPtr &reference, const QUrl &baseUrl)
{
    const QString folder = folderOf(baseUrl);
    const QString path = ResourceHandlerUtils::fullPath(reference);
    const bool isBelow = !folder.isEmpty() && path.size() > folder.size() && path.startsWith(folder);
    return isBelow ? path.mid(folder.size()) : ResourceReferenceUtils::toString(reference);
}

/// Of a value that doesn't belong into a reference.
QString foreignText(const QVariant &value)
{
    // A list of texts converts to a text, but one of several to an empty one.
    const bool isList = value.metaType() == QMetaType::fromType<QStringList>();
    if (!value.isValid() || (!isList && value.canConvert<QString>()))
        return value.toString();
    const QJsonValue json = QJsonValue::fromVariant(value);
    const QJsonDocument document =
        json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return document.isEmpty() ? QString() : QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

} // namespace

ResourceReferenceDelegateBase::~ResourceReferenceDelegateBase() = default;

QString ResourceReferenceDelegateBase::displayText(const QVariant &value, const QUrl &baseUrl)
{
    if (value.metaType() == QMetaType::fromType<ResourceReferenceSPtr>())
        return referenceText(value.value<ResourceReferenceSPtr>(), baseUrl);
    return foreignText(value);
}

QString ResourceReferenceDelegateBase::propertyValueToString(const KProperty *property, const QLocale &) const
{
    return displayText(property->value(), property->option(kbaseUrl).toUrl());
}

QString ResourceReferenceDelegateBase::valueToString(const QVariant &value, const QLocale &) const
{
    return displayText(value, {});
}

void ResourceReferenceDelegateBase::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    QStyleOptionViewItem elided(option);
    elided.textElideMode = Qt::ElideMiddle;
    KPropertyValuePainterInterface::paint(this, painter, elided, index);
}

} // namespace orv
