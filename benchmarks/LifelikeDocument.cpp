#include "LifelikeDocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Lifelike {

namespace {

constexpr int kSettings = 79;

QString stamp()
{
    return QStringLiteral(R"({"created":"2023-05-04T10:11:12","user":"scientist","version":"5.46.0"})");
}

QJsonObject cell(const QString &type, const QString &name, const QJsonArray &properties)
{
    return {{QStringLiteral("type"), type},
            {QStringLiteral("name"), name},
            {QStringLiteral("title"), name},
            {QStringLiteral("metadata"), stamp()},
            {QStringLiteral("properties"), properties}};
}

QJsonObject propertyCell(int number)
{
    QJsonArray properties;
    for (int i = 0; i < kSettings; ++i) {
        QJsonValue value;
        switch (i % 4) {
        case 0:
            value = QString::number(0.25 * i, 'g', 6);
            break;
        case 1:
            value = i;
            break;
        case 2:
            value = QStringLiteral("true");
            break;
        default:
            value = QStringLiteral("Carbamidomethyl / +57.021464 @ C | fixed");
        }
        properties.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("SettingNumber%1").arg(i)},
                                      {QStringLiteral("value"), value},
                                      {QStringLiteral("priority"), i % 2},
                                      {QStringLiteral("group"), QStringLiteral("Instrument Parameters")}});
    }
    return cell(QStringLiteral("Senthia"), QStringLiteral("Step %1").arg(number), properties);
}

QJsonObject samplesCell(int samples)
{
    QJsonArray entries;
    for (int i = 0; i < samples; ++i) {
        entries.append(QJsonObject{
            {QStringLiteral("SamplesId"), i + 1},
            {QStringLiteral("SampleName"),
             QStringLiteral("antibody_digest_%1").arg(i, 5, 10, QLatin1Char('0'))},
            {QStringLiteral("FilePath"),
             QStringLiteral("/data/2023/antibody/antibody_digest_%1.mzML").arg(i, 5, 10, QLatin1Char('0'))},
            {QStringLiteral("Protease"), QStringLiteral("Trypsin")},
            {QStringLiteral("Reference"), i == 0},
            {QStringLiteral("Metadata"), QJsonObject{{QStringLiteral("type"), 0}}}});
    }
    const QJsonObject value{{QStringLiteral("Samples"), entries}};
    return cell(
        QStringLiteral("Samples"), QStringLiteral("Sample Input"),
        {QJsonObject{{QStringLiteral("name"), QStringLiteral("Samples")}, {QStringLiteral("value"), value}}});
}

} // namespace

QByteArray document(int samples, int steps)
{
    QJsonArray columns;
    QJsonArray cells;
    for (int i = 0; i < steps; ++i) {
        columns.append(QStringLiteral("Step %1").arg(i));
        cells.append(propertyCell(i));
    }
    const QJsonArray tabs{QJsonObject{{QStringLiteral("name"), QStringLiteral("Samples")},
                                      {QStringLiteral("columns"), QJsonArray{QStringLiteral("Sample Input")}},
                                      {QStringLiteral("cells"), QJsonArray{samplesCell(samples)}}},
                          QJsonObject{{QStringLiteral("name"), QStringLiteral("Processing")},
                                      {QStringLiteral("columns"), columns},
                                      {QStringLiteral("cells"), cells}}};
    const QJsonObject document{{QStringLiteral("tabs"), tabs},
                               {QStringLiteral("metadata"), stamp()},
                               {QStringLiteral("extendedMetadata"), QJsonObject()}};
    return QJsonDocument(document).toJson();
}

} // namespace Lifelike
