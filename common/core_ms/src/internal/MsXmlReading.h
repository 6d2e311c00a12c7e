#pragma once

#include "XmlScanner.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <optional>

namespace orv::msreader::internal {

/// A spectrum or chromatogram as mzML and mzXML describe it.
struct MsItem
{
    enum class Kind
    {
        Spectrum,
        Chromatogram,
    };

    Kind kind = Kind::Spectrum;
    QString id;
    int msLevel = 0;      ///< 0 if there is none
    bool isEmpty = false; ///< without a single peak or point
    QStringList terms;    ///< accession numbers of the controlled vocabulary, such as "MS:1000235"
};

/// Reads the description of one item after the other.
class MsXmlReading
{
public:
    explicit MsXmlReading(QIODevice *device, const QByteArray &opening = {})
        : m_xml(device, opening)
    {}
    virtual ~MsXmlReading() = default;
    Q_DISABLE_COPY_MOVE(MsXmlReading)

    /// Nothing at the end, or after a failure.
    [[nodiscard]] virtual std::optional<MsItem> next() = 0;
    [[nodiscard]] const Error &failure() const { return m_xml.failure(); }

protected:
    XmlScanner m_xml; // NOLINT(misc-non-private-member-variables-in-classes): for the formats alone
};

class MzmlReading : public MsXmlReading
{
public:
    enum class Extent
    {
        Document,
        Header,        ///< ends where the run begins
        Chromatograms, ///< begins with the first entry of their list, and ends with the list
    };

    explicit MzmlReading(QIODevice *device, Extent extent = Extent::Document);

    [[nodiscard]] std::optional<MsItem> next() override;

    /// Terms that stand at one place and count at many, by the name of the group.
    using Groups = QHash<QString, QStringList>;
    [[nodiscard]] const Groups &groups() const { return m_groups; }
    void setGroups(const Groups &groups) { m_groups = groups; }

    static constexpr QLatin1String kSpectrum{"spectrum"};
    static constexpr QLatin1String kChromatogram{"chromatogram"};

private:
    [[nodiscard]] bool hasMzmlRoot();
    void readGroup();
    [[nodiscard]] MsItem readItem();
    void readTerm(MsItem *item);

    Extent m_extent;
    Groups m_groups;
};

class MzxmlReading : public MsXmlReading
{
public:
    using MsXmlReading::MsXmlReading;

    [[nodiscard]] std::optional<MsItem> next() override;
};

} // namespace orv::msreader::internal
