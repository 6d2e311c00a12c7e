#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QSet>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace orv {

/// The settings that experts give as text, beside those of the form:
/// \code
///     CustomSettings settings;
///     const Warnings ignored = settings.setupValues(u"[Intact]\nMode=Denatured"_s,
///                                                   CustomSettings::Format::Sections);
///     settings.value(u"Intact/Mode"_s); // "Denatured"
/// \endcode
/// A plain value.
class ORV_WORKFLOW_EXPORT CustomSettings
{
public:
    /// How a text is laid out. The numbers stand in calls of hosts: never renumber.
    enum class Format
    {
        Flat = 0,     ///< `key=value` alone; a key is taken as it stands
        Sections = 1, ///< `key=value` below headers `[Section]`, whose keys are "Section/key"
    };

    /// Replaces all values by those of \a text. Blanks around keys and values don't count, those inside
    /// double quotes around a value do; nothing else is unquoted or unescaped, so that paths stay as they
    /// are. Empty lines and those that begin with ";" or "#" are comments, letters' case counts, and the last
    /// of two lines with one key wins. Returns a text for each line that is none of these, with its number
    /// counted from 1; such a line has no effect.
    [[nodiscard]] Warnings setupValues(const QString &text, Format format);

    /// \a text without the lines that set one of \a keys, and without the header of a section that had
    /// nothing else but blank lines. All other characters stay as they are.
    [[nodiscard]] static QString withoutSettings(const QString &text, Format format,
                                                 const QSet<QString> &keys);

    /// What a value says of a switch: "true", "false", "1" and "0" in any case of letters; nothing for
    /// others.
    [[nodiscard]] static std::optional<bool> toSwitch(const QString &value);

    /// All values by their keys, each a text.
    [[nodiscard]] QVariantMap values() const { return m_values; }
    [[nodiscard]] bool isEmpty() const { return m_values.isEmpty(); }
    [[nodiscard]] bool contains(const QString &key) const { return m_values.contains(key); }
    [[nodiscard]] QVariant value(const QString &key, const QVariant &defaultValue = {}) const
    {
        return m_values.value(key, defaultValue);
    }

    bool operator==(const CustomSettings &) const = default;

private:
    QVariantMap m_values;
};

} // namespace orv
