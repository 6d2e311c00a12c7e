#pragma once

#include <orv/propertyeditor/workbench/SettingIndex.h>
#include <orv/widgets/Export.h>

#include <QObject>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv {

class Workbench;
struct DocumentState;

/// Searches the settings of all tabs by what stands in their captions, names, explanations and values: an
/// entry of the menu Edit, and a panel with the hits. What a jump unfolds is folded again when the search is
/// left. A child of its workbench. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT FindSettings : public QObject
{
    Q_OBJECT

public:
    explicit FindSettings(Workbench *workbench);
    ~FindSettings() override;

    using Filter = std::function<bool(const SettingPlace &place)>;

    /// The filters that others know about; null takes one away. Asked for each hit, so quick; setting it
    /// again searches anew. \a reason tells why there is none, where that is another one than that nobody
    /// has checked the workflow.
    void setHasFinding(const Filter &filter, const QString &reason = {});
    void setDiffersFromSecond(const Filter &filter);

    /// Until the next save or document, what changed is told by a workflow file, which is read in the
    /// background: for a document that comes from elsewhere than the file that it belongs to.
    void compareWithFile(const QString &file);

    [[nodiscard]] QAction *action() const;

Q_SIGNALS:
    /// What the file has that was asked for.
    void fileRead(const orv::DocumentState &saved);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
