#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <optional>

namespace orv {

/// Visits each text of a document that may name a file, in the JSON of any version, and writes what becomes
/// of it.
class ReferenceWalk
{
public:
    enum class Kind
    {
        Reference,      ///< of a sample, a setting or a table
        GlycanDatabase, ///< a path or URL in the brackets of a text of glycans
        PlainText,      ///< of a setting that holds any text
    };

    struct Place
    {
        QString path;    ///< names from the tab down, joined by " / "
        QString pointer; ///< JSON pointer

        [[nodiscard]] Place at(const QString &key, const QString &label) const;
        [[nodiscard]] Place at(const QString &key) const { return at(key, key); }
        [[nodiscard]] Place at(qsizetype index, const QString &label) const;
        /// Deeper in the JSON, where people see the same place.
        [[nodiscard]] Place inside(const QString &key) const;
    };

    /// What the text is to be from now on; nothing to leave it as it is. Empty texts aren't visited.
    using Visit = std::function<std::optional<QString>(Kind kind, const Place &place, const QString &text)>;

    explicit ReferenceWalk(Visit visit)
        : m_visit(std::move(visit))
    {}

    [[nodiscard]] QJsonObject walk(QJsonObject document) const;

private:
    [[nodiscard]] QJsonObject walkTab(QJsonObject tab, const Place &place) const;
    [[nodiscard]] QJsonObject walkCell(QJsonObject cell, const Place &place) const;
    [[nodiscard]] QJsonValue walkSetting(PropertyId id, const QJsonValue &value, const Place &place) const;
    [[nodiscard]] QJsonValue walkSamples(QJsonObject table, const Place &place) const;
    [[nodiscard]] QJsonObject walkSample(QJsonObject sample, const Place &place) const;
    [[nodiscard]] QJsonObject walkSampleRows(QJsonObject root, const Place &place) const;
    [[nodiscard]] QJsonValue walkDatabases(QJsonObject table, const Place &place) const;
    [[nodiscard]] QJsonValue walkGlycanRows(QJsonObject root, const Place &place) const;
    [[nodiscard]] QJsonValue walkGlycans(const QJsonValue &value, const Place &place) const;
    [[nodiscard]] QString walkBrackets(const QString &text, const Place &place) const;
    [[nodiscard]] QString walkExpertText(const QString &text, const Place &place) const;
    /// Of a text, or of each text in a list of them.
    [[nodiscard]] QJsonValue walkTexts(Kind kind, const QJsonValue &value, const Place &place) const;
    [[nodiscard]] QString walkText(Kind kind, const QString &text, const Place &place) const;

    Visit m_visit;
};

} // namespace orv
