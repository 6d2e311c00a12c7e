#pragma once

#include <QList>

QT_FORWARD_DECLARE_CLASS(QAbstractButton)

/// Letters by which buttons that stand together are pressed with Alt. GUI thread.
namespace orv::ButtonLetters {

/// Marks a letter in each text that has none marked, the beginning of a word if it is free. Who compares
/// texts has to take the marks out.
void give(const QList<QAbstractButton *> &buttons);

} // namespace orv::ButtonLetters
