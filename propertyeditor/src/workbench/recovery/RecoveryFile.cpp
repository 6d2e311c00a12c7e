#include "RecoveryFile.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace orv::RecoveryFile {

namespace {

constexpr QLatin1String kJournalKind("orv-workflow-journal");
constexpr int kJournalForm = 1;
constexpr qint64 kUsualHeaderBytes = qint64(32) * 1024;

QJsonArray toJson(const QList<RecoveryChange> &changes)
{
    QJsonArray list;
    for (const RecoveryChange &change : changes)
        list.append(QJsonArray{change.place, change.before, change.after});
    return list;
}

RecoveryChanges changesFrom(const QJsonObject &header)
{
    RecoveryChanges changes;
    const QJsonArray list = header[QLatin1String("changes")].toArray();
    for (const auto &entry : list) {
        const QJsonArray texts = entry.toArray();
        changes.told.append({texts.at(0).toString(), texts.at(1).toString(), texts.at(2).toString()});
    }
    changes.count =
        std::max(qsizetype(header[QLatin1String("changeCount")].toInteger()), changes.told.size());
    return changes;
}

RecoveryEntry entryFrom(const QJsonObject &header, const QString &path)
{
    RecoveryEntry entry;
    entry.journal = path;
    entry.file = header[QLatin1String("file")].toString();
    entry.checksum = header[QLatin1String("checksum")].toString().toLatin1();
    entry.name = header[QLatin1String("name")].toString();
    entry.edited = QDateTime::fromString(header[QLatin1String("edited")].toString(), Qt::ISODateWithMs);
    entry.changes = changesFrom(header);
    const QJsonArray lastEdit = header[QLatin1String("lastEdit")].toArray();
    entry.lastEdit = {lastEdit.at(0).toString(), lastEdit.at(1).toString(), lastEdit.at(2).toString()};
    const QJsonArray lost = header[QLatin1String("lost")].toArray();
    for (const auto &text : lost)
        entry.lost.append(text.toString());
    return entry;
}

/// So that the line stays one that is read.
QStringList shortenedLosses(QStringList texts)
{
    constexpr qsizetype kLongestLoss = 500;
    for (QString &text : texts)
        text.truncate(kLongestLoss);
    return texts;
}

Header faultyHeader(Fault fault)
{
    Header header;
    header.fault = fault;
    return header;
}

} // namespace

QByteArray checksumOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray checksumOfFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtils::readFile(path);
    return bytes ? checksumOf(*bytes) : QByteArray();
}

QByteArray toBytes(const RecoveryEntry &entry, const QByteArray &document)
{
    const QJsonObject header{
        {QLatin1String("journal"), kJournalKind},
        {QLatin1String("form"), kJournalForm},
        {QLatin1String("file"), entry.file},
        {QLatin1String("checksum"), QLatin1String(entry.checksum)},
        {QLatin1String("name"), entry.name},
        {QLatin1String("edited"), entry.edited.toUTC().toString(Qt::ISODateWithMs)},
        {QLatin1String("changeCount"), entry.changes.count},
        {QLatin1String("changes"), toJson(entry.changes.told)},
        {QLatin1String("lastEdit"),
         QJsonArray{entry.lastEdit.tab, entry.lastEdit.column, entry.lastEdit.setting}},
        {QLatin1String("lost"), QJsonArray::fromStringList(shortenedLosses(entry.lost))},
        {QLatin1String("documentBytes"), document.size()},
        {QLatin1String("documentChecksum"),
         document.isEmpty() ? QString() : QString::fromLatin1(checksumOf(document))},
    };
    return JsonUtils::toCompactJson(header) + '\n' + document;
}

Header readHeader(const QString &path)
{
    Result<QByteArray> beginning = FileUtils::readBeginning(path, kUsualHeaderBytes);
    if (beginning && !beginning->contains('\n'))
        beginning = FileUtils::readBeginning(path, kMostHeaderBytes);
    if (!beginning)
        return faultyHeader(Fault::Unreadable);
    const qsizetype end = beginning->indexOf('\n');
    const Result<QJsonObject> object =
        JsonUtils::objectFromJson(beginning->left(std::max<qsizetype>(end, 0)));
    if (!object)
        return faultyHeader(Fault::Damaged);
    if ((*object)[QLatin1String("journal")] != kJournalKind ||
        (*object)[QLatin1String("form")] != kJournalForm)
        return faultyHeader(Fault::Foreign);
    Header header;
    header.entry = entryFrom(*object, path);
    header.documentOffset = end + 1;
    header.documentBytes = (*object)[QLatin1String("documentBytes")].toInteger(-1);
    header.documentChecksum = (*object)[QLatin1String("documentChecksum")].toString().toLatin1();
    header.entry.hasDocument = header.documentBytes > 0;
    const bool isWhole = header.documentBytes >= 0 && header.documentBytes <= RecoveryJournal::kMostBytes &&
                         QFileInfo(path).size() == header.documentOffset + header.documentBytes;
    if (!isWhole)
        header.fault = Fault::Damaged;
    return header;
}

Document readDocument(const Header &header)
{
    if (header.fault != Fault::None || !header.entry.hasDocument)
        return {{}, header.fault};
    const Result<QByteArray> bytes =
        FileUtils::readFile(header.entry.journal, RecoveryJournal::kMostBytes + kMostHeaderBytes);
    if (!bytes)
        return {{}, Fault::Unreadable};
    const QByteArray text = bytes->mid(header.documentOffset);
    if (text.size() != header.documentBytes || checksumOf(text) != header.documentChecksum)
        return {{}, Fault::Damaged};
    const Result<QJsonObject> object = JsonUtils::objectFromJson(text);
    return object ? Document{*object, Fault::None} : Document{{}, Fault::Damaged};
}

} // namespace orv::RecoveryFile
