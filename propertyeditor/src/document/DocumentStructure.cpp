#include "orv/propertyeditor/content/DocumentStructure.h"

#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::LoadContext;

namespace {

struct DocumentStructureTr
{
    Q_DECLARE_TR_FUNCTIONS(DocumentStructure)
};

struct MemberForm
{
    QLatin1String key;
    QJsonValue::Type type;
};

constexpr std::array kTabMembers = {
    MemberForm{NAME_KEY, QJsonValue::String},
    MemberForm{COLUMNS_KEY, QJsonValue::Array},
    MemberForm{CELLS_KEY, QJsonValue::Array},
};

Error malformed(const QString &message, qsizetype tab)
{
    return Error(ErrorCode::MalformedStructure, message)
        .addDetail(DocumentStructureTr::tr("Tab %1.").arg(tab + 1))
        .addDetail(DocumentStructureTr::tr("Mend the text at that place, or restore the file from a copy."));
}

QString isWrong(const QString &name, QJsonValue::Type wanted, QJsonValue::Type found)
{
    return DocumentStructureTr::tr("%1 must be %2, but there is %3.")
        .arg(name, JsonUtils::typeDescription(wanted), JsonUtils::typeDescription(found));
}

Error checkTab(const QJsonValue &value, qsizetype index)
{
    if (!value.isObject())
        return malformed(isWrong(DocumentStructureTr::tr("A tab"), QJsonValue::Object, value.type()), index);
    const QJsonObject tab = value.toObject();
    for (const MemberForm &member : kTabMembers) {
        const QJsonValue found = tab.value(member.key);
        if (found.type() != member.type)
            return malformed(isWrong(QStringLiteral("\"%1\"").arg(member.key), member.type, found.type()),
                             index);
    }
    const QJsonArray cells = tab.value(CELLS_KEY).toArray();
    if (!cells.isEmpty() && tab.value(COLUMNS_KEY).toArray().isEmpty())
        return malformed(DocumentStructureTr::tr("There are cells, but no columns."), index);
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QJsonValue cell = cells.at(i);
        if (!cell.isObject())
            return malformed(
                isWrong(DocumentStructureTr::tr("Cell %1").arg(i + 1), QJsonValue::Object, cell.type()),
                index);
        if (cell.toObject().isEmpty())
            return malformed(DocumentStructureTr::tr("Cell %1 is empty.").arg(i + 1), index);
    }
    return Error::NoError;
}

template<typename Keys>
void reportUnknownMembers(const LoadContext &context, const QJsonObject &object, const Keys &known)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (std::ranges::find(known, it.key()) == known.end())
            context.lost(it.key(), DocumentStructureTr::tr("member \"%1\"").arg(it.key()),
                         DocumentStructureTr::tr("the format has no such member"));
    }
}

/// Elements of the array \a key that are of another type than its elements have.
void reportElements(const LoadContext &context, const QJsonObject &tab, QLatin1String key,
                    QJsonValue::Type type)
{
    const QJsonArray array = tab.value(key).toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        if (array.at(i).type() != type)
            context.member(key).lost(
                QString::number(i), DocumentStructureTr::tr("element of \"%1\"").arg(key),
                DocumentStructureTr::tr("it is %1").arg(JsonUtils::typeDescription(array.at(i).type())));
    }
}

void reportTab(const LoadContext &tabs, const QJsonValue &value, qsizetype index)
{
    if (!value.isObject()) {
        tabs.lost(QString::number(index), DocumentStructureTr::tr("a tab"),
                  DocumentStructureTr::tr("it is no object"));
        return;
    }
    const QJsonObject tab = value.toObject();
    const LoadContext context = tabs.element(index);
    constexpr std::array kKeys = {NAME_KEY, COLUMNS_KEY, CELLS_KEY};
    reportUnknownMembers(context, tab, kKeys);
    for (const MemberForm &member : kTabMembers) {
        const QJsonValue found = tab.value(member.key);
        if (!found.isUndefined() && found.type() != member.type)
            context.lost(member.key, DocumentStructureTr::tr("\"%1\" of a tab").arg(member.key),
                         DocumentStructureTr::tr("it is %1").arg(JsonUtils::typeDescription(found.type())));
    }
    reportElements(context, tab, COLUMNS_KEY, QJsonValue::String);
    reportElements(context, tab, CELLS_KEY, QJsonValue::Object);
}

void reportMetadata(const LoadContext &context, const QJsonObject &document)
{
    const QJsonValue metadata = document.value(META_IN_JSON_KEY);
    const bool isAbsent = metadata.isUndefined() || metadata == QJsonValue(QString());
    if (!isAbsent && !QJsonDocument::fromJson(metadata.toString().toUtf8()).isObject())
        context.lost(META_IN_JSON_KEY, DocumentStructureTr::tr("the metadata of the document"),
                     DocumentStructureTr::tr("they are not the JSON text of an object"));
    const QJsonValue mode = document.value(PROJECT_CREATION_MODE_KEY);
    if (!mode.isUndefined() && mode.toInt(-1) != mode.toInt(0))
        context.lost(PROJECT_CREATION_MODE_KEY, DocumentStructureTr::tr("the mode of the document"),
                     DocumentStructureTr::tr("it is no whole number"));
    const QJsonValue extended = document.value(EXTENDED_METADATA_IN_JSON_KEY);
    if (!extended.isUndefined() && !extended.isObject())
        context.lost(EXTENDED_METADATA_IN_JSON_KEY,
                     DocumentStructureTr::tr("the extended metadata of the document"),
                     DocumentStructureTr::tr("they are not an object"));
}

} // namespace

Error DocumentStructure::check(const QJsonObject &document)
{
    const QJsonValue tabs = document.value(TABS_KEY);
    if (!tabs.isArray()) {
        return {ErrorCode::MalformedStructure,
                isWrong(QStringLiteral("\"%1\"").arg(TABS_KEY), QJsonValue::Array, tabs.type())};
    }
    const QJsonArray array = tabs.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        ORV_RETURN_IF_ERROR(checkTab(array.at(i), i));
    return Error::NoError;
}

void DocumentStructure::reportLosses(const QJsonObject &document, LossObserver *observer)
{
    if (!observer)
        return;
    const LoadContext context(observer);
    constexpr std::array kKeys = {TABS_KEY, META_IN_JSON_KEY, EXTENDED_METADATA_IN_JSON_KEY,
                                  PROJECT_CREATION_MODE_KEY};
    reportUnknownMembers(context, document, kKeys);
    reportMetadata(context, document);
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (qsizetype i = 0; i < tabs.size(); ++i)
        reportTab(context.member(TABS_KEY), tabs.at(i), i);
}

} // namespace orv
