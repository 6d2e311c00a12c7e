#include "StepHelpers.h"

#include <orv/propertyeditor/PropertiesNames.h>

#include <QCoreApplication>

#include <algorithm>

namespace orv::UpgradeSteps {

using namespace PropertyEditor;

namespace {

struct StepHelpersTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

} // namespace

Error readAndWrite(Result<WorkingContent> working)
{
    if (!working)
        return working.ecatch();
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error failure(const QString &text, const QString &detail)
{
    return Error(ErrorCode::MalformedStructure, text).addDetail(detail);
}

Error notPossible(const QString &detail)
{
    return failure(QObject::tr("Upgrade not possible."), detail);
}

Error noSamples()
{
    return failure(QObject::tr("There are no samples in the workflow."),
                   StepHelpersTr::tr("Add the column of samples with the version that made the workflow."));
}

Error check(bool done, const KeyValueItem &item, const QString &key)
{
    if (done)
        return Error::NoError;
    return notPossible(
        StepHelpersTr::tr("The setting \"%1\" of the cell \"%2\" can't be changed as the format needs it. "
                          "Make the cell anew with the version that made the workflow.")
            .arg(key, item.name().isEmpty() ? item.typeString() : item.name()));
}

QString keyOf(PropertyId id)
{
    return PropertiesNames::internalNameForType(id);
}

Error insert(KeyValueItem *item, PropertyId id, const QString &group, const QVariant &value, int type,
             PropertyId before)
{
    const QString keyBefore = before == PropertyId::NoProperty ? QString() : keyOf(before);
    return check(item->insert(keyOf(id), group, value, type, keyBefore), *item, keyOf(id));
}

Error setValue(KeyValueItem *item, PropertyId id, const QVariant &value)
{
    return check(item->setValue(id, value), *item, keyOf(id));
}

Error remove(KeyValueItem *item, const QString &key)
{
    return check(item->remove(key), *item, key);
}

QList<KeyValueItem *> settingsItems(const Content &content, const QSet<BaseItemType> &types)
{
    QList<KeyValueItem *> found;
    for (BaseItem *item : content.findAllItems(types)) {
        if (auto *settings = qobject_cast<KeyValueItem *>(item))
            found.append(settings);
    }
    return found;
}

BaseItem *firstItem(const Content &content, BaseItemType type)
{
    const QList<BaseItem *> items = content.findAllItems(type);
    return items.isEmpty() ? nullptr : items.constFirst();
}

KeyValueItem *firstSettings(const Content &content, BaseItemType type)
{
    return qobject_cast<KeyValueItem *>(firstItem(content, type));
}

} // namespace orv::UpgradeSteps
