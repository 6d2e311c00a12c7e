#include "orv/widgets/OptionsWidgetBase.h"

#include "../NoticeBar.h"
#include "../TablePage.h"

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/table_model/RowNodeSheet.h>
#include <orv/widgets/TableEditor.h>

#include <QPointer>
#include <QVBoxLayout>

#include <array>

namespace orv {

namespace {

struct NumberRow
{
    const char *name; ///< in files
    const char *title;
    const char *unit;
    const char *explanation;
    TableColumnKind kind;
    double IntactOptions::*number;
    int IntactOptions::*charge; ///< of columns of charges
};

// clang-format off
constexpr std::array kOptionNumbers = {
    NumberRow{"MinimumMz", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Lowest m/z"), "", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Peaks below this m/z are left out."), TableColumnKind::Number, &IntactOptions::minimumMz, nullptr},
    NumberRow{"MaximumMz", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Highest m/z"), "", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Peaks above this m/z are left out."), TableColumnKind::Number, &IntactOptions::maximumMz, nullptr},
    NumberRow{"MinimumMass", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Lowest mass"), "Da", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "The lightest neutral mass that is looked for."), TableColumnKind::Number, &IntactOptions::minimumMassDa, nullptr},
    NumberRow{"MaximumMass", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Highest mass"), "Da", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "The heaviest neutral mass that is looked for."), TableColumnKind::Number, &IntactOptions::maximumMassDa, nullptr},
    NumberRow{"MinimumCharge", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Lowest charge"), "", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "The fewest charges that a molecule carries."), TableColumnKind::Integer, nullptr, &IntactOptions::minimumCharge},
    NumberRow{"MaximumCharge", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "Highest charge"), "", QT_TRANSLATE_NOOP("orv::OptionsWidgetBase", "The most charges that a molecule carries."), TableColumnKind::Integer, nullptr, &IntactOptions::maximumCharge},
};
// clang-format on

QString defaultOf(const NumberRow &row)
{
    const IntactOptions options;
    return row.charge ? NumberText::fromDouble(options.*row.charge) : QString::number(options.*row.number);
}

QString adductProblem(QStringView text)
{
    const Result<ChemicalFormula> formula = ChemicalFormula::parse(text.toString());
    return formula.hasError() || formula->isEmpty()
               ? OptionsWidgetBase::tr("\"%1\" is no chemical formula. Enter one such as H or Na.").arg(text)
               : QString();
}

QList<TableColumn> deconvolutionColumns(const QString &adduct)
{
    TableColumn name{.name = QStringLiteral("Name"), .title = OptionsWidgetBase::tr("Name")};
    name.explanation = OptionsWidgetBase::tr("What these options are for, such as \"Denatured\".");
    QList<TableColumn> columns = {name};
    for (const NumberRow &row : kOptionNumbers) {
        TableColumn column{.name = QString::fromLatin1(row.name),
                           .title = OptionsWidgetBase::tr(row.title),
                           .kind = row.kind};
        column.unit = QString::fromLatin1(row.unit);
        column.explanation = OptionsWidgetBase::tr(row.explanation);
        column.minimum = row.kind == TableColumnKind::Integer ? 1 : 0;
        column.defaultText = defaultOf(row);
        columns.append(column);
    }
    TableColumn carrier{.name = QStringLiteral("Adduct"), .title = OptionsWidgetBase::tr("Adduct")};
    carrier.explanation = OptionsWidgetBase::tr("The formula of what carries one charge.");
    carrier.isRequired = true;
    carrier.defaultText = adduct;
    carrier.check = adductProblem;
    columns.append(carrier);
    return columns;
}

QList<TableRowRule> deconvolutionRules(const QList<TableColumn> &columns)
{
    using TableRules::Bounds;
    using TableRules::inOrder;
    return {
        inOrder(columns, QStringLiteral("MinimumMz"), QStringLiteral("MaximumMz"), Bounds::MustDiffer),
        inOrder(columns, QStringLiteral("MinimumMass"), QStringLiteral("MaximumMass"), Bounds::MustDiffer),
        inOrder(columns, QStringLiteral("MinimumCharge"), QStringLiteral("MaximumCharge"))};
}

/// One message a line, whatever it holds.
QString htmlLinesOf(const QStringList &messages)
{
    QStringList lines;
    for (const QString &message : messages)
        lines.append(message.simplified().toHtmlEscaped());
    return lines.join(u'\n');
}

} // namespace

class OptionsWidgetBase::Private
{
public:
    Private(QString titleOfTable, QString kindOfTable, const QString &adduct)
        : title(std::move(titleOfTable))
        , kind(std::move(kindOfTable))
        , table(deconvolutionColumns(adduct))
    {}

    [[nodiscard]] bool validate(QStringList *errors, QStringList *warnings) const
    {
        const auto options = IntactOptionsUtils::optionsFromRowNode(table.table());
        if (!options.hasError())
            return IntactOptionsUtils::validate(*options, errors, warnings);
        errors->append(options.error().errorMessage() + u' ' + options.error().details().join(u' '));
        return false;
    }

    const QString title;
    const QString kind;
    RowNodeSheet table;
    RowNode unshown; ///< what was set where it can't be shown
    Error fault;
    NoticeBar *notice = nullptr;
    QPointer<TableEditor> editor;
};

OptionsWidgetBase::OptionsWidgetBase(const QString &title, const QString &kind, const QString &adduct,
                                     QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(title, kind, adduct))
{
    d->notice = new NoticeBar;
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->notice);
    show(RowNode());
}

OptionsWidgetBase::~OptionsWidgetBase()
{
    // A table takes what is being typed while it goes; then everything else is still there.
    d->table.sheet()->history()->disconnect(this);
    delete d->editor;
}

void OptionsWidgetBase::show(const RowNode &table)
{
    d->fault = d->table.load(table);
    d->table.sheet()->setRowRules(deconvolutionRules(d->table.sheet()->columns()));
    d->unshown = d->fault.hasError() ? table : RowNode();
    d->notice->setText(
        d->fault.hasError()
            ? tr("The options can't be shown, and stay as they are: %1").arg(d->fault.errorMessage())
            : d->table.noteOnUnshown());
    if (d->editor)
        d->editor->deleteLater();
    d->editor = TablePage::editorOf(d->table.sheet(), d->title, d->kind);
    d->editor->setEnabled(!d->fault.hasError());
    layout()->addWidget(d->editor);
    setFocusProxy(d->editor);
    TablePage::tellAfterEvents(*d->table.sheet(), this, [this] { Q_EMIT optionsChanged(); });
}

RowNode OptionsWidgetBase::getFromUI(QString *error, QString *warning) const
{
    QStringList problems;
    QStringList warnings;
    (void)d->validate(&problems, &warnings);
    if (error)
        *error = d->fault.hasError() ? d->fault.errorMessage().toHtmlEscaped() : QString();
    if (warning)
        *warning = htmlLinesOf(problems + warnings);
    return d->fault.hasError() ? d->unshown : d->table.table();
}

void OptionsWidgetBase::setToUI(const RowNode &table)
{
    show(table);
}

bool OptionsWidgetBase::validateUiValues(QString *errors, QString *warnings) const
{
    QStringList foundErrors;
    QStringList foundWarnings;
    const bool isValid = d->validate(&foundErrors, &foundWarnings);
    if (errors)
        *errors = htmlLinesOf(foundErrors);
    if (warnings)
        *warnings = htmlLinesOf(foundWarnings);
    return isValid;
}

QString OptionsWidgetBase::plainText() const
{
    return TablePage::textOf(d->editor);
}

} // namespace orv
