#include "orv/samples/SamplesCheck.h"

#include <QCoreApplication>
#include <QHash>

namespace orv::SamplesCheck {

namespace {

struct SamplesCheckTr
{
    Q_DECLARE_TR_FUNCTIONS(SamplesCheck)
};

using Samples = QList<SamplesInput::SampleWithCustomColumns>;

/// More rows than these are counted alone.
constexpr qsizetype kNamedRows = 20;

QString listed(QStringList words)
{
    const qsizetype more = words.size() - kNamedRows;
    words = words.first(std::min(words.size(), kNamedRows));
    QString text = words.join(QLatin1String(", "));
    return more > 0 ? SamplesCheckTr::tr("%1 and %2 more").arg(text).arg(more) : text;
}

template<typename IsMissing>
void findMissing(const Samples &samples, const QString &message, const QString &remedy, IsMissing isMissing,
                 QStringList *errors, QStringList *details)
{
    QStringList rows;
    for (qsizetype i = 0; i < samples.size(); ++i) {
        if (isMissing(samples[i]))
            rows.append(QString::number(i + 1));
    }
    if (rows.isEmpty())
        return;
    errors->append(message);
    details->append(remedy.arg(listed(rows)));
}

template<typename Key>
QStringList repeatedOf(const Samples &samples, Key key)
{
    QHash<QString, int> counts;
    QStringList repeated;
    for (const SamplesInput::SampleWithCustomColumns &sample : samples) {
        const QString text = key(sample);
        if (!text.isEmpty() && ++counts[text] == 2)
            repeated.append(text);
    }
    return repeated;
}

void checkRepeats(const Samples &samples, QStringList *warnings)
{
    const QStringList names = repeatedOf(samples, [](const auto &sample) { return sample.name; });
    if (!names.isEmpty())
        warnings->append(SamplesCheckTr::tr("Several samples have one name, and settings that name it mean "
                                            "all of them: %1.")
                             .arg(listed(names)));
    const QStringList ids =
        repeatedOf(samples, [](const auto &sample) { return QString::number(sample.id); });
    if (!ids.isEmpty())
        warnings->append(SamplesCheckTr::tr("Several samples have one id, by which proteins, masses and "
                                            "traces refer to them: %1.")
                             .arg(listed(ids)));
}

} // namespace

bool validate(const SamplesAndTracesContent &content, QStringList *warnings, QStringList *errors,
              QStringList *details)
{
    QStringList unused;
    QStringList found;
    warnings = warnings ? warnings : &unused;
    details = details ? details : &unused;
    const Samples &samples = content.samples.samples;
    findMissing(
        samples, SamplesCheckTr::tr("Every sample needs a name."),
        SamplesCheckTr::tr("Samples without a name are in the rows %1."),
        [](const auto &sample) { return sample.name.trimmed().isEmpty(); }, &found, details);
    findMissing(
        samples, SamplesCheckTr::tr("Every sample needs a file."),
        SamplesCheckTr::tr("Samples without a file are in the rows %1. Choose a file, or remove the rows."),
        [](const auto &sample) { return !sample.msFile || sample.msFile->isEmpty(); }, &found, details);
    checkRepeats(samples, warnings);
    (void)content.options.validate(warnings, &found);
    if (errors)
        *errors += found;
    return found.isEmpty();
}

} // namespace orv::SamplesCheck
