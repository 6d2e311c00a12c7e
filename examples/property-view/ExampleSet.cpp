#include "ExampleSet.h"

#include <KProperty>
#include <KPropertyComposedUrl>
#include <KPropertyListData>
#include <KPropertySet>

#include <QColor>
#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QSizePolicy>
#include <QUrl>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ExampleSet", text);
}

KProperty *add(KPropertySet &set, const char *group, KProperty *property)
{
    set.addProperty(property, group);
    return property;
}

void addSearch(KPropertySet &set)
{
    set.setGroupCaption("search", tr("Search"));
    add(set, "search",
        new KProperty("title", QStringLiteral("Trastuzumab, tryptic map"), tr("Title"),
                      tr("Shown in reports.")));
    KProperty *tolerance = add(set, "search",
                               new KProperty("precursorTolerance", 10.0, tr("Precursor tolerance"),
                                             tr("Largest deviation of a precursor mass, in ppm.")));
    tolerance->setOption("min", 0.0);
    tolerance->setOption("max", 500.0);
    tolerance->setOption("step", 0.5);
    tolerance->setOption("precision", 1);
    tolerance->setOption("suffix", QStringLiteral("ppm"));
    add(set, "search",
        new KProperty("fragmentTolerance", 0.0005, tr("Fragment tolerance"),
                      tr("In Da. Without a precision all digits are shown.")))
        ->setOption("suffix", QStringLiteral("Da"));
    KProperty *missed =
        add(set, "search",
            new KProperty("missedCleavages", 2, tr("Missed cleavages"), tr("0 to 9 per peptide.")));
    missed->setOption("min", 0);
    missed->setOption("max", 9);
    missed->setOption("minValueText", tr("none"));
    add(set, "search",
        new KProperty("enzyme",
                      new KPropertyListData(QStringList{QStringLiteral("trypsin"), QStringLiteral("lysc"),
                                                        QStringLiteral("gluc")},
                                            QStringList{tr("Trypsin"), tr("Lys-C"), tr("Glu-C")}),
                      QVariant(QStringLiteral("trypsin")), tr("Enzyme"), tr("Cleaves the sequences.")));
    add(set, "search",
        new KProperty("instrument",
                      new KPropertyListData(QStringList{QStringLiteral("orbitrap"), QStringLiteral("qtof")},
                                            QStringList{tr("Orbitrap"), tr("Q-TOF")}),
                      QVariant(QStringLiteral("qtof")), tr("Instrument"), tr("Choose one or type another.")))
        ->setOption("extraValueAllowed", true);
    add(set, "search",
        new KProperty("decoys", true, tr("Search decoys"), tr("Estimates false discoveries.")));
    KProperty *lock =
        add(set, "search",
            new KProperty("lockMass", QVariant(), tr("Lock mass"),
                          tr("As the method of the instrument says, unless chosen here."), KProperty::Bool));
    lock->setOption("3State", true);
    lock->setOption("3rdStateName", tr("as acquired"));
    KProperty *notes =
        add(set, "search",
            new KProperty("notes", QStringLiteral("Reduced with DTT, alkylated with IAA.\nDesalted."),
                          tr("Notes"), tr("Ctrl+Enter commits.")));
    notes->setOption("multiLine", true);
    notes->setOption("minHeight", 2);
    notes->setOption("maxHeight", 4);
}

void addFiles(KPropertySet &set)
{
    set.setGroupCaption("files", tr("Files and numbers"));
    add(set, "files",
        new KProperty("fasta", QUrl::fromLocalFile(QStringLiteral("/data/sequences/human.fasta")),
                      tr("Sequences"), tr("A FASTA file.")))
        ->setOption("fileMode", QStringLiteral("existingFile"));
    add(set, "files",
        new KProperty("sample",
                      QVariant::fromValue(KPropertyComposedUrl(QUrl(QStringLiteral("file:///data/runs")),
                                                               QStringLiteral("2026-11/run-07.raw"))),
                      tr("Sample"), tr("Relative to the folder of the workflow."), KProperty::ComposedUrl));
    add(set, "files", new KProperty("scans", 48213U, tr("Scans"), tr("Number of spectra.")))
        ->setReadOnly(true);
    add(set, "files",
        new KProperty("bytes", Q_INT64_C(6442450944), tr("File size"), tr("More than 32 bits hold.")))
        ->setOption("suffix", tr("bytes"));
    add(set, "files", new KProperty("checksum", Q_UINT64_C(18446744073709551615), tr("Checksum")));
    add(set, "files", new KProperty("acquired", QDate(2026, 11, 20), tr("Acquired on")));
    add(set, "files", new KProperty("started", QTime(8, 30), tr("Started at")));
    add(set, "files",
        new KProperty("finished", QDateTime(QDate(2026, 11, 20), QTime(10, 5)), tr("Finished")));
}

QPixmap logo()
{
    QPixmap pixmap(48, 32);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setPen(QPen(QColor(0, 114, 178), 2));
    for (int x = 4; x < 46; x += 7) {
        painter.drawLine(x, 30, x, 30 - (x * 37) % 27);
    }
    return pixmap;
}

void addLooks(KPropertySet &set)
{
    set.setGroupCaption("looks", tr("Plot"));
    add(set, "looks", new KProperty("traceColor", QColor(0, 114, 178), tr("Trace colour")));
    add(set, "looks",
        new KProperty("traceStyle", int(Qt::DashLine), tr("Trace style"), QString(), KProperty::LineStyle));
    QFont font(QStringLiteral("DejaVu Sans"), 10);
    font.setBold(true);
    add(set, "looks", new KProperty("labelFont", font, tr("Label font")));
    add(set, "looks",
        new KProperty("family", QStringLiteral("DejaVu Sans"), tr("Font family"), QString(),
                      KProperty::FontName));
    add(set, "looks", new KProperty("marker", 0x25B2, tr("Marker"), tr("One character."), KProperty::Symbol));
    add(set, "looks", new KProperty("cursor", QVariant::fromValue(QCursor(Qt::CrossCursor)), tr("Cursor")));
    add(set, "looks", new KProperty("logo", logo(), tr("Logo")));
}

void addGeometry(KPropertySet &set)
{
    set.setGroupCaption("geometry", tr("Geometry"));
    add(set, "geometry", new KProperty("legend", QPoint(12, 8), tr("Legend at")));
    add(set, "geometry", new KProperty("origin", QPointF(0.5, 1.25), tr("Origin")));
    add(set, "geometry", new KProperty("plotSize", QSize(640, 400), tr("Plot size")))
        ->setOption("suffix", QStringLiteral("px"));
    add(set, "geometry", new KProperty("paper", QSizeF(210, 297), tr("Paper")))
        ->setOption("suffix", QStringLiteral("mm"));
    add(set, "geometry", new KProperty("frame", QRect(10, 20, 300, 200), tr("Frame")));
    add(set, "geometry", new KProperty("window", QRectF(400.0, 12.5, 1600.0, 45.0), tr("Mass window")));
    add(set, "geometry",
        new KProperty("policy",
                      QVariant::fromValue(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred)),
                      tr("Resizing")));
}

} // namespace

std::unique_ptr<KPropertySet> createExampleSet()
{
    auto set = std::make_unique<KPropertySet>();
    addSearch(*set);
    addFiles(*set);
    addLooks(*set);
    addGeometry(*set);
    return set;
}
