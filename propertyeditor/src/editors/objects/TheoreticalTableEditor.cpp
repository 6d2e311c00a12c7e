#include "orv/propertyeditor/editors/TheoreticalTableEditor.h"

#include "ValueText.h"

#include <KProperty.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/rn.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/InsilicoTableDialog.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/TableSerializer.h>

#include <QCoreApplication>
#include <QJsonArray>

namespace orv {

using namespace PropertyEditorJsonUtils;
using namespace PropertyEditorStringConstants;

namespace {

struct TheoreticalTableTr
{
    Q_DECLARE_TR_FUNCTIONS(TheoreticalTableEditor)
};

/// What keeps \a value from being read as a table; empty for nothing.
QString problemOfTable(const QJsonObject &value)
{
    RowNode table;
    if (ValueText::isUnset(value) || rn::fromObject(value, &table))
        return {};
    const QJsonArray rows = value.value(CHILDREN).toArray();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (!rn::fromObject(rows.at(row).toObject({{DATA, 0}}), &table))
            return TheoreticalTableTr::tr("Row %1 contains invalid data").arg(row + 1);
    }
    return TheoreticalTableTr::tr("The value is no table.");
}

/// The table that another column left in the options of \a property.
RowNode tableOfOption(const KProperty &property, PropertyId id)
{
    const QByteArray name = PropertiesNames::internalNameForType(id).toUtf8();
    return objectToRowNode(variantToObject(property.option(name.constData())));
}

} // namespace

QString TheoreticalTableEditor::toString(const QJsonObject &value) const
{
    const QString problem = problemOfTable(value);
    return problem.isEmpty() ? TableSerializer::toUserFriendlyString(objectToRowNode(value))
                             : ValueText::errorText(problem, value);
}

QJsonObject TheoreticalTableEditor::fromString(const QString &text) const
{
    const Result<RowNode> table = TableSerializer::toTable(TableSerializer::toString(text));
    if (table)
        return rowNodeToObject(*table);
    qCWarning(propertyEditorLog).noquote() << ValueText::reasonOf(table.error());
    return {};
}

bool TheoreticalTableEditor::handleEditObject(QJsonObject *value, const KProperty &property,
                                              QWidget *parent) const
{
    ModalDialog dialog(new InsilicoTableDialog(tableOfOption(property, PropertyId::Proteins),
                                               tableOfOption(property, PropertyId::Disulfide),
                                               CoreMainWindow::windowFor(parent)));
    dialog->setWindowTitle(property.caption());
    if (const QString problem = problemOfTable(*value); !problem.isEmpty())
        ORVStyle::warning(dialog.get(), TheoreticalTableTr::tr("Warning"), problem, QMessageBox::Ok);
    if (!dialog.get())
        return false;
    dialog->setInsilicoPeptides(objectToRowNode(*value));
    const RowNode shown = dialog->insilicoPeptides();
    if (!dialog.exec())
        return false;
    if (const RowNode edited = dialog->insilicoPeptides(); edited != shown)
        *value = rowNodeToObject(edited);
    return true;
}

} // namespace orv
