#include "orv/propertyeditor/grid/PropertySplitterWidget.h"

#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/grid/GridHeaderModel.h>

#include <QHeaderView>
#include <QVBoxLayout>

namespace orv {

namespace {

constexpr QSize kFormSize(259, 339);
constexpr int kHeaderHeight = 50;

} // namespace

PropertySplitterWidget::PropertySplitterWidget(QWidget *itemWidget, QWidget *parent)
    : QWidget(parent)
    , m_header(new QHeaderView(Qt::Horizontal, this))
    , m_model(new GridHeaderModel(this))
{
    setObjectName(QStringLiteral("PropertySplitterWidget"));
    setWindowTitle(tr("Form"));
    resize(kFormSize);
    m_header->setModel(m_model);
    m_header->setContextMenuPolicy(Qt::CustomContextMenu);
    m_header->setFixedHeight(kHeaderHeight);
    m_header->setSectionResizeMode(QHeaderView::Fixed);
    m_header->setStretchLastSection(true);
    m_header->setTextElideMode(Qt::ElideRight);
    // The menu key opens the column's menu there.
    m_header->setFocusPolicy(Qt::TabFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    if (itemWidget)
        layout->addWidget(itemWidget);
    connect(m_header, &QHeaderView::customContextMenuRequested, this, [this](const QPoint &position) {
        Q_EMIT headerContextMenuRequested(this, m_header->mapToGlobal(position));
    });
}

PropertySplitterWidget::~PropertySplitterWidget() = default;

QString PropertySplitterWidget::headerText() const
{
    return m_model->stringList().value(0);
}

void PropertySplitterWidget::setHeaderText(const QString &text)
{
    m_model->setStringList({text});
    m_header->setToolTip(PlainTip::of(text));
    m_header->setAccessibleName(text);
    setAccessibleName(text);
}

} // namespace orv
