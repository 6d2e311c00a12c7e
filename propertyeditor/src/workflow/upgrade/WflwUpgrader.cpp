#include "orv/propertyeditor/workflow/WflwUpgrader.h"

#include "DocumentComparison.h"
#include "UpgradeRun.h"
#include "WflwUpgradeHelper_p.h"

#include <orv/propertyeditor/workflow/TalvaneWflwUpgradeHelper.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUpgradeObserver.h>

#include <QCoreApplication>
#include <QVersionNumber>

#include <memory>

namespace orv {

namespace {

struct WflwUpgraderTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

/// What a run hands to its steps.
template<auto function>
Error call(WflwUpgradeHelper &helper, PropertyEditorContent *content,
           [[maybe_unused]] const PropertyEditorContent &initial,
           [[maybe_unused]] const QVersionNumber &initialVersion)
{
    if constexpr (std::is_invocable_v<decltype(function), WflwUpgradeHelper &, PropertyEditorContent *>)
        return (helper.*function)(content);
    else
        return (helper.*function)(content, &initial, initialVersion);
}

struct Step
{
    int minor;
    int patch;
    bool needsSampleData;
    decltype(WflwUpgradeStep::take) take;

    [[nodiscard]] QVersionNumber version() const { return {5, minor, patch}; }
};

using Helper = WflwUpgradeHelper;

constexpr bool kAlways = false;
constexpr bool kWithSampleData = true;

constexpr Step kSteps[] = {
    {6, 0, kAlways, &call<&Helper::upgradeV_5_6_0>},
    {9, 0, kAlways, &call<&Helper::upgradeV_5_9_0>},
    {10, 1, kWithSampleData, &call<&Helper::upgradeV_5_10_1>},
    {12, 0, kAlways, &call<&Helper::upgradeV_5_12_0>},
    {12, 2, kAlways, &call<&Helper::upgradeV_5_12_2>},
    {13, 0, kAlways, &call<&Helper::upgradeV_5_13_0>},
    {15, 0, kAlways, &call<&Helper::upgradeV_5_15_0>},
    {16, 1, kAlways, &call<&Helper::upgradeV_5_16_1>},
    {17, 0, kAlways, &call<&Helper::upgradeV_5_17_0>},
    {18, 0, kAlways, &call<&Helper::upgradeV_5_18_0>},
    {19, 0, kAlways, &call<&Helper::upgradeV_5_19_0>},
    {20, 0, kAlways, &call<&Helper::upgradeV_5_20_0>},
    {21, 0, kAlways, &call<&Helper::upgradeV_5_21_0>},
    {22, 0, kAlways, &call<&Helper::upgradeV_5_22_0>},
    {23, 0, kAlways, &call<&Helper::upgradeV_5_23_0>},
    {24, 0, kAlways, &call<&Helper::upgradeV_5_24_0>},
    {25, 0, kAlways, &call<&Helper::upgradeV_5_25_0>},
    {26, 0, kAlways, &call<&Helper::upgradeV_5_26_0>},
    {27, 0, kAlways, &call<&Helper::upgradeV_5_27_0>},
    {28, 0, kAlways, &call<&Helper::upgradeV_5_28_0>},
    {29, 0, kAlways, &call<&Helper::upgradeV_5_29_0>},
    {30, 0, kAlways, &call<&Helper::upgradeV_5_30_0>},
    {31, 0, kAlways, &call<&Helper::upgradeV_5_31_0>},
    {32, 0, kAlways, &call<&Helper::upgradeV_5_32_0>},
    {33, 0, kAlways, &call<&Helper::upgradeV_5_33_0>},
    {34, 0, kAlways, &call<&Helper::upgradeV_5_34_0>},
    {35, 0, kAlways, &call<&Helper::upgradeV_5_35_0>},
    {36, 0, kAlways, &call<&Helper::upgradeV_5_36_0>},
    {37, 0, kAlways, &call<&Helper::upgradeV_5_37_0>},
    {38, 0, kAlways, &call<&Helper::upgradeV_5_38_0>},
    {39, 0, kWithSampleData, &call<&Helper::upgradeV_5_39_0>},
    {40, 0, kAlways, &call<&Helper::upgradeV_5_40_0>},
    {41, 0, kAlways, &call<&Helper::upgradeV_5_41_0>},
    {42, 0, kAlways, &call<&Helper::upgradeV_5_42_0>},
    {43, 0, kAlways, &call<&Helper::upgradeV_5_43_0>},
    {44, 0, kAlways, &call<&Helper::upgradeV_5_44_0>},
    {45, 0, kAlways, &call<&Helper::upgradeV_5_45_0>},
    {46, 0, kAlways, &call<&Helper::upgradeV_5_46_0>},
    {47, 0, kAlways, &call<&Helper::upgradeV_5_47_0>},
};

std::unique_ptr<WflwUpgradeHelper> helperFor(const PropertyEditorContent &content)
{
    const bool isOnServer =
        WflwMetaData::contentMode(content.metadata()) == PropertyEditorContent::ContentMode::TalvaneMode;
    return isOnServer ? std::make_unique<TalvaneWflwUpgradeHelper>() : std::make_unique<WflwUpgradeHelper>();
}

/// Tells an observer, if there is one, of each step that changed something.
class Reporter
{
public:
    Reporter(WflwUpgradeObserver *observer, const PropertyEditorContent *content)
        : m_observer(observer)
        , m_content(content)
    {
        if (m_observer)
            m_before = *content;
    }

    void stepDone(const QVersionNumber &version, const QList<WflwUpgradeRenaming> &renamed)
    {
        if (!m_observer)
            return;
        const PropertyEditorContent before = m_before;
        m_before = *m_content;
        if (differ(before, m_before))
            m_observer->changed({version, before, m_before, renamed});
    }

private:
    WflwUpgradeObserver *m_observer;
    const PropertyEditorContent *m_content;
    PropertyEditorContent m_before;
};

bool isBelowCurrent(const PropertyEditorContent &content)
{
    return WflwMetaData::versionNumberFromMetaDataObject(content.metadata()) <
           WflwMetaData::currentWorkflowVersion();
}

} // namespace

/// Lets the steps of a helper belong to one run, while it lives. A run inside another takes its place.
class WflwUpgradeRunner
{
public:
    WflwUpgradeRunner(WflwUpgradeHelper *helper, PropertyEditorContent *content,
                      const WflwUpgradeOptions &options)
        : m_helper(helper)
        , m_content(content)
        , m_run(content)
        , m_outer(std::exchange(helper->d->run, &m_run))
        , m_outerBaseUrl(std::exchange(helper->d->baseUrl, options.baseUrl))
        , m_outerSilentServers(helper->d->silentServers)
    {
        if (options.silentServers)
            helper->d->silentServers = options.silentServers;
    }
    ~WflwUpgradeRunner()
    {
        m_helper->d->run = m_outer;
        m_helper->d->baseUrl = m_outerBaseUrl;
        m_helper->d->silentServers = m_outerSilentServers;
    }
    Q_DISABLE_COPY_MOVE(WflwUpgradeRunner)

    Error takeSteps(const QVersionNumber &version, const WflwUpgradeOptions &options)
    {
        const PropertyEditorContent initial = *m_content;
        Reporter reporter(options.observer, m_content);
        for (const Step &step : kSteps) {
            const bool isDue = QVersionNumber::compare(version, step.version()) < 0;
            if (!isDue || (step.needsSampleData && !options.accessSampleData))
                continue;
            if (Error error = step.take(*m_helper, m_content, initial, version)) {
                return error
                    .addDetail(WflwUpgraderTr::tr("The upgrade from version %1 stopped at the step to %2.")
                                   .arg(version.toString(), step.version().toString()))
                    .ecatch();
            }
            reporter.stepDone(step.version(), m_run.takeRenamed());
        }
        if (isBelowCurrent(*m_content)) {
            ORV_RETURN_IF_ERROR(m_helper->upgradeToCurrentWorkflowVersion(m_content));
            reporter.stepDone(WflwMetaData::currentWorkflowVersion(), m_run.takeRenamed());
        }
        return Error::NoError;
    }

private:
    WflwUpgradeHelper *m_helper;
    PropertyEditorContent *m_content;
    UpgradeRun m_run;
    UpgradeRun *m_outer;
    QUrl m_outerBaseUrl;
    SilentServers *m_outerSilentServers;
};

QList<WflwUpgradeStep> WflwUpgrader::steps()
{
    QList<WflwUpgradeStep> steps;
    for (const Step &step : kSteps)
        steps.append({step.version(), step.needsSampleData, step.take});
    return steps;
}

Error WflwUpgrader::upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                    QList<QString> *notes, bool accessSampleData)
{
    return upgradeWorkflow(version, content, notes, WflwUpgradeOptions{.accessSampleData = accessSampleData});
}

Error WflwUpgrader::upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                    QList<QString> *notes, bool accessSampleData,
                                    WflwUpgradeObserver *observer)
{
    return upgradeWorkflow(version, content, notes,
                           WflwUpgradeOptions{.accessSampleData = accessSampleData, .observer = observer});
}

Error WflwUpgrader::upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                    QList<QString> *notes, const WflwUpgradeOptions &options)
{
    return upgradeWorkflow(version, content, notes, options, helperFor(*content).get());
}

Error WflwUpgrader::upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                    QList<QString> *notes, const WflwUpgradeOptions &options,
                                    WflwUpgradeHelper *helper)
{
    // Equal in the number of segments, too: 5.47 isn't 5.47.0.
    if (version == WflwMetaData::currentWorkflowVersion())
        return Error::NoError;
    ORV_RETURN_IF_ERROR(WflwUpgradeRunner(helper, content, options).takeSteps(version, options));
    if (notes)
        *notes = helper->notes();
    return Error::NoError;
}

} // namespace orv
