#include "KPropertyUrlEditor.h"

#include "KPropertyEditorItemEvent.h"
#include "KPropertyEditorView.h"

#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

namespace {

QString urlText(const QUrl &url)
{
    return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : url.toString();
}

/// A text without a scheme is a path; "c:" is a drive rather than a scheme.
QUrl urlFromText(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QUrl url(trimmed);
    const bool hasScheme = url.isValid() && url.scheme().size() > 1;
    return trimmed.isEmpty() ? QUrl()
           : hasScheme       ? url
                             : QUrl::fromLocalFile(QDir::fromNativeSeparators(trimmed));
}

} // namespace

class KPropertyUrlEditorPrivate
{
public:
    KPropertyUrlEditorPrivate(const KProperty &edited, QWidget *owner)
        : property(edited)
        , widget(owner)
        , lineEdit(new QLineEdit(owner))
        , fileMode(edited.option("fileMode").toString().toLower())
        , confirmOverwrites(edited.option("confirmOverwrites", false).toBool())
    {
        lineEdit->setFrame(false);
        lineEdit->setClearButtonEnabled(true);
        lineEdit->installEventFilter(owner);
    }

    [[nodiscard]] QString caption() const
    {
        if (fileMode == QLatin1String("existingfile")) {
            return KPropertyUrlEditor::tr("Select Existing File");
        }
        return fileMode == QLatin1String("dirsonly") ? KPropertyUrlEditor::tr("Select Existing Directory")
                                                     : KPropertyUrlEditor::tr("Select File");
    }

    /// The answer of the application, else that of a dialog.
    [[nodiscard]] QUrl askForUrl(const QUrl &present) const
    {
        KPropertyEditorItemEvent event(
            property, QStringLiteral("getOpenFileUrl"),
            {{QStringLiteral("url"), present}, {QStringLiteral("caption"), caption()}});
        if (KPropertyEditorView *const view = KPropertyUtils::viewForEditor(widget)) {
            Q_EMIT view->handlePropertyEditorItemEvent(&event);
        }
        if (event.hasResult()) {
            return event.result().toUrl();
        }
        if (fileMode == QLatin1String("existingfile")) {
            return QFileDialog::getOpenFileUrl(widget, caption(), present);
        }
        if (fileMode == QLatin1String("dirsonly")) {
            return QFileDialog::getExistingDirectoryUrl(widget, caption(), present);
        }
        return QFileDialog::getSaveFileUrl(widget, caption(), present, QString(), nullptr,
                                           confirmOverwrites ? QFileDialog::Options()
                                                             : QFileDialog::DontConfirmOverwrite);
    }

    /// True when \a event ends the typing of a text that differs from the one before.
    [[nodiscard]] bool textEntered(const QObject *object, const QEvent *event)
    {
        if (object != lineEdit || lineEdit->text() == lastText) {
            return false;
        }
        const bool isEnter = event->type() == QEvent::KeyPress &&
                             (static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Return ||
                              static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Enter);
        return isEnter || event->type() == QEvent::FocusOut;
    }

    void showText(const QString &text)
    {
        lastText = text;
        lineEdit->setText(text);
    }

    const KProperty &property;
    QWidget *const widget;
    QLineEdit *const lineEdit;
    const QString fileMode;
    const bool confirmOverwrites;
    QUrl url;
    KPropertyComposedUrl composedUrl;
    QString lastText;
};

KPropertyUrlEditor::KPropertyUrlEditor(const KProperty &property, QWidget *parent)
    : KPropertyGenericSelectionEditor(parent)
    , d(std::make_unique<KPropertyUrlEditorPrivate>(property, this))
{
    setMainWidget(d->lineEdit);
}

KPropertyUrlEditor::~KPropertyUrlEditor() = default;

QUrl KPropertyUrlEditor::value() const
{
    return d->lineEdit->text() == d->lastText ? d->url : urlFromText(d->lineEdit->text());
}

void KPropertyUrlEditor::setValue(const QUrl &value)
{
    d->url = value;
    d->showText(urlText(value));
}

void KPropertyUrlEditor::selectButtonClicked()
{
    const QPointer<KPropertyUrlEditor> self(this);
    const QUrl chosen = d->askForUrl(value());
    // A dialog ran meanwhile: the editor may be gone.
    if (self && !chosen.isEmpty()) {
        setValue(chosen);
        Q_EMIT commitData(this);
    }
}

bool KPropertyUrlEditor::eventFilter(QObject *o, QEvent *event)
{
    if (d->textEntered(o, event)) {
        setValue(value());
        Q_EMIT commitData(this);
    }
    return KPropertyGenericSelectionEditor::eventFilter(o, event);
}

KPropertyComposedUrlEditor::KPropertyComposedUrlEditor(const KProperty &property, QWidget *parent)
    : KPropertyGenericSelectionEditor(parent)
    , d(std::make_unique<KPropertyUrlEditorPrivate>(property, this))
{
    setMainWidget(d->lineEdit);
}

KPropertyComposedUrlEditor::~KPropertyComposedUrlEditor() = default;

KPropertyComposedUrl KPropertyComposedUrlEditor::value() const
{
    const QString text = d->lineEdit->text();
    KPropertyComposedUrl composed = d->composedUrl;
    if (text == d->lastText) {
        return composed;
    }
    const bool isRelative = !text.contains(QLatin1String("://")) && QDir::isRelativePath(text);
    if (isRelative) {
        composed.setRelativePath(text);
    } else {
        composed.setAbsoluteUrl(urlFromText(text));
    }
    return composed;
}

void KPropertyComposedUrlEditor::setValue(const KPropertyComposedUrl &value)
{
    d->composedUrl = value;
    d->showText(value.relativePath().isEmpty() ? urlText(value.absoluteUrl()) : value.relativePath());
}

void KPropertyComposedUrlEditor::selectButtonClicked()
{
    const QPointer<KPropertyComposedUrlEditor> self(this);
    const QUrl chosen = d->askForUrl(d->composedUrl.value());
    // A dialog ran meanwhile: the editor may be gone.
    if (self && !chosen.isEmpty()) {
        KPropertyComposedUrl composed = d->composedUrl;
        composed.setAbsoluteUrl(chosen);
        setValue(composed);
        Q_EMIT commitData(this);
    }
}

bool KPropertyComposedUrlEditor::eventFilter(QObject *o, QEvent *event)
{
    if (d->textEntered(o, event)) {
        setValue(value());
        Q_EMIT commitData(this);
    }
    return KPropertyGenericSelectionEditor::eventFilter(o, event);
}

KPropertyUrlDelegate::KPropertyUrlDelegate() = default;

QWidget *KPropertyUrlDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    Q_UNUSED(option)
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (!property) {
        return nullptr;
    }
    if (type == KProperty::ComposedUrl) {
        return new KPropertyComposedUrlEditor(*property, parent);
    }
    return new KPropertyUrlEditor(*property, parent);
}

QString KPropertyUrlDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    QString text;
    if (value.canConvert<KPropertyComposedUrl>()) {
        const auto composed = value.value<KPropertyComposedUrl>();
        text = composed.relativePath().isEmpty() ? urlText(composed.absoluteUrl()) : composed.relativePath();
    } else {
        text = urlText(value.toUrl());
    }
    return locale.language() == QLocale::C ? text : valueToLocalizedString(text);
}
