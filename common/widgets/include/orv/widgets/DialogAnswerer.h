#pragma once

#include <orv/widgets/Export.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QDialog)

namespace orv {

/// What a box or dialog would show.
struct DialogRequest
{
    enum class Kind
    {
        Question,
        Warning,
        Critical,
        Information,
        OpenFile,
        SaveFile,
        ChooseFolder,
        Dialog, ///< any other one, whose fields an answer may fill in
    };

    Kind kind = Kind::Information;
    QString title;
    QString text;          ///< without markup; of a file dialog its filters
    QStringList buttons;   ///< what stands on them, without mnemonics
    QString defaultButton; ///< what Enter presses; empty for none
    QString details;
    QString startPath;         ///< of file dialogs
    QDialog *dialog = nullptr; ///< of boxes and of Kind::Dialog; not shown yet
};

/// What a person would do.
struct DialogAnswer
{
    QString button; ///< the text of a button; of a Kind::Dialog "OK" accepts, all others reject
    QString path;   ///< of file dialogs; empty cancels; one a line where several may be chosen
};

/// Answers boxes and dialogs in place of a person, for tests and automation. While one is installed, nothing
/// is shown. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT DialogAnswerer
{
public:
    DialogAnswerer() = default;
    virtual ~DialogAnswerer();
    Q_DISABLE_COPY_MOVE(DialogAnswerer)

    /// Nothing leaves it unanswered, which is an error of the program that answers.
    [[nodiscard]] virtual std::optional<DialogAnswer> answer(const DialogRequest &request) = 0;
};

/// Gives prepared answers in order, each to the box that it was meant for, and remembers everything.
///
/// \code
///     ScriptedAnswerer answers;
///     answers.expectBox("Removing tab", "Yes");
///     window.removeCurrentTab();
///     QVERIFY(answers.isDone());
/// \endcode
/// It is installed while it lives; the last one made answers.
class ORV_PROPERTY_EDITOR_EXPORT ScriptedAnswerer : public DialogAnswerer
{
public:
    ScriptedAnswerer();
    ~ScriptedAnswerer() override;

    /// The next box has this title and gets this button pressed.
    void expectBox(const QString &title, const QString &button);
    /// The next file dialog has this title and gives this path; an empty one cancels.
    void expectPath(const QString &title, const QString &path);
    /// The next dialog has this title; \a fill does what a person would, true accepts.
    void expectDialog(const QString &title, std::function<bool(QDialog &dialog)> fill);

    [[nodiscard]] std::optional<DialogAnswer> answer(const DialogRequest &request) override;

    /// Everything that was asked, in order.
    [[nodiscard]] const QList<DialogRequest> &transcript() const { return m_transcript; }
    /// Whether everything expected was asked, and nothing else.
    [[nodiscard]] bool isDone() const;

private:
    struct Expected
    {
        QString title;
        DialogAnswer answer;
        std::function<bool(QDialog &)> fill;
    };

    QList<Expected> m_expected;
    QList<DialogRequest> m_transcript;
    DialogAnswerer *m_earlier = nullptr;
    bool m_hasSurprise = false;
};

} // namespace orv
