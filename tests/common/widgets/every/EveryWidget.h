#pragma once

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/widgets/CustomFieldsImportWidget.h>
#include <orv/widgets/DisulfideWidget.h>
#include <orv/widgets/GlycanOptionsWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/GlycansDialog.h>
#include <orv/widgets/InclusionDialog.h>
#include <orv/widgets/InsilicoTableDialog.h>
#include <orv/widgets/IntactOptionsWidget.h>
#include <orv/widgets/IsotopeTableWidget.h>
#include <orv/widgets/ModificationsDialog.h>
#include <orv/widgets/OligoMassTableWidget.h>
#include <orv/widgets/OligoOptionsWidget.h>
#include <orv/widgets/PeakFilterDialog.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinInputWidgetBase.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/SequenceDatabasesWidget.h>
#include <orv/widgets/TableEditor.h>
#include <orv/widgets/TemplateEditor.h>
#include <orv/widgets/TolerancesWidget.h>

#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <functional>
#include <memory>

/// Every scientific widget and dialog, with something in it.
namespace EveryWidget {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

inline orv::RowNode proteins()
{
    orv::RowNode table = orv::ProteinUtils::defaultRowNode();
    table.addNewChild(
        {text("HC"), text("Heavy chain"), text("EVQLVESGGGLVQPGGSLRLSCAASGFNIKDTYIHCVRQAPGKGLE")});
    table.addNewChild(
        {text("LC"), text("Light chain"), text("DIQMTQSPSSLSASVGDRVTITCRASQDVNTAVACYQQKPGKAPKL")});
    return table;
}

inline std::unique_ptr<QWidget> samples()
{
    auto widget = std::make_unique<orv::SamplesAndTracesInputWidget>();
    const QJsonObject sample = {
        {text("SamplesId"), 1}, {text("SampleName"), text("Plate 1")}, {text("Lot"), text("A")}};
    const QJsonObject column = {{text("name"), text("Lot")}, {text("type"), text("string")}};
    const orv::Error error = widget->setFromJsonContent(
        {{text("Samples"), QJsonArray{sample}}, {text("CustomColumns"), QJsonArray{column}}});
    if (error.hasError())
        qFatal("The samples don't load");
    return widget;
}

template<class Widget>
std::unique_ptr<QWidget> masses()
{
    auto widget = std::make_unique<Widget>();
    orv::DeltaMass mass;
    mass.name = text("G0F");
    mass.massDa = 148'056.5;
    widget->setMasses({mass});
    return widget;
}

inline std::unique_ptr<QWidget> proteinOptions()
{
    auto widget = std::make_unique<orv::ProteinOptionsWidget>();
    widget->proteinTableWidget()->addFromRowNode(proteins());
    return widget;
}

inline std::unique_ptr<QWidget> disulfides()
{
    auto widget = std::make_unique<orv::DisulfideWidget>();
    widget->setProteinData(proteins());
    return widget;
}

inline std::unique_ptr<QWidget> glycans()
{
    auto widget = std::make_unique<orv::GlycanTableWidget>();
    orv::Glycan glycan;
    glycan.name = text("G0F");
    glycan.composition = text("HexNAc(4)Hex(3)Fuc(1)");
    widget->setTable(orv::GlycanTable({glycan}));
    return widget;
}

inline std::unique_ptr<QWidget> glycanOptions()
{
    auto widget = std::make_unique<orv::GlycanOptionsWidget>();
    widget->setOptions(
        orv::GlycanOptions::fromRowNode(orv::DetachedGlycanUtils::defaultOptionsRowNode()).valueOr({}));
    return widget;
}

inline std::unique_ptr<QWidget> chains()
{
    auto widget = std::make_unique<orv::ProteinInputWidgetBase>();
    widget->addFromRowNode(proteins());
    return widget;
}

template<class Widget>
std::unique_ptr<QWidget> options()
{
    auto widget = std::make_unique<Widget>();
    widget->setToUI(orv::IntactOptionsUtils::defaultRowNode());
    return widget;
}

inline std::unique_ptr<QWidget> customFields()
{
    auto widget = std::make_unique<orv::CustomFieldsImportWidget>();
    orv::RowNode table;
    table.addData(QStringList{text("Sample Name"), text("Lot")});
    table.addNewChild({text("S1"), text("A")});
    widget->setTableContent(table);
    return widget;
}

template<class Dialog>
std::unique_ptr<QWidget> textDialog(const char *lines)
{
    auto dialog = std::make_unique<Dialog>();
    dialog->setText(text(lines));
    return dialog;
}

inline std::unique_ptr<QWidget> inclusions()
{
    auto dialog = std::make_unique<orv::InclusionDialog>();
    orv::InclusionItem item;
    item.mz = 524.265;
    dialog->setItems({item});
    return dialog;
}

struct Maker
{
    const char *name;
    std::function<std::unique_ptr<QWidget>()> make;
};

template<class Widget>
std::unique_ptr<QWidget> plain()
{
    return std::make_unique<Widget>();
}

inline const QList<Maker> &all()
{
    using namespace orv;
    static const QList<Maker> makers = {
        {"SamplesAndTracesInputWidget", samples},
        {"MassTableWidget", masses<MassTableWidget>},
        {"OligoMassTableWidget", masses<OligoMassTableWidget>},
        {"TolerancesWidget", plain<TolerancesWidget>},
        {"ProteinInputWidgetBase", chains},
        {"ProteinOptionsWidget", proteinOptions},
        {"ProteinAnnotationWidget", plain<ProteinAnnotationWidget>},
        {"DisulfideWidget", disulfides},
        {"GlycanTableWidget", glycans},
        {"GlycanOptionsWidget", glycanOptions},
        {"IsotopeTableWidget", plain<IsotopeTableWidget>},
        {"SequenceDatabasesWidget", plain<SequenceDatabasesWidget>},
        {"IntactOptionsWidget", options<IntactOptionsWidget>},
        {"OligoOptionsWidget", options<OligoOptionsWidget>},
        {"CustomFieldsImportWidget", customFields},
        {"ModificationsDialog",
         [] { return textDialog<ModificationsDialog>("Oxidation / +15.994915 @ M | common1"); }},
        {"GlycansDialog", [] { return textDialog<GlycansDialog>("[a.txt]\nHex(5) @ NGlycan | rare1"); }},
        {"PeakFilterDialog", [] { return std::make_unique<PeakFilterDialog>(text("204.0867 HexNAc")); }},
        {"InclusionDialog", inclusions},
        {"InsilicoTableDialog", [] { return std::make_unique<InsilicoTableDialog>(proteins(), RowNode()); }},
        {"TemplateEditor", plain<TemplateEditor>},
    };
    return makers;
}

/// A row for each widget.
inline void addRows()
{
    QTest::addColumn<int>("maker");
    for (int i = 0; i < all().size(); ++i)
        QTest::newRow(all()[i].name) << i;
}

inline void show(QWidget &widget)
{
    QLocale::setDefault(QLocale::c());
    widget.resize(1100, 800);
    widget.show();
    (void)QTest::qWaitForWindowActive(&widget);
}

inline void type(const char *words)
{
    for (const char *c = words; *c && QApplication::focusWidget(); ++c)
        QTest::keyClick(QApplication::focusWidget(), *c);
}

inline void key(Qt::Key key)
{
    if (QWidget *const widget = QApplication::focusWidget())
        QTest::keyClick(widget, key);
}

/// The first column that a person types text or numbers into.
inline int typedColumn(const orv::TableView &view)
{
    for (const int column : view.shownColumns()) {
        const orv::TableColumn &one = view.sheet()->columns()[column];
        const bool isTyped = one.kind == orv::TableColumnKind::Text || one.isNumeric() ||
                             one.kind == orv::TableColumnKind::File;
        if (one.isEditable() && isTyped)
            return column;
    }
    return -1;
}

/// The first one that isn't on a page behind another.
inline orv::TableView *shownTable(QWidget &widget)
{
    for (orv::TableView *const view : widget.findChildren<orv::TableView *>()) {
        if (view->isVisibleTo(&widget))
            return view;
    }
    return nullptr;
}

/// Adds a row by key and types into it, as a person does. Who hears of it may take the widget away.
inline void typeInto(orv::TableView *table)
{
    const QPointer<orv::TableView> view = table;
    const int column = typedColumn(*view);
    if (column < 0)
        return;
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Insert);
    if (!view)
        return;
    const QModelIndex cell = view->model()->index(0, column);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    if (!view)
        return;
    type("7");
    key(Qt::Key_Return);
}

} // namespace EveryWidget
