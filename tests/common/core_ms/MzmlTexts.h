#pragma once

#include <QByteArray>

/// Small mzML documents.
namespace MzmlTexts {

inline QByteArray chromatogram(const QByteArray &id, const QByteArray &accession)
{
    return "<chromatogram index=\"0\" id=\"" + id + "\" defaultArrayLength=\"2\">" +
           (accession.isEmpty() ? accession : "<cvParam cvRef=\"MS\" accession=\"" + accession + "\"/>") +
           "<binaryDataArrayList count=\"1\"><binaryDataArray><cvParam accession=\"MS:1000235\"/><binary>AAAA"
           "</binary></binaryDataArray></binaryDataArrayList></chromatogram>";
}

inline const QByteArray kGroups =
    "<referenceableParamGroupList count=\"1\"><referenceableParamGroup id=\"uv\"><cvParam "
    "accession=\"MS:1000812\"/></referenceableParamGroup></referenceableParamGroupList>";

inline QByteArray mzml(const QByteArray &spectra, const QByteArray &chromatograms)
{
    return "<mzML>" + kGroups + "<run><spectrumList>" + spectra + "</spectrumList><chromatogramList>" +
           chromatograms + "</chromatogramList></run></mzML>";
}

/// With an index at the end, as converters write it. \a shift makes it lie.
inline QByteArray indexed(const QByteArray &document, qsizetype shift = 0)
{
    QByteArray text = "<indexedmzML>" + document;
    QByteArray lists;
    for (const QByteArray &name : {QByteArray("spectrum"), QByteArray("chromatogram")}) {
        lists += "<index name=\"" + name + "\">";
        for (qsizetype at = text.indexOf('<' + name + ' '); at >= 0;
             at = text.indexOf('<' + name + ' ', at + 1))
            lists += "<offset idRef=\"x\">" + QByteArray::number(at + shift) + "</offset>";
        lists += "</index>";
    }
    const QByteArray place = QByteArray::number(text.size());
    return text + "<indexList count=\"2\">" + lists + "</indexList><indexListOffset>" + place +
           "</indexListOffset><fileChecksum>0</fileChecksum></indexedmzML>";
}

} // namespace MzmlTexts
