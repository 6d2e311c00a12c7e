#pragma once

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workbench/JsonDifference.h>
#include <orv/propertyeditor/workbench/StateCell.h>
#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <variant>

namespace orv {

/// What a window shows of a document, as a value: copies share the cells, so that another state
/// costs what differs. Safe to use from several threads as any Qt value.
struct ORV_PROPERTY_EDITOR_EXPORT DocumentState
{
    struct ORV_PROPERTY_EDITOR_EXPORT Tab
    {
        QString title;
        QStringList columns;    ///< may be more than cells: names whose cells couldn't be shown
        QList<StateCell> cells; ///< without the stamps of who wrote them and when

        [[nodiscard]] PropertyEditorContent::Tab content() const;
        /// The same but for the texts of the cells.
        [[nodiscard]] bool isShapedLike(const Tab &other) const;
        bool operator==(const Tab &other) const;
    };

    QList<Tab> tabs;
    QJsonObject metadata;

    [[nodiscard]] PropertyEditorContent content(const QJsonObject &extendedMetadata = {}) const;
    bool operator==(const DocumentState &other) const = default;
};

/// What leads from one state of a document to another, and back. Of a cell it holds what differs.
class ORV_PROPERTY_EDITOR_EXPORT StateChange
{
public:
    enum class Direction
    {
        Forth,
        Back,
    };

    /// Of cells of which one is known by its text alone.
    struct TextDifference
    {
        qsizetype offset = 0;
        QByteArray before; ///< from the offset on
        QByteArray after;
    };

    struct CellChange
    {
        int tab = 0; ///< of the later state
        int column = 0;
        std::variant<JsonDifference, TextDifference> difference;
    };

    [[nodiscard]] static StateChange between(const DocumentState &before, const DocumentState &after);

    [[nodiscard]] bool isEmpty() const;
    /// The state at the other end of \a state, from which the change was made.
    [[nodiscard]] DocumentState applied(DocumentState state, Direction direction) const;
    /// Gives both ends the members in which \a after differs from \a before.
    void followMetadata(const QJsonObject &before, const QJsonObject &after);
    /// About what it holds, in bytes.
    [[nodiscard]] qsizetype heldBytes() const;

    /// Tabs that were added, removed, moved or renamed, or whose columns were.
    [[nodiscard]] bool hasOtherTabs() const { return !m_before.isEmpty() || !m_after.isEmpty(); }
    [[nodiscard]] int firstTab() const { return m_firstTab; }
    [[nodiscard]] const QList<DocumentState::Tab> &tabsBefore() const { return m_before; }
    [[nodiscard]] const QList<DocumentState::Tab> &tabsAfter() const { return m_after; }
    [[nodiscard]] const QList<CellChange> &cells() const { return m_cells; }
    [[nodiscard]] bool hasOtherMetadata() const { return m_metadata.has_value(); }

private:
    void findTabs(const DocumentState &before, const DocumentState &after);
    void findCells(const DocumentState &before, const DocumentState &after);

    int m_firstTab = 0;
    QList<DocumentState::Tab> m_before; ///< from the first of these tabs on
    QList<DocumentState::Tab> m_after;
    QList<CellChange> m_cells; ///< of the other tabs
    std::optional<std::pair<QJsonObject, QJsonObject>> m_metadata;
};

} // namespace orv
