#include "orv/propertyeditor/engine/PreviewPreset.h"

#include <orv/core/FileUtils.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <variant>

namespace orv {

using PresetContent = PreviewPreset::Content;
using PresetProperties = PreviewPreset::MirelProperties;

namespace {

struct PreviewPresetTr
{
    Q_DECLARE_TR_FUNCTIONS(PreviewPreset)
};

/// Which field of a record it is, and so of which type.
template<typename Record>
using Field = std::variant<QString Record::*, bool Record::*, qint32 Record::*>;

struct KeyRow
{
    QLatin1String key;
    Field<PresetContent> field;
};

constexpr std::array kPaths = {
    KeyRow{QLatin1String("SpectraFiles"), &PresetContent::spectraFiles},
    KeyRow{QLatin1String("DatabaseFiles"), &PresetContent::databaseFiles},
    KeyRow{QLatin1String("OutputFolder"), &PresetContent::outputFolder},
};

constexpr std::array kSettings = {
    KeyRow{QLatin1String("ArgMod"), &PresetContent::argMod},
    KeyRow{QLatin1String("CysMod"), &PresetContent::cysMod},
    KeyRow{QLatin1String("LysMod"), &PresetContent::lysMod},
    KeyRow{QLatin1String("NTermMod"), &PresetContent::nTermMod},
    KeyRow{QLatin1String("CTermMod"), &PresetContent::cTermMod},
    KeyRow{QLatin1String("DigestLetters"), &PresetContent::digestLetters},
    KeyRow{QLatin1String("Wildcard"), &PresetContent::wildcard},
    KeyRow{QLatin1String("phospho_search"), &PresetContent::phosphoSearch},
    KeyRow{QLatin1String("AllCharges"), &PresetContent::allCharges},
    KeyRow{QLatin1String("FragType"), &PresetContent::fragType},
    KeyRow{QLatin1String("digest_side"), &PresetContent::digestSide},
    KeyRow{QLatin1String("DigestType"), &PresetContent::digestType},
};

/// Lines that are written for the engine's sake and never read.
struct FixedRow
{
    QLatin1String key;
    QLatin1String value;
};

constexpr std::array kFixed = {
    FixedRow{QLatin1String("FirstK"), QLatin1String("")},
    FixedRow{QLatin1String("DebugMode"), QLatin1String("0")},
    FixedRow{QLatin1String("DebugText"), QLatin1String("")},
    FixedRow{QLatin1String("ProteomeDiscovererSuggestedKarvonWorkflow"), QLatin1String("")},
    FixedRow{QLatin1String("ProteomeDiscovererVersion"), QLatin1String("")},
};

/// A field of the property form, its property, and the same field of the file form.
struct PropertyRow
{
    PropertyId id;
    Field<PresetProperties> property;
    Field<PresetContent> file;
};

constexpr std::array kProperties = {
    PropertyRow{PropertyId::PreviewCysMod, &PresetProperties::cysMod, &PresetContent::cysMod},
    PropertyRow{PropertyId::PreviewLysMod, &PresetProperties::lysMod, &PresetContent::lysMod},
    PropertyRow{PropertyId::PreviewArgMod, &PresetProperties::argMod, &PresetContent::argMod},
    PropertyRow{PropertyId::PreviewNTermMod, &PresetProperties::nTermMod, &PresetContent::nTermMod},
    PropertyRow{PropertyId::PreviewCTermMod, &PresetProperties::cTermMod, &PresetContent::cTermMod},
    PropertyRow{PropertyId::PreviewDigestLetters, &PresetProperties::digestLetters,
                &PresetContent::digestLetters},
    PropertyRow{PropertyId::PreviewDigestSide, &PresetProperties::digestSide, &PresetContent::digestSide},
    PropertyRow{PropertyId::PreviewFragType, &PresetProperties::fragType, &PresetContent::fragType},
    PropertyRow{PropertyId::PreviewDigestType, &PresetProperties::digestType, &PresetContent::digestType},
    PropertyRow{PropertyId::PreviewPhosphoSearch, &PresetProperties::phosphoSearch,
                &PresetContent::phosphoSearch},
    PropertyRow{PropertyId::PreviewWildcard, &PresetProperties::wildcard, &PresetContent::wildcard},
    PropertyRow{PropertyId::PreviewAllCharges, &PresetProperties::allCharges, &PresetContent::allCharges},
};

QString textOf(const QString &value)
{
    return value;
}

QString textOf(bool value)
{
    return QLatin1String(value ? "1" : "0");
}

QString textOf(qint32 value)
{
    return QString::number(value);
}

void read(const QString &text, QString *value)
{
    *value = text;
}

void read(const QString &text, bool *value)
{
    *value = text.toInt() != 0;
}

void read(const QString &text, qint32 *value)
{
    *value = text.toInt();
}

void appendLine(QLatin1String key, const QString &value, QString *text)
{
    *text += key + QLatin1Char('=') + value + QLatin1Char('\n');
}

void readField(const QString &key, const QString &value, PresetContent *content)
{
    const auto readFrom = [&](const auto &rows) {
        for (const KeyRow &row : rows) {
            if (row.key == key)
                std::visit([&](auto field) { read(value, &(content->*field)); }, row.field);
        }
    };
    readFrom(kPaths);
    readFrom(kSettings);
}

Error cannotOpenPreset(const QString &path)
{
    return {ErrorCode::CannotOpenFile, PreviewPresetTr::tr("Cannot open file: %1").arg(path)};
}

} // namespace

QString PreviewPreset::createPresetContentFromWorkflow(const QString &spectraFiles,
                                                       const QString &databaseFiles,
                                                       const QString &outputFolder,
                                                       const PresetProperties &properties)
{
    return PresetContent::fromMirelProperties(spectraFiles, databaseFiles, outputFolder, properties)
        .convertToFileContent(PresetContent::WithHeader);
}

PresetContent PresetContent::fromMirelProperties(const QString &spectraFiles, const QString &databaseFiles,
                                                 const QString &outputFolder,
                                                 const PresetProperties &properties)
{
    PresetContent content;
    content.spectraFiles = spectraFiles;
    content.databaseFiles = databaseFiles;
    content.outputFolder = outputFolder;
    for (const PropertyRow &row : kProperties) {
        std::visit(
            [&]<typename T>(T PresetProperties::*property) {
                content.*std::get<T PresetContent::*>(row.file) = properties.*property;
            },
            row.property);
    }
    return content;
}

Result<PresetContent> PresetContent::fromPreviewPresetFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtils::readFile(path, kMaximumSize);
    if (!bytes.hasError())
        return fromFileContent(*bytes);
    Error error = cannotOpenPreset(path);
    if (bytes.error().code() != ErrorCode::CannotOpenFile)
        error.addDetail(bytes.error().errorMessage());
    for (const QString &detail : bytes.error().details())
        error.addDetail(detail);
    return error.ecatch();
}

PresetContent PresetContent::fromFileContent(const QByteArray &text)
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream stream(&device);
    PresetContent content;
    QString line;
    while (stream.readLineInto(&line)) {
        if (line.startsWith(QLatin1Char('#')))
            continue;
        // The pattern "([^=]+)=(.+)", which would take a time that grows with the square of a long line.
        qsizetype begin = 0;
        while (begin < line.size() && line.at(begin) == QLatin1Char('='))
            ++begin;
        const qsizetype sign = line.indexOf(QLatin1Char('='), begin);
        if (sign > begin && sign + 1 < line.size())
            readField(line.sliced(begin, sign - begin), line.sliced(sign + 1), &content);
    }
    return content;
}

bool PresetContent::isFileContent(const QByteArray &text)
{
    const auto isKeyIn = [](const QByteArray &key, const auto &rows) {
        return std::ranges::any_of(rows, [&key](const auto &row) { return QLatin1String(key) == row.key; });
    };
    const QList<QByteArray> lines = text.split('\n');
    return std::ranges::any_of(lines, [&isKeyIn](const QByteArray &line) {
        const QByteArray key = line.left(line.indexOf('='));
        return line.contains('=') &&
               (isKeyIn(key, kPaths) || isKeyIn(key, kSettings) || isKeyIn(key, kFixed));
    });
}

QString PresetContent::convertToFileContent(ConvertMode mode) const
{
    QString text;
    if (mode == WithHeader) {
        text = QStringLiteral("#ORV-Preview parameters v1.15\n#%1\n")
                   .arg(QDateTime::currentDateTime().toString(Qt::ISODate));
    }
    for (const KeyRow &row : kPaths) {
        const QString &path = this->*std::get<QString PresetContent::*>(row.field);
        appendLine(row.key, QDir::toNativeSeparators(path), &text);
    }
    for (const KeyRow &row : kSettings)
        appendLine(row.key, std::visit([this](auto field) { return textOf(this->*field); }, row.field),
                   &text);
    for (const FixedRow &row : kFixed)
        appendLine(row.key, row.value, &text);
    return text;
}

PresetProperties PresetProperties::fromPreviewPreset(const PresetContent &content)
{
    PresetProperties properties;
    for (const PropertyRow &row : kProperties) {
        std::visit(
            [&]<typename T>(T PresetContent::*field) {
                properties.*std::get<T PresetProperties::*>(row.property) = content.*field;
            },
            row.file);
    }
    return properties;
}

PresetProperties PresetProperties::fromPropertiesMap(const QMultiMap<PropertyId, QVariant> &map)
{
    PresetProperties properties;
    for (const PropertyRow &row : kProperties) {
        const auto found = map.constFind(row.id);
        const QVariant value = found == map.cend() ? QVariant() : *found;
        std::visit([&]<typename T>(T PresetProperties::*field) { properties.*field = value.value<T>(); },
                   row.property);
    }
    return properties;
}

QMultiMap<PropertyId, QVariant> PresetProperties::toPropertiesMap() const
{
    QMultiMap<PropertyId, QVariant> map;
    for (const PropertyRow &row : kProperties) {
        std::visit([&](auto field) { map.insert(row.id, QVariant::fromValue(this->*field)); }, row.property);
    }
    return map;
}

} // namespace orv
