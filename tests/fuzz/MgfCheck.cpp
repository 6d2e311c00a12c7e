#include "FormChecks.h"

#include <orv/core_ms/MgfReader.h>

#include <QIODevice>

#include <algorithm>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

constexpr MgfReader::Limits kMgfLimits{.lineBytes = 4096};

/// Gives its bytes in pieces of one size.
class MgfPieces : public QIODevice
{
public:
    MgfPieces(QByteArray bytes, qsizetype size)
        : m_bytes(std::move(bytes))
        , m_size(size)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return m_at >= m_bytes.size(); }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qsizetype count = std::min({qsizetype(size), m_size, m_bytes.size() - m_at});
        if (count == 0)
            return -1;
        std::copy_n(m_bytes.constData() + m_at, count, data);
        m_at += count;
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_bytes;
    qsizetype m_size;
    qsizetype m_at = 0;
};

struct MgfOutcome
{
    QList<MgfQuery> queries;
    QStringList details; ///< of the fault, empty when all of the text was read

    bool operator==(const MgfOutcome &) const = default;
};

MgfOutcome read(const QByteArray &bytes, qsizetype pieceSize)
{
    MgfPieces device(bytes, pieceSize);
    MgfReader reader(&device, kMgfLimits);
    MgfOutcome outcome;
    for (;;) {
        const Result<std::optional<MgfQuery>> query = reader.next();
        if (query.hasError()) {
            outcome.details = query.error().details();
            return outcome;
        }
        if (!query->has_value())
            return outcome;
        outcome.queries.append(**query);
    }
}

} // namespace

QString checkMgf(const QByteArray &bytes)
{
    const MgfOutcome whole = read(bytes, std::max<qsizetype>(1, bytes.size()));
    if (!whole.details.isEmpty() && whole.details.size() != 2)
        return u"a fault without a place or a remedy"_s;
    qsizetype line = 0;
    for (const MgfQuery &query : whole.queries) {
        if (query.line <= line)
            return u"queries out of order"_s;
        if (query.msLevel < 1 || query.msLevel > 99 || query.peaks < 0)
            return u"a query that can't be"_s;
        line = query.line;
    }
    for (const qsizetype size : {1, 7, 100}) {
        if (read(bytes, size) != whole)
            return u"text in pieces of %1 bytes reads differently"_s.arg(size);
    }
    return {};
}

} // namespace FormChecks
