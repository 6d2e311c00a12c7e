#pragma once

#include "KPropertyWidgetsFactory.h"

#include <QLineEdit>

namespace Internal {

/// One character, kept as its code point.
class SymbolEditor : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit SymbolEditor(QWidget *parent);

    [[nodiscard]] QVariant value() const;

public Q_SLOTS:
    void setValue(const QVariant &value);

Q_SIGNALS:
    void commitData(QWidget *editor);

private:
    QVariant m_value;
};

/// For the type Symbol.
class SymbolDelegate : public KPropertyEditorCreatorInterface, public KPropertyValueDisplayInterface
{
public:
    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};

} // namespace Internal
