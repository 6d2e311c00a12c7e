#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/SamplePathAndName.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QJsonObject>
#include <QObject>

#include <memory>

namespace orv {

class TableSheet;

/// The content of a samples cell as three tables that people edit: the samples with their custom columns, the
/// traces, and the presets of peak options. What nobody edits comes back as it was set. GUI thread.
class ORV_WORKFLOW_EXPORT SamplesAndTracesTables : public QObject
{
    Q_OBJECT

public:
    explicit SamplesAndTracesTables(QObject *parent = nullptr);
    ~SamplesAndTracesTables() override;

    /// Others take their place when content is set or the custom columns change, see sheetsChanged(), and
    /// their histories begin anew. Who shows one holds it, so that it outlives what shows it.
    using Sheet = std::shared_ptr<TableSheet>;
    [[nodiscard]] Sheet samples() const;
    [[nodiscard]] Sheet traces() const;
    [[nodiscard]] Sheet presets() const;

    /// Replaces everything. An object that is no samples' content is kept and comes back from jsonContent(),
    /// while the tables are empty, until something is set anew; the error says why.
    [[nodiscard]] Error setJsonContent(const QJsonObject &json);
    /// What was set while nothing is edited, or what was edited is undone.
    [[nodiscard]] QJsonObject jsonContent() const;
    [[nodiscard]] SamplesAndTracesContent content() const;
    /// In the order of the table; quick to ask for after every edit.
    [[nodiscard]] const QList<SamplesInput::Entry> &entries() const;

    /// Whether what was set is no samples' content.
    [[nodiscard]] bool isUnreadable() const;

    /// Appends samples in one step, but those that the table has: the file under the same name, or under any
    /// for one without a name. A sample without a name is called like its file. How many were added.
    [[nodiscard]] Result<int> addFiles(const QList<SamplePathAndName> &files);
    /// Gives samples without a name that of their file, in one step; how many.
    [[nodiscard]] Result<int> nameByFiles();

    [[nodiscard]] const SamplesInput::CustomColumns &customColumns() const;
    /// Whether a sample has a value in a custom column.
    [[nodiscard]] bool hasValues(const QString &customColumn) const;
    /// InvalidContent for a name that is empty or taken.
    [[nodiscard]] Error addCustomColumn(const SamplesInput::CustomColumn &column);
    /// With its values; can't be undone. False when there is none.
    bool removeCustomColumn(const QString &name);

    /// As SamplesCheck::validate, and an error for cells that hold what their column doesn't allow.
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details) const;

    /// 0 for a row that isn't in the table of samples.
    [[nodiscard]] int sampleIdOfRow(quint32 rowId) const;
    /// The names of the samples that a cell of the traces' samples means, for people.
    [[nodiscard]] QString namesOfSamples(QStringView cellText) const;
    /// Whether a trace is for one of these samples; the row is one of the table.
    [[nodiscard]] bool isTraceOf(int traceRow, const QList<int> &sampleIds) const;

Q_SIGNALS:
    /// Once for each step, undone ones too, and after setJsonContent().
    void samplesChanged();
    /// Once for each step in one of the three tables, undone ones too, and for custom columns; never for
    /// setJsonContent(). Follows samplesChanged() where the samples changed.
    void edited();
    void sheetsChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
