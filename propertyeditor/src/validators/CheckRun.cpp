#include "orv/propertyeditor/validators/CheckRun.h"

#include "SampleFiles.h"

#include <QHash>

#include <algorithm>
#include <tuple>

namespace orv::PropertyEditor {

namespace {

using Level = Finding::Level;

/// What makes two findings the same fact.
struct Fact
{
    Level level;
    QString message;
    FindingPlace place;

    bool operator==(const Fact &) const = default;
    friend size_t qHash(const Fact &fact, size_t seed = 0)
    {
        return qHashMulti(seed, int(fact.level), fact.message, fact.place.item, int(fact.place.property),
                          fact.place.sample, fact.place.sampleRow.value_or(-1));
    }
};

struct FoundFact
{
    Finding finding;
    qsizetype validator;
    qsizetype firstOfText; ///< number of the first finding of this validator with the same text and level

    [[nodiscard]] auto rank() const
    {
        return std::tuple(validator, finding.level == Level::Error ? 0 : 1, firstOfText);
    }
};

} // namespace

class CheckRun::Private
{
public:
    Private(const Content &checked, QUrl folder)
        : content(checked)
        , baseUrl(std::move(folder))
    {}

    void append(Finding finding)
    {
        finding.rule = finding.rule.isEmpty() ? validator : validator + QLatin1Char('/') + finding.rule;
        auto first = firstOfTexts.find({int(finding.level), finding.message});
        if (first == firstOfTexts.end())
            first = firstOfTexts.insert({int(finding.level), finding.message}, found.size());
        found.append({finding, validatorNumber, *first});
    }

    const Content &content;
    const QUrl baseUrl;
    bool repeatsInLog = true;
    SampleFiles files;
    QString validator;
    qsizetype validatorNumber = 0;
    QHash<std::pair<int, QString>, qsizetype> firstOfTexts; ///< of the present validator
    QList<FoundFact> found;
    QList<QString> errors;
    QList<QString> warnings;
};

CheckRun::CheckRun(const Content &content, const QUrl &workflowBaseUrl)
    : d(std::make_unique<Private>(content, workflowBaseUrl))
{}

CheckRun::~CheckRun() = default;

const Content &CheckRun::content() const
{
    return d->content;
}

const QUrl &CheckRun::workflowBaseUrl() const
{
    return d->baseUrl;
}

void CheckRun::setRepeatsInLog(bool repeats)
{
    d->repeatsInLog = repeats;
}

bool CheckRun::repeatsInLog() const
{
    return d->repeatsInLog;
}

void CheckRun::beginValidator(const QString &name)
{
    d->validator = name;
    ++d->validatorNumber;
    d->firstOfTexts.clear();
}

void CheckRun::error(const QString &message, const FindingPlace &place, const QString &hint)
{
    add({Level::Error, {}, message, place, hint});
}

void CheckRun::warning(const QString &message, const FindingPlace &place, const QString &hint)
{
    add({Level::Warning, {}, message, place, hint});
}

void CheckRun::add(const Finding &finding)
{
    add(finding, {finding.place});
}

void CheckRun::add(const Finding &finding, const QList<FindingPlace> &places)
{
    (finding.level == Level::Error ? d->errors : d->warnings).append(finding.message);
    for (const FindingPlace &place : places.isEmpty() ? QList{finding.place} : places) {
        Finding there = finding;
        there.place = place;
        d->append(there);
    }
}

const QList<QString> &CheckRun::errors() const
{
    return d->errors;
}

const QList<QString> &CheckRun::warnings() const
{
    return d->warnings;
}

QList<Finding> CheckRun::findings() const
{
    QList<FoundFact> ordered = d->found;
    std::ranges::stable_sort(ordered, {}, &FoundFact::rank);
    QList<Finding> findings;
    QSet<Fact> known;
    for (const FoundFact &fact : std::as_const(ordered)) {
        const Finding &finding = fact.finding;
        const qsizetype knownBefore = known.size();
        known.insert({finding.level, finding.message, finding.place});
        if (known.size() > knownBefore)
            findings.append(finding);
    }
    return findings;
}

SampleFiles &CheckRun::files()
{
    return d->files;
}

} // namespace orv::PropertyEditor
