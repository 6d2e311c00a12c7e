#include "orv/propertyeditor/window/NameDialog.h"

#include <orv/core/Logging.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace orv {

namespace {

struct NameDialogMode
{
    const char *title;
    const char *label;      ///< of the line, or of the combo where there is no line
    const char *comboLabel; ///< null where the combo has none of its own
    bool hasCombo;
    bool hasLine;
};

constexpr std::array kNameDialogModes = {
    NameDialogMode{QT_TRANSLATE_NOOP("NameDialog", "Add tab"),
                   QT_TRANSLATE_NOOP("NameDialog", "New tab name:"), nullptr, false, true},
    NameDialogMode{QT_TRANSLATE_NOOP("NameDialog", "Add column"),
                   QT_TRANSLATE_NOOP("NameDialog", "Column name:"),
                   QT_TRANSLATE_NOOP("NameDialog", "Column:"), true, true},
    NameDialogMode{QT_TRANSLATE_NOOP("NameDialog", "Remove column"),
                   QT_TRANSLATE_NOOP("NameDialog", "Column to remove:"), nullptr, true, false},
    NameDialogMode{QT_TRANSLATE_NOOP("NameDialog", "Rename column"),
                   QT_TRANSLATE_NOOP("NameDialog", "New name:"), nullptr, true, true},
};

QString nameDialogTr(const char *text)
{
    return QCoreApplication::translate("NameDialog", text);
}

void addLabelled(QVBoxLayout &layout, const char *label, QWidget *widget)
{
    if (label) {
        auto *text = new QLabel(nameDialogTr(label), widget->parentWidget());
        text->setBuddy(widget);
        layout.addWidget(text);
        widget->setAccessibleName(text->text().chopped(1));
    }
    layout.addWidget(widget);
}

} // namespace

NameDialog::NameDialog(int mode, QWidget *parent)
    : QDialog(parent)
{
    const bool isKnown = mode >= 0 && size_t(mode) < kNameDialogModes.size();
    const NameDialogMode &row = kNameDialogModes[isKnown ? size_t(mode) : 0];
    setWindowTitle(nameDialogTr(row.title));
    auto *layout = new QVBoxLayout(this);
    if (row.hasCombo) {
        m_combo = new QComboBox(this);
        m_combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        addLabelled(*layout, row.hasLine ? row.comboLabel : row.label, m_combo);
    }
    if (row.hasLine) {
        m_name = new QLineEdit(this);
        addLabelled(*layout, row.label, m_name);
    }
    if (m_combo && m_combo->accessibleName().isEmpty())
        m_combo->setAccessibleName(tr("Column"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    auto *ok = new QPushButton(tr("&Ok"), this);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    ok->setDefault(true);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    if (m_name) {
        ok->setEnabled(false);
        connect(m_name, &QLineEdit::textChanged, ok,
                [ok](const QString &text) { ok->setEnabled(!text.isEmpty()); });
        m_name->setFocus();
    }
    resize(sizeHint());
}

void NameDialog::setComboStrings(const QStringList &texts)
{
    if (!m_combo) {
        qCWarning(propertyEditorLog) << "Cannot update an uninitialized (nullptr) combobox";
        return;
    }
    m_combo->clear();
    m_combo->addItems(texts);
    resize(sizeHint());
}

QString NameDialog::name() const
{
    return m_name ? m_name->text() : QString();
}

QString NameDialog::comboText() const
{
    return m_combo ? m_combo->currentText() : QString();
}

} // namespace orv
