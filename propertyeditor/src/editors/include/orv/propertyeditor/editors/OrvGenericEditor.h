#pragma once

#include <KPropertyMultiLineStringEditor.h>
#include <KPropertyStringEditor.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/widgets/Export.h>

#include <QVariant>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv {

class OrvGenericEditorPrivate;

/// Edits a structured value in a line: by a dialog, and where its text can be typed (a value with its unit)
/// in the line itself. The value is the JSON bytes of the object. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT OrvGenericEditor : public KPropertyStringEditor
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    /// \a property tells options and name, and isn't kept.
    OrvGenericEditor(PropertySetCreator::Editor editorType, KProperty *property, QWidget *parent);
    ~OrvGenericEditor() override;

    [[nodiscard]] QVariant value() const;

public Q_SLOTS:
    void setValue(const QVariant &value);

protected:
    /// A text that is no value goes back, and the row says why.
    void focusOutEvent(QFocusEvent *event) override;

private:
    void commitText();
    /// Takes what was typed, as leaving the line does.
    void settleText();
    void putBackRefused();
    /// While a text is typed that more typing can't make a value, a sign in the line says so.
    void markRefused();
    /// For lines whose text can be typed.
    [[nodiscard]] QString expectation() const;

    const std::unique_ptr<OrvGenericEditorPrivate> d;
    QAction *m_refused = nullptr; ///< the line's, from the first such text on
};

/// The same in several lines, by a dialog alone.
class ORV_PROPERTY_EDITOR_EXPORT OrvGenericMultiLineEditor : public KPropertyMultiLineStringEditor
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    OrvGenericMultiLineEditor(PropertySetCreator::Editor editorType, KProperty *property, QWidget *parent);
    ~OrvGenericMultiLineEditor() override;

    [[nodiscard]] QVariant value() const;

public Q_SLOTS:
    void setValue(const QVariant &value);

private:
    const std::unique_ptr<OrvGenericEditorPrivate> d;
};

} // namespace orv
