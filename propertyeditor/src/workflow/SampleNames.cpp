#include "orv/propertyeditor/SampleNames.h"

#include "SamplePattern.h"

#include <algorithm>

namespace orv {

namespace {

QStringList eachOnce(QStringList texts)
{
    texts.removeDuplicates();
    return texts;
}

} // namespace

SampleNames::SampleNames(const QStringList &names)
    : m_names(eachOnce(names))
    , m_known(m_names.begin(), m_names.end())
{}

QStringList SampleNames::matching(const QStringList &patterns) const
{
    QStringList found;
    for (const QString &text : eachOnce(patterns)) {
        SamplePattern pattern(text);
        if (!pattern.isPlain()) {
            std::copy_if(m_names.begin(), m_names.end(), std::back_inserter(found),
                         [&pattern](const QString &name) { return pattern.matches(name); });
        } else if (m_known.contains(text)) {
            found.append(text);
        }
    }
    return eachOnce(found);
}

bool SampleNames::hasMatch(const QStringList &patterns) const
{
    return std::any_of(patterns.begin(), patterns.end(), [this](const QString &text) {
        SamplePattern pattern(text);
        if (pattern.isPlain())
            return m_known.contains(text);
        return std::any_of(m_names.begin(), m_names.end(),
                           [&pattern](const QString &name) { return pattern.matches(name); });
    });
}

} // namespace orv
