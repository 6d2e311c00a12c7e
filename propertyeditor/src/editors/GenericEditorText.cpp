#include "GenericEditorText.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>

#include <QCoreApplication>
#include <QJsonDocument>

namespace orv::GenericEditorText {

namespace {

constexpr int kLinesOfCell = 4;

struct GenericEditorTr
{
    Q_DECLARE_TR_FUNCTIONS(OrvGenericEditor)
};

/// The first lines of \a text. The number of those that are left out is one less than there are: files of
/// screen pictures and reports have it so.
QString shortened(const QString &text)
{
    const qsizetype breaks = text.count(u'\n');
    if (breaks <= kLinesOfCell)
        return text;
    qsizetype end = -1;
    for (int line = 0; line < kLinesOfCell; ++line)
        end = text.indexOf(u'\n', end + 1);
    return text.left(end) + GenericEditorTr::tr("...\n[%1 more line(s)]").arg(breaks - kLinesOfCell);
}

} // namespace

QString textOf(const KProperty &property, Place place)
{
    const auto editor = PropertySetCreator::Editor(
        property.option(PropertyEditorStringConstants::OPTION_EDITOR.data()).toInt());
    const auto object = OrvGenericEditorObjectManager::instance()->getGenericEditorObject(editor);
    const QString text =
        (object ? object->toString(objectOf(property.value())) : GenericEditorTr::tr("Unknown editor"))
            .trimmed();
    return place == Place::Cell ? shortened(text) : text;
}

QJsonObject objectOf(const QVariant &value)
{
    if (value.typeId() == QMetaType::QJsonObject)
        return value.toJsonObject();
    // Each time a cell is drawn is no occasion to log what stands in it.
    return QJsonDocument::fromJson(value.toByteArray()).object();
}

QVariant valueOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace orv::GenericEditorText
