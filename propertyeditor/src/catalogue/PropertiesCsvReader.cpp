#include "orv/propertyeditor/PropertiesCsvReader.h"

#include <orv/core/Logging.h>
#include <orv/core/Result.h>
#include <orv/table/CsvReader.h>

#include <QCoreApplication>
#include <QFile>

namespace orv {

using namespace Qt::StringLiterals;

namespace {

struct PropertiesCsvReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertiesCsvReader)
};

const QStringList &columns()
{
    static const QStringList names = {u"id"_s,
                                      u"internalNameV2"_s,
                                      u"internalNameV1"_s,
                                      u"displayName"_s,
                                      u"toolTip"_s,
                                      u"typeName"_s,
                                      u"typeOptions"_s,
                                      u"verificationFunction"_s,
                                      u"verificationParameters"_s};
    return names;
}

Error tableFault(const QString &message)
{
    return Error(ErrorCode::InvalidContent, message);
}

/// "name=value" joined by ";". Blanks count: a unit stands apart from its number by one.
Result<QMap<QByteArray, QString>> optionsOf(const QString &text)
{
    QMap<QByteArray, QString> options;
    for (QStringView option : QStringView(text).split(u';', Qt::SkipEmptyParts)) {
        const qsizetype equals = option.indexOf(u'=');
        if (equals <= 0)
            return tableFault(
                PropertiesCsvReaderTr::tr("The type option \"%1\" is not of the form name=value.")
                    .arg(option));
        options.insert(option.first(equals).toUtf8(), option.sliced(equals + 1).toString());
    }
    return options;
}

/// Fails at the end of the table too: each caller knows how many rows there must be.
Result<CsvRow> nextRow(CsvReader &reader)
{
    Result<std::optional<CsvRow>> row = reader.next();
    if (row.hasError())
        return row.ecatch();
    if (!row->has_value())
        return tableFault(PropertiesCsvReaderTr::tr("The table ends too early."));
    if ((*row)->fields.size() != columns().size()) {
        return tableFault(PropertiesCsvReaderTr::tr("A row has %1 fields and not %2.")
                              .arg((*row)->fields.size())
                              .arg(columns().size()))
            .addDetail(PropertiesCsvReaderTr::tr("line %1").arg((*row)->line));
    }
    return std::move(**row);
}

} // namespace

const PropertiesCsvReader &PropertiesCsvReader::instance()
{
    static const PropertiesCsvReader reader = [] {
        QFile file(u":/orv/catalogue/properties.csv"_s);
        // A resource that is missing shows as a device that can't be read.
        (void)file.open(QIODevice::ReadOnly);
        return PropertiesCsvReader(&file);
    }();
    return reader;
}

PropertiesCsvReader::PropertiesCsvReader(QIODevice *device)
{
    if (const Error error = load(device)) {
        qCWarning(propertyEditorLog).noquote() << "The catalogue of properties cannot be used:"
                                               << (error.errorMessages() + error.details()).join(u' ');
        m_rows = {};
        m_idsByName.clear();
    }
}

Error PropertiesCsvReader::load(QIODevice *device)
{
    CsvReader reader(device);
    Result<CsvRow> header = nextRow(reader);
    if (header.hasError())
        return header.ecatch();
    if (header->fields != columns())
        return tableFault(PropertiesCsvReaderTr::tr("The columns are not %1.").arg(columns().join(u", ")));
    m_idsByName.reserve(qsizetype(2) * kPropertyCount);
    for (int number = 0; number < kPropertyCount; ++number) {
        Result<CsvRow> row = nextRow(reader);
        if (row.hasError())
            return row.ecatch();
        if (Error error = addRow(number, std::move(row->fields)))
            return error.addDetail(PropertiesCsvReaderTr::tr("line %1").arg(row->line)).ecatch();
    }
    Result<std::optional<CsvRow>> behind = reader.next();
    if (behind.hasError())
        return behind.ecatch();
    if (behind->has_value())
        return tableFault(
            PropertiesCsvReaderTr::tr("There are more than %1 properties.").arg(kPropertyCount));
    return Error::NoError;
}

Error PropertiesCsvReader::addRow(int number, QStringList fields)
{
    if (fields[0] != QString::number(number))
        return tableFault(
            PropertiesCsvReaderTr::tr("The id \"%1\" stands where %2 belongs.").arg(fields[0]).arg(number));
    Result<QMap<QByteArray, QString>> options = optionsOf(fields[6]);
    if (options.hasError())
        return options.ecatch();
    ORV_RETURN_IF_ERROR(addName(number, fields[1]));
    if (fields[2] != fields[1])
        ORV_RETURN_IF_ERROR(addName(number, fields[2]));
    m_rows[size_t(number)] = {.internalNameV2 = std::move(fields[1]),
                              .internalNameV1 = std::move(fields[2]),
                              .displayName = std::move(fields[3]),
                              .toolTip = std::move(fields[4]),
                              .typeName = std::move(fields[5]),
                              .typeOptions = std::move(*options),
                              .verificationFunction = std::move(fields[7]),
                              .verificationParameters = std::move(fields[8])};
    return Error::NoError;
}

Error PropertiesCsvReader::addName(int number, const QString &name)
{
    if (name.isEmpty())
        return tableFault(PropertiesCsvReaderTr::tr("The property %1 has no name.").arg(number));
    const auto known = m_idsByName.constFind(name);
    if (known != m_idsByName.cend())
        return tableFault(
            PropertiesCsvReaderTr::tr("Both %1 and %2 are named \"%3\".").arg(*known).arg(number).arg(name));
    m_idsByName.insert(name, PropertyId(number));
    return Error::NoError;
}

const PropertiesCsvReader::Row &PropertiesCsvReader::row(PropertyId id) const
{
    static const Row none;
    return id >= 0 && id < kPropertyCount ? m_rows[size_t(id)] : none;
}

PropertyId PropertiesCsvReader::findPropertyForName(const QString &name) const
{
    return m_idsByName.value(name, PropertyId::NoProperty);
}

} // namespace orv
