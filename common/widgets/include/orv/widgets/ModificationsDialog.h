#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QString>

#include <memory>

namespace orv {

/// The modifications of a search as a table and as the text that is stored; each follows the other.
/// Well-known modifications are chosen from a list that can be searched. GUI thread.
///
///     bool ok = false;
///     const QString edited = ModificationsDialog::getModificationsFromUser(text, this, &ok);
class ORV_PROPERTY_EDITOR_EXPORT ModificationsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ModificationsDialog(QWidget *parent = nullptr);
    ~ModificationsDialog() override;

    /// Shows the dialog and waits. The text that was left when it was accepted; \a text and a false \a ok
    /// when it was not. \a ok may be null.
    [[nodiscard]] static QString getModificationsFromUser(const QString &text, QWidget *parent, bool *ok);

    /// Unedited, the text that was set: comments and lines of other meaning stay where they are.
    [[nodiscard]] QString text() const;
    void setText(const QString &text);

    [[nodiscard]] QString toPlainText() const;

private:
    void build();
    void buildCommon();
    void showTable();
    void takeTable();
    void takeText();
    void showState();
    void addCommon();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
