#pragma once

#include <orv/widgets/TextTablesDialog.h>

namespace orv {

/// The glycans of a search: files of databases, compositions with their masses, and the text that is stored.
/// GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GlycansDialog : public TextTablesDialog
{
    Q_OBJECT

public:
    explicit GlycansDialog(QWidget *parent = nullptr);
    ~GlycansDialog() override;

    /// Shows the dialog and waits. The text that was left when it was accepted; \a strings and a false \a ok
    /// when it was not. \a ok may be null.
    [[nodiscard]] static QString getGlycansFromUser(const QString &strings, QWidget *parent, bool *ok);

protected:
    void showTables(const QString &text) override;
    [[nodiscard]] QString withTables(const QString &text) const override;
    [[nodiscard]] QStringList problemsOf(const QString &text) const override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
