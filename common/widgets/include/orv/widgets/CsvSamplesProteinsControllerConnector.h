#pragma once

#include <orv/widgets/Export.h>

namespace orv {

class CsvSamplesProteinsController;
class CustomFieldsImportWidget;

/// Brings a controller and a widget together: files that somebody wants to import go to the controller, what
/// it reads and why it can't to the widget. Either may go first.
class ORV_PROPERTY_EDITOR_EXPORT CsvSamplesProteinsControllerConnector
{
public:
    static void connect(CsvSamplesProteinsController *controller, CustomFieldsImportWidget *widget);
};

} // namespace orv
