#pragma once

#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

namespace orv {

/// The members of a sample's JSON object as they stand there: what the present ones lack is taken from those
/// of old documents.
struct SampleMembers
{
    int id = 0;
    QString name;
    QLatin1String pathKey; ///< the member that holds the path, or would
    QString path;
    QStringList traces;
    QStringList extraReferences;
    bool isReference = false;
    QString timeUnit;
    QString digestion;
    QString sampleType;
    QJsonObject metadata;
    QJsonObject fileMetadata;

    /// Fails with InvalidContent for a member of the wrong type, naming the first.
    [[nodiscard]] static Result<SampleMembers> read(const QJsonObject &json);
    /// Of an object that can't be read, the place of the path alone.
    [[nodiscard]] static SampleMembers readOrNone(const QJsonObject &json);

    /// The references of \a texts; texts that aren't empty and still no references go to \a unreadable.
    [[nodiscard]] static QList<ResourceReferenceSPtr> referencesOf(const QStringList &texts,
                                                                   QStringList *unreadable);
    /// That of the path, null for none.
    [[nodiscard]] ResourceReferenceSPtr file(QStringList *unreadable) const
    {
        return referencesOf({path}, unreadable).value(0);
    }
};

} // namespace orv
