#pragma once

#include <QJsonObject>

namespace orv::WrittenForm {

/// Whether \a json is what SamplesAndTracesContent would write of it, and is read without an error and
/// without a warning. Looks at types and at the form of references alone, a fraction of the work of reading
/// them. May answer false for such an object too, where one is rare.
[[nodiscard]] bool isSamplesTable(const QJsonObject &json);

} // namespace orv::WrittenForm
