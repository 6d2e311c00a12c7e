#pragma once

#include <orv/core/Export.h>
#include <orv/table/VariantItems.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <memory>

namespace orv {

/// The value form of a workflow document: names of tabs and columns, raw cells, and the metadata objects. It
/// holds any document, old or malformed, without interpreting it, and never reports an error: what can't be
/// read is logged and stays empty. Copies are cheap. Safe to use from several threads as any Qt value.
class ORV_WORKFLOW_EXPORT PropertyEditorContent
{
public:
    /// Where a workflow is at home. Stored in files, never renumber.
    enum class ContentMode
    {
        DesktopMode = 0,
        TalvaneMode = 1,
    };

    /// Tab name; names of its columns; its cells row by row.
    using Tab = QPair<QString, QPair<QStringList, VariantItems>>;
    using Tabs = QList<Tab>;

    PropertyEditorContent();
    explicit PropertyEditorContent(const Tabs &tabs);
    PropertyEditorContent(const Tabs &tabs, const QJsonObject &metadata,
                          const QJsonObject &extendedMetadataInfo);
    /// From the UTF-8 JSON text of a document.
    explicit PropertyEditorContent(const QByteArray &json);
    /// From the object of a document that is already parsed.
    explicit PropertyEditorContent(const QJsonObject &document);

    /// Copies leave the custom user out: a copy starts with none, and an assignment keeps the target's own.
    PropertyEditorContent(const PropertyEditorContent &other);
    PropertyEditorContent &operator=(const PropertyEditorContent &other);
    ~PropertyEditorContent();

    [[nodiscard]] Tabs tabsAndContent() const;
    [[nodiscard]] QJsonObject metadata() const;
    [[nodiscard]] QJsonObject extendedMetadataInfo() const;

    /// The name that toJson stamps with; empty means the current user of the operating system.
    [[nodiscard]] QString customUser() const;
    void setCustomUser(const QString &name);

    /// The object of the document as it is held, without a new stamp.
    [[nodiscard]] QJsonObject document() const;

    /// The indented text of the document, stamped: "user", "created" and "version" are renewed at top level
    /// and in every cell, and so every document written by this function has the current version.
    [[nodiscard]] QByteArray toJson() const;
    /// The document that toJson writes, for those who would only parse the text.
    [[nodiscard]] QJsonObject toJsonObject() const;

private:
    void assignDocument(const QJsonObject &document);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv
