#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <optional>

namespace orv::cli {

/// One thing that a step of an upgrade did.
struct UpgradeChange
{
    enum class Kind
    {
        Added,
        Removed,
        Renamed, ///< the setting has another name; `from` and `to` are the names
        Moved,   ///< the setting has another group
        Changed,
    };

    Kind kind = Kind::Changed;
    QString path;
    QString property;
    QJsonValue from; ///< undefined for what was added
    QJsonValue to;   ///< undefined for what was removed
};

struct UpgradeStep
{
    QVersionNumber version;
    QList<UpgradeChange> changes;
};

struct UpgradeOptions
{
    bool accessSampleData = true;
    QString user; ///< to stamp with; empty for the current one
};

/// What became of one document. Nothing is written yet.
struct UpgradeAnswer
{
    QString file;
    QVersionNumber from;
    QVersionNumber to;
    std::optional<WflwMetaData::WflwState> state; ///< before; none for what is no workflow
    QStringList notes;
    bool isChanged = false;
    QList<UpgradeStep> steps;
    QList<Loss> lost;
    QByteArray original;
    QByteArray upgraded; ///< the original bytes when nothing is changed
    std::optional<Failure> failure;
};

[[nodiscard]] UpgradeAnswer upgradeWorkflow(const BatchInput &input, const UpgradeOptions &options);

} // namespace orv::cli
