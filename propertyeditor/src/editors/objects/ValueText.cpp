#include "ValueText.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table_model/NumberText.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace orv::ValueText {

using namespace PropertyEditorStringConstants;

namespace {

struct ValueTextTr
{
    Q_DECLARE_TR_FUNCTIONS(ValueText)
};

/// Lists in a cell hold names or numbers; what nests further isn't for reading.
constexpr int kDeepestCell = 3;

QString numberText(double number)
{
    return NumberText::shown(NumberText::fromDouble(number), NumberText::signOf(QLocale()));
}

QString textOfCell(const QJsonValue &cell, int depth);

QString listText(const QJsonArray &list, int depth)
{
    QStringList texts;
    for (const auto element : list)
        texts.append(textOfCell(element, depth + 1));
    texts.removeAll(QString());
    return texts.join(u' ');
}

/// Values that JSON has no type for stand as {"$type": value}.
QString textOfCell(const QJsonValue &cell, int depth)
{
    if (depth > kDeepestCell)
        return QStringLiteral("\u2026");
    switch (cell.type()) {
    case QJsonValue::Bool:
        return cell.toBool() ? ValueTextTr::tr("yes") : ValueTextTr::tr("no");
    case QJsonValue::Double:
        return numberText(cell.toDouble());
    case QJsonValue::String:
        return cell.toString().simplified();
    case QJsonValue::Array:
        return listText(cell.toArray(), depth);
    case QJsonValue::Object: {
        const QJsonObject object = cell.toObject();
        return object.isEmpty() ? QString() : textOfCell(object.constBegin().value(), depth + 1);
    }
    default:
        return {};
    }
}

} // namespace

bool isUnset(const QJsonObject &value)
{
    return value.isEmpty() || (value.size() == 1 && value.contains(DATA) &&
                               value.value(DATA).toString(QStringLiteral("x")).isEmpty());
}

QString cellText(const QJsonValue &cell)
{
    return textOfCell(cell, 0);
}

QString rowsOf(const QJsonObject &value)
{
    const QJsonArray rows = value.value(CHILDREN).toArray();
    QStringList lines;
    for (const auto row : rows) {
        QStringList cells;
        const QJsonArray data = row[DATA].toArray();
        for (const auto cell : data)
            cells.append(cellText(cell));
        cells.removeAll(QString());
        lines.append(cells.join(QLatin1String(", ")));
    }
    return lines.join(u'\n');
}

QString errorText(const QString &reason, const QJsonObject &value)
{
    constexpr qsizetype kLongest = 1000;
    QString json = QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact));
    if (json.size() > kLongest)
        json = json.left(kLongest) + u'\u2026';
    return ValueTextTr::tr("Error %1 - %2").arg(reason, json);
}

QString errorText(const Error &error, const QJsonObject &value)
{
    return errorText(reasonOf(error), value);
}

QString reasonOf(const Error &error)
{
    return (error.errorMessages() + error.details()).join(u' ');
}

QString textUnder(QLatin1String key, const QJsonObject &value)
{
    const QJsonValue text = value.value(key);
    if (text.isString() || isUnset(value))
        return text.toString();
    return errorText(ValueTextTr::tr("There is no text \"%1\".").arg(key), value);
}

} // namespace orv::ValueText
