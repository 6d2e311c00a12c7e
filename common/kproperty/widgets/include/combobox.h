#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QComboBox>
#include <QIcon>

class KPropertyListData;

/// Icons for the rows of a list.
class KPROPERTYWIDGETS_EXPORT KPropertyComboBoxEditorIconProviderInterface
{
public:
    KPropertyComboBoxEditorIconProviderInterface();
    virtual ~KPropertyComboBoxEditorIconProviderInterface();
    virtual QIcon icon(int index) const = 0;
    virtual KPropertyComboBoxEditorIconProviderInterface *clone() const = 0;

private:
    Q_DISABLE_COPY(KPropertyComboBoxEditorIconProviderInterface)
};

class KPROPERTYWIDGETS_EXPORT KPropertyComboBoxEditorOptions
{
public:
    KPropertyComboBoxEditorOptions();
    /// Clones the icon provider.
    KPropertyComboBoxEditorOptions(const KPropertyComboBoxEditorOptions &other);
    ~KPropertyComboBoxEditorOptions();

    KPropertyComboBoxEditorOptions &operator=(const KPropertyComboBoxEditorOptions &other);

    /// Owned.
    KPropertyComboBoxEditorIconProviderInterface *iconProvider = nullptr;
    bool extraValueAllowed = false;
};

/// A choice among the names of list data; its value is the key.
class KPROPERTYWIDGETS_EXPORT KPropertyComboBoxEditor : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    KPropertyComboBoxEditor(const KPropertyListData &listData, const KPropertyComboBoxEditorOptions &options,
                            QWidget *parent = nullptr);
    ~KPropertyComboBoxEditor() override;

    /// The key of the chosen name; with extra values allowed a typed text that is no name; null for none.
    virtual QVariant value() const;

    static QString borderSheet(const QWidget *widget);

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setListData(const KPropertyListData &listData);
    /// A value that is no key shows nothing, or itself when extra values are allowed.
    virtual void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(int value);

protected:
    void fillValues();
    bool listDataKeysAvailable() const;

private:
    Q_DISABLE_COPY(KPropertyComboBoxEditor)
    class Private;
    const std::unique_ptr<Private> d;
};

/// For the type ValueFromList. Option: extraValueAllowed.
class KPROPERTYWIDGETS_EXPORT KPropertyComboBoxDelegate : public KPropertyEditorCreatorInterface,
                                                          public KPropertyValueDisplayInterface
{
public:
    KPropertyComboBoxDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString propertyValueToString(const KProperty *prop, const QLocale &locale) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
