#include "orv/propertyeditor/workflow/WorkflowRelink.h"

#include "MovedPaths.h"
#include "ReferenceWalk.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace orv::WorkflowRelink {

namespace {

using Kind = ReferenceWalk::Kind;

struct WorkflowRelinkTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowRelink)
};

/// Whether what texts name is there, each asked for once.
class NamedResources
{
public:
    explicit NamedResources(const QUrl &baseUrl)
        : m_baseUrl(baseUrl)
    {}

    std::optional<bool> exist(Kind kind, const QString &text)
    {
        const auto known = m_known.constFind({int(kind), text});
        if (known != m_known.cend())
            return *known;
        return *m_known.insert({int(kind), text}, ask(kind, text));
    }

private:
    [[nodiscard]] std::optional<bool> ask(Kind kind, const QString &text) const
    {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
        if (reference.hasError() ||
            (ResourceReferenceUtils::isRelative(*reference) && !m_baseUrl.isLocalFile()))
            return {};
        const Result<bool> exists =
            ResourceHandlerUtils::exists(ResourceReferenceUtils::resolved(*reference, m_baseUrl));
        if (exists.hasError())
            return {};
        return *exists || (kind == Kind::GlycanDatabase && isInFolder((*reference)->text()));
    }

    /// Portable workflows name their databases as if they lay at the root.
    [[nodiscard]] bool isInFolder(const QString &path) const
    {
        return path.startsWith(QLatin1Char('/')) && m_baseUrl.isLocalFile() &&
               QFileInfo::exists(m_baseUrl.toLocalFile() + path.mid(1));
    }

    const QUrl m_baseUrl;
    QHash<std::pair<int, QString>, std::optional<bool>> m_known;
};

Error checkRules(const QList<WorkflowRelinkRule> &rules)
{
    for (const WorkflowRelinkRule &rule : rules) {
        if (!rule.from.isEmpty() && !rule.to.isEmpty())
            continue;
        return Error(ErrorCode::InvalidContent,
                     WorkflowRelinkTr::tr("Moving references from \"%1\" to \"%2\" needs two texts.")
                         .arg(rule.from, rule.to))
            .addDetail(WorkflowRelinkTr::tr("Name what the references begin with, and what they are to begin "
                                            "with; \".\" is the workflow's own folder."));
    }
    return Error::NoError;
}

QString shown(const QString &text)
{
    return ResourceReferenceUtils::withoutCredentials(text);
}

/// A text of any setting is taken for a path if it begins with an absolute one.
QList<WorkflowRelinkRule> rulesForAnyText(QList<WorkflowRelinkRule> rules)
{
    rules.removeIf([](const WorkflowRelinkRule &rule) {
        const ResourceReferenceSPtr reference =
            ResourceReference::fromString(rule.from).valueOr(ResourceReferenceSPtr());
        return !reference || ResourceReferenceUtils::isRelative(reference);
    });
    return rules;
}

} // namespace

Result<WorkflowRelinkReport> run(const QJsonObject &document, const QList<WorkflowRelinkRule> &rules,
                                 const QUrl &baseUrl)
{
    ORV_RETURN_IF_ERROR(checkRules(rules));
    const MovedPaths paths(rules);
    const MovedPaths absolutePaths(rulesForAnyText(rules));
    NamedResources resources(baseUrl);
    WorkflowRelinkReport report;
    const ReferenceWalk walk([&](Kind kind, const ReferenceWalk::Place &place, const QString &text) {
        const bool isPlain = kind == Kind::PlainText;
        std::optional<QString> moved = isPlain ? absolutePaths.moved(text) : paths.moved(text);
        if (moved && *moved != text) {
            report.relinked.append(
                {place.path, place.pointer, shown(text), shown(*moved), resources.exist(kind, *moved)});
            return moved;
        }
        const std::optional<bool> exists = isPlain ? true : resources.exist(kind, text);
        if (exists != true)
            report.left.append({place.path, place.pointer, shown(text), exists});
        return std::optional<QString>();
    });
    report.document = walk.walk(document);
    return report;
}

} // namespace orv::WorkflowRelink
