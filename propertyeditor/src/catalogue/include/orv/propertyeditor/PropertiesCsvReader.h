#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

#include <array>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace orv {

/// The texts of the property catalogue, one operation for each column of its table. A number that is no
/// property has empty texts. Read-only, so safe on any thread.
class ORV_WORKFLOW_EXPORT PropertiesCsvReader
{
public:
    /// The catalogue that comes with the library, read on the first call.
    [[nodiscard]] static const PropertiesCsvReader &instance();

    /// Reads a table of the same columns. It is all or nothing: a table with a fault is logged, has no
    /// texts and knows no names.
    explicit PropertiesCsvReader(QIODevice *device);

    [[nodiscard]] QString internalNameV1(PropertyId id) const { return row(id).internalNameV1; }
    [[nodiscard]] QString internalNameV2(PropertyId id) const { return row(id).internalNameV2; }
    [[nodiscard]] QString displayName(PropertyId id) const { return row(id).displayName; }
    [[nodiscard]] QString toolTip(PropertyId id) const { return row(id).toolTip; }
    [[nodiscard]] QString typeName(PropertyId id) const { return row(id).typeName; }
    [[nodiscard]] QMap<QByteArray, QString> typeOptions(PropertyId id) const { return row(id).typeOptions; }
    [[nodiscard]] QString verificationFunction(PropertyId id) const { return row(id).verificationFunction; }
    [[nodiscard]] QString verificationParameters(PropertyId id) const
    {
        return row(id).verificationParameters;
    }

    /// The property of that name, current or of the first generation, compared exactly; NoProperty if there
    /// is none.
    [[nodiscard]] PropertyId findPropertyForName(const QString &name) const;

private:
    struct Row
    {
        QString internalNameV2;
        QString internalNameV1;
        QString displayName;
        QString toolTip;
        QString typeName;
        QMap<QByteArray, QString> typeOptions;
        QString verificationFunction;
        QString verificationParameters;
    };

    Error load(QIODevice *device);
    Error addRow(int number, QStringList fields);
    Error addName(int number, const QString &name);
    [[nodiscard]] const Row &row(PropertyId id) const;

    std::array<Row, kPropertyCount> m_rows;
    QHash<QString, PropertyId> m_idsByName;
};

} // namespace orv
