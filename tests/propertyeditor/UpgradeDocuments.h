// Small documents for tests of single upgrade steps.
#pragma once

#include "Documents.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace UpgradeDocuments {

struct Setting
{
    orv::PropertyId id;
    QJsonValue value;
    QString group = QStringLiteral("Group");
};

inline QJsonObject cell(const QString &type, const QList<Setting> &settings)
{
    QJsonArray properties;
    for (const Setting &setting : settings) {
        properties.append(
            QJsonObject{{QStringLiteral("name"), orv::PropertiesNames::internalNameForType(setting.id)},
                        {QStringLiteral("value"), setting.value},
                        {QStringLiteral("group"), setting.group}});
    }
    return {{QStringLiteral("type"), type}, {QStringLiteral("properties"), properties}};
}

inline QJsonObject samplesCell(const QStringList &presets, const QJsonArray &traces = {})
{
    QJsonArray options;
    for (const QString &name : presets)
        options.append(QJsonObject{{QStringLiteral("name"), name}});
    const QJsonObject value{{QStringLiteral("Samples"), QJsonArray()},
                            {QStringLiteral("TraceImportAndProcessingOptions"),
                             QJsonObject{{QStringLiteral("ElutionPeaksOptions"), options},
                                         {QStringLiteral("TracesImportList"), traces}}}};
    const QJsonObject entry{{QStringLiteral("name"), QStringLiteral("SamplesTable")},
                            {QStringLiteral("value"), value}};
    return {{QStringLiteral("type"), QStringLiteral("Samples")},
            {QStringLiteral("properties"), QJsonArray{entry}}};
}

/// A document of \a version with a tab for each of \a cells.
inline orv::PropertyEditorContent document(orv::WorkflowType type, const QList<QJsonObject> &cells,
                                           const QString &version = QStringLiteral("5.5.0"))
{
    QJsonArray tabs;
    for (const QJsonObject &cell : cells) {
        const QString name = cell.value(QStringLiteral("type")).toString();
        tabs.append(Documents::tab(name, {name}, {cell}));
    }
    return orv::PropertyEditorContent(
        Documents::document(tabs, {{QStringLiteral("version"), version},
                                   {QStringLiteral("workflowType"), orv::workflowTypeToString(type)}}));
}

/// The document as a tree; the test ends if it can't be one.
inline orv::PropertyEditor::Content treeOf(const orv::PropertyEditorContent &document)
{
    orv::PropertyEditor::Content content;
    const orv::Error error =
        content.assignFromJson(QJsonDocument::fromJson(document.toJson()).object(),
                               orv::PropertyEditor::ValidationOption::SkipTypeValidation);
    if (error)
        qFatal("%s", qPrintable(error.errorMessage()));
    return content;
}

inline orv::PropertyEditor::KeyValueItem *item(const orv::PropertyEditor::Content &content,
                                               orv::BaseItemType type, int index = 0)
{
    return qobject_cast<orv::PropertyEditor::KeyValueItem *>(content.findAllItems(type).value(index));
}

/// The settings of a search of proteins that steps turn to.
inline const QList<Setting> kProteinSearch{
    {orv::PropertyId::KarvonMachineType, 2},
    {orv::PropertyId::KarvonModText,
     QJsonObject{{QStringLiteral("modifications"), QStringLiteral("M | fixed\n")}}},
    {orv::PropertyId::KarvonRalmixAutoScore, QStringLiteral("true"),
     QStringLiteral("peptide output options")},
    {orv::PropertyId::KarvonProteinFdrPulldown, 0, QStringLiteral("peptide output options")},
    {orv::PropertyId::KarvonRalmixMinScore, QStringLiteral("5"), QStringLiteral("peptide output options")},
    {orv::PropertyId::KarvonEnablePromoteScoreNglycan, QStringLiteral("true")}};

/// A search of oligonucleotides with a column of sequences.
inline orv::PropertyEditorContent oligoSearch(const QJsonObject &search)
{
    const QJsonArray tabs{Documents::tab(QStringLiteral("Sequences"), {QStringLiteral("Proteins")},
                                         {Documents::cell(QStringLiteral("Isotope"))}),
                          Documents::tab(QStringLiteral("Search"), {QStringLiteral("Search")}, {search})};
    return orv::PropertyEditorContent(
        Documents::document(tabs, {{QStringLiteral("version"), QStringLiteral("5.21.0")},
                                   {QStringLiteral("workflowType"), QStringLiteral("DigestedOligo")}}));
}

/// A table with one building block: symbol, name, type, formula.
inline orv::PropertyEditorContent oligoMolecules(const QJsonArray &block)
{
    const auto table = [](const QJsonArray &columns, const QJsonArray &rows) {
        QJsonArray children;
        for (const auto row : rows)
            children.append(
                QJsonObject{{QStringLiteral("data"), row}, {QStringLiteral("children"), QJsonArray()}});
        return QJsonObject{{QStringLiteral("data"), columns}, {QStringLiteral("children"), children}};
    };
    const QJsonObject blocks = table(
        {QStringLiteral("Symbol"), QStringLiteral("Name"), QStringLiteral("Type"), QStringLiteral("Formula")},
        QJsonArray{QJsonValue(block)});
    const QJsonObject root{
        {QStringLiteral("data"), QJsonArray{QStringLiteral("Chains"), QStringLiteral("BuildingBlocks")}},
        {QStringLiteral("children"), QJsonArray{table({QStringLiteral("Number")}, {}), blocks}}};
    const QJsonObject entry{{QStringLiteral("name"), QStringLiteral("OligoMolecules")},
                            {QStringLiteral("value"), root}};
    return document(orv::WorkflowType::IntactOligo,
                    {QJsonObject{{QStringLiteral("type"), QStringLiteral("OligoMolecules")},
                                 {QStringLiteral("properties"), QJsonArray{entry}}}});
}

/// Whether nothing was assigned in between.
inline bool isSame(const orv::PropertyEditorContent &a, const orv::PropertyEditorContent &b)
{
    return a.tabsAndContent().constData() == b.tabsAndContent().constData() && a.metadata() == b.metadata();
}

} // namespace UpgradeDocuments
