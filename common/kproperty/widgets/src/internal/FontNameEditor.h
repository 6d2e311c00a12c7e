#pragma once

#include "KPropertyWidgetsFactory.h"

#include <QFontComboBox>

namespace Internal {

/// A font family by name.
class FontNameEditor : public QFontComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue USER true)

public:
    explicit FontNameEditor(QWidget *parent);

    [[nodiscard]] QString value() const { return currentText(); }

public Q_SLOTS:
    void setValue(const QString &value);

Q_SIGNALS:
    void commitData(QWidget *editor);
};

/// For the type FontName.
class FontNameDelegate : public KPropertyEditorCreatorInterface, public KPropertyValueDisplayInterface
{
public:
    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};

} // namespace Internal
