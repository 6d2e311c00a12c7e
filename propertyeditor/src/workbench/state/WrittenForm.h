#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QByteArray>
#include <QHash>
#include <QJsonObject>

namespace orv {

/// A document as the columns of a window write it, which add names and usual priorities to what they got: so
/// nobody reads of these as differences. Any thread.
struct WrittenForm
{
    QJsonObject document;
    QHash<QByteArray, QByteArray> cells; ///< by their written form as they stand in the state

    explicit WrittenForm(const DocumentState &state);
};

} // namespace orv
