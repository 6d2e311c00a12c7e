#include "XmlScanner.h"

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

constexpr qint64 kXmlChunkBytes = 1 << 18;

struct XmlScannerTr
{
    Q_DECLARE_TR_FUNCTIONS(XmlScanner)
};

} // namespace

XmlScanner::XmlScanner(QIODevice *device, const QByteArray &opening)
    : m_device(device)
{
    m_xml.addData(opening);
    m_xml.setNamespaceProcessing(false);
}

bool XmlScanner::next()
{
    if (m_leaves)
        --m_level;
    m_leaves = false;
    while (!m_failure.hasError()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement) {
            m_bytesSinceTag = 0;
            m_leaves = token == QXmlStreamReader::EndElement;
            if (token == QXmlStreamReader::StartElement && ++m_level > kMostLevels)
                fail(XmlScannerTr::tr("Elements are nested too deeply."));
            return !m_failure.hasError();
        }
        if (token == QXmlStreamReader::Characters && m_keepsText)
            m_text += m_xml.text();
        if (token == QXmlStreamReader::EndDocument)
            return false;
        if (token == QXmlStreamReader::Invalid && !feed())
            return false;
    }
    return false;
}

bool XmlScanner::feed()
{
    if (m_xml.error() != QXmlStreamReader::PrematureEndOfDocumentError) {
        fail(m_xml.errorString());
        return false;
    }
    const QByteArray chunk = m_device->read(kXmlChunkBytes);
    m_bytesSinceTag += chunk.size();
    if (chunk.isEmpty() && !m_device->atEnd())
        fail(m_device->errorString(), ErrorCode::CannotOpenFile);
    else if (chunk.isEmpty())
        fail(XmlScannerTr::tr("The text ends inside the document."));
    else if (m_bytesSinceTag > kMostBytesWithoutTag)
        fail(XmlScannerTr::tr("A text is too long."));
    else
        m_xml.addData(chunk);
    return !m_failure.hasError();
}

QString XmlScanner::attribute(const char *name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

bool XmlScanner::hasAttribute(const char *name) const
{
    return m_xml.attributes().hasAttribute(QLatin1String(name));
}

QString XmlScanner::textBeforeNextTag()
{
    m_text.clear();
    m_keepsText = true;
    const bool isThere = next();
    m_keepsText = false;
    return isThere ? m_text : QString();
}

void XmlScanner::fail(const QString &reason, ErrorCode code)
{
    m_failure = Error(code, XmlScannerTr::tr("The XML text can't be read."))
                    .addDetail(XmlScannerTr::tr("Line %1, column %2: %3")
                                   .arg(m_xml.lineNumber())
                                   .arg(m_xml.columnNumber())
                                   .arg(reason))
                    .addDetail(XmlScannerTr::tr(
                        "Copy or convert the file again; it may have been cut short on the way."));
}

} // namespace orv::msreader::internal
