#include "RememberedAnswer.h"

#include <orv/core/Logging.h>
#include <orv/core/OrvApplication.h>
#include <orv/core_ms/CustomSettingsUtils.h>
#include <orv/core_ms/MsDataAccessorsFactory.h>
#include <orv/core_ms/MsUtils.h>
#include <orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>

namespace orv {

namespace {

using Answer = MissingFileQuestions::Answer;
using FoundTrace = TracesImportList::Entry;

struct MirelElutionPeaksBackwardsCompatibilityTr
{
    Q_DECLARE_TR_FUNCTIONS(MirelElutionPeaksBackwardsCompatibility)
};

/// Null where nobody is to be asked.
std::shared_ptr<MissingFileQuestions> person()
{
    return OrvApplication::isConsoleApplication() ? nullptr : MissingFileQuestions::instance();
}

void showOrLog(const Error &error)
{
    if (const auto questions = person())
        questions->showError(MirelElutionPeaksBackwardsCompatibilityTr::tr("Error"), error.errorMessage());
    else
        qCWarning(propertyEditorLog).noquote() << error.errorMessage();
}

MissingFileQuestions::Question questionAbout(const QString &path)
{
    return {.title = MirelElutionPeaksBackwardsCompatibilityTr::tr("File does not exist"),
            .text = MirelElutionPeaksBackwardsCompatibilityTr::tr(
                        "The file: \"%1\" was not found. Would you like to load this file from another "
                        "directory? If you choose to continue, the traces for this file will not be loaded.")
                        .arg(path),
            .findButton = MirelElutionPeaksBackwardsCompatibilityTr::tr("Find file"),
            .cancelButton = MirelElutionPeaksBackwardsCompatibilityTr::tr("Continue"),
            .checkBox = MirelElutionPeaksBackwardsCompatibilityTr::tr("Do not ask again (for this workflow)"),
            .checkBoxObjectName = QStringLiteral("DoNotAskAgainCheckBox")};
}

Answer answerAbout(const QString &path, MissingFileQuestions *questions, bool *stopAsking)
{
    if (!questions) {
        qCWarning(propertyEditorLog).noquote()
            << "File" << path << "not found. Cannot load traces for this file.";
        return Answer::Cancel;
    }
    if (*stopAsking)
        return RememberedAnswer::answer();
    const MissingFileQuestions::Reply reply = questions->ask(questionAbout(path));
    if (reply.isBoxChecked) {
        RememberedAnswer::remember(reply.answer);
        *stopAsking = true;
    }
    return reply.answer;
}

/// The file that a person chooses in place of the missing \a reference; null for none.
ResourceReferenceSPtr replacement(const ResourceReferenceSPtr &reference, bool *stopAsking)
{
    const auto questions = person();
    const QString path = ResourceReferenceUtils::toString(reference, true);
    if (answerAbout(path, questions.get(), stopAsking) == Answer::Cancel)
        return {};
    const QString chosen = questions->chooseFile(MirelElutionPeaksBackwardsCompatibilityTr::tr("Ms file"));
    if (chosen.isEmpty())
        return {};
    Result<ResourceReferenceSPtr> found = ResourceReference::fromString(chosen);
    if (found.hasError())
        showOrLog(found.ecatch());
    return found.valueOr({});
}

bool isMissing(const ResourceReferenceSPtr &reference)
{
    // A home that can't be asked fails when the file is fetched, with its own words.
    const Result<bool> exists = ResourceHandlerUtils::exists(reference);
    return exists && !*exists;
}

Result<QList<TraceItem>> tracesAt(const QString &path)
{
    msreader::MsReaderOptions options(path);
    CustomSettingsUtils::extendFromCurrentCustomSettings(&options);
    const auto reader = msreader::MsDataAccessorsFactory::createReader(options);
    ORV_RETURN_IF_ERROR(reader->open());
    Result<QList<TraceItem>> traces = MsUtils::extractTraces(*reader);
    if (traces.hasError())
        return traces.ecatch();
    return *traces;
}

bool isImportedAtFirst(const TraceItem &trace, bool isFirst)
{
    return trace.type() != TraceType::Bpi && (trace.type() != TraceType::Tic || isFirst);
}

QList<FoundTrace> entriesOf(const QList<TraceItem> &traces)
{
    QList<FoundTrace> entries;
    for (const TraceItem &trace : traces) {
        FoundTrace entry(trace);
        entry.setImported(isImportedAtFirst(trace, entries.isEmpty()));
        entries.append(entry);
    }
    return entries;
}

} // namespace

QList<FoundTrace> extractTracesFromMsFile(QSharedPointer<ResourceReference> *reference, bool *stopAsking,
                                          const QUrl &baseUrl)
{
    if (!*reference || (*reference)->isEmpty())
        return {};
    if (isMissing(ResourceReferenceUtils::resolved(*reference, baseUrl))) {
        const ResourceReferenceSPtr found = replacement(*reference, stopAsking);
        if (!found)
            return {};
        *reference = found;
    }
    Result<ResourceHandlerSPtr> handler =
        ResourceManager::getHandler(ResourceReferenceUtils::resolved(*reference, baseUrl));
    Result<QString> path = handler ? (*handler)->grab() : Result<QString>(handler.error());
    if (path.hasError()) {
        showOrLog(path.ecatch());
        return {};
    }
    Result<QList<TraceItem>> traces = tracesAt(*path);
    if (traces.hasError()) {
        const QStringList reasons = traces.ecatch().errorMessages() + traces.error().details();
        qCWarning(propertyEditorLog).noquote()
            << "Cannot load the traces of a file:" << reasons.join(QLatin1Char(' '));
        return {};
    }
    return entriesOf(*traces);
}

} // namespace orv
