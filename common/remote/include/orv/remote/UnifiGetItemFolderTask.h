#pragma once

#include <orv/remote/Task.h>
#include <orv/remote/UnifiResourceMetadata.h>

#include <QString>

#include <memory>

namespace orv {

class ServerTask;

/// Asks the UNIFI server of the settings (UnifiSettings) for the folder in which an item lies. Fails when
/// UNIFI is switched off.
class ORV_WORKFLOW_EXPORT UnifiGetItemFolderTask : public Task
{
    Q_OBJECT

public:
    /// \a itemId without braces, as references have it.
    explicit UnifiGetItemFolderTask(QString itemId);
    ~UnifiGetItemFolderTask() override;

    /// Empty until the task has succeeded.
    [[nodiscard]] const UnifiResourceMetadata::Folder &folder() const { return m_folder; }

private:
    void start() override;
    void abort() override;

    QString m_itemId;
    UnifiResourceMetadata::Folder m_folder;
    std::unique_ptr<ServerTask> m_request;
};

} // namespace orv
