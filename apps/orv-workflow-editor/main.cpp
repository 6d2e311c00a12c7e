#include "EditorWindow.h"

#include <orv/propertyeditor/editors/GridItemEditorObjects.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

/// The columns that the library leaves to its hosts, and the editors of the settings that hold such tables.
void registerCreators()
{
    using namespace orv;
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

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORV"));
    QApplication::setApplicationName(QStringLiteral("orv-workflow-editor"));
    QApplication::setApplicationDisplayName(QStringLiteral("ORV Workflow Editor"));
    QApplication::setApplicationVersion(QStringLiteral(ORV_VERSION));
    QTranslator qtTexts;
    if (qtTexts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtTexts);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Views, edits, checks and upgrades mass-spectrometry workflows."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QApplication::translate("main", "Workflows to open, a window each."),
                                 QStringLiteral("[FILE...]"));
    parser.process(application);

    registerCreators();
    orv::CoreMainWindow mainWindow;
    const auto recovery = std::make_shared<orv::RecoveryStore>(orv::RecoveryStore::defaultFolder());
    auto *window = new orv::EditorWindow(&mainWindow, recovery);
    window->show();
    window->offerRecovery();
    window->openFiles(parser.positionalArguments());
    return QApplication::exec();
}
