#include "FormChecks.h"

#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/propertyeditor/PropertyVerification.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

using ContentMode = PropertyEditorContent::ContentMode;

struct RulesOutcome
{
    bool passed = false;
    QStringList errors;
    QStringList warnings;

    bool operator==(const RulesOutcome &) const = default;
};

RulesOutcome apply(const VerificationFunction &rule, PropertyId id, const QVariant &value, ContentMode mode)
{
    RulesOutcome outcome;
    outcome.passed = rule(id, value, mode, &outcome.errors, &outcome.warnings);
    return outcome;
}

/// What a property set may hold for a text of a file, and what it shouldn't.
QVariantList valuesOf(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    return {text, bytes, QJsonDocument::fromJson(bytes).object(), text.toDouble(), text.toInt(), QVariant()};
}

struct Limits
{
    double low = 0.0;
    double high = 0.0;
    bool lowInclusive = false;
    bool highInclusive = false;

    [[nodiscard]] bool contain(double value) const
    {
        return (lowInclusive ? low <= value : low < value) && (highInclusive ? value <= high : value < high);
    }
};

/// Without the blanks of ASCII at its ends: no others may stand within a range.
QString bare(const QString &text)
{
    const auto isBlank = [](QChar c) { return c == u' ' || (c >= u'\t' && c <= u'\r'); };
    const auto first = std::ranges::find_if_not(text, isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return QString(first, last - first);
}

/// Read by hand, as the rule reads by a pattern.
std::optional<Limits> limitsOf(const QString &parameter)
{
    static const auto isNumber = [](const QString &text) {
        return !text.isEmpty() &&
               std::ranges::all_of(text, [](QChar c) { return u"-.0123456789"_s.contains(c); });
    };
    const QString text = parameter.trimmed();
    if (text.size() < 2 || !u"[("_s.contains(text.front()) || !u"])"_s.contains(text.back()))
        return {};
    const QStringList ends = text.mid(1, text.size() - 2).split(u';');
    if (ends.size() != 2 || !isNumber(bare(ends[0])) || !isNumber(bare(ends[1])))
        return {};
    return Limits{bare(ends[0]).toDouble(), bare(ends[1]).toDouble(), text.front() == u'[',
                  text.back() == u']'};
}

/// Any rule says why it refuses, once, and is heard in both modes alike unless it asks for files.
QString checkOutcome(const RulesOutcome &outcome, const RulesOutcome &onServer)
{
    if (outcome.passed != outcome.errors.isEmpty() || outcome.errors.size() > 1)
        return u"a rule refuses without a word, or passes with one"_s;
    if (outcome.errors.contains(QString()) || !outcome.warnings.isEmpty())
        return u"a rule says nothing, or warns"_s;
    return outcome == onServer ? QString() : u"the modes differ"_s;
}

QString checkRange(const QString &parameter, const QByteArray &bytes)
{
    const VerificationFunction rule =
        PropertyVerification::constructVerificationFunction(u" Range "_s, parameter);
    const std::optional<Limits> limits = limitsOf(parameter);
    if (bool(rule) != limits.has_value())
        return u"a range is read in two ways"_s;
    if (!rule)
        return {};
    for (const PropertyId id : {PropertyId::AlignmentTolerance, PropertyId::BpiBaselineMaxLimit,
                                PropertyId::StudyName, PropertyId::NoProperty}) {
        for (const QVariant &value : valuesOf(bytes)) {
            const RulesOutcome outcome = apply(rule, id, value, ContentMode::DesktopMode);
            QString wrong = checkOutcome(outcome, apply(rule, id, value, ContentMode::TalvaneMode));
            if (!wrong.isEmpty())
                return wrong;
        }
    }
    const double number = bytes.trimmed().toDouble();
    const RulesOutcome outcome =
        apply(rule, PropertyId::AlignmentTolerance, number, ContentMode::DesktopMode);
    return outcome.passed == limits->contain(number) ? QString() : u"a number is judged in two ways"_s;
}

QString checkComparison(const QString &keyword, const QString &parameter, const QByteArray &bytes)
{
    const VerificationFunction rule = PropertyVerification::constructVerificationFunction(keyword, parameter);
    if (!rule)
        return u"a keyword makes no rule"_s;
    for (const PropertyId id :
         {PropertyId::AlignmentTolerance, PropertyId::BpiBaselineMaxLimit, PropertyId::StudyName}) {
        for (const QVariant &value : valuesOf(bytes)) {
            const QString wrong = checkOutcome(apply(rule, id, value, ContentMode::DesktopMode),
                                               apply(rule, id, value, ContentMode::TalvaneMode));
            if (!wrong.isEmpty())
                return wrong + u" by "_s + keyword;
        }
    }
    return {};
}

QString checkBuiltin(const QString &keyword, PropertyId id, const QByteArray &bytes)
{
    const VerificationFunction rule = PropertyVerification::constructVerificationFunction(keyword, {});
    if (!rule)
        return u"a keyword makes no rule"_s;
    for (const QVariant &value : valuesOf(bytes)) {
        const QString wrong = checkOutcome(apply(rule, id, value, ContentMode::DesktopMode),
                                           apply(rule, id, value, ContentMode::TalvaneMode));
        if (!wrong.isEmpty())
            return wrong + u" by "_s + keyword;
    }
    return {};
}

QString checkGlycans(const QByteArray &bytes)
{
    const VerificationFunction rule = PropertyVerification::constructVerificationFunction(u"glycans"_s, {});
    for (const QVariant &value : valuesOf(bytes)) {
        const RulesOutcome outcome =
            apply(rule, PropertyId::KarvonGlycanText, value, ContentMode::DesktopMode);
        const RulesOutcome onServer =
            apply(rule, PropertyId::KarvonGlycanText, value, ContentMode::TalvaneMode);
        if (outcome.passed != outcome.errors.isEmpty() || onServer.passed != onServer.errors.isEmpty())
            return u"glycans are refused without a word, or pass with one"_s;
        if (onServer.passed && !outcome.passed)
            return u"the server takes glycans that the desktop refuses"_s;
    }
    return {};
}

QString checkDigestion(const QByteArray &bytes)
{
    const VerificationFunction rule =
        PropertyVerification::constructVerificationFunction(u"digestion_valid"_s, {});
    for (const ContentMode mode : {ContentMode::DesktopMode, ContentMode::TalvaneMode}) {
        const QString text = QString::fromUtf8(bytes);
        const RulesOutcome outcome = apply(rule, PropertyId::Digestion, text, mode);
        if (!outcome.errors.isEmpty() || !outcome.warnings.isEmpty())
            return u"the digestion rule leaves the word to another check"_s;
        if (outcome.passed == ProteinDigestionItem::parse(text).hasError())
            return u"a digestion passes and can't be read, or the other way round"_s;
    }
    return {};
}

} // namespace

QString checkRules(const QByteArray &bytes)
{
    const qsizetype line = bytes.indexOf('\n');
    const QString parameter = QString::fromUtf8(line < 0 ? QByteArray() : bytes.first(line));
    const QByteArray value = bytes.mid(line + 1);
    QString wrong = checkRange(parameter, value);
    for (const QString &keyword :
         {u"<"_s, u"<="_s, u">"_s, u">="_s, u"="_s, u"!="_s, u"~"_s, u"!~"_s, u"starts-with"_s,
          u"ends-with"_s, u"empty"_s, u"not-empty"_s, u"list-not-empty"_s}) {
        if (wrong.isEmpty())
            wrong = checkComparison(keyword, parameter, value);
    }
    if (wrong.isEmpty())
        wrong = checkBuiltin(u"modifications"_s, PropertyId::KarvonModText, value);
    if (wrong.isEmpty())
        wrong = checkBuiltin(u"isotope"_s, PropertyId::Isotope, value);
    if (wrong.isEmpty())
        wrong = checkGlycans(value);
    return wrong.isEmpty() ? checkDigestion(value) : wrong;
}

} // namespace FormChecks
