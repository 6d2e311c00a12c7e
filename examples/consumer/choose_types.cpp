#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/widgets/QxtCheckComboBox.h>

#include <QApplication>

#include <cstdio>

/// Shows the cell types of a workflow in a checkable combo box; --list prints them and ends.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QxtCheckComboBox box;
    box.addItems(orv::PropertyEditor::BaseItem::typeNames());
    box.setCheckedItems({QStringLiteral("Samples"), QStringLiteral("Karvon")});
    if (argc == 2 && QString::fromLocal8Bit(argv[1]) == QLatin1String("--list")) {
        std::printf("%d types, checked: %s\n", box.count(),
                    qPrintable(box.checkedItems().join(QLatin1Char(' '))));
        return 0;
    }
    box.show();
    return QApplication::exec();
}
