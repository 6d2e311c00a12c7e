#include "orv/chemistry/GlycanComposition.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace orv {

namespace {

constexpr qsizetype kLongestComposition = 1000;

struct GlycanCompositionTr
{
    Q_DECLARE_TR_FUNCTIONS(GlycanComposition)
};

Error malformedComposition(const QString &text, const QString &place)
{
    return Error(ErrorCode::InvalidContent,
                 GlycanCompositionTr::tr("The composition of a glycan is malformed."))
        .addDetail(GlycanCompositionTr::tr("It is \"%1\". %2").arg(text.left(100), place))
        .addDetail(GlycanCompositionTr::tr("Write it as \"HexNAc(4)Hex(3)Fuc(1)\"."));
}

} // namespace

Result<GlycanComposition> GlycanComposition::parse(const QString &text)
{
    static const QRegularExpression part(QStringLiteral("([A-Za-z][A-Za-z0-9]*)\\(([0-9]{1,9})\\)\\s*"));
    if (text.size() > kLongestComposition)
        return malformedComposition(
            text, GlycanCompositionTr::tr("It has more than %1 characters.").arg(kLongestComposition));
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return malformedComposition(text, GlycanCompositionTr::tr("It is empty."));
    GlycanComposition composition;
    for (qsizetype at = 0; at < trimmed.size();) {
        const QRegularExpressionMatch match = part.match(trimmed, at, QRegularExpression::NormalMatch,
                                                         QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch())
            return malformedComposition(
                text, GlycanCompositionTr::tr("There is no name with a count at character %1.").arg(at + 1));
        const Part read{match.captured(1), match.captured(2).toInt()};
        if (read.count > kMaximumCount)
            return malformedComposition(
                text, GlycanCompositionTr::tr("A count is larger than %1.").arg(kMaximumCount));
        for (const Part &earlier : std::as_const(composition.m_parts)) {
            if (earlier.moiety == read.moiety)
                return malformedComposition(text,
                                            GlycanCompositionTr::tr("%1 stands twice.").arg(read.moiety));
        }
        composition.m_parts.append(read);
        at = match.capturedEnd();
    }
    return composition;
}

QString GlycanComposition::toString() const
{
    QString text;
    for (const Part &part : m_parts)
        text += QStringLiteral("%1(%2)").arg(part.moiety).arg(part.count);
    return text;
}

} // namespace orv
