#include "orv/propertyeditor/editors/SlowQuestion.h"

#include <orv/core/DetachedWork.h>

#include <condition_variable>
#include <mutex>

namespace orv {

namespace {

class Mailbox;

/// What the thread and the one who asks share; the thread keeps it until it ends.
struct Letter
{
    std::mutex mutex;
    std::condition_variable arrived;
    std::optional<bool> answer;
    Mailbox *mailbox = nullptr; ///< of one who no longer waits; null when that one has gone
};

/// Takes the answer to one who has gone on with other things.
class Mailbox : public QObject
{
public:
    Mailbox(std::shared_ptr<Letter> letter, std::function<void(bool)> late, QObject *context)
        : QObject(context)
        , m_letter(std::move(letter))
        , m_late(std::move(late))
    {}
    ~Mailbox() override
    {
        const std::scoped_lock lock(m_letter->mutex);
        m_letter->mailbox = nullptr;
    }
    Q_DISABLE_COPY_MOVE(Mailbox)

    void open()
    {
        deleteLater();
        m_late(*m_letter->answer);
    }

private:
    const std::shared_ptr<Letter> m_letter;
    const std::function<void(bool)> m_late;
};

void answer(const std::shared_ptr<Letter> &letter, bool isYes)
{
    const std::scoped_lock lock(letter->mutex);
    letter->answer = isYes;
    letter->arrived.notify_all();
    if (letter->mailbox)
        QMetaObject::invokeMethod(letter->mailbox, &Mailbox::open, Qt::QueuedConnection);
}

} // namespace

std::optional<bool> SlowQuestion::ask(std::function<bool()> question, QObject *context,
                                      std::function<void(bool)> late, std::chrono::milliseconds patience)
{
    auto letter = std::make_shared<Letter>();
    // Detached: nobody can end a thread that a disk holds.
    const Error error =
        DetachedWork::start([letter, question = std::move(question)] { answer(letter, question()); });
    // Nothing is known then, as of a disk that never answers.
    if (error.hasError())
        return std::nullopt;
    std::unique_lock lock(letter->mutex);
    letter->arrived.wait_for(lock, patience, [&letter] { return letter->answer.has_value(); });
    if (!letter->answer)
        letter->mailbox = new Mailbox(letter, std::move(late), context);
    return letter->answer;
}

} // namespace orv
