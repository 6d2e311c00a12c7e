#pragma once

#include <QByteArrayView>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv::Internal {

/// A text between its quotes, as it stands in the JSON.
struct RawText
{
    const char *begin = nullptr;
    qsizetype size = 0;
    bool isAscii = true;
    bool isEscaped = false;

    [[nodiscard]] QByteArrayView bytes() const { return {begin, size}; }
};

/// Walks over JSON text token by token, without making a document of it.
class JsonCursor
{
public:
    explicit JsonCursor(QByteArrayView json);

    [[nodiscard]] bool atEnd() const { return m_at == m_end; }
    [[nodiscard]] const char *position() const { return m_at; }
    void skipBlanks();
    /// The next byte behind blanks, which stays; 0 at the end.
    [[nodiscard]] char peek();
    /// Steps over \a token and the blanks before it, if it is there.
    bool take(char token);
    /// The same for a word such as "null".
    bool takeWord(QByteArrayView word);

    /// The text at whose opening quote the cursor stands; nothing when it doesn't end.
    [[nodiscard]] std::optional<RawText> takeText();
    /// The number at which the cursor stands, as integerCell and numberCell have it. False when it is
    /// none, or one that no double holds.
    [[nodiscard]] bool takeNumber(QVariant *number);

private:
    bool takeDigits(quint64 *number, int *digits);
    [[nodiscard]] bool takeExponent();

    const char *m_at;
    const char *m_end;
};

/// Undoes escapes and UTF-8. Nothing when either is malformed.
[[nodiscard]] std::optional<QString> textOf(const RawText &raw);

} // namespace orv::Internal
