#include "SettingPaste.h"

#include "ShellWords.h"
#include "panels/ShortText.h"
#include "settings/SettingEdit.h"
#include "settings/SettingReader.h"
#include "settings/SettingText.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table_model/TableClipboard.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeData>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using Pasted = QList<PastedSetting>;

namespace {

constexpr qsizetype kMostToldOfText = 200;

struct SettingPasteTr
{
    Q_DECLARE_TR_FUNCTIONS(SettingPaste)
};

Error noSettings()
{
    return Error(
        ErrorCode::InvalidContent,
        SettingPasteTr::tr("The clipboard holds no settings. Copy settings first, or lines of caption, "
                           "tabulator and value."));
}

Error tooMuch()
{
    return Error(ErrorCode::InvalidContent,
                 SettingPasteTr::tr("The clipboard holds more than settings are: over %1 MiB or %2 lines.")
                     .arg(SettingPaste::kMostBytes / 1024 / 1024)
                     .arg(SettingPaste::kMostSettings));
}

Result<Pasted> fromJson(const QByteArray &json)
{
    if (json.size() > SettingPaste::kMostBytes)
        return tooMuch();
    Result<QJsonObject> cell = JsonUtils::objectFromJson(json);
    if (cell.hasError())
        return cell.ecatch();
    const QJsonArray entries = cell->value(PROPERTIES_KEY).toArray();
    if (entries.isEmpty())
        return noSettings();
    if (entries.size() > SettingPaste::kMostSettings)
        return tooMuch();
    Pasted settings;
    for (const auto value : entries) {
        const QJsonObject entry = value.toObject();
        PastedSetting setting{entry.value(NAME_KEY).toString(), {}, {}, entry.contains(VALUE_KEY), {}};
        setting.stored = entry.value(VALUE_KEY);
        settings.append(setting);
    }
    return settings;
}

Result<Pasted> fromLines(const QString &text)
{
    if (std::max(text.count(u'\n'), text.count(u'\r')) > SettingPaste::kMostSettings)
        return tooMuch();
    Pasted settings;
    bool hasValues = false;
    for (const QStringList &fields : TableClipboard::parse(text).toRows()) {
        const QString name = fields.value(0).trimmed();
        if (name.isEmpty())
            continue;
        hasValues = hasValues || fields.size() > 1;
        settings.append({name, fields.value(1), fields.value(2).trimmed(), fields.size() > 1, {}});
    }
    return hasValues ? Result<Pasted>(settings) : Result<Pasted>(noSettings());
}

/// The assignments of a command; which file and column it means is left out of account.
Result<Pasted> fromCommand(const QStringList &words)
{
    Pasted settings;
    bool hasFile = false;
    for (qsizetype i = 2; i < words.size(); ++i) {
        const QString &word = words.at(i);
        if (word.startsWith(u'-')) {
            i += word.contains(u'=') ? 0 : 1;
            continue;
        }
        const qsizetype end = word.indexOf(u'=');
        if (settings.size() == SettingPaste::kMostSettings)
            return tooMuch();
        if (hasFile && end > 0)
            settings.append({word.left(end), word.mid(end + 1), {}, true, {}});
        hasFile = true;
    }
    return settings.isEmpty() ? Result<Pasted>(noSettings()) : Result<Pasted>(settings);
}

/// The setting of \a set that \a text means by name or caption; empty for none, \a isAmbiguous for several.
QByteArray settingCalled(const KPropertySet &set, const QString &text, bool *isAmbiguous)
{
    const PropertyId id = PropertiesNames::findPropertyForName(text);
    QByteArray name =
        id == PropertyId::NoProperty ? QByteArray() : PropertiesNames::internalNameForType(id).toUtf8();
    if (!name.isEmpty() && set.contains(name))
        return name;
    QByteArray captioned;
    for (KPropertySetIterator property(set); *property; ++property) {
        if (SettingReader::idOf(**property) == PropertyId::NoProperty ||
            (*property)->captionOrName().compare(text, Qt::CaseInsensitive) != 0)
            continue;
        *isAmbiguous = *isAmbiguous || !captioned.isEmpty();
        captioned = (*property)->name();
    }
    return captioned;
}

Result<QVariant> valueFor(const KPropertySet &set, const QByteArray &name, const PastedSetting &setting,
                          PropertyEditorContent::ContentMode mode, const QLocale &locale)
{
    const KProperty &property = set.property(name);
    if (!setting.stored)
        return SettingText::read(property, {setting.text, setting.unit}, mode, locale);
    const PropertyId id = SettingReader::idOf(property);
    const QString text = setting.stored->toVariant().toString();
    const std::optional<QVariant> value = SettingEdit::valueOf(set, name, *setting.stored);
    if (!value) {
        return Error(ErrorCode::InvalidContent, SettingPasteTr::tr("The value isn't of the setting's kind."))
            .addDetail(SettingPasteTr::tr("Allowed: %1.").arg(PropertyText::legalValues(id, property)));
    }
    if (Error error = PropertyText::check(id, *value, text, property, mode))
        return error;
    return *value;
}

/// Why \a setting doesn't fit; an empty text if it does, and it stands in the plan.
QString addTo(SettingPaste::Plan *plan, const PastedSetting &setting, const KPropertySet &set,
              PropertyEditorContent::ContentMode mode, const QLocale &locale)
{
    bool isAmbiguous = false;
    const QByteArray name = settingCalled(set, setting.name, &isAmbiguous);
    if (name.isEmpty())
        return SettingPasteTr::tr("The column doesn't have this setting.");
    plan->isKnown = true;
    if (isAmbiguous)
        return SettingPasteTr::tr("Several settings are called so. Give the name of one.");
    if (QString refusal = SettingEdit::refusal(&set, name); !refusal.isEmpty())
        return refusal;
    if (!setting.hasValue)
        return SettingPasteTr::tr("There is no value.");
    if (std::ranges::any_of(plan->values, [&name](const auto &each) { return each.first == name; }))
        return SettingPasteTr::tr("It stands there twice; the first value was taken.");
    const Result<QVariant> value = valueFor(set, name, setting, mode, locale);
    if (value.hasError()) {
        QStringList reasons = value.error().errorMessages() + value.error().details();
        for (QString &reason : reasons)
            reason = ShortText::line(reason, kMostToldOfText);
        return reasons.join(u' ');
    }
    plan->values.append({name, *value});
    return {};
}

} // namespace

bool SettingPaste::hasSettings(const QMimeData *data)
{
    return data && (data->hasFormat(kMimeType) || data->hasText());
}

Result<Pasted> SettingPaste::parse(const QMimeData &data)
{
    return data.hasFormat(kMimeType) ? fromJson(data.data(kMimeType)) : parseText(data.text());
}

Result<Pasted> SettingPaste::parseText(const QString &text)
{
    if (text.size() > kMostBytes)
        return tooMuch();
    const QStringView begin = QStringView(text).trimmed();
    if (begin.startsWith(u'{'))
        return fromJson(text.toUtf8());
    const qsizetype end = std::min(begin.indexOf(u' '), qsizetype(kMostToldOfText) * 10);
    if (end > 0 && QFileInfo(begin.left(end).toString()).fileName() == QLatin1String("orv-workflow")) {
        const auto words = ShellWords::split(text.trimmed());
        return words && words->value(1) == QLatin1String("set") ? fromCommand(*words)
                                                                : Result<Pasted>(noSettings());
    }
    return fromLines(text);
}

SettingPaste::Plan SettingPaste::plan(const Pasted &pasted, const KPropertySet &set,
                                      PropertyEditorContent::ContentMode mode, const QLocale &locale)
{
    Plan plan;
    for (const PastedSetting &setting : pasted) {
        if (const QString reason = addTo(&plan, setting, set, mode, locale); !reason.isEmpty()) {
            const QString name = ShortText::line(setting.name, kMostToldOfText);
            plan.refused.append(SettingPasteTr::tr("%1: %2").arg(
                name.isEmpty() ? SettingPasteTr::tr("(no name)") : name, reason));
        }
    }
    return plan;
}

} // namespace orv
