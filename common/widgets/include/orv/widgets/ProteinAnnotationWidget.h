#pragma once

#include <orv/chemistry/ProteinAnnotationEntry.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QHash>
#include <QList>
#include <QString>

#include <memory>

namespace orv {

/// Stretches of proteins that carry a name. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProteinAnnotationWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit ProteinAnnotationWidget(QWidget *parent = nullptr);
    ~ProteinAnnotationWidget() override;

    /// In the order of the table. A place that is no number leaves the one that was set.
    [[nodiscard]] QList<ProteinAnnotationEntry> allAnnotations() const;
    /// Shows \a annotations in place of those before, so that the same content may be set again.
    void addAnnotations(const QList<ProteinAnnotationEntry> &annotations);

    /// Whether the annotated chains are oligonucleotides; changes the words alone.
    void setAsDigestedOligoProject(bool isOligo);
    /// By the names of proteins. Each row shows its residues, and what can't be is marked.
    void setSequences(const QHash<QString, QString> &sequences);

private:
    struct Shared;
    class Private;

    ProteinAnnotationWidget(const std::shared_ptr<Shared> &shared, QWidget *parent);

    const std::unique_ptr<Private> d;
};

} // namespace orv
