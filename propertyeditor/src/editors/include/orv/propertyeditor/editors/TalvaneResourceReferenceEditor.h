#pragma once

#include <orv/propertyeditor/editors/ResourceReferenceEditorBase.h>

namespace orv {

/// References to files on the server. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TalvaneResourceReferenceEditor : public ResourceReferenceEditorBase
{
    Q_OBJECT

public:
    TalvaneResourceReferenceEditor(const KProperty &property, QWidget *parent);
    ~TalvaneResourceReferenceEditor() override;

protected:
    void selectButtonClicked() override;
    /// Asks the server, and waits for it as its handler does.
    [[nodiscard]] bool verifyEnteredText(const QString &text) override;
};

} // namespace orv
