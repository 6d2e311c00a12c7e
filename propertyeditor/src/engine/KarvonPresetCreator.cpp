#include "orv/propertyeditor/engine/KarvonPresetCreator.h"

#include "KPropertyUpdater.h"
#include "KarvonFeatures.h"
#include "KarvonKeys.h"

#include <KPropertySet>
#include <orv/core/KarvonPathFormat.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/ResourceManager.h>
#include <orv/table/XenosetPreset.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QSysInfo>

#include <mutex>

namespace orv {

using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;
using PropertyEditor::SamplesTableItem;

namespace {

/// One line, with words for switches as digits.
QByteArray lineOf(std::string_view key, QString text)
{
    constexpr qsizetype kLongestWord = 5;
    const QString word = text.size() <= kLongestWord ? text.toLower() : QString();
    if (word == QLatin1String("false"))
        text = QStringLiteral("0");
    else if (word == QLatin1String("true"))
        text = QStringLiteral("1");
    if (text.contains(QLatin1Char('\n'))) {
        text.replace(QLatin1String("\r\n"), QLatin1String("\\n"));
        text.replace(QLatin1String("\n"), QLatin1String("\\n"));
    }
    return QByteArray(key.data(), qsizetype(key.size())) + '=' + text.toUtf8() + '\n';
}

/// The line with the time, which is the same for all files of one second.
QByteArray timeLine()
{
    thread_local qint64 second = -1;
    thread_local QByteArray line;
    if (const qint64 present = QDateTime::currentSecsSinceEpoch(); present != second) {
        second = present;
        line = '#' + QDateTime::fromSecsSinceEpoch(present).toString(Qt::ISODate).toLatin1() + '\n';
    }
    return line;
}

/// The lines above the time.
QByteArray head()
{
    const QStringList lines = {
        QStringLiteral("#Orv-Karvon parameters"),
        QStringLiteral("#Build info: ") + QCoreApplication::applicationVersion(),
        QStringLiteral("#OS Arch: ") + QSysInfo::buildCpuArchitecture(),
        QStringLiteral("#OS Name: ") + QSysInfo::prettyProductName(),
        QStringLiteral("#"),
    };
    return lines.join(QLatin1Char('\n')).toUtf8() + '\n';
}

/// What all files of one search share, in the order of the file.
struct Template
{
    QByteArray head;
    QByteArray beforeDatabase;
    QByteArray beforeSpectra;
    QByteArray end;
};

Template templateOf(const KarvonFeatures &features)
{
    Template made;
    made.head = head();
    QByteArray *part = &made.beforeDatabase;
    for (const KarvonKey &row : karvonKeys()) {
        if (row.key == kDatabaseFilesKey)
            part = &made.beforeSpectra;
        else if (row.key == kSpectraFilesKey)
            part = &made.end;
        else
            *part += lineOf(row.key, row.valueOf(features, row.id).toString());
    }
    return made;
}

QHash<QString, ResourceReferenceSPtr> filesOf(const Content &content)
{
    QHash<QString, ResourceReferenceSPtr> files;
    const QList<PropertyEditor::BaseItem *> items = content.findAllItems(BaseItemType::Samples);
    const auto *table = items.isEmpty() ? nullptr : qobject_cast<const SamplesTableItem *>(items.first());
    if (!table)
        return files;
    const QList<SamplesInput::Entry> samples = table->samplesInput();
    for (const SamplesInput::Entry &sample : samples) {
        if (!files.contains(sample.name))
            files.insert(sample.name, sample.msFile);
    }
    return files;
}

} // namespace

class KarvonPresetCreator::Private
{
public:
    Private(const Content &content, const KeyValueItem &item)
        : files(filesOf(content))
        , features(item)
    {}

    [[nodiscard]] const Template &shared() const
    {
        std::call_once(m_once, [this] { m_shared = templateOf(features); });
        return m_shared;
    }

    [[nodiscard]] QString spectraFile(const QString &sampleName) const
    {
        const auto file = files.constFind(sampleName);
        if (file == files.cend())
            return {};
        Result<QString> path = grab(*file);
        if (path.hasError())
            (void)path.ecatch(Q_FUNC_INFO, __FILE__, __LINE__);
        return path.valueOr({});
    }

    [[nodiscard]] static Result<QString> grab(const ResourceReferenceSPtr &reference)
    {
        Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(reference);
        if (handler.hasError())
            return handler.ecatch();
        Result<QString> path = (*handler)->grab();
        if (path.hasError())
            return path.ecatch();
        return path;
    }

    const QHash<QString, ResourceReferenceSPtr> files; ///< of the first sample of each name
    const KarvonFeatures features;

private:
    mutable std::once_flag m_once;
    mutable Template m_shared;
};

KarvonPresetCreator::KarvonPresetCreator(const Content &content, const KeyValueItem &item)
    : d(std::make_unique<Private>(content, item))
{}

KarvonPresetCreator::~KarvonPresetCreator() = default;

QByteArray KarvonPresetCreator::presetForSample(const QString &sampleName, const QString &databasePath) const
{
    return presetForSpectra(d->spectraFile(sampleName), databasePath);
}

QByteArray KarvonPresetCreator::presetForSpectra(const QString &spectraFile,
                                                 const QString &databasePath) const
{
    const Template &shared = d->shared();
    const QByteArray time = timeLine();
    const QByteArray database = lineOf(kDatabaseFilesKey, toKarvonPathFormat(databasePath));
    const QByteArray spectra = lineOf(kSpectraFilesKey, toKarvonPathFormat(spectraFile));
    QByteArray file;
    file.reserve(shared.head.size() + time.size() + shared.beforeDatabase.size() + database.size() +
                 shared.beforeSpectra.size() + spectra.size() + shared.end.size());
    return file.append(shared.head)
        .append(time)
        .append(shared.beforeDatabase)
        .append(database)
        .append(shared.beforeSpectra)
        .append(spectra)
        .append(shared.end);
}

Result<QString> KarvonPresetCreator::spectraFileOf(const QString &sampleName) const
{
    const auto file = d->files.constFind(sampleName);
    if (file == d->files.cend()) {
        return Error(ErrorCode::InvalidContent,
                     QCoreApplication::translate("KarvonPresetCreator", "The workflow has no sample \"%1\".")
                         .arg(sampleName));
    }
    return Private::grab(*file);
}

KPropertySet *KarvonPresetCreator::propertySetFromXenoset(const QString &path)
{
    XenosetPreset preset;
    if (preset.load(path))
        return propertySetFromXenoset(preset);
    qCWarning(propertyEditorLog()) << "Can't load xenoset file" << path;
    return nullptr;
}

KPropertySet *KarvonPresetCreator::propertySetFromXenoset(const XenosetPreset &preset)
{
    auto set = std::make_unique<KPropertySet>();
    for (const KPropertyUpdater::Row &row : KPropertyUpdater::rows()) {
        KProperty *property =
            PropertySetCreator::createDefaultProperty(row.id, PropertySetCreator::Priority::Unset);
        if (!property) {
            qCWarning(propertyEditorLog()) << "Can't create property" << row.id;
            return nullptr;
        }
        row.update(property, row, preset);
        set->addProperty(property, "common");
    }
    return set.release();
}

} // namespace orv
