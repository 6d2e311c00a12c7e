// The shortest program that links Qt Gui and makes an application object: what any start-up is measured by.

#include <QColor>
#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return QColor(Qt::red).isValid() ? 0 : 1;
}
