#pragma once

#include "Documents.h"
#include "LogCapture.h"
#include "TestData.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/DialogService.h>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

/// Document windows as applications have them, and small documents for them.
namespace WindowFixture {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

inline constexpr auto kOpened = orv::PropertyEditorWindow::OpenStatus::Opened;

inline void registerCreators()
{
    static const bool isDone = [] {
        orv::GridItemManager *manager = orv::GridItemManager::instance();
        manager->registerCreators();
        manager->registerCreator(orv::BaseItemType::SamplesProteins,
                                 new orv::SamplesProteinsTableItemCreator);
        manager->registerCreator(orv::BaseItemType::IntactOptions, new orv::IntactOptionsItemCreator);
        manager->registerCreator(orv::BaseItemType::OligoOptions, new orv::OligoOptionsItemCreator);
        return true;
    }();
    Q_UNUSED(isDone)
}

/// Lets tests call what windows of applications may call.
class Window : public orv::PropertyEditorDesktopWindow
{
public:
    Window()
        : PropertyEditorDesktopWindow((registerCreators(), nullptr))
    {}

    using PropertyEditorWindow::addTabWithColumns;
    using PropertyEditorWindow::checkContent;
    using PropertyEditorWindow::openWorkflow;
    using PropertyEditorWindow::removeTab;
    using PropertyEditorWindow::saveWorkflowToJSON;
    using PropertyEditorWindow::verifyWidgetsContentAndShowDialog;

    orv::PropertyEditorWindowPrivate &state() { return *dFunc(); }
    orv::EditableTabWidget &tabs() { return *findChild<orv::EditableTabWidget *>(text("tabWidget")); }
    orv::PropertyGridWidget *grid(int index) { return state().gridWidgetForTabIndex(index); }
    QPushButton &button(const char *name) { return *findChild<QPushButton *>(text(name)); }

    QToolButton *toolButton(const char *caption)
    {
        for (QToolButton *candidate : findChildren<QToolButton *>()) {
            if (candidate->text() == text(caption))
                return candidate;
        }
        qFatal("There is no tool button \"%s\"", caption);
    }
    void show()
    {
        QWidget::show();
        (void)QTest::qWaitForWindowActive(this);
    }
    void click(const char *toolButtonCaption)
    {
        QTest::mouseClick(toolButton(toolButtonCaption), Qt::LeftButton);
    }
};

inline QJsonObject metadata(const char *version = "5.47.0", const char *name = "Mixture")
{
    return {{text("version"), text(version)}, {text("name"), text(name)}};
}

inline QJsonObject setting(const char *name, const QJsonValue &value, const char *group = "Search")
{
    return {{text("group"), text(group)},
            {text("name"), text(name)},
            {text("priority"), 1},
            {text("value"), value}};
}

inline QJsonObject settingsCell(const char *type, const QJsonArray &settings)
{
    return {{text("metadata"), text("{}")}, {text("properties"), settings}, {text("type"), text(type)}};
}

inline QJsonObject karvonCell(const QJsonArray &more = {})
{
    QJsonArray settings{setting("Samples", text("*"))};
    for (const auto entry : more)
        settings.append(entry);
    return settingsCell("Karvon", settings);
}

inline QJsonObject previewCell()
{
    return settingsCell("Preview", {setting("Samples", text("*"))});
}

/// One tab with a column for each cell, named after its type.
inline QJsonObject documentOf(const QList<QJsonObject> &cells,
                              const QJsonObject &metadata = WindowFixture::metadata())
{
    QStringList columns;
    QJsonArray array;
    for (const QJsonObject &cell : cells) {
        columns.append(cell[text("type")].toString());
        array.append(cell);
    }
    return Documents::document({Documents::tab(text("Analysis"), columns, array)}, metadata);
}

inline QString write(const QTemporaryDir &folder, const char *name, const QByteArray &bytes)
{
    const QString path = folder.filePath(text(name));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The test's file can't be written: %s", qPrintable(path));
    return path;
}

inline QString write(const QTemporaryDir &folder, const char *name, const QJsonObject &document)
{
    return write(folder, name, Documents::toBytes(document));
}

/// What a person does in a window.
using WindowAct = std::function<void(Window &)>;

/// Closes the window for good while it asks.
class Destroyer : public orv::DialogAnswerer
{
public:
    Destroyer(Window *window, const QString &title, const QString &button)
        : m_window(window)
        , m_title(title)
        , m_button(button)
        , m_earlier(orv::DialogService::install(this))
    {}
    ~Destroyer() override { orv::DialogService::install(m_earlier); }

    /// Null once it has gone.
    [[nodiscard]] Window *window() const { return m_window; }

    std::optional<orv::DialogAnswer> answer(const orv::DialogRequest &request) override
    {
        if (request.title == m_title)
            delete m_window;
        const bool isUpgrade = request.title == text("Workflow upgrade") && m_title != request.title;
        const QString button = isUpgrade && m_title == text("Save upgraded workflow") ? m_button
                               : isUpgrade                                            ? text("Apply")
                                                                                      : m_button;
        return orv::DialogAnswer{button, QDir::tempPath() + text("/destroyed.wflw")};
    }

private:
    QPointer<Window> m_window;
    QString m_title;
    QString m_button;
    orv::DialogAnswerer *m_earlier;
};

/// What people were asked: a line for each box, its text without markup, buttons (the default one in
/// brackets) and details.
inline QStringList transcriptOf(const orv::ScriptedAnswerer &answers)
{
    constexpr std::array kinds{"question",  "warning",   "critical",      "information",
                               "open file", "save file", "choose folder", "dialog"};
    QStringList lines;
    for (const orv::DialogRequest &request : answers.transcript()) {
        QStringList buttons;
        for (const QString &button : request.buttons)
            buttons.append(button == request.defaultButton ? text("[%1]").arg(button) : button);
        QString line = text("%1 | %2 | %3 | %4")
                           .arg(QLatin1String(kinds.at(size_t(request.kind))), request.title,
                                QString(request.text).replace(u'\n', text("\\n")), buttons.join(u' '));
        if (!request.details.isEmpty())
            line += text(" | ") + QString(request.details).replace(u'\n', text("\\n"));
        lines.append(line);
    }
    return lines;
}

} // namespace WindowFixture

Q_DECLARE_METATYPE(WindowFixture::WindowAct)
