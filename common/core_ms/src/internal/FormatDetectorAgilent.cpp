#include "FormatDetectorAgilent.h"

#include "FolderWalk.h"

#include <orv/core/PathUtils.h>

#include <algorithm>
#include <array>

namespace orv::msreader::internal {

namespace {

struct Proof
{
    const char *suffix;
    bool isFolder;
};

constexpr std::array kProofs = {
    Proof{".d/AcqData", true},
    Proof{".d/AcqData/msprofile.bin", false},
    Proof{".d/AcqData/mspeak.bin", false},
    Proof{".d/AcqData/msscan.bin", false},
};

bool isProof(const QString &entry)
{
    return std::any_of(kProofs.begin(), kProofs.end(), [&entry](const Proof &proof) {
        return entry.endsWith(QLatin1String(proof.suffix), Qt::CaseInsensitive) &&
               (proof.isFolder ? PathUtils::isExistingDir(entry) : PathUtils::isExistingFile(entry));
    });
}

} // namespace

QSet<VendorDataFormat> FormatDetectorAgilent::detectFormat(const QString &path) const
{
    // Nearly always the proof lies right there, beside some hundred thousand files at worst.
    return formatIf(isThere(path) && (isProof(path + QLatin1String("/AcqData")) || anyBelow(path, isProof)));
}

} // namespace orv::msreader::internal
