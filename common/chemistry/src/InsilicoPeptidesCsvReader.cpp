#include "orv/chemistry/InsilicoPeptidesCsvReader.h"

#include <orv/core/FileUtils.h>
#include <orv/table/CsvReader.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>

#include <array>
#include <cmath>
#include <set>
#include <tuple>

namespace orv {

namespace {

constexpr int kHighestCharge = 1000;

struct InsilicoPeptidesCsvReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(InsilicoPeptidesCsvReader)
};

enum class Column
{
    Sequence,
    Protein,
    Modifications,
    Charge,
    Mass,
    RetentionTime,
};

struct Header
{
    QLatin1String text; ///< in small letters, without blanks and underscores
    Column column;
};

constexpr std::array kHeaders = {
    Header{QLatin1String("sequence"), Column::Sequence},
    Header{QLatin1String("seq"), Column::Sequence},
    Header{QLatin1String("peptide"), Column::Sequence},
    Header{QLatin1String("protein"), Column::Protein},
    Header{QLatin1String("modifications"), Column::Modifications},
    Header{QLatin1String("mods"), Column::Modifications},
    Header{QLatin1String("charge"), Column::Charge},
    Header{QLatin1String("z"), Column::Charge},
    Header{QLatin1String("mass"), Column::Mass},
    Header{QLatin1String("monomass"), Column::Mass},
    Header{QLatin1String("monoisotopicmass"), Column::Mass},
    Header{QLatin1String("retentiontime"), Column::RetentionTime},
    Header{QLatin1String("rt"), Column::RetentionTime},
};

Error badFile(qsizetype line, const QString &reason)
{
    return Error(ErrorCode::InvalidContent,
                 InsilicoPeptidesCsvReaderTr::tr("The file of in-silico peptides can't be read."))
        .addDetail(InsilicoPeptidesCsvReaderTr::tr("Line %1: %2").arg(line).arg(reason));
}

class Reader
{
public:
    explicit Reader(QIODevice *device)
        : m_csv(device)
    {}

    Error read()
    {
        Result<std::optional<CsvRow>> header = m_csv.next();
        if (header.hasError())
            return header.ecatch();
        ORV_RETURN_IF_ERROR(readHeader(header->value_or(CsvRow{1, {}})));
        for (;;) {
            Result<std::optional<CsvRow>> row = m_csv.next();
            if (row.hasError())
                return row.ecatch();
            if (!row->has_value())
                return Error::NoError;
            if (peptides.size() >= InsilicoPeptidesCsvReader::kMaximumRows)
                return badFile((*row)->line, InsilicoPeptidesCsvReaderTr::tr("There are too many rows."));
            ORV_RETURN_IF_ERROR(readRow(**row));
        }
    }

    [[nodiscard]] QString warningText() const
    {
        QStringList lines;
        if (peptides.isEmpty())
            lines.append(InsilicoPeptidesCsvReaderTr::tr("The file of in-silico peptides has no peptides."));
        if (m_wideRows > 0)
            lines.append(InsilicoPeptidesCsvReaderTr::tr(
                             "%1 rows have more fields than the header; the rest isn't used.")
                             .arg(m_wideRows));
        if (m_repeatedRows > 0)
            lines.append(InsilicoPeptidesCsvReaderTr::tr("%1 peptides stand twice.").arg(m_repeatedRows));
        return lines.join(QLatin1Char('\n'));
    }

    QList<InsilicoPeptide> peptides;

private:
    Error readHeader(const CsvRow &row)
    {
        m_headers = row.fields;
        for (qsizetype i = 0; i < m_headers.size(); ++i) {
            const QString text = m_headers.at(i).toLower().remove(QLatin1Char(' ')).remove(QLatin1Char('_'));
            const auto known = std::find_if(kHeaders.begin(), kHeaders.end(),
                                            [&](const Header &header) { return header.text == text; });
            // The first of two columns of one meaning counts; the other is kept as it is.
            if (known != kHeaders.end() && !m_places.values().contains(known->column))
                m_places.insert(i, known->column);
        }
        if (!m_places.values().contains(Column::Sequence))
            return badFile(row.line, InsilicoPeptidesCsvReaderTr::tr("There is no column \"Sequence\"."));
        return Error::NoError;
    }

    Error readRow(const CsvRow &row)
    {
        InsilicoPeptide peptide;
        peptide.line = row.line;
        for (qsizetype i = 0; i < std::min(row.fields.size(), m_headers.size()); ++i) {
            const auto place = m_places.constFind(i);
            if (place != m_places.cend())
                ORV_RETURN_IF_ERROR(readField(row, *place, row.fields.at(i).trimmed(), &peptide));
            else if (!row.fields.at(i).isEmpty())
                peptide.otherFields.insert(m_headers.at(i), row.fields.at(i));
        }
        if (peptide.sequence.isEmpty())
            return badFile(row.line, InsilicoPeptidesCsvReaderTr::tr("There is no sequence."));
        m_wideRows += row.fields.size() > m_headers.size() ? 1 : 0;
        const auto key =
            std::make_tuple(peptide.sequence, peptide.protein, peptide.modifications, peptide.charge);
        m_repeatedRows += m_seen.contains(key) ? 1 : 0;
        m_seen.insert(key);
        peptides.append(peptide);
        return Error::NoError;
    }

    static Error readField(const CsvRow &row, Column column, const QString &text, InsilicoPeptide *peptide)
    {
        switch (column) {
        case Column::Sequence:
            return readSequence(row, text, peptide);
        case Column::Protein:
            peptide->protein = text;
            return Error::NoError;
        case Column::Modifications:
            peptide->modifications = text;
            return Error::NoError;
        case Column::Charge:
            return readCharge(row, text, peptide);
        case Column::Mass:
            return readNumber(row, text, &peptide->massDa);
        case Column::RetentionTime:
            return readNumber(row, text, &peptide->retentionTimeMinutes);
        }
        Q_UNREACHABLE();
    }

    static Error readSequence(const CsvRow &row, const QString &text, InsilicoPeptide *peptide)
    {
        peptide->sequence = text.toUpper();
        const bool letters =
            std::all_of(peptide->sequence.begin(), peptide->sequence.end(), [](QChar letter) {
                return letter >= QLatin1Char('A') && letter <= QLatin1Char('Z');
            });
        return letters
                   ? Error()
                   : badFile(row.line,
                             InsilicoPeptidesCsvReaderTr::tr("\"%1\" is no sequence of letters.").arg(text));
    }

    static Error readCharge(const CsvRow &row, const QString &text, InsilicoPeptide *peptide)
    {
        bool ok = true;
        peptide->charge = text.isEmpty() ? 0 : text.toInt(&ok);
        return ok && std::abs(peptide->charge) <= kHighestCharge
                   ? Error()
                   : badFile(row.line, InsilicoPeptidesCsvReaderTr::tr("\"%1\" is no charge.").arg(text));
    }

    static Error readNumber(const CsvRow &row, const QString &text, std::optional<double> *number)
    {
        if (text.isEmpty())
            return Error::NoError;
        bool ok = false;
        const double value = text.toDouble(&ok);
        if (!ok || !std::isfinite(value) || value < 0.0)
            return badFile(row.line,
                           InsilicoPeptidesCsvReaderTr::tr("\"%1\" is no number from 0.").arg(text));
        *number = value;
        return Error::NoError;
    }

    CsvReader m_csv;
    QStringList m_headers;
    QHash<qsizetype, Column> m_places;
    std::set<std::tuple<QString, QString, QString, int>> m_seen;
    qsizetype m_wideRows = 0;
    qsizetype m_repeatedRows = 0;
};

} // namespace

InsilicoPeptidesCsvReader::InsilicoPeptidesCsvReader(const QString &path)
    : m_path(path)
{}

Error InsilicoPeptidesCsvReader::readAll(QList<InsilicoPeptide> *rows, QString *warningText,
                                         QString *errorText)
{
    const auto failed = [&](Error &error) {
        if (errorText)
            *errorText = (error.errorMessages() + error.details()).join(QLatin1Char('\n'));
        return error.ecatch();
    };
    Result<QByteArray> bytes = FileUtils::readFile(m_path);
    if (bytes.hasError()) {
        Error error = bytes.error();
        return failed(error);
    }
    QBuffer device(&*bytes);
    device.open(QIODevice::ReadOnly);
    Reader reader(&device);
    Error error = reader.read();
    if (error) {
        error.addDetail(InsilicoPeptidesCsvReaderTr::tr("The file is %1.").arg(m_path));
        return failed(error);
    }
    if (warningText)
        *warningText = reader.warningText();
    if (rows)
        rows->append(reader.peptides);
    return Error::NoError;
}

} // namespace orv
