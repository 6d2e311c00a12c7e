#pragma once

#include <orv/samples/SamplesInput.h>
#include <orv/table_model/TableColumn.h>

#include <QMap>

#include <memory>

namespace orv {

/// The samples that rows of other tables refer to by their ids, as two columns: ids as they are kept, and the
/// names that follow from them. Shared by the columns of a sheet.
class SampleNames
{
public:
    void set(const QList<SamplesInput::Entry> &entries);
    [[nodiscard]] QList<int> ids() const { return m_names.keys(); }

    /// The names of a text of ids; "all samples" for an empty one.
    [[nodiscard]] QString namesOf(QStringView ids) const;
    /// Why a text of ids may not stand, or nothing.
    [[nodiscard]] QString problemOf(QStringView ids) const;

    [[nodiscard]] static QString textOf(const QList<int> &ids);
    /// Parts that are no whole numbers are left out.
    [[nodiscard]] static QList<int> idsOf(QStringView text);

    [[nodiscard]] static TableColumn idsColumn(const QString &name,
                                               const std::shared_ptr<SampleNames> &names);
    /// \a idsAt is the place of the column of ids.
    [[nodiscard]] static TableColumn namesColumn(const std::shared_ptr<SampleNames> &names, int idsAt);

private:
    [[nodiscard]] TableCodes codes() const;

    QMap<int, QString> m_names;
    QList<int> m_order;     ///< of the samples
    bool m_isKnown = false; ///< until somebody tells the samples, any id may be one
};

} // namespace orv
