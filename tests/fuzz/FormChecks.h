#pragma once

#include <QByteArray>
#include <QString>

/// What must hold for any bytes whatever, shared by the fuzzers and the tests that run their corpus. Each
/// check answers an empty text when all is well, and otherwise what is wrong.
namespace FormChecks {

/// JSON text is either refused with a place and a remedy, or kept whole.
[[nodiscard]] QString checkJson(const QByteArray &bytes);

/// The value form reads back what it writes, apart from the stamps.
[[nodiscard]] QString checkValueForm(const QByteArray &bytes);

/// The object form refuses a document or reads back what it writes, and tells of all that it drops.
[[nodiscard]] QString checkObjectForm(const QByteArray &bytes);

/// A table is refused whole or reads back what it writes, as text and as parsed document.
[[nodiscard]] QString checkRowNode(const QByteArray &bytes);

/// Comma-separated text reads the same in pieces of any size, and its rows read back from what is written.
[[nodiscard]] QString checkCsv(const QByteArray &bytes);

/// Text of the clipboard and of files becomes cells that read back as they are written; a paste is undone and
/// redone whole, and what an import lets pass is allowed.
[[nodiscard]] QString checkTableText(const QByteArray &bytes);

/// The table of samples is refused with a word, or written as it was; after a change it reads back as
/// written.
[[nodiscard]] QString checkSamples(const QByteArray &bytes);

/// A reference is refused with a reason or survives its text, and so do the names in a list of samples.
[[nodiscard]] QString checkReference(const QByteArray &bytes);

/// FASTA is refused with a place and a remedy, or its sequences read back from what is written.
[[nodiscard]] QString checkFasta(const QByteArray &bytes);

/// Formulas, compositions, digestion rules, sequences and inclusion lists are refused with a place, or read
/// back what they write.
[[nodiscard]] QString checkChemistry(const QByteArray &bytes);

/// A cell of settings is refused with a word or loaded, with each part in the set or told as lost; what is
/// then written reads back equal.
[[nodiscard]] QString checkPropertySet(const QByteArray &bytes);

/// Rules with the first line as parameter judge the rest in both modes: what is refused is refused with a
/// word.
[[nodiscard]] QString checkRules(const QByteArray &bytes);

/// A parameter file of the search engine is refused with a place, or its settings are written into a file
/// that reads back as them.
[[nodiscard]] QString checkXenoset(const QByteArray &bytes);

/// A parameter file of the preview engine reads back as it is written.
[[nodiscard]] QString checkPrv(const QByteArray &bytes);

/// MGF is refused with a place and a remedy, or its queries are the same in pieces of any size.
[[nodiscard]] QString checkMgf(const QByteArray &bytes);

/// Lines as paths, and as the entries of a folder: what the disk shows, names tell too, and it has the kind
/// of its format. Walks end.
[[nodiscard]] QString checkVendorPaths(const QByteArray &bytes);

} // namespace FormChecks
