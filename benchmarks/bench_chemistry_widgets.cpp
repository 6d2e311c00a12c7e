// Tables of masses and proteins against item widgets with the same rows, and an edit against the same edit of
// few rows.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassTolerance.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/widgets/MassTableWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QApplication>
#include <QTableWidget>

#include <functional>

using namespace orv;

namespace {

constexpr int kFew = 50;

int massCount()
{
    return Lifelike::isForAMoment() ? 200 : 5000;
}

int proteinCount()
{
    return Lifelike::isForAMoment() ? 20 : 200;
}

void add(const char *name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name, [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

QList<DeltaMass> masses(int count)
{
    QList<DeltaMass> result;
    for (int i = 0; i < count; ++i) {
        DeltaMass mass;
        mass.name = QStringLiteral("glycoform %1").arg(i);
        mass.massDa = 148000 + i * 0.125;
        mass.samplesIds = {1, 2};
        result.append(mass);
    }
    return result;
}

RowNode proteins(int count)
{
    RowNode table = ProteinUtils::defaultRowNode();
    for (int i = 0; i < count; ++i) {
        QString sequence;
        for (int residue = 0; residue < 450; ++residue)
            sequence += QStringLiteral("ACDEFGHIKLMNPQRSTVWY")[(residue * 7 + i + residue / 20) % 20];
        table.addNewChild({QStringLiteral("P%1").arg(i), QStringLiteral("protein %1").arg(i), sequence});
    }
    return table;
}

/// Whoever fills items has to make all texts at once, calculated ones included.
QList<QStringList> textsOf(const QList<DeltaMass> &masses)
{
    const MassTolerance tolerance{10, kppm, {}};
    QList<QStringList> rows;
    for (const DeltaMass &mass : masses) {
        QStringList ids;
        for (const int id : mass.samplesIds)
            ids.append(QString::number(id));
        const QString samples = ids.join(QStringLiteral(", "));
        rows.append({mass.name, QString::number(*mass.massDa, 'g', QLocale::FloatingPointShortest),
                     mass.protein, samples, samples,
                     QString::number(tolerance.inDaltonAt(*mass.massDa), 'g', 4)});
    }
    return rows;
}

/// As the widget calculates them; that takes so long that how they are kept doesn't count.
QList<QStringList> textsMadeAnew(const ProteinTableWidget &widget)
{
    widget.sheet()->deriveAnew();
    return widget.sheet()->allTexts();
}

/// What a window of items shows for the same sheet.
void showInItems(const QList<QStringList> &rows)
{
    const int columns = int(rows.constFirst().size());
    QTableWidget table(int(rows.size()), columns);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columns; ++column)
            table.setItem(row, column, new QTableWidgetItem(rows[row][column]));
    }
    table.resize(900, 600);
    table.show();
    benchmark::DoNotOptimize(table.grab());
}

void addMasses()
{
    const auto list = std::make_shared<QList<DeltaMass>>(masses(massCount()));
    add("first frame of masses/baseline", [list] { showInItems(textsOf(*list)); });
    add("first frame of masses/MassTableWidget", [list] {
        MassTableWidget shown;
        shown.setMasses(*list);
        shown.resize(900, 600);
        shown.show();
        benchmark::DoNotOptimize(shown.grab());
    });
}

void addProteins(QWidget *owner)
{
    const auto table = std::make_shared<RowNode>(proteins(proteinCount()));
    auto *const source = new ProteinTableWidget(owner);
    source->addFromRowNode(*table);
    add("first frame of proteins/baseline", [source] { showInItems(textsMadeAnew(*source)); });
    add("first frame of proteins/ProteinTableWidget", [table] {
        ProteinTableWidget shown;
        shown.addFromRowNode(*table);
        shown.resize(900, 600);
        shown.show();
        benchmark::DoNotOptimize(shown.grab());
    });
}

template<class Widget>
void addEdit(const char *name, Widget *widget, int column)
{
    widget->resize(900, 600);
    widget->show();
    QApplication::sendPostedEvents();
    const auto count = std::make_shared<int>(0);
    add(name, [widget, column, count] {
        const QString text = QString::number(++*count);
        if (widget->sheet()->setText(0, column, text).hasError())
            qFatal("The text has no room");
        QApplication::sendPostedEvents();
        benchmark::DoNotOptimize(widget->view()->viewport()->grab());
    });
}

/// Benchmarks outlive the application, which widgets may not: \a owner has them.
void addEdits(QWidget *owner)
{
    constexpr int kMassAt = 1;
    auto *const few = new MassTableWidget(owner);
    few->setMasses(masses(kFew));
    auto *const many = new MassTableWidget(owner);
    many->setMasses(masses(massCount()));
    addEdit("edit of a mass/baseline", few, kMassAt);
    addEdit("edit of a mass/among 5,000", many, kMassAt);
    auto *const fewProteins = new ProteinTableWidget(owner);
    fewProteins->addFromRowNode(proteins(kFew));
    auto *const manyProteins = new ProteinTableWidget(owner);
    manyProteins->addFromRowNode(proteins(proteinCount()));
    addEdit("edit of a protein/baseline", fewProteins, kMassAt);
    addEdit("edit of a protein/among 200", manyProteins, kMassAt);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget owner;
    addMasses();
    addProteins(&owner);
    addEdits(&owner);
    return runRatioBenchmarks(argc, argv, Clock::Processor);
}
