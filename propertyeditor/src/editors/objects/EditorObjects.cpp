#include <orv/propertyeditor/editors/DefaultEditorObjects.h>
#include <orv/propertyeditor/editors/GridItemEditorObjects.h>
#include <orv/propertyeditor/editors/InclusionEditorObject.h>
#include <orv/propertyeditor/editors/LabelScriptsGenericObject.h>
#include <orv/propertyeditor/editors/ModificationsEditorObject.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/propertyeditor/editors/TheoreticalTableEditor.h>
#include <orv/propertyeditor/editors/ValueUnitEditorObject.h>

namespace orv {

void registerDefaultEditorObjects(OrvGenericEditorObjectManager *manager)
{
    using Editor = PropertySetCreator::Editor;
    using Mode = ModificationsEditorObject::Mode;
    using Plot = LabelScriptsGenericObject::Plot;
    manager->registerEditor(Editor::DetachedGlycans, new DetachedGlycansGenericObject);
    manager->registerEditor(Editor::Disulfide, new DisulfideGenericObject);
    manager->registerEditor(Editor::Isotope, new IsotopeGenericObject);
    manager->registerEditor(Editor::Masses, new MassesGenericObject);
    manager->registerEditor(Editor::Proteins, new ProteinsGenericObject);
    manager->registerEditor(Editor::ValueUnit, new ValueUnitEditorObject);
    manager->registerEditor(Editor::GlycanOptions, new GlycanOptionsGenericObject);
    manager->registerEditor(Editor::Modifications, new ModificationsEditorObject(Mode::Modifications));
    manager->registerEditor(Editor::Glycans, new ModificationsEditorObject(Mode::Glycans));
    manager->registerEditor(Editor::PeakFilter, new ModificationsEditorObject(Mode::PeakFilter));
    manager->registerEditor(Editor::TracePlot, new LabelScriptsGenericObject(Plot::Trace));
    manager->registerEditor(Editor::DeconvolvedMassPlot,
                            new LabelScriptsGenericObject(Plot::DeconvolvedMass));
    manager->registerEditor(Editor::InclusionList, new InclusionEditorObject);
    manager->registerEditor(Editor::TheoreticalTable, new TheoreticalTableEditor);
}

} // namespace orv
