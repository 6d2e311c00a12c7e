#include "orv/project/ProjectCreationOptionsDao.h"

#include "OptionsTable.h"

#include <orv/core/FileUtils.h>
#include <orv/project/DocumentDatabaseHandler.h>
#include <orv/project/ProjectFile.h>

#include <QCoreApplication>
#include <QLocale>

namespace orv {

namespace {

struct ProjectCreationOptionsDaoTr
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCreationOptionsDao)
};

QString statement(const char *what)
{
    return QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ? COLLATE BINARY")
        .arg(QLatin1String(what), OptionsTable::kName, OptionsTable::kKeyColumn);
}

} // namespace

Result<bool> ProjectCreationOptionsDao::tableExists() const
{
    Result<bool> exists = m_project->connection().hasTable(OptionsTable::kName);
    if (!exists)
        return exists.ecatch();
    return exists;
}

Error ProjectCreationOptionsDao::checkColumns() const
{
    Result<QStringList> columns = m_project->connection().columns(OptionsTable::kName);
    if (!columns)
        return columns.ecatch();
    if (columns->contains(OptionsTable::kKeyColumn, Qt::CaseInsensitive) &&
        columns->contains(OptionsTable::kValueColumn, Qt::CaseInsensitive))
        return Error::NoError;
    Result<int> version = m_project->schemaVersion();
    if (!version)
        return version.ecatch();
    return Error(ErrorCode::MalformedStructure,
                 ProjectCreationOptionsDaoTr::tr("The creation options of the project can't be read: %1")
                     .arg(m_project->fileName()))
        .addDetail(ProjectCreationOptionsDaoTr::tr(
                       "The project has the form %1, and its table %2 lacks the column %3 or %4.")
                       .arg(QString::number(*version), OptionsTable::kName, OptionsTable::kKeyColumn,
                            OptionsTable::kValueColumn))
        .addDetail(*version > ProjectFile::kCurrentSchemaVersion
                       ? ProjectCreationOptionsDaoTr::tr("Open it with a newer version of this software.")
                       : ProjectCreationOptionsDaoTr::tr(
                             "Restore the file from a copy, or create the project anew."));
}

Result<bool> ProjectCreationOptionsDao::keyExists(const QString &key) const
{
    ORV_RETURN_IF_ERROR(checkColumns());
    auto rows = m_project->connection().rows(statement("1") + QLatin1String(" LIMIT 1"), {key});
    if (!rows)
        return rows.ecatch();
    return !rows->isEmpty();
}

Error ProjectCreationOptionsDao::checkSize(const QString &key) const
{
    auto rows = m_project->connection().rows(statement("TOTAL(LENGTH(Value)), COUNT(*)"), {key});
    if (!rows)
        return rows.ecatch();
    // TOTAL gives a double, which no sizes overflow.
    const double size = rows->constFirst().value(0).toDouble();
    if (size + rows->constFirst().value(1).toDouble() <= double(FileUtils::kMaxFileSize))
        return Error::NoError;
    const QLocale locale = QLocale::c();
    return Error(ErrorCode::InvalidContent,
                 ProjectCreationOptionsDaoTr::tr("The creation options of the project are too large: %1")
                     .arg(m_project->fileName()))
        .addDetail(ProjectCreationOptionsDaoTr::tr("The option %1 holds %2, at most %3 are read.")
                       .arg(key, locale.formattedDataSize(qint64(size)),
                            locale.formattedDataSize(FileUtils::kMaxFileSize)))
        .addDetail(
            ProjectCreationOptionsDaoTr::tr("Restore the file from a copy, or create the project anew."));
}

Result<QList<ProjectCreationOption>> ProjectCreationOptionsDao::readOption(const QString &key) const
{
    ORV_RETURN_IF_ERROR(checkColumns());
    ORV_RETURN_IF_ERROR(checkSize(key));
    auto rows = m_project->connection().rows(statement("Key, Value"), {key});
    if (!rows)
        return rows.ecatch();
    QList<ProjectCreationOption> options;
    options.reserve(rows->size());
    for (const QVariantList &row : *rows)
        options.append({row.value(0).toString(), row.value(1).toByteArray()});
    return options;
}

} // namespace orv
