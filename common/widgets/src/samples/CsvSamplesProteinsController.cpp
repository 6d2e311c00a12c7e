#include "orv/widgets/CsvSamplesProteinsController.h"

#include "SamplesProteinsCsv.h"

#include <QPointer>

namespace orv {

class CsvSamplesProteinsController::Private
{
public:
    PreFlightCheck preFlight;
    PostFlightCheck postFlight;
};

CsvSamplesProteinsController::CsvSamplesProteinsController(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

CsvSamplesProteinsController::~CsvSamplesProteinsController() = default;

void CsvSamplesProteinsController::setCsvImportExtraPreFlightCheck(PreFlightCheck check)
{
    d->preFlight = std::move(check);
}

void CsvSamplesProteinsController::setCsvImportExtraPostFlightCheck(PostFlightCheck check)
{
    d->postFlight = std::move(check);
}

Error CsvSamplesProteinsController::importCSV(const QString &path)
{
    // A check may show a box, and a listener may do anything: this may be gone behind each of them.
    const QPointer<CsvSamplesProteinsController> self = this;
    Result<SamplesProteinsCsv> csv = SamplesProteinsCsv::read(path);
    if (csv.hasError()) {
        Error error = csv.ecatch();
        Q_EMIT importFailed(error);
        return error;
    }
    const PostFlightCheck postFlight = d->postFlight;
    if (const PreFlightCheck preFlight = d->preFlight; preFlight && !preFlight(csv->columns()))
        return Error::NoError;
    if (self)
        Q_EMIT headerImported(csv->header());
    if (self)
        Q_EMIT tableImported(csv->table());
    if (const RowNode proteins = csv->proteins(); self && proteins.getChildListSize() > 0)
        Q_EMIT newProteinsDetected(proteins);
    if (const QList<SamplePathAndName> files = csv->files(); self && !files.isEmpty())
        Q_EMIT newFilePathsDetected(files);
    Error error = self && postFlight ? postFlight() : Error(Error::NoError);
    if (self && error.hasError())
        Q_EMIT importFailed(error);
    return error.hasError() ? error.ecatch() : Error(Error::NoError);
}

} // namespace orv
