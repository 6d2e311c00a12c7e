#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QObject>
#include <QString>

namespace orv::msreader {

/// Holder that makes the enumeration known to the meta-object system.
class ORV_WORKFLOW_EXPORT ORV_QEnumsMsDataFormat
{
    Q_GADGET

public:
    /// How a vendor stores mass spectra. The numbers stand in files, never renumber.
    enum class VendorDataFormat : int
    {
        Unknown = 0,
        Testing = 1,
        Ulvar2 = 2,
        BrukerFID = 3,
        BrukerYEP = 4,
        BrukerBAF = 5,
        BrukerU2 = 6,
        BrukerBAF_and_U2 = 7,
        BrukerTims = 8,
        BrukerTsf = 9,
        AgilentAcqData = 10,
        Mobilion = 11,
        Waters = 12,
        Shimadzu = 13,
        SciexWiff = 14,
        SciexWiff2 = 15,
        MsFaux = 16,
        MsFaux2 = 17,
        Thermo = 18,
        Mgf = 19,
        Mzml = 20,
        Mzxml = 21,
        Tolq = 22,
        DataCut = 23,
        DataCutEmbedded = 24, ///< inside a project database; no path leads to it
        Csv2d = 25,
    };
    Q_ENUM(VendorDataFormat)
};

using VendorDataFormat = ORV_QEnumsMsDataFormat::VendorDataFormat;

/// The text form, such as "BrukerTims"; empty for a number that is no enumerator.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString vendorDataFormatToString(VendorDataFormat format);

/// The format of that text form, ignoring case; InvalidContent for any other text.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<VendorDataFormat> vendorDataFormatFromString(const QString &text);

} // namespace orv::msreader
