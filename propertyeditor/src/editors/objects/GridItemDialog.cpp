#include "orv/propertyeditor/editors/GridItemDialog.h"

#include "ValueText.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/table/rn.h>
#include <orv/widgets/MeaningColors.h>

#include <QHBoxLayout>
#include <QJsonArray>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace orv {

using namespace PropertyEditorStringConstants;

GridItemDialog::GridItemDialog(std::unique_ptr<IGridItem> item, BaseItemType type, QWidget *parent)
    : IGenericEditorDialog(parent)
    , m_item(std::move(item))
    , m_type(type)
{
    build();
    GridItemDialog::setData({});
}

GridItemDialog::~GridItemDialog() = default;

void GridItemDialog::build()
{
    m_note = new QLabel(this);
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QPalette colors = m_note->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    m_note->setPalette(colors);
    m_note->hide();
    QPushButton *const ok = addButton(tr("Ok"));
    QPushButton *const cancel = addButton(tr("Cancel"));
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_note);
    layout->addWidget(m_item->widget(), 1);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, [this, ok] {
        // A cell that is being edited gives its text when it loses the focus.
        ok->setFocus();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    // Columns have their hints as narrow as a column may be.
    constexpr double kRoom = 1.4;
    const QSize least(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 30);
    resize((sizeHint() * kRoom).expandedTo(least).boundedTo(screen()->availableSize()));
    m_item->widget()->setFocus();
}

QPushButton *GridItemDialog::addButton(const QString &text)
{
    auto *const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    return button;
}

QJsonObject GridItemDialog::cellOf(const QJsonObject &value) const
{
    QJsonObject cell = PropertyEditorJsonUtils::defaultJsonContents(m_type);
    QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    QJsonObject entry = entries.at(0).toObject();
    QJsonObject table = value;
    // Without columns, columns of tables have nothing to show rows in.
    if (table.value(DATA).toArray().isEmpty() && table.value(CHILDREN).toArray().isEmpty()) {
        table.insert(DATA, entry.value(VALUE_KEY)[DATA]);
        table.insert(CHILDREN, QJsonArray());
    }
    entry.insert(VALUE_KEY, table);
    entries.replace(0, entry);
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

void GridItemDialog::setData(const QJsonObject &value)
{
    m_value = value;
    const Error error = m_item->setContent(cellOf(value));
    RowNode table;
    if (error.hasError())
        tell(ValueText::reasonOf(error));
    else if (!ValueText::isUnset(value) && !rn::fromObject(value, &table))
        tell(tr("The value is no table."));
    else
        tell({});
    m_shown = m_item->content();
}

void GridItemDialog::tell(const QString &problem)
{
    if (!problem.isEmpty())
        m_note->setText(
            tr("The value can't be shown: %1 It stays as it is unless you enter another one.").arg(problem));
    m_note->setVisible(!problem.isEmpty());
}

QJsonObject GridItemDialog::data() const
{
    QJsonObject cell = m_item->content();
    if (cell == m_shown)
        return m_value;
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    if (entries.isEmpty())
        return cell;
    const QJsonObject changed = entries.at(0)[VALUE_KEY].toObject();
    QJsonObject value = m_value;
    for (auto member = changed.begin(); member != changed.end(); ++member)
        value.insert(member.key(), member.value());
    return value;
}

void GridItemDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) {
        IGenericEditorDialog::keyPressEvent(event);
        return;
    }
    // Enter belongs to the tables, whose edits end with it: it accepts nothing but on a button.
    if (auto *const button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
}

} // namespace orv
