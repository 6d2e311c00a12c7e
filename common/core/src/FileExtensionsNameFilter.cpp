#include "orv/core/FileExtensionsNameFilter.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv {

namespace {

QStringList masksOf(FileType type)
{
    QStringList masks = FileTypes::suffixes(type);
    for (QString &mask : masks)
        mask.prepend(QLatin1String("*."));
    return masks;
}

QString filterLine(const QString &description, const QStringList &masks)
{
    return QStringLiteral("%1 (%2)").arg(description, masks.join(QLatin1Char(' ')));
}

} // namespace

FileExtensionsNameFilter::FileExtensionsNameFilter(std::initializer_list<FileType> types)
    : FileExtensionsNameFilter(QList<FileType>(types))
{}

FileExtensionsNameFilter::FileExtensionsNameFilter(const QList<FileType> &types)
{
    for (FileType type : types) {
        if (type != FileTypes::Invalid && !m_types.contains(type))
            m_types.append(type);
    }
}

QStringList FileExtensionsNameFilter::fileMasks() const
{
    QStringList masks;
    for (FileType type : m_types)
        masks += masksOf(type);
    return masks;
}

QStringList FileExtensionsNameFilter::nameFilters() const
{
    QStringList filters;
    if (m_types.size() > 1) {
        filters += filterLine(QCoreApplication::translate("FileExtensionsNameFilter", "All supported files"),
                              fileMasks());
    }
    for (FileType type : m_types)
        filters += filterLine(FileTypes::description(type), masksOf(type));
    return filters;
}

bool FileExtensionsNameFilter::matches(const QString &path) const
{
    return std::any_of(m_types.begin(), m_types.end(),
                       [&path](FileType type) { return FileTypes::isType(path, type); });
}

} // namespace orv
