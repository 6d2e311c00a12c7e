#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/engine/PreviewPreset.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <variant>

namespace orv {

using Content = PreviewPreset::Content;
using MirelProperties = PreviewPreset::MirelProperties;

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
    Field<Content> field;
};

constexpr std::array kPaths = {
    KeyRow{QLatin1String("SpectraFiles"), &Content::spectraFiles},
    KeyRow{QLatin1String("DatabaseFiles"), &Content::databaseFiles},
    KeyRow{QLatin1String("OutputFolder"), &Content::outputFolder},
};

constexpr std::array kSettings = {
    KeyRow{QLatin1String("ArgMod"), &Content::argMod},
    KeyRow{QLatin1String("CysMod"), &Content::cysMod},
    KeyRow{QLatin1String("LysMod"), &Content::lysMod},
    KeyRow{QLatin1String("NTermMod"), &Content::nTermMod},
    KeyRow{QLatin1String("CTermMod"), &Content::cTermMod},
    KeyRow{QLatin1String("DigestLetters"), &Content::digestLetters},
    KeyRow{QLatin1String("Wildcard"), &Content::wildcard},
    KeyRow{QLatin1String("phospho_search"), &Content::phosphoSearch},
    KeyRow{QLatin1String("AllCharges"), &Content::allCharges},
    KeyRow{QLatin1String("FragType"), &Content::fragType},
    KeyRow{QLatin1String("digest_side"), &Content::digestSide},
    KeyRow{QLatin1String("DigestType"), &Content::digestType},
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
    Field<MirelProperties> property;
    Field<Content> file;
};

constexpr std::array kProperties = {
    PropertyRow{PropertyId::PreviewCysMod, &MirelProperties::cysMod, &Content::cysMod},
    PropertyRow{PropertyId::PreviewLysMod, &MirelProperties::lysMod, &Content::lysMod},
    PropertyRow{PropertyId::PreviewArgMod, &MirelProperties::argMod, &Content::argMod},
    PropertyRow{PropertyId::PreviewNTermMod, &MirelProperties::nTermMod, &Content::nTermMod},
    PropertyRow{PropertyId::PreviewCTermMod, &MirelProperties::cTermMod, &Content::cTermMod},
    PropertyRow{PropertyId::PreviewDigestLetters, &MirelProperties::digestLetters, &Content::digestLetters},
    PropertyRow{PropertyId::PreviewDigestSide, &MirelProperties::digestSide, &Content::digestSide},
    PropertyRow{PropertyId::PreviewFragType, &MirelProperties::fragType, &Content::fragType},
    PropertyRow{PropertyId::PreviewDigestType, &MirelProperties::digestType, &Content::digestType},
    PropertyRow{PropertyId::PreviewPhosphoSearch, &MirelProperties::phosphoSearch, &Content::phosphoSearch},
    PropertyRow{PropertyId::PreviewWildcard, &MirelProperties::wildcard, &Content::wildcard},
    PropertyRow{PropertyId::PreviewAllCharges, &MirelProperties::allCharges, &Content::allCharges},
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

void readField(const QString &key, const QString &value, Content *content)
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

} // namespace

QString PreviewPreset::createPresetContentFromWorkflow(const QString &spectraFiles,
                                                       const QString &databaseFiles,
                                                       const QString &outputFolder,
                                                       const MirelProperties &properties)
{
    return Content::fromMirelProperties(spectraFiles, databaseFiles, outputFolder, properties)
        .convertToFileContent(Content::WithHeader);
}

Content Content::fromMirelProperties(const QString &spectraFiles, const QString &databaseFiles,
                                     const QString &outputFolder, const MirelProperties &properties)
{
    Content content;
    content.spectraFiles = spectraFiles;
    content.databaseFiles = databaseFiles;
    content.outputFolder = outputFolder;
    for (const PropertyRow &row : kProperties) {
        std::visit(
            [&]<typename T>(T MirelProperties::*property) {
                content.*std::get<T Content::*>(row.file) = properties.*property;
            },
            row.property);
    }
    return content;
}

Result<Content> Content::fromPreviewPresetFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtils::readFile(path, kMaximumSize);
    if (!bytes.hasError())
        return fromFileContent(*bytes);
    Error error(ErrorCode::CannotOpenFile, PreviewPresetTr::tr("Cannot open file: %1").arg(path));
    if (bytes.error().code() != ErrorCode::CannotOpenFile)
        error.addDetail(bytes.error().errorMessage());
    for (const QString &detail : bytes.error().details())
        error.addDetail(detail);
    return error.ecatch();
}

Content Content::fromFileContent(const QByteArray &text)
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream stream(&device);
    Content content;
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

QString Content::convertToFileContent(ConvertMode mode) const
{
    QString text;
    if (mode == WithHeader) {
        text = QStringLiteral("#ORV-Preview parameters v1.15\n#%1\n")
                   .arg(QDateTime::currentDateTime().toString(Qt::ISODate));
    }
    for (const KeyRow &row : kPaths) {
        const QString &path = this->*std::get<QString Content::*>(row.field);
        appendLine(row.key, QDir::toNativeSeparators(path), &text);
    }
    for (const KeyRow &row : kSettings)
        appendLine(row.key, std::visit([this](auto field) { return textOf(this->*field); }, row.field),
                   &text);
    for (const FixedRow &row : kFixed)
        appendLine(row.key, row.value, &text);
    return text;
}

MirelProperties MirelProperties::fromPreviewPreset(const Content &content)
{
    MirelProperties properties;
    for (const PropertyRow &row : kProperties) {
        std::visit(
            [&]<typename T>(T Content::*field) {
                properties.*std::get<T MirelProperties::*>(row.property) = content.*field;
            },
            row.file);
    }
    return properties;
}

MirelProperties MirelProperties::fromPropertiesMap(const QMultiMap<PropertyId, QVariant> &map)
{
    MirelProperties properties;
    for (const PropertyRow &row : kProperties) {
        const auto found = map.constFind(row.id);
        const QVariant value = found == map.cend() ? QVariant() : *found;
        std::visit([&]<typename T>(T MirelProperties::*field) { properties.*field = value.value<T>(); },
                   row.property);
    }
    return properties;
}

QMultiMap<PropertyId, QVariant> MirelProperties::toPropertiesMap() const
{
    QMultiMap<PropertyId, QVariant> map;
    for (const PropertyRow &row : kProperties) {
        std::visit([&](auto field) { map.insert(row.id, QVariant::fromValue(this->*field)); }, row.property);
    }
    return map;
}

} // namespace orv
