#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/widgets/Export.h>

#include <QMainWindow>

namespace orv {

/// Which application of the platform this is. A plain value.
class ORV_PROPERTY_EDITOR_EXPORT ApplicationInfo
{
public:
    explicit ApplicationInfo(ApplicationType type = ApplicationType::Mirel)
        : m_type(type)
    {}

    [[nodiscard]] ApplicationType applicationType() const { return m_type; }
    [[nodiscard]] bool isApplication(ApplicationType type) const { return m_type == type; }
    /// By the number, which hosts and files know.
    [[nodiscard]] bool isApplication(int type) const { return int(m_type) == type; }

private:
    ApplicationType m_type;
};

/// The main window of an application, under which windows and dialogs open. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT CoreMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit CoreMainWindow(const ApplicationInfo &info = ApplicationInfo(), QWidget *parent = nullptr);
    ~CoreMainWindow() override;

    /// The one that was made last and still exists; null where there is none.
    [[nodiscard]] static CoreMainWindow *getMainWindow();

    /// Above which dialogs for \a widget open: that one, or else the widget's own window; null without both.
    [[nodiscard]] static QWidget *windowFor(const QWidget *widget);

    [[nodiscard]] const ApplicationInfo &appInfo() const { return m_info; }

private:
    ApplicationInfo m_info;
};

} // namespace orv
