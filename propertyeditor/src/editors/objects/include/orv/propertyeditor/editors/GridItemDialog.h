#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/editors/IGenericEditorDialog.h>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

class IGridItem;

/// Edits a structured value by the column that shows such values in a tab. The column stands alone: it
/// neither tells others of changes nor hears of theirs. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GridItemDialog : public IGenericEditorDialog
{
    Q_OBJECT

public:
    ~GridItemDialog() override;

    /// What was set, as long as nobody changed it, else with what the column doesn't know.
    [[nodiscard]] QJsonObject data() const override;
    /// A line tells what can't be shown.
    void setData(const QJsonObject &value) override;

protected:
    /// \a type is that of the cells which \a item shows.
    GridItemDialog(std::unique_ptr<IGridItem> item, BaseItemType type, QWidget *parent);

    [[nodiscard]] IGridItem *item() const { return m_item.get(); }

    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    QPushButton *addButton(const QString &text);
    [[nodiscard]] QJsonObject cellOf(const QJsonObject &value) const;
    void tell(const QString &problem);

    std::unique_ptr<IGridItem> m_item;
    const BaseItemType m_type;
    QLabel *m_note = nullptr;
    QJsonObject m_value;
    QJsonObject m_shown; ///< the cell as the column gave it back at first
};

} // namespace orv
