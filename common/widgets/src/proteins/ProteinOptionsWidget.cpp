#include "orv/widgets/ProteinOptionsWidget.h"

#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinTableWidget.h>

#include <QSplitter>
#include <QVBoxLayout>

namespace orv {

ProteinOptionsWidget::ProteinOptionsWidget(QWidget *parent)
    : QWidget(parent)
{
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    m_table = new ProteinTableWidget;
    m_annotations = new ProteinAnnotationWidget;
    splitter->addWidget(m_table);
    splitter->addWidget(m_annotations);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(splitter);
    setFocusProxy(m_table);
    connect(m_table, &ProteinTableWidget::proteinsChanged, this, &ProteinOptionsWidget::passSequences);
    connect(m_annotations, &ScientificTableWidget::contentChanged, this,
            &ProteinOptionsWidget::passAnnotations);
}

void ProteinOptionsWidget::passSequences()
{
    m_annotations->setSequences(m_table->sequences());
}

void ProteinOptionsWidget::passAnnotations()
{
    m_table->showAnnotations(m_annotations->allAnnotations());
}

void ProteinOptionsWidget::setProteinAnnotationWidgetVisible(bool isVisible)
{
    m_annotations->setVisible(isVisible);
}

QString ProteinOptionsWidget::toPlainText() const
{
    return m_table->toPlainText() + u'\n' + m_annotations->toPlainText();
}

} // namespace orv
