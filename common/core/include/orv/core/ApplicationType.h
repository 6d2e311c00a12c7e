#pragma once

namespace orv {

/// The applications of the platform. A host tells which one it is; a project file tells which one opens it.
/// Stored in files, never renumber; a number that is no enumerator is an application that this version
/// doesn't know.
enum class ApplicationType : int
{
    None = 0,
    Senthia = 1,
    Karvon = 3,
    Dravik = 4,
    Intact = 5,
    Oligo = 6,
    Mirel = 7, ///< the desktop application, which runs every document
    Ostrale = 9,
    KarvonSearch = 11, ///< the search engine behind Karvon, by whose rules its advanced settings are read
    Preview = 12,
    Talvane = 15, ///< the server's application, which runs every document
    IcIef = 18,
    MultiDocReport = 19,
    Trenq = 25,
};

} // namespace orv
