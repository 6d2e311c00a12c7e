#pragma once

#include <orv/resources/ResourceReference.h>

#include <QList>
#include <QString>
#include <QStringView>

/// References in the cells of tables that people edit.
namespace orv::ReferenceTexts {

/// "a.csv; b.csv", with quotes where a path needs them.
[[nodiscard]] QString toText(const QList<ResourceReferenceSPtr> &references);
/// What is no reference is left out.
[[nodiscard]] QList<ResourceReferenceSPtr> fromText(const QString &text);

/// Why a text is no reference, or no list of them; empty where nothing is wrong.
[[nodiscard]] QString problem(QStringView text);
[[nodiscard]] QString problemOfList(QStringView text);

} // namespace orv::ReferenceTexts
