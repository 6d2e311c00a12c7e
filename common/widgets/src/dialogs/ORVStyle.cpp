#include "orv/widgets/ORVStyle.h"

#include "ButtonLetters.h"
#include "MessageBox.h"

#include <orv/core/Settings.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/Icons.h>

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace orv {

namespace {

constexpr QLatin1String kStyleEnabled("ORV/StyleEnabled");

struct BoxKind
{
    DialogRequest::Kind kind;
    QMessageBox::Icon icon; ///< for sounds and screen readers
    IconName drawing;
};

constexpr BoxKind kQuestionBox = {DialogRequest::Kind::Question, QMessageBox::Question, IconName::Question};
constexpr BoxKind kWarningBox = {DialogRequest::Kind::Warning, QMessageBox::Warning, IconName::Warning};
constexpr BoxKind kCriticalBox = {DialogRequest::Kind::Critical, QMessageBox::Critical, IconName::Error};
constexpr BoxKind kInformationBox = {DialogRequest::Kind::Information, QMessageBox::Information,
                                     IconName::Information};

struct BoxContent
{
    QString title;
    DisplayString text;
    ORVStyle::Buttons buttons;
    ORVStyle::ButtonTexts texts;
    ORVStyle::Button defaultButton;
    QString details;
    QWidget *below = nullptr; ///< the box takes it over
};

std::optional<bool> &styleOverride()
{
    static std::optional<bool> isEnabled;
    return isEnabled;
}

QString withoutMnemonic(QString text)
{
    return text.remove(u'&');
}

ORVStyle::Button escapeButton(const BoxContent &content)
{
    for (const ORVStyle::Button careful :
         {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Abort, QMessageBox::Close, QMessageBox::Ok}) {
        if (content.buttons.testFlag(careful))
            return careful;
    }
    return QMessageBox::NoButton;
}

void fillBox(MessageBox &box, const BoxContent &content)
{
    box.setWindowTitle(content.title);
    box.setTextFormat(content.text.isHtml() ? Qt::RichText : Qt::PlainText);
    box.setText(content.text.text());
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setStandardButtons(content.buttons);
    for (auto text = content.texts.cbegin(); text != content.texts.cend(); ++text) {
        if (QAbstractButton *const button = box.button(text.key()))
            button->setText(text.value());
    }
    QList<QAbstractButton *> answers = box.buttons();
    answers.removeIf(
        [&box](QAbstractButton *button) { return box.standardButton(button) == QMessageBox::NoButton; });
    ButtonLetters::give(answers);
    const ORVStyle::Button escape = escapeButton(content);
    box.setEscapeButton(escape);
    box.setDefaultButton(content.defaultButton != QMessageBox::NoButton ? content.defaultButton : escape);
    if (!content.details.isEmpty())
        box.setDetailedText(content.details);
    box.setBelow(content.below);
}

DialogRequest requestOf(const BoxKind &kind, QMessageBox &box, const BoxContent &content)
{
    DialogRequest request;
    request.kind = kind.kind;
    request.title = content.title;
    request.text = content.text.toPlainText();
    request.details = content.details;
    request.dialog = &box;
    for (const QAbstractButton *button : box.buttons()) {
        if (box.standardButton(const_cast<QAbstractButton *>(button)) != QMessageBox::NoButton)
            request.buttons.append(withoutMnemonic(button->text()));
    }
    if (const QPushButton *const button = box.defaultButton())
        request.defaultButton = withoutMnemonic(button->text());
    return request;
}

ORVStyle::Button buttonOf(const QMessageBox &box, const QString &text, ORVStyle::Button fallback)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&](const QAbstractButton *button) {
        return withoutMnemonic(button->text()) == text;
    });
    return found == buttons.cend() ? fallback : box.standardButton(*found);
}

ORVStyle::Button showBox(QWidget *parent, const BoxKind &kind, const BoxContent &content)
{
    // The parent may go while the box waits, and takes it along.
    const QPointer<MessageBox> box = new MessageBox(parent);
    box->setObjectName(QStringLiteral("messageBox"));
    box->setIcon(kind.icon);
    const int side = box->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, box);
    box->setIconPixmap(Icons::icon(kind.drawing).pixmap(QSize(side, side), box->devicePixelRatioF()));
    fillBox(*box, content);
    DialogService::prepare(*box);
    ORVStyle::Button pressed = escapeButton(content);
    if (const auto answer = DialogService::answerWithoutPerson(requestOf(kind, *box, content))) {
        if (box)
            pressed = buttonOf(*box, answer->button, pressed);
    } else {
        const int result = box->exec();
        if (box && result != QMessageBox::NoButton)
            pressed = ORVStyle::Button(result);
    }
    delete box;
    return pressed;
}

} // namespace

ORVStyle::Button ORVStyle::question(QWidget *parent, const QString &title, const DisplayString &text,
                                    Buttons buttons, const ButtonTexts &texts, Button defaultButton,
                                    const QString &details, QWidget *below)
{
    return showBox(parent, kQuestionBox, {title, text, buttons, texts, defaultButton, details, below});
}

ORVStyle::Button ORVStyle::warning(QWidget *parent, const QString &title, const DisplayString &text,
                                   Buttons buttons, const ButtonTexts &texts, Button defaultButton,
                                   const QString &details)
{
    return showBox(parent, kWarningBox, {title, text, buttons, texts, defaultButton, details});
}

ORVStyle::Button ORVStyle::critical(QWidget *parent, const QString &title, const DisplayString &text,
                                    Buttons buttons, const ButtonTexts &texts, Button defaultButton,
                                    const QString &details)
{
    return showBox(parent, kCriticalBox, {title, text, buttons, texts, defaultButton, details});
}

ORVStyle::Button ORVStyle::information(QWidget *parent, const QString &title, const DisplayString &text,
                                       Buttons buttons, const ButtonTexts &texts, Button defaultButton,
                                       const QString &details)
{
    return showBox(parent, kInformationBox, {title, text, buttons, texts, defaultButton, details});
}

bool ORVStyle::isEnabled()
{
    return styleOverride().value_or(as::value(kStyleEnabled, true).toBool());
}

void ORVStyle::setEnabled(std::optional<bool> isEnabled)
{
    styleOverride() = isEnabled;
}

} // namespace orv
