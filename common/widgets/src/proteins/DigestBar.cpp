#include "DigestBar.h"

#include "../scientific/ElidedLine.h"
#include "../scientific/UnitField.h"

#include <orv/widgets/MeaningColors.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace orv {

namespace {

constexpr int kMostMissed = 20;
constexpr int kLongestPeptide = 1000;

QStringList commonRules()
{
    return {QStringLiteral("Trypsin @ R,K | C-term"), QStringLiteral("Lys-C @ K | C-term"),
            QStringLiteral("Arg-C @ R | C-term"),     QStringLiteral("Glu-C @ E | C-term"),
            QStringLiteral("Asp-N @ D | N-term"),     QStringLiteral("Chymotrypsin @ F,L,W,Y | C-term")};
}

UnitField *wholeField(const QString &name, const QString &title, const QString &explanation, int minimum,
                      int maximum, int value)
{
    TableColumn column{.name = name, .title = title, .kind = TableColumnKind::Integer};
    column.minimum = minimum;
    column.maximum = maximum;
    column.isRequired = true;
    column.explanation = explanation;
    auto *const field = new UnitField(column, {});
    field->set(QString::number(value));
    field->setMaximumWidth(field->fontMetrics().averageCharWidth() * 10);
    return field;
}

} // namespace

DigestBar::DigestBar(QWidget *parent)
    : QWidget(parent)
{
    m_rule = new QComboBox;
    m_rule->setObjectName(QStringLiteral("digestRule"));
    m_rule->setLineEdit(new ElidedLine);
    m_rule->addItems(commonRules());
    m_rule->setAccessibleName(tr("Digest"));
    m_rule->setToolTip(tr("Enzyme as name @ residues | side of the cut."));
    m_rule->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_missed = wholeField(QStringLiteral("missedCleavages"), tr("Missed cleavages"),
                          tr("Number of missed cleavages, at most."), 0, kMostMissed, 0);
    m_shortest = wholeField(QStringLiteral("shortestPeptide"), tr("Shortest peptide"),
                            tr("Residues of the shortest peptide that can be seen."), 1, kLongestPeptide, 4);
    m_longest = wholeField(QStringLiteral("longestPeptide"), tr("Longest peptide"),
                           tr("Residues of the longest peptide that can be seen."), 1, kLongestPeptide, 60);
    m_problem = new QLabel;
    m_problem->setObjectName(QStringLiteral("digestProblem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    const auto add = [&](const QString &text, QWidget *field, int stretch) {
        auto *const label = new QLabel(text);
        label->setBuddy(field);
        layout->addWidget(label);
        layout->addWidget(field, stretch);
    };
    add(tr("&Digest:"), m_rule, 2);
    add(tr("&Missed:"), m_missed, 0);
    add(tr("&Length:"), m_shortest, 0);
    add(tr("t&o"), m_longest, 0);
    layout->addWidget(m_problem, 1);
    connect(m_rule, &QComboBox::currentTextChanged, this, &DigestBar::check);
    for (const UnitField *const field : {m_missed, m_shortest, m_longest})
        connect(field, &UnitField::edited, this, &DigestBar::check);
}

std::optional<ProteinDigestionItem> DigestBar::rule() const
{
    Result<ProteinDigestionItem> rule = ProteinDigestionItem::parse(m_rule->currentText());
    return rule.hasError() ? std::nullopt : std::optional(std::move(*rule));
}

DigestionLimits DigestBar::limits() const
{
    DigestionLimits limits;
    limits.missedCleavages = int(m_missed->value().value_or(0));
    limits.minimumLength = int(m_shortest->value().value_or(1));
    limits.maximumLength = std::max(limits.minimumLength, int(m_longest->value().value_or(kLongestPeptide)));
    return limits;
}

void DigestBar::check()
{
    const QString problem = rule() ? QString() : tr("Write an enzyme as name @ residues | C-term or N-term.");
    QPalette colors = m_problem->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    m_problem->setPalette(colors);
    m_problem->setText(problem);
    m_rule->setAccessibleDescription(problem);
    Q_EMIT edited();
}

} // namespace orv
