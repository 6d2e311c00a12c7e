#include "EditorArguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace orv {

namespace {

struct EditorArgumentsTr
{
    Q_DECLARE_TR_FUNCTIONS(EditorArguments)
};

QStringList absolute(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths)
        files.append(QFileInfo(path).absoluteFilePath());
    return files;
}

QString versionText()
{
    return QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion() + u'\n';
}

} // namespace

EditorArguments readEditorArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        EditorArgumentsTr::tr("Views, edits, checks and upgrades mass-spectrometry workflows."));
    // Its own, as Qt's would list options of all its programs.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  EditorArgumentsTr::tr("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     EditorArgumentsTr::tr("Show the version."));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("files"),
                                 EditorArgumentsTr::tr("Workflows to open, a window each."),
                                 QStringLiteral("[FILE...]"));
    if (!parser.parse(arguments)) {
        const QString hint = EditorArgumentsTr::tr("Try --help.");
        return {
            {},
            EditorArguments::Answer{parser.errorText() + u' ' + hint + u'\n', EditorArguments::kWrongUsage}};
    }
    if (parser.isSet(help))
        return {{}, EditorArguments::Answer{parser.helpText(), 0}};
    if (parser.isSet(version))
        return {{}, EditorArguments::Answer{versionText(), 0}};
    return {absolute(parser.positionalArguments()), std::nullopt};
}

} // namespace orv
