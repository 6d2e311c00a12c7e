#include "AddedSamples.h"

#include <orv/widgets/TableView.h>

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QScrollArea>

namespace orv::AddedSamples {

namespace {

struct AddedSamplesTr
{
    Q_DECLARE_TR_FUNCTIONS(AddedSamples)
};

} // namespace

QString wordsOnLeftOut(const QStringList &paths)
{
    constexpr qsizetype kNamed = 3;
    QStringList names;
    for (const QString &path : paths.mid(0, kNamed))
        names.append(QFileInfo(QDir::cleanPath(path)).fileName());
    QString named = names.join(QLatin1String(", "));
    if (const qsizetype more = paths.size() - kNamed; more > 0)
        named = AddedSamplesTr::tr("%1 and %n more", nullptr, int(more)).arg(named);
    return AddedSamplesTr::
        tr("Not added, because there is no sample in it: %1. Samples are files of mass spectra, folders of "
           "vendors and projects.")
            .arg(named);
}

QString wordsOnAdded(int added, qsizetype given)
{
    QStringList words;
    if (added > 0 || given == 0)
        words.append(AddedSamplesTr::tr("Samples added: %1.").arg(added));
    if (const int known = int(given) - added; known > 0)
        words.append(AddedSamplesTr::tr("Not added, because the table has them already: %1.").arg(known));
    return words.join(u' ');
}

void showRows(TableView &view, int firstSheetRow, int count)
{
    const TableModel *const model = view.tableModel();
    const int first = model->rowOfSheetRow(firstSheetRow);
    const int last = model->rowOfSheetRow(firstSheetRow + count - 1);
    const int column = view.shownColumns().value(0);
    const QWidget *const focus = QApplication::focusWidget();
    const bool isTyping = focus && focus != view.viewport() && view.viewport()->isAncestorOf(focus);
    if (first < 0 || isTyping)
        return;
    view.goTo(model->index(first, column));
    if (last - first == count - 1)
        view.selectionModel()->select({model->index(first, 0), model->index(last, model->columnCount() - 1)},
                                      QItemSelectionModel::ClearAndSelect);
}

void showInAreas(const QWidget &part, const QRect &rect)
{
    for (QWidget *area = part.parentWidget(); area; area = area->parentWidget()) {
        auto *const scrolled = qobject_cast<QScrollArea *>(area);
        if (!scrolled || !scrolled->widget())
            continue;
        const QPoint at = part.mapTo(scrolled->widget(), rect.topLeft());
        scrolled->ensureVisible(at.x(), at.y() + rect.height() / 2, 0, rect.height());
    }
}

} // namespace orv::AddedSamples
