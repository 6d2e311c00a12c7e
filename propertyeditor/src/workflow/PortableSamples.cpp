#include "orv/propertyeditor/workflow/PortableSamples.h"

#include "ReferenceWalk.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>

namespace orv::PortableSamples {

namespace {

using Kind = ReferenceWalk::Kind;
using Side = FileUtils::CopyFailure::Side;

struct PortableSamplesTr
{
    Q_DECLARE_TR_FUNCTIONS(PortableSamples)
};

/// Copies what is named, each file once, and stops at the first that can't be copied.
class Carrier
{
public:
    Carrier(const QString &folder, const QUrl &baseUrl, PortableSaveObserver *observer)
        : m_folder(folder)
        , m_baseUrl(baseUrl)
        , m_observer(observer)
    {}

    /// The new text of a reference; nothing where it stays.
    std::optional<QString> visit(Kind kind, const QString &text)
    {
        if (kind != Kind::Reference || m_report.error)
            return {};
        const std::optional<QString> path = localPathOf(text);
        if (!path || isInFolder(text))
            return {};
        const QFileInfo source(*path);
        if (!source.exists()) {
            m_report.missing.append(text);
            return {};
        }
        const QString name = placeOf(source);
        if (m_report.error)
            return {};
        m_report.carried.append(text);
        return name;
    }

    [[nodiscard]] const Report &report() const { return m_report; }

    void fail(const QString &reason, Side side)
    {
        m_report.error = Error(ErrorCode::CannotOpenFile, reason);
        m_observer->failed(side);
    }

private:
    [[nodiscard]] std::optional<QString> localPathOf(const QString &text) const
    {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
        if (reference.hasError())
            return {};
        const QString path =
            ResourceHandlerUtils::fullPath(ResourceReferenceUtils::resolved(*reference, m_baseUrl));
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }

    /// The save has put it there.
    [[nodiscard]] bool isInFolder(const QString &text) const
    {
        return QFileInfo(text).isRelative() && QFileInfo::exists(QDir(m_folder).filePath(text));
    }

    /// Copies \a source unless that was done; its path within the folder.
    QString placeOf(const QFileInfo &source)
    {
        const QString origin = source.canonicalFilePath();
        if (const auto known = m_places.constFind(origin); known != m_places.cend())
            return *known;
        const QString subfolder = subfolderFor(QFileInfo(origin).path());
        QString place = subfolder + QLatin1Char('/') + QFileInfo(origin).fileName();
        m_places.insert(origin, place);
        if (source.isDir())
            copyFolder(origin, QDir(m_folder).filePath(place));
        else
            copyWithCompanions(QFileInfo(origin), QDir(m_folder).filePath(subfolder));
        return place;
    }

    QString subfolderFor(const QString &origin)
    {
        QString &subfolder = m_subfolders[origin];
        for (int number = 1; subfolder.isEmpty(); ++number) {
            const QString name =
                number == 1 ? QStringLiteral("samples") : QStringLiteral("samples (%1)").arg(number);
            if (!QFileInfo::exists(QDir(m_folder).filePath(name)))
                subfolder = name;
        }
        if (!QDir().mkpath(QDir(m_folder).filePath(subfolder)))
            fail(PortableSamplesTr::tr("The folder \"%1\" can't be made.").arg(subfolder), Side::Destination);
        return subfolder;
    }

    void copyWithCompanions(const QFileInfo &file, const QString &target)
    {
        copyFile(file.filePath(), QDir(target).filePath(file.fileName()));
        const QFileInfoList others = file.dir().entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
        for (const QFileInfo &other : others) {
            if (other.fileName().startsWith(file.fileName() + QLatin1Char('.')))
                copyFile(other.filePath(), QDir(target).filePath(other.fileName()));
        }
    }

    void copyFolder(const QString &source, const QString &target)
    {
        QDirIterator it(source, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                        QDirIterator::Subdirectories);
        bool isMade = QDir().mkpath(target);
        while (it.hasNext() && isMade && !m_report.error) {
            const QString path = it.next();
            const QString copy = QDir(target).filePath(QDir(source).relativeFilePath(path));
            if (it.fileInfo().isDir())
                isMade = QDir().mkpath(copy);
            else
                copyFile(path, copy);
        }
        if (!isMade)
            fail(PortableSamplesTr::tr("The folder \"%1\" can't be made.").arg(target), Side::Destination);
    }

    void copyFile(const QString &source, const QString &target)
    {
        if (m_report.error || QFileInfo::exists(target))
            return; // a companion that a reference of its own named
        if (!QDir().mkpath(QFileInfo(target).path()))
            return fail(PortableSamplesTr::tr("The folder \"%1\" can't be made.").arg(target),
                        Side::Destination);
        const auto failure = FileUtils::copyFile(
            source, target, [&](qint64 done, qint64 total) { m_observer->copying(source, done, total); });
        if (failure) {
            fail(PortableSamplesTr::tr("Cannot copy %1 into %2: %3").arg(source, target, failure->reason),
                 failure->side);
        } else {
            m_observer->copied(source, target);
        }
    }

    const QString m_folder;
    const QUrl m_baseUrl;
    PortableSaveObserver *const m_observer;
    QHash<QString, QString> m_places;
    QHash<QString, QString> m_subfolders;
    Report m_report;
};

} // namespace

Report carry(const QString &folder, const QUrl &baseUrl, PortableSaveObserver *observer)
{
    PortableSaveObserver deaf;
    Carrier carrier(folder, baseUrl, observer ? observer : &deaf);
    const QString file = WflwUtils::workflowInPortableWorkflow(folder);
    const Result<QByteArray> bytes = FileUtils::readFile(file);
    if (bytes.hasError())
        return {{}, {}, bytes.error()};
    const Result<QJsonObject> document = JsonUtils::objectFromJson(*bytes);
    if (document.hasError())
        return {{}, {}, document.error()};
    const ReferenceWalk walk([&](Kind kind, const ReferenceWalk::Place & /*place*/, const QString &text) {
        return carrier.visit(kind, text);
    });
    const QJsonObject moved = walk.walk(*document);
    if (carrier.report().error || carrier.report().carried.isEmpty())
        return carrier.report();
    QString reason;
    if (FileUtils::writeToFile(file, QJsonDocument(moved).toJson(), &reason) != QFileDevice::NoError)
        carrier.fail(PortableSamplesTr::tr("Can't write to %1: %2").arg(file, reason), Side::Destination);
    return carrier.report();
}

} // namespace orv::PortableSamples
