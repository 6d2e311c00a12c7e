#include "combobox.h"

#include "KPropertyListData.h"

#include <QLineEdit>

KPropertyComboBoxEditorIconProviderInterface::KPropertyComboBoxEditorIconProviderInterface() = default;
KPropertyComboBoxEditorIconProviderInterface::~KPropertyComboBoxEditorIconProviderInterface() = default;

KPropertyComboBoxEditorOptions::KPropertyComboBoxEditorOptions() = default;

KPropertyComboBoxEditorOptions::KPropertyComboBoxEditorOptions(const KPropertyComboBoxEditorOptions &other)
    : iconProvider(other.iconProvider ? other.iconProvider->clone() : nullptr)
    , extraValueAllowed(other.extraValueAllowed)
{}

KPropertyComboBoxEditorOptions::~KPropertyComboBoxEditorOptions()
{
    delete iconProvider;
}

KPropertyComboBoxEditorOptions &
KPropertyComboBoxEditorOptions::operator=(const KPropertyComboBoxEditorOptions &other)
{
    if (&other != this) {
        delete iconProvider;
        iconProvider = other.iconProvider ? other.iconProvider->clone() : nullptr;
        extraValueAllowed = other.extraValueAllowed;
    }
    return *this;
}

class KPropertyComboBoxEditor::Private
{
public:
    KPropertyListData listData;
    KPropertyComboBoxEditorOptions options;
    //! A value that is no key; it must survive an editor that is opened and left.
    QVariant foreignValue;

    [[nodiscard]] qsizetype indexOfKey(const QVariant &key) const
    {
        const QVariantList keys = listData.keys();
        const qsizetype exact = keys.indexOf(key);
        return exact >= 0 ? exact : listData.keysAsStringList().indexOf(key.toString());
    }
};

KPropertyComboBoxEditor::KPropertyComboBoxEditor(const KPropertyListData &listData,
                                                 const KPropertyComboBoxEditorOptions &options,
                                                 QWidget *parent)
    : QComboBox(parent)
    , d(new Private{listData, options, QVariant()})
{
    setEditable(options.extraValueAllowed);
    setInsertPolicy(QComboBox::NoInsert);
    setAutoFillBackground(true);
    fillValues();
    connect(this, &QComboBox::activated, this, &KPropertyComboBoxEditor::slotValueChanged);
    if (lineEdit()) {
        lineEdit()->setFrame(false);
        connect(lineEdit(), &QLineEdit::textEdited, this, [this] { slotValueChanged(currentIndex()); });
    }
}

KPropertyComboBoxEditor::~KPropertyComboBoxEditor() = default;

bool KPropertyComboBoxEditor::listDataKeysAvailable() const
{
    return !d->listData.keys().isEmpty();
}

void KPropertyComboBoxEditor::fillValues()
{
    const QSignalBlocker blocker(this);
    clear();
    const QStringList names = d->listData.namesAsStringList();
    for (int i = 0; i < names.size(); ++i) {
        addItem(d->options.iconProvider ? d->options.iconProvider->icon(i) : QIcon(), names.at(i));
    }
    setCurrentIndex(-1);
}

QVariant KPropertyComboBoxEditor::value() const
{
    const int index =
        isEditable() ? findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive) : currentIndex();
    if (index >= 0 && index < d->listData.keys().size()) {
        return d->listData.keys().at(index);
    }
    if (isEditable() && currentText() != d->foreignValue.toString()) {
        return currentText();
    }
    return d->foreignValue;
}

void KPropertyComboBoxEditor::setListData(const KPropertyListData &listData)
{
    d->listData = listData;
    fillValues();
}

void KPropertyComboBoxEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    const qsizetype index = value.isValid() ? d->indexOfKey(value) : -1;
    d->foreignValue = index < 0 ? value : QVariant();
    setCurrentIndex(static_cast<int>(index));
    if (isEditable() && index < 0) {
        setEditText(value.toString());
    }
}

void KPropertyComboBoxEditor::slotValueChanged(int)
{
    Q_EMIT commitData(this);
}

QString KPropertyComboBoxEditor::borderSheet(const QWidget *widget)
{
    return QStringLiteral("QComboBox { border: 1px solid %1; padding: 0px 18px 0px 2px; }")
        .arg(widget->palette().color(QPalette::Mid).name());
}

KPropertyComboBoxDelegate::KPropertyComboBoxDelegate() = default;

QString KPropertyComboBoxDelegate::propertyValueToString(const KProperty *property,
                                                         const QLocale &locale) const
{
    Q_UNUSED(locale)
    const KPropertyListData *const data = property->listData();
    QString value = property->value().toString();
    if (!data) {
        return value;
    }
    const qsizetype index = property->value().isValid() ? data->keysAsStringList().indexOf(value) : -1;
    if (index >= 0) {
        return data->namesAsStringList().value(index);
    }
    return property->option("extraValueAllowed").toBool() ? value : QString();
}

QString KPropertyComboBoxDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.language() == QLocale::C ? value.toString() : valueToLocalizedString(value);
}

QWidget *KPropertyComboBoxDelegate::createEditor(int type, QWidget *parent,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (!property) {
        return nullptr;
    }
    KPropertyComboBoxEditorOptions options;
    options.extraValueAllowed = property->option("extraValueAllowed").toBool();
    return new KPropertyComboBoxEditor(property->listData() ? *property->listData() : KPropertyListData(),
                                       options, parent);
}
