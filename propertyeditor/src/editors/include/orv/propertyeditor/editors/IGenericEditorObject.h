#pragma once

#include <orv/widgets/Export.h>

#include <QJsonObject>
#include <QString>

class KProperty;
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Knows one kind of structured value: how it reads as text and how it is edited. Holds no state. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT IGenericEditorObject
{
public:
    IGenericEditorObject() = default;
    virtual ~IGenericEditorObject();
    Q_DISABLE_COPY_MOVE(IGenericEditorObject)

    /// The text in the tree, of several lines where need be. Never fails: says what is wrong with a value
    /// that can't be read.
    [[nodiscard]] virtual QString toString(const QJsonObject &value) const = 0;
    /// The value of a typed text, else of JSON text; empty where \a text is neither.
    [[nodiscard]] virtual QJsonObject fromString(const QString &text) const = 0;
    /// Opens a dialog; whether it was accepted, and only then *value is another one. \a property is a copy.
    virtual bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const = 0;
};

} // namespace orv
