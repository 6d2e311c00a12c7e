#pragma once

#include <orv/table_model/TableModel.h>

/// A small table of peptides as the tests use it.
namespace TableFixture {

inline QList<orv::TableColumn> columns()
{
    using orv::TableColumn;
    using orv::TableColumnKind;
    TableColumn name{.name = QStringLiteral("name"), .title = QStringLiteral("Name")};
    name.isRequired = true;
    TableColumn mass{.name = QStringLiteral("mass"),
                     .title = QStringLiteral("Mass"),
                     .unit = QStringLiteral("Da"),
                     .kind = TableColumnKind::Number,
                     .minimum = 0,
                     .maximum = 5000};
    TableColumn charge{.name = QStringLiteral("charge"),
                       .title = QStringLiteral("Charge"),
                       .kind = TableColumnKind::Integer,
                       .minimum = 1,
                       .defaultText = QStringLiteral("2")};
    TableColumn mode{.name = QStringLiteral("mode"),
                     .title = QStringLiteral("Mode"),
                     .kind = TableColumnKind::Choice,
                     .choices = {QStringLiteral("Positive"), QStringLiteral("Negative")}};
    return {name, mass, charge, mode};
}

inline QStringList row(const char *words)
{
    return QString::fromUtf8(words).split(u' ');
}

/// Each row of words, "-" for an empty cell.
inline QList<QStringList> rows(std::initializer_list<const char *> lines)
{
    QList<QStringList> result;
    for (const char *line : lines)
        result.append(row(line).replaceInStrings(QStringLiteral("~"), QStringLiteral(" ")));
    for (QStringList &texts : result) {
        for (QString &text : texts)
            text = text == QStringLiteral("-") ? QString() : text;
    }
    return result;
}

inline QList<QStringList> peptides()
{
    return rows({"alpha 500.25 2 Positive", "beta 1200.5 3 Negative", "gamma 99 1 Positive", "S10 700 2 -",
                 "S2 - 2 Positive"});
}

/// What a person sees, row by row.
inline QList<QStringList> seen(const orv::TableModel &model)
{
    QList<QStringList> result;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
        result.append(texts);
    }
    return result;
}

inline QStringList names(const orv::TableModel &model)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, 0).data().toString());
    return result;
}

inline QStringList names(const orv::TableSheet &sheet)
{
    QStringList result;
    for (int row = 0; row < sheet.rowCount(); ++row)
        result.append(sheet.text(row, 0).toString());
    return result;
}

} // namespace TableFixture
