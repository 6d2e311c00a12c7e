#include "ExampleSet.h"

#include <KPropertyEditorView>
#include <KPropertySet>

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTextStream>

/// Shows a property of every type. With --picture FILE it renders the window to a PNG file and ends.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("property-view"));
    if (QLocale().language() == QLocale::C) {
        // The C locale is one for files: it shows the names of values rather than texts for people.
        QLocale::setDefault(QLocale(QLocale::English));
    }
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Render to a PNG file and end."), QStringLiteral("file"));
    const QCommandLineOption edited(QStringLiteral("edit"), QStringLiteral("Open the editor of a property."),
                                    QStringLiteral("name"));
    parser.addOptions({picture, edited});
    parser.process(application);

    const auto set = createExampleSet();
    KPropertyEditorView view;
    view.setWindowTitle(QStringLiteral("Properties"));
    view.setToolTipsVisible(true);
    view.setChildPropertyItemsExpanded(false);
    view.changeSet(set.get(), "precursorTolerance");
    set->changeProperty("missedCleavages", 3);
    set->changeProperty("traceColor", QColor(213, 94, 0));
    view.resize(560, 900);
    view.show();
    if (parser.isSet(edited)) {
        view.changeSet(set.get(), parser.value(edited).toUtf8());
        const QModelIndex index = view.currentIndex();
        static_cast<QAbstractItemView &>(view).edit(index.siblingAtColumn(1));
    }
    if (parser.isSet(picture)) {
        QApplication::processEvents();
        if (!view.grab().save(parser.value(picture))) {
            QTextStream(stderr) << "cannot write " << parser.value(picture) << Qt::endl;
            return 1;
        }
        return 0;
    }
    return QApplication::exec();
}
