#include "orv/propertyeditor/editors/ValueUnitValidator.h"

#include <QRegularExpression>

#include <algorithm>

namespace orv {

ValueUnitValidator::ValueUnitValidator(double min, double max, QObject *parent)
    : QValidator(parent)
    , m_number(min, max, 2)
    , m_unit(QRegularExpression(QStringLiteral("(Da|da|ppm|mmu)")))
{}

ValueUnitValidator::~ValueUnitValidator() = default;

QValidator::State ValueUnitValidator::validate(QString &input, int &) const
{
    const QStringList parts = input.split(u' ', Qt::SkipEmptyParts);
    if (parts.size() > 2)
        return Invalid;
    // The one decimal sign that stands in the number may be that of another country.
    QString number = parts.value(0);
    const QString decimalPoint = m_number.locale().decimalPoint();
    if (number.count(u'.') + number.count(u',') == 1)
        number.replace(u'.', decimalPoint).replace(u',', decimalPoint);
    QString unit = parts.value(1);
    int ignored = 0;
    return std::min(m_number.validate(number, ignored), m_unit.validate(unit, ignored));
}

} // namespace orv
