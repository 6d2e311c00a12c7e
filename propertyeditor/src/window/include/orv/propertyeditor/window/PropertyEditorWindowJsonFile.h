#pragma once

#include <orv/core/Error.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/widgets/Export.h>

#include <QCoreApplication>
#include <QString>

#include <memory>

namespace orv {

/// A workflow or the preset of a single tab on the disk, as the window reads and writes it. Knows no window.
/// Any thread, one at a time.
class ORV_PROPERTY_EDITOR_EXPORT PropertyEditorWindowJsonFile
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorWindowJsonFile)

public:
    explicit PropertyEditorWindowJsonFile(const QString &path);
    ~PropertyEditorWindowJsonFile();
    Q_DISABLE_COPY_MOVE(PropertyEditorWindowJsonFile)

    // False with the reasons in the log and in error(); what is loaded into then stays as it was. Stamps are
    // renewed by what is saved. A file is replaced whole or stays, and stays if it holds a newer workflow.
    bool loadTabsFromJson(PropertyEditorContent *content);
    bool saveTabsToJson(const PropertyEditorContent &content);
    /// A preset: content of one tab, without metadata.
    bool loadTabFromJson(PropertyEditorContent *content);
    /// The first tab; false without one.
    bool saveTabToJson(const PropertyEditorContent &content);

    /// What the last loadTabsFromJson() dropped of the file, as the value form has no place for it.
    [[nodiscard]] const QList<Loss> &losses() const { return m_losses; }
    /// What that drops of the object of a document.
    [[nodiscard]] static QList<Loss> lossesOf(const QJsonObject &document);

    /// Why the last of these failed.
    [[nodiscard]] const Error &error() const { return m_error; }

private:
    [[nodiscard]] bool read(QJsonObject *object);
    [[nodiscard]] bool written(const Error &error);

    const std::unique_ptr<const QString> m_path;
    Error m_error;
    QList<Loss> m_losses;
};

} // namespace orv
