#include "orv/core_ms/SampleFileChecker.h"

#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/core_ms/MsFileInfo.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>

#include <algorithm>
#include <deque>
#include <mutex>
#include <thread>

namespace orv {

namespace {

/// More don't make a network drive quicker.
constexpr int kThreads = 4;

QString formatOf(const ResourceReferenceSPtr &file)
{
    QStringList names;
    const QString path = ResourceHandlerUtils::fullPath(file);
    for (const msreader::VendorDataFormat format : MsDataFileUtils::detectPossibleVendorFormats(path))
        names.append(msreader::MsFileInfo::formatDescription(format));
    if (names.isEmpty())
        return FileTypes::description(ResourceReferenceUtils::type(file));
    std::sort(names.begin(), names.end());
    return names.join(QLatin1String(", "));
}

} // namespace

/// What the threads and the checker share; the threads keep it until the last of them ends.
class SampleFileChecker::Work : public std::enable_shared_from_this<Work>
{
public:
    Work(Question question, SampleFileChecker *checker)
        : m_question(std::move(question))
        , m_checker(checker)
    {}

    void ask(const ResourceReferenceSPtr &file)
    {
        const std::scoped_lock lock(m_mutex);
        m_queue.push_back(file);
        if (m_threads == kThreads)
            return;
        ++m_threads;
        // Detached, as a file that never answers must not keep anybody who waits for the thread.
        std::thread([work = shared_from_this()] { work->run(); }).detach();
    }

    void forget()
    {
        const std::scoped_lock lock(m_mutex);
        m_queue.clear();
        m_answers.clear();
        ++m_generation;
    }

    void leave()
    {
        forget();
        const std::scoped_lock lock(m_mutex);
        m_checker = nullptr;
    }

    [[nodiscard]] QHash<QString, Answer> take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_answers, {});
    }

private:
    void run()
    {
        for (;;) {
            ResourceReferenceSPtr file;
            int generation = 0;
            {
                const std::scoped_lock lock(m_mutex);
                if (m_queue.empty()) {
                    --m_threads;
                    return;
                }
                file = m_queue.front();
                m_queue.pop_front();
                generation = m_generation;
            }
            tell(file, m_question(file), generation);
        }
    }

    void tell(const ResourceReferenceSPtr &file, const Answer &answer, int generation)
    {
        const std::scoped_lock lock(m_mutex);
        if (generation != m_generation || !m_checker)
            return;
        // One message for all answers that come before it is heard.
        if (m_answers.isEmpty())
            QMetaObject::invokeMethod(m_checker, &SampleFileChecker::takeAnswers, Qt::QueuedConnection);
        m_answers.insert(file->key(), answer);
    }

    const Question m_question;
    std::mutex m_mutex;
    std::deque<ResourceReferenceSPtr> m_queue;
    QHash<QString, Answer> m_answers;
    SampleFileChecker *m_checker; ///< null when it has gone
    int m_threads = 0;
    int m_generation = 0;
};

SampleFileChecker::SampleFileChecker(QObject *parent)
    : SampleFileChecker(&SampleFileChecker::askDisk, parent)
{}

SampleFileChecker::SampleFileChecker(Question question, QObject *parent)
    : QObject(parent)
    , m_work(std::make_shared<Work>(std::move(question), this))
{}

SampleFileChecker::~SampleFileChecker()
{
    m_work->leave();
}

std::optional<SampleFileChecker::Answer> SampleFileChecker::answer(const ResourceReferenceSPtr &file)
{
    if (!file || file->isEmpty())
        return std::nullopt;
    if (const auto known = m_answers.constFind(file->key()); known != m_answers.cend())
        return *known;
    if (ResourceReferenceUtils::isRelative(file))
        return Answer{State::NotChecked, tr("not checked: the folder of the document is not known")};
    if (!file->isScheme(ResourceReference::Scheme::LocalFile) ||
        !ResourceManager::isBuiltIn(ResourceReference::Scheme::LocalFile))
        return Answer{State::NotChecked, tr("not checked: on a server")};
    m_answers.insert(file->key(), std::nullopt);
    ++m_pending;
    m_work->ask(file);
    return std::nullopt;
}

void SampleFileChecker::forget()
{
    m_work->forget();
    m_answers.clear();
    m_pending = 0;
}

bool SampleFileChecker::isBusy() const
{
    return m_pending > 0;
}

void SampleFileChecker::takeAnswers()
{
    const QHash<QString, Answer> answers = m_work->take();
    for (auto it = answers.cbegin(); it != answers.cend(); ++it) {
        m_answers.insert(it.key(), it.value());
        --m_pending;
    }
    if (!answers.isEmpty())
        Q_EMIT answered();
}

SampleFileChecker::Answer SampleFileChecker::askDisk(const ResourceReferenceSPtr &file)
{
    const Result<bool> exists = ResourceHandlerUtils::exists(file);
    if (exists.hasError())
        return {State::NotChecked, exists.error().errorMessage()};
    return *exists ? Answer{State::Found, formatOf(file)} : Answer{State::Missing, tr("not found")};
}

} // namespace orv
