#pragma once

#include "kpropertywidgets_export.h"

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <memory>

class KProperty;

/*! A request of an editor that the application may answer in place of the editor.

    "getOpenFileUrl", from URL editors: choose a file. Parameters "url" (the present value) and "caption" (the
    title that the dialog would have). Answer with a QUrl, an empty one when the user gave up; without an
    answer the editor shows its own dialog.

    "edit", from the "..." button of an editor whose property has the option "selectButton": edit the value in
    a dialog. Parameter "value". The answer becomes the value of the property; without one it stays. */
class KPROPERTYWIDGETS_EXPORT KPropertyEditorItemEvent
{
public:
    /// \a property must live as long as the event.
    KPropertyEditorItemEvent(const KProperty &property, const QString &name, const QVariantMap &parameters);
    ~KPropertyEditorItemEvent();

    const KProperty *property() const;
    QString name() const;
    QVariantMap parameters() const;

    /// Answers the request, even if \a result is null. A later answer replaces this one.
    void setResult(const QVariant &result);
    QVariant result() const;
    bool hasResult() const;

private:
    Q_DISABLE_COPY(KPropertyEditorItemEvent)
    class Private;
    const std::unique_ptr<Private> d;
};
