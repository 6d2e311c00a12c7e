#include "orv/propertyeditor/workbench/Upgrades.h"

#include "StatusLine.h"
#include "UpgradeView.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "orv/propertyeditor/workbench/Workbench.h"

#include <orv/propertyeditor/window/PropertyEditorWindow.h>

#include <QDockWidget>
#include <QPointer>

#include <optional>

namespace orv {

class Upgrades::Private
{
public:
    explicit Private(Workbench *workbench);

    void take(const DocumentUpgrade &done, bool isSavedAlready);
    void forget();
    void update();
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool changedNothing() const { return view->changeCount() == 0 && !upgrade->hasFailed; }

    const QPointer<PropertyEditorWindow> window;
    DocumentHistory *const history;
    UpgradeView *const view;
    const QPointer<QDockWidget> dock;
    std::optional<DocumentUpgrade> upgrade;
    bool isSaved = false;
    bool wasTakenBack = false;
};

namespace {

QWidget *viewInQuestion(const DocumentUpgrade &upgrade)
{
    auto view = std::make_unique<UpgradeView>();
    view->setUpgrade(upgrade);
    if (view->changeCount() == 0 && upgrade.hasFailed)
        return nullptr;
    const QString title =
        view->changeCount() == 0
            ? Upgrades::tr("The upgrade from %1 to %2 changes nothing but the version; nothing is written "
                           "before you save.")
            : Upgrades::tr("What the upgrade from %1 to %2 changes; nothing is written before you save:");
    view->setTitle(title.arg(upgrade.from.toString(), upgrade.to.toString()));
    return view.release();
}

} // namespace

Upgrades::Private::Private(Workbench *workbench)
    : window(workbench->window())
    , history(workbench->history())
    , view(new UpgradeView)
    , dock(
          workbench->addPanel(view, QStringLiteral("upgradePanel"), tr("&Upgrade"), Qt::BottomDockWidgetArea))
{
    window->setUpgradeView(&viewInQuestion);
}

void Upgrades::Private::take(const DocumentUpgrade &done, bool isSavedAlready)
{
    upgrade = done;
    isSaved = isSavedAlready;
    view->setUpgrade(done);
    update();
    if (!dock)
        return;
    const QString from = done.from.toString();
    const QString to = done.to.toString();
    StatusLine::tell(window,
                     changedNothing()
                         ? tr("Upgraded from %1 to %2; nothing but the version changed.").arg(from, to)
                         : tr("Upgraded from %1 to %2. What that changed stands in %3.")
                               .arg(from, to, dock->windowTitle()));
}

void Upgrades::Private::forget()
{
    upgrade.reset();
    view->setUpgrade({});
    update();
}

void Upgrades::Private::update()
{
    view->setTitle(title());
    const bool isTakenBack = history->isUpgradeTakenBack();
    if (isTakenBack && !wasTakenBack && dock) {
        dock->show();
        dock->raise();
    }
    wasTakenBack = isTakenBack;
}

QString Upgrades::Private::title() const
{
    if (!upgrade)
        return tr("This workflow needed no upgrade.");
    const QString from = upgrade->from.toString();
    const QString to = upgrade->to.toString();
    if (history->isUpgradeTakenBack()) {
        return tr("The upgrade from %1 to %2 was taken back; the file is as it was. Redo (%3) applies the "
                  "upgrade again.")
            .arg(from, to, QKeySequence(QKeySequence::Redo).toString(QKeySequence::NativeText));
    }
    const QString done =
        isSaved
            ? tr("Upgraded from %1 to %2, and saved.").arg(from, to)
            : tr("Upgraded from %1 to %2. The file stays as it was until you save over it.").arg(from, to);
    return changedNothing() ? tr("%1 Nothing but the version changed.").arg(done) : done;
}

Upgrades::Upgrades(Workbench *workbench)
    : QObject(workbench)
    , d(std::make_unique<Private>(workbench))
{
    connect(d->window, &PropertyEditorWindow::documentShown, this, [this] { d->forget(); });
    connect(d->window, &PropertyEditorWindow::documentUpgraded, this,
            [this](const DocumentUpgrade &upgrade, bool isSaved) { d->take(upgrade, isSaved); });
    connect(d->window, &PropertyEditorWindow::documentSaved, this, [this] {
        d->isSaved = true;
        d->update();
    });
    connect(d->history, &DocumentHistory::changed, this, [this] { d->update(); });
    connect(d->history, &DocumentHistory::upgradeDropped, this, [this] { d->forget(); });
    d->update();
}

Upgrades::~Upgrades() = default;

QAction *Upgrades::action() const
{
    return d->dock ? d->dock->toggleViewAction() : nullptr;
}

} // namespace orv
