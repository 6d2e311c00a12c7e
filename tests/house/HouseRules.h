#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

struct Floor;

/// The rules of the source tree that no compiler checks. Each rule answers what breaks it, one text for each
/// place; the root is the project's folder, or an invented one in the tests of the rules.
class HouseRules
{
public:
    explicit HouseRules(const QString &root);

    /// Includes that lead from a floor to one above or to a private header of another, two modules of one
    /// floor that include each other, and files that stand on no floor.
    [[nodiscard]] QStringList upwardIncludes() const;

    /// Calls of a facade's functions from below the floor on which their bodies stand.
    [[nodiscard]] QStringList upwardCalls() const;

    [[nodiscard]] QStringList headersWithoutPragmaOnce() const;

    /// Sources that include another file before their own header, which therefore needn't compile alone.
    [[nodiscard]] QStringList ownHeadersThatComeLate() const;

    /// Sources and public headers that no CMakeLists.txt names, and private headers that nobody includes.
    [[nodiscard]] QStringList filesThatAreNotBuilt() const;

    /// Sources of more than 600 lines, but for those that have a reason, and reasons that aren't needed.
    [[nodiscard]] QStringList filesThatAreTooLong() const;

    /// Folders with sources that don't say in a README what they hold.
    [[nodiscard]] QStringList foldersWithoutReadme() const;

    static constexpr int kMaxLines = 600;

private:
    struct Include
    {
        QString file;   ///< path below the root
        QString target; ///< path below the root
        int line = 0;
    };

    void indexPublicHeaders();
    /// By the names of a facade's functions, the lowest of those that an overload stands on.
    [[nodiscard]] QHash<QString, const Floor *> floorsOfBodies(const QString &facade) const;
    [[nodiscard]] QString resolved(const QString &file, const QString &included) const;
    [[nodiscard]] QList<Include> includes() const;
    [[nodiscard]] bool isNamedInCMake(const QString &file) const;
    [[nodiscard]] QString read(const QString &file) const;

    QString m_root;
    QStringList m_files;                     ///< sources and headers below the root, without the tests
    QStringList m_testFiles;                 ///< those of the tests
    QHash<QString, QString> m_publicHeaders; ///< by the path with which they are included
};
