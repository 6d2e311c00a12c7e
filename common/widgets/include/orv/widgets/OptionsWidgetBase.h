#pragma once

#include <orv/core/Result.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QString>
#include <QWidget>

#include <memory>

namespace orv {

/// A table of deconvolution options, one row for each kind of sample. Shows whatever table it is given; what
/// nobody edits comes back as it was set. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT OptionsWidgetBase : public QWidget
{
    Q_OBJECT

public:
    ~OptionsWidgetBase() override;

    /// The table. \a error is HTML and tells why it isn't what the widget shows: what was set is too large
    /// for it, and comes back. \a warning is HTML, a line for each thing that spectra can't be deconvolved
    /// with. Both may be null, and are empty where all is well.
    [[nodiscard]] RowNode getFromUI(QString *error, QString *warning) const;
    void setToUI(const RowNode &table);

    /// Whether spectra can be deconvolved with what the widget shows. Both texts are HTML, a line for each
    /// message, and may be null.
    bool validateUiValues(QString *errors, QString *warnings) const;

    /// What the widget shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

Q_SIGNALS:
    /// Somebody edited; comes as soon as the event has been handled, so that listeners may do anything.
    void optionsChanged();

protected:
    /// \a adduct is that of new rows.
    OptionsWidgetBase(const QString &title, const QString &kind, const QString &adduct, QWidget *parent);

private:
    void show(const RowNode &table);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
