#pragma once

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/editors/IGenericEditorObject.h>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <QVariant>
#include <QWidget>

class KPropertyEditorItemEvent;

namespace orv {

/// What the editors of structured values share: the object that knows the kind, and its dialog.
class OrvGenericEditorPrivate : public QObject
{
    Q_OBJECT

public:
    /// \a owner is the editor widget, which has the property "value".
    OrvGenericEditorPrivate(PropertySetCreator::Editor editorType, const QByteArray &propertyName,
                            QWidget *owner);
    ~OrvGenericEditorPrivate() override;

    /// Of the value, as the object tells it.
    [[nodiscard]] QString text() const;

    /// NoProperty for a name that the catalogue doesn't have.
    [[nodiscard]] PropertyId propertyId() const;

    const PropertySetCreator::Editor editorType;
    const QSharedPointer<IGenericEditorObject> object; ///< null for an unknown kind
    QVariant value;

Q_SIGNALS:
    /// The dialog is about to open: what was typed until now counts.
    void aboutToEdit();

private:
    void handleItemEvent(KPropertyEditorItemEvent *event);

    const QPointer<QWidget> m_owner;
    const QByteArray m_propertyName;
};

} // namespace orv
