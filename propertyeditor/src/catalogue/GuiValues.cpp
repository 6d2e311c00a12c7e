#include "GuiValues.h"

#include <orv/core/Logging.h>

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

namespace orv {

namespace {

/// Beside the library that this code is in. Elsewhere the system looks there by itself.
QString guiLibraryPath()
{
    QString path = QStringLiteral("orv_workflow_gui");
#ifdef Q_OS_UNIX
    Dl_info info;
    if (dladdr(reinterpret_cast<const void *>(&guiValues), &info) && info.dli_fname)
        path = QFileInfo(QString::fromLocal8Bit(info.dli_fname)).dir().filePath(QLatin1String("lib") + path);
#endif
    return path;
}

const GuiValues *loadGuiValues()
{
    QLibrary library(guiLibraryPath());
    const auto entry = reinterpret_cast<const GuiValues *(*)()>(library.resolve("orvGuiValues"));
    if (!entry)
        qCCritical(propertyEditorLog).noquote()
            << "Fonts, colours, pictures and cursors can't be read:" << library.errorString();
    return entry ? entry() : nullptr;
}

} // namespace

const GuiValues *guiValues()
{
    static const GuiValues *const values = loadGuiValues();
    return values;
}

} // namespace orv
