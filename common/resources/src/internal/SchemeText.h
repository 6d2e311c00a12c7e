#pragma once

#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QLatin1String>
#include <QString>

/// The text forms of references to something on a server. A row per scheme: its word, how the text behind
/// "word:/" is taken apart, and how it is put together.
namespace orv::SchemeText {

struct Row
{
    ResourceReference::Scheme scheme;
    QLatin1String word;
    Result<ResourceReference::Parts> (*read)(const QString &rest);
    QString (*write)(const ResourceReference::Parts &parts);
    QString (*writeReadable)(const ResourceReference::Parts &parts);
    /// The name of a needed part that is missing, of one that can't be written, or nothing.
    QString (*fault)(const ResourceReference::Parts &parts);
};

/// Null for a local one.
[[nodiscard]] const Row *rowOf(ResourceReference::Scheme scheme);
/// The row whose word stands in front of the first colon of \a text, in any case.
[[nodiscard]] const Row *rowOfText(const QString &text);

} // namespace orv::SchemeText
