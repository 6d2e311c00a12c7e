#include "SampleNames.h"

#include <QCoreApplication>

namespace orv {

namespace {

struct SampleNamesTr
{
    Q_DECLARE_TR_FUNCTIONS(SampleNames)
};

} // namespace

void SampleNames::set(const QList<SamplesInput::Entry> &entries)
{
    m_isKnown = true;
    m_names.clear();
    m_order.clear();
    for (const SamplesInput::Entry &entry : entries) {
        m_names.insert(entry.id, entry.name);
        m_order.append(entry.id);
    }
}

TableCodes SampleNames::codes() const
{
    TableCodes codes;
    codes.list.reserve(m_order.size());
    for (const int id : m_order)
        codes.list.append({QString::number(id), m_names.value(id)});
    return codes;
}

QString SampleNames::textOf(const QList<int> &ids)
{
    QStringList texts;
    for (const int id : ids)
        texts.append(QString::number(id));
    return texts.join(QLatin1String(", "));
}

QList<int> SampleNames::idsOf(QStringView text)
{
    QList<int> ids;
    for (const QStringView part : text.split(u',')) {
        bool isNumber = false;
        const int id = part.trimmed().toInt(&isNumber);
        if (isNumber)
            ids.append(id);
    }
    return ids;
}

QString SampleNames::namesOf(QStringView ids) const
{
    if (ids.trimmed().isEmpty())
        return SampleNamesTr::tr("all samples");
    QStringList names;
    for (const int id : idsOf(ids))
        names.append(m_names.value(id, QString::number(id)));
    return names.join(QLatin1String(", "));
}

QString SampleNames::problemOf(QStringView ids) const
{
    if (ids.trimmed().isEmpty())
        return {};
    for (const QStringView part : ids.split(u',')) {
        bool isNumber = false;
        const int id = part.trimmed().toInt(&isNumber);
        if (!isNumber)
            return SampleNamesTr::tr(
                       "\"%1\" is no id of a sample; write ids with commas between, such as 1, 2.")
                .arg(part.trimmed());
        if (m_isKnown && !m_names.contains(id))
            return SampleNamesTr::tr("There is no sample with the id %1.").arg(id);
    }
    return {};
}

TableColumn SampleNames::idsColumn(const QString &name, const std::shared_ptr<SampleNames> &names)
{
    TableColumn column{.name = name, .title = SampleNamesTr::tr("Sample ids")};
    column.explanation =
        SampleNamesTr::tr("Ids of the samples that the row is for, with commas between; empty for all. "
                          "F4 in the cell chooses them by name.");
    column.codes = [names] { return names->codes(); };
    column.check = [names](QStringView text) { return names->problemOf(text); };
    return column;
}

TableColumn SampleNames::namesColumn(const std::shared_ptr<SampleNames> &names, int idsAt)
{
    TableColumn column{.name = QStringLiteral("samples"), .title = SampleNamesTr::tr("Samples")};
    column.explanation = SampleNamesTr::tr("Names of the samples that the row is for. Follows from the ids.");
    column.derive = [names, idsAt](const QStringList &texts) { return names->namesOf(texts[idsAt]); };
    return column;
}

} // namespace orv
