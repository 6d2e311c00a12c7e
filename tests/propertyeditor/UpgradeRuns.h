// Upgrades of documents, whole and step by step.
#pragma once

#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QVersionNumber>

#include <optional>

namespace UpgradeRuns {

inline QVersionNumber versionOf(const orv::PropertyEditorContent &document)
{
    return orv::WflwMetaData::versionNumberFromMetaDataObject(document.metadata());
}

/// While it lives, the line for each sample whose file isn't there is no surprise; all others stay one.
class WithoutSampleFiles
{
public:
    WithoutSampleFiles() = default;
    ~WithoutSampleFiles()
    {
        const QStringList warnings = m_log->warnings();
        m_log.reset();
        for (const QString &warning : warnings) {
            if (!warning.endsWith(QLatin1String("not found. Cannot load traces for this file.")))
                qWarning("%s", qPrintable(warning));
        }
    }
    Q_DISABLE_COPY_MOVE(WithoutSampleFiles)

private:
    std::optional<LogCapture> m_log{std::in_place};
};

/// One step alone, which needn't be due.
inline orv::Error runStep(const QString &version, orv::PropertyEditorContent *document,
                          QList<QString> *notes = nullptr)
{
    const WithoutSampleFiles expected;
    orv::WflwUpgradeHelper helper;
    const orv::PropertyEditorContent initial(*document);
    for (const orv::WflwUpgradeStep &step : orv::WflwUpgrader::steps()) {
        if (version != step.version.toString())
            continue;
        const orv::Error error = step.take(helper, document, initial, versionOf(initial));
        if (notes)
            *notes = helper.notes();
        return error;
    }
    qFatal("There is no step to %s", qPrintable(version));
}

/// The whole chain, from the version that the document declares; the samples' files stay closed.
inline orv::Error runChain(orv::PropertyEditorContent *document, QList<QString> *notes = nullptr)
{
    const WithoutSampleFiles expected;
    return orv::WflwUpgrader::upgradeWorkflow(versionOf(*document), document, notes, false);
}

/// What the chain does, with a helper for each step, so that none shares anything with another.
inline orv::Error runApart(orv::PropertyEditorContent *document)
{
    const WithoutSampleFiles expected;
    const orv::PropertyEditorContent initial(*document);
    for (const orv::WflwUpgradeStep &step : orv::WflwUpgrader::steps()) {
        if (step.needsSampleData || versionOf(initial) >= step.version)
            continue;
        orv::WflwUpgradeHelper helper;
        ORV_RETURN_IF_ERROR(step.take(helper, document, initial, versionOf(initial)));
    }
    orv::WflwUpgradeHelper helper;
    if (versionOf(*document) < orv::WflwMetaData::currentWorkflowVersion())
        ORV_RETURN_IF_ERROR(helper.upgradeToCurrentWorkflowVersion(document));
    return orv::Error::NoError;
}

/// The document as it lies in memory, without what the moment of writing puts in: user and time everywhere.
inline QJsonObject withoutMoment(const orv::PropertyEditorContent &document)
{
    // A copy of the value form stamps nothing but what toJson renews.
    QJsonObject json = QJsonDocument::fromJson(document.toJson()).object();
    json = orv::PropertyEditorJsonUtils::withoutStamps(json);
    QJsonObject metadata = document.metadata();
    metadata.remove(QStringLiteral("user"));
    metadata.remove(QStringLiteral("created"));
    json.insert(QStringLiteral("metadata"), metadata);
    json.insert(QStringLiteral("extendedMetadata"), document.extendedMetadataInfo());
    return json;
}

} // namespace UpgradeRuns
