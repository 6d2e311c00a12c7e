#pragma once

#include "Arguments.h"
#include "Outcome.h"

#include <orv/propertyeditor/content/CellPlace.h>

#include <QByteArray>
#include <QJsonObject>

namespace orv::cli {

/// A cell in a document that was read.
struct FoundCell
{
    QByteArray bytes; ///< of the document
    QJsonObject document;
    CellPlace place;
    QJsonObject cell;
};

/// FILE and the options that name one of its cells.
class CellArgument
{
public:
    void declare(Arguments &arguments);
    [[nodiscard]] QString file() const;
    /// The cell, or why there is none: an unreadable file, or wrong usage.
    [[nodiscard]] Outcome<FoundCell> find() const;

private:
    QString m_file;
    QString m_tab;
    QString m_column;
    int m_row = 0;
};

} // namespace orv::cli
