#include "KPropertyWidgetsPluginManager.h"

#include "KPropertyFactory.h"
#include "KPropertyWidgetsFactory.h"
#include "internal/BuiltinFactory.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGlobalStatic>
#include <QLineEdit>

Q_GLOBAL_STATIC(KPropertyWidgetsPluginManager, s_manager)

namespace {

// Composed values have children wherever this library is loaded, also in sets that are made before a view.
void announceBuiltinFactory()
{
    KPropertyFactoryManager::addInitFunction([] { (void)s_manager(); });
}

void removeFrame(QWidget *editor)
{
    if (auto *const line = qobject_cast<QLineEdit *>(editor)) {
        line->setFrame(false);
    } else if (auto *const spin = qobject_cast<QAbstractSpinBox *>(editor)) {
        spin->setFrame(false);
    } else if (auto *const combo = qobject_cast<QComboBox *>(editor)) {
        combo->setFrame(false);
    }
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(announceBuiltinFactory)

class KPropertyWidgetsPluginManager::Private
{
public:
    QHash<int, KPropertyEditorCreatorInterface *> editors;
    QHash<int, KPropertyValuePainterInterface *> painters;
};

KPropertyWidgetsPluginManager::KPropertyWidgetsPluginManager()
    : d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("KPropertyWidgetsPluginManager"));
    registerFactory(new Internal::BuiltinFactory);
}

KPropertyWidgetsPluginManager::~KPropertyWidgetsPluginManager() = default;

KPropertyWidgetsPluginManager *KPropertyWidgetsPluginManager::self()
{
    // Runs the function above, if this is the first call of all: the manager registers its factory there, and
    // must not be asked for while it is made.
    KPropertyFactoryManager::self();
    return s_manager();
}

bool KPropertyWidgetsPluginManager::isEditorForTypeAvailable(int type) const
{
    return d->editors.contains(type);
}

QWidget *KPropertyWidgetsPluginManager::createEditor(int type, QWidget *parent,
                                                     const QStyleOptionViewItem &option,
                                                     const QModelIndex &index) const
{
    const KPropertyEditorCreatorInterface *const creator = d->editors.value(type);
    QWidget *const editor = creator ? creator->createEditor(type, parent, option, index) : nullptr;
    if (editor && !creator->options()->bordersVisible()) {
        removeFrame(editor);
    }
    return editor;
}

bool KPropertyWidgetsPluginManager::paint(int type, QPainter *painter, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    const KPropertyValuePainterInterface *const found = d->painters.value(type);
    if (found) {
        found->paint(painter, option, index);
    }
    return found != nullptr;
}

void KPropertyWidgetsPluginManager::registerFactory(KPropertyWidgetsFactory *factory)
{
    d->editors.insert(factory->editorCreators());
    const QHash<int, KPropertyEditorCreatorInterface *> editors = factory->editorCreators();
    const QHash<int, KPropertyValuePainterInterface *> painters = factory->valuePainters();
    // A type that is taken over without a painter must not be painted by that of the former editor.
    for (auto it = editors.cbegin(); it != editors.cend(); ++it) {
        d->painters.remove(it.key());
    }
    d->painters.insert(painters);
    KPropertyFactoryManager::self()->registerFactory(factory);
}
