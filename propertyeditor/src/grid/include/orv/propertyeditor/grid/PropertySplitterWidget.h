#pragma once

#include <orv/widgets/Export.h>

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QHeaderView)

namespace orv {

class GridHeaderModel;

/// A column of the grid: its title above the widget of its item.
class ORV_PROPERTY_EDITOR_EXPORT PropertySplitterWidget : public QWidget
{
    Q_OBJECT

public:
    /// Owns \a itemWidget from here.
    explicit PropertySplitterWidget(QWidget *itemWidget, QWidget *parent = nullptr);
    ~PropertySplitterWidget() override;

    [[nodiscard]] QString headerText() const;
    void setHeaderText(const QString &text);
    [[nodiscard]] QHeaderView *header() const { return m_header; }

Q_SIGNALS:
    void headerContextMenuRequested(QWidget *widget, QPoint globalPos);

private:
    QHeaderView *m_header;
    GridHeaderModel *m_model;
};

} // namespace orv
