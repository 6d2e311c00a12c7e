#include "FindingSigns.h"

#include <orv/widgets/Icons.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orv::FindingSigns {

namespace {

struct FindingSign
{
    Level level;
    IconName icon;
    const char *word;
    KPropertyEditorView::RemarkKind kind;
};

constexpr std::array kFindingSigns = {
    FindingSign{Level::Error, IconName::Error, QT_TRANSLATE_NOOP("orv::FindingsModel", "Error"),
                KPropertyEditorView::RemarkKind::Error},
    FindingSign{Level::Warning, IconName::Warning, QT_TRANSLATE_NOOP("orv::FindingsModel", "Warning"),
                KPropertyEditorView::RemarkKind::Warning},
};

const FindingSign &signOf(Level level)
{
    return *std::ranges::find(kFindingSigns, level, &FindingSign::level);
}

} // namespace

QIcon icon(Level level)
{
    return Icons::icon(signOf(level).icon);
}

QString word(Level level)
{
    return QCoreApplication::translate("orv::FindingsModel", signOf(level).word);
}

KPropertyEditorView::RemarkKind remarkKind(Level level)
{
    return signOf(level).kind;
}

QString told(Level level, const QString &text)
{
    return QCoreApplication::translate("orv::FindingsModel", "%1: %2", "a severity and a finding")
        .arg(word(level), text);
}

} // namespace orv::FindingSigns
