#include "OrderedReports.h"

#include "Console.h"
#include "Losses.h"

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
    if (m_form == Form::JsonArray)
        write((m_next == 0 ? QByteArray("[\n") : QByteArray(",\n")) + indented(report.text));
    else
        write(report.text);
    if (m_form == Form::Text)
        printLosses(report.file, report.lost);
    if (report.failure)
        printFailure(report.file, *report.failure);
}

bool OrderedReports::finish()
{
    if (m_form == Form::JsonArray)
        write(m_next == 0 ? "[\n]\n" : "\n]\n");
    return m_isGood;
}

void OrderedReports::write(const QByteArray &bytes)
{
    if (!bytes.isEmpty())
        m_isGood = m_isGood && writeStandardOutput(bytes);
}

} // namespace orv::cli
