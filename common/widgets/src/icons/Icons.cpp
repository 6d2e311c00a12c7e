#include "orv/widgets/Icons.h"

#include "PaletteIconEngine.h"

#include <orv/widgets/MeaningColors.h>

#include <QFile>
#include <QIcon>
#include <QPalette>

#include <algorithm>
#include <array>

namespace orv::Icons {

namespace {

struct IconRow
{
    IconName name;
    const char *file;
    QColor (*color)(const QPalette &palette); ///< null for that of the text
};

constexpr std::array kIcons = {
    IconRow{IconName::Add, "add", nullptr},
    IconRow{IconName::Duplicate, "duplicate", nullptr},
    IconRow{IconName::Remove, "remove", nullptr},
    IconRow{IconName::MoveUp, "move-up", nullptr},
    IconRow{IconName::MoveDown, "move-down", nullptr},
    IconRow{IconName::Undo, "undo", nullptr},
    IconRow{IconName::Redo, "redo", nullptr},
    IconRow{IconName::Cut, "cut", nullptr},
    IconRow{IconName::Copy, "copy", nullptr},
    IconRow{IconName::Paste, "paste", nullptr},
    IconRow{IconName::Clear, "clear", nullptr},
    IconRow{IconName::FillDown, "fill-down", nullptr},
    IconRow{IconName::Find, "find", nullptr},
    IconRow{IconName::Replace, "replace", nullptr},
    IconRow{IconName::Import, "import", nullptr},
    IconRow{IconName::Export, "export", nullptr},
    IconRow{IconName::Columns, "columns", nullptr},
    IconRow{IconName::HideColumns, "hide-columns", nullptr},
    IconRow{IconName::Filter, "filter", nullptr},
    IconRow{IconName::SortAscending, "sort-ascending", nullptr},
    IconRow{IconName::SortDescending, "sort-descending", nullptr},
    IconRow{IconName::OwnOrder, "own-order", nullptr},
    IconRow{IconName::KeepOrder, "keep-order", nullptr},
    IconRow{IconName::NextProblem, "next-problem", nullptr},
    IconRow{IconName::PreviousProblem, "previous-problem", nullptr},
    IconRow{IconName::Open, "open", nullptr},
    IconRow{IconName::Save, "save", nullptr},
    IconRow{IconName::Edit, "edit", nullptr},
    IconRow{IconName::Properties, "properties", nullptr},
    IconRow{IconName::Upgrade, "upgrade", nullptr},
    IconRow{IconName::Portable, "portable", nullptr},
    IconRow{IconName::BasicView, "basic-view", nullptr},
    IconRow{IconName::AdvancedView, "advanced-view", nullptr},
    IconRow{IconName::User, "user", nullptr},
    IconRow{IconName::ExpandAll, "expand-all", nullptr},
    IconRow{IconName::CollapseAll, "collapse-all", nullptr},
    IconRow{IconName::Error, "error", &MeaningColors::error},
    IconRow{IconName::Warning, "warning", &MeaningColors::warning},
    IconRow{IconName::Question, "question", nullptr},
    IconRow{IconName::Information, "information", nullptr},
    IconRow{IconName::Changed, "changed", &MeaningColors::changed},
    IconRow{IconName::Passed, "passed", nullptr},
};

const IconRow &rowOf(IconName name)
{
    return *std::find_if(kIcons.cbegin(), kIcons.cend(),
                         [name](const IconRow &row) { return row.name == name; });
}

} // namespace

QIcon icon(IconName name)
{
    const IconRow &row = rowOf(name);
    QFile file(QStringLiteral(":/orv/icons/%1.svg").arg(QLatin1String(row.file)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new PaletteIconEngine(file.readAll(), row.color));
}

QIcon hostIcon(IconName name, const char *resource, const char *themeName)
{
    const QLatin1String theme(themeName ? themeName : "");
    if (!theme.isEmpty() && QIcon::hasThemeIcon(theme))
        return QIcon::fromTheme(theme);
    const QString file = QLatin1String(resource ? resource : "");
    return !file.isEmpty() && QFile::exists(file) ? QIcon(file) : icon(name);
}

QColor colorOf(IconName name, const QPalette &palette)
{
    const IconRow &row = rowOf(name);
    return row.color ? row.color(palette) : palette.color(QPalette::Active, QPalette::WindowText);
}

QList<IconName> all()
{
    QList<IconName> names;
    for (const IconRow &row : kIcons)
        names.append(row.name);
    return names;
}

} // namespace orv::Icons
