#pragma once

#include <QList>
#include <QString>

/// What defaults.csv says of each property, read without the program's table: a slip in what is made from the
/// document shows when the two are compared.
namespace CatalogueRows {

struct Row
{
    QString name;
    QString reader;
    QString kind;
    QString text;
};

/// By ascending number of the property. Aborts the test program when the document can't be read.
[[nodiscard]] QList<Row> read();

} // namespace CatalogueRows
