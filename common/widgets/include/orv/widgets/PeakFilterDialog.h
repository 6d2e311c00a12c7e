#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QString>

#include <memory>

namespace orv {

/// Edits the diagnostic peaks that select spectra for a search. As text they are lines of an m/z and an
/// optional name behind it, such as "204.0867 HexNAc"; a line that reads otherwise is shown and kept.
/// Changes nothing itself. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PeakFilterDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PeakFilterDialog(const QString &text, QWidget *parent = nullptr);
    ~PeakFilterDialog() override;

    /// The text that was given while nothing is edited.
    [[nodiscard]] QString peakFilter() const;

    /// What the dialog shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

    /// Shows the dialog and waits. The edited text, or \a text where it was cancelled; \a ok, which may be
    /// null, tells which.
    [[nodiscard]] static QString getPeakFilterFromUser(const QString &text, QWidget *parent,
                                                       bool *ok = nullptr);

private:
    void addCommonIons();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
