#include "WorkingContent.h"

#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace orv {

using namespace PropertyEditor;
using namespace PropertyEditorStringConstants;

namespace {

struct WorkingContentTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

thread_local UpgradeRun *t_currentRun = nullptr;

Result<Content> readTree(const QJsonObject &stamped)
{
    Content tree;
    ORV_RETURN_IF_ERROR(tree.assignFromJson(stamped, ValidationOption::SkipTypeValidation));
    return tree;
}

bool isRectangle(const ItemGroup &tab)
{
    const QList<ItemSubGroup *> columns = tab.subGroups();
    return std::ranges::all_of(columns, [&](const ItemSubGroup *column) {
        return column->count() == columns.constFirst()->count();
    });
}

QJsonObject withoutStamp(QJsonObject cell)
{
    cell.remove(META_IN_JSON_KEY);
    return cell;
}

bool isWrittenAs(const BaseItem &item, const QJsonObject &source)
{
    return withoutStamp(item.toJson(PropertyConversionFlag::KeepPaths)) == withoutStamp(source);
}

/// Adds the cells of \a tab that wouldn't be written as the object that they were read from, but for stamps.
void collectUnsettled(const ItemGroup &tab, const QJsonObject &source, QList<BaseItem *> *unsettled)
{
    const QJsonArray cells = source.value(CELLS_KEY).toArray();
    const QList<ItemSubGroup *> columns = tab.subGroups();
    for (qsizetype c = 0; c < columns.size(); ++c) {
        const QList<BaseItem *> items = columns.at(c)->items();
        for (qsizetype r = 0; r < items.size(); ++r) {
            if (!isWrittenAs(*items.at(r), cells.at(r * columns.size() + c).toObject()))
                unsettled->append(items.at(r));
        }
    }
}

/// The cells that aren't in normal form; nothing if the document around them isn't.
std::optional<QList<BaseItem *>> unsettledCells(const Content &tree, const QJsonObject &source)
{
    const QList<ItemGroup *> groups = tree.groups();
    const bool isNormal =
        std::ranges::all_of(groups, [](const ItemGroup *tab) { return isRectangle(*tab); }) &&
        tree.extendedMetadataInfo().toJson() == source.value(EXTENDED_METADATA_IN_JSON_KEY).toObject();
    if (!isNormal)
        return {};
    QList<BaseItem *> unsettled;
    const QJsonArray tabs = source.value(TABS_KEY).toArray();
    for (qsizetype i = 0; i < groups.size(); ++i)
        collectUnsettled(*groups.at(i), tabs.at(i).toObject(), &unsettled);
    return unsettled;
}

Error checkTabs(const Content &tree)
{
    for (const ItemGroup *tab : tree.groups()) {
        if (!isRectangle(*tab)) {
            return Error(ErrorCode::MalformedStructure, QObject::tr("Upgrade not possible."))
                .addDetail(WorkingContentTr::tr(
                               "The columns of the tab \"%1\" differ in height, and a tab is written as a "
                               "rectangle. Complete its last row.")
                               .arg(tab->name()));
        }
    }
    return Error::NoError;
}

/// A step outside of a run goes the long way, by the texts. A run leaves them out: what was read from a text
/// has no value that a text would change.
Result<Content> readByText(const PropertyEditorContent &content)
{
    return readTree(QJsonDocument::fromJson(content.toJson()).object());
}

Error replaceByText(const Content &tree, PropertyEditorContent *content)
{
    ORV_RETURN_IF_ERROR(checkTabs(tree));
    *content = PropertyEditorContent(tree.toJson(PropertyConversionFlag::KeepPaths));
    return Error::NoError;
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

QList<UpgradeRun::EditedCell> UpgradeRun::placesOf(const QList<BaseItem *> &items, const Content &tree)
{
    const QSet<BaseItem *> wanted(items.begin(), items.end());
    QList<EditedCell> places;
    const QList<ItemGroup *> tabs = tree.groups();
    for (qsizetype t = 0; t < tabs.size(); ++t) {
        const QList<ItemSubGroup *> columns = tabs.at(t)->subGroups();
        for (qsizetype c = 0; c < columns.size(); ++c) {
            const QList<BaseItem *> cells = columns.at(c)->items();
            for (qsizetype r = 0; r < cells.size(); ++r) {
                if (wanted.contains(cells.at(r)))
                    places.append({cells.at(r), t, r * columns.size() + c});
            }
        }
    }
    return places;
}

UpgradeRun::UpgradeRun()
    : m_outer(t_currentRun)
{
    t_currentRun = this;
}

UpgradeRun::~UpgradeRun()
{
    t_currentRun = m_outer;
}

UpgradeRun *UpgradeRun::current()
{
    return t_currentRun;
}

bool UpgradeRun::mirrors(const PropertyEditorContent &content) const
{
    // Copies share their lists, so one address tells that nothing was assigned in between.
    return m_mirrored.tabsAndContent().constData() == content.tabsAndContent().constData() &&
           m_mirrored.metadata() == content.metadata() &&
           m_mirrored.extendedMetadataInfo() == content.extendedMetadataInfo();
}

Result<Content> UpgradeRun::workingContent(const PropertyEditorContent &content)
{
    const bool sameValue = mirrors(content);
    if (m_tree && sameValue && !refreshEdited(content.customUser()).hasError())
        return *m_tree;
    forget();
    const QJsonObject stamped = content.toJsonObject();
    Result<Content> tree = readTree(stamped);
    if (!tree)
        return tree.ecatch();
    m_tree = *tree;
    if (m_writtenInFull && sameValue)
        m_unsettled = unsettledCells(*tree, stamped);
    m_mirrored = content;
    return tree;
}

void UpgradeRun::forget()
{
    m_tree.reset();
    m_edited.clear();
    m_unsettled.reset();
}

Error UpgradeRun::refreshEdited(const QString &user)
{
    if (m_edited.isEmpty())
        return Error::NoError;
    const PropertyEditorContent::Tabs tabs = m_mirrored.tabsAndContent();
    VariantItems cells;
    for (const EditedCell &cell : std::as_const(m_edited))
        cells.append(tabs.at(cell.tab).second.second.at(cell.index));
    PropertyEditorContent part({{QString(), {{QString()}, cells}}}, m_mirrored.metadata(), {});
    part.setCustomUser(user);
    const QJsonObject stamped = part.toJsonObject();
    m_tree->assignMetaDataFromJsonObject(stamped);
    const QJsonArray objects = stamped.value(TABS_KEY).toArray().at(0)[CELLS_KEY].toArray();
    m_unsettled.emplace();
    for (qsizetype i = 0; i < m_edited.size(); ++i) {
        BaseItem *const item = m_edited.at(i).item;
        const QJsonObject cell = objects.at(i).toObject();
        ORV_RETURN_IF_ERROR(item->assignFromJson(cell, ValidationOption::SkipTypeValidation));
        if (!isWrittenAs(*item, cell))
            m_unsettled->append(item);
    }
    m_edited.clear();
    return Error::NoError;
}

Error UpgradeRun::writeAll(const Content &working, PropertyEditorContent *content)
{
    ORV_RETURN_IF_ERROR(checkTabs(working));
    *content = PropertyEditorContent(working.toJsonObject(PropertyConversionFlag::KeepPaths));
    forget();
    m_mirrored = *content;
    m_writtenInFull = true;
    return Error::NoError;
}

Error UpgradeRun::writeEdited(const Content &working, PropertyEditorContent *content,
                              const QList<BaseItem *> &edited)
{
    if (!m_tree || !m_unsettled)
        return writeAll(working, content);
    const QList<EditedCell> cells = placesOf(edited + *m_unsettled, working);
    QJsonArray objects;
    for (const EditedCell &cell : cells)
        objects.append(cell.item->toJson(PropertyConversionFlag::KeepPaths));
    const PropertyEditorContent part = valueForm(objects, working);
    const VariantItems values = part.tabsAndContent().constFirst().second.second;

    PropertyEditorContent::Tabs tabs = m_mirrored.tabsAndContent();
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        tabs[i].first = working.group(int(i))->name();
        tabs[i].second.first = working.group(int(i))->subGroupNames();
    }
    for (qsizetype i = 0; i < cells.size(); ++i)
        tabs[cells.at(i).tab].second.second[cells.at(i).index] = values.at(i);
    *content = PropertyEditorContent(tabs, part.metadata(), part.extendedMetadataInfo());
    m_edited = cells;
    m_mirrored = *content;
    return Error::NoError;
}

Result<Content> createPecToUpgrade(PropertyEditorContent *content)
{
    UpgradeRun *const run = UpgradeRun::current();
    Result<Content> tree = run ? run->workingContent(*content) : readByText(*content);
    if (!tree)
        return tree.ecatch();
    return tree;
}

Error writeBack(const Content &working, PropertyEditorContent *content)
{
    UpgradeRun *const run = UpgradeRun::current();
    return run ? run->writeAll(working, content) : replaceByText(working, content);
}

Error writeBack(const Content &working, PropertyEditorContent *content, const QList<BaseItem *> &edited)
{
    UpgradeRun *const run = UpgradeRun::current();
    return run ? run->writeEdited(working, content, edited) : writeBack(working, content);
}

} // namespace orv
