#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QJsonObject>

#include <optional>

namespace orv {

/// The content of a samples cell together with its JSON object, which is taken apart when the samples are
/// first asked for: most documents are loaded and written without anybody asking.
///
/// To be used by one thread at a time, reading included.
class ORV_WORKFLOW_EXPORT StoredSamples
{
public:
    /// No samples.
    StoredSamples() = default;
    explicit StoredSamples(SamplesAndTracesContent content);

    /// Fails and warns exactly as SamplesAndTracesContent::fromJson does, and at once.
    [[nodiscard]] static Result<StoredSamples> fromJson(const QJsonObject &json);

    /// Stays valid until the object is assigned to or destroyed.
    [[nodiscard]] const SamplesAndTracesContent &content() const;
    /// What content().references() answers. Samples that nobody has asked for aren't taken apart for it.
    [[nodiscard]] QList<ResourceReferenceSPtr> references() const;
    /// The content, of which this object keeps nothing: it can be changed without being copied.
    [[nodiscard]] SamplesAndTracesContent take();
    /// Whether it is what was read, unchanged.
    [[nodiscard]] bool isAsRead() const { return m_json.has_value(); }
    /// What content().toJson() answers.
    [[nodiscard]] QJsonObject toJson() const;

private:
    // Neither is changed once it is there; at least one is there, but for the empty object.
    std::optional<QJsonObject> m_json;
    mutable std::optional<SamplesAndTracesContent> m_content;
};

} // namespace orv
