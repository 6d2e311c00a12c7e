#include "orv/propertyeditor/content/Ms2SearchMatcher.h"

#include <orv/core/Logging.h>
#include <orv/project/KarvonResultFile.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <algorithm>

namespace orv::PropertyEditor {

namespace {

void warn(const Error &error)
{
    qCWarning(propertyEditorLog).noquote()
        << "Cannot read the result of a search:"
        << (error.errorMessages() + error.details()).join(QLatin1Char(' '));
}

QList<ResourceReferenceSPtr> msFilesOf(const ResourceReferenceSPtr &result)
{
    const Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(result);
    if (!handler) {
        warn(handler.error());
        return {};
    }
    const Result<QString> path = handler.value()->grab();
    if (!path) {
        warn(path.error());
        return {};
    }
    const Result<QStringList> texts = getMSFilesFromKarvrslt(*path);
    if (!texts)
        warn(texts.error());
    QList<ResourceReferenceSPtr> files = ResourceReferenceUtils::fromStringList(texts.valueOr({}));
    if (!files.isEmpty())
        return files;
    const auto filesOfProject = PropertyEditorUtils::msFilesFromDocumentWorkflow(*path);
    if (!filesOfProject)
        warn(filesOfProject.error());
    return filesOfProject.valueOr({});
}

} // namespace

bool Ms2SearchMatcher::matches(const ResourceReferenceSPtr &result, const ResourceReferenceSPtr &msFile)
{
    if (!ResourceTypeChecker::isKarvonResultFileType(result))
        return false;
    auto files = m_files.find(result);
    if (files == m_files.end()) {
        QSet<ResourceReferenceKey> keys;
        for (const ResourceReferenceSPtr &file : msFilesOf(result))
            keys.insert(file);
        files = m_files.insert(result, keys);
    }
    return files->contains(msFile);
}

bool Ms2SearchMatcher::isSearched(const SamplesInput::Entry &sample)
{
    return std::ranges::any_of(sample.extraReferences, [this, &sample](const ResourceReferenceSPtr &result) {
        return matches(result, sample.msFile);
    });
}

bool ms2SearchMatchesMsFile(const ResourceReferenceSPtr &result, const ResourceReferenceSPtr &msFile)
{
    return Ms2SearchMatcher().matches(result, msFile);
}

} // namespace orv::PropertyEditor
