#pragma once

#include <orv/propertyeditor/VerificationFunction.h>

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariant>

#include <functional>

namespace orv {

/// What the catalogue says of one property. A default-constructed record is empty throughout.
struct PropertyFeatures
{
    QString internalNameV1; ///< name in workflows of the first naming generation
    QString internalNameV2; ///< the current name, "name" of a property in a workflow file
    QString displayName;    ///< caption
    QString toolTip;
    QString typeName;                                           ///< see PropertiesTraits::typeFeatures
    QMap<QByteArray, QString> typeOptions;                      ///< options of the KProperty
    QVariant defaultValue;                                      ///< in the unit that the system works in
    std::function<QVariant(const QJsonObject &)> valueFromJson; ///< reads a stored property
    VerificationFunction verification;                          ///< empty if there is no rule
};

} // namespace orv
