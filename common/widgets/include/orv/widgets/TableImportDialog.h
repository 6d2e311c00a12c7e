#pragma once

#include <orv/table_model/TableImport.h>
#include <orv/widgets/Export.h>

#include <QDialog>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)

namespace orv {

/// Shows what a text file would bring into a table, how it was read and what is wrong with it, before
/// anything is taken. It changes nothing: who shows it takes rows() when it is accepted. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TableImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a name is that of the file, for the title.
    TableImportDialog(const QString &name, const QByteArray &bytes, const TableImportTarget &target,
                      QWidget *parent = nullptr);
    ~TableImportDialog() override;

    [[nodiscard]] const TableImport &import() const;
    [[nodiscard]] TableImport::Faulty faulty() const;
    /// In the form that TableSheet::insertRows() takes.
    [[nodiscard]] QList<QStringList> rows() const;

private:
    void build();
    void buildFormat(QBoxLayout *layout);
    void buildProblems(QBoxLayout *layout);
    void buildButtons(QBoxLayout *layout);
    void readAnew();
    void mapAnew();
    void showFormat(const TableTextFormat &format);
    void showMapping();
    void showState();
    void showProblem(int row);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
