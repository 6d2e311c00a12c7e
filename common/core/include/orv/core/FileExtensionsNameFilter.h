#pragma once

#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>

#include <QList>
#include <QStringList>

namespace orv {

/// The name filter of a file dialog or a folder search for a list of file types. A plain value.
class ORV_WORKFLOW_EXPORT FileExtensionsNameFilter
{
public:
    FileExtensionsNameFilter() = default;
    FileExtensionsNameFilter(std::initializer_list<FileType> types);
    explicit FileExtensionsNameFilter(const QList<FileType> &types);

    /// The types, without repeats and without Invalid, in the order given.
    [[nodiscard]] QList<FileType> types() const { return m_types; }
    [[nodiscard]] bool isEmpty() const { return m_types.isEmpty(); }

    /// "*.wflw", one mask per suffix.
    [[nodiscard]] QStringList fileMasks() const;

    /// One line per type for a file dialog, "Workflow (*.wflw)"; for several types a line for all of them
    /// stands first.
    [[nodiscard]] QStringList nameFilters() const;

    /// Whether the name of \a path fits a mask, ignoring case.
    [[nodiscard]] bool matches(const QString &path) const;

private:
    QList<FileType> m_types;
};

} // namespace orv
