#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace orv {

/// The parameter file of a search engine, parsed: lines `key=value` whose values are kept raw, with nothing
/// unescaped. What the file may look like stands in docs/formats.md. A plain value.
class ORV_WORKFLOW_EXPORT XenosetPreset
{
public:
    /// Longest file in bytes. One with a full inclusion list has about a third of that.
    static constexpr qint64 kMaximumSize = qint64(16) * 1024 * 1024;
    /// Most keys that differ; engines know about a hundred.
    static constexpr qsizetype kMaximumKeys = 10'000;

    XenosetPreset() = default;

    /// Takes on the contents of a file. False when it can't be read, with the preset empty; fromFile tells
    /// why.
    bool load(const QString &path);

    /// As FileUtils::readFile and fromText.
    [[nodiscard]] static Result<XenosetPreset> fromFile(const QString &path);
    /// InvalidContent, with the line and a remedy, for what is no UTF-8 text or has too many keys.
    [[nodiscard]] static Result<XenosetPreset> fromText(const QByteArray &text);

    /// The text behind the first "=" of the key's line; empty for a key that isn't there. Of a key that
    /// stands twice the last line counts, which fromText warns of.
    [[nodiscard]] QString attribute(const QString &key) const;
    /// All keys, in the order of their first lines.
    [[nodiscard]] QStringList keys() const { return m_keys; }
    [[nodiscard]] bool contains(const QString &key) const { return m_attributes.contains(key); }

private:
    QStringList m_keys;
    QHash<QString, QString> m_attributes;
};

} // namespace orv
