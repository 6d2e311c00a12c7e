#include "OrderedReports.h"

#include "Batch.h"
#include "Console.h"
#include "LogOutput.h"
#include "Losses.h"
#include "Progress.h"

#include <QStringList>

#include <algorithm>

namespace orv::cli {

namespace {

/// As an element of a list is indented.
QByteArray indented(const QByteArray &json)
{
    QByteArray text = "    " + json.trimmed();
    return text.replace("\n", "\n    ");
}

} // namespace

OrderedReports::OrderedReports(Form form)
    : m_form(form)
{}

void OrderedReports::add(qsizetype index, FileReport report)
{
    const std::lock_guard lock(m_mutex);
    m_waiting.emplace(index, std::move(report));
    for (auto first = m_waiting.begin(); first != m_waiting.end() && first->first == m_next;
         first = m_waiting.erase(first)) {
        print(first->second);
        ++m_next;
    }
}

void OrderedReports::print(const FileReport &report)
{
    count(report);
    const bool isText = m_form == Form::Text || m_form == Form::Paragraphs;
    if (m_form == Form::JsonArray)
        write((m_next == 0 ? QByteArray("[\n") : QByteArray(",\n")) + indented(report.text));
    else if (isText)
        write(m_form == Form::Paragraphs && m_hasText && !report.text.isEmpty() ? "\n" + report.text
                                                                                : report.text);
    m_hasText = m_hasText || !report.text.isEmpty();
    if (m_form != Form::JsonArray)
        printLosses(report.file, report.lost);
    if (report.failure)
        printFailure(report.file, *report.failure);
}

void OrderedReports::count(const FileReport &report)
{
    m_exitCode = std::max<int>(m_exitCode, report.failure ? report.failure->exitCode : report.exitCode);
    const auto isSame = [&report](const auto &entry) { return entry.first == report.verdict; };
    const auto found = std::find_if(m_verdicts.begin(), m_verdicts.end(), isSame);
    if (found == m_verdicts.end())
        m_verdicts.append({report.verdict, 1});
    else
        ++found->second;
}

int OrderedReports::finish()
{
    if (m_form == Form::JsonArray)
        write(m_next == 0 ? "[\n]\n" : "\n]\n");
    else if (m_form != Form::Silent && m_next > 1)
        write(totals().toLocal8Bit());
    return m_exitCode;
}

QString OrderedReports::totals() const
{
    QStringList parts;
    for (const auto &[verdict, number] : m_verdicts)
        parts.append(QStringLiteral("%1 %2").arg(number).arg(verdict));
    return QStringLiteral("%1%2 workflows: %3\n")
        .arg(m_form == Form::Paragraphs ? QStringLiteral("\n") : QString())
        .arg(m_next)
        .arg(parts.join(QLatin1String(", ")));
}

void OrderedReports::write(const QByteArray &bytes)
{
    if (bytes.isEmpty() || m_isBroken)
        return;
    if (!writeStandardOutput(bytes)) {
        m_isBroken = true;
        m_exitCode = BadOutput;
        printFailure(kStandardInput, {BadOutput, 0, QStringLiteral("The standard output can't be written.")});
    }
}

int reportAll(const QList<BatchInput> &inputs, int jobs, bool showsProgress, OrderedReports::Form form,
              const std::function<FileReport(qsizetype)> &reportOn)
{
    OrderedReports reports(form);
    // Reports that scroll by tell enough, and a bar would stand between their lines.
    const bool scrolls = form != OrderedReports::Form::Silent && standardOutputIsTerminal();
    const bool isBatch = inputs.size() > 1;
    {
        Progress progress(showsProgress && !scrolls, inputs.size());
        runBatch(inputs.size(), jobs, progress, [&](qsizetype i) {
            std::optional<LogAbout> about;
            if (isBatch)
                about.emplace(inputs.at(i).file);
            reports.add(i, reportOn(i));
        });
    }
    return reports.finish();
}

} // namespace orv::cli
