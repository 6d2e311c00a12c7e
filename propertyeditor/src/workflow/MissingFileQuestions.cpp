#include "RememberedAnswer.h"

#include <QMutex>

namespace orv {

namespace {

struct State
{
    QMutex mutex;
    std::shared_ptr<MissingFileQuestions> questions;
    MissingFileQuestions::Answer answer = MissingFileQuestions::Answer::Cancel;
    bool isAskingStopped = false;
};

State &state()
{
    static State instance;
    return instance;
}

} // namespace

MissingFileQuestions::~MissingFileQuestions() = default;

void MissingFileQuestions::setInstance(const std::shared_ptr<MissingFileQuestions> &questions)
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    now.questions = questions;
}

std::shared_ptr<MissingFileQuestions> MissingFileQuestions::instance()
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    return now.questions;
}

void MissingFileQuestions::forgetAnswer()
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    now.answer = Answer::Cancel;
    now.isAskingStopped = false;
}

namespace RememberedAnswer {

MissingFileQuestions::Answer answer()
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    return now.answer;
}

bool isAskingStopped()
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    return now.isAskingStopped;
}

void remember(MissingFileQuestions::Answer answer)
{
    State &now = state();
    const QMutexLocker locker(&now.mutex);
    now.answer = answer;
    now.isAskingStopped = true;
}

} // namespace RememberedAnswer

} // namespace orv
