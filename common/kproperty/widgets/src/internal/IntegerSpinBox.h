#pragma once

#include <QAbstractSpinBox>
#include <QVariant>

class KProperty;

namespace Internal {

/// A spin box for the integers that do not fit into an int. Values are kept as 128 bits would allow: as a
/// sign and a magnitude, so that both 64 bit types fit.
class IntegerSpinBox : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    IntegerSpinBox(const KProperty &property, QWidget *parent);

    [[nodiscard]] QVariant value() const;
    void stepBy(int steps) override;
    QValidator::State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;

public Q_SLOTS:
    void setValue(const QVariant &value);

Q_SIGNALS:
    void commitData(QWidget *editor);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;

private:
    // Exact for both 64 bit types and for every sum of a value and a step.
    __extension__ using Number = __int128;

    [[nodiscard]] Number parse(const QString &text, bool *ok) const;
    [[nodiscard]] QString toText(Number number) const;
    [[nodiscard]] static Number toNumber(const QVariant &value);
    [[nodiscard]] QString numberPart(const QString &text) const;
    void textEdited();

    int m_type;
    Number m_value = 0;
    Number m_minimum = 0;
    Number m_maximum = 0;
    Number m_step = 1;
    QString m_prefix;
    QString m_suffix;
};

} // namespace Internal
