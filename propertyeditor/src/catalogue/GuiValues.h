#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace orv {

/// The values of properties that are made of Qt Gui's types. They are few, and loading Qt Gui takes as long
/// as starting a program without it, so that it lies behind a library of its own, which is loaded when the
/// first such value comes.
struct GuiValues
{
    struct Font
    {
        QString family;
        double size = 0; ///< in points, or in whole pixels
        bool isInPixels = false;
        bool isBold = false;
        bool isItalic = false;
        bool isStrikeOut = false;
        bool isUnderline = false;
    };

    QVariant (*font)(const Font &font);
    Font (*fontOf)(const QVariant &value);
    /// Invalid for a name that isn't known.
    QVariant (*color)(const QString &name);
    /// Invalid for what is no picture. This and the next are invalid in a program without a screen, which
    /// can't hold them.
    QVariant (*pixmap)(const QByteArray &bytes);
    QVariant (*cursor)(int shape);
    /// The picture as a file of the format PNG; empty where that fails.
    QByteArray (*pngOf)(const QVariant &pixmap);
};

/// Null, and an entry in the log, where the library isn't installed beside this one. Any thread.
[[nodiscard]] const GuiValues *guiValues();

} // namespace orv
