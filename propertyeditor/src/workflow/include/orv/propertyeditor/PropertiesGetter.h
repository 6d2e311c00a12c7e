#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/samples/SamplesInput.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace orv {

class PropertyEditorContent;
class ResourceReference;

namespace PropertyEditor {
class SamplesTableItem;
}

/// What an engine needs of a workflow, read straight out of its value form:
/// \code
///     const PropertiesGetter getter(document);
///     for (const PropertiesGetter::CellData &step : getter.documents())
///         createProject(step, PropertiesGetter::samplesMatchingRegExp(getter.samples().constFirst(),
///         u"*"_s));
/// \endcode
/// Nothing fails: what can't be read is left out, with a line in the log and in warnings(). Different objects
/// may be used on different threads.
class ORV_WORKFLOW_EXPORT PropertiesGetter
{
public:
    /// One cell. A plain value.
    struct CellData
    {
        BaseItemType type = BaseItemType::Unknown;
        int index = 0; ///< the row of the cell in its column, from 0
        /// The settings that the cell's type may hold, in the system's units, together with those of the
        /// cells in the same row that it requires. A setting that the cell doesn't hold is absent.
        QMap<PropertyId, QVariant> properties;
    };

    explicit PropertiesGetter(const PropertyEditorContent &content);
    PropertiesGetter(PropertiesGetter &&other) noexcept;
    PropertiesGetter &operator=(PropertiesGetter &&other) noexcept;
    ~PropertiesGetter();

    /// The search and report steps, by their type and in the order of the document.
    [[nodiscard]] QList<CellData> documents() const;
    /// The sequence databases, then the proteins: the first row of each such column.
    [[nodiscard]] QList<CellData> globals() const;
    /// The samples tables; the workflow's samples are those of the first.
    [[nodiscard]] QList<CellData> samples() const;

    /// The proteins as FASTA text in UTF-8, which begins with an empty line. The intact proteins come before
    /// the others; a step that looks at peptides gets their chains. Empty when there are none, when the table
    /// can't be read, and as soon as one protein stands for combinations of chains.
    [[nodiscard]] QByteArray fastaContent() const;

    /// The files of the first table of sequence databases.
    [[nodiscard]] QList<QSharedPointer<ResourceReference>> fastaReferences() const;

    /// What the calls so far have met, in their order.
    [[nodiscard]] QStringList warnings() const;

    // Names of samples. A pattern is no regular expression, in spite of the name, but the wildcards of a
    // shell:
    // "*", "?" and sets such as "[12]", tested on the whole name; case counts.

    /// The names that match, in the order of the samples.
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const CellData &items, const QString &pattern);
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const PropertyEditor::SamplesTableItem *items,
                                                              const QString &pattern);
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const QList<SamplesInput::Entry> &items,
                                                              const QString &pattern);
    /// The names that match one of the patterns, each once, in the order of the patterns.
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const CellData &items,
                                                              const QList<QString> &patterns);
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const PropertyEditor::SamplesTableItem *items,
                                                              const QList<QString> &patterns);
    [[nodiscard]] static QList<QString> samplesMatchingRegExp(const QList<SamplesInput::Entry> &items,
                                                              const QList<QString> &patterns);
    /// The samples whose names match, in their own order, with all custom columns.
    [[nodiscard]] static SamplesInput::SamplesArrayWithCustomColumns
    samplesMatchingRegExp(const SamplesInput::SamplesArrayWithCustomColumns &items,
                          const QList<QString> &patterns);

    /// Removes the entries that match no pattern, so all of them where there is no pattern.
    static void filterOutNotMatchingSamples(const QList<QString> &patterns,
                                            QList<SamplesInput::Entry> *entries);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv
