#pragma once

#include <orv/core/Export.h>

#include <QJsonValue>
#include <QList>
#include <QString>

namespace orv {

/// One thing that a load drops by its rules: where it stood, what it was, and why it isn't kept.
struct Loss
{
    QString path; ///< JSON pointer into the document, such as "/tabs/0/cells/2/extra"
    QString what;
    QString why;
    /// Where a value isn't dropped but reads as another: the two. Undefined otherwise.
    QJsonValue stored = QJsonValue::Undefined;
    QJsonValue read = QJsonValue::Undefined;

    [[nodiscard]] bool isChange() const { return !read.isUndefined(); }

    bool operator==(const Loss &) const = default;
};

/// Receives what a load drops, so that a host can show it: a load never loses silently.
class ORV_WORKFLOW_EXPORT LossObserver
{
public:
    LossObserver() = default;
    virtual ~LossObserver();
    Q_DISABLE_COPY_MOVE(LossObserver)

    virtual void lost(const Loss &loss) = 0;
};

/// Keeps what it is told.
class ORV_WORKFLOW_EXPORT LossCollector : public LossObserver
{
public:
    ~LossCollector() override;

    void lost(const Loss &loss) override { m_losses.append(loss); }
    [[nodiscard]] QList<Loss> losses() const { return m_losses; }

private:
    QList<Loss> m_losses;
};

/// \a key as a token of a JSON pointer (RFC 6901).
[[nodiscard]] ORV_WORKFLOW_EXPORT QString jsonPointerToken(const QString &key);

} // namespace orv
