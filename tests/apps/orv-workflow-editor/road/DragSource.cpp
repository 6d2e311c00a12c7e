#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Stands for a file manager: files that are dragged from it into another program.
class DragSource : public QLabel
{
    Q_OBJECT

public:
    explicit DragSource(const QStringList &files)
        : m_files(files)
    {
        QStringList names;
        for (const QString &file : files)
            names.append(QFileInfo(file).fileName());
        setText(names.join(u'\n'));
        setWindowTitle(u"Files"_s);
        setMargin(fontMetrics().height());
        setMinimumWidth(fontMetrics().averageCharWidth() * 40);
        tell(u"Files to drag"_s);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { m_pressed = event->pos(); }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if ((event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance())
            return;
        QList<QUrl> urls;
        for (const QString &file : m_files)
            urls.append(QUrl::fromLocalFile(file));
        auto *content = new QMimeData;
        content->setUrls(urls);
        auto *drag = new QDrag(this);
        drag->setMimeData(content);
        connect(drag, &QDrag::actionChanged, this, [this](Qt::DropAction action) {
            tell(action == Qt::IgnoreAction ? u"Refused here"_s : u"Accepted here"_s);
        });
        const Qt::DropAction action = drag->exec(Qt::CopyAction);
        tell(action == Qt::IgnoreAction ? u"Nothing was dropped"_s : u"Dropped"_s);
    }

private:
    void tell(const QString &state) { setAccessibleName(state); }

    const QStringList m_files;
    QPoint m_pressed;
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    DragSource source(QApplication::arguments().mid(1));
    source.show();
    return QApplication::exec();
}

#include "DragSource.moc"
