#pragma once

#include <orv/widgets/Export.h>

#include <QDoubleValidator>
#include <QRegularExpressionValidator>
#include <QStringList>
#include <QValidator>

namespace orv {

/// Texts such as "10.5 ppm": a number between limits with at most two decimals, a blank and a unit. Both
/// decimal signs are understood.
class ORV_PROPERTY_EDITOR_EXPORT ValueUnitValidator : public QValidator
{
    Q_OBJECT

public:
    ValueUnitValidator(double min, double max, QObject *parent = nullptr);
    ~ValueUnitValidator() override;

    /// What is said less of number and unit.
    [[nodiscard]] State validate(QString &input, int &position) const override;
    /// What it takes, for people, without a full stop. Of the units only those that the setting knows are
    /// told, all where these are unknown.
    [[nodiscard]] QString expectation(const QStringList &units = {}) const;

private:
    QDoubleValidator m_number;
    QRegularExpressionValidator m_unit;
};

} // namespace orv
