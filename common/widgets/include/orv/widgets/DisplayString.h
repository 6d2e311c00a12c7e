#pragma once

#include <orv/widgets/Export.h>

#include <QString>

namespace orv {

/// A text for a box: plain, or with markup. What comes from files and people is plain, so that a file name
/// can't smuggle in markup; a text that was put together from escaped parts is made by html().
class ORV_PROPERTY_EDITOR_EXPORT DisplayString
{
public:
    DisplayString() = default;
    DisplayString(const QString &plainText) // implicit: boxes take plain texts as they are
        : m_text(plainText)
    {}

    [[nodiscard]] static DisplayString html(const QString &markup);

    [[nodiscard]] bool isHtml() const { return m_isHtml; }
    /// As it was given.
    [[nodiscard]] QString text() const { return m_text; }
    /// What a person reads, without markup.
    [[nodiscard]] QString toPlainText() const;

private:
    QString m_text;
    bool m_isHtml = false;
};

} // namespace orv
