#pragma once

#include <orv/widgets/TextTablesDialog.h>

namespace orv {

/// The modifications of a search as a table and as the text that is stored. Well-known modifications are
/// chosen from a list that can be searched. GUI thread.
///
///     bool ok = false;
///     const QString edited = ModificationsDialog::getModificationsFromUser(text, this, &ok);
class ORV_PROPERTY_EDITOR_EXPORT ModificationsDialog : public TextTablesDialog
{
    Q_OBJECT

public:
    explicit ModificationsDialog(QWidget *parent = nullptr);
    ~ModificationsDialog() override;

    /// Shows the dialog and waits. The text that was left when it was accepted; \a text and a false \a ok
    /// when it was not. \a ok may be null.
    [[nodiscard]] static QString getModificationsFromUser(const QString &text, QWidget *parent, bool *ok);

protected:
    void showTables(const QString &text) override;
    [[nodiscard]] QString withTables(const QString &text) const override;
    [[nodiscard]] QStringList problemsOf(const QString &text) const override;

private:
    [[nodiscard]] QWidget *newCommonList();
    void addCommon();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
