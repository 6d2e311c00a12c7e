#include "orv/chemistry/ChainId.h"

#include <QSet>

namespace orv::ChainId {

namespace {

QString lettersOf(qint64 number)
{
    constexpr int kLetters = 26;
    QString text;
    for (; number > 0; number = (number - 1) / kLetters)
        text.prepend(QChar(static_cast<char16_t>(u'A' + (number - 1) % kLetters)));
    return text;
}

} // namespace

QString createDefaultIdText(int number, const QList<Chain> &chains)
{
    QSet<QString> taken;
    for (const Chain &chain : chains)
        taken.insert(chain.id);
    qint64 candidate = std::max(number, 1);
    while (taken.contains(lettersOf(candidate)))
        ++candidate;
    return lettersOf(candidate);
}

} // namespace orv::ChainId
