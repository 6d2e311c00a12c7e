#include "FormChecks.h"

#include <orv/chemistry/Fasta.h>

#include <QBuffer>

#include <algorithm>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

struct FastaOutcome
{
    QList<FastaEntry> entries;
    QStringList details; ///< of the fault, empty when all of the text was read
};

constexpr FastaReader::Limits kFastaLimits{.headerBytes = 4096, .sequenceLetters = 8192};
/// A header of another encoding takes more bytes when it is written.
constexpr FastaReader::Limits kLimitsOfWritten{.headerBytes = 3 * kFastaLimits.headerBytes,
                                               .sequenceLetters = kFastaLimits.sequenceLetters};

FastaOutcome read(const QByteArray &bytes, const FastaReader::Limits &limits)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    FastaReader reader(&device, limits);
    FastaOutcome outcome;
    for (;;) {
        const Result<std::optional<FastaEntry>> entry = reader.next();
        if (entry.hasError()) {
            outcome.details = entry.error().details();
            return outcome;
        }
        if (!entry->has_value())
            return outcome;
        outcome.entries.append(**entry);
    }
}

bool isClean(const FastaEntry &entry)
{
    return !entry.sequence.isEmpty() && !entry.sequence.endsWith(u'*') &&
           std::none_of(entry.sequence.begin(), entry.sequence.end(),
                        [](QChar letter) { return letter.unicode() < u' ' || letter.unicode() > u'~'; });
}

} // namespace

QString checkFasta(const QByteArray &bytes)
{
    const FastaOutcome first = read(bytes, kFastaLimits);
    if (!first.details.isEmpty() && first.details.size() != 2)
        return u"a fault without a place or a remedy"_s;
    if (!std::ranges::all_of(first.entries, isClean))
        return u"a sequence with characters that are none"_s;
    // Blanks in a header are simplified when it is written, so that the second text says the same as the
    // third.
    const QByteArray text = Fasta::toText(first.entries);
    const FastaOutcome second = read(text, kLimitsOfWritten);
    if (!second.details.isEmpty() || second.entries.size() != first.entries.size())
        return u"entries read back as others"_s;
    for (qsizetype i = 0; i < first.entries.size(); ++i) {
        if (second.entries.at(i).sequence != first.entries.at(i).sequence)
            return u"a sequence reads back as another"_s;
    }
    if (Fasta::toText(second.entries) != text)
        return u"text is written differently the second time"_s;
    return {};
}

} // namespace FormChecks
