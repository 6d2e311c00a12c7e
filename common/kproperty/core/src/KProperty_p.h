#pragma once

#include "KProperty.h"
#include "KPropertyFactory.h"
#include "KPropertyListData.h"

#include <QMap>

class KProperty::Private
{
public:
    QByteArray name;
    QString caption;
    QString captionForDisplaying;
    QString description;
    QString iconName;
    QVariant value;
    QVariant oldValue;
    QMap<QByteArray, QVariant> options;
    std::unique_ptr<KPropertyListData> listData;
    std::unique_ptr<KComposedPropertyInterface> composed;
    /// Made with the first child, since children() tells "none yet" from "none left".
    std::unique_ptr<QList<KProperty *>> children;
    KProperty *parent = nullptr;
    /// The set that hears of changes: the one that the property was added to last.
    KPropertySet *set = nullptr;
    int type = KProperty::Auto;
    KProperty::ValueSyncPolicy syncPolicy = KProperty::ValueSyncPolicy::Editor;
    bool modified = false;
    bool readOnly = false;
    bool visible = true;
    bool storable = true;

    void addChild(KProperty *self, KProperty *child);
    void deleteChildren();
    void createComposed(KProperty *self);
};
