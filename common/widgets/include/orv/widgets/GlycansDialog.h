#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QString>

#include <memory>

namespace orv {

/// The glycans of a search: files of databases, compositions with their masses, and the text that is stored;
/// each follows the others. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GlycansDialog : public QDialog
{
    Q_OBJECT

public:
    explicit GlycansDialog(QWidget *parent = nullptr);
    ~GlycansDialog() override;

    /// Shows the dialog and waits. The text that was left when it was accepted; \a strings and a false \a ok
    /// when it was not. \a ok may be null.
    [[nodiscard]] static QString getGlycansFromUser(const QString &strings, QWidget *parent, bool *ok);

    /// Unedited, the text that was set: comments stay where they are.
    [[nodiscard]] QString text() const;
    void setText(const QString &text);

    [[nodiscard]] QString toPlainText() const;

private:
    void build();
    void showTables();
    void takeTables();
    void takeText();
    void showState();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
