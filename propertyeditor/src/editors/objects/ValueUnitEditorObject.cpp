#include "orv/propertyeditor/editors/ValueUnitEditorObject.h"

#include "ValueText.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/editors/ValueUnitDialog.h>
#include <orv/propertyeditor/editors/ValueUnitInput.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/ModalDialog.h>

#include <QCoreApplication>
#include <QLocale>

namespace orv {

using PropertyEditorStringConstants::VALUE_KEY;

namespace {

struct ValueUnitTr
{
    Q_DECLARE_TR_FUNCTIONS(ValueUnitEditorObject)
};

constexpr QLatin1String kUnit("unit");
constexpr int kDecimals = 2;

} // namespace

QString ValueUnitEditorObject::toString(const QJsonObject &value) const
{
    if (ValueText::isUnset(value))
        return {};
    bool ok = true;
    const QJsonValue stored = value.value(VALUE_KEY);
    const double number = stored.isUndefined() ? 0.0 : stored.toVariant().toDouble(&ok);
    if (!ok)
        return ValueText::errorText(ValueUnitTr::tr("The value is no number."), value);
    return QStringLiteral("%1 %2").arg(QLocale().toString(number, 'f', kDecimals),
                                       value.value(kUnit).toString());
}

QJsonObject ValueUnitEditorObject::fromString(const QString &text) const
{
    const QStringList parts = ValueUnitInput::partsOf(text);
    const std::optional<double> number =
        parts.size() == 2 ? ValueUnitInput::numberOf(parts.constFirst()) : std::nullopt;
    if (!number)
        return {};
    return {{VALUE_KEY, *number}, {kUnit, parts.at(1)}};
}

bool ValueUnitEditorObject::handleEditObject(QJsonObject *value, const KProperty &property,
                                             QWidget *parent) const
{
    ModalDialog dialog(new ValueUnitDialog(property, CoreMainWindow::windowFor(parent)));
    dialog->setWindowTitle(property.caption());
    dialog->setData(*value);
    if (!dialog.exec())
        return false;
    *value = dialog->data();
    return true;
}

} // namespace orv
