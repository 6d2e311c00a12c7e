#include "ReferenceTexts.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SampleUtils.h>

#include <QCoreApplication>

namespace orv::ReferenceTexts {

namespace {

struct ReferenceTextsTr
{
    Q_DECLARE_TR_FUNCTIONS(ReferenceTexts)
};

} // namespace

QString toText(const QList<ResourceReferenceSPtr> &references)
{
    return joinSamples(ResourceReferenceUtils::toStringList(references));
}

QList<ResourceReferenceSPtr> fromText(const QString &text)
{
    QList<ResourceReferenceSPtr> references;
    for (const QString &part : splitSamples(text)) {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(part);
        if (!reference.hasError() && !(*reference)->isEmpty())
            references.append(*reference);
    }
    return references;
}

QString problem(QStringView text)
{
    if (text.isEmpty() || ResourceReference::isReference(text.toString()))
        return {};
    return ReferenceTextsTr::tr("\"%1\" is no reference to a file. Enter a path, or choose a file.")
        .arg(text);
}

QString problemOfList(QStringView text)
{
    for (const QString &part : splitSamples(text.toString())) {
        if (QString reason = problem(part); !reason.isEmpty())
            return reason;
    }
    return {};
}

} // namespace orv::ReferenceTexts
