#pragma once

#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QHash>
#include <QString>

class KPropertyEditorView;

namespace orv {

/// Where a person stands in a tree of settings: folds, scroll position and current property. Taken before the
/// tree is built anew, and gone back to after. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TreePlace
{
public:
    explicit TreePlace(const KPropertyEditorView &view);

    /// What isn't there any more is passed over; \a current, if given, is gone to in place of the old one.
    void restore(KPropertyEditorView *view, const QByteArray &current = {}) const;

    /// Whether each group is unfolded, by its caption.
    using Folds = QHash<QString, bool>;
    [[nodiscard]] static Folds folds(const KPropertyEditorView &view);
    /// Groups without an entry stay as they are.
    static void setFolds(KPropertyEditorView *view, const Folds &folds);
    /// Unfolds the group of a property and stands at its row; false if there is none.
    static bool goTo(KPropertyEditorView *view, const QByteArray &name);

private:
    Folds m_folds;
    QByteArray m_current;
    int m_scroll = 0;
};

} // namespace orv
