#pragma once

#include <QByteArray>

namespace Lifelike {

/// Whether the benchmarks are only to show that they still run (ORV_BENCHMARK_MOMENT is set): on small data,
/// once.
[[nodiscard]] bool isForAMoment();

/// \a count, or at most a hundred when it is for a moment.
[[nodiscard]] int sized(int count);

/// The JSON text of a workflow with \a samples samples, a protein table and \a steps property cells of 79
/// settings each, as an application writes it.
[[nodiscard]] QByteArray document(int samples, int steps);

/// The JSON text of a workflow with a table of \a count proteins of 60 to 800 residues.
[[nodiscard]] QByteArray proteins(int count);

/// The same \a document with all its values wrong: files that are missing, numbers out of range, texts that
/// mean nothing, patterns that choose no sample.
[[nodiscard]] QByteArray allWrong(const QByteArray &document);

/// The JSON text of one such property cell.
[[nodiscard]] QByteArray settingsCell();

} // namespace Lifelike
