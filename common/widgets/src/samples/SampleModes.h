#pragma once

#include <orv/samples/SamplesInput.h>

#include <QList>
#include <QStringList>

/// Which columns of samples somebody needs who uses them for something.
namespace orv::SampleModes {

/// The names of columns that none of \a modes needs; none for no modes.
[[nodiscard]] QStringList unneededColumns(const QList<SamplesInput::Mode> &modes);

/// Whether one of them uses traces and peaks; true for no modes.
[[nodiscard]] bool needTraces(const QList<SamplesInput::Mode> &modes);

} // namespace orv::SampleModes
