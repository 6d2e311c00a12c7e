#pragma once

#include <QJsonObject>
#include <QString>

#include <span>

namespace orv {

/// Something that a person gives the workflow itself, beside its tabs.
struct OwnProperty
{
    const char *name; ///< unique, of its caption
    QString (*read)(const QJsonObject &metadata);
    /// Gives \a metadata what \a from has.
    void (*take)(QJsonObject *metadata, const QJsonObject &from);
};

/// Name, description, icon and type of a workflow, which saved documents are compared without. Any thread.
namespace OwnProperties {

[[nodiscard]] std::span<const OwnProperty> all();
[[nodiscard]] QString caption(const OwnProperty &property);

} // namespace OwnProperties

} // namespace orv
