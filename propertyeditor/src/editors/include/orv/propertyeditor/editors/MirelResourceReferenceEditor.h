#pragma once

#include <orv/propertyeditor/editors/ResourceReferenceEditorBase.h>

namespace orv {

/// References to files and folders on the disks of this computer. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT MirelResourceReferenceEditor : public ResourceReferenceEditorBase
{
    Q_OBJECT

public:
    MirelResourceReferenceEditor(const KProperty &property, QWidget *parent);
    ~MirelResourceReferenceEditor() override;

protected:
    void selectButtonClicked() override;
    [[nodiscard]] bool verifyEnteredText(const QString &text) override;
    /// Whether \a path is a file, or with \a isFolder a folder; the question is asked on any thread.
    [[nodiscard]] virtual Question questionFor(const QString &path, bool isFolder) const;
};

} // namespace orv
