#include "MsXmlReading.h"

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

struct MsXmlReadingTr
{
    Q_DECLARE_TR_FUNCTIONS(MsXmlReading)
};

constexpr QLatin1String kMsLevel("MS:1000511");
constexpr QLatin1String kMs1Spectrum("MS:1000579");

/// What a writer may leave out counts as there.
bool isZero(const QString &count)
{
    bool isNumber = false;
    const qlonglong number = count.toLongLong(&isNumber);
    return isNumber && number == 0;
}

} // namespace

MzmlReading::MzmlReading(QIODevice *device, Extent extent)
    : MsXmlReading(device, extent == Extent::Chromatograms ? QByteArray("<chromatogramList>") : QByteArray())
    , m_extent(extent)
{}

std::optional<MsItem> MzmlReading::next()
{
    while (m_xml.next()) {
        if (!m_xml.isStart()) {
            if (m_xml.level() == 1 && m_extent == Extent::Chromatograms)
                return std::nullopt;
            continue;
        }
        const QStringView name = m_xml.name();
        if (m_xml.level() == 1 && m_extent != Extent::Chromatograms && !hasMzmlRoot())
            return std::nullopt;
        if (name == kSpectrum || name == kChromatogram) {
            const MsItem item = readItem();
            return failure().hasError() ? std::nullopt : std::optional(item);
        }
        if (name == QLatin1String("referenceableParamGroup"))
            readGroup();
        else if (name == QLatin1String("run") && m_extent == Extent::Header)
            return std::nullopt;
    }
    return std::nullopt;
}

bool MzmlReading::hasMzmlRoot()
{
    if (m_xml.name() == QLatin1String("mzML") || m_xml.name() == QLatin1String("indexedmzML"))
        return true;
    m_xml.fail(MsXmlReadingTr::tr("The document is \"%1\", not \"mzML\".").arg(m_xml.name()));
    return false;
}

void MzmlReading::readGroup()
{
    const int level = m_xml.level();
    const QString id = m_xml.attribute("id");
    QStringList terms;
    while (m_xml.next() && m_xml.level() > level) {
        if (m_xml.isStart() && m_xml.name() == QLatin1String("cvParam"))
            terms.append(m_xml.attribute("accession") + QLatin1Char('=') + m_xml.attribute("value"));
    }
    m_groups.insert(id, terms);
}

MsItem MzmlReading::readItem()
{
    MsItem item;
    item.kind = m_xml.name() == kSpectrum ? MsItem::Kind::Spectrum : MsItem::Kind::Chromatogram;
    item.id = m_xml.attribute("id");
    item.msLevel = m_xml.attribute("msLevel").toInt(); // of the first version of the format
    item.isEmpty = isZero(m_xml.attribute("defaultArrayLength"));
    const int level = m_xml.level();
    while (m_xml.next() && m_xml.level() > level) {
        if (m_xml.isStart() && m_xml.level() == level + 1)
            readTerm(&item);
    }
    return item;
}

void MzmlReading::readTerm(MsItem *item)
{
    QStringList terms;
    if (m_xml.name() == QLatin1String("cvParam"))
        terms.append(m_xml.attribute("accession") + QLatin1Char('=') + m_xml.attribute("value"));
    else if (m_xml.name() == QLatin1String("referenceableParamGroupRef"))
        terms = m_groups.value(m_xml.attribute("ref"));
    for (const QString &term : std::as_const(terms)) {
        const QString accession = term.section(QLatin1Char('='), 0, 0);
        if (accession == kMsLevel)
            item->msLevel = term.section(QLatin1Char('='), 1).toInt();
        else if (accession == kMs1Spectrum && item->msLevel == 0)
            item->msLevel = 1;
        item->terms.append(accession);
    }
}

std::optional<MsItem> MzxmlReading::next()
{
    while (m_xml.next()) {
        if (!m_xml.isStart())
            continue;
        if (m_xml.level() == 1 && m_xml.name() != QLatin1String("mzXML") &&
            m_xml.name() != QLatin1String("msRun")) {
            m_xml.fail(MsXmlReadingTr::tr("The document is \"%1\", not \"mzXML\".").arg(m_xml.name()));
            return std::nullopt;
        }
        if (m_xml.name() == QLatin1String("scan")) {
            MsItem item;
            item.id = m_xml.attribute("num");
            item.msLevel = m_xml.attribute("msLevel").toInt();
            item.isEmpty = isZero(m_xml.attribute("peaksCount"));
            return item;
        }
    }
    return std::nullopt;
}

} // namespace orv::msreader::internal
