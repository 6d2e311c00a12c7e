#include "orv/propertyeditor/editors/ValueUnitValidator.h"

#include <orv/propertyeditor/editors/ValueUnitInput.h>

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orv {

namespace {

/// As people write it, unless it had hundreds of digits.
QString limitText(double limit)
{
    constexpr double kWritten = 1e15;
    return QLocale().toString(limit, std::abs(limit) < kWritten ? 'f' : 'g', QLocale::FloatingPointShortest);
}

} // namespace

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

QString ValueUnitValidator::expectation(const QStringList &units) const
{
    constexpr double kMost = std::numeric_limits<double>::max();
    const QString least = limitText(m_number.bottom());
    const QString most = limitText(m_number.top());
    const QStringList told =
        units.isEmpty() ? QStringList{QStringLiteral("Da"), QStringLiteral("ppm"), QStringLiteral("mmu")}
                        : units;
    QString form = tr("a number with at most two decimals, alone or with a blank and its unit (%1), as in "
                      "\"10 %2\"")
                       .arg(told.join(QLatin1String(", ")), told.constFirst());
    if (m_number.bottom() == -kMost && m_number.top() == kMost)
        return form;
    if (m_number.top() == kMost)
        return tr("%1; the least number is %2").arg(form, least);
    return tr("%1; the number is from %2 to %3").arg(form, least, most);
}

} // namespace orv
