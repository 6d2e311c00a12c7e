#include "orv/widgets/DialogAnswerer.h"

#include <orv/widgets/DialogService.h>

namespace orv {

DialogAnswerer::~DialogAnswerer() = default;

ScriptedAnswerer::ScriptedAnswerer()
{
    m_earlier = DialogService::install(this);
}

ScriptedAnswerer::~ScriptedAnswerer()
{
    DialogService::install(m_earlier);
}

void ScriptedAnswerer::expectBox(const QString &title, const QString &button)
{
    m_expected.append({title, {button, {}}, {}});
}

void ScriptedAnswerer::expectPath(const QString &title, const QString &path)
{
    m_expected.append({title, {{}, path}, {}});
}

void ScriptedAnswerer::expectDialog(const QString &title, std::function<bool(QDialog &dialog)> fill)
{
    m_expected.append({title, {}, std::move(fill)});
}

std::optional<DialogAnswer> ScriptedAnswerer::answer(const DialogRequest &request)
{
    m_transcript.append(request);
    m_transcript.last().dialog = nullptr;
    const bool isExpected = !m_expected.isEmpty() && m_expected.constFirst().title == request.title;
    const QString button = isExpected ? m_expected.constFirst().answer.button : QString();
    if (!isExpected || (!button.isEmpty() && !request.buttons.contains(button))) {
        m_hasSurprise = true;
        return std::nullopt;
    }
    const Expected expected = m_expected.takeFirst();
    if (!expected.fill)
        return expected.answer;
    const bool isAccepted = request.dialog && expected.fill(*request.dialog);
    return DialogAnswer{isAccepted ? QStringLiteral("OK") : QStringLiteral("Cancel"), {}};
}

bool ScriptedAnswerer::isDone() const
{
    return m_expected.isEmpty() && !m_hasSurprise;
}

} // namespace orv
