#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <utility>

QT_FORWARD_DECLARE_CLASS(QMimeData)

class KPropertySet;

namespace orv {

/// What a clipboard says of one setting.
struct PastedSetting
{
    QString name; ///< or caption
    QString text;
    QString unit;
    bool hasValue = true;
    std::optional<QJsonValue> stored; ///< in place of the text
};

/// Settings out of a clipboard, which anybody may have filled with anything.
namespace SettingPaste {

/// The settings as files store them; see SettingCopy::asJson().
inline constexpr QLatin1String kMimeType("application/x-orv-settings+json");
inline constexpr qsizetype kMostBytes = qsizetype(16) * 1024 * 1024;
inline constexpr qsizetype kMostSettings = 1000;

[[nodiscard]] bool hasSettings(const QMimeData *data);

/// InvalidContent for what is no list of settings, too large, or empty.
[[nodiscard]] Result<QList<PastedSetting>> parse(const QMimeData &data);
/// JSON, lines of caption, value and unit, or a command line.
[[nodiscard]] Result<QList<PastedSetting>> parseText(const QString &text);

struct Plan
{
    QList<std::pair<QByteArray, QVariant>> values; ///< by name, as property sets hold them
    QStringList refused;                           ///< a line for each other setting: what and why
    bool isKnown = false;                          ///< the column has at least one of the settings
};

/// What \a pasted means for the settings of \a set.
[[nodiscard]] Plan plan(const QList<PastedSetting> &pasted, const KPropertySet &set,
                        PropertyEditorContent::ContentMode mode, const QLocale &locale);

} // namespace SettingPaste

} // namespace orv
