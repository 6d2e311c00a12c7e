#pragma once

#include <orv/core/Error.h>

#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

namespace orv::msreader::internal {

/// Walks over the elements of an XML text of any size, of which it holds a few hundred kilobytes at a time.
/// Nesting, and the length of a text between two tags, are bounded.
class XmlScanner
{
public:
    static constexpr int kMostLevels = 64;
    /// Twice the largest spectrum that instruments write, as text.
    static constexpr qint64 kMostBytesWithoutTag = qint64(256) << 20;

    /// \a device is open for reading and outlives the scanner. \a opening is read before it: the start of the
    /// element inside which the device stands.
    explicit XmlScanner(QIODevice *device, const QByteArray &opening = {});

    /// Goes on to the next start or end of an element; false at the end of the text or after a failure.
    [[nodiscard]] bool next();

    [[nodiscard]] bool isStart() const { return m_xml.isStartElement(); }
    /// Of the element that starts or ends here, as it stands.
    [[nodiscard]] QStringView name() const { return m_xml.name(); }
    /// How many elements are open here, the one that starts or ends included.
    [[nodiscard]] int level() const { return m_level; }
    /// Of the element that starts here; empty for one that it doesn't have.
    [[nodiscard]] QString attribute(const char *name) const;
    [[nodiscard]] bool hasAttribute(const char *name) const;
    /// The text behind the element that starts here, up to the next tag, to which this goes on.
    [[nodiscard]] QString textBeforeNextTag();

    /// Success at the end of a whole text. InvalidContent with line, column and remedy otherwise, and
    /// CannotOpenFile if the device fails.
    [[nodiscard]] const Error &failure() const { return m_failure; }
    /// Ends the walk: \a reason is told with the place.
    void fail(const QString &reason, ErrorCode code = ErrorCode::InvalidContent);

private:
    [[nodiscard]] bool feed();

    QIODevice *m_device;
    QXmlStreamReader m_xml;
    int m_level = 0;
    bool m_leaves = false; ///< the next step leaves the element that ends here
    qint64 m_bytesSinceTag = 0;
    QString m_text;
    bool m_keepsText = false;
    Error m_failure;
};

} // namespace orv::msreader::internal
