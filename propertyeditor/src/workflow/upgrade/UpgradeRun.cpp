#include "UpgradeRun.h"

#include "TreeText.h"

#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>

#include <algorithm>

namespace orv {

using namespace PropertyEditor;
using namespace PropertyEditorStringConstants;

namespace {

QJsonObject withoutCellStamp(QJsonObject cell)
{
    cell.remove(META_IN_JSON_KEY);
    return cell;
}

bool isWrittenAs(const BaseItem &item, const QJsonObject &source)
{
    return withoutCellStamp(item.toJson(PropertyConversionFlag::KeepPaths)) == withoutCellStamp(source);
}

/// The cells that aren't in normal form; nothing if the document around them isn't.
std::optional<QSet<qsizetype>> unsettledCells(const Content &tree, const TreeWatch &watch,
                                              const QJsonObject &source)
{
    const QList<ItemGroup *> groups = tree.groups();
    const bool isNormal =
        std::ranges::all_of(groups, [](const ItemGroup *tab) { return tab->isRectangle(); }) &&
        tree.extendedMetadataInfo().toJson() == source.value(EXTENDED_METADATA_IN_JSON_KEY).toObject();
    if (!isNormal)
        return {};
    QList<QJsonArray> cellsOfTabs;
    for (const auto tab : source.value(TABS_KEY).toArray())
        cellsOfTabs.append(tab[CELLS_KEY].toArray());
    QSet<qsizetype> unsettled;
    for (qsizetype i = 0; i < watch.count(); ++i) {
        const QJsonObject cell = cellsOfTabs.at(watch.tabOf(i)).at(watch.indexInTab(i)).toObject();
        if (!isWrittenAs(*watch.cell(i), cell))
            unsettled.insert(i);
    }
    return unsettled;
}

/// A document of one column that holds \a cells, with the metadata of \a tree, in the value form.
PropertyEditorContent valueForm(const QJsonArray &cells, const Content &tree)
{
    const QJsonObject tab{{NAME_KEY, QString()}, {COLUMNS_KEY, QJsonArray{QString()}}, {CELLS_KEY, cells}};
    const QJsonObject document{
        {TABS_KEY, QJsonArray{tab}},
        {META_IN_JSON_KEY, QString::fromUtf8(JsonUtils::toCompactJson(tree.metadata()))},
        {EXTENDED_METADATA_IN_JSON_KEY, tree.extendedMetadataInfo().toJson()}};
    return PropertyEditorContent(document);
}

} // namespace

UpgradeRun::UpgradeRun(const PropertyEditorContent *document)
    : m_document(document)
{}

UpgradeRun::Heading UpgradeRun::headingOf(const Content &tree)
{
    Heading heading{tree.metadata(), {}};
    for (const ItemGroup *tab : tree.groups())
        heading.names += QStringList(tab->name()) + tab->subGroupNames();
    return heading;
}

bool UpgradeRun::canLend(const PropertyEditorContent *document) const
{
    return document == m_document && !m_isLent;
}

bool UpgradeRun::mirrorsDocument() const
{
    // Copies share their lists, so one address tells that nothing was assigned in between.
    return m_mirrored.tabsAndContent().constData() == m_document->tabsAndContent().constData() &&
           m_mirrored.metadata() == m_document->metadata() &&
           m_mirrored.extendedMetadataInfo() == m_document->extendedMetadataInfo();
}

Result<Content> UpgradeRun::lend()
{
    if (!m_tree || !mirrorsDocument() || !refreshStale())
        ORV_RETURN_IF_ERROR(readDocument());
    m_watch->forgetEdits();
    m_heading = headingOf(*m_tree);
    m_isLent = true;
    return *m_tree;
}

bool UpgradeRun::isAsLent() const
{
    return m_watch->edited().isEmpty() && m_watch->hasSameCells(*m_tree) && headingOf(*m_tree) == m_heading;
}

void UpgradeRun::takeBack()
{
    m_isLent = false;
    if (m_tree && !isAsLent())
        forget();
}

Error UpgradeRun::readDocument()
{
    const bool wasWrittenInFull = m_writtenInFull && mirrorsDocument();
    forget();
    const QJsonObject stamped = m_document->toJsonObject();
    Result<Content> tree = TreeText::read(stamped);
    if (!tree)
        return tree.ecatch();
    m_tree = *tree;
    m_watch.emplace(*m_tree);
    if (wasWrittenInFull)
        m_unsettled = unsettledCells(*m_tree, *m_watch, stamped);
    m_mirrored = *m_document;
    return Error::NoError;
}

void UpgradeRun::forget()
{
    m_watch.reset();
    m_tree.reset();
    m_stale.clear();
    m_unsettled.reset();
}

/// Reads the cells that the last write changed. False where one can't be read: reading the whole document
/// tells why.
bool UpgradeRun::refreshStale()
{
    if (m_stale.isEmpty())
        return true;
    const QList<qsizetype> numbers(m_stale.begin(), m_stale.end());
    const PropertyEditorContent::Tabs tabs = m_mirrored.tabsAndContent();
    VariantItems cells;
    for (qsizetype number : numbers)
        cells.append(tabs.at(m_watch->tabOf(number)).second.second.at(m_watch->indexInTab(number)));
    PropertyEditorContent part({{QString(), {{QString()}, cells}}}, m_mirrored.metadata(), {});
    part.setCustomUser(m_document->customUser());
    const QJsonObject stamped = part.toJsonObject();
    m_tree->assignMetaDataFromJsonObject(stamped);
    const QJsonArray objects = stamped.value(TABS_KEY).toArray().at(0)[CELLS_KEY].toArray();
    m_unsettled.emplace();
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        BaseItem *const item = m_watch->cell(numbers.at(i));
        const QJsonObject cell = objects.at(i).toObject();
        if (!item || item->assignFromJson(cell, ValidationOption::SkipTypeValidation).hasError())
            return false;
        if (!isWrittenAs(*item, cell))
            m_unsettled->insert(numbers.at(i));
    }
    m_stale.clear();
    return true;
}

Error UpgradeRun::write(const Content &working, PropertyEditorContent *document)
{
    if (!m_tree || !m_unsettled || !m_watch->hasSameCells(working))
        return writeAll(working, document);
    writeCells(m_watch->edited() + *m_unsettled, working, document);
    return Error::NoError;
}

Error UpgradeRun::writeAll(const Content &working, PropertyEditorContent *document)
{
    ORV_RETURN_IF_ERROR(TreeText::checkTabs(working));
    *document = PropertyEditorContent(working.toJsonObject(PropertyConversionFlag::KeepPaths));
    forget();
    m_mirrored = *document;
    m_writtenInFull = true;
    return Error::NoError;
}

void UpgradeRun::writeCells(const QSet<qsizetype> &cells, const Content &working,
                            PropertyEditorContent *document)
{
    const QList<qsizetype> numbers(cells.begin(), cells.end());
    QJsonArray objects;
    for (qsizetype number : numbers)
        objects.append(m_watch->cell(number)->toJson(PropertyConversionFlag::KeepPaths));
    const PropertyEditorContent part = valueForm(objects, working);
    const VariantItems values = part.tabsAndContent().constFirst().second.second;

    PropertyEditorContent::Tabs tabs = m_mirrored.tabsAndContent();
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        tabs[i].first = working.group(int(i))->name();
        tabs[i].second.first = working.group(int(i))->subGroupNames();
    }
    for (qsizetype i = 0; i < numbers.size(); ++i)
        tabs[m_watch->tabOf(numbers.at(i))].second.second[m_watch->indexInTab(numbers.at(i))] = values.at(i);
    *document = PropertyEditorContent(tabs, part.metadata(), part.extendedMetadataInfo());
    m_mirrored = *document;
    m_stale.unite(cells);
    m_watch->forgetEdits();
    m_heading = headingOf(working);
}

} // namespace orv
