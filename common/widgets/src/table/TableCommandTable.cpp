#include "TableCommandTable.h"

namespace orv {

// clang-format off
const QList<TableCommandTable::Row> &TableCommandTable::rows()
{
    using C = TableCommands;
    using Command = TableView::Command;
    constexpr auto none = QKeySequence::UnknownKey;
    static const QList<Row> table = {
        {Command::Undo, IconName::Undo, &C::undo, "undo", QT_TRANSLATE_NOOP("TableCommands", "&Undo"), "", QKeySequence::Undo, Qt::Key_unknown, false},
        {Command::Redo, IconName::Redo, &C::redo, "redo", QT_TRANSLATE_NOOP("TableCommands", "Re&do"), "", QKeySequence::Redo, Qt::Key_unknown, false},
        {Command::Cut, IconName::Cut, &C::cut, "cut", QT_TRANSLATE_NOOP("TableCommands", "Cu&t"), "", QKeySequence::Cut, Qt::Key_unknown, true},
        {Command::Copy, IconName::Copy, &C::copy, "copy", QT_TRANSLATE_NOOP("TableCommands", "&Copy"), "", QKeySequence::Copy, Qt::Key_unknown, false},
        {Command::CopyWithHeaders, IconName::Copy, &C::copyWithHeaders, "copyWithHeaders", QT_TRANSLATE_NOOP("TableCommands", "Copy with &Headers"), "", none, Qt::CTRL | Qt::SHIFT | Qt::Key_C, false},
        {Command::Paste, IconName::Paste, &C::paste, "paste", QT_TRANSLATE_NOOP("TableCommands", "&Paste"), QT_TRANSLATE_NOOP("TableCommands", "Paste cells from a spreadsheet"), QKeySequence::Paste, Qt::Key_unknown, false},
        {Command::Clear, IconName::Clear, &C::clear, "clear", QT_TRANSLATE_NOOP("TableCommands", "C&lear Cells"), "", none, Qt::Key_Delete, false},
        {Command::FillDown, IconName::FillDown, &C::fillDown, "fillDown", QT_TRANSLATE_NOOP("TableCommands", "Fill Down"), QT_TRANSLATE_NOOP("TableCommands", "Fill the selected cells with the topmost, or one cell with the cell above"), none, Qt::CTRL | Qt::Key_D, false},
        {Command::AddRow, IconName::Add, &C::addRow, "addRow", QT_TRANSLATE_NOOP("TableCommands", "&Add Row"), QT_TRANSLATE_NOOP("TableCommands", "Add a row below"), none, Qt::Key_Insert, true},
        {Command::DuplicateRows, IconName::Duplicate, &C::duplicateRows, "duplicateRows", QT_TRANSLATE_NOOP("TableCommands", "Dupl&icate Rows"), "", none, Qt::CTRL | Qt::SHIFT | Qt::Key_D, false},
        {Command::RemoveRows, IconName::Remove, &C::removeRows, "removeRows", QT_TRANSLATE_NOOP("TableCommands", "&Remove Rows"), "", none, Qt::CTRL | Qt::Key_Delete, false},
        {Command::MoveUp, IconName::MoveUp, &C::moveUp, "moveUp", QT_TRANSLATE_NOOP("TableCommands", "Mo&ve Up"), "", none, Qt::ALT | Qt::Key_Up, false},
        {Command::MoveDown, IconName::MoveDown, &C::moveDown, "moveDown", QT_TRANSLATE_NOOP("TableCommands", "Move Do&wn"), "", none, Qt::ALT | Qt::Key_Down, false},
        {Command::SortAscending, IconName::SortAscending, &C::sortAscending, "sortAscending", QT_TRANSLATE_NOOP("TableCommands", "Sort Ascendin&g"), QT_TRANSLATE_NOOP("TableCommands", "Show the rows in the order of the current column"), none, Qt::CTRL | Qt::ALT | Qt::Key_Up, true},
        {Command::SortDescending, IconName::SortDescending, &C::sortDescending, "sortDescending", QT_TRANSLATE_NOOP("TableCommands", "Sort Descending"), "", none, Qt::CTRL | Qt::ALT | Qt::Key_Down, false},
        {Command::OwnOrder, IconName::OwnOrder, &C::ownOrder, "ownOrder", QT_TRANSLATE_NOOP("TableCommands", "Own Order"), QT_TRANSLATE_NOOP("TableCommands", "Show the rows in the order that the table has"), none, Qt::CTRL | Qt::ALT | Qt::Key_0, false},
        {Command::KeepOrder, IconName::KeepOrder, &C::keepOrder, "keepOrder", QT_TRANSLATE_NOOP("TableCommands", "&Keep This Order"), QT_TRANSLATE_NOOP("TableCommands", "Put the rows into the order in which they are shown"), none, Qt::Key_unknown, false},
        {Command::Find, IconName::Find, &C::find, "find", QT_TRANSLATE_NOOP("TableCommands", "&Find..."), "", QKeySequence::Find, Qt::Key_unknown, true},
        {Command::Replace, IconName::Replace, &C::replace, "replace", QT_TRANSLATE_NOOP("TableCommands", "Find and R&eplace..."), "", none, Qt::CTRL | Qt::Key_H, false},
        {Command::NextProblem, IconName::NextProblem, &C::nextProblem, "nextProblem", QT_TRANSLATE_NOOP("TableCommands", "&Next Problem"), QT_TRANSLATE_NOOP("TableCommands", "Go to the next cell that isn't allowed"), none, Qt::Key_F8, false},
        {Command::PreviousProblem, IconName::PreviousProblem, &C::previousProblem, "previousProblem", QT_TRANSLATE_NOOP("TableCommands", "Previous Pro&blem"), "", none, Qt::SHIFT | Qt::Key_F8, false},
        {Command::HideColumns, IconName::HideColumns, &C::hideColumns, "hideColumns", QT_TRANSLATE_NOOP("TableCommands", "Hide C&olumns"), "", none, Qt::Key_unknown, true},
        {Command::ShowAllColumns, IconName::Columns, &C::showAllColumns, "showAllColumns", QT_TRANSLATE_NOOP("TableCommands", "&Show All Columns"), "", none, Qt::Key_unknown, false},
        {Command::Import, IconName::Import, &C::importFile, "import", QT_TRANSLATE_NOOP("TableCommands", "I&mport..."), QT_TRANSLATE_NOOP("TableCommands", "Add rows from a text file, such as CSV"), none, Qt::Key_unknown, true},
        {Command::Export, IconName::Export, &C::exportFile, "export", QT_TRANSLATE_NOOP("TableCommands", "E&xport..."), QT_TRANSLATE_NOOP("TableCommands", "Write the shown rows to a text file"), none, Qt::Key_unknown, false},
    };
    return table;
}
// clang-format on

} // namespace orv
