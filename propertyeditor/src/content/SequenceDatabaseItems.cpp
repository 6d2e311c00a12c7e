#include "orv/propertyeditor/content/SequenceDatabaseItems.h"

#include <orv/core/FileTypes.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/TextUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <QHash>
#include <QJsonArray>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kSequences("sequences");

QList<SequenceDatabaseItem> fromPath(const QString &path)
{
    const ResourceReferenceSPtr reference = ResourceReferenceUtils::fromString(path);
    if (!reference)
        return {};
    return {SequenceDatabaseItem(reference, SequenceDatabaseItem::START_ID, QString())};
}

/// What is wrong with the files of a table, each file in the order of the rows.
struct Findings
{
    bool hasEmptyEntry = false;
    QStringList missing;
    QStringList nonFasta;
    QStringList duplicates;
};

Findings findingsIn(const QList<SequenceDatabaseItem> &items)
{
    Findings findings;
    QHash<QString, int> uses;
    for (const SequenceDatabaseItem &item : items) {
        const ResourceReferenceSPtr &reference = item.fastaReference();
        if (!reference) {
            findings.hasEmptyEntry = true;
            continue;
        }
        const QString &text = reference->text();
        if (++uses[text] == 2)
            findings.duplicates.append(text);
        if (!ResourceHandlerUtils::checkExists(reference))
            findings.missing.append(text);
        if (!ResourceTypeChecker::matches(reference, FileTypes::FASTA))
            findings.nonFasta.append(text);
    }
    return findings;
}

QString told(const QString &singular, const QString &plural, const QStringList &files)
{
    return QStringLiteral("%1:\n%2.")
        .arg(files.size() == 1 ? singular : plural, TextUtils::stringListToHtmlList(files));
}

} // namespace

Result<QList<SequenceDatabaseItem>> SequenceDatabaseItems::fromJson(const QJsonObject &entry)
{
    const QJsonValue value = entry.value(VALUE_KEY);
    if (value.isString())
        return fromPath(value.toString());
    Result<QJsonArray> sequences = JsonUtils::arrayValue(value.toObject(), kSequences);
    if (sequences.hasError())
        return sequences.ecatch();
    QList<SequenceDatabaseItem> items;
    items.reserve(sequences->size());
    for (qsizetype i = 0; i < sequences->size(); ++i) {
        const QJsonValue sequence = sequences->at(i);
        if (!sequence.isObject()) {
            return Error(ErrorCode::InvalidContent, tr("A row of the sequence databases is no object."))
                .addDetail(tr("Element %1 of \"%2\" is %3; remove it, or restore the file from a copy.")
                               .arg(i + 1)
                               .arg(kSequences, JsonUtils::typeDescription(sequence.type())));
        }
        Result<SequenceDatabaseItem> item = SequenceDatabaseItem::fromJson(sequence.toObject());
        if (item.hasError())
            return item.ecatch();
        items.append(std::move(item).value());
    }
    return items;
}

QJsonObject SequenceDatabaseItems::toJson(const QList<SequenceDatabaseItem> &items)
{
    QJsonArray sequences;
    for (const SequenceDatabaseItem &item : items)
        sequences.append(item.toJson());
    return {{kSequences, sequences}};
}

bool SequenceDatabaseItems::validate(const QList<SequenceDatabaseItem> &items, QList<QString> *errors,
                                     QList<QString> *warnings)
{
    const Findings findings = findingsIn(items);
    if (findings.hasEmptyEntry)
        errors->append(tr("Sequence databases table cannot contain empty entries."));
    if (!findings.missing.isEmpty()) {
        errors->append(told(tr("Sequence databases table contains a fasta file that does not exist"),
                            tr("Sequence databases table contains fasta files that do not exist"),
                            findings.missing));
    }
    if (!findings.nonFasta.isEmpty()) {
        errors->append(told(tr("Sequence databases table contains a non-fasta file."),
                            tr("Sequence databases table contains non-fasta files"), findings.nonFasta));
    }
    if (!findings.duplicates.isEmpty()) {
        warnings->append(tr("Sequence databases table contains duplicate fasta files:\n%1.")
                             .arg(TextUtils::stringListToHtmlList(findings.duplicates)));
    }
    return !findings.hasEmptyEntry && findings.missing.isEmpty() && findings.nonFasta.isEmpty();
}

} // namespace orv::PropertyEditor
