#include "orv/widgets/TargetProjectPathChooserDialog.h"

#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/ORVFileDialog.h>

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orv {

TargetProjectPathChooserDialog::TargetProjectPathChooserDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Save Projects"));
    setObjectName(QStringLiteral("TargetProjectPathChooserDialog"));
    build();
    check();
}

void TargetProjectPathChooserDialog::build()
{
    auto *const layout = new QVBoxLayout(this);
    auto *const label = new QLabel(tr("&Folder for the projects:"));
    m_folder = new QLineEdit(
        QDir::toNativeSeparators(FileSystemSettings::folder(FileSystemSettings::NewProjectLocation)));
    m_folder->setObjectName(QStringLiteral("folder"));
    label->setBuddy(m_folder);
    auto *const browseButton = new QPushButton(tr("&Browse..."));
    browseButton->setObjectName(QStringLiteral("browse"));
    browseButton->setAutoDefault(false);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_folder, 1);
    row->addWidget(browseButton);
    m_problem = new QLabel;
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    QPalette colors = m_problem->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    m_problem->setPalette(colors);
    layout->addWidget(label);
    layout->addLayout(row);
    layout->addWidget(m_problem);
    layout->addWidget(new QLabel(tr("Where a project of that name exists:")));
    m_policies = new QButtonGroup(this);
    const auto addPolicy = [&](const QString &text, DuplicateFilePolicy policy) {
        auto *const button = new QRadioButton(text);
        m_policies->addButton(button, int(policy));
        layout->addWidget(button);
        button->setChecked(policy == DuplicateFilePolicy::KeepBoth);
    };
    addPolicy(tr("&Keep both, with a number in the new name"), DuplicateFilePolicy::KeepBoth);
    addPolicy(tr("&Overwrite it"), DuplicateFilePolicy::Overwrite);
    addPolicy(tr("Leave the &new one out"), DuplicateFilePolicy::Skip);
    layout->addStretch();
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    layout->addWidget(m_buttons);
    connect(m_folder, &QLineEdit::textChanged, this, &TargetProjectPathChooserDialog::check);
    connect(browseButton, &QPushButton::clicked, this, &TargetProjectPathChooserDialog::browse);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &TargetProjectPathChooserDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int kLettersOfPath = 60;
    resize(std::max(sizeHint().width(), fontMetrics().averageCharWidth() * kLettersOfPath),
           sizeHint().height());
}

void TargetProjectPathChooserDialog::browse()
{
    const QString chosen = ORVFileDialog::getExistingDirectory(
        this, tr("Folder for the Projects"), outputPath().path(), ORVFileDialog::FolderContent::ShowDirsOnly,
        FileSystemSettings::NewProjectLocation);
    if (!chosen.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(chosen));
}

void TargetProjectPathChooserDialog::check()
{
    const QFileInfo folder(outputPath().path());
    const QString problem = outputPath().isEmpty() ? tr("Name a folder.")
                            : !folder.isDir()      ? tr("There is no such folder.")
                            : !folder.isWritable() ? tr("Nothing can be written into this folder.")
                                                   : QString();
    m_problem->setText(problem);
    m_folder->setAccessibleDescription(problem);
    m_buttons->button(QDialogButtonBox::Save)->setEnabled(problem.isEmpty());
}

void TargetProjectPathChooserDialog::accept()
{
    FileSystemSettings::rememberChosen(FileSystemSettings::NewProjectLocation, outputPath().path());
    QDialog::accept();
}

Path TargetProjectPathChooserDialog::outputPath() const
{
    return {QDir::fromNativeSeparators(m_folder->text().trimmed()), Path::Kind::Folder};
}

DuplicateFilePolicy TargetProjectPathChooserDialog::duplicateFilePolicy() const
{
    return DuplicateFilePolicy(m_policies->checkedId());
}

} // namespace orv
