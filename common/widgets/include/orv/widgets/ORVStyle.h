#pragma once

#include <orv/widgets/DisplayString.h>
#include <orv/widgets/Export.h>

#include <QMap>
#include <QMessageBox>

#include <optional>

namespace orv {

/// Message boxes, and the layout of the platform's windows. GUI thread.
///
/// \code
///     const auto answer = ORVStyle::question(this, tr("Removing tab"), tr("Are you sure?"),
///                                            QMessageBox::Yes | QMessageBox::No);
/// \endcode
/// A box that is closed without a choice gives its escape button: Cancel, else No, else the only one.
class ORV_PROPERTY_EDITOR_EXPORT ORVStyle
{
public:
    using Button = QMessageBox::StandardButton;
    using Buttons = QMessageBox::StandardButtons;
    using ButtonTexts = QMap<Button, QString>;

    /// \a texts replace what stands on buttons; without a \a defaultButton Enter presses the escape button of
    /// a question and the only button of others. \a details can be unfolded and copied; \a below stands under
    /// the buttons, for who wants to know more, and goes with the box.
    static Button question(QWidget *parent, const QString &title, const DisplayString &text,
                           Buttons buttons = QMessageBox::Yes | QMessageBox::No,
                           const ButtonTexts &texts = {}, Button defaultButton = QMessageBox::NoButton,
                           const QString &details = {}, QWidget *below = nullptr);
    static Button warning(QWidget *parent, const QString &title, const DisplayString &text,
                          Buttons buttons = QMessageBox::Ok, const ButtonTexts &texts = {},
                          Button defaultButton = QMessageBox::NoButton, const QString &details = {});
    static Button critical(QWidget *parent, const QString &title, const DisplayString &text,
                           Buttons buttons = QMessageBox::Ok, const ButtonTexts &texts = {},
                           Button defaultButton = QMessageBox::NoButton, const QString &details = {});
    static Button information(QWidget *parent, const QString &title, const DisplayString &text,
                              Buttons buttons = QMessageBox::Ok, const ButtonTexts &texts = {},
                              Button defaultButton = QMessageBox::NoButton, const QString &details = {});

    /// Whether windows have the platform's layout with tool bars on top, or else rows of buttons below. The
    /// setting "ORV/StyleEnabled", true at first, unless setEnabled() told.
    [[nodiscard]] static bool isEnabled();
    /// Nothing to go by the setting again. For windows that are made afterwards.
    static void setEnabled(std::optional<bool> isEnabled);
};

} // namespace orv
