#pragma once

#include <KPropertyWidgetsFactory.h>
#include <orv/widgets/Export.h>

#include <QUrl>

namespace orv {

/// How references read in the tree: as they are stored, and below the folder of the document from there on.
/// What is no reference reads as text. Holds no state. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ResourceReferenceDelegateBase : public KPropertyEditorCreatorInterface,
                                                                 public KPropertyValueDisplayInterface,
                                                                 public KPropertyValuePainterInterface
{
public:
    ResourceReferenceDelegateBase() = default;
    ~ResourceReferenceDelegateBase() override;

    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
    /// Long paths lose their middle.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The text of a cell and of its editor.
    [[nodiscard]] static QString displayText(const QVariant &value, const QUrl &baseUrl);
};

} // namespace orv
