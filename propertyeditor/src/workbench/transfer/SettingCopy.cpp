#include "SettingCopy.h"

#include "ShellWords.h"
#include "settings/SettingReader.h"
#include "settings/SettingText.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table_model/TableClipboard.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

/// A word that the systems hand to a program has at most 128 KiB.
constexpr qsizetype kLongestWord = 100'000;
constexpr qsizetype kLongestLine = 1'000'000;

struct SettingCopyTr
{
    Q_DECLARE_TR_FUNCTIONS(SettingCopy)
};

/// NAME=VALUE for the shell; nothing for what it can't be given.
std::optional<QString> assignment(const KProperty &property)
{
    const auto value = PropertyText::fromValue(SettingReader::idOf(property), property);
    if (!value)
        return {};
    const QString text = value->unit.isEmpty() ? value->text : value->text + u' ' + value->unit;
    const auto word = ShellWords::quoted(QString::fromUtf8(property.name()) + u'=' + text);
    return word && word->toUtf8().size() <= kLongestWord ? word : std::nullopt;
}

} // namespace

QString SettingCopy::asText(const KPropertySet &set, const QList<QByteArray> &names, const QLocale &locale)
{
    QHash<QString, int> captions;
    for (KPropertySetIterator property(set); *property; ++property)
        ++captions[(*property)->captionOrName().toCaseFolded()];
    QList<QStringList> rows;
    for (const QByteArray &name : names) {
        if (!set.contains(name))
            continue;
        const KProperty &property = set.property(name);
        const QString caption = property.captionOrName();
        const SettingText::Value value = SettingText::of(property, locale);
        const bool isUnique = captions.value(caption.toCaseFolded()) == 1;
        rows.append({isUnique ? caption : QString::fromUtf8(name), value.text, value.unit});
    }
    return TableClipboard::format(rows);
}

Result<QByteArray> SettingCopy::asJson(const KPropertySet &set, const QList<QByteArray> &names)
{
    // Relative paths mean other files in another workflow's folder.
    const auto cell =
        PropertySetCreator::propertySetToObject(set, PropertyEditor::PropertyConversionFlag::AbsolutePaths);
    if (!cell) {
        return Error(ErrorCode::InvalidContent,
                     SettingCopyTr::tr("A value of the column can't be stored, see the log."));
    }
    QHash<QString, QJsonObject> entries;
    for (const auto entry : cell->value(PROPERTIES_KEY).toArray())
        entries.insert(entry.toObject().value(NAME_KEY).toString(), entry.toObject());
    QJsonArray copied;
    for (const QByteArray &name : names) {
        // One that isn't visible and has no priority is written as its value alone.
        QJsonObject entry = entries.value(QString::fromUtf8(name));
        if (entry.isEmpty() && set.contains(name)) {
            entry = {
                {NAME_KEY, QString::fromUtf8(name)},
                {VALUE_KEY, SettingReader::stored(set.property(name),
                                                  PropertyEditor::PropertyConversionFlag::AbsolutePaths)}};
        }
        if (!entry.isEmpty())
            copied.append(entry);
    }
    QJsonObject object{{PROPERTIES_KEY, copied}};
    if (cell->contains(TYPE_KEY))
        object.insert(TYPE_KEY, cell->value(TYPE_KEY));
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

SettingCopy::CommandLine SettingCopy::asCommandLine(const KPropertySet &set, const QList<QByteArray> &names,
                                                    const FilePlace &place)
{
    CommandLine line;
    QStringList words;
    qsizetype size = 0;
    for (const QByteArray &name : names) {
        const auto word = set.contains(name) ? assignment(set.property(name)) : std::nullopt;
        if (word && size + word->size() < kLongestLine) {
            words.append(*word);
            size += word->size();
        } else {
            line.leftOut.append(set.property(name).captionOrName());
        }
    }
    const auto file = ShellWords::quoted(place.file);
    const auto tab = ShellWords::quoted(QLatin1String("--tab=") + place.tab);
    const auto column = ShellWords::quoted(QLatin1String("--column=") + place.column);
    if (!words.isEmpty() && file && tab && column) {
        line.text = (QStringList{QStringLiteral("orv-workflow set"), *file, *tab, *column} + words +
                     QStringList{QStringLiteral("-o"), *file})
                        .join(u' ');
    }
    return line;
}

QString SettingCopy::placeArgument(const QStringList &names, qsizetype index)
{
    QString name = names.value(index);
    if (!name.isEmpty() && names.indexOf(name) == index)
        return name;
    const QString number = QString::number(index);
    return names.contains(number) ? QString() : number;
}

} // namespace orv
