#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/samples/SamplesInput.h>

#include <QList>
#include <QSet>

#include <initializer_list>
#include <memory>
#include <optional>

namespace orv::PropertyEditor {

class BaseItem;

/// A few applications, at compile time.
class ApplicationTypes
{
public:
    constexpr ApplicationTypes(std::initializer_list<ApplicationType> types)
    {
        for (const ApplicationType type : types)
            m_bits |= bit(type);
    }
    [[nodiscard]] constexpr bool contains(ApplicationType type) const
    {
        // An application that this version doesn't know may have any number.
        return unsigned(type) < kMost && (m_bits & bit(type)) != 0;
    }

private:
    static constexpr unsigned kMost = 32;
    static constexpr quint32 bit(ApplicationType type) { return quint32(1) << unsigned(type); }

    quint32 m_bits = 0;
};

/// What the system knows of a type of cells. A new type is one row in CellTypes.cpp, and its class.
struct CellType
{
    /// A cell that is a step of the analysis and yields results.
    struct Document
    {
        int rank;                ///< among the documents of a workflow; engines are given them in this order
        FileType result;         ///< what running it yields
        SamplesInput::Mode mode; ///< what it wants the samples for
    };

    BaseItemType type;
    std::unique_ptr<BaseItem> (*create)(BaseItemType type); ///< makes an empty item of its class
    bool holdsSettings;                                     ///< the class is KeyValueItem
    std::optional<Document> document = {};
    /// By whose rules the expert settings of the cell are read; None where they aren't looked at.
    ApplicationType expertSettings = ApplicationType::None;
    /// Which of the applications for one kind of analysis keep the cell.
    ApplicationTypes keptBy = {};

    /// Whether it is one of the steps of an analysis, documents and engines without results of their own.
    [[nodiscard]] bool isProject() const { return holdsSettings && type != BaseItemType::Unknown; }
};

/// The types of cells. Free of shared state; safe on any thread.
namespace CellTypes {

/// Null for a number that is no type.
[[nodiscard]] ORV_WORKFLOW_EXPORT const CellType *find(BaseItemType type);
/// In the order of their rank.
[[nodiscard]] ORV_WORKFLOW_EXPORT const QList<BaseItemType> &documents();
[[nodiscard]] ORV_WORKFLOW_EXPORT const QSet<BaseItemType> &projects();
/// Those that such an application keeps; none for an application that isn't for one kind of analysis.
[[nodiscard]] ORV_WORKFLOW_EXPORT QSet<BaseItemType> keptBy(ApplicationType application);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isDocument(BaseItemType type);

} // namespace CellTypes

} // namespace orv::PropertyEditor
