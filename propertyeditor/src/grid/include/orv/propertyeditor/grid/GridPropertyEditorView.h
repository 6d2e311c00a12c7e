#pragma once

#include <orv/core/Error.h>
#include <orv/core/FileTypes.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/widgets/Export.h>

#include <QFrame>
#include <QHash>
#include <QStringList>
#include <QUrl>

#include <memory>

class KProperty;
class KPropertySet;

namespace orv {

class KPropertyCustomEditorView;

/// A column of settings: the tree of a property set, and for designers of workflows the buttons that change
/// which properties it has. Owns the set that it shows. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GridPropertyEditorView : public QFrame
{
    Q_OBJECT

public:
    enum class PropertiesViewMode : int
    {
        Basic = 0,    ///< without properties of low priority
        Advanced = 1, ///< with them
    };
    Q_ENUM(PropertiesViewMode)

    enum class EditorMode : int
    {
        Designer = 0, ///< with the buttons
        User = 1,     ///< without
    };
    Q_ENUM(EditorMode)

    explicit GridPropertyEditorView(QWidget *parent = nullptr);
    ~GridPropertyEditorView() override;

    /// Null before the first one was set, and after somebody else deleted it.
    [[nodiscard]] KPropertySet *propertySet() const;
    [[nodiscard]] KPropertyCustomEditorView *editorView() const;

    /// Shows the properties of a cell's JSON text. Fails as PropertySetCreator::jsonToPropertySet does, and
    /// shows what it showed before.
    Error setPropertiesFromSerializedJson(const QByteArray &json);

    void setEditorMode(EditorMode mode);
    [[nodiscard]] EditorMode editorMode() const;
    void setPropertiesViewMode(PropertiesViewMode mode);
    [[nodiscard]] PropertiesViewMode propertiesViewMode() const;
    /// The kind of column, which decides what properties it may hold.
    void setDocumentType(BaseItemType type);
    [[nodiscard]] BaseItemType documentType() const;

    /// The folder (with a trailing slash) against which relative files are shown.
    void setBaseUrlForRelativeUrls(const QUrl &url);

    void collapseAll();
    void expandAll();
    /// Whether any group is unfolded.
    [[nodiscard]] bool isExpanded() const;
    /// Whether each group is unfolded, by its caption.
    using Folds = QHash<QString, bool>;
    [[nodiscard]] Folds folds() const;
    /// Groups without an entry stay as they are.
    void setFolds(const Folds &folds);

    /// Unfolds the group of a property of the set and stands at its row, whatever the group's fold; advanced
    /// properties are shown for that. False if the set has no such row. The focus stays where it is.
    bool goTo(const QByteArray &name);

    /// Ask for a parameter file and take its values for the properties that the column has.
    void loadKarvonParameters(QWidget *parent);
    void loadPreviewParameters(QWidget *parent);

    /// True where the settings may be used; reasons against are appended to \a warnings.
    virtual bool validate(QStringList *warnings) const;

Q_SIGNALS:
    /// Another set is shown.
    void propertySetChanged(KPropertySet &set);
    void propertyChanged(KPropertySet &set, KProperty &property);
    /// The cell that these settings make became another one, but for a set that was shown by a caller and for
    /// the base URL. From an editor as soon as its event has been handled, so that listeners may do anything.
    void contentEdited();

protected:
    /// For a tree of one's own, which belongs to this view from here.
    GridPropertyEditorView(KPropertyCustomEditorView *view, QWidget *parent);

    /// The parameter file that a person chooses; empty for none.
    virtual QString getParametersFile(const QString &title, FileType type, QWidget *parent);
    /// Shows \a set, which belongs to this view from here; \a deleteOld deletes the one shown before, unless
    /// it is the same.
    virtual void changeSet(KPropertySet *set, bool deleteOld);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
