#pragma once

#include "Documents.h"
#include "editors/LeavingWays.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/grid/GridCommunicationManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/KPropertyViewItem.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QJsonDocument>
#include <QTest>

/// Columns of a grid as tests need them.
namespace GridFixture {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A setting as files hold it.
inline QJsonObject setting(const char *name, const QJsonValue &value, int priority = 1,
                           const char *group = "Search")
{
    return {{text("group"), text(group)},
            {text("name"), text(name)},
            {text("priority"), priority},
            {text("value"), value}};
}

inline QJsonObject settingsCell(const char *type, const QJsonArray &settings, const char *name = "Column")
{
    return {{text("metadata"), text("{}")},
            {text("name"), text(name)},
            {text("properties"), settings},
            {text("title"), text("")},
            {text("type"), text(type)}};
}

/// A search with an advanced setting, a file, a value with unit and a choice of samples.
inline QJsonObject karvonCell(const char *name = "Search")
{
    return settingsCell("Karvon",
                        {setting("KarvonDebugMode", text("false"), 3, "Expert"),
                         setting("KarvonLayout", text("layout.ini"), 2, "Files"),
                         setting("KarvonFragmentMassError",
                                 QJsonObject{{text("value"), 10.1234}, {text("unit"), text("ppm")}}),
                         setting("Samples", text("one; two"))},
                        name);
}

inline QByteArray bytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

inline QVariant cellOf(const QJsonObject &object)
{
    return bytes(object);
}

/// The stored value of a setting in a cell; undefined where the cell doesn't have it.
inline QJsonValue valueIn(const QJsonObject &cell, const char *name)
{
    for (const auto entry : cell.value(text("properties")).toArray()) {
        if (entry[text("name")].toString() == text(name))
            return entry[text("value")];
    }
    return QJsonValue(QJsonValue::Undefined);
}

/// The row of a property in the tree; invalid where it isn't shown.
inline QModelIndex indexOf(const QAbstractItemView &view, const char *name)
{
    return LeavingWays::rowOf(view, name);
}

inline QComboBox *combo(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QComboBox *>(text(name));
}

/// A column on the screen with a bus of its own.
struct Column
{
    explicit Column(const QJsonObject &cell = karvonCell())
        : item(&bus)
    {
        view = static_cast<orv::GridPropertyEditorView *>(item.widget());
        view->setDocumentType(orv::BaseItemType::Karvon);
        const orv::Error error = item.setContent(cell);
        if (error.hasError())
            qFatal("The fixture doesn't load: %s", qPrintable(error.errorMessage()));
        view->resize(600, 500);
        view->show();
        (void)QTest::qWaitForWindowActive(view);
    }

    KPropertySet &set() { return *view->propertySet(); }
    KProperty &property(const char *name) { return set().property(name); }
    void select(const char *name) { view->editorView()->setCurrentIndex(indexOf(*view->editorView(), name)); }

    orv::GridCommunicationManager bus;
    orv::KPropertyViewItem item;
    orv::GridPropertyEditorView *view;
};

} // namespace GridFixture
