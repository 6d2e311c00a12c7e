#pragma once

#include <KPropertyGenericSelectionEditor.h>
#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/resources/ResourceReference.h>
#include <orv/widgets/Export.h>

#include <QString>
#include <QUrl>
#include <QVariant>

#include <functional>
#include <memory>

class KProperty;
QT_FORWARD_DECLARE_CLASS(QLineEdit)

namespace orv {

/// Edits a reference to a file or folder: in a line, and by a button that opens a chooser. A text that the
/// form refuses is put back, and its row says why. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ResourceReferenceEditorBase : public KPropertyGenericSelectionEditor
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ storedValue WRITE setStoredValue USER true)

public:
    /// \a property tells name and options, and isn't kept.
    ResourceReferenceEditorBase(const KProperty &property, QWidget *parent);
    ~ResourceReferenceEditorBase() override;

    /// Null where there is none, and for a value that is no reference.
    [[nodiscard]] ResourceReferenceSPtr value() const;
    void setValue(const ResourceReferenceSPtr &value);
    /// What was set, whatever it is, until a person puts a reference in its place.
    [[nodiscard]] QVariant storedValue() const;
    void setStoredValue(const QVariant &value);

    /// The option "fileMode" in lower case: "existingfile", "dirsonly", anything else for a new file.
    [[nodiscard]] QString fileMode() const;
    [[nodiscard]] bool confirmOverwrite() const;
    [[nodiscard]] FileExtensionsNameFilter filter() const;
    /// Relative references count from its folder.
    [[nodiscard]] QUrl baseUrl() const;
    [[nodiscard]] QLineEdit *lineEdit() const;

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /// A person put another reference in place.
    void commitData(QWidget *editor);

protected:
    /// Opens a chooser and takes what was chosen.
    void selectButtonClicked() override = 0;
    /// Whether the form takes a text that isn't empty. On false the line shows the last text again, and
    /// refuse() has told why.
    [[nodiscard]] virtual bool verifyEnteredText(const QString &text) = 0;

    /// Takes what was typed, as leaving the line does: a chooser begins there. False where the editor is gone
    /// after that.
    [[nodiscard]] bool settleText();
    /// Stores what a person chose, shows and tells it; null changes nothing.
    void take(const ResourceReferenceSPtr &reference);
    /// What verifyEnteredText says of the text, for its row: a sentence about "it".
    void refuse(const QString &reason);
    void refuse(const QString &text, const QString &reason);

    using Question = std::function<bool()>;
    /// The answer to \a question, which is asked on another thread. Where it doesn't come soon, true, so that
    /// a sleeping disk keeps nobody; if it is no in the end, the row says \a reason.
    [[nodiscard]] bool isThere(const Question &question, const QString &reason);

    /// \a text as a reference, counted from the base; null, with the reason told, for what is none.
    [[nodiscard]] ResourceReferenceSPtr resolvedFromText(const QString &text);

private:
    void takeText();
    void show(const QVariant &value);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
