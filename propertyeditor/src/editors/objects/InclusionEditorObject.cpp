#include "orv/propertyeditor/editors/InclusionEditorObject.h"

#include "ValueText.h"

#include <KProperty.h>
#include <orv/chemistry/InclusionList.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/InclusionDialog.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVStyle.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace orv {

namespace {

struct InclusionEditorTr
{
    Q_DECLARE_TR_FUNCTIONS(InclusionEditorObject)
};

/// What keeps entries from being told as text. Lines that couldn't be read once are told as they are.
Error problemOfEntries(const QJsonObject &value)
{
    constexpr QLatin1String kList("inclusion");
    const QJsonArray list = value.value(kList).toArray();
    QJsonArray entries;
    for (const auto entry : list) {
        if (!entry[QLatin1String("text")].isString() || entry.toObject().contains(QLatin1String("mz")))
            entries.append(entry);
    }
    QJsonObject rest = value;
    if (entries.size() < list.size())
        rest.insert(kList, entries);
    return InclusionList::toVector(rest).error();
}

} // namespace

QString InclusionEditorObject::toString(const QJsonObject &value) const
{
    const Error error = problemOfEntries(value);
    return error.hasError() ? ValueText::errorText(error, value) : InclusionList::toString(value);
}

QJsonObject InclusionEditorObject::fromString(const QString &text) const
{
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    return json.isObject() ? json.object() : InclusionList::toJson(text);
}

bool InclusionEditorObject::handleEditObject(QJsonObject *value, const KProperty &property,
                                             QWidget *parent) const
{
    ModalDialog dialog(new InclusionDialog(CoreMainWindow::windowFor(parent)));
    dialog->setWindowTitle(property.caption());
    const Result<QList<InclusionItem>> items = InclusionList::toVector(*value);
    if (items.hasError())
        ORVStyle::warning(dialog.get(), InclusionEditorTr::tr("Warning"), ValueText::reasonOf(items.error()),
                          QMessageBox::Ok);
    if (!dialog.get())
        return false;
    dialog->setItems(items.valueOr({}));
    const QList<InclusionItem> shown = dialog->items();
    if (!dialog.exec())
        return false;
    if (const QList<InclusionItem> edited = dialog->items(); edited != shown)
        *value = InclusionList::toJson(edited);
    return true;
}

} // namespace orv
