#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace orv {

class ScientificTableWidget;

/// A stored text of several lines that people edit as tables or as it is; each follows the other. Derived
/// classes tell what the lines mean. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TextTablesDialog : public QDialog
{
    Q_OBJECT

public:
    ~TextTablesDialog() override;

    /// Unedited, the text that was set: comments and lines of other meaning stay where they are.
    [[nodiscard]] QString text() const;
    void setText(const QString &text);

    /// The tables and what is wrong, as lines for a screen reader.
    [[nodiscard]] virtual QString toPlainText() const;

protected:
    struct Words
    {
        QString pages;     ///< what the two pages are
        QString tablePage; ///< with its mnemonic
        QString text;      ///< what the text is
        QString textTip;
    };

    explicit TextTablesDialog(QWidget *parent);

    /// \a page holds the \a tables; \a below, which may be null, stands below both pages. Called once.
    void build(const Words &words, QWidget *page, const QList<ScientificTableWidget *> &tables,
               QWidget *below = nullptr);

    /// Loads the tables with what the text says.
    virtual void showTables(const QString &text) = 0;
    /// \a text with what the tables hold now.
    [[nodiscard]] virtual QString withTables(const QString &text) const = 0;
    /// What is wrong with the text, one problem each.
    [[nodiscard]] virtual QStringList problemsOf(const QString &text) const = 0;

    /// Shows the dialog, waits and deletes it. The text that was left when it was accepted; \a text and a
    /// false \a ok when it was not. \a ok may be null.
    [[nodiscard]] static QString ask(TextTablesDialog *dialog, const QString &text, bool *ok);

private:
    QWidget *newEdit(const Words &words);
    void showText();
    void takeTables();
    void takeText();
    void showProblems();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
