#pragma once

#include <orv/core/Error.h>
#include <orv/widgets/Export.h>

#include <QDialog>
#include <QString>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

/// Edits the text of a label script. It changes nothing itself: who shows it takes sourceText() when it is
/// accepted. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TemplateEditor : public QDialog
{
    Q_OBJECT

public:
    /// Larger files are no scripts.
    static constexpr qint64 kMaximumBytes = 1 << 20;

    explicit TemplateEditor(QWidget *parent = nullptr);
    ~TemplateEditor() override;

    /// The text to the letter as it was set or loaded while nothing is edited.
    [[nodiscard]] QString sourceText() const;
    void setSourceText(const QString &text);

    /// A further button, beside "OK" and "Cancel"; the editor's.
    QPushButton *addButton(const QString &text);

    /// Replaces the text by that of a UTF-8 file, which can be undone. CannotOpenFile, and InvalidContent for
    /// a file that is no text or too large; the text then stays.
    [[nodiscard]] Error loadFile(const QString &path);
    /// CannotOpenFile where it can't be written.
    [[nodiscard]] Error saveFile(const QString &path) const;

    /// What the editor shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

private:
    void showPlace();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
