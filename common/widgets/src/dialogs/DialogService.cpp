#include "orv/widgets/DialogService.h"

#include "../FocusSigns.h"

#include <orv/core/Logging.h>
#include <orv/widgets/CheckBoxLook.h>
#include <orv/widgets/ControlHelp.h>

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>

namespace orv::DialogService {

namespace {

DialogAnswerer *&installed()
{
    static DialogAnswerer *answerer = nullptr;
    return answerer;
}

bool hasScreen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

DialogAnswerer *install(DialogAnswerer *answerer)
{
    return std::exchange(installed(), answerer);
}

std::optional<DialogAnswer> answerWithoutPerson(const DialogRequest &request)
{
    if (installed()) {
        if (std::optional<DialogAnswer> answer = installed()->answer(request))
            return answer;
    } else if (hasScreen()) {
        return std::nullopt;
    }
    qCCritical(genericLog()) << "Nobody answers the box" << request.title << request.text << request.buttons;
    return DialogAnswer();
}

void prepare(QDialog &dialog)
{
    ControlHelp::install();
    FocusSigns::install();
    CheckBoxLook::install();
    const QList<QDialogButtonBox *> boxes = dialog.findChildren<QDialogButtonBox *>();
    for (const QDialogButtonBox *box : boxes) {
        for (QAbstractButton *button : box->buttons())
            button->setIcon({});
    }
}

bool exec(QDialog &dialog)
{
    prepare(dialog);
    DialogRequest request;
    request.kind = DialogRequest::Kind::Dialog;
    request.title = dialog.windowTitle();
    request.buttons = {QStringLiteral("OK"), QStringLiteral("Cancel")};
    request.dialog = &dialog;
    if (const std::optional<DialogAnswer> answer = answerWithoutPerson(request))
        return answer->button == QLatin1String("OK");
    const QPointer<QDialog> guard(&dialog);
    const int result = dialog.exec();
    return guard && result == QDialog::Accepted;
}

void wait(QEventLoop &loop)
{
    loop.exec();
}

} // namespace orv::DialogService
