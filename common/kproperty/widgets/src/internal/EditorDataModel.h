#pragma once

#include "KPropertyEditorView.h"
#include "RowOrder.h"

#include <QAbstractItemModel>
#include <QHash>

#include <memory>
#include <vector>

class KProperty;
class KPropertySet;

namespace Internal {

/// The rows of a view: groups, properties, children of composed properties. Rows are made when a set is
/// given; they keep pointers to properties, which removeProperty() must take away in time.
class EditorDataModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn = 0,
        ValueColumn = 1,
        ColumnCount = 2
    };

    struct Options
    {
        bool alphabetical = false;
        bool groupsVisible = true;
    };

    using RemarkKind = KPropertyEditorView::RemarkKind;

    explicit EditorDataModel(QObject *parent = nullptr);
    ~EditorDataModel() override;

    void setSet(KPropertySet *set, Options options);
    void setToolTipsVisible(bool visible);
    void removeProperty(const KProperty *property);
    /// A sentence at the row of \a property; an empty one takes it away. Rows that are made anew for the same
    /// set keep theirs.
    void setRemark(const KProperty *property, const QString &text, RemarkKind kind = RemarkKind::Warning);
    [[nodiscard]] QString remark(const KProperty *property) const;
    [[nodiscard]] RemarkKind remarkKind(const KProperty *property) const;
    /// Of the rows in a group, one below the other, the first few; empty for none and for other rows.
    [[nodiscard]] QString remarksIn(const QModelIndex &group) const;
    /// A hint where it has none.
    [[nodiscard]] RemarkKind worstRemarkIn(const QModelIndex &group) const;
    /// Tells views that the value of \a property or of its children changed.
    void refresh(const KProperty *property);
    void refreshAll();

    [[nodiscard]] KProperty *property(const QModelIndex &index) const;
    [[nodiscard]] bool isGroup(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexForProperty(const KProperty *property, Column column) const;
    [[nodiscard]] bool isReadOnly(const KProperty &property) const;
    [[nodiscard]] KPropertySet *propertySet() const { return m_set; }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Node
    {
        Node *parent = nullptr;
        KProperty *property = nullptr;
        QByteArray group;
        QString remark;
        RemarkKind remarkKind = RemarkKind::Warning;
        /// The place among the children of the parent, which stays when others go.
        std::size_t slot = 0;
        std::vector<std::unique_ptr<Node>> children;
        RowOrder rows;
    };

    struct Remark
    {
        QString text;
        RemarkKind kind;
    };

    [[nodiscard]] QHash<QByteArray, Remark> remarks() const;
    void build(Options options);
    Node *addNode(Node *parent, KProperty *property);
    void forget(const Node &node);
    void removeNode(Node *node);
    [[nodiscard]] Node *nodeOf(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const Node *node, int column) const;
    [[nodiscard]] static QString remarksIn(const Node &group);
    [[nodiscard]] QVariant groupData(const Node &node, int column, int role) const;
    [[nodiscard]] QString spokenText(const KProperty &property) const;
    [[nodiscard]] QVariant nameData(const KProperty &property, int role) const;
    [[nodiscard]] QVariant valueData(const KProperty &property, int role) const;

    std::unique_ptr<Node> m_root;
    QHash<const KProperty *, Node *> m_nodes;
    KPropertySet *m_set = nullptr;
    bool m_toolTipsVisible = true;
};

} // namespace Internal
