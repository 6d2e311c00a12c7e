#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/window/WorkflowIcons.h>
#include <orv/propertyeditor/window/WorkflowPropertiesDialog.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleFactory>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

const QJsonObject &peptideMetadata()
{
    static const QJsonObject metadata{
        {u"name"_s, u"Antibody"_s},  {u"description"_s, u"Two lines\nof text"_s},
        {u"icon"_s, u"peptide"_s},   {u"workflowType"_s, u"PeptideMap"_s},
        {u"version"_s, u"5.47.0"_s}, {u"created"_s, u"2020-01-01T00:00:00"_s}};
    return metadata;
}

QColor colorOf(const QIcon &icon, int side, QIcon::Mode mode)
{
    return icon.pixmap(QSize(side, side), mode).toImage().pixelColor(side / 2, side / 2);
}

template<class Widget>
Widget *part(const QDialog &dialog, const QString &name)
{
    auto *widget = dialog.findChild<Widget *>(name);
    if (!widget)
        qFatal("There is no %s", qPrintable(name));
    return widget;
}

void acceptProperties(const QDialog &dialog)
{
    QTest::mouseClick(part<QDialogButtonBox>(dialog, u"buttonBox"_s)->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
}

} // namespace

class WorkflowPropertiesDialogTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheMetadata();
    void designersSeeTypeAndVersion();
    void acceptingWritesWhatIsShown();
    void cancellingWritesNothing();
    void otherMetadataStay();
    void unknownIconsAndTypesStay();
    void withoutIconTheDefaultIsChosen();
    void offersEveryTypeInOrder();
    void iconsHaveSizesAndModes();
    void unknownIconsAreTheDefault();
    void listShowsIconsAtRestAndUnderThePointer();
    void theListShowsTheIconUnderThePointer();
    void unknownIconsAreShownAsWhatCanBeChosen();
    void usersCannotChangeTheType();
};

void WorkflowPropertiesDialogTest::showsTheMetadata()
{
    const WorkflowPropertiesDialog dialog(peptideMetadata());
    QCOMPARE(dialog.objectName(), u"WorkflowPropertiesDialog"_s);
    QCOMPARE(dialog.windowTitle(), u"Workflow Properties"_s);
    QCOMPARE(part<QLineEdit>(dialog, u"lineName"_s)->text(), u"Antibody"_s);
    QCOMPARE(part<QPlainTextEdit>(dialog, u"plainTextDescription"_s)->toPlainText(), u"Two lines\nof text"_s);
    QCOMPARE(part<QComboBox>(dialog, u"comboIcons"_s)->currentText(), u"peptide"_s);
    QCOMPARE(part<QComboBox>(dialog, u"comboTypes"_s)->currentText(), u"PeptideMap"_s);
    QCOMPARE(part<QLabel>(dialog, u"labelVersion"_s)->text(), u"5.47.0"_s);
    QStringList labels;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        labels.append(label->text());
    for (const QString &label : {u"Name:"_s, u"Description:"_s, u"Icon:"_s, u"Type:"_s, u"Version:"_s})
        QVERIFY2(labels.contains(label), qPrintable(label));
}

void WorkflowPropertiesDialogTest::designersSeeTypeAndVersion()
{
    const LogCapture log;
    WorkflowPropertiesDialog dialog(peptideMetadata());
    dialog.show();
    const auto areVisible = [&dialog](bool isVisible) {
        return part<QLabel>(dialog, u"labelVersionTitle"_s)->isVisible() == isVisible &&
               part<QLabel>(dialog, u"labelVersion"_s)->isVisible() == isVisible &&
               part<QLabel>(dialog, u"labelType"_s)->isVisible() == isVisible &&
               part<QComboBox>(dialog, u"comboTypes"_s)->isVisible() == isVisible;
    };
    QVERIFY(areVisible(false));
    dialog.setDesignerModeEnabled(true);
    QVERIFY(areVisible(true));
    dialog.setDesignerModeEnabled(false);
    QVERIFY(areVisible(false));
    QCOMPARE(log.texts(QtDebugMsg), (QStringList{u"Designer mode: true"_s, u"Designer mode: false"_s}));
}

void WorkflowPropertiesDialogTest::acceptingWritesWhatIsShown()
{
    WorkflowPropertiesDialog dialog(peptideMetadata());
    dialog.setDesignerModeEnabled(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *name = part<QLineEdit>(dialog, u"lineName"_s);
    QTest::keySequence(name, QKeySequence::SelectAll);
    QTest::keyClicks(name, u"Mixture"_s);
    auto *icons = part<QComboBox>(dialog, u"comboIcons"_s);
    icons->setFocus();
    QTest::keyClick(icons, Qt::Key_Home);
    auto *types = part<QComboBox>(dialog, u"comboTypes"_s);
    types->setFocus();
    QTest::keyClick(types, Qt::Key_Home);
    QCOMPARE(dialog.metaData(), peptideMetadata());
    acceptProperties(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.metaData()[u"name"_s].toString(), u"Mixture"_s);
    QCOMPARE(dialog.metaData()[u"description"_s].toString(), u"Two lines\nof text"_s);
    QCOMPARE(dialog.metaData()[u"icon"_s].toString(), u"default"_s);
    QCOMPARE(dialog.metaData()[u"workflowType"_s].toString(), u"Unknown"_s);
}

void WorkflowPropertiesDialogTest::cancellingWritesNothing()
{
    WorkflowPropertiesDialog dialog(peptideMetadata());
    dialog.show();
    part<QLineEdit>(dialog, u"lineName"_s)->setText(u"Mixture"_s);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.metaData(), peptideMetadata());
}

void WorkflowPropertiesDialogTest::otherMetadataStay()
{
    WorkflowPropertiesDialog dialog(peptideMetadata());
    dialog.show();
    acceptProperties(dialog);
    QCOMPARE(dialog.metaData(), peptideMetadata());
}

void WorkflowPropertiesDialogTest::unknownIconsAndTypesStay()
{
    QJsonObject metadata = peptideMetadata();
    metadata[u"icon"_s] = u"of another application"_s;
    metadata[u"workflowType"_s] = u"OfTomorrow"_s;
    WorkflowPropertiesDialog dialog(metadata);
    dialog.show();
    acceptProperties(dialog);
    QCOMPARE(dialog.metaData(), metadata);
}

void WorkflowPropertiesDialogTest::withoutIconTheDefaultIsChosen()
{
    WorkflowPropertiesDialog dialog(QJsonObject{});
    dialog.show();
    QCOMPARE(part<QComboBox>(dialog, u"comboIcons"_s)->currentText(), u"default"_s);
    acceptProperties(dialog);
    QCOMPARE(dialog.metaData()[u"icon"_s].toString(), u"default"_s);
    QCOMPARE(dialog.metaData()[u"workflowType"_s].toString(), u"Unknown"_s);
}

void WorkflowPropertiesDialogTest::offersEveryTypeInOrder()
{
    const WorkflowPropertiesDialog dialog(peptideMetadata());
    const auto *types = part<QComboBox>(dialog, u"comboTypes"_s);
    QCOMPARE(types->count(), 34);
    QCOMPARE(types->itemText(0), u"Unknown"_s);
    QCOMPARE(types->itemText(1), u"IntactMass"_s);
    QCOMPARE(types->itemData(28).toInt(), 28);
    QCOMPARE(types->itemText(33), u"CrossLinkedPeptides"_s);
    QCOMPARE(types->itemData(33).toInt(), 34);
}

void WorkflowPropertiesDialogTest::iconsHaveSizesAndModes()
{
    const QHash<QString, QIcon> &icons = WorkflowIcons::availableIcons();
    QCOMPARE(QSet<QString>(icons.keyBegin(), icons.keyEnd()),
             (QSet<QString>{u"default"_s, u"peptide"_s, u"plain"_s}));
    const QIcon peptide = WorkflowIcons::icon(u"peptide"_s);
    QVERIFY(peptide.availableSizes(QIcon::Normal).contains(QSize(128, 128)));
    QVERIFY(peptide.availableSizes(QIcon::Normal).contains(QSize(48, 48)));
    QCOMPARE(colorOf(peptide, 128, QIcon::Normal), QColor(0, 0, 200));
    QCOMPARE(colorOf(peptide, 48, QIcon::Selected), QColor(0, 200, 0));
    QCOMPARE(colorOf(WorkflowIcons::icon(u"plain"_s), 48, QIcon::Normal), QColor(200, 0, 0));
}

void WorkflowPropertiesDialogTest::unknownIconsAreTheDefault()
{
    QCOMPARE(WorkflowIcons::defaultIconName(), u"default"_s);
    QCOMPARE(colorOf(WorkflowIcons::icon(u"nothing"_s), 48, QIcon::Normal), QColor(90, 90, 90));
}

void WorkflowPropertiesDialogTest::listShowsIconsAtRestAndUnderThePointer()
{
    const WorkflowPropertiesDialog dialog(peptideMetadata());
    const auto *icons = part<QComboBox>(dialog, u"comboIcons"_s);
    QCOMPARE(icons->count(), 3);
    const QIcon peptide = icons->itemIcon(icons->findText(u"peptide"_s));
    const int side = icons->iconSize().width();
    QVERIFY(side > 0);
    QVERIFY(peptide.availableSizes(QIcon::Normal).contains(icons->iconSize()));
    QVERIFY(peptide.availableSizes(QIcon::Selected).contains(icons->iconSize()));
    QCOMPARE(colorOf(peptide, side, QIcon::Normal), QColor(0, 0, 200));
    QCOMPARE(colorOf(peptide, side, QIcon::Selected), QColor(0, 200, 0));
}

void WorkflowPropertiesDialogTest::theListShowsTheIconUnderThePointer()
{
    for (const QString &style : {u"Fusion"_s, u"Windows"_s}) {
        WorkflowPropertiesDialog dialog(peptideMetadata());
        auto *icons = part<QComboBox>(dialog, u"comboIcons"_s);
        const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
        icons->setStyle(look.get());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        icons->showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(icons->view()->window()));
        const auto shows = [icons](const QColor &color) {
            const QImage list = icons->view()->grab().toImage().convertToFormat(QImage::Format_RGB32);
            for (int y = 0; y < list.height(); ++y) {
                for (int x = 0; x < list.width(); ++x) {
                    if (list.pixelColor(x, y) == color)
                        return true;
                }
            }
            return false;
        };
        const QColor atRest(0, 0, 200);
        const QColor underThePointer(0, 200, 0);
        QVERIFY2(shows(underThePointer) && !shows(atRest), qPrintable(style));
        QTest::keyClick(icons->view(), Qt::Key_Up);
        QVERIFY2(!shows(underThePointer) && shows(atRest), qPrintable(style));
        icons->hidePopup();
    }
}

void WorkflowPropertiesDialogTest::unknownIconsAreShownAsWhatCanBeChosen()
{
    QJsonObject metadata = peptideMetadata();
    metadata[u"icon"_s] = u"of another application"_s;
    WorkflowPropertiesDialog dialog(metadata);
    auto *icons = part<QComboBox>(dialog, u"comboIcons"_s);
    QCOMPARE(icons->currentText(), u"default"_s);
    QCOMPARE(icons->findText(u"of another application"_s), -1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    icons->setFocus();
    QTest::keyClick(icons, Qt::Key_End);
    acceptProperties(dialog);
    QCOMPARE(dialog.metaData()[u"icon"_s].toString(), u"plain"_s);
}

void WorkflowPropertiesDialogTest::usersCannotChangeTheType()
{
    WorkflowPropertiesDialog dialog(peptideMetadata());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *name = part<QLineEdit>(dialog, u"lineName"_s);
    name->setFocus();
    const QWidget *types = part<QComboBox>(dialog, u"comboTypes"_s);
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QVERIFY(dialog.focusWidget() != types);
    }
    QVERIFY(!types->isVisible());
    acceptProperties(dialog);
    QCOMPARE(dialog.metaData()[u"workflowType"_s].toString(), u"PeptideMap"_s);
}

WIDGET_REGISTER_TEST(WorkflowPropertiesDialogTest)
#include "WorkflowPropertiesDialogTest.moc"
