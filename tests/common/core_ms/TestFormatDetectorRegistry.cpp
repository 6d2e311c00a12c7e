#include "OrvTest.h"

#include <orv/core_ms/internal/FormatDetectorRegistry.h>

#include <stdexcept>

using namespace orv::msreader;
using namespace orv::msreader::internal;
using namespace Qt::StringLiterals;

namespace {

using Format = VendorDataFormat;

class Detector : public FormatDetectorBase
{
public:
    explicit Detector(QSet<Format> formats)
        : m_formats(std::move(formats))
    {}

    [[nodiscard]] QSet<Format> formats() const override { return m_formats; }
    [[nodiscard]] QSet<Format> detectFormatByName(const QString &) const override { return m_formats; }
    [[nodiscard]] QSet<Format> detectFormat(const QString &) const override { return m_formats; }
    [[nodiscard]] QString fileNameExtension(Format) const override { return u"same"_s; }
    [[nodiscard]] bool isFile(Format) const override { return true; }
    [[nodiscard]] bool isFolder(Format) const override { return false; }
    [[nodiscard]] QString formatDescription(Format) const override { return {}; }

private:
    QSet<Format> m_formats;
};

FormatDetectors detectorsOf(const QList<QSet<Format>> &sets)
{
    FormatDetectors detectors;
    for (const QSet<Format> &formats : sets)
        detectors.push_back(std::make_unique<Detector>(formats));
    return detectors;
}

QString thrownBy(const QList<QSet<Format>> &sets)
{
    try {
        const FormatDetectorRegistry registry(detectorsOf(sets));
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

} // namespace

class TestFormatDetectorRegistry : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void twoDetectorsOfOneFormatThrow();
    void detectorsMayShareAnExtension();
    void detectorsAreFoundByFormat();
};

void TestFormatDetectorRegistry::twoDetectorsOfOneFormatThrow()
{
    const QString text = u"Developer's exception: format intersection detected."_s;
    QCOMPARE(thrownBy({{Format::Mgf}, {Format::Mgf}}), text);
    QCOMPARE(thrownBy({{Format::Mgf}, {Format::Thermo}, {Format::Mzml, Format::Mgf}}), text);
}

void TestFormatDetectorRegistry::detectorsMayShareAnExtension()
{
    QCOMPARE(thrownBy({{Format::Thermo}, {Format::Waters}}), QString());
    QCOMPARE(thrownBy({}), QString());
}

void TestFormatDetectorRegistry::detectorsAreFoundByFormat()
{
    const FormatDetectorRegistry registry(detectorsOf({{Format::Mgf, Format::Mzml}, {Format::Thermo}}));
    QCOMPARE(registry.detectors().size(), size_t(2));
    QCOMPARE(registry.detectorOf(Format::Mzml), registry.detectors()[0].get());
    QCOMPARE(registry.detectorOf(Format::Thermo), registry.detectors()[1].get());
    QVERIFY(!registry.detectorOf(Format::Waters));
    QCOMPARE(registry.formats(), QSet({Format::Mgf, Format::Mzml, Format::Thermo}));
}

ORV_REGISTER_TEST(TestFormatDetectorRegistry)

#include "TestFormatDetectorRegistry.moc"
