#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/TraceItem.h>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVersionNumber>

namespace orv {

/// What an acquired sample (.tolq) says of itself, see docs/formats.md. A plain value.
class ORV_WORKFLOW_EXPORT TolqMetadata
{
public:
    /// From the trace as an older reader named it to the same trace as today's reader names it.
    using TraceMappings = QHash<TraceInfo, TraceInfo>;

    /// InvalidContent for text that is no JSON object, lacks version or sample, has a member of the wrong
    /// type, or maps one trace twice; details name the place.
    [[nodiscard]] static Result<TolqMetadata> fromJson(const QByteArray &json);

    /// Of the form of the metadata.
    [[nodiscard]] const QVersionNumber &version() const { return m_version; }
    /// Name of the file or folder with the spectra; a name alone, without a path.
    [[nodiscard]] const QString &sample() const { return m_sample; }
    /// Trace mappings exist from the form 1.4.0 on; older metadata can't have any.
    [[nodiscard]] bool hasTraceMappings() const;
    [[nodiscard]] const TraceMappings &traceMappings() const { return m_traceMappings; }

private:
    QVersionNumber m_version;
    QString m_sample;
    TraceMappings m_traceMappings;
};

/// The name of the form that has trace mappings.
using TolqMetadata_v1_4_0 = TolqMetadata;

} // namespace orv
