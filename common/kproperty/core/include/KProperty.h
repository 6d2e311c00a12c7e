#pragma once

#include "kpropertycore_export.h"

#include <QByteArray>
#include <QDebug>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>

class KComposedPropertyInterface;
class KPropertyListData;
class KPropertySet;
class KPropertySetPrivate;

/// Bounds within which an editor for doubles loses no integer digit.
#define KPROPERTY_MIN_PRECISE_DOUBLE (-std::pow(2, std::numeric_limits<double>::digits))
#define KPROPERTY_MAX_PRECISE_DOUBLE (std::pow(2, std::numeric_limits<double>::digits))

/*! A named value with what an editor needs to show it: type, caption, description, options.

    @code
    KPropertySet set;
    auto *tolerance = new KProperty("tolerance", 5.0, tr("Mass tolerance"), tr("In ppm."));
    tolerance->setOption("min", 0.0);
    tolerance->setOption("suffix", tr(" ppm"));
    set.addProperty(tolerance, "search");   // the set owns it from here
    set.changeProperty("tolerance", 10.0);  // oldValue() is 5.0, isModified() is true
    @endcode

    A property with an empty name is null: it takes no value. The type is a plain number: the built-in
    ones are the Qt 6 meta-type ids, those of applications start at UserDefined. The type chooses the
    editor; it does not convert values, so a value of any type can be stored.

    A property owns its children, its list data and its composed property. It is a plain value without
    locks: use it in one thread at a time. */
class KPROPERTYCORE_EXPORT KProperty
{
public:
    enum Type
    {
        Auto = 0x00ffffff, ///< taken from the value at construction
        Invalid = QMetaType::UnknownType,
        BitArray = QMetaType::QBitArray,
        Bitmap = QMetaType::QBitmap,
        Bool = QMetaType::Bool,
        Brush = QMetaType::QBrush,
        ByteArray = QMetaType::QByteArray,
        Char = QMetaType::QChar,
        Color = QMetaType::QColor,
        Cursor = QMetaType::QCursor,
        Date = QMetaType::QDate,
        DateTime = QMetaType::QDateTime,
        Double = QMetaType::Double,
        Font = QMetaType::QFont,
        Icon = QMetaType::QIcon,
        Image = QMetaType::QImage,
        Int = QMetaType::Int,
        KeySequence = QMetaType::QKeySequence,
        Line = QMetaType::QLine,
        LineF = QMetaType::QLineF,
        List = QMetaType::QVariantList,
        Locale = QMetaType::QLocale,
        LongLong = QMetaType::LongLong,
        Map = QMetaType::QVariantMap,
        Matrix4x4 = QMetaType::QMatrix4x4,
        Transform = QMetaType::QTransform,
        Palette = QMetaType::QPalette,
        Pen = QMetaType::QPen,
        Pixmap = QMetaType::QPixmap,
        Point = QMetaType::QPoint,
        PointF = QMetaType::QPointF,
        Polygon = QMetaType::QPolygon,
        Rect = QMetaType::QRect,
        RectF = QMetaType::QRectF,
        RegularExpression = QMetaType::QRegularExpression,
        Region = QMetaType::QRegion,
        Size = QMetaType::QSize,
        SizeF = QMetaType::QSizeF,
        SizePolicy = QMetaType::QSizePolicy,
        String = QMetaType::QString,
        StringList = QMetaType::QStringList,
        TextFormat = QMetaType::QTextFormat,
        TextLength = QMetaType::QTextLength,
        Time = QMetaType::QTime,
        UInt = QMetaType::UInt,
        ULongLong = QMetaType::ULongLong,
        Url = QMetaType::QUrl,

        // Stored in files, never renumber.
        ValueFromList = 1000, ///< a key of listData()
        Symbol = 1001,        ///< a Unicode code point
        FontName = 1002,      ///< name of a font family
        LineStyle = 1003,     ///< a Qt::PenStyle
        ComposedUrl = 1004,   ///< KPropertyComposedUrl

        UserDefined = 4000 ///< first number for the types of applications
    };

    /// A null property: no name, no value, type Auto.
    KProperty();

    /// With type Auto the type is that of \a value. Without a \a name the property is null and takes no
    /// value. A \a parent takes ownership.
    explicit KProperty(const QByteArray &name, const QVariant &value = QVariant(),
                       const QString &caption = QString(), const QString &description = QString(),
                       int type = Auto, KProperty *parent = nullptr);

    /// Without this the number 0 would be taken for a null pointer to list data.
    template<typename Number>
    requires std::is_same_v<Number, int>
    explicit KProperty(const QByteArray &name, Number value, const QString &caption = QString(),
                       const QString &description = QString(), int type = Auto, KProperty *parent = nullptr)
        : KProperty(name, QVariant(value), caption, description, type, parent)
    {}

    /// A property whose value is a key of \a listData, which it owns. A \a parent takes ownership.
    KProperty(const QByteArray &name, KPropertyListData *listData, const QVariant &value = QVariant(),
              const QString &caption = QString(), const QString &description = QString(),
              int type = ValueFromList, KProperty *parent = nullptr);

    /// A deep copy without parent and set. The children of a composed property are made anew from its value.
    KProperty(const KProperty &prop);

    /// Deletes the children and leaves its parent or set, if it has one.
    ~KProperty();

    QByteArray name() const;
    /// A set keeps finding the property under the name that it had when it was added.
    void setName(const QByteArray &name);

    /// One line: line breaks are spaces here, outer white space is cut.
    QString caption() const;

    inline QString captionOrName() const
    {
        return caption().isEmpty() ? QString::fromLatin1(name()) : caption();
    }

    /// The caption as it was given, with its line breaks.
    QString captionForDisplaying() const;
    void setCaption(const QString &caption);

    /// Shown as tool tip.
    QString description() const;
    void setDescription(const QString &description);

    int type() const;
    /// Changes the type alone. The value stays as it is; a composed property is replaced by that of the new
    /// type.
    void setType(int type);

    QVariant value() const;

    /// The value before the first change since the property was last unmodified; invalid if there is none.
    QVariant oldValue() const;

    enum class ValueOption
    {
        None = 0,
        IgnoreOld = 1, ///< forget the old value; the property counts as unmodified afterwards
        IgnoreComposedProperty =
            2 ///< compare with the plain equality, not with that of the composed property
    };
    Q_DECLARE_FLAGS(ValueOptions, ValueOption)

    /*! Stores \a value and tells the set. Children of a composed property follow.
        Returns false when nothing changed: the property is null or holds this very value already. A value of
        another type is another value (2 and "2"), however alike both look, and so is one that differs only
        behind the decimals that the option "precision" shows. A null and an empty text are one value. */
    bool setValue(const QVariant &value, ValueOptions options = ValueOptions());

    /// True for what means the same: text and number compare equal when the conversion of \a value to the
    /// stored type does. setValue() is stricter.
    bool valueEqualsTo(const QVariant &value, ValueOptions valueOptions = ValueOptions()) const;

    /// Takes back the changes since the property was last unmodified.
    void resetValue();

    /// Null when none was set. Owned by the property.
    KPropertyListData *listData() const;
    /// Takes ownership and deletes the former data; null removes it.
    void setListData(KPropertyListData *list);
    void setListData(const QStringList &keys, const QStringList &names);

    void setIconName(const QString &name);
    QString iconName() const;

    /// Null when there never was a child. Owned by the property.
    const QList<KProperty *> *children() const;
    /// The first child of that name, or null.
    KProperty *child(const QByteArray &name);
    KProperty *parent() const;

    /// Null when the value is not composed. Owned by the property.
    KComposedPropertyInterface *composedProperty() const;
    /// Takes ownership and deletes the former one.
    void setComposedProperty(KComposedPropertyInterface *prop);

    bool isNull() const;

    /// True when this property or one of its descendants changed.
    bool isModified() const;
    /// Clears the flag here and in all descendants; values and old values stay.
    void clearModifiedFlag();

    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    /// Hidden properties have no row in an editor.
    bool isVisible() const;
    void setVisible(bool visible);

    /// False for properties that exist for the user interface alone.
    bool isStorable() const;
    void setStorable(bool storable);

    /// When an editor writes what is typed.
    enum class ValueSyncPolicy
    {
        Editor,   ///< as the view says
        FocusOut, ///< on Enter or when the editor is left
        Auto      ///< with every change
    };
    ValueSyncPolicy valueSyncPolicy() const;
    void setValueSyncPolicy(ValueSyncPolicy policy);

    /*! Sets an option that editors read; a null \a val unsets it (an empty text is not null).

        min, max, minValueText: bounds of numbers, dates and times, and a text to show at the lower bound.
        precision, step: decimals that are shown and step of doubles; step also for integers.
        prefix, suffix: texts around numbers, also in the children of points, sizes and rectangles.
        3State: a bool may be null; yesName, noName, 3rdStateName, nullName: texts of its states.
        extraValueAllowed: a list takes typed values that are not among its keys.
        multiLine: a text editor of several lines; minHeight, maxHeight: its height in lines.
        fileMode: "existingFile", "dirsOnly" or any other value for a file to be written;
        confirmOverwrites: ask before a file is overwritten.
        selectButton: a "..." button that sends the item event "edit" (KPropertyEditorItemEvent).
        readOnlyInternalEditor: the text cannot be typed over; the value changes through the button. */
    void setOption(const char *name, const QVariant &val);

    /// The option of this property, else that of the nearest ancestor that has it, else \a defaultValue.
    QVariant option(const char *name, const QVariant &defaultValue = QVariant()) const;

    /// True when this property or an ancestor has an option.
    bool hasOptions() const;

    /// The same as setValue().
    KProperty &operator=(const QVariant &val);
    /// Copies as the copy constructor does; parent and set of this property stay.
    KProperty &operator=(const KProperty &property);

    /// True for two null properties, and for the same name with equal values.
    bool operator==(const KProperty &prop) const;
    bool operator!=(const KProperty &prop) const;

private:
    // A bool once stood where the options stand now; without this, old calls would compile and do otherwise.
    void setValue(const QVariant &value, bool a1, bool a2 = true) = delete;

    bool holds(const QVariant &value, ValueOptions options) const;
    bool valueChangeAllowed(const QVariant &value, ValueOptions options) const;
    void copyValue(const KProperty &property);

    class Private;
    const std::unique_ptr<Private> d;

    friend class KPropertySet;
    friend class KPropertySetPrivate;
    friend class KPropertySetBuffer;
    friend class KComposedPropertyInterface;
};

KPROPERTYCORE_EXPORT QDebug operator<<(QDebug dbg, const KProperty &p);

Q_DECLARE_OPERATORS_FOR_FLAGS(KProperty::ValueOptions)
