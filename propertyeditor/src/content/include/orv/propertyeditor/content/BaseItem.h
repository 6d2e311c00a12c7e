#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/content/LoadContext.h>

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

namespace orv::PropertyEditor {

/// One cell of a document: the common fields, and the interface of all kinds of cells. Owned by its
/// ItemSubGroup. Lives on the thread that made it.
class ORV_WORKFLOW_EXPORT BaseItem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(orv::ORV_QEnumsBaseItemType::BaseItemType type READ type)

public:
    explicit BaseItem(BaseItemType type);
    ~BaseItem() override;

    /// The JSON object of the cell. The body here writes the common keys.
    Q_INVOKABLE virtual QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const = 0;

    /// Replaces the item by what \a json holds. The body here reads the common keys, and never fails.
    virtual Error assignFromJson(const QJsonObject &json, ValidationOptions options) = 0;

    /// The URL against which relative file references of the item are resolved.
    virtual void setBaseUrl(const QUrl &url);

    Q_INVOKABLE virtual void clear() = 0;

    /// assignFromJson, telling \a context of what is dropped; the body here drops nothing by itself. Nobody
    /// keeps \a context.
    virtual Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context);

    /// Why toJson would write the cell without something that it holds; a success if it writes all.
    [[nodiscard]] virtual Error checkWritable() const;

    /// A new item with what toJson(\a flag) writes, without a base URL. Fails as a load of that would.
    [[nodiscard]] virtual Result<std::unique_ptr<BaseItem>> copied(PropertyConversionFlag flag) const;

    [[nodiscard]] BaseItemType type() const { return m_type; }
    [[nodiscard]] QString typeString() const { return typeToString(m_type); }
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QString title() const { return m_title; }
    /// Compact JSON text of the cell's stamp, as read.
    [[nodiscard]] QString metadata() const { return m_metadata; }

    /// Unknown for an empty text, and, with a warning, for a text that is no type.
    [[nodiscard]] static BaseItemType typeFromString(const QString &text);
    [[nodiscard]] static QString typeToString(BaseItemType type);
    [[nodiscard]] static QMap<BaseItemType, QString> typeNameMap();
    /// In ascending order of the types' numbers.
    [[nodiscard]] static QStringList typeNames();

Q_SIGNALS:
    /// The item was loaded anew.
    void reset();
    /// What toJson writes changes: sent by every function that edits the cell, those that announce nothing
    /// else included, so that nobody misses an edit. A load or clear() may be half done by then.
    void changed();

private:
    BaseItemType m_type;
    QString m_name;
    QString m_metadata;
    QString m_title;
};

} // namespace orv::PropertyEditor
