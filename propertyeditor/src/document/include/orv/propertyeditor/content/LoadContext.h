#pragma once

#include <orv/core/Export.h>

#include <QJsonValue>
#include <QString>

namespace orv {
class LossObserver;
}

namespace orv::PropertyEditor {

/// Where in a document a load is, and who wants to hear of what it drops. Without an observer it costs
/// nothing. A plain value; the observer isn't owned.
class ORV_WORKFLOW_EXPORT LoadContext
{
public:
    LoadContext() = default;
    explicit LoadContext(LossObserver *observer, QString pointer = {})
        : m_observer(observer)
        , m_pointer(std::move(pointer))
    {}

    /// The context of a member or an element of the value at this place.
    [[nodiscard]] LoadContext member(const QString &key) const;
    [[nodiscard]] LoadContext element(qsizetype index) const;

    /// The context of one column of the cells of the tab at this place, whose element() counts rows: in the
    /// file cell number row * \a columnCount + \a column.
    [[nodiscard]] LoadContext column(qsizetype column, qsizetype columnCount) const;

    /// Tells the observer, if there is one, that the member \a key here is dropped.
    void lost(const QString &key, const QString &what, const QString &why) const;

    /// Tells the observer, if there is one, that the member \a key here reads as another value than is
    /// stored; without \a why both are named.
    void changed(const QString &key, const QString &what, const QJsonValue &stored, const QJsonValue &read,
                 const QString &why = {}) const;

    [[nodiscard]] bool isObserved() const { return m_observer; }

    /// The JSON pointer of this place; empty while nobody observes.
    [[nodiscard]] QString pointer() const { return m_pointer; }

private:
    LossObserver *m_observer = nullptr;
    QString m_pointer;
    qsizetype m_offset = 0;
    qsizetype m_stride = 1;
};

} // namespace orv::PropertyEditor
