#include "orv/propertyeditor/workbench/JournalKeeper.h"

#include "StatusLine.h"

#include <orv/core/Error.h>
#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>

#include <QDir>
#include <QEvent>
#include <QPointer>
#include <QStatusBar>

namespace orv {

namespace {

constexpr int kJournalInterval = 1500;

} // namespace

JournalKeeper::JournalKeeper(PropertyEditorWindow *window, std::shared_ptr<RecoveryStore> store,
                             Source source)
    : QObject(window)
    , m_window(window)
    , m_store(std::move(store))
    , m_source(std::move(source))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kJournalInterval);
    connect(&m_timer, &QTimer::timeout, this, &JournalKeeper::flush);
    connect(window, &PropertyEditorWindow::documentShown, this, &JournalKeeper::begin);
    connect(window, &PropertyEditorWindow::documentSaved, this, &JournalKeeper::beginSaved);
    connect(window, &PropertyEditorWindow::metadataEdited, this, &JournalKeeper::noteEdit);
    connect(window->workflowTabs(), &WorkflowTabs::edited, this, &JournalKeeper::noteEdit);
    connect(window->workflowTabs(), &WorkflowTabs::columnsChanged, this, &JournalKeeper::noteEdit);
    window->installEventFilter(this);
}

JournalKeeper::~JournalKeeper() = default;

void JournalKeeper::setInterval(int milliseconds)
{
    m_timer.setInterval(milliseconds);
}

void JournalKeeper::useJournal(std::unique_ptr<RecoveryJournal> journal)
{
    m_journal = std::move(journal);
    connect(m_journal.get(), &RecoveryJournal::failed, this, &JournalKeeper::tell);
}

/// An earlier document that wasn't saved stays in the journal that it had.
void JournalKeeper::begin()
{
    useJournal(m_store->newJournal());
    beginSaved();
}

void JournalKeeper::beginSaved()
{
    m_timer.stop();
    m_hasEdit = false;
    if (!m_journal)
        useJournal(m_store->newJournal());
    // Documents without a file have their name in its place.
    const QString file = m_window->workflowFilePath();
    m_journal->begin(QDir::isAbsolutePath(file) ? file : QString(), m_source.saved());
}

void JournalKeeper::beginWithoutFile()
{
    useJournal(m_store->newJournal());
    m_journal->begin({}, {});
}

void JournalKeeper::adopt(std::unique_ptr<RecoveryJournal> journal)
{
    m_timer.stop();
    m_hasEdit = false;
    if (const std::optional<PropertyEditorContent> state = m_source.state())
        journal->goOn(state->document());
    useJournal(std::move(journal));
}

void JournalKeeper::noteEdit()
{
    m_hasEdit = true;
    if (!m_timer.isActive())
        m_timer.start();
}

void JournalKeeper::flush()
{
    if (!m_hasEdit)
        return;
    if (!m_journal)
        begin();
    m_timer.stop();
    m_hasEdit = false;
    // Reading takes in what was told of edits, and whoever hears of that may close the window.
    const QPointer<JournalKeeper> self(this);
    const std::optional<PropertyEditorContent> state = m_source.state();
    if (self && m_journal && state)
        m_journal->write(*state, m_source.lost ? m_source.lost() : QStringList());
}

bool JournalKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Close)
        m_isClosing = true;
    else if (watched == m_window && event->type() == QEvent::Show)
        m_isClosing = false;
    else if (watched == m_window && event->type() == QEvent::Hide && m_isClosing)
        flush();
    return QObject::eventFilter(watched, event);
}

void JournalKeeper::tell(const Error &error)
{
    const QString text = error.errorMessage();
    StatusLine::tell(m_window, text);
    m_window->statusBar()->setToolTip(PlainTip::of((QStringList(text) + error.details()).join(u'\n')));
}

} // namespace orv
