#pragma once

#include <orv/remote/BaseTask.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <utility>

namespace orv {

class ServerSettings;
class ServerTask;

/// A question to the Talvane server, which TalvaneConnection sends.
class ORV_WORKFLOW_EXPORT TalvaneTask : public BaseTask
{
    Q_OBJECT

public:
    ~TalvaneTask() override;

protected:
    using Query = QList<std::pair<QString, QString>>;

    TalvaneTask();

    /// The place of the answer below the server's address, and what is asked for there.
    [[nodiscard]] virtual QString path() const = 0;
    [[nodiscard]] virtual Query query() const = 0;
    /// Takes the JSON text of a good answer in.
    [[nodiscard]] virtual Error readAnswer(const QByteArray &json) = 0;

private:
    friend class TalvaneConnection;

    [[nodiscard]] Error send(const ServerSettings &server);
    void start() override;
    void abort() override;

    std::unique_ptr<ServerSettings> m_server; // until the task is started
    std::unique_ptr<ServerTask> m_request;
};

} // namespace orv
