#include "orv/propertyeditor/grid/KPropertyViewItem.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SampleUtils.h>
#include <orv/samples/SamplesInput.h>

#include <QJsonDocument>
#include <QSet>

namespace orv {

namespace {

/// Files by the names of their samples; of samples of one name the last one's.
QHash<QString, QString> pathsByName(const QVariant &samples)
{
    const auto entries = samples.value<QList<SamplesInput::Entry>>();
    QHash<QString, QString> paths;
    paths.reserve(entries.size());
    for (const SamplesInput::Entry &entry : entries) {
        if (!entry.name.isEmpty())
            paths.insert(entry.name, ResourceReferenceUtils::toString(entry.msFile));
    }
    return paths;
}

/// The names that samples went by once, as they are called now.
class SampleRenaming
{
public:
    explicit SampleRenaming(const GridMessage &message)
        : m_before(pathsByName(message.previousValue))
        , m_now(pathsByName(message.value))
    {
        m_nameByPath.reserve(m_now.size());
        for (auto sample = m_now.cbegin(); sample != m_now.cend(); ++sample) {
            if (!m_nameByPath.contains(sample.value()))
                m_nameByPath.insert(sample.value(), sample.key());
        }
    }

    /// \a names with those of removed samples gone and those of renamed ones changed.
    [[nodiscard]] QStringList follow(const QStringList &names) const
    {
        QStringList followed;
        followed.reserve(names.size());
        for (const QString &name : names) {
            const auto before = m_before.constFind(name);
            if (before == m_before.cend() || m_now.contains(name))
                followed.append(name);
            else if (const auto now = m_nameByPath.constFind(*before); now != m_nameByPath.cend())
                followed.append(*now);
        }
        return followed;
    }

private:
    QHash<QString, QString> m_before;
    QHash<QString, QString> m_now;
    QHash<QString, QString> m_nameByPath;
};

} // namespace

KPropertyViewItem::KPropertyViewItem(GridCommunicationManager *manager)
    : KPropertyViewItem(manager, nullptr)
{}

KPropertyViewItem::KPropertyViewItem(GridCommunicationManager *manager, GridPropertyEditorView *view)
    : GridCommunicative(manager)
    , m_view(view ? view : new GridPropertyEditorView, view ? WidgetOwner::Others : WidgetOwner::Item)
{
    connect(m_view.get(), &GridPropertyEditorView::contentEdited, this, [this] { tellEdited(); });
}

KPropertyViewItem::~KPropertyViewItem() = default;

QWidget *KPropertyViewItem::widget()
{
    return m_view.get();
}

bool KPropertyViewItem::validate(QStringList *warnings, QStringList *, QStringList *,
                                 WidgetValidationType) const
{
    return !m_view || m_view->validate(warnings);
}

Error KPropertyViewItem::setContentInternal()
{
    if (!m_view)
        return notInitialized();
    return m_view->setPropertiesFromSerializedJson(QJsonDocument(storedContent()).toJson());
}

QJsonObject KPropertyViewItem::content() const
{
    if (!m_view)
        return {};
    QJsonObject object;
    if (const KPropertySet *set = m_view->propertySet()) {
        const auto written =
            PropertySetCreator::propertySetToObject(*set, PropertyEditor::PropertyConversionFlag::KeepPaths);
        if (!written)
            qCCritical(propertyEditorLog) << "A setting of the column" << name() << "can't be stored";
        object = written.value_or(storedContent());
    }
    IGridItem::content(&object);
    return object;
}

void KPropertyViewItem::messageReceived(const GridMessage &message)
{
    if (message.type == PropertyId::SamplesTable)
        followSamples(message);
    else if (message.type == PropertyId::Disulfide || message.type == PropertyId::Proteins)
        followTable(message);
}

void KPropertyViewItem::followTable(const GridMessage &message)
{
    static const QByteArray name =
        PropertiesNames::internalNameForType(PropertyId::TheoreticalPeptides).toUtf8();
    KPropertySet *set = m_view ? m_view->propertySet() : nullptr;
    if (set && set->contains(name))
        set->property(name).setOption(PropertiesNames::internalNameForType(message.type).toUtf8().constData(),
                                      message.value);
}

void KPropertyViewItem::followSamples(const GridMessage &message)
{
    KPropertySet *set = m_view ? m_view->propertySet() : nullptr;
    const QByteArray name = PropertiesNames::displayNameForType(PropertyId::Samples).toUtf8();
    if (!set || !set->contains(name))
        return;
    KProperty &property = set->property(name);
    const QStringList names = splitSamples(property.value().toString());
    const QStringList followed = SampleRenaming(message).follow(names);
    // Joined anew, the text would differ in blanks that a person left there.
    property.setValue(followed == names ? property.value() : QVariant(joinSamples(followed)));
}

IGridItem *KPropertyItemCreator::createGridItemOn(GridCommunicationManager *bus) const
{
    return new KPropertyViewItem(bus);
}

} // namespace orv
