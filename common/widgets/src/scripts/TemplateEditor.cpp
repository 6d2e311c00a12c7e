#include "orv/widgets/TemplateEditor.h"

#include "ScriptHighlighter.h"

#include <orv/core/FileUtils.h>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringDecoder>
#include <QTextBlock>
#include <QVBoxLayout>

namespace orv {

class TemplateEditor::Private
{
public:
    QString given; ///< as it was set: the edit has other ends of lines
    QPlainTextEdit *edit = nullptr;
    QLabel *place = nullptr;
    QDialogButtonBox *buttons = nullptr;
};

TemplateEditor::TemplateEditor(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Label Script"));
    d->edit = new QPlainTextEdit;
    d->edit->setObjectName(QStringLiteral("script"));
    d->edit->setAccessibleName(tr("Script"));
    d->edit->setToolTip(tr("The script that labels a plot"));
    d->edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    d->edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    d->edit->setTabChangesFocus(true);
    d->edit->setTabStopDistance(4 * QFontMetricsF(d->edit->font()).horizontalAdvance(u' '));
    d->edit->setPlaceholderText(tr("Type a script, or load one from a file."));
    (void)new ScriptHighlighter(d->edit->document(), palette());
    d->place = new QLabel;
    d->place->setObjectName(QStringLiteral("place"));
    d->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(d->edit, 1);
    layout->addWidget(d->place);
    layout->addWidget(d->buttons);
    connect(d->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->edit, &QPlainTextEdit::cursorPositionChanged, this, &TemplateEditor::showPlace);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 28);
    showPlace();
}

TemplateEditor::~TemplateEditor() = default;

QString TemplateEditor::sourceText() const
{
    if (!d->edit->document()->isModified())
        return d->given;
    // The edit's plain text would make blanks of those that don't break.
    QString text = d->edit->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return d->given.contains(QLatin1String("\r\n")) ? text.replace(u'\n', QLatin1String("\r\n")) : text;
}

void TemplateEditor::setSourceText(const QString &text)
{
    d->given = text;
    d->edit->setPlainText(text);
    d->edit->document()->setModified(false);
}

QPushButton *TemplateEditor::addButton(const QString &text)
{
    QPushButton *const button = d->buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    return button;
}

Error TemplateEditor::loadFile(const QString &path)
{
    Result<QByteArray> bytes = FileUtils::readFile(path, kMaximumBytes);
    if (bytes.hasError())
        return bytes.ecatch();
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(*bytes);
    if (decoder.hasError() || text.contains(QChar(u'\0')))
        return {ErrorCode::InvalidContent, tr("The file \"%1\" is no text in UTF-8.").arg(path)};
    QTextCursor cursor(d->edit->document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    d->edit->moveCursor(QTextCursor::Start);
    return Error::NoError;
}

Error TemplateEditor::saveFile(const QString &path) const
{
    QString reason;
    if (FileUtils::writeToFile(path, sourceText().toUtf8(), &reason) == QFileDevice::NoError)
        return Error::NoError;
    return {ErrorCode::CannotOpenFile, tr("Cannot write the file \"%1\": %2").arg(path, reason)};
}

QString TemplateEditor::plainText() const
{
    return windowTitle() + u'\n' + sourceText();
}

void TemplateEditor::showPlace()
{
    const QTextCursor cursor = d->edit->textCursor();
    d->place->setText(tr("Line %1, column %2")
                          .arg(locale().toString(cursor.blockNumber() + 1),
                               locale().toString(cursor.positionInBlock() + 1)));
}

} // namespace orv
