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

#include <functional>
#include <optional>
#include <vector>

namespace UpgradeRuns {

struct Step
{
    const char *version;
    bool needsSampleData;
    std::function<orv::Error(orv::WflwUpgradeHelper &, orv::PropertyEditorContent *)> run;
};

/// Every step as a host may call it, in order. Step 5.16.1 is given \a initial.
inline std::vector<Step> steps(const orv::PropertyEditorContent &initial)
{
    using Helper = orv::WflwUpgradeHelper;
    const auto step5_16_1 = [initial](Helper &helper, orv::PropertyEditorContent *content) {
        return helper.upgradeV_5_16_1(content, &initial,
                                      orv::WflwMetaData::versionNumberFromMetaDataObject(initial.metadata()));
    };
    return {{"5.6.0", false, &Helper::upgradeV_5_6_0},   {"5.9.0", false, &Helper::upgradeV_5_9_0},
            {"5.10.1", true, &Helper::upgradeV_5_10_1},  {"5.12.0", false, &Helper::upgradeV_5_12_0},
            {"5.12.2", false, &Helper::upgradeV_5_12_2}, {"5.13.0", false, &Helper::upgradeV_5_13_0},
            {"5.15.0", false, &Helper::upgradeV_5_15_0}, {"5.16.1", false, step5_16_1},
            {"5.17.0", false, &Helper::upgradeV_5_17_0}, {"5.18.0", false, &Helper::upgradeV_5_18_0},
            {"5.19.0", false, &Helper::upgradeV_5_19_0}, {"5.20.0", false, &Helper::upgradeV_5_20_0},
            {"5.21.0", false, &Helper::upgradeV_5_21_0}, {"5.22.0", false, &Helper::upgradeV_5_22_0},
            {"5.23.0", false, &Helper::upgradeV_5_23_0}, {"5.24.0", false, &Helper::upgradeV_5_24_0},
            {"5.25.0", false, &Helper::upgradeV_5_25_0}, {"5.26.0", false, &Helper::upgradeV_5_26_0},
            {"5.27.0", false, &Helper::upgradeV_5_27_0}, {"5.28.0", false, &Helper::upgradeV_5_28_0},
            {"5.29.0", false, &Helper::upgradeV_5_29_0}, {"5.30.0", false, &Helper::upgradeV_5_30_0},
            {"5.31.0", false, &Helper::upgradeV_5_31_0}, {"5.32.0", false, &Helper::upgradeV_5_32_0},
            {"5.33.0", false, &Helper::upgradeV_5_33_0}, {"5.34.0", false, &Helper::upgradeV_5_34_0},
            {"5.35.0", false, &Helper::upgradeV_5_35_0}, {"5.36.0", false, &Helper::upgradeV_5_36_0},
            {"5.37.0", false, &Helper::upgradeV_5_37_0}, {"5.38.0", false, &Helper::upgradeV_5_38_0},
            {"5.39.0", true, &Helper::upgradeV_5_39_0},  {"5.40.0", false, &Helper::upgradeV_5_40_0},
            {"5.41.0", false, &Helper::upgradeV_5_41_0}, {"5.42.0", false, &Helper::upgradeV_5_42_0},
            {"5.43.0", false, &Helper::upgradeV_5_43_0}, {"5.44.0", false, &Helper::upgradeV_5_44_0},
            {"5.45.0", false, &Helper::upgradeV_5_45_0}, {"5.46.0", false, &Helper::upgradeV_5_46_0},
            {"5.47.0", false, &Helper::upgradeV_5_47_0}};
}

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
    for (const Step &step : steps(*document)) {
        if (version != QLatin1String(step.version))
            continue;
        const orv::Error error = step.run(helper, document);
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
    for (const Step &step : steps(initial)) {
        if (step.needsSampleData ||
            versionOf(initial) >= QVersionNumber::fromString(QLatin1String(step.version)))
            continue;
        orv::WflwUpgradeHelper helper;
        ORV_RETURN_IF_ERROR(step.run(helper, document));
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
