#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

#include <QtGlobal>

namespace orv {

/// A text of a search that has a dialog of its own: an object with the text under its one key.
class ORV_PROPERTY_EDITOR_EXPORT ModificationsEditorObject : public IGenericEditorObject
{
public:
    enum class Mode
    {
        Modifications = 0,
        Glycans = 1,
        PeakFilter = 2,
    };

    explicit ModificationsEditorObject(Mode mode = Mode::Modifications)
        : m_mode(mode)
    {}

    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    /// Glycans show with the absolute paths of their databases.
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;

    friend size_t qHash(Mode mode, size_t seed = 0) { return ::qHash(int(mode), seed); }

private:
    const Mode m_mode;
};

} // namespace orv
