#pragma once

#include <orv/samples/SamplesInput.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QSet>

#include <functional>

namespace orv {

/// The JSON objects of samples that people edit: those of rows that nobody has edited since stay as they are,
/// so that an edit costs what it is about.
class WrittenSamples
{
public:
    using Sample = SamplesInput::SampleWithCustomColumns;

    /// The type of column that \a value fits into; empty for what no cell holds.
    [[nodiscard]] static QString columnType(const QJsonValue &value);
    [[nodiscard]] static QJsonObject written(const Sample &sample);
    /// Documents that don't list their custom columns show what they have by the members of their samples.
    [[nodiscard]] static QList<SamplesInput::CustomColumn> impliedColumns(const QJsonArray &samples);

    /// Everything is written anew.
    void forget();
    void forget(const QList<quint32> &rows);

    /// The samples of \a rows in their order, which \a sample answers.
    [[nodiscard]] const QJsonArray &array(const QList<quint32> &rows,
                                          const std::function<Sample(quint32 row)> &sample);
    /// Those of the array.
    [[nodiscard]] const QList<SamplesInput::CustomColumn> &impliedColumns();

private:
    void writeRows(const QList<quint32> &rows, const std::function<Sample(quint32 row)> &sample);

    QList<quint32> m_rows;
    QJsonArray m_array; ///< of the rows
    QSet<quint32> m_edited;
    QList<SamplesInput::CustomColumn> m_implied;
    bool m_isImpliedKnown = false;
};

} // namespace orv
