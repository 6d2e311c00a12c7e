#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>

#include <QString>
#include <QStringList>

#include <memory>

/// The validators of this library by their names.
namespace orv::PropertyEditor::Validators {

/// Short names, those of the default set first and in its order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList names();

/// Those of the default set, in its order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList defaultNames();

/// The validator of that name, which is that of its class with or without "Validator", in any case; null for
/// any other text.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::unique_ptr<AbstractValidator> create(const QString &name);

/// The default set in its order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<AbstractValidator *> createDefaultSet();

/// The short name of a validator of this library; "Additional" for one of an application.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString nameOf(const AbstractValidator &validator);

} // namespace orv::PropertyEditor::Validators
