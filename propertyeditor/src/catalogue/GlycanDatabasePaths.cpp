#include <KProperty>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace orv {

namespace {

constexpr QLatin1String kFileScheme("file://");

/// The last bracket of a line closes, so that a path may hold brackets.
const QRegularExpression &databasePattern()
{
    static const QRegularExpression pattern(QStringLiteral(R"(\[(.*)\])"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

QString absoluteFromRelative(const QString &path, const QUrl &baseUrl)
{
    QString native = QDir::toNativeSeparators(QDir::cleanPath(QDir(baseUrl.path()).filePath(path)));
    if (native.startsWith(QDir::separator()))
        native.remove(0, 1);
    return kFileScheme + QLatin1Char('/') + native;
}

/// As QUrl::toLocalFile, with the drive letters of Windows told apart from folders on every system.
QString localForm(const QUrl &url)
{
    static const QRegularExpression drive(QStringLiteral("^/[A-Za-z]:"));
    const QString local = url.toLocalFile();
    return drive.match(local).hasMatch() ? local.mid(1) : local;
}

/// The second look finds names with characters that mean something in a URL: paths are written unencoded.
bool exists(const QString &local, const QString &path)
{
    return QFileInfo::exists(local) ||
           (path.startsWith(kFileScheme) && QFileInfo::exists(path.mid(kFileScheme.size())));
}

QString absolutePath(const QString &path, const QUrl &baseUrl)
{
    const QUrl url(path, QUrl::TolerantMode);
    if (url.isRelative())
        return absoluteFromRelative(path, baseUrl);
    const QString local = localForm(url);
    if (!local.startsWith(QLatin1Char('/')) || exists(local, path))
        return path;
    return QUrl::fromUserInput(baseUrl.toLocalFile() + local).toString();
}

QString withAbsolutePaths(const QString &text, const QUrl &baseUrl)
{
    if (baseUrl.isEmpty())
        return text;
    QString result;
    qsizetype end = 0;
    // Each path is replaced where it stands: one may be part of another.
    for (const QRegularExpressionMatch &match : databasePattern().globalMatch(text)) {
        result += QStringView(text).mid(end, match.capturedStart(1) - end);
        result += absolutePath(match.captured(1), baseUrl);
        end = match.capturedEnd(1);
    }
    result += QStringView(text).mid(end);
    return result;
}

} // namespace

void PropertyEditorUtils::updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json)
{
    const QString text = PropertyEditorJsonUtils::storedSerializedGlycans(*json);
    const QString resolved = withAbsolutePaths(text, baseUrl);
    if (resolved != text)
        PropertyEditorJsonUtils::updateStoredSerializedGlycans(json, resolved);
}

void PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl)
{
    if (property)
        property->setOption(PropertyEditorStringConstants::kbaseUrl, baseUrl);
}

QString PropertyEditorUtils::resolveGlycansStringsFromWflw(const QString &text, const KProperty *property)
{
    const QUrl baseUrl =
        property ? property->option(PropertyEditorStringConstants::kbaseUrl).toUrl() : QUrl();
    QString single = text;
    single.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    return withAbsolutePaths(single, baseUrl);
}

} // namespace orv
