#include "orv/widgets/DisplayString.h"

#include <QTextDocumentFragment>

namespace orv {

DisplayString DisplayString::html(const QString &markup)
{
    DisplayString text(markup);
    text.m_isHtml = true;
    return text;
}

QString DisplayString::toPlainText() const
{
    return m_isHtml ? QTextDocumentFragment::fromHtml(m_text).toPlainText() : m_text;
}

} // namespace orv
