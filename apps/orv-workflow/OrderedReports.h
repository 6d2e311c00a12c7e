#pragma once

#include "Failure.h"

#include <orv/core/LossObserver.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <map>
#include <mutex>
#include <optional>

namespace orv::cli {

/// What there is to say of one file of a batch.
struct FileReport
{
    QByteArray text; ///< for standard output
    QString file;
    QList<Loss> lost; ///< for standard error
    std::optional<Failure> failure;
};

/// Prints the reports of a batch in the order of its files, each as soon as all before it are printed, so
/// that a long batch needs no more memory than a short one. Thread safe.
class OrderedReports
{
public:
    enum class Form
    {
        Text,
        JsonArray,
    };

    explicit OrderedReports(Form form);
    ~OrderedReports() = default;
    Q_DISABLE_COPY_MOVE(OrderedReports)

    void add(qsizetype index, FileReport report);
    /// Once all were added; whether standard output took everything.
    [[nodiscard]] bool finish();

private:
    void print(const FileReport &report);
    void write(const QByteArray &bytes);

    std::mutex m_mutex;
    std::map<qsizetype, FileReport> m_waiting;
    qsizetype m_next = 0;
    const Form m_form;
    bool m_isGood = true;
};

} // namespace orv::cli
