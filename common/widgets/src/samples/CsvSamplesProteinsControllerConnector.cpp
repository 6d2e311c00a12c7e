#include "orv/widgets/CsvSamplesProteinsControllerConnector.h"

#include <orv/widgets/CsvSamplesProteinsController.h>
#include <orv/widgets/CustomFieldsImportWidget.h>

namespace orv {

void CsvSamplesProteinsControllerConnector::connect(CsvSamplesProteinsController *controller,
                                                    CustomFieldsImportWidget *widget)
{
    using Controller = CsvSamplesProteinsController;
    using Widget = CustomFieldsImportWidget;
    QObject::connect(widget, &Widget::importWanted, controller, &Controller::importCSV);
    QObject::connect(controller, &Controller::headerImported, widget, &Widget::setHeaderContent);
    QObject::connect(controller, &Controller::tableImported, widget, &Widget::setTableContent);
    QObject::connect(controller, &Controller::importFailed, widget, &Widget::showError);
}

} // namespace orv
