#pragma once

#include <orv/core/Export.h>
#include <orv/resources/ResourceReference.h>

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace orv {

/// Asks in the background whether the files of samples exist and which format they have, for marks beside
/// them. A few threads ask, each file once until it is forgotten. A file that never answers, as on a network
/// drive that is gone, keeps one thread busy and nobody waiting: the checker can go at any time. GUI thread.
class ORV_WORKFLOW_EXPORT SampleFileChecker : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Found,
        Missing,
        NotChecked, ///< it lies on a server, counts from an unknown folder, or can't be asked for
    };

    struct Answer
    {
        State state = State::NotChecked;
        QString text; ///< for people: the format of what was found, or why nothing is known

        bool operator==(const Answer &) const = default;
    };

    /// Is called on several threads at once.
    using Question = std::function<Answer(const ResourceReferenceSPtr &file)>;

    /// Asks the disk. Only the handler of this system is asked on other threads; what another one handles is
    /// NotChecked.
    explicit SampleFileChecker(QObject *parent = nullptr);
    explicit SampleFileChecker(Question question, QObject *parent = nullptr);
    /// Doesn't wait for what is being asked.
    ~SampleFileChecker() override;

    /// Nothing while the file is being asked for, which begins with the first call; null and empty ones are
    /// never.
    [[nodiscard]] std::optional<Answer> answer(const ResourceReferenceSPtr &file);
    /// Forgets all answers, so that files that have come are seen.
    void forget();

    /// Whether something is still being asked.
    [[nodiscard]] bool isBusy() const;

    /// What the disk tells of a local file. Blocks; any thread.
    [[nodiscard]] static Answer askDisk(const ResourceReferenceSPtr &file);

Q_SIGNALS:
    /// There are new answers.
    void answered();

private:
    class Work;
    void takeAnswers();

    const std::shared_ptr<Work> m_work;
    QHash<QString, std::optional<Answer>> m_answers; ///< by the references' keys; nothing while it is asked
    int m_pending = 0;
};

} // namespace orv
