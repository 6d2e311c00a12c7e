#include "orv/propertyeditor/editors/GridItemEditorObjects.h"

#include "ValueText.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/GlycanOptions.h>
#include <orv/chemistry/GlycanTable.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/rn.h>

#include <QCoreApplication>
#include <QJsonArray>

#include <array>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct GridItemEditorObjectsTr
{
    Q_DECLARE_TR_FUNCTIONS(GridItemEditorObjects)
};

qsizetype indexOfColumn(const QJsonArray &columns, QLatin1String name)
{
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (columns.at(i).toString() == name)
            return i;
    }
    return -1;
}

/// A value in which something stands and that no table can be made of.
QString notATable(const QJsonObject &value)
{
    return ValueText::errorText(GridItemEditorObjectsTr::tr("The value is no table."), value);
}

bool isReadable(const QJsonObject &value)
{
    RowNode table;
    return ValueText::isUnset(value) || rn::fromObject(value, &table);
}

enum class Completeness
{
    Told,
    Untold,
};

struct GlycanKindRow
{
    GlycanOptionKind kind;
    const char *caption;
    Completeness completeness;
};

constexpr std::array kGlycanKinds = {
    GlycanKindRow{GlycanOptionKind::Moiety, QT_TRANSLATE_NOOP("GridItemEditorObjects", "Moieties"),
                  Completeness::Untold},
    GlycanKindRow{GlycanOptionKind::Label, QT_TRANSLATE_NOOP("GridItemEditorObjects", "Label"),
                  Completeness::Told},
    GlycanKindRow{GlycanOptionKind::Adduct, QT_TRANSLATE_NOOP("GridItemEditorObjects", "Adducts"),
                  Completeness::Untold},
    GlycanKindRow{GlycanOptionKind::Derivatization,
                  QT_TRANSLATE_NOOP("GridItemEditorObjects", "Derivatization"), Completeness::Told},
};

QStringList namesOf(const GlycanOptions &options, const GlycanKindRow &row)
{
    QStringList names;
    const QList<GlycanOption> chosen = options.ofKind(row.kind);
    for (const GlycanOption &option : chosen) {
        const bool isTold = row.completeness == Completeness::Told && option.complete;
        names.append(isTold ? option.name + QLatin1String(" (100%)") : option.name);
    }
    return names;
}

Result<GlycanOptions> glycanOptionsOf(const QJsonObject &value)
{
    return GlycanOptions::fromRowNode(PropertyEditorJsonUtils::objectToRowNode(value));
}

} // namespace

QString RowsEditorObject::toString(const QJsonObject &value) const
{
    return isReadable(value) ? ValueText::rowsOf(value) : notATable(value);
}

QString ProteinsGenericObject::toString(const QJsonObject &value) const
{
    const QJsonArray columns = value.value(DATA).toArray();
    const std::array indices = {indexOfColumn(columns, kProteinAccessionName),
                                indexOfColumn(columns, kProteinAliasName),
                                indexOfColumn(columns, kProteinSequence)};
    QString text;
    const QJsonArray rows = value.value(CHILDREN).toArray();
    for (const auto row : rows) {
        const QJsonArray cells = row[DATA].toArray();
        QStringList parts;
        for (const qsizetype index : indices)
            parts.append(index < 0 ? QString() : ValueText::cellText(cells.at(index)));
        text += parts.join(QLatin1String(" | ")) + u'\n';
    }
    return text;
}

GridItemDialog *ProteinsGenericObject::createDialog(QWidget *parent) const
{
    return new ProteinsGenericDialog(parent);
}

QString DetachedGlycansGenericObject::toString(const QJsonObject &value) const
{
    if (!isReadable(value))
        return notATable(value);
    const RowNode table = PropertyEditorJsonUtils::objectToRowNode(value);
    const Result<GlycanTable> glycans = GlycanTable::fromRowNode(table);
    if (glycans.hasError())
        return ValueText::errorText(glycans.error(), value);
    return GridItemEditorObjectsTr::tr("%1 glycans.").arg(table.getChildListSize());
}

GridItemDialog *DetachedGlycansGenericObject::createDialog(QWidget *parent) const
{
    return new DetachedGlycansGenericDialog(parent);
}

QString GlycanOptionsGenericObject::toString(const QJsonObject &value) const
{
    if (!isReadable(value))
        return notATable(value);
    const Result<GlycanOptions> options = glycanOptionsOf(value);
    if (options.hasError())
        return ValueText::errorText(options.error(), value);
    QStringList groups;
    for (const GlycanKindRow &row : kGlycanKinds) {
        const QStringList names = namesOf(*options, row);
        groups.append(names.isEmpty() ? GridItemEditorObjectsTr::tr("None")
                                      : names.join(QLatin1String(", ")));
    }
    return groups.join(u';');
}

QList<QList<QVariant>> GlycanOptionsGenericObject::toReportModuleStructure(const QJsonObject &value) const
{
    const Result<GlycanOptions> options = glycanOptionsOf(value);
    if (options.hasError() || !isReadable(value))
        return {};
    QList<QList<QVariant>> report;
    for (const GlycanKindRow &row : kGlycanKinds) {
        QStringList names = namesOf(*options, row);
        for (QString &name : names)
            name = name.toHtmlEscaped();
        report.append({GridItemEditorObjectsTr::tr(row.caption), names.join(QLatin1String("<br>"))});
    }
    return report;
}

GridItemDialog *GlycanOptionsGenericObject::createDialog(QWidget *parent) const
{
    return new GlycanOptionsGenericDialog(parent);
}

} // namespace orv
