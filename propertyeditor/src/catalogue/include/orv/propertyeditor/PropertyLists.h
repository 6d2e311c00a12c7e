#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace orv {

/// The lists of all list properties, each in one of four tables by its kind, in the order of the combo box.
/// Plain data; UserVisibleListConverter holds the one of this library.
struct ORV_WORKFLOW_EXPORT PropertyLists
{
    QMap<PropertyId, QStringList> plain;                                ///< a text is known by its position
    QMap<PropertyId, QList<QPair<int, QString>>> associative;           ///< number and text
    QMap<PropertyId, QList<QPair<QString, QString>>> associativeString; ///< key and text
    QMap<PropertyId, QStringList> checkable;                            ///< several texts may be chosen

    /// For properties that were switches once: gives the number for a bool, or the text of one, and any
    /// other value back as it is.
    QMap<PropertyId, std::function<QVariant(const QVariant &)>> numberOfFormerSwitch;

    QSet<PropertyId> editable;         ///< the user may give other texts too
    QSet<PropertyId> stringSerialized; ///< files hold the text or key

    /// Whether one of the four tables has a list for \a id.
    [[nodiscard]] bool contains(PropertyId id) const;

    /// Reads `{"lists": [...]}`. InvalidContent when anything is missing, of a wrong type or given twice; the
    /// details tell which list.
    [[nodiscard]] static Result<PropertyLists> fromJson(const QByteArray &json);
};

} // namespace orv
