#pragma once

#include <QList>
#include <QString>

namespace orv {

/// A library that the application is made of.
struct LinkedLibrary
{
    QString name;
    QString version; ///< of the one that runs; empty where it tells none
    QString licence;
};

/// In alphabetical order, the parts of Qt as one.
[[nodiscard]] QList<LinkedLibrary> linkedLibraries();

} // namespace orv
