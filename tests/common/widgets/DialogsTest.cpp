#include "WidgetTest.h"

#include <orv/core/Settings.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>

#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

const ORVStyle::Buttons kUpgradeButtons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

ORVStyle::Button askForUpgrade()
{
    return ORVStyle::question(nullptr, u"Workflow upgrade"_s, DisplayString::html(u"Old.<br/>Apply?"_s),
                              kUpgradeButtons,
                              {{QMessageBox::Yes, u"Apply"_s}, {QMessageBox::No, u"Apply and save..."_s}},
                              QMessageBox::Cancel, u"5.40.0"_s);
}

/// Shows boxes, and looks at each before it presses their careful button.
class LookingAnswerer : public DialogAnswerer
{
public:
    explicit LookingAnswerer(std::function<void(QDialog &)> look)
        : m_look(std::move(look))
        , m_earlier(DialogService::install(this))
    {}
    ~LookingAnswerer() override { DialogService::install(m_earlier); }

    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        request.dialog->show();
        (void)QTest::qWaitForWindowExposed(request.dialog);
        m_look(*request.dialog);
        return DialogAnswer{request.defaultButton, {}};
    }

private:
    std::function<void(QDialog &)> m_look;
    DialogAnswerer *m_earlier;
};

bool isInside(const QWidget &part, const QWidget &whole)
{
    return whole.rect().contains(QRect(part.mapTo(&whole, QPoint()), part.size())) &&
           part.width() >= part.minimumSizeHint().width() && part.height() >= part.minimumSizeHint().height();
}

bool showsAllButtons(const QDialog &box)
{
    const QList<QPushButton *> buttons = box.findChildren<QPushButton *>();
    return !buttons.isEmpty() &&
           std::ranges::all_of(buttons, [&](const QPushButton *button) { return isInside(*button, box); });
}

struct NameBox : QDialog
{
    NameBox()
    {
        setWindowTitle(u"Name"_s);
        name = new QLineEdit(this);
    }
    QLineEdit *name = nullptr;
};

} // namespace

class DialogsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void lettersPressTheButtonsOfABox();
    void aScriptSeesAndAnswersABox();
    void closingABoxIsTheCarefulChoice_data();
    void closingABoxIsTheCarefulChoice();
    void withoutAnAnswerABoxIsTold();
    void aSurpriseIsTold();
    void aButtonThatIsNotThereIsASurprise();
    void plainTextsStayPlain();
    void dialogsAreFilledInByAScript();
    void filesAreChosenAndTheFolderRemembered();
    void savedNamesGetTheirSuffix();
    void nothingChosenRemembersNothing();
    void foldersThatAreNotThereAreNotOffered();
    void theLayoutIsSwitched();
    void boxesWithAListCanBeResized();
    void longTextsOfBoxesScroll();
};

void DialogsTest::aScriptSeesAndAnswersABox()
{
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
    QCOMPARE(askForUpgrade(), QMessageBox::No);
    QVERIFY(answers.isDone());
    const DialogRequest asked = answers.transcript().value(0);
    QCOMPARE(asked.kind, DialogRequest::Kind::Question);
    QCOMPARE(asked.text, u"Old.\nApply?"_s);
    QCOMPARE(asked.details, u"5.40.0"_s);
    QCOMPARE(asked.defaultButton, u"Cancel"_s);
    QCOMPARE(QSet<QString>(asked.buttons.cbegin(), asked.buttons.cend()),
             QSet<QString>({u"Apply"_s, u"Apply and save..."_s, u"Cancel"_s}));
}

void DialogsTest::closingABoxIsTheCarefulChoice_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("careful");
    QTest::newRow("cancel") << int(kUpgradeButtons) << int(QMessageBox::Cancel);
    QTest::newRow("no") << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::No);
    QTest::newRow("one") << int(QMessageBox::Ok) << int(QMessageBox::Ok);
}

void DialogsTest::closingABoxIsTheCarefulChoice()
{
    QFETCH(int, buttons);
    QFETCH(int, careful);
    ScriptedAnswerer answers;
    answers.expectBox(u"t"_s, QString());
    QCOMPARE(int(ORVStyle::warning(nullptr, u"t"_s, u"x"_s, ORVStyle::Buttons(buttons))), careful);
}

void DialogsTest::withoutAnAnswerABoxIsTold()
{
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"Nobody answers the box \"Removing tab\".*"_s));
    QCOMPARE(ORVStyle::question(nullptr, u"Removing tab"_s, u"Sure?"_s), QMessageBox::No);
}

void DialogsTest::aSurpriseIsTold()
{
    ScriptedAnswerer answers;
    answers.expectBox(u"Another"_s, u"OK"_s);
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"Nobody answers the box \"t\".*"_s));
    ORVStyle::critical(nullptr, u"t"_s, u"x"_s);
    QVERIFY(!answers.isDone());
}

void DialogsTest::aButtonThatIsNotThereIsASurprise()
{
    ScriptedAnswerer answers;
    answers.expectBox(u"t"_s, u"Yes"_s);
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"Nobody answers.*"_s));
    ORVStyle::information(nullptr, u"t"_s, u"x"_s);
    QVERIFY(!answers.isDone());
}

void DialogsTest::plainTextsStayPlain()
{
    ScriptedAnswerer answers;
    answers.expectBox(u"t"_s, u"OK"_s);
    ORVStyle::warning(nullptr, u"t"_s, u"<b>a.wflw</b>"_s);
    QCOMPARE(answers.transcript().value(0).text, u"<b>a.wflw</b>"_s);
    QVERIFY(!DisplayString(u"<b>"_s).isHtml());
}

void DialogsTest::dialogsAreFilledInByAScript()
{
    ScriptedAnswerer answers;
    answers.expectDialog(u"Name"_s, [](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(u"Search"_s);
        return true;
    });
    answers.expectDialog(u"Name"_s, [](QDialog &) { return false; });
    NameBox box;
    QVERIFY(DialogService::exec(box));
    QCOMPARE(box.name->text(), u"Search"_s);
    QVERIFY(!DialogService::exec(box));
    QVERIFY(answers.isDone());
}

void DialogsTest::filesAreChosenAndTheFolderRemembered()
{
    const QTemporaryDir folder;
    const as::ScopedOverride none(FileSystemSettings::DefaultLocation.key, QVariant());
    const FileSystemSettings::DirectoryLocation location = {QLatin1String("Test"), QLatin1String("FSS_Test")};
    ScriptedAnswerer answers;
    answers.expectPath(u"Open"_s, folder.filePath(u"a.wflw"_s));
    answers.expectPath(u"Open"_s, QString());
    QCOMPARE(ORVFileDialog::getOpenFileName(nullptr, u"Open"_s, {}, {MirelFileTypes::WFLW}, location),
             folder.filePath(u"a.wflw"_s));
    QCOMPARE(ORVFileDialog::getOpenFileName(nullptr, u"Open"_s, u"b.wflw"_s, {}, location), QString());
    QCOMPARE(answers.transcript().value(0).text, u"Workflow (*.wflw)"_s);
    QCOMPARE(answers.transcript().value(1).startPath, folder.filePath(u"b.wflw"_s));
    QCOMPARE(FileSystemSettings::folder(location), folder.path());
}

void DialogsTest::savedNamesGetTheirSuffix()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    for (const QString &name : {u"a"_s, u"b.WFLW"_s, u"c.d"_s})
        answers.expectPath(u"Save"_s, folder.filePath(name));
    const auto saved = [&] {
        return QFileInfo(ORVFileDialog::getSaveFileName(nullptr, u"Save"_s, {}, {MirelFileTypes::WFLW}))
            .fileName();
    };
    QCOMPARE(saved(), u"a.wflw"_s);
    QCOMPARE(saved(), u"b.WFLW"_s);
    QCOMPARE(saved(), u"c.d.wflw"_s);
}

void DialogsTest::nothingChosenRemembersNothing()
{
    const QTemporaryDir folder;
    const FileSystemSettings::DirectoryLocation location = {QLatin1String("Two"), QLatin1String("FSS_Two")};
    ScriptedAnswerer answers;
    answers.expectPath(u"Folder"_s, folder.path());
    answers.expectPath(u"Folder"_s, QString());
    const auto ask = [&] {
        return ORVFileDialog::getExistingDirectory(nullptr, u"Folder"_s, {},
                                                   ORVFileDialog::FolderContent::ShowDirsOnly, location);
    };
    QCOMPARE(ask(), folder.path());
    QCOMPARE(ask(), QString());
    QCOMPARE(FileSystemSettings::folder(location), folder.path());
    QCOMPARE(answers.transcript().value(1).kind, DialogRequest::Kind::ChooseFolder);
}

void DialogsTest::foldersThatAreNotThereAreNotOffered()
{
    const QTemporaryDir home;
    const QTemporaryDir gone;
    const QByteArray homeBefore = qgetenv("HOME");
    const QByteArray configBefore = qgetenv("XDG_CONFIG_HOME");
    const auto restore = qScopeGuard([&] {
        qputenv("HOME", homeBefore);
        configBefore.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", configBefore);
    });
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const FileSystemSettings::DirectoryLocation location = {QLatin1String("Three"),
                                                            QLatin1String("FSS_Three")};
    const as::ScopedOverride none(location.key, gone.filePath(u"a"_s));
    QCOMPARE(FileSystemSettings::folder(location), home.path());
    QVERIFY(QDir(home.path()).mkdir(u"Documents"_s));
    QCOMPARE(FileSystemSettings::folder(location), home.filePath(u"Documents"_s));
}

void DialogsTest::theLayoutIsSwitched()
{
    QVERIFY(ORVStyle::isEnabled());
    {
        const as::ScopedOverride off(u"ORV/StyleEnabled"_s, false);
        QVERIFY(!ORVStyle::isEnabled());
        ORVStyle::setEnabled(true);
        QVERIFY(ORVStyle::isEnabled());
    }
    ORVStyle::setEnabled(std::nullopt);
    QVERIFY(ORVStyle::isEnabled());
}

void DialogsTest::boxesWithAListCanBeResized()
{
    auto *list = new QListWidget;
    list->addItems(QStringList(200, u"A row"_s));
    const LookingAnswerer person([list](QDialog &box) {
        const QSize before = list->size();
        box.resize(box.size() + QSize(60, 60));
        QCoreApplication::processEvents();
        QCOMPARE(list->size(), before + QSize(60, 60));
        box.resize(400, 320);
        QCoreApplication::processEvents();
        QCOMPARE(box.size(), QSize(400, 320));
        QVERIFY(showsAllButtons(box));
        QVERIFY(isInside(*list, box));
    });
    ORVStyle::question(nullptr, u"Workflow upgrade"_s, u"A short text."_s, kUpgradeButtons, {},
                       QMessageBox::Cancel, {}, list);
}

void DialogsTest::longTextsOfBoxesScroll()
{
    const QString text = QStringList(300, u"One of many lines."_s).join(u'\n');
    const LookingAnswerer person([](QDialog &box) {
        QVERIFY(box.height() <= box.screen()->availableSize().height());
        QVERIFY(showsAllButtons(box));
        const auto *area = box.findChild<QScrollArea *>();
        QVERIFY(area);
        QVERIFY(area->widget()->height() >= area->widget()->heightForWidth(area->widget()->width()));
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        QVERIFY(area->viewport()->height() > 3 * area->fontMetrics().height());
    });
    ORVStyle::warning(nullptr, u"Notes"_s, text, QMessageBox::Ok);
}

void DialogsTest::lettersPressTheButtonsOfABox()
{
    QStringList texts;
    const QList<std::pair<Qt::Key, ORVStyle::Button>> keys{
        {Qt::Key_A, QMessageBox::Yes}, {Qt::Key_S, QMessageBox::No}, {Qt::Key_C, QMessageBox::Cancel}};
    for (const auto &[key, wanted] : keys) {
        std::optional<QMessageBox::StandardButton> pressed;
        const LookingAnswerer looking([&, key = key](QDialog &dialog) {
            auto &box = static_cast<QMessageBox &>(dialog);
            connect(&box, &QMessageBox::buttonClicked, &box,
                    [&](QAbstractButton *button) { pressed = box.standardButton(button); });
            QTest::keyClick(&box, key, Qt::AltModifier);
            (void)QTest::qWaitFor([&pressed] { return pressed.has_value(); }); // the button goes down first
        });
        askForUpgrade();
        QCOMPARE(pressed, wanted);
    }
}

WIDGET_REGISTER_TEST(DialogsTest)

#include "DialogsTest.moc"
