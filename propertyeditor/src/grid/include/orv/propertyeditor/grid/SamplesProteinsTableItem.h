#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>
#include <orv/samples/SamplePathAndName.h>

#include <QList>
#include <QMap>
#include <QVariant>

#include <functional>
#include <optional>

namespace orv {

class CsvSamplesProteinsController;
class CustomFieldsImportWidget;

/// A column of samples and proteins that were imported from a text file. Tells the other columns what it
/// found, and follows nobody.
class ORV_PROPERTY_EDITOR_EXPORT SamplesProteinsTableItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    /// What an import found, one of the two at a time.
    struct InternalMessage
    {
        std::optional<QJsonObject> proteins; ///< the JSON form of their table
        std::optional<QList<SamplePathAndName>> newSampleFiles;
    };

    explicit SamplesProteinsTableItem(GridCommunicationManager *manager);
    ~SamplesProteinsTableItem() override;
    Q_DISABLE_COPY_MOVE(SamplesProteinsTableItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    void messageReceived(const GridMessage &message) override;

    void importCSV(const QString &path);
    /// Both run around an import, see CsvSamplesProteinsController.
    void setCsvImportExtraPreFlightCheck(const std::function<bool(QMap<QString, QList<QVariant>>)> &check);
    void setCsvImportExtraPostFlightCheck(const std::function<Error()> &check);

    /// The two tables in the value of the property; empty ones where it lacks them. Both may be null.
    static void getHeaderAndTable(const QJsonObject &value, QJsonObject *header, QJsonObject *table);
    /// As SamplesProteinsColumns::columnNames().
    [[nodiscard]] static Result<QStringList> columnNames(const QJsonObject &value, const QString &type);
    /// The table of a report: a row of headings, each with its attributes as lines of HTML, and the rows.
    [[nodiscard]] static QList<QList<QVariant>> toReportModuleStructure(const QJsonObject &value);

protected:
    Error setContentInternal() override;

private:
    void send(const InternalMessage &message);

    ItemWidget<CustomFieldsImportWidget> m_widget;
    CsvSamplesProteinsController *m_controller; ///< this item's child
};

} // namespace orv

Q_DECLARE_METATYPE(orv::SamplesProteinsTableItem::InternalMessage)
