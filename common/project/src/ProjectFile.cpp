#include "orv/project/ProjectFile.h"

#include "OptionsTable.h"

#include <orv/core/SqliteConnection.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QSet>

#include <array>

namespace orv::ProjectFile {

namespace {

struct ProjectFileTr
{
    Q_DECLARE_TR_FUNCTIONS(ProjectFile)
};

struct Schema
{
    int version;
    const char *columns;
    bool hasText;  ///< values are texts, not bytes
    bool hasSaved; ///< rows tell when they were written
    bool isUnique; ///< a key stands once
};

// Stored in files: a form never changes, a new one gets a row.
constexpr std::array kSchemas = {
    Schema{1, "Key TEXT, Value TEXT", true, false, false},
    Schema{2, "Id INTEGER PRIMARY KEY, Key TEXT NOT NULL, Value BLOB NOT NULL", false, false, false},
    Schema{3, "Id INTEGER PRIMARY KEY, Key TEXT NOT NULL UNIQUE, Value BLOB NOT NULL, Saved TEXT NOT NULL",
           false, true, true},
};

Error checkOptions(const QList<ProjectCreationOption> &options, const Schema &schema)
{
    QSet<QString> keys;
    for (const ProjectCreationOption &option : options) {
        if (schema.isUnique && keys.contains(option.key)) {
            return Error(ErrorCode::InvalidContent,
                         ProjectFileTr::tr("Two creation options of a project have one key: %1")
                             .arg(option.key))
                .addDetail(ProjectFileTr::tr("Give each key once."));
        }
        keys.insert(option.key);
    }
    return Error::NoError;
}

Error insert(const SqliteConnection &connection, const ProjectCreationOption &option, const Schema &schema)
{
    // A null value would not do for a column that must hold something.
    const QByteArray bytes = option.value.isNull() ? QByteArray("") : option.value;
    QVariantList values{option.key, schema.hasText ? QVariant(QString::fromUtf8(bytes)) : QVariant(bytes)};
    if (schema.hasSaved)
        values.append(QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    const QString statement = schema.hasSaved
                                  ? QStringLiteral("INSERT INTO %1 (Key, Value, Saved) VALUES (?, ?, ?)")
                                  : QStringLiteral("INSERT INTO %1 (Key, Value) VALUES (?, ?)");
    ORV_RETURN_IF_ERROR(connection.execute(statement.arg(OptionsTable::kName), values));
    return Error::NoError;
}

Error fill(const SqliteConnection &connection, const QList<ProjectCreationOption> &options,
           const Schema &schema)
{
    ORV_RETURN_IF_ERROR(connection.execute(QStringLiteral("PRAGMA user_version = %1").arg(schema.version)));
    ORV_RETURN_IF_ERROR(connection.execute(
        QStringLiteral("CREATE TABLE %1 (%2)").arg(OptionsTable::kName, QLatin1String(schema.columns))));
    for (const ProjectCreationOption &option : options)
        ORV_RETURN_IF_ERROR(insert(connection, option, schema));
    return Error::NoError;
}

} // namespace

Error create(const QString &fileName, const QList<ProjectCreationOption> &options, int schemaVersion)
{
    const auto *const schema = std::ranges::find(kSchemas, schemaVersion, &Schema::version);
    if (schema == kSchemas.end()) {
        return Error(ErrorCode::InvalidContent,
                     ProjectFileTr::tr("Unknown form of a project: %1").arg(schemaVersion))
            .addDetail(ProjectFileTr::tr("Known are 1 to %1.").arg(kCurrentSchemaVersion));
    }
    ORV_RETURN_IF_ERROR(checkOptions(options, *schema));
    ORV_RETURN_IF_ERROR(SqliteConnection::createFile(
        fileName, [&](SqliteConnection &connection) { return fill(connection, options, *schema); }));
    return Error::NoError;
}

} // namespace orv::ProjectFile
