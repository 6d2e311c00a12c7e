#pragma once

#include <orv/resources/ResourceReference.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QUrl>

namespace orv {

class SampleFileChecker;
class SamplesAndTracesTables;

/// What is told beside the cells of samples: their ids, and which of their files aren't there.
class SampleNotes
{
    Q_DECLARE_TR_FUNCTIONS(SampleNotes)

public:
    /// Both outlive the notes.
    SampleNotes(const SamplesAndTracesTables &tables, SampleFileChecker &checker);

    /// The folder that relative files count from.
    void setBaseUrl(const QUrl &baseUrl);

    /// Empty where there is nothing to tell, or the answer is still awaited.
    [[nodiscard]] QString note(quint32 row, int column) const;

private:
    [[nodiscard]] QString noteOnMissing(const QList<ResourceReferenceSPtr> &files) const;

    const SamplesAndTracesTables &m_tables;
    SampleFileChecker &m_checker;
    QUrl m_baseUrl;
};

} // namespace orv
