#include "orv/core_ms/TolqMetadata.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

namespace orv {

namespace {

struct TolqMetadataTr
{
    Q_DECLARE_TR_FUNCTIONS(TolqMetadata)
};

const QVersionNumber &firstVersionWithMappings()
{
    static const QVersionNumber version(1, 4, 0);
    return version;
}

Error invalid(const QString &reason, const QString &value)
{
    return Error(ErrorCode::InvalidContent, reason).addDetail(TolqMetadataTr::tr("It is \"%1\".").arg(value));
}

Error readVersion(const QJsonObject &json, QVersionNumber *version)
{
    Result<QString> text = JsonUtils::stringValue(json, QStringLiteral("version"));
    if (text.hasError())
        return text.ecatch();
    qsizetype end = 0;
    *version = QVersionNumber::fromString(*text, &end);
    if (version->isNull() || end != text->size())
        return invalid(TolqMetadataTr::tr("The version of the metadata is none."), *text);
    return Error::NoError;
}

/// A name that leads nowhere else, on any system.
bool isPlainName(const QString &name)
{
    const QLatin1String forbidden("/\\:");
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           std::none_of(name.begin(), name.end(), [forbidden](QChar c) {
               return c.unicode() < u' ' || QString(forbidden).contains(c);
           });
}

Result<QString> sampleOf(const QJsonObject &json)
{
    Result<QString> name = JsonUtils::stringValue(json, QStringLiteral("sample"));
    if (name.hasError())
        return name.ecatch();
    if (!isPlainName(*name))
        return invalid(TolqMetadataTr::tr("The name of the sample is no plain name."), *name);
    return *name;
}

Result<TraceInfo> traceOf(const QJsonObject &mapping, const QString &key)
{
    Result<QJsonObject> trace = JsonUtils::objectValue(mapping, key);
    if (trace.hasError())
        return trace.ecatch();
    Result<QString> name = JsonUtils::stringValue(*trace, QStringLiteral("channelName"));
    if (name.hasError())
        return name.ecatch();
    Result<QString> id = JsonUtils::stringValue(*trace, QStringLiteral("channelId"));
    if (id.hasError())
        return id.ecatch();
    return TraceInfo{*name, *id};
}

Error addMapping(const QJsonValue &value, TolqMetadata::TraceMappings *mappings)
{
    Result<TraceInfo> from = traceOf(value.toObject(), QStringLiteral("from"));
    if (from.hasError())
        return from.ecatch();
    Result<TraceInfo> to = traceOf(value.toObject(), QStringLiteral("to"));
    if (to.hasError())
        return to.ecatch();
    if (mappings->contains(*from))
        return invalid(TolqMetadataTr::tr("A trace is mapped twice."), from->channelName);
    mappings->insert(*from, *to);
    return Error::NoError;
}

Result<TolqMetadata::TraceMappings> mappingsOf(const QJsonObject &json)
{
    const QString key = QStringLiteral("traceMappings");
    TolqMetadata::TraceMappings mappings;
    if (!json.contains(key))
        return mappings;
    Result<QJsonArray> array = JsonUtils::arrayValue(json, key);
    if (array.hasError())
        return array.ecatch();
    for (qsizetype i = 0; i < array->size(); ++i) {
        if (Error error = addMapping(array->at(i), &mappings))
            return error.ecatch().addDetail(TolqMetadataTr::tr("Place: /%1/%2").arg(key).arg(i));
    }
    return mappings;
}

} // namespace

Result<TolqMetadata> TolqMetadata::fromJson(const QByteArray &json)
{
    Result<QJsonObject> object = JsonUtils::objectFromJson(json);
    if (object.hasError())
        return object.ecatch();
    TolqMetadata metadata;
    ORV_RETURN_IF_ERROR(readVersion(*object, &metadata.m_version));
    Result<QString> sample = sampleOf(*object);
    if (sample.hasError())
        return sample.ecatch();
    metadata.m_sample = *sample;
    if (!metadata.hasTraceMappings())
        return metadata;
    Result<TraceMappings> mappings = mappingsOf(*object);
    if (mappings.hasError())
        return mappings.ecatch();
    metadata.m_traceMappings = *mappings;
    return metadata;
}

bool TolqMetadata::hasTraceMappings() const
{
    return m_version >= firstVersionWithMappings();
}

} // namespace orv
