#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QtGlobal>

#include <memory>

namespace orv {

/// Asks a person about files of an old document that aren't there. A host with windows makes a class of it
/// and registers an object; programs that run unattended have none, and go on without the files. The library
/// gives all texts, translated. Functions are called on the thread that upgrades, which must be one that may
/// show windows.
class ORV_WORKFLOW_EXPORT MissingFileQuestions
{
public:
    enum class Answer
    {
        Cancel,   ///< go on without the file
        FindFile, ///< let the person choose another one
    };

    /// A message box of kind question: two buttons and a check box.
    struct Question
    {
        QString title;
        QString text;
        QString findButton;   ///< caption of the button Yes, which answers FindFile
        QString cancelButton; ///< caption of the button Cancel
        QString checkBox;
        QString checkBoxObjectName;
    };

    struct Reply
    {
        Answer answer = Answer::Cancel;
        bool isBoxChecked = false;
    };

    MissingFileQuestions() = default;
    virtual ~MissingFileQuestions();
    Q_DISABLE_COPY_MOVE(MissingFileQuestions)

    [[nodiscard]] virtual Reply ask(const Question &question) = 0;
    /// The path of the file that a person chooses in a dialog of that title, empty for none.
    [[nodiscard]] virtual QString chooseFile(const QString &title) = 0;
    /// A message box of kind error.
    virtual void showError(const QString &title, const QString &text) = 0;

    /// The object that is asked from now on, null for none. Any thread.
    static void setInstance(const std::shared_ptr<MissingFileQuestions> &questions);
    [[nodiscard]] static std::shared_ptr<MissingFileQuestions> instance();

    /// What was answered with the box checked holds for the rest of the process. A host that wants a person
    /// to be asked again calls this; until then the remembered answer is Cancel. Any thread.
    static void forgetAnswer();
};

} // namespace orv
