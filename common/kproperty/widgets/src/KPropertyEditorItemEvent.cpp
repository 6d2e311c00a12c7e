#include "KPropertyEditorItemEvent.h"

#include "KProperty.h"

class KPropertyEditorItemEvent::Private
{
public:
    const KProperty &property;
    QString name;
    QVariantMap parameters;
    QVariant result;
    bool hasResult = false;
};

KPropertyEditorItemEvent::KPropertyEditorItemEvent(const KProperty &property, const QString &name,
                                                   const QVariantMap &parameters)
    : d(new Private{property, name, parameters, QVariant(), false})
{}

KPropertyEditorItemEvent::~KPropertyEditorItemEvent() = default;

const KProperty *KPropertyEditorItemEvent::property() const
{
    return &d->property;
}

QString KPropertyEditorItemEvent::name() const
{
    return d->name;
}

QVariantMap KPropertyEditorItemEvent::parameters() const
{
    return d->parameters;
}

void KPropertyEditorItemEvent::setResult(const QVariant &result)
{
    d->result = result;
    d->hasResult = true;
}

QVariant KPropertyEditorItemEvent::result() const
{
    return d->result;
}

bool KPropertyEditorItemEvent::hasResult() const
{
    return d->hasResult;
}
