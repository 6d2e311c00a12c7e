#pragma once

#include <orv/widgets/Export.h>

#include <QMetaType>
#include <QString>

namespace orv {

/// Where results go, and whether that is a file or a folder. A plain value.
class ORV_PROPERTY_EDITOR_EXPORT Path
{
public:
    enum class Kind
    {
        Unknown, ///< nothing was chosen
        File,
        Folder,
    };

    Path() = default;
    Path(const QString &path, Kind kind)
        : m_path(path)
        , m_kind(kind)
    {}

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] bool isEmpty() const { return m_path.isEmpty(); }
    [[nodiscard]] bool isFile() const { return m_kind == Kind::File; }
    [[nodiscard]] bool isFolder() const { return m_kind == Kind::Folder; }

    friend bool operator==(const Path &, const Path &) = default;

private:
    QString m_path;
    Kind m_kind = Kind::Unknown;
};

} // namespace orv

Q_DECLARE_METATYPE(orv::Path)
