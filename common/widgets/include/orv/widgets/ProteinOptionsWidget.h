#pragma once

#include <orv/widgets/Export.h>

#include <QWidget>

namespace orv {

class ProteinAnnotationWidget;
class ProteinTableWidget;

/// The proteins of a search with the annotations of their stretches. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProteinOptionsWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ProteinOptionsWidget(QWidget *parent = nullptr);

    [[nodiscard]] ProteinTableWidget *proteinTableWidget() const { return m_table; }
    [[nodiscard]] ProteinAnnotationWidget *proteinAnnotationWidget() const { return m_annotations; }

    /// Annotations that aren't visible stay as they are.
    void setProteinAnnotationWidgetVisible(bool isVisible);

    [[nodiscard]] QString toPlainText() const;

private:
    void passSequences();
    void passAnnotations();

    ProteinTableWidget *m_table = nullptr;
    ProteinAnnotationWidget *m_annotations = nullptr;
};

} // namespace orv
