#include "ValueUnitEditorObject.h"

#include "ValueUnitDialog.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table_model/NumberText.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogService.h>

#include <QLocale>

namespace orv {

using PropertyEditorStringConstants::VALUE_KEY;

namespace {

constexpr QLatin1String kUnit("unit");
constexpr int kDecimals = 2;

std::optional<double> numberOf(const QString &text)
{
    const QLocale locale;
    if (const auto canonical = NumberText::canonical(text, NumberText::signOf(locale)))
        return NumberText::value(*canonical);
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    return ok ? std::optional(number) : std::nullopt;
}

} // namespace

QString ValueUnitEditorObject::toString(const QJsonObject &value) const
{
    if (value.isEmpty())
        return {};
    return QStringLiteral("%1 %2").arg(QLocale().toString(value.value(VALUE_KEY).toDouble(), 'f', kDecimals),
                                       value.value(kUnit).toString());
}

QJsonObject ValueUnitEditorObject::fromString(const QString &text) const
{
    const QStringList parts = text.trimmed().split(u' ', Qt::SkipEmptyParts);
    const std::optional<double> number = parts.size() == 2 ? numberOf(parts.constFirst()) : std::nullopt;
    if (!number)
        return {};
    return {{VALUE_KEY, *number}, {kUnit, parts.at(1)}};
}

bool ValueUnitEditorObject::handleEditObject(QJsonObject *value, const KProperty &property, QWidget *) const
{
    ValueUnitDialog dialog(property, CoreMainWindow::getMainWindow());
    dialog.setWindowTitle(property.caption());
    dialog.setData(*value);
    if (!DialogService::exec(dialog))
        return false;
    *value = dialog.data();
    return true;
}

} // namespace orv
