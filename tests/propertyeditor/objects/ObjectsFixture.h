#pragma once

#include "GridFixture.h"
#include "LeavingWays.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/editors/GridItemEditorObjects.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/DialogService.h>

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

/// Settings of structured values on the screen, and dialogs as people use them.
namespace ObjectsFixture {

using Editor = orv::PropertySetCreator::Editor;

/// A kind of structured value with a setting that holds it.
struct Kind
{
    Editor editor;
    const char *property;
    const char *value; ///< as files hold it
};

inline const QList<Kind> &kinds()
{
    static const QList<Kind> all = {
        {Editor::ValueUnit, "KarvonFragmentMassError", R"({"unit":"ppm","value":10.1234})"},
        {Editor::Modifications, "KarvonModText",
         R"({"modifications":"Oxidation / +15.994915 @ M | common1\n% Custom modification text below\n"})"},
        {Editor::Glycans, "KarvonGlycanText",
         R"({"glycans":"[data/n_glycans.txt]\n% Custom glycan text below\nHexNAc(2)Hex(5) @ NGlycan | rare1\n"})"},
        {Editor::PeakFilter, "KarvonPeakFilterSelected", R"({"peakfilter":"204.0867 HexNAc\n366.14"})"},
        {Editor::TracePlot, "TracePlot", R"({"tracePlot":"return {rt};\r\n"})"},
        {Editor::DeconvolvedMassPlot, "DeconvolvedMassPlot", R"({"dmsPlot":"return {mass};"})"},
        {Editor::InclusionList, "KarvonInclusionFilter",
         R"({"inclusion":[{"charge":2,"intensity":1e6,"mz":524.265,"name":"LVNELTEFAK"},{"mz":740.4014}]})"},
        {Editor::TheoreticalTable, "TheoreticalPeptides",
         R"({"children":[{"children":[],"data":["LVNELTEFAK","BSA"]}],"data":["Sequence","Protein"]})"},
        {Editor::Proteins, "Proteins",
         R"({"children":[{"children":[],"data":["P1","alpha","MKTAYIAK"]},{"children":[],"data":["P2","",)"
         R"("GGC"]}],"data":["ProteinAccessionName","ProteinAliasName","ProteinSequence"],)"
         R"("proteinAnnotations":[]})"},
        {Editor::Masses, "MassList",
         R"({"children":[{"children":[],"data":["G0F/G0F",148055.9,"",[]]},{"children":[],"data":["loss",)"
         R"(-18.0106,"mAb",[1,2]]}],"data":["Name","Mass","Protein","SamplesIds"]})"},
        {Editor::Isotope, "Isotope",
         R"({"children":[{"children":[],"data":["Heavy lysine","C",13,99.5]}],"data":["Name","Element",)"
         R"("MassNumber","Enrichment"]})"},
        {Editor::Disulfide, "Disulfide",
         R"({"children":[{"children":[],"data":["HC",22,"HC",96]}],"data":["FirstChain","FirstPosition",)"
         R"("SecondChain","SecondPosition"]})"},
        {Editor::DetachedGlycans, "DetachedGlycans",
         R"j({"children":[{"children":[],"data":["G0F","HexNAc(4)Hex(3)Fuc(1)",1462.544,"2-AB",null]}],)j"
         R"("data":["Name","Composition","Mass","Label","RetentionTime"]})"},
        {Editor::GlycanOptions, "GlycanOptions",
         R"({"children":[{"children":[],"data":["Moiety","Hex","C6H10O5",true]},{"children":[],"data":)"
         R"(["Label","2-AB","C7H8N2",true]}],"data":["Kind","Name","Formula","Complete"]})"},
        {Editor::IntactOptions, "IntactOptions",
         R"({"children":[{"children":[],"data":["Denatured",600,5000,20000,200000,10,100,"H"]}],"data":)"
         R"(["Name","MinimumMz","MaximumMz","MinimumMass","MaximumMass","MinimumCharge","MaximumCharge",)"
         R"("Adduct"]})"},
        {Editor::OligoOptions, "OligoOptions",
         R"({"children":[{"children":[],"data":["Resolved",400,3000,1000,35000,2,20,"H"]}],"data":)"
         R"(["Name","MinimumMz","MaximumMz","MinimumMass","MaximumMass","MinimumCharge","MaximumCharge",)"
         R"("Adduct"]})"},
    };
    return all;
}

inline const Kind &kindOf(Editor editor)
{
    return *std::find_if(kinds().cbegin(), kinds().cend(),
                         [editor](const Kind &kind) { return kind.editor == editor; });
}

inline QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

inline QSharedPointer<orv::IGenericEditorObject> objectFor(Editor editor)
{
    return orv::OrvGenericEditorObjectManager::instance()->getGenericEditorObject(editor);
}

/// What an application does when it starts.
inline void startApplication()
{
    orv::ORVPropertyFactory::init();
    auto *manager = orv::OrvGenericEditorObjectManager::instance();
    manager->registerEditor(Editor::IntactOptions, new orv::IntactOptionsGenericObject);
    manager->registerEditor(Editor::OligoOptions, new orv::OligoOptionsGenericObject);
}

/// The columns "kind" of data functions.
inline void addKinds(const QList<Editor> &without = {})
{
    QTest::addColumn<int>("editor");
    for (const Kind &kind : kinds()) {
        if (!without.contains(kind.editor))
            QTest::newRow(kind.property) << int(kind.editor);
    }
}

/// A column with one setting of a structured value and another one.
struct Row
{
    Row(const char *property, const QJsonValue &value)
        : name(property)
        , column(GridFixture::settingsCell("Karvon",
                                           {GridFixture::setting(property, value),
                                            GridFixture::setting("Samples", GridFixture::text("one"))}))
        , edits(column.item.edits(), &orv::GridItemEdits::edited)
    {}
    explicit Row(const Kind &kind)
        : Row(kind.property, object(kind.value))
    {}

    KPropertyEditorView &tree() { return *column.view->editorView(); }
    KProperty &property() { return column.property(name); }
    QString caption() { return property().caption(); }
    QString shown() { return LeavingWays::rowOf(tree(), name).siblingAtColumn(1).data().toString(); }
    QJsonValue stored() const { return GridFixture::valueIn(column.item.content(), name); }
    QByteArray bytes() { return property().value().toByteArray(); }

    /// How many edits were told. They are told once the event that made them has been handled.
    qsizetype told()
    {
        QCoreApplication::sendPostedEvents();
        return edits.size();
    }

    /// Opens the dialog by the button of the row's editor.
    bool pressButton()
    {
        QWidget *editor = LeavingWays::open(tree(), name);
        auto *button = editor ? editor->findChild<QToolButton *>() : nullptr;
        if (!button)
            return false;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    }

    const char *name;
    /// The setting stands in columns of several types, and a test needs it in one.
    const orv::as::ScopedOverride everywhere{orv::as::kWorkflowVerificationEnabled, false};
    GridFixture::Column column;
    QSignalSpy edits;
};

inline QPushButton *buttonOf(const QDialog &dialog, const QString &text)
{
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

/// Presses a button of a shown dialog; whether that accepted it.
inline bool press(QDialog &dialog, const QString &text)
{
    QPushButton *button = buttonOf(dialog, text);
    if (!button || !button->isVisible())
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return dialog.result() == QDialog::Accepted && !dialog.isVisible();
}

/// As exec() shows it: the editor in the tree stays open behind a modal dialog.
inline bool show(QDialog &dialog)
{
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    dialog.activateWindow();
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; });
}

/// The "Ok" of our own dialogs and of those that stand on their own.
inline bool pressOk(QDialog &dialog)
{
    return press(dialog, buttonOf(dialog, GridFixture::text("Ok")) ? GridFixture::text("Ok")
                                                                   : GridFixture::text("OK"));
}

/// The next dialog is shown, left untouched by its button of acceptance.
inline void expectUntouched(orv::ScriptedAnswerer *answers, const QString &title)
{
    answers->expectDialog(title, [](QDialog &dialog) { return show(dialog) && pressOk(dialog); });
}

/// Leaves every dialog as it is, and closes every box.
class AcceptingAnswerer : public orv::DialogAnswerer
{
public:
    AcceptingAnswerer()
        : m_earlier(orv::DialogService::install(this))
    {}
    ~AcceptingAnswerer() override { orv::DialogService::install(m_earlier); }

    [[nodiscard]] std::optional<orv::DialogAnswer> answer(const orv::DialogRequest &request) override
    {
        if (request.kind != orv::DialogRequest::Kind::Dialog) {
            ++boxes;
            return orv::DialogAnswer{request.defaultButton, {}};
        }
        ++dialogs;
        const bool isAccepted = show(*request.dialog) && accepts && pressOk(*request.dialog);
        return orv::DialogAnswer{isAccepted ? GridFixture::text("OK") : GridFixture::text("Cancel"), {}};
    }

    bool accepts = true;
    int dialogs = 0;
    int boxes = 0;

private:
    orv::DialogAnswerer *m_earlier;
};

/// Does what a listener may do at worst while a dialog is open, and accepts.
class WorstAnswerer : public orv::DialogAnswerer
{
public:
    explicit WorstAnswerer(std::function<void()> act)
        : m_act(std::move(act))
        , m_earlier(orv::DialogService::install(this))
    {}
    ~WorstAnswerer() override { orv::DialogService::install(m_earlier); }

    [[nodiscard]] std::optional<orv::DialogAnswer> answer(const orv::DialogRequest &) override
    {
        ++dialogs;
        m_act();
        return orv::DialogAnswer{GridFixture::text("OK"), {}};
    }

    int dialogs = 0;

private:
    std::function<void()> m_act;
    orv::DialogAnswerer *m_earlier;
};

} // namespace ObjectsFixture
