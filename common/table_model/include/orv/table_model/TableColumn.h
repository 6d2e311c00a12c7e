#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/NumberText.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>
#include <optional>

namespace orv {

/// What stands in a column, and so which editor its cells have.
enum class TableColumnKind
{
    Text,
    Integer,
    Number,
    Choice,   ///< one of the column's choices
    File,     ///< a path or another reference to a file
    Sequence, ///< of amino acids or nucleotides, shown in a fixed-width font
    Color,    ///< "#rrggbb", or "#aarrggbb" with its opacity
};

/// Things that a cell names by codes, such as samples by their ids.
struct TableCodes
{
    struct Code
    {
        QString code;
        QString title; ///< for people
    };

    QList<Code> list;
    QString separator = QStringLiteral(", "); ///< between the codes of a cell
    QString none = {};                        ///< what a cell without codes holds
};

/// A column of a table: what it holds, what it is called and what may stand in it. A plain value.
///
/// \code
///     TableColumn mass{.name = "mass", .title = tr("Mass"), .unit = "Da", .kind = TableColumnKind::Number};
///     mass.minimum = 0;
/// \endcode
struct ORV_WORKFLOW_EXPORT TableColumn
{
    QString name = {};  ///< never shown or translated: what programs go by
    QString title = {}; ///< shown
    QString unit = {};  ///< shown behind the title; empty for none
    TableColumnKind kind = TableColumnKind::Text;
    std::optional<double> minimum = {}; ///< of numbers, itself allowed
    std::optional<double> maximum = {}; ///< of numbers, itself allowed
    QStringList choices = {};
    QString defaultText = {}; ///< of new rows, in the kept form
    QString explanation = {}; ///< for the tool tip of the header
    QString fileFilter = {};  ///< of a file dialog, such as "FASTA (*.fasta)"
    bool isRequired = false;
    bool isReadOnly = false;
    bool isUnique = false;   ///< no two rows hold the same; empty cells and other spellings of it don't count
    bool isCaseKept = false; ///< of sequences, whose letters are made capital else
    /// What there is to choose from now, for cells that hold codes of several things.
    std::function<TableCodes()> codes = {};
    /// A rule of its own: why a text that passed the others isn't allowed, or an empty text. Called often.
    std::function<QString(QStringView text)> check = {};
    /// Makes the kept text from the others of its row, as TableSheet::texts() has them; those of derived
    /// columns are empty there. Nobody edits such a cell, and nothing keeps it. Asked when a cell is first
    /// looked at, and again after the row has changed.
    std::function<QString(const QStringList &texts)> derive = {};

    /// "Mass (Da)".
    [[nodiscard]] QString header() const;
    [[nodiscard]] bool isNumeric() const;
    [[nodiscard]] bool isEditable() const { return !isReadOnly && !derive; }

    /// What the column holds and what may stand in it, in sentences for people who ask for help.
    [[nodiscard]] QString help() const;

    /// The form in which the table keeps what a person typed or pasted: digits with a point, choices as they
    /// are spelt, sequences without blanks and in upper case. What can't be valid is kept as it is.
    [[nodiscard]] QString kept(QStringView typed, NumberText::DecimalSign sign) const;

    /// What people see of a kept text.
    [[nodiscard]] QString shown(QStringView kept, NumberText::DecimalSign sign) const;

    /// Why \a kept may not stand here and what is allowed, or an empty text. Knows no other cells.
    [[nodiscard]] QString problem(QStringView kept) const;

    /// Whether a header of a pasted or imported text means this column: its title with or without the unit,
    /// or its name; case and blanks around don't count.
    [[nodiscard]] bool isMeantBy(QStringView header) const;
};

} // namespace orv
