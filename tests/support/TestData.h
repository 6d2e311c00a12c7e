#pragma once

#include <QByteArray>
#include <QString>

/// Files that tests read. A missing one fails the test that asks for it.
namespace TestData {

/// Path of a file below tests/data.
[[nodiscard]] QString path(const QString &name);
/// Path of a file below examples.
[[nodiscard]] QString examplePath(const QString &name);
/// All bytes of a file; aborts the test program with its name when it can't be read.
[[nodiscard]] QByteArray read(const QString &path);

} // namespace TestData
