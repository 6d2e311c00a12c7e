#include "orv/propertyeditor/workflow/WflwUtils.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/FileNameUtils.h>
#include <orv/core/FilePathUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace orv {

using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;
using PropertyEditor::PropertyConversionFlag;
using Side = FileUtils::CopyFailure::Side;

namespace {

constexpr int kResourceReferenceType = 4001;

// Translations were made when the class had this name.
struct WflwUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(PtsonUtils)
};

const FileExtensionsNameFilter &portableFilter()
{
    static const FileExtensionsNameFilter filter{MirelFileTypes::WFLWP};
    return filter;
}

bool hasSuffixOf(const FileExtensionsNameFilter &filter, const QString &path)
{
    const QString mask = QStringLiteral("*.%1").arg(QFileInfo(QDir::cleanPath(path)).suffix());
    return filter.fileMasks().contains(mask, Qt::CaseInsensitive);
}

/// Of a link, which may lead to somebody's files, only the link itself goes.
bool removeWhatIsThere(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink())
        return QFile::remove(path);
    if (!info.exists())
        return true;
    return info.isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
}

bool prepareFolder(const QString &folder, QString *error)
{
    const QString native = QDir::toNativeSeparators(folder);
    if (!removeWhatIsThere(QDir::cleanPath(folder))) {
        *error = WflwUtilsTr::tr("Cannot clean %1").arg(native);
        return false;
    }
    if (!QDir().mkpath(folder)) {
        *error = WflwUtilsTr::tr("Failed to create %1").arg(native);
        return false;
    }
    return true;
}

/// Where the file of a reference is. A relative one is a path, not a URL.
QUrl sourceUrl(const ResourceReferenceSPtr &reference, const QUrl &baseUrl)
{
    const QString text = ResourceReferenceUtils::toString(reference);
    if (text.isEmpty())
        return {};
    if (!reference->isScheme(ResourceReference::Scheme::LocalFile))
        return QUrl(text);
    if (FilePathUtils::isUncPath(text))
        return QUrl::fromLocalFile(ResourceHandlerUtils::fullPath(reference));
    if (!ResourceReferenceUtils::isRelative(reference))
        return QDir::isAbsolutePath(text) ? QUrl::fromLocalFile(text) : QUrl::fromUserInput(text);
    const QString path = ResourceReferenceUtils::resolved(reference, baseUrl)->text();
    return QDir::isAbsolutePath(path) ? QUrl::fromLocalFile(path) : baseUrl.resolved(QUrl(path));
}

/// Where the glycan database is that the text in brackets names.
QString glycanDatabasePath(const QString &text, const QUrl &baseUrl)
{
    if (FilePathUtils::isUncPath(text))
        return FilePathUtils::withoutWinLongPathPrefix(text).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QDir base(QFileInfo(baseUrl.toLocalFile()).path());
    const QUrl url(text);
    if (url.isRelative())
        return QDir::toNativeSeparators(QDir::cleanPath(base.filePath(text)));
    const QString local = url.toLocalFile();
    return QFileInfo::exists(local) ? local : base.filePath(QUrl::fromUserInput(text).fileName());
}

QStringList textsInBrackets(const QString &text)
{
    static const QRegularExpression brackets(QStringLiteral(R"(\[(.*)\])"),
                                             QRegularExpression::InvertedGreedinessOption);
    QStringList texts;
    for (const QRegularExpressionMatch &match : brackets.globalMatch(text))
        texts.append(match.captured(1));
    texts.removeDuplicates();
    texts.removeAll(QString());
    return texts;
}

/// A name may look like another form, such as "file:a.xml", which a folder in front prevents.
Result<ResourceReferenceSPtr> referenceToName(const QString &name)
{
    Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(name);
    if (reference.hasError() || (*reference)->text() != name ||
        !(*reference)->isScheme(ResourceReference::Scheme::LocalFile))
        reference = ResourceReference::fromString(QLatin1String("./") + name);
    if (reference.hasError())
        return reference.ecatch();
    return reference;
}

void tellDangling(const Content &content, const QString &folder, PortableSaveObserver *observer)
{
    const QDir home(folder);
    for (const ResourceReferenceSPtr &reference : content.allReferences()) {
        if (ResourceReferenceUtils::isRelative(reference) &&
            !QFileInfo::exists(home.filePath(ResourceHandlerUtils::fullPath(reference))))
            observer->dangling(reference->text());
    }
}

QString bracketed(const QString &text)
{
    return QLatin1Char('[') + text + QLatin1Char(']');
}

} // namespace

struct WflwUtils::PortableFolder
{
    QString path;
    QUrl baseUrl;
    PortableSaveObserver *observer;
    QString document; ///< its name is taken before it is written

    [[nodiscard]] QStringList reservedNames() const { return {QFileInfo(document).fileName()}; }
};

PortableSaveObserver::~PortableSaveObserver() = default;

void PortableSaveObserver::copying(const QString & /*source*/, qint64 /*done*/, qint64 /*total*/) {}

void PortableSaveObserver::copied(const QString & /*source*/, const QString & /*destination*/) {}

void PortableSaveObserver::dangling(const QString & /*text*/) {}

void PortableSaveObserver::failed(Side /*side*/) {}

const FileExtensionsNameFilter &WflwUtils::workflowFilters()
{
    static const FileExtensionsNameFilter filter{MirelFileTypes::WFLW, MirelFileTypes::WFLWP,
                                                 MirelFileTypes::PTSON};
    return filter;
}

const FileExtensionsNameFilter &WflwUtils::workflowFiltersInDialog()
{
    static const FileExtensionsNameFilter filter{MirelFileTypes::WFLW, MirelFileTypes::PTSON};
    return filter;
}

QString WflwUtils::builtinWorkflowsPath()
{
    static const QString path =
        QCoreApplication::applicationDirPath() + QStringLiteral("/presets/Mirel/workflows");
    return path;
}

QList<QFileInfo> WflwUtils::enumerateBuiltinWorkflows()
{
    return enumerateWorkflows(builtinWorkflowsPath());
}

QList<QFileInfo> WflwUtils::enumerateWorkflows(const QString &path)
{
    QList<QFileInfo> workflows;
    if (path.isEmpty())
        return workflows;
    QDirIterator it(path, workflowFilters().fileMasks(),
                    QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable);
    while (it.hasNext()) {
        it.next();
        workflows.append(QFileInfo(it.fileInfo().absoluteFilePath()));
    }
    return workflows;
}

bool WflwUtils::isMirelWorkflow(const QString &path)
{
    return hasSuffixOf(workflowFilters(), path);
}

bool WflwUtils::isMirelPortableWorkflow(const QString &path)
{
    return hasSuffixOf(portableFilter(), path);
}

QString WflwUtils::workflowInPortableWorkflow(const QString &folder)
{
    const QStringList documents =
        QDir(folder).entryList(FileExtensionsNameFilter{MirelFileTypes::WFLW}.fileMasks());
    const QString name = documents.isEmpty() ? QDir(folder).dirName().chopped(1) : documents.constFirst();
    return folder + QLatin1Char('/') + name;
}

WorkflowType WflwUtils::workflowType(const QString &path)
{
    Content content;
    if (Error error = content.assignFromFile(path)) {
        error.ecatch();
        return {};
    }
    return content.workflowType();
}

bool WflwUtils::saveAsPortableWorkflow(const Content &content, const QString &folder, const QUrl &baseUrl,
                                       QString *error, PortableSaveObserver *observer)
{
    PortableSaveObserver deaf;
    const PortableFolder target{folder, baseUrl, observer ? observer : &deaf,
                                QDir(folder).filePath(QDir(folder).dirName().chopped(1))};
    Result<Content> copy = content.detachedCopy();
    if (copy.hasError()) {
        *error = copy.ecatch().errorMessage();
        target.observer->failed(Side::Source);
        return false;
    }
    if (!prepareFolder(folder, error)) {
        target.observer->failed(Side::Destination);
        return false;
    }
    const QString document = workflowInPortableWorkflow(folder);
    copy->setBaseUrl(baseUrl);
    for (PropertyEditor::BaseItem *item : copy->findAllItems(copy->allItems())) {
        if (!copyFilesAndUpdateUrls(qobject_cast<KeyValueItem *>(item), target, error))
            return false;
    }
    QString reason;
    const QByteArray bytes = copy->toJson(PropertyConversionFlag::KeepPaths);
    if (FileUtils::writeToFile(document, bytes, &reason) != QFileDevice::NoError) {
        qCWarning(propertyEditorLog) << "Can't write to" << document << ":" << reason;
        target.observer->failed(Side::Destination);
        return false;
    }
    tellDangling(*copy, folder, target.observer);
    return true;
}

bool WflwUtils::copyFilesAndUpdateUrls(KeyValueItem *item, const PortableFolder &target, QString *error)
{
    if (!item)
        return true;
    const QString glycans = PropertiesNames::internalNameForType(PropertyId::KarvonGlycanText);
    const QStringList keys = item->keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) {
        if (item->type(key) == kResourceReferenceType)
            return copyReference(item, key, target, error);
        return key != glycans || copyGlycanDatabases(item, key, target, error);
    });
}

bool WflwUtils::copyReference(KeyValueItem *item, const QString &key, const PortableFolder &target,
                              QString *error)
{
    const ResourceReferenceSPtr reference = ResourceReferenceUtils::fromVariant(item->value(key));
    if (!reference)
        return true;
    QString copy;
    const QUrl source = sourceUrl(reference, target.baseUrl);
    if (source.isEmpty() && !reference->isEmpty()) {
        reportNotValid(ResourceReferenceUtils::toString(reference, true), target, error);
        return false;
    }
    if (!copyFile(source, target, &copy, error))
        return false;
    Result<ResourceReferenceSPtr> moved = referenceToName(QFileInfo(copy).fileName());
    if (moved.hasError()) {
        *error = moved.ecatch().errorMessage();
        target.observer->failed(Side::Source);
        return false;
    }
    item->setValue(key, QVariant::fromValue(*moved));
    item->setBaseUrl(QUrl::fromLocalFile(target.path));
    return true;
}

bool WflwUtils::copyGlycanDatabases(KeyValueItem *item, const QString &key, const PortableFolder &target,
                                    QString *error)
{
    QJsonObject object = PropertyEditorJsonUtils::variantToObject(item->value(key));
    QString text = PropertyEditorJsonUtils::storedSerializedGlycans(object);
    for (const QString &file : textsInBrackets(text)) {
        QString copy;
        const QUrl source = QUrl::fromLocalFile(glycanDatabasePath(file, target.baseUrl));
        if (!copyFile(source, target, &copy, error))
            return false;
        const QUrl moved = QUrl::fromLocalFile(QLatin1Char('/') + QFileInfo(copy).fileName());
        text.replace(bracketed(file), bracketed(moved.toString(QUrl::FullyEncoded)));
    }
    PropertyEditorJsonUtils::updateStoredSerializedGlycans(&object, text);
    item->setValue(key, QJsonDocument(object).toJson(QJsonDocument::Indented));
    return true;
}

void WflwUtils::reportNotValid(const QString &text, const PortableFolder &target, QString *error)
{
    *error = WflwUtilsTr::tr("URL \"%1\" is not valid").arg(text);
    target.observer->failed(Side::Source);
}

bool WflwUtils::copyFile(const QUrl &source, const PortableFolder &target, QString *destination,
                         QString *error)
{
    if (source.isEmpty())
        return true;
    if (!source.isValid() || !source.isLocalFile()) {
        reportNotValid(source.toString(QUrl::RemoveUserInfo), target, error);
        return false;
    }
    const QString path = source.toLocalFile();
    *destination = FileNameUtils::generateUniqueDestination(path, target.path, target.reservedNames());
    qCDebug(propertyEditorLog) << "Copy" << path << "to" << *destination;
    const auto failure = FileUtils::copyFile(path, *destination, [&target, &path](qint64 done, qint64 total) {
        target.observer->copying(path, done, total);
    });
    if (failure) {
        *error = WflwUtilsTr::tr("Cannot copy %1 into %2")
                     .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(*destination));
        qCWarning(propertyEditorLog).noquote()
            << "Cannot copy" << QDir::toNativeSeparators(path) << ":" << failure->reason;
        target.observer->failed(failure->side);
        return false;
    }
    target.observer->copied(path, *destination);
    return true;
}

} // namespace orv
