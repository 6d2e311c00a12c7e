#pragma once

#include "GridFixture.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/grid/GridItemManager.h>

#include <functional>
#include <map>

/// Every kind of column on one bus, as an application has them.
namespace WholeWorkflow {

/// With the three columns that the library leaves to applications, and a bus of its own.
class HostManager : public orv::GridItemManager
{
public:
    HostManager()
    {
        setCustomManager(this);
        registerCreators();
    }
    ~HostManager() override { setCustomManager(nullptr); }
    Q_DISABLE_COPY_MOVE(HostManager)

    void registerCreators() override
    {
        using namespace orv;
        GridItemManager::registerCreators();
        registerCreator(BaseItemType::SamplesProteins, new SamplesProteinsTableItemCreator);
        registerCreator(BaseItemType::IntactOptions, new IntactOptionsItemCreator);
        registerCreator(BaseItemType::OligoOptions, new OligoOptionsItemCreator);
    }
};

inline QJsonObject table(const QStringList &columns, const QList<QStringList> &rows)
{
    QJsonArray children;
    for (const QStringList &row : rows)
        children.append(QJsonObject{{GridFixture::text("data"), QJsonArray::fromStringList(row)}});
    return {{GridFixture::text("data"), QJsonArray::fromStringList(columns)},
            {GridFixture::text("children"), children}};
}

inline QJsonObject defaultCell(orv::BaseItemType type)
{
    using namespace orv;
    using GridFixture::text;
    const QString name = PropertyEditor::BaseItem::typeToString(type);
    if (type == BaseItemType::Samples || type == BaseItemType::Database)
        return Documents::cell(name);
    if (type == BaseItemType::Karvon)
        return GridFixture::karvonCell();
    if (type == BaseItemType::Proteins) {
        const QJsonObject proteins = table({text("ProteinAccessionName"), text("ProteinSequence")},
                                           {{text("P1"), text("ACDCKPEPTIDEK")}});
        return GridFixture::settingsCell("Proteins", {GridFixture::setting("Proteins", proteins)});
    }
    QJsonObject cell = PropertyEditorJsonUtils::defaultJsonContents(type);
    cell.insert(text("type"), name);
    return cell;
}

/// The kinds in the order in which their columns stand here.
inline const QList<orv::BaseItemType> &kinds()
{
    using orv::BaseItemType;
    static const QList<BaseItemType> list = {
        BaseItemType::Samples,        BaseItemType::Proteins,        BaseItemType::Disulfide,
        BaseItemType::Karvon,         BaseItemType::Masses,          BaseItemType::OligoMasses,
        BaseItemType::IntactProteins, BaseItemType::OligoMolecules,  BaseItemType::SamplesProteins,
        BaseItemType::Database,       BaseItemType::DetachedGlycans, BaseItemType::GlycanOptions,
        BaseItemType::Isotope,        BaseItemType::IntactOptions,   BaseItemType::OligoOptions,
    };
    return list;
}

inline QString nameOf(orv::BaseItemType kind)
{
    return orv::PropertyEditor::BaseItem::typeToString(kind);
}

struct Columns
{
    /// \a onBus gets the bus before the first column joins it.
    explicit Columns(const std::function<void(orv::GridCommunicationManager *)> &onBus = {})
    {
        if (onBus)
            onBus(manager.communicationManager());
        for (const orv::BaseItemType kind : kinds()) {
            std::unique_ptr<orv::IGridItem> item(manager.createItem(kind));
            if (auto *view = qobject_cast<orv::GridPropertyEditorView *>(item->widget()))
                view->setDocumentType(kind);
            const orv::Error error = item->setContent(defaultCell(kind));
            if (error.hasError())
                qFatal("%s: %s", qPrintable(nameOf(kind)), qPrintable(error.errorMessage()));
            item->setName(nameOf(kind));
            items.emplace(kind, std::move(item));
        }
        // What follows a load comes from the event loop.
        QCoreApplication::processEvents();
    }

    orv::IGridItem &item(orv::BaseItemType kind) { return *items.at(kind); }

    HostManager manager;
    std::map<orv::BaseItemType, std::unique_ptr<orv::IGridItem>> items;
};

} // namespace WholeWorkflow
