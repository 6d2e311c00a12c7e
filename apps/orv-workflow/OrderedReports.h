#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <orv/core/LossObserver.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <utility>

namespace orv::cli {

/// What there is to say of one file of a batch.
struct FileReport
{
    QByteArray text; ///< for standard output
    QString file;
    QList<Loss> lost; ///< for standard error
    std::optional<Failure> failure;
    QString verdict = {}; ///< in a word or two, for the totals: "valid"
    int exitCode = Done;  ///< where nothing failed
};

/// Prints the reports of a batch in the order of its files, each as soon as all before it are printed, so
/// that a long batch needs no more memory than a short one. Thread safe.
class OrderedReports
{
public:
    enum class Form
    {
        Text,       ///< with totals behind several reports
        Paragraphs, ///< the same with empty lines between them
        JsonArray,
        Silent, ///< standard output holds something else
    };

    explicit OrderedReports(Form form);
    ~OrderedReports() = default;
    Q_DISABLE_COPY_MOVE(OrderedReports)

    void add(qsizetype index, FileReport report);
    /// Once all were added; the exit code of the batch.
    [[nodiscard]] int finish();

private:
    void print(const FileReport &report);
    void count(const FileReport &report);
    [[nodiscard]] QString totals() const;
    void write(const QByteArray &bytes);

    std::mutex m_mutex;
    std::map<qsizetype, FileReport> m_waiting;
    qsizetype m_next = 0;
    QList<std::pair<QString, qsizetype>> m_verdicts; ///< with their numbers, in the order of their coming
    int m_exitCode = Done;
    bool m_hasText = false;
    bool m_isBroken = false;
    const Form m_form;
};

/// Reports on every input, by its number, on up to \a jobs threads; the exit code.
[[nodiscard]] int reportAll(const QList<BatchInput> &inputs, int jobs, bool showsProgress,
                            OrderedReports::Form form, const std::function<FileReport(qsizetype)> &reportOn);

} // namespace orv::cli
