#include "ContentCheck.h"
#include "orv/propertyeditor/window/PropertyEditorWindow.h"

#include <orv/core/TextUtils.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/widgets/JavaChecker.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QPointer>

#include <array>
#include <memory>
#include <vector>

namespace orv {

using PropertyEditor::AbstractValidator;
using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

QString purposeText(WidgetValidationType type)
{
    constexpr std::array texts = {
        QT_TRANSLATE_NOOP("orv::PropertyEditorWindow", "to project creation"),
        QT_TRANSLATE_NOOP("orv::PropertyEditorWindow", "saving workflow"),
        QT_TRANSLATE_NOOP("orv::PropertyEditorWindow", "submitting a job"),
    };
    return PropertyEditorWindow::tr(texts.at(size_t(type)));
}

} // namespace

bool PropertyEditorWindow::verifyWidgetsContentAndShowDialog(WidgetValidationType type)
{
    const QPointer<PropertyEditorWindow> self(this);
    commitTyping();
    if (!self)
        return false;
    QStringList warnings;
    QStringList errors;
    QStringList details;
    if (!d->verifyWidgetsContent(&warnings, &errors, &details, type)) {
        const QString text =
            tr("Following errors have been found:%1").arg(TextUtils::errorsListToHtmlList(errors, {}));
        ORVStyle::critical(this, tr("Workflow content error"), DisplayString::html(text), QMessageBox::Ok, {},
                           QMessageBox::NoButton, details.join(QLatin1String("\n\n")));
        return false;
    }
    if (warnings.isEmpty())
        return true;
    const QString text = tr("Following issues have been found:%1Would you like to continue %2 or cancel ?")
                             .arg(TextUtils::warningsListToHtmlList(warnings, {}), purposeText(type));
    const auto answer =
        ORVStyle::warning(this, tr("Workflow content warnings"), DisplayString::html(text),
                          QMessageBox::Yes | QMessageBox::Cancel, {{QMessageBox::Yes, tr("Continue")}});
    return self && answer != QMessageBox::Cancel;
}

bool PropertyEditorWindow::checkContent(const Content &content, const QString &title)
{
    const QPointer<PropertyEditorWindow> self(this);
    std::vector<std::unique_ptr<AbstractValidator>> own;
    if (d->m_additionalValidatorsCreator) {
        for (AbstractValidator *validator : d->m_additionalValidatorsCreator())
            own.emplace_back(validator);
    }
    if (!self)
        return false;
    if (PropertyEditorUtils::isKarvonOnly(content.findAllDocuments()))
        own.emplace_back(sampleTypesValidator());
    ContentCheck check(content.toJsonObject(PropertyConversionFlag::AbsolutePaths), d->workflowBaseUrl());
    {
        const auto progress =
            ProgressOutputUtils::createAndShowProgress(tr("Checking workflow content..."), this, false);
        progress->run([&check](ProgressReporter &) { check.runDefaultValidators(); });
        if (self)
            check.runValidators(std::move(own));
    }
    if (!self)
        return false;
    const QString problems = TextUtils::warningsListToHtmlList(
        check.warnings(),
        check.isValid() ? tr("There are possible problems with the workflow:") : tr("Possible problems:"));
    if (!check.isValid()) {
        const QString faults =
            TextUtils::errorsListToHtmlList(check.errors(), tr("Please correct the following errors:"));
        ORVStyle::critical(
            this, title,
            DisplayString::html(tr("The workflow is not valid.<br><br>%1%2").arg(faults, problems)));
        return false;
    }
    if (check.warnings().isEmpty())
        return true;
    const auto answer = ORVStyle::question(
        this, title, DisplayString::html(tr("%1Are you sure you want to continue?").arg(problems)),
        QMessageBox::Yes | QMessageBox::No, {}, QMessageBox::No);
    return self && answer != QMessageBox::No;
}

bool PropertyEditorWindow::createProjectClicked()
{
    const QPointer<PropertyEditorWindow> self(this);
    commitTyping();
    if (!self || !d->verifyWorkflowReferences(content()) || !self)
        return false;
    d->m_projectCreationStarted = true;
    const QPointer<QWidget> focus = focusWidget();
    setEnabled(false);
    const bool isCreated = d->createProject();
    if (self)
        setEnabled(true);
    // A disabled window gives the focus away, and keys would go nowhere.
    if (self && focus && isAncestorOf(focus) && !focusWidget())
        focus->setFocus(Qt::OtherFocusReason);
    return isCreated;
}

void PropertyEditorWindow::processWorkflowClicked()
{
    handOver(RelativePaths::AreCheckedAsTheyAre);
}

Result<Content> PropertyEditorWindow::contentForHandOver(const QString &title)
{
    Content content;
    Error error = content.assignFromJson(this->content().toJsonObject());
    if (!error.hasError())
        return content;
    ORVStyle::critical(this, title, tr("Cannot handle the specified workflow: %1").arg(error.errorMessage()));
    return error.ecatch();
}

bool PropertyEditorWindow::isJavaUsable()
{
    const QPointer<PropertyEditorWindow> self(this);
    QString message;
    int answer = JavaChecker::Usable;
    {
        const auto progress =
            ProgressOutputUtils::createAndShowProgress(tr("Looking for the Java runtime..."), this, false);
        progress->run([&](ProgressReporter &) { answer = JavaChecker::isJavaInstalled(&message); });
    }
    if (self && answer != JavaChecker::Usable)
        ORVStyle::warning(this, tr("Error"), message);
    return self && answer == JavaChecker::Usable;
}

bool PropertyEditorWindow::handOver(RelativePaths paths)
{
    const QPointer<PropertyEditorWindow> self(this);
    const QString title = tr("Project creation");
    if (!verifyWidgetsContentAndShowDialog(WidgetValidationType::ProjectCreation) || !self)
        return false;
    const Result<Content> loaded = contentForHandOver(title);
    if (loaded.hasError() || !self)
        return false;
    Content content = *loaded;
    if (paths == RelativePaths::AreMadeAbsoluteFirst)
        content.setBaseUrl(d->workflowBaseUrl());
    if ((d->hasKarvon(content) || d->hasOstrale(content)) && !isJavaUsable())
        return false;
    if (!self || !checkContent(content, title) || !self)
        return false;
    DuplicateFilePolicy policy = DuplicateFilePolicy::KeepBoth;
    const Path path =
        d->getLocalProjectOutputPath(content.findAllDocuments(), content.findProjects(), &policy);
    if (!self || path.isEmpty())
        return false;
    content.setBaseUrl(d->workflowBaseUrl());
    const QJsonObject absolute = content.toJsonObject(PropertyConversionFlag::AbsolutePaths);
    if (Error error = content.assignFromJson(absolute)) {
        ORVStyle::critical(this, title,
                           tr("Cannot handle the specified workflow: %1").arg(error.errorMessage()));
        return false;
    }
    if (paths == RelativePaths::AreMadeAbsoluteFirst)
        content.setBaseUrl(d->workflowBaseUrl());
    Q_EMIT sendToProcessing(content, path, policy);
    return true;
}

} // namespace orv
