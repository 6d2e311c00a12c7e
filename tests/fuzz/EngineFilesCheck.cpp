#include "FormChecks.h"

#include <KPropertySet>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>
#include <orv/propertyeditor/engine/PreviewPreset.h>
#include <orv/table/XenosetPreset.h>

#include <QJsonObject>

#include <memory>

using namespace orv;
using namespace PropertyEditorStringConstants;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

constexpr qsizetype kKeys = 90;
constexpr int kSettings = 74;

/// What of a file that is written from the settings in \a preset differs from it by the rules of the format.
bool mayDiffer(const QString &key)
{
    return key == "mod_text"_L1 || key == "peak_filter_selected"_L1;
}

/// A file with the settings in \a preset, as far as a document holds them; empty if they can't be read.
QByteArray writtenFrom(const XenosetPreset &preset)
{
    const std::unique_ptr<KPropertySet> set(KarvonPresetCreator::propertySetFromXenoset(preset));
    if (!set || set->count() != kSettings)
        return {};
    std::optional<QJsonObject> cell =
        PropertySetCreator::propertySetToObject(*set, PropertyEditor::PropertyConversionFlag::KeepPaths);
    PropertyEditor::KeyValueItem item(BaseItemType::Karvon);
    cell->insert(TYPE_KEY, u"Karvon"_s);
    if (item.assignFromJson(*cell, PropertyEditor::ValidationOption::SkipTypeValidation).hasError())
        return {};
    return KarvonPresetCreator(PropertyEditor::Content(), item).presetForSample(u"a"_s, u"b"_s);
}

/// QJsonDocument drops a byte order mark that begins a text, and a return at the end of a line is taken for a
/// part of its end.
bool losesCharacters(const QByteArray &file)
{
    return file.contains("\xEF\xBB\xBF") || file.contains("\r\n");
}

} // namespace

QString checkXenoset(const QByteArray &bytes)
{
    const Result<XenosetPreset> preset = XenosetPreset::fromText(bytes);
    if (preset.hasError()) {
        const Error &error = preset.error();
        const bool isTold = error.code() == ErrorCode::InvalidContent && !error.errorMessage().isEmpty() &&
                            error.details().size() == 2;
        return isTold ? QString() : u"a refusal needs its code, a message, the place and a remedy"_s;
    }
    const QByteArray first = writtenFrom(*preset);
    if (first.isEmpty())
        return u"what was read can't be written"_s;
    const Result<XenosetPreset> again = XenosetPreset::fromText(first);
    if (again.hasError() || again->keys().size() != kKeys)
        return u"what was written has not its lines"_s;
    if (losesCharacters(first))
        return {};
    const Result<XenosetPreset> second = XenosetPreset::fromText(writtenFrom(*again));
    if (second.hasError())
        return u"a second file is refused"_s;
    for (const QString &key : again->keys()) {
        if (!mayDiffer(key) && second->attribute(key) != again->attribute(key))
            return u"a second file differs in the key "_s + key;
    }
    return {};
}

QString checkPrv(const QByteArray &bytes)
{
    using Content = PreviewPreset::Content;
    using Properties = PreviewPreset::MirelProperties;
    const Content content = Content::fromFileContent(bytes);
    const QString text = content.convertToFileContent(Content::WithoutHeader);
    if (text.count(u'\n') != 20)
        return u"what was written has not its lines"_s;
    if (Content::fromFileContent(text.toUtf8()) != content)
        return u"what was written reads as something else"_s;
    const Properties properties = Properties::fromPreviewPreset(content);
    if (Properties::fromPropertiesMap(properties.toPropertiesMap()) != properties)
        return u"the properties don't pass through their map"_s;
    return {};
}

} // namespace FormChecks
