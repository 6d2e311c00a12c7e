#pragma once

#include <orv/core/OrvApplication.h>
#include <orv/propertyeditor/workflow/MissingFileQuestions.h>

#include <QList>
#include <QStringList>

/// A person who answers each question alike, and what that person has seen.
class RecordingQuestions : public orv::MissingFileQuestions
{
public:
    Reply reply;
    QString chosen;

    QList<Question> questions;
    QStringList dialogs;
    QStringList errors; ///< "title: text"

    Reply ask(const Question &question) override
    {
        questions.append(question);
        return reply;
    }
    QString chooseFile(const QString &title) override
    {
        dialogs.append(title);
        return chosen;
    }
    void showError(const QString &title, const QString &text) override
    {
        errors.append(title + QStringLiteral(": ") + text);
    }
};

/// While it lives, the program has windows and that person in front of them.
class PersonAtTheScreen
{
public:
    PersonAtTheScreen()
    {
        orv::OrvApplication::setConsoleApplication(false);
        orv::MissingFileQuestions::setInstance(m_questions);
    }
    ~PersonAtTheScreen()
    {
        orv::OrvApplication::setConsoleApplication({});
        orv::MissingFileQuestions::setInstance(nullptr);
        orv::MissingFileQuestions::forgetAnswer();
    }
    Q_DISABLE_COPY_MOVE(PersonAtTheScreen)

    RecordingQuestions *operator->() const { return m_questions.get(); }

private:
    std::shared_ptr<RecordingQuestions> m_questions = std::make_shared<RecordingQuestions>();
};
