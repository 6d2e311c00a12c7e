#pragma once

#include <QMetaEnum>
#include <QString>

namespace Internal {

/// The enumerator as it is written in code; empty for a number that is none.
template<typename Enum>
QString enumKey(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

} // namespace Internal
