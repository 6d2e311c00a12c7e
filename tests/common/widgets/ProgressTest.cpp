#include "WidgetTest.h"

#include <orv/widgets/ProgressOutputUtils.h>

#include <QDialog>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSemaphore>
#include <QShortcut>
#include <QSignalSpy>
#include <QThread>
#include <QWindow>

using namespace orv;
using namespace Qt::StringLiterals;
using Outcome = ProgressOutput::Outcome;

namespace {

QDialog *progressWindow()
{
    const QWidgetList windows = QApplication::allWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == u"ProgressOutput"_s)
            return qobject_cast<QDialog *>(window);
    }
    return nullptr;
}

bool isOnScreen()
{
    const QDialog *const window = progressWindow();
    return window && window->isVisible();
}

QString progressDetail()
{
    return progressWindow()->findChild<QLabel *>(u"detail"_s)->text();
}

/// Work whose time the test tells.
struct TimedWork
{
    explicit TimedWork(bool isCancellable, QWidget *parent = nullptr)
        : progress(u"Opening the workflow..."_s, parent, isCancellable, [this] { return now; })
    {}

    qint64 now = 0;
    int slices = 0;
    ProgressOutput progress;
};

void later(const std::function<void()> &what)
{
    QMetaObject::invokeMethod(qApp, what, Qt::QueuedConnection);
}

/// Presses a key in a window as soon as that shows.
class KeyForShownWindow : public QObject
{
public:
    KeyForShownWindow(QWidget *window, Qt::Key key)
        : QObject(window)
        , m_key(key)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            later([key = m_key] { QTest::keyClick(progressWindow()->windowHandle(), key); });
        return QObject::eventFilter(watched, event);
    }

private:
    Qt::Key m_key;
};

/// A button that files can be dropped on.
class Target : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->accept(); }
};

/// A window that counts how often it is used: by pointer, by a key, by a shortcut.
struct UsedWindow
{
    UsedWindow()
    {
        button.show();
        button.activateWindow();
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++uses; });
        QObject::connect(&shortcut, &QShortcut::activated, &button, [this] { ++uses; });
    }

    void click() { QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, button.rect().center()); }
    void pressSpace() { QTest::keyClick(button.windowHandle(), Qt::Key_Space); }
    void pressShortcut() { QTest::keyClick(button.windowHandle(), Qt::Key_K, Qt::ControlModifier); }
    bool acceptsFiles()
    {
        button.setAcceptDrops(true);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(u"/data/mab.mzML"_s)});
        QDragEnterEvent drag({1, 1}, Qt::CopyAction, &files, Qt::LeftButton, {});
        drag.accept();
        QCoreApplication::sendEvent(button.windowHandle(), &drag);
        return drag.isAccepted();
    }

    int uses = 0;
    Target button{u"Other"_s};
    QShortcut shortcut{QKeySequence(Qt::CTRL | Qt::Key_K), &button};
};

} // namespace

class ProgressTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void shortWorkShowsNothing();
    void longWorkShowsCountAndTimeLeft();
    void workOfUnknownSizeShowsThatItRuns();
    void workIsCancelledWhereThatIsAllowed();
    void workThatMayNotStopGoesOn();
    void eventsAreHandledWhileAThreadWorks();
    void aThreadHearsThatItShallStop();
    void nothingElseCanBeUsedFromTheBeginning();
    void shortWorkTakesNoFocus();
    void longWorkGivesTheFocusBack();
    void aDialogThatOpensMeanwhileCanBeUsed();
    void aDialogThatWasOpenBeforeCannotBeUsed();
    void workWithinWorkHoldsInputUntilBothAreDone();
    void inputIsFreeWhenTheParentHasGone();
    void slicesEndWithTheirParent();
    void aThreadIsWaitedForWhenItsParentGoes();
    void aThreadIsWaitedForWhenTheApplicationQuits();
    void theWindowGoesWithThePointer();
};

void ProgressTest::shortWorkShowsNothing()
{
    TimedWork work(true);
    bool hasBeenSeen = false;
    const Outcome outcome = work.progress.runInSlices([&](ProgressReporter &reporter) {
        work.now += 99;
        reporter.setDone(++work.slices);
        hasBeenSeen = hasBeenSeen || isOnScreen();
        return work.slices < 3;
    });
    QCOMPARE(outcome, Outcome::Done);
    QCOMPARE(work.slices, 3);
    QVERIFY(!hasBeenSeen);
    QVERIFY(!isOnScreen());
}

void ProgressTest::longWorkShowsCountAndTimeLeft()
{
    TimedWork work(false);
    work.progress.reporter().setCount(10);
    QStringList shown;
    const QList<std::pair<int, int>> steps = {{2000, 2}, {2010, 3}, {600000, 5}, {700000, 10}, {0, 0}};
    (void)work.progress.runInSlices([&](ProgressReporter &reporter) {
        if (work.slices > 0)
            shown.append(isOnScreen() ? progressDetail() : u"nothing"_s);
        const auto [time, done] = steps[work.slices];
        work.now = time;
        reporter.setDone(done);
        return ++work.slices < steps.size();
    });
    QCOMPARE(shown, QStringList({u"2 of 10, about 8 s left"_s, u"2 of 10, about 8 s left"_s,
                                 u"5 of 10, about 10 min left"_s, u"10 of 10"_s}));
}

void ProgressTest::workOfUnknownSizeShowsThatItRuns()
{
    TimedWork work(false);
    (void)work.progress.runInSlices([&](ProgressReporter &reporter) {
        reporter.setText(u"Reading..."_s);
        work.now = 400;
        return ++work.slices < 2;
    });
    QCOMPARE(progressWindow()->findChild<QProgressBar *>()->maximum(), 0);
    QCOMPARE(progressWindow()->findChild<QProgressBar *>()->accessibleName(), u"Reading..."_s);
    QCOMPARE(progressDetail(), QString());
}

void ProgressTest::workIsCancelledWhereThatIsAllowed()
{
    TimedWork work(true);
    QString detail;
    const Outcome outcome = work.progress.runInSlices([&](ProgressReporter &reporter) {
        work.now += 500;
        if (++work.slices == 2) {
            QTest::mouseClick(progressWindow()->findChild<QPushButton *>(), Qt::LeftButton);
            detail = progressDetail();
            return reporter.isCancelled();
        }
        return work.slices < 10;
    });
    QCOMPARE(outcome, Outcome::Cancelled);
    QCOMPARE(work.slices, 2);
    QCOMPARE(detail, u"Stopping..."_s);
}

void ProgressTest::workThatMayNotStopGoesOn()
{
    TimedWork work(false);
    const Outcome outcome = work.progress.runInSlices([&](ProgressReporter &) {
        work.now += 500;
        if (++work.slices == 2) {
            QTest::keyClick(progressWindow(), Qt::Key_Escape);
            progressWindow()->close();
        }
        return work.slices < 4;
    });
    QCOMPARE(outcome, Outcome::Done);
    QCOMPARE(work.slices, 4);
    QVERIFY(isOnScreen());
    QVERIFY(!progressWindow()->findChild<QPushButton *>()->isVisible());
}

void ProgressTest::eventsAreHandledWhileAThreadWorks()
{
    ProgressOutput progress(u"Checking..."_s, nullptr, false);
    QSemaphore event;
    const QThread *worker = nullptr;
    later([&] { event.release(); });
    const Outcome outcome = progress.run([&](ProgressReporter &) {
        worker = QThread::currentThread();
        event.acquire();
    });
    QCOMPARE(outcome, Outcome::Done);
    QVERIFY(worker != QThread::currentThread());
}

void ProgressTest::aThreadHearsThatItShallStop()
{
    TimedWork work(true);
    work.now = 1000;
    bool hasStopped = false;
    new KeyForShownWindow(progressWindow(), Qt::Key_Escape);
    const Outcome outcome = work.progress.run([&](ProgressReporter &reporter) {
        while (!reporter.isCancelled())
            QThread::yieldCurrentThread();
        hasStopped = true;
    });
    QVERIFY(hasStopped);
    QCOMPARE(outcome, Outcome::Cancelled);
}

void ProgressTest::nothingElseCanBeUsedFromTheBeginning()
{
    UsedWindow other;
    QVERIFY(QTest::qWaitForWindowActive(&other.button));
    {
        const ProgressOutput progress(u"Checking..."_s, &other.button, false);
        other.click();
        other.pressSpace();
        other.pressShortcut();
        QVERIFY(!other.button.windowHandle()->close());
        QVERIFY(!other.acceptsFiles());
        QCOMPARE(other.uses, 0);
        QVERIFY(!isOnScreen());
    }
    other.click();
    QCOMPARE(other.uses, 1);
    other.pressSpace();
    QCOMPARE(other.uses, 2);
    other.pressShortcut();
    QCOMPARE(other.uses, 3);
    QVERIFY(other.acceptsFiles());
    QVERIFY(other.button.windowHandle()->close());
}

/// A modal window that can't be seen would catch the focus that a dialog gives back.
void ProgressTest::longWorkGivesTheFocusBack()
{
    UsedWindow waiting;
    QVERIFY(QTest::qWaitForWindowActive(&waiting.button));
    {
        TimedWork work(false, &waiting.button);
        work.now = ProgressOutput::kDelayMs;
        QTRY_VERIFY(isOnScreen() && progressWindow()->isActiveWindow());
    }
    QTRY_COMPARE(QApplication::activeWindow(), &waiting.button);
    waiting.pressShortcut();
    QCOMPARE(waiting.uses, 1);
}

void ProgressTest::shortWorkTakesNoFocus()
{
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QSignalSpy moved(qApp, &QGuiApplication::focusWindowChanged);
    TimedWork work(false, &window);
    QList<QWindow *> modal;
    (void)work.progress.runInSlices([&](ProgressReporter &) {
        modal.append(QGuiApplication::modalWindow());
        work.now += 99;
        return ++work.slices < 3;
    });
    QCOMPARE(modal, QList<QWindow *>({nullptr, nullptr, nullptr}));
    QCOMPARE(moved.size(), 0);
    QCOMPARE(QGuiApplication::focusWindow(), window.windowHandle());
}

void ProgressTest::aDialogThatOpensMeanwhileCanBeUsed()
{
    UsedWindow other;
    const ProgressOutput progress(u"Checking..."_s, nullptr, false);
    QDialog question;
    QPushButton yes(u"Yes"_s, &question);
    connect(&yes, &QPushButton::clicked, &question, &QDialog::accept);
    question.setModal(true);
    question.show();
    QVERIFY(QTest::qWaitForWindowActive(&question));
    other.click();
    QCOMPARE(other.uses, 0);
    QTest::mouseClick(question.windowHandle(), Qt::LeftButton, {}, yes.geometry().center());
    QCOMPARE(question.result(), int(QDialog::Accepted));
    other.click();
    QCOMPARE(other.uses, 0);
}

void ProgressTest::aDialogThatWasOpenBeforeCannotBeUsed()
{
    QDialog settings;
    QPushButton apply(u"Apply"_s, &settings);
    int uses = 0;
    connect(&apply, &QPushButton::clicked, &settings, [&] { ++uses; });
    settings.setModal(true);
    settings.show();
    QVERIFY(QTest::qWaitForWindowActive(&settings));
    const auto click = [&] {
        QTest::mouseClick(settings.windowHandle(), Qt::LeftButton, {}, apply.geometry().center());
    };
    auto progress = std::make_unique<ProgressOutput>(u"Checking..."_s, &settings, false);
    click();
    QTest::keyClick(settings.windowHandle(), Qt::Key_Escape);
    QCOMPARE(uses, 0);
    QVERIFY(settings.isVisible());
    progress.reset();
    click();
    QCOMPARE(uses, 1);
}

void ProgressTest::workWithinWorkHoldsInputUntilBothAreDone()
{
    UsedWindow other;
    QVERIFY(QTest::qWaitForWindowActive(&other.button));
    auto outer = std::make_unique<ProgressOutput>(u"Opening the workflow..."_s, &other.button, false);
    auto inner = std::make_unique<ProgressOutput>(u"Checking..."_s, &other.button, false);
    other.click();
    inner.reset();
    other.click();
    QCOMPARE(other.uses, 0);
    outer.reset();
    other.click();
    QCOMPARE(other.uses, 1);
}

void ProgressTest::inputIsFreeWhenTheParentHasGone()
{
    UsedWindow other;
    QVERIFY(QTest::qWaitForWindowActive(&other.button));
    auto parent = std::make_unique<QWidget>();
    const ProgressOutput progress(u"Checking..."_s, parent.get(), false);
    parent.reset();
    other.click();
    QCOMPARE(other.uses, 1);
}

void ProgressTest::slicesEndWithTheirParent()
{
    auto *const parent = new QWidget;
    TimedWork work(false, parent);
    const Outcome outcome = work.progress.runInSlices([&](ProgressReporter &) {
        work.now += 500;
        if (++work.slices == 2)
            delete parent;
        return true;
    });
    QCOMPARE(outcome, Outcome::Cancelled);
    QCOMPARE(work.slices, 2);
    QCOMPARE(work.progress.runInSlices([&](ProgressReporter &) { return ++work.slices < 5; }),
             Outcome::Cancelled);
    QCOMPARE(work.slices, 2);
}

void ProgressTest::aThreadIsWaitedForWhenItsParentGoes()
{
    auto *const parent = new QWidget;
    auto progress = std::make_unique<ProgressOutput>(u"Checking..."_s, parent, false);
    bool hasEnded = false;
    later([&] {
        delete parent;
        progress.reset();
    });
    const Outcome outcome = progress->run([&](ProgressReporter &reporter) {
        while (!reporter.isCancelled())
            QThread::yieldCurrentThread();
        hasEnded = true;
    });
    QVERIFY(hasEnded);
    QCOMPARE(outcome, Outcome::Cancelled);
}

void ProgressTest::aThreadIsWaitedForWhenTheApplicationQuits()
{
    bool hasEnded = false;
    Outcome outcome = Outcome::Done;
    later([&] {
        ProgressOutput progress(u"Checking..."_s, nullptr, false);
        later([] { QCoreApplication::quit(); });
        outcome = progress.run([&](ProgressReporter &reporter) {
            while (!reporter.isCancelled())
                QThread::yieldCurrentThread();
            hasEnded = true;
        });
    });
    QCoreApplication::exec();
    QVERIFY(hasEnded);
    QCOMPARE(outcome, Outcome::Cancelled);
}

void ProgressTest::theWindowGoesWithThePointer()
{
    auto progress =
        ProgressOutputUtils::createAndShowProgress(u"Checking workflow content..."_s, nullptr, false);
    QVERIFY(progressWindow());
    progress.reset();
    QVERIFY(!progressWindow());
    QVERIFY(!QApplication::activeModalWidget());
}

WIDGET_REGISTER_TEST(ProgressTest)

#include "ProgressTest.moc"
