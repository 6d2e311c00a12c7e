#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>
#include <QObject>
#include <QString>

class KProperty;
QT_FORWARD_DECLARE_CLASS(QUrl)

namespace orv {

namespace PropertyEditor {
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// Answers to questions about a workflow as a whole. All functions are static; those that take a document or
/// an item run on its thread, all others on any.
class ORV_WORKFLOW_EXPORT PropertyEditorUtils
{
    Q_GADGET

public:
    /// How many cores an analysis may use.
    enum class MulticoreMode : int
    {
        Light = 0,  ///< one
        Normal = 1, ///< all but two, at least one
        Heavy = 2,  ///< all
    };
    Q_ENUM(MulticoreMode)

    /// Rewrites the glycan databases that stand in square brackets in the glycan text of a property's value
    /// \a json to absolute paths; relative ones are taken from the folder in which \a baseUrl lies.
    static void updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json);

    /// The same for the glycan properties of an item, and of all items of settings in a document; null is
    /// passed over.
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::KeyValueItem *item, const QUrl &baseUrl);
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::Content *content, const QUrl &baseUrl);

    /// Tells \a property the base against which resolveGlycansStringsFromWflw resolves its paths.
    static void updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl);
    /// The glycan text of a document with single backslashes and absolute paths.
    [[nodiscard]] static QString resolveGlycansStringsFromWflw(const QString &text,
                                                               const KProperty *property);
};

} // namespace orv
