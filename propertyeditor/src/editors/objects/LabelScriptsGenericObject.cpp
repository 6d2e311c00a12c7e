#include "orv/propertyeditor/editors/LabelScriptsGenericObject.h"

#include "ValueText.h"

#include <KProperty.h>
#include <orv/propertyeditor/LabelScripts.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/TECWrapper.h>
#include <orv/widgets/TemplateEditor.h>

#include <QCoreApplication>
#include <QDir>
#include <QPushButton>

namespace orv {

namespace {

struct LabelScriptsTr
{
    Q_DECLARE_TR_FUNCTIONS(LabelScriptsGenericObject)
};

using Plot = LabelScriptsGenericObject::Plot;

QLatin1String keyOf(Plot plot)
{
    return plot == Plot::DeconvolvedMass ? LabelScripts::DMS_PLOT_KEY : LabelScripts::TRACE_PLOT_KEY;
}

QString titleOf(Plot plot)
{
    return plot == Plot::DeconvolvedMass ? LabelScriptsTr::tr("Label Script of Deconvolved Masses")
                                         : LabelScriptsTr::tr("Label Script of Traces");
}

/// A file in the folder of scripts, the folder itself for no name. The folder may be missing.
QString scriptPath(const QString &name)
{
    const QDir program(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(program.filePath(QStringLiteral("labelscripts/%1").arg(name)));
}

/// Where a dialog begins: in the folder of scripts, or where files were chosen last if there is none.
QString startPath(const QString &name)
{
    return QDir(scriptPath({})).exists() ? scriptPath(name) : name;
}

void tellScriptError(QWidget *parent, const QString &title, const Error &error)
{
    ORVStyle::warning(parent, title, ValueText::reasonOf(error), QMessageBox::Ok);
}

void loadScript(TemplateEditor *editor)
{
    const QPointer<TemplateEditor> guard(editor);
    const QString title = LabelScriptsTr::tr("Load Label Script");
    const QString path = ORVFileDialog::getOpenFileName(editor, title, startPath({}));
    if (path.isEmpty() || !guard)
        return;
    if (const Error error = guard->loadFile(path); error.hasError())
        tellScriptError(guard, title, error);
}

void saveScript(TemplateEditor *editor, const QString &name)
{
    const QPointer<TemplateEditor> guard(editor);
    const QString title = LabelScriptsTr::tr("Save Label Script");
    // Where the folder can't be made, another one is chosen.
    QDir().mkpath(scriptPath({}));
    const QString path = ORVFileDialog::getSaveFileName(editor, title, startPath(name));
    if (path.isEmpty() || !guard)
        return;
    if (const Error error = guard->saveFile(path); error.hasError())
        tellScriptError(guard, title, error);
}

} // namespace

LabelScriptsGenericObject::LabelScriptsGenericObject(Plot plot)
    : m_key(keyOf(plot))
    , m_title(titleOf(plot))
{}

QString LabelScriptsGenericObject::toString(const QJsonObject &value) const
{
    return ValueText::textUnder(m_key, value);
}

QJsonObject LabelScriptsGenericObject::fromString(const QString &text) const
{
    return {{m_key, text}};
}

bool LabelScriptsGenericObject::handleEditObject(QJsonObject *value, const KProperty &, QWidget *parent) const
{
    ModalDialog editor(new TemplateEditor(CoreMainWindow::windowFor(parent)));
    editor->setWindowTitle(m_title);
    const QString shown = TECWrapper::wrapTEC(value->value(m_key).toString());
    editor->setSourceText(shown);
    QObject::connect(editor->addButton(LabelScriptsTr::tr("Load...")), &QPushButton::clicked, editor.get(),
                     [dialog = editor.get()] { loadScript(dialog); });
    QObject::connect(
        editor->addButton(LabelScriptsTr::tr("Save...")), &QPushButton::clicked, editor.get(),
        [dialog = editor.get(), name = m_key + QLatin1String(".txt")] { saveScript(dialog, name); });
    if (!editor.exec())
        return false;
    if (const QString edited = editor->sourceText(); edited != shown)
        *value = fromString(TECWrapper::unwrapTEC(edited));
    return true;
}

} // namespace orv
