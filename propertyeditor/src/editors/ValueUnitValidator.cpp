#include "orv/propertyeditor/editors/ValueUnitValidator.h"

#include <orv/propertyeditor/editors/ValueUnitInput.h>

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace orv {

ValueUnitValidator::ValueUnitValidator(double min, double max, QObject *parent)
    : QValidator(parent)
    , m_number(min, max, 2)
    , m_unit(QRegularExpression(QStringLiteral("(Da|da|ppm|mmu)")))
{}

ValueUnitValidator::~ValueUnitValidator() = default;

QValidator::State ValueUnitValidator::validate(QString &input, int &) const
{
    const QStringList parts = ValueUnitInput::partsOf(input);
    if (parts.size() > 2)
        return Invalid;
    QString number = ValueUnitInput::inLocale(parts.value(0));
    QString unit = parts.value(1);
    int ignored = 0;
    return std::min(m_number.validate(number, ignored), m_unit.validate(unit, ignored));
}

QString ValueUnitValidator::expectation() const
{
    constexpr double kMost = std::numeric_limits<double>::max();
    const QLocale locale;
    const QString least = locale.toString(m_number.bottom(), 'g', QLocale::FloatingPointShortest);
    const QString most = locale.toString(m_number.top(), 'g', QLocale::FloatingPointShortest);
    QString form = tr("a number with at most two decimals, a blank, and Da, ppm or mmu, as in \"10 ppm\"");
    if (m_number.bottom() == -kMost && m_number.top() == kMost)
        return form;
    if (m_number.top() == kMost)
        return tr("%1; the least number is %2").arg(form, least);
    return tr("%1; the number is from %2 to %3").arg(form, least, most);
}

} // namespace orv
