#include "CodesDialog.h"

#include "CheckList.h"

#include <orv/widgets/DialogService.h>
#include <orv/widgets/Icons.h>

#include <QDialogButtonBox>
#include <QHash>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace orv {

CodesDialog::CodesDialog(const QString &title, const TableCodes &codes, const QString &now, QWidget *parent)
    : QDialog(parent)
    , m_codes(codes)
{
    QHash<QString, int> rows;
    for (const TableCodes::Code &code : std::as_const(m_codes.list))
        rows.insert(code.code, int(rows.size()));
    QList<int> checked;
    const QStringList parts = now == codes.none ? QStringList() : now.split(codes.separator.trimmed());
    for (const QString &part : parts) {
        const QString code = part.trimmed();
        if (code.isEmpty())
            continue;
        if (!rows.contains(code)) {
            rows.insert(code, int(m_codes.list.size()));
            m_codes.list.append({code, tr("unknown")});
        }
        checked.append(rows.value(code));
    }
    QList<CheckList::Line> lines;
    for (const TableCodes::Code &code : std::as_const(m_codes.list))
        lines.append({tr("%1 (%2)").arg(code.title, code.code), code.title});
    m_lines = new CheckList(lines, this);
    m_lines->setCheckedRows(checked);
    build(title);
}

void CodesDialog::build(const QString &title)
{
    setWindowTitle(tr("Choose: %1").arg(title));
    setObjectName(QStringLiteral("CodesDialog"));
    auto *const shown = new QSortFilterProxyModel(this);
    shown->setSourceModel(m_lines);
    shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto *const filter = new QLineEdit;
    filter->setObjectName(QStringLiteral("codesFilter"));
    filter->setPlaceholderText(tr("Filter"));
    filter->setAccessibleName(tr("Filter"));
    filter->setToolTip(tr("Shows only lines with this text; those that are checked stay so."));
    filter->setClearButtonEnabled(true);
    filter->addAction(Icons::icon(IconName::Filter), QLineEdit::LeadingPosition);
    auto *const list = new QListView;
    list->setObjectName(QStringLiteral("codes"));
    list->setAccessibleName(title);
    list->setToolTip(tr("Space checks the current line."));
    list->setUniformItemSizes(true);
    list->setModel(shown);
    if (shown->rowCount() > 0)
        list->setCurrentIndex(shown->index(0, 0));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(filter);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    connect(filter, &QLineEdit::textChanged, shown, &QSortFilterProxyModel::setFilterFixedString);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int kLetters = 50;
    constexpr int kLinesOfText = 24;
    resize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * kLinesOfText);
    list->setFocus();
}

QString CodesDialog::text() const
{
    QStringList codes;
    for (const int row : m_lines->checkedRows())
        codes.append(m_codes.list[row].code);
    return codes.isEmpty() ? m_codes.none : codes.join(m_codes.separator);
}

std::optional<QString> CodesDialog::ask(const QString &title, const TableCodes &codes, const QString &now,
                                        QWidget *parent)
{
    const QPointer<CodesDialog> dialog = new CodesDialog(title, codes, now, parent);
    const bool isAccepted = DialogService::exec(*dialog) && dialog;
    auto chosen = isAccepted ? std::optional(dialog->text()) : std::nullopt;
    delete dialog;
    return chosen;
}

} // namespace orv
