#include "EditorApplication.h"

#include <orv/propertyeditor/editors/GridItemEditorObjects.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

// Resources of a static library are known once somebody asks for them.
static void initResources()
{
    Q_INIT_RESOURCE(editor);
}

namespace orv::EditorApplication {

namespace {

/// The application takes it over, if there is one.
void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(locale, name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(texts);
    else
        delete texts;
}

} // namespace

void setNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ORV"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-workflow-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORV_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("ORV Workflow Editor"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.orv.WorkflowEditor"));
}

void setIcons()
{
    initResources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/application/org.orv.WorkflowEditor.svg")));
}

void registerCreators()
{
    GridItemManager *manager = GridItemManager::instance();
    manager->registerCreators();
    manager->registerCreator(BaseItemType::SamplesProteins, new SamplesProteinsTableItemCreator);
    manager->registerCreator(BaseItemType::IntactOptions, new IntactOptionsItemCreator);
    manager->registerCreator(BaseItemType::OligoOptions, new OligoOptionsItemCreator);

    using Editor = PropertySetCreator::Editor;
    OrvGenericEditorObjectManager *editors = OrvGenericEditorObjectManager::instance();
    editors->registerEditor(Editor::IntactOptions, new IntactOptionsGenericObject);
    editors->registerEditor(Editor::OligoOptions, new OligoOptionsGenericObject);
}

QString translationsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/orv/translations"));
}

void installTranslations(const QLocale &locale)
{
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("orv"), translationsFolder());
}

} // namespace orv::EditorApplication
