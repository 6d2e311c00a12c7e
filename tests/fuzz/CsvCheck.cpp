#include "FormChecks.h"

#include <orv/table/CsvReader.h>

#include <QBuffer>

#include <algorithm>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// Gives a few bytes at a time, so that characters, quotes and ends of lines come apart.
class SlowDevice : public QIODevice
{
public:
    explicit SlowDevice(const QByteArray &bytes)
        : m_bytes(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = std::min<qint64>({size, 2, m_bytes.size() - m_at});
        std::copy_n(m_bytes.constData() + m_at, count, data);
        m_at += count;
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_at = 0;
};

struct Outcome
{
    QList<QStringList> rows;
    QList<qsizetype> lines;
    QString fault; ///< empty when all of the text was read
    QStringList details;
};

Outcome read(QIODevice &device)
{
    CsvReader reader(&device, {.fieldBytes = 4096, .rowBytes = 8192, .rowFields = 64});
    Outcome outcome;
    for (;;) {
        const Result<std::optional<CsvRow>> row = reader.next();
        if (row.hasError()) {
            outcome.fault = row.error().errorMessage();
            outcome.details = row.error().details();
            return outcome;
        }
        if (!row->has_value())
            return outcome;
        outcome.rows.append((*row)->fields);
        outcome.lines.append((*row)->line);
    }
}

Outcome read(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return read(device);
}

QByteArray written(const QList<QStringList> &rows)
{
    QByteArray text;
    for (const QStringList &row : rows) {
        for (QString field : row)
            text += '"' + field.replace(u'"', u"\"\""_s).toUtf8() + "\",";
        text.back() = '\n';
    }
    return text;
}

} // namespace

QString checkCsv(const QByteArray &bytes)
{
    const Outcome whole = read(bytes);
    SlowDevice device(bytes);
    const Outcome inPieces = read(device);
    if (inPieces.rows != whole.rows || inPieces.lines != whole.lines || inPieces.details != whole.details)
        return u"text reads differently in pieces"_s;
    if (!std::ranges::is_sorted(whole.lines) || (!whole.lines.isEmpty() && whole.lines.first() < 1))
        return u"lines run backwards"_s;
    if (!whole.fault.isEmpty() && whole.details.size() != 2)
        return u"a fault without a place or a remedy"_s;
    const Outcome readBack = read(written(whole.rows));
    if (!readBack.fault.isEmpty() || readBack.rows != whole.rows)
        return u"rows read back as others"_s;
    return {};
}

} // namespace FormChecks
