#pragma once

#include <QSyntaxHighlighter>

namespace orv {

/// Marks the frame and comments of a script, quietly, and what stands in braces in bold.
class ScriptHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit ScriptHighlighter(QTextDocument *document, const QPalette &palette);

protected:
    void highlightBlock(const QString &text) override;

private:
    QPalette m_palette;
};

} // namespace orv
