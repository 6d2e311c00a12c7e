#pragma once

#include "KPropertyGenericSelectionEditor.h"

#include <QFont>
#include <QVariant>

class QLabel;

namespace Internal {

/// "Family, 10pt, bold": the text of a font in cells, labels and files.
[[nodiscard]] QString fontText(const QFont &font);

/// A sample of the font and a button that opens the font dialog.
class FontEditor : public KPropertyGenericSelectionEditor
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit FontEditor(QWidget *parent);

    [[nodiscard]] QVariant value() const;

public Q_SLOTS:
    void setValue(const QVariant &value);

Q_SIGNALS:
    void commitData(QWidget *editor);

protected Q_SLOTS:
    void selectButtonClicked() override;

private:
    QFont m_font;
    QLabel *m_label;
};

} // namespace Internal
