#include "orv/propertyeditor/window/WorkflowIcons.h"

#include <QDir>
#include <QFileInfo>

namespace orv {

namespace {

void addIconsFrom(const QString &folder, const QSize &size, QIcon::Mode mode, QHash<QString, QIcon> *icons)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        (*icons)[file.baseName()].addFile(file.filePath(), size, mode);
}

QHash<QString, QIcon> readWorkflowIcons()
{
    QHash<QString, QIcon> icons;
    for (const int side : {128, 48}) {
        const QString folder = QStringLiteral(":/workflows/%1").arg(side);
        const QSize size(side, side);
        addIconsFrom(folder, size, QIcon::Normal, &icons);
        addIconsFrom(folder + QLatin1String("/idle"), size, QIcon::Normal, &icons);
        addIconsFrom(folder + QLatin1String("/hover"), size, QIcon::Selected, &icons);
    }
    return icons;
}

} // namespace

const QHash<QString, QIcon> &WorkflowIcons::availableIcons()
{
    static const QHash<QString, QIcon> icons = readWorkflowIcons();
    return icons;
}

QIcon WorkflowIcons::icon(const QString &name)
{
    const QHash<QString, QIcon> &icons = availableIcons();
    return icons.contains(name) ? icons.value(name) : icons.value(defaultIconName());
}

QString WorkflowIcons::defaultIconName()
{
    return QStringLiteral("default");
}

} // namespace orv
